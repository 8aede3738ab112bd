import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.InfoBackend 1.0

// Hardware and software facts of this terminal, and the way to hand them to support.
PageScaffold {
    id: page

    readonly property var facts: typeof systemInfoModel !== "undefined" ? systemInfoModel : null
    readonly property bool ready: facts !== null && facts.ready
    property var drives: []
    property string resultText: ""
    property string resultKind: "info"

    function refreshDrives() {
        var previous = driveBox.currentIndex >= 0 ? drives[driveBox.currentIndex].path : "";
        drives = info.listDrives().map(function (path) { return { path: path, label: info.driveLabel(path) }; });
        var index = drives.findIndex(function (drive) { return drive.path === previous; });
        driveBox.currentIndex = index >= 0 ? index : (drives.length > 0 ? 0 : -1);
    }

    function copyFacts() {
        info.copyToClipboard(facts.asText());
        resultKind = "success";
        resultText = qsTr("The system information is on the clipboard.");
    }

    function saveFacts() {
        var path = info.saveToDrive(facts.asText(), drives[driveBox.currentIndex].path);
        resultKind = path !== "" ? "success" : "error";
        resultText = path !== "" ? qsTr("Saved as %1.").arg(path) : qsTr("The file could not be written to the drive.");
    }

    Component.onCompleted: refreshDrives()

    InfoBackend {
        id: info
    }

    Card {
        Layout.fillWidth: true
        visible: !page.ready
        title: qsTr("Reading system information\u2026")

        Spinner {
            Layout.alignment: Qt.AlignHCenter
        }
    }

    Repeater {
        model: page.ready ? [qsTr("Hardware"), qsTr("Software")] : []

        delegate: Card {
            id: sectionCard
            readonly property string section: modelData
            Layout.fillWidth: true
            title: section

            Repeater {
                model: page.facts

                delegate: RowLayout {
                    Layout.fillWidth: true
                    visible: model.section === sectionCard.section
                    spacing: Theme.spacingL

                    Text {
                        Layout.preferredWidth: Math.round(sectionCard.width * 0.3)
                        Layout.alignment: Qt.AlignTop
                        text: model.label
                        color: Theme.textSecondary
                        elide: Text.ElideRight
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                    }
                    Text {
                        Layout.fillWidth: true
                        text: model.value
                        color: Theme.text
                        wrapMode: Text.Wrap
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                    }
                }
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Send to support")
        subtitle: qsTr("Copy these facts, or save them as a text file on a USB drive.")

        SecondaryButton {
            iconName: "document"
            text: qsTr("Copy to clipboard")
            enabled: page.ready
            onClicked: page.copyFacts()
        }

        FormComboBox {
            id: driveBox
            Layout.fillWidth: true
            label: qsTr("Drive")
            model: page.drives
            textRole: "label"
            enabled: page.drives.length > 0
            placeholderText: qsTr("No removable drive found")
            hintText: page.drives.length === 0 ? qsTr("Insert a USB drive, then refresh the list.") : ""

            IconButton {
                iconName: "refresh"
                text: qsTr("Refresh drive list")
                onClicked: page.refreshDrives()
            }
        }

        PrimaryButton {
            iconName: "download"
            text: qsTr("Save to drive")
            enabled: page.ready && driveBox.currentIndex >= 0
            onClicked: page.saveFacts()
        }

        ResultBanner {
            Layout.fillWidth: true
            text: page.resultText
            kind: page.resultKind
        }
    }
}
