import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15

// Short, self-dismissing message at the bottom of the window.
T.Popup {
    id: toast

    // "info", "success" or "error"
    property string kind: "info"
    property alias text: label.text
    // Room kept free below the toast (for a banner that stays at the bottom of the window).
    property real bottomOffset: 0

    function show(message, messageKind) {
        label.text = message;
        kind = messageKind ? messageKind : "info";
        timer.restart();
        open();
    }

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height - height - Theme.spacingXxl - bottomOffset : 0
    width: parent ? Math.min(implicitWidth, Math.max(240, parent.width - 2 * Theme.spacingXxl)) : implicitWidth
    modal: false
    focus: false
    closePolicy: T.Popup.NoAutoClose
    topPadding: Theme.spacingM
    bottomPadding: Theme.spacingM
    leftPadding: Theme.spacingL
    rightPadding: Theme.spacingS
    implicitWidth: row.implicitWidth + leftPadding + rightPadding
    implicitHeight: row.implicitHeight + topPadding + bottomPadding
    height: implicitHeight

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationNormal }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationNormal }
    }

    background: Rectangle {
        radius: Theme.radiusM + 2
        color: Theme.navy
        border.color: Theme.navyBorder
    }

    contentItem: RowLayout {
        id: row
        spacing: Theme.spacingM

        NxIcon {
            Layout.alignment: Qt.AlignVCenter
            name: toast.kind === "success" ? "success" : toast.kind === "error" ? "error" : "info"
            color: toast.kind === "success" ? "#5FD39A" : toast.kind === "error" ? "#FF8E8E" : Theme.accentOnDark
        }

        Text {
            id: label
            Layout.fillWidth: true
            Layout.maximumWidth: 560
            Layout.alignment: Qt.AlignVCenter
            color: Theme.navyTextStrong
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }

        IconButton {
            Layout.alignment: Qt.AlignVCenter
            implicitWidth: 32
            implicitHeight: 32
            iconSize: 16
            onDark: true
            iconName: "close"
            text: qsTr("Dismiss")
            onClicked: toast.close()
        }
    }

    Timer {
        id: timer
        interval: toast.kind === "error" ? 7000 : 4000
        onTriggered: toast.close()
    }
}
