import QtQuick 2.15
import QtQuick.Controls 2.15

// Styled single-line text input used by FormField and PasswordField.
TextField {
    id: control

    property bool hasError: false

    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontBody
    color: enabled ? Theme.text : Theme.textDisabled
    placeholderTextColor: Theme.textMuted
    selectionColor: Theme.accent
    selectedTextColor: Theme.textOnAccent
    selectByMouse: true
    verticalAlignment: TextInput.AlignVCenter

    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spacingM
    rightPadding: Theme.spacingM
    topPadding: 0
    bottomPadding: 0

    background: Rectangle {
        implicitWidth: 240
        implicitHeight: Theme.controlHeight
        radius: Theme.radiusM
        color: control.enabled ? Theme.surface : Theme.surfaceAlt
        border.width: control.activeFocus || control.hasError ? 2 : 1
        border.color: control.hasError ? Theme.danger
                                       : control.activeFocus ? Theme.accent
                                                             : control.hovered ? Theme.borderStrong : Theme.border
    }
}
