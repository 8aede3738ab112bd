import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.ConnectionCheck 1.0

// "Test connection": checks that a connection's server can be reached and shows what was found.
// The check runs in the background; closing the dialog cancels it.
ModalDialog {
    id: dialog

    property string target

    function checkAddress(type, address) {
        target = address.trim();
        open();
        check.start(type, address);
    }

    function checkIndex(index, name) {
        target = name;
        open();
        check.startIndex(index);
    }

    title: qsTr("Test connection")
    message: target !== "" ? qsTr("Checking whether \u201c%1\u201d can be reached.").arg(target) : ""
    showOk: !check.running
    okText: qsTr("Close")
    showCancel: check.running
    cancelText: qsTr("Cancel check")

    onClosed: check.cancel()

    ConnectionCheck {
        id: check
    }

    RowLayout {
        Layout.fillWidth: true
        visible: check.running
        spacing: Theme.spacingM

        Spinner {
            running: check.running
        }

        Text {
            Layout.fillWidth: true
            text: check.stepText
            color: Theme.text
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
    }

    RowLayout {
        Layout.fillWidth: true
        visible: !check.running && check.outcome !== ConnectionCheck.Pending
        spacing: Theme.spacingM

        NxIcon {
            Layout.alignment: Qt.AlignTop
            name: check.outcome === ConnectionCheck.Passed ? "success"
                : check.outcome === ConnectionCheck.Warning ? "warning"
                : check.outcome === ConnectionCheck.Failed ? "error" : "info"
            color: check.outcome === ConnectionCheck.Passed ? Theme.success
                 : check.outcome === ConnectionCheck.Warning ? Theme.warning
                 : check.outcome === ConnectionCheck.Failed ? Theme.danger : Theme.textSecondary
        }

        Column {
            Layout.fillWidth: true
            spacing: Theme.spacingXs

            Text {
                width: parent.width
                text: check.message
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
            }

            Text {
                width: parent.width
                visible: check.outcome === ConnectionCheck.Failed && check.failedStepText !== ""
                text: qsTr("Step that failed: %1").arg(check.failedStepText)
                color: Theme.textSecondary
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
            }
        }
    }

    GridLayout {
        Layout.fillWidth: true
        visible: !check.running && check.certificateSubject !== ""
        columns: 2
        columnSpacing: Theme.spacingL
        rowSpacing: Theme.spacingXs

        Repeater {
            model: [
                [qsTr("Certificate issued to"), check.certificateSubject],
                [qsTr("Issued by"), check.certificateIssuer],
                [qsTr("Valid until"), check.certificateExpiry]
            ]

            delegate: Item {
                Layout.columnSpan: 2
                Layout.fillWidth: true
                implicitHeight: Math.max(keyText.implicitHeight, valueText.implicitHeight)

                Text {
                    id: keyText
                    width: parent.width * 0.4
                    text: modelData[0]
                    color: Theme.textSecondary
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                }

                Text {
                    id: valueText
                    x: parent.width * 0.4 + Theme.spacingS
                    width: parent.width * 0.6 - Theme.spacingS
                    text: modelData[1]
                    color: Theme.text
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.WrapAnywhere
                }
            }
        }
    }
}
