import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.CitrixConnector 1.0
import "CitrixShared.js" as Shared

// Progress of a Citrix start, and the resource browser of the Citrix form.
// "launch": opens by itself when the connector starts a session.
// "browse": opened through browse(); lists the store's resources for picking one.
ModalDialog {
    id: popup

    property string mode: "launch"
    property bool busy: false
    property bool listening: false
    property var messages: []
    property var resources: []
    property int selectedResource: -1
    readonly property bool browsing: mode === "browse"
    readonly property bool choosing: browsing && resources.length > 0

    signal resourceChosen(string name)

    function reset() {
        messages = [];
        resources = [];
        selectedResource = -1;
        closeTimer.stop();
    }

    function addMessage(text) {
        var list = messages.slice();
        list.push(String(text));
        messages = list;
    }

    function browse(server, username, password) {
        reset();
        Shared.browsing = true;
        listening = true;
        busy = true;
        open();
        CitrixConnector.requestResources(server, username, password);
    }

    // For page previews: the popup as it looks while a session starts.
    function showProgress(text) {
        reset();
        busy = true;
        addMessage(text);
        open();
    }

    title: browsing ? qsTr("Citrix resources") : qsTr("Citrix")
    message: ""
    width: parent ? Math.min(520, Math.max(320, parent.width - 2 * Theme.spacingXxl)) : 520
    closeOnOk: false
    showOk: choosing
    okText: qsTr("Use resource")
    okEnabled: selectedResource >= 0
    cancelText: busy ? qsTr("Cancel") : qsTr("Close")

    onOkClicked: {
        var name = resources[selectedResource];
        accept();
        resourceChosen(name);
    }

    onClosed: {
        closeTimer.stop();
        busy = false;
        listening = false;
        if (browsing)
            Shared.browsing = false;
        CitrixConnector.cancel();
    }

    Connections {
        target: CitrixConnector

        function onStarted() {
            if (popup.browsing || Shared.browsing)
                return;
            popup.reset();
            popup.listening = true;
            popup.busy = true;
            popup.open();
        }

        function onNewMessageReceived(message) {
            if (popup.listening)
                popup.addMessage(message);
        }

        function onEnded() {
            if (popup.listening)
                popup.busy = false;
        }

        function onResourcesFound() {
            if (!popup.listening || !popup.browsing)
                return;
            popup.busy = false;
            popup.resources = CitrixConnector.getResourcesDisplay();
            popup.selectedResource = popup.resources.length === 1 ? 0 : -1;
            if (popup.resources.length === 0)
                popup.addMessage(qsTr("The store offers no resources for this account."));
        }

        function onConnected() {
            if (popup.listening && !popup.browsing)
                closeTimer.start();
        }
    }

    Timer {
        id: closeTimer
        interval: 1500
        onTriggered: popup.close()
    }

    // Plain positioners: the wrapped messages change while the layout around them is busy.
    Column {
        Layout.fillWidth: true
        spacing: Theme.spacingS

        // Earlier steps, oldest first.
        Repeater {
            model: popup.messages.length > 1 && !popup.choosing ? popup.messages.slice(0, popup.messages.length - 1) : []

            delegate: Text {
                x: 28 + Theme.spacingM
                width: parent.width - x
                text: modelData
                color: Theme.textSecondary
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
            }
        }

        Item {
            width: parent.width
            height: Math.max(28, currentMessage.implicitHeight)

            Spinner {
                id: indicator
                width: 28
                height: 28
                running: popup.busy && popup.opened
                visible: popup.busy
            }

            NxIcon {
                x: 2
                y: 2
                visible: !popup.busy
                name: "info"
                size: 24
                color: Theme.accent
            }

            Text {
                id: currentMessage
                anchors.left: parent.left
                anchors.leftMargin: 28 + Theme.spacingM
                anchors.right: parent.right
                y: Math.max(0, Math.round((28 - firstLine.height) / 2))
                text: popup.messages.length > 0 ? popup.messages[popup.messages.length - 1]
                                                : popup.browsing ? qsTr("Contacting the Citrix store\u2026")
                                                                 : qsTr("Starting the Citrix session\u2026")
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
            }

            // One line of the message's font, to centre the first line on the indicator.
            TextMetrics {
                id: firstLine
                font: currentMessage.font
                text: "X"
            }
        }
    }

    Rectangle {
        Layout.fillWidth: true
        Layout.preferredHeight: Math.min(resourceList.contentHeight + 2, 40 * 6 + 2)
        visible: popup.choosing
        radius: Theme.radiusM
        color: Theme.surface
        border.color: Theme.border

        ListView {
            id: resourceList
            anchors.fill: parent
            anchors.margins: 1
            clip: true
            model: popup.resources
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: NxScrollBar {}

            delegate: T.ItemDelegate {
                id: option

                readonly property bool selected: popup.selectedResource === index

                width: ListView.view.width
                implicitHeight: 40
                hoverEnabled: true
                leftPadding: Theme.spacingM
                rightPadding: Theme.spacingM
                text: modelData
                Accessible.name: modelData

                onClicked: popup.selectedResource = index
                onDoubleClicked: {
                    popup.selectedResource = index;
                    popup.ok();
                }

                contentItem: RowLayout {
                    spacing: Theme.spacingM

                    NxIcon {
                        Layout.alignment: Qt.AlignVCenter
                        name: "remote-desktop"
                        size: 18
                        color: option.selected ? Theme.accent : Theme.textSecondary
                    }

                    Text {
                        Layout.fillWidth: true
                        Layout.alignment: Qt.AlignVCenter
                        text: option.text
                        color: Theme.text
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                        font.weight: option.selected ? Font.DemiBold : Font.Normal
                        elide: Text.ElideRight
                    }

                    NxIcon {
                        Layout.alignment: Qt.AlignVCenter
                        visible: option.selected
                        name: "check"
                        size: 18
                        color: Theme.accent
                    }
                }

                background: Rectangle {
                    color: option.selected ? Theme.accentSoft
                                           : option.down ? Theme.surfacePressed : option.hovered ? Theme.surfaceHover : "transparent"
                }
            }
        }
    }
}
