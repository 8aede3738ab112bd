import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.LogManager 1.0

PageScaffold {
    id: page

    property var folders: []

    function refreshLog() {
        logText.text = logs.loadLogs();
        // Newest messages are at the end.
        logText.cursorPosition = logText.length;
    }

    function refreshFolders() {
        var previous = folderBox.currentText;
        folders = logs.listFolders();
        var index = folders.indexOf(previous);
        folderBox.currentIndex = index >= 0 ? index : (folders.length > 0 ? 0 : -1);
    }

    function exportLogs() {
        var result = logs.saveLog(folderBox.currentText, allLogsBox.checked);
        toast.show(result !== "" ? result : qsTr("Export finished."), "info");
        refreshFolders();
    }

    Component.onCompleted: {
        debugRow.checked = logs.isDebug();
        refreshFolders();
        refreshLog();
    }

    LogManager {
        id: logs
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingS

        SwitchRow {
            id: debugRow
            Layout.fillWidth: true
            title: qsTr("Debug logging")
            description: qsTr("Records detailed messages for troubleshooting. Logs grow faster while it is on.")
            onToggled: {
                logs.setDebugEnabled(checked);
                debugRow.checked = logs.isDebug();
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Export logs")
        subtitle: qsTr("Save the logs to a USB drive, for example to pass them on to support.")

        FormComboBox {
            id: folderBox
            Layout.fillWidth: true
            label: qsTr("Choose folder to export logs")
            model: page.folders
            enabled: page.folders.length > 0
            placeholderText: qsTr("No removable drive found")
            hintText: page.folders.length === 0 ? qsTr("Insert a USB drive, then refresh the list.") : ""

            IconButton {
                iconName: "refresh"
                text: qsTr("Refresh drive list")
                onClicked: page.refreshFolders()
            }
        }

        NxCheckBox {
            id: allLogsBox
            Layout.fillWidth: true
            text: qsTr("Export all logs")
        }

        PrimaryButton {
            iconName: "upload"
            text: qsTr("Export")
            enabled: folderBox.currentIndex >= 0
            onClicked: page.exportLogs()
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Current session")
        subtitle: qsTr("Messages logged since the shell was started.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.refreshLog()
            }
        ]

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: Math.max(240, Math.min(560, page.viewportHeight - 120))
            radius: Theme.radiusM
            color: Theme.surfaceAlt
            border.color: Theme.border

            Flickable {
                id: logFlick
                anchors.fill: parent
                anchors.margins: 1
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                T.ScrollBar.vertical: NxScrollBar {}

                T.TextArea.flickable: NxTextArea {
                    id: logText
                    readOnly: true
                    selectByMouse: true
                    wrapMode: TextEdit.Wrap
                    textFormat: TextEdit.PlainText
                    font.family: Theme.monoFamily
                    font.pixelSize: Theme.fontMono
                    padding: Theme.spacingM
                    background: null
                }
            }

            Text {
                anchors.centerIn: parent
                visible: logText.length === 0
                text: qsTr("No messages logged yet.")
                color: Theme.textMuted
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
        }
    }

    Toast {
        id: toast
    }
}
