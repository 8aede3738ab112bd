import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Window 2.15

// Drop-down menu in the shell's look; fill it with NxMenuItem and NxMenuSeparator.
T.Menu {
    id: menu

    topPadding: 6
    bottomPadding: 6
    leftPadding: 6
    rightPadding: 6
    modal: false
    implicitWidth: Math.max(240, contentItem ? contentItem.implicitWidth + leftPadding + rightPadding : 0)

    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             contentHeight + topPadding + bottomPadding)
    margins: 0
    overlap: 1

    delegate: NxMenuItem {}

    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: Window.window ? contentHeight + menu.topPadding + menu.bottomPadding > Window.window.height : false
        clip: true
        currentIndex: menu.currentIndex
    }

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
