import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Thin scroll bar that shows while scrolling or hovered.
T.ScrollBar {
    id: control

    property bool onDark: false

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)
    padding: 2
    visible: policy !== T.ScrollBar.AlwaysOff
    minimumSize: 0.08

    contentItem: Rectangle {
        implicitWidth: control.hovered || control.pressed ? 8 : 6
        implicitHeight: control.hovered || control.pressed ? 8 : 6
        radius: width / 2
        color: control.onDark ? (control.pressed ? Theme.navyText : Theme.navyTextMuted)
                              : (control.pressed ? Theme.textSecondary : Theme.textMuted)
        opacity: control.policy === T.ScrollBar.AlwaysOn || (control.active && control.size < 1.0) ? 0.75 : 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.durationNormal }
        }
    }
}
