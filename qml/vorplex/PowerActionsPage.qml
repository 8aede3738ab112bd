import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.PowerBackend 1.0

PageScaffold {
    id: page

    PowerBackend {
        id: power
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingS

        SettingsRow {
            Layout.fillWidth: true
            iconName: "power"
            title: qsTr("Shut down")
            description: qsTr("Ends every session and switches the terminal off.")

            DangerButton {
                text: qsTr("Shut down")
                onClicked: shutdownDialog.open()
            }
        }
        SettingsRow {
            Layout.fillWidth: true
            iconName: "refresh"
            title: qsTr("Restart")
            description: qsTr("Ends every session and starts the terminal again.")

            SecondaryButton {
                text: qsTr("Restart")
                onClicked: rebootDialog.open()
            }
        }
    }

    ModalDialog {
        id: shutdownDialog
        objectName: "shutdownDialog"
        title: qsTr("Shut down")
        message: qsTr("Shut the terminal down now? Open sessions end and unsaved work in them is lost.")
        okText: qsTr("Shut down")
        destructive: true
        onOkClicked: power.shutdown()
    }

    ModalDialog {
        id: rebootDialog
        objectName: "rebootDialog"
        title: qsTr("Restart")
        message: qsTr("Restart the terminal now? Open sessions end and unsaved work in them is lost.")
        okText: qsTr("Restart")
        destructive: true
        onOkClicked: power.reboot()
    }
}
