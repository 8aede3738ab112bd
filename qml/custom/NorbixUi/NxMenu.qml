import QtQuick 2.15
import QtQuick.Controls 2.15

// Drop-down menu in the shell's look; fill it with NxMenuItem and MenuSeparator.
Menu {
    id: menu

    topPadding: 6
    bottomPadding: 6
    leftPadding: 6
    rightPadding: 6
    modal: false
    implicitWidth: Math.max(240, contentItem ? contentItem.implicitWidth + leftPadding + rightPadding : 0)

    delegate: NxMenuItem {}

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationFast }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationFast }
    }

    background: Rectangle {
        implicitWidth: 240
        radius: Theme.radiusM + 2
        color: Theme.surface
        border.color: Theme.border

        Rectangle {
            z: -1
            anchors.fill: parent
            anchors.topMargin: 2
            anchors.bottomMargin: -3
            anchors.leftMargin: -1
            anchors.rightMargin: -1
            radius: parent.radius + 1
            color: "#1F0F1B2D"
        }
    }
}
