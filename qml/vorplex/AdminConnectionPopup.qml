import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.RemoteAssistanceBackend 1.0

// Asks the user whether an administrator may see and control this screen. The backend keeps the
// countdown and makes sure each request is answered once.
ModalDialog {
    id: popup

    // The request this popup shows; a late close of an earlier one must not answer the next.
    property int shownSerial: 0

    function showPopup(messageId, type, title, text, timeout, token, port) {
        backend.showPopup(messageId, type, title, text, timeout, token, port);
    }

    title: qsTr("Allow remote connection")
    message: backend.title
    okText: qsTr("Accept")
    cancelText: qsTr("Reject")
    closeOnOk: false

    onOkClicked: backend.accept()
    onCancelled: backend.dismiss(shownSerial)

    RemoteAssistanceBackend {
        id: backend

        onCurrentChanged: {
            if (active) {
                popup.shownSerial = serial;
                if (!popup.opened)
                    popup.open();
            } else {
                popup.accept();
            }
        }
    }

    Text {
        Layout.fillWidth: true
        visible: text !== ""
        text: backend.text
        wrapMode: Text.Wrap
        color: Theme.text
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontBody
    }

    Text {
        Layout.fillWidth: true
        visible: backend.countdownVisible
        text: qsTr("Request will be accepted automatically in %1 seconds").arg(backend.secondsLeft)
        wrapMode: Text.Wrap
        color: Theme.textMuted
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
    }
}
