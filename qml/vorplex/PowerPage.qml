import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.ScreensBackend 1.0

PageScaffold {
    id: page

    function load() {
        turnOffBox.currentIndex = Math.max(0, Math.min(4, ScreensBackend.getScreenTurnOffTime()));
        sleepBox.currentIndex = Math.max(0, Math.min(4, ScreensBackend.getSleepTime()));
    }

    function apply() {
        ScreensBackend.setScreenTurnOffTime(turnOffBox.currentIndex);
        ScreensBackend.setSleepTime(sleepBox.currentIndex);
        ScreensBackend.applyTurnOffTime();
        ScreensBackend.applySleepTime();
        toast.show(qsTr("Power saving settings applied."), "success");
    }

    Component.onCompleted: load()

    Card {
        Layout.fillWidth: true
        title: qsTr("Power saving")
        subtitle: qsTr("Without keyboard or mouse input, the screen turns off and later the terminal goes to sleep.")

        GridLayout {
            Layout.fillWidth: true
            columns: page.columnWidth > 640 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingL

            FormComboBox {
                id: turnOffBox
                objectName: "turnOffBox"
                Layout.fillWidth: true
                label: qsTr("Turn off the screen after")
                model: [qsTr("No turn off"), qsTr("1 minute"), qsTr("5 minutes"), qsTr("30 minutes"), qsTr("1 hour")]
            }
            FormComboBox {
                id: sleepBox
                objectName: "sleepBox"
                Layout.fillWidth: true
                label: qsTr("Put the terminal to sleep after")
                model: [qsTr("No sleep"), qsTr("5 minutes"), qsTr("30 minutes"), qsTr("1 hour"), qsTr("6 hours")]
            }
        }

        PrimaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "check"
            text: qsTr("APPLY")
            onClicked: page.apply()
        }
    }

    Toast {
        id: toast
    }
}
