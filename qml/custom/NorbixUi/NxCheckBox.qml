import QtQuick 2.15
import QtQuick.Templates 2.15 as T

T.CheckBox {
    id: control

    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontBody
    hoverEnabled: true
    spacing: 10
    padding: 4
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(indicator.implicitHeight, contentItem.implicitHeight) + topPadding + bottomPadding

    indicator: Rectangle {
        implicitWidth: 20
        implicitHeight: 20
        x: control.leftPadding
        y: control.topPadding + (control.availableHeight - height) / 2
        radius: Theme.radiusS
        opacity: control.enabled ? 1 : 0.5
        color: control.checked ? (control.down ? Theme.accentPressed : Theme.accent) : Theme.surface
        border.width: control.visualFocus ? 2 : 1.5
        border.color: control.visualFocus ? Theme.accentPressed
                                          : control.checked ? Theme.accent
                                                            : control.hovered ? Theme.textMuted : Theme.borderStrong

        NxIcon {
            anchors.centerIn: parent
            size: 16
            name: "check"
            strokeWidth: 3
            color: Theme.textOnAccent
            visible: control.checked
        }
    }

    contentItem: Text {
        leftPadding: control.indicator.width + control.spacing
        text: control.text
        font: control.font
        color: control.enabled ? Theme.text : Theme.textDisabled
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
}
