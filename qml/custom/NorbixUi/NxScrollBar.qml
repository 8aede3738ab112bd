import QtQuick 2.15
import QtQuick.Controls 2.15

// Thin scroll bar that shows while scrolling or hovered.
ScrollBar {
    id: control

    property bool onDark: false

    padding: 2
    minimumSize: 0.08

    contentItem: Rectangle {
        implicitWidth: control.hovered || control.pressed ? 8 : 6
        implicitHeight: control.hovered || control.pressed ? 8 : 6
        radius: width / 2
        color: control.onDark ? (control.pressed ? Theme.navyText : Theme.navyTextMuted)
                              : (control.pressed ? Theme.textSecondary : Theme.textMuted)
        opacity: control.policy === ScrollBar.AlwaysOn || (control.active && control.size < 1.0) ? 0.75 : 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.durationNormal }
        }
    }
}
