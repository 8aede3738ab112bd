import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0

// First-run wizard: one settings page per step under a header that tells where the user is, and
// Back / Skip / Next along the bottom. The course itself is decided by the wizard backend.
FocusScope {
    id: root

    property var wizard: null
    // The network step can open the Wi-Fi page in its place.
    property bool wifiOpen: false

    signal finished()

    readonly property var stepPages: ({
        "language": { page: "LanguagePage.qml", title: qsTr("Language"), icon: "globe",
                      description: qsTr("Choose the language of this terminal's screens.") },
        "keyboard": { page: "KeyboardPage.qml", title: qsTr("Keyboard"), icon: "keyboard",
                      description: qsTr("Choose the keyboard layouts you type with.") },
        "network": { page: "WizardNetworkPage.qml", title: qsTr("Network"), icon: "network",
                     description: qsTr("Bring this terminal online.") },
        "time": { page: "DateTimePage.qml", title: qsTr("Date & time"), icon: "clock",
                  description: qsTr("Set the time zone and the clock.") },
        "management": { page: "ManagementPage.qml", title: qsTr("Management server"), icon: "server",
                        description: qsTr("Optional: let a management server look after this terminal.") }
    })
    readonly property string step: wizard ? wizard.currentStep : ""

    function loadStep() {
        var entry = stepPages[step];
        if (!entry) {
            stepLoader.source = "";
            return;
        }
        var url = step === "network" && wifiOpen ? "WifiPage.qml" : entry.page;
        var title = step === "network" && wifiOpen ? qsTr("Wi-Fi") : entry.title;
        stepLoader.setSource(url, { title: title, subtitle: entry.description, iconName: entry.icon });
    }

    function goBack() {
        if (wifiOpen)
            wifiOpen = false;
        else if (wizard)
            wizard.back();
    }

    function goNext() {
        wifiOpen = false;
        if (wizard)
            wizard.next();
    }

    function skipStep() {
        wifiOpen = false;
        if (wizard)
            wizard.skip();
    }

    onStepChanged: loadStep()
    onWifiOpenChanged: loadStep()

    Connections {
        target: root.wizard

        function onDoneChanged() {
            if (root.wizard.done)
                root.finished();
        }
    }

    Keys.onEscapePressed: root.goBack()
    // Enter moves on unless the focused control used it.
    Keys.onReturnPressed: root.goNext()
    Keys.onEnterPressed: root.goNext()

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    Rectangle {
        id: header
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: headerRow.implicitHeight + 2 * Theme.spacingL
        color: Theme.navy

        RowLayout {
            id: headerRow
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            anchors.leftMargin: Theme.spacingXxl
            anchors.rightMargin: Theme.spacingXxl
            spacing: Theme.spacingL

            Text {
                Layout.fillWidth: true
                text: qsTr("Welcome to your terminal")
                color: Theme.navyTextStrong
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
                font.family: Theme.fontFamily
            }

            Repeater {
                model: root.wizard ? root.wizard.steps : []

                delegate: Rectangle {
                    readonly property bool current: index === root.wizard.stepIndex
                    Layout.alignment: Qt.AlignVCenter
                    Layout.preferredWidth: current ? 28 : 10
                    Layout.preferredHeight: 10
                    radius: 5
                    color: current ? Theme.accentOnDark : index < root.wizard.stepIndex ? Theme.navyText : Theme.navyBorder
                }
            }

            Text {
                text: root.wizard ? qsTr("Step %1 of %2").arg(root.wizard.stepIndex + 1).arg(root.wizard.stepCount) : ""
                color: Theme.navyText
                font.pixelSize: Theme.fontSmall
                font.family: Theme.fontFamily
            }
        }
    }

    Loader {
        id: stepLoader
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.bottom: footer.top
        focus: true
    }

    Connections {
        target: stepLoader.item
        ignoreUnknownSignals: true

        function onWifiRequested() {
            root.wifiOpen = true;
        }
    }

    Rectangle {
        id: footer
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: footerRow.implicitHeight + 2 * Theme.spacingL
        color: Theme.surface

        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            height: 1
            color: Theme.border
        }

        RowLayout {
            id: footerRow
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            anchors.leftMargin: Theme.spacingXxl
            anchors.rightMargin: Theme.spacingXxl
            spacing: Theme.spacingM

            SecondaryButton {
                objectName: "wizardBack"
                iconName: "back"
                text: qsTr("Back")
                enabled: root.wifiOpen || (root.wizard !== null && root.wizard.canGoBack)
                onClicked: root.goBack()
            }

            Item {
                Layout.fillWidth: true
            }

            FlatButton {
                objectName: "wizardSkip"
                text: qsTr("Skip")
                onClicked: root.skipStep()
            }

            PrimaryButton {
                objectName: "wizardNext"
                text: root.wizard && root.wizard.lastStep ? qsTr("Finish") : qsTr("Next")
                onClicked: root.goNext()
            }
        }
    }
}
