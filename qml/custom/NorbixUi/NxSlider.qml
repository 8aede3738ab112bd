import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Horizontal slider in the house colours; the caller shows the value.
T.Slider {
    id: control

    hoverEnabled: true
    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitHandleWidth + leftPadding + rightPadding)
    implicitHeight: 32
    padding: 0
    leftPadding: 10
    rightPadding: 10

    background: Rectangle {
        x: control.leftPadding
        y: control.topPadding + control.availableHeight / 2 - height / 2
        width: control.availableWidth
        height: 4
        radius: 2
        color: Theme.border
        opacity: control.enabled ? 1 : 0.5

        Rectangle {
            width: control.visualPosition * parent.width
            height: parent.height
            radius: 2
            color: Theme.accent
        }
    }

    handle: Rectangle {
        x: control.leftPadding + control.visualPosition * (control.availableWidth) - width / 2
        y: control.topPadding + control.availableHeight / 2 - height / 2
        width: 20
        height: 20
        radius: 10
        color: control.enabled ? Theme.surface : Theme.disabledFill
        border.width: control.visualFocus ? 3 : 2
        border.color: control.pressed ? Theme.accentPressed : control.enabled ? Theme.accent : Theme.borderStrong
    }
}
