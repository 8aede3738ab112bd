import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.NetworkManager 1.0

// 802.1X of the wired profile: off, or one EAP method with its fields.
PageScaffold {
    id: page

    readonly property var methods: ["md5", "tls", "pwd", "fast", "ttls", "peap"]
    readonly property var methodNames: [qsTr("MD5"), qsTr("TLS"), qsTr("PWD"), qsTr("FAST"), qsTr("Tunneled TLS"), qsTr("Protected EAP (PEAP)")]

    // Fields per method, in screen order. kind: text, secret, cert (asArray), menu (labels + values;
    // an empty value stages nothing).
    readonly property var fields: ({
        "md5": [
            { key: "identity", kind: "text", label: qsTr("Username") },
            { key: "password", kind: "secret", label: qsTr("Password") }
        ],
        "tls": [
            { key: "identity", kind: "text", label: qsTr("Identity") },
            { key: "domain-suffix-match", kind: "text", label: qsTr("Domain") },
            { key: "ca-cert", kind: "cert", asArray: true, label: qsTr("CA certificate") },
            { key: "ca-cert-password", kind: "secret", label: qsTr("CA certificate password") },
            { key: "client-cert", kind: "cert", asArray: true, label: qsTr("User certificate") },
            { key: "client-cert-password", kind: "secret", label: qsTr("User certificate password") },
            { key: "private-key", kind: "cert", asArray: true, label: qsTr("User private key") },
            { key: "private-key-password", kind: "secret", label: qsTr("User key password") }
        ],
        "pwd": [
            { key: "identity", kind: "text", label: qsTr("Username") },
            { key: "password", kind: "secret", label: qsTr("Password") }
        ],
        "fast": [
            { key: "anonymous-identity", kind: "text", label: qsTr("Anonymous identity") },
            { key: "phase1-fast-provisioning", kind: "menu", label: qsTr("PAC provisioning"),
              labels: [qsTr("Off"), qsTr("Anonymous"), qsTr("Authenticated"), qsTr("Both")], values: ["0", "1", "2", "3"] },
            { key: "pac-file", kind: "cert", asArray: false, label: qsTr("PAC file") },
            { key: "phase2-auth", kind: "menu", label: qsTr("Inner authentication"),
              labels: [qsTr("GTC"), qsTr("MSCHAPv2")], values: ["gtc", "mschapv2"] },
            { key: "identity", kind: "text", label: qsTr("Username") },
            { key: "password", kind: "secret", label: qsTr("Password") }
        ],
        "ttls": [
            { key: "anonymous-identity", kind: "text", label: qsTr("Anonymous identity") },
            { key: "domain-suffix-match", kind: "text", label: qsTr("Domain") },
            { key: "ca-cert", kind: "cert", asArray: true, label: qsTr("CA certificate") },
            { key: "ca-cert-password", kind: "secret", label: qsTr("CA certificate password") },
            { key: "phase2-auth", kind: "menu", label: qsTr("Inner authentication"),
              labels: [qsTr("PAP"), qsTr("MSCHAP"), qsTr("MSCHAPv2"), qsTr("MSCHAPv2 (no EAP)"), qsTr("CHAP"), qsTr("MD5"), qsTr("GTC")],
              values: ["pap", "mschap", "mschapv2", "phase2-autheap", "chap", "md5", "gtc"] },
            { key: "identity", kind: "text", label: qsTr("Username") },
            { key: "password", kind: "secret", label: qsTr("Password") }
        ],
        "peap": [
            { key: "anonymous-identity", kind: "text", label: qsTr("Anonymous identity") },
            { key: "domain-suffix-match", kind: "text", label: qsTr("Domain") },
            { key: "ca-cert", kind: "cert", asArray: true, label: qsTr("CA certificate") },
            { key: "phase1-peapver", kind: "menu", label: qsTr("PEAP version"),
              labels: [qsTr("Automatic"), qsTr("Version 0"), qsTr("Version 1")], values: ["", "0", "1"] },
            { key: "phase2-auth", kind: "menu", label: qsTr("Inner authentication"),
              labels: [qsTr("MSCHAPv2"), qsTr("MD5"), qsTr("GTC")], values: ["mschapv2", "md5", "gtc"] },
            { key: "identity", kind: "text", label: qsTr("Username") },
            { key: "password", kind: "secret", label: qsTr("Password") }
        ]
    })

    property int methodIndex: 0
    readonly property string method: methods[methodIndex]
    // key -> value of the form, filled from what NetworkManager holds.
    property var values: ({})

    function load() {
        network.initDbus();
        var eap = network.getEAP();
        enabledRow.checked = eap !== "";
        methodIndex = Math.max(0, methods.indexOf(eap));
        methodBox.currentIndex = methodIndex;
        fillFromSettings();
    }

    function fillFromSettings() {
        var list = fields[method];
        var filled = {};
        for (var i = 0; i < list.length; ++i) {
            var f = list[i];
            filled[f.key] = f.kind === "secret" ? network.getSecret(f.key)
                          : f.kind === "cert" ? network.getCert(f.key) : network.getSetting(f.key);
        }
        values = filled;
    }

    function setValue(key, value) {
        var copy = Object.assign({}, values);
        copy[key] = value;
        values = copy;
    }

    function apply() {
        var enabled = enabledRow.checked;
        busy.run(enabled ? qsTr("Writing the 802.1X settings…") : qsTr("Switching 802.1X off…"), function () {
            network.clearCerts();
            network.set8021xEnabled(enabled);
            network.setEap(page.method);
            var list = fields[page.method];
            for (var i = 0; i < list.length; ++i) {
                var f = list[i];
                var value = values[f.key] !== undefined ? values[f.key] : "";
                if (f.kind === "menu" && f.values.indexOf(value) < 0)
                    value = f.values[0]; // the item the menu shows
                if (value === "")
                    continue; // only what the user filled in
                if (f.kind === "cert") {
                    network.markCertForStoring(f.key);
                    network.setCert(f.key, f.asArray, value);
                } else {
                    network.setProperty(f.key, value);
                }
            }
            network.apply8021x();
            page.load();
            toast.show(enabled ? qsTr("802.1X is on with %1.").arg(page.methodNames[page.methodIndex])
                               : qsTr("802.1X is off."), "success");
        });
    }

    Component.onCompleted: load()

    NetworkManager {
        id: network
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingS

        SwitchRow {
            id: enabledRow
            objectName: "enabledRow"
            Layout.fillWidth: true
            iconName: "shield"
            title: qsTr("802.1X authentication")
            description: checked ? qsTr("The wired connection authenticates before it is let onto the network.")
                                 : qsTr("Off: the wired connection does not authenticate.")
        }
    }

    Card {
        Layout.fillWidth: true
        visible: enabledRow.checked
        title: qsTr("Method")
        subtitle: qsTr("Ask your network administrator which method and certificates your network uses.")

        FormComboBox {
            id: methodBox
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Authentication")
            model: page.methodNames
            onActivated: {
                page.methodIndex = index;
                page.fillFromSettings();
            }
        }

        GridLayout {
            Layout.fillWidth: true
            columns: page.columnWidth > 760 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingS

            Repeater {
                model: page.fields[page.method]

                delegate: Loader {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.columnSpan: modelData.kind === "cert" ? (page.columnWidth > 760 ? 2 : 1) : 1
                    property var entry: modelData
                    sourceComponent: modelData.kind === "secret" ? secretField
                                   : modelData.kind === "cert" ? certField
                                   : modelData.kind === "menu" ? menuField : textField
                }
            }
        }
    }

    PrimaryButton {
        iconName: "check"
        text: qsTr("Apply")
        onClicked: page.apply()
    }

    Component {
        id: textField
        FormField {
            label: entry.label
            text: page.values[entry.key] || ""
            onEdited: page.setValue(entry.key, text)
        }
    }

    Component {
        id: secretField
        PasswordField {
            label: entry.label
            text: page.values[entry.key] || ""
            onEdited: page.setValue(entry.key, text)
        }
    }

    Component {
        id: menuField
        FormComboBox {
            label: entry.label
            model: entry.labels
            currentIndex: Math.max(0, entry.values.indexOf(page.values[entry.key] || ""))
            onActivated: page.setValue(entry.key, entry.values[index])
        }
    }

    Component {
        id: certField
        FormField {
            label: entry.label
            text: page.values[entry.key] || ""
            readOnly: true
            placeholderText: qsTr("No file chosen")

            SecondaryButton {
                iconName: "folder"
                text: qsTr("Browse…")
                onClicked: {
                    var path = network.setCert(entry.key, entry.asArray);
                    if (path !== "")
                        page.setValue(entry.key, path);
                }
            }
            FlatButton {
                text: qsTr("Clear")
                visible: (page.values[entry.key] || "") !== ""
                onClicked: page.setValue(entry.key, "")
            }
        }
    }

    BusyOverlay {
        id: busy
        parent: page
    }

    Toast {
        id: toast
    }
}
