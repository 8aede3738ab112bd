import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Track-and-knob switch without its own label; SwitchRow supplies the text.
T.Switch {
    id: control

    padding: 2
    spacing: 0
    hoverEnabled: true
    implicitWidth: indicator.implicitWidth + leftPadding + rightPadding
    implicitHeight: indicator.implicitHeight + topPadding + bottomPadding

    indicator: Rectangle {
        implicitWidth: 44
        implicitHeight: 24
        x: control.leftPadding
        y: control.topPadding + (control.availableHeight - height) / 2
        radius: height / 2
        opacity: control.enabled ? 1 : 0.5
        color: control.checked ? (control.down ? Theme.accentPressed : Theme.accent)
                               : (control.hovered ? Theme.textMuted : Theme.borderStrong)
        border.width: control.visualFocus ? 2 : 0
        border.color: Theme.accentPressed

        Behavior on color {
            ColorAnimation { duration: Theme.durationFast }
        }

        Rectangle {
            width: 18
            height: 18
            radius: 9
            y: 3
            x: control.checked ? parent.width - width - 3 : 3
            color: Theme.surface

            Behavior on x {
                enabled: !control.down
                NumberAnimation { duration: Theme.durationFast; easing.type: Easing.OutCubic }
            }
        }
    }

    contentItem: Item {}
}
