import QtQuick 2.15
import NorbixUi 1.0

// Covers a page while a blocking system change runs. run() shows the message first and starts the
// work only after the overlay has been painted, since the work holds the user interface until done.
Rectangle {
    id: overlay

    property string message
    property var pending: null

    function run(text, work) {
        message = text;
        pending = work;
        visible = true;
        starter.restart();
    }

    anchors.fill: parent
    visible: false
    color: Qt.rgba(1, 1, 1, 0.72)
    z: 100

    // Swallow clicks while busy.
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
    }

    Column {
        anchors.centerIn: parent
        spacing: Theme.spacingM

        Spinner {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 36
        }

        Text {
            width: Math.min(overlay.width - 2 * Theme.spacingXl, 420)
            horizontalAlignment: Text.AlignHCenter
            text: overlay.message
            color: Theme.text
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
    }

    Timer {
        id: starter
        interval: 80
        onTriggered: {
            var work = overlay.pending;
            overlay.pending = null;
            if (work)
                work();
            overlay.visible = false;
        }
    }
}
