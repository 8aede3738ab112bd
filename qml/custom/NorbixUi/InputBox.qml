import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Styled single-line text input used by FormField and PasswordField.
T.TextField {
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

    implicitWidth: implicitBackgroundWidth + leftInset + rightInset
                   || Math.max(contentWidth, hint.implicitWidth) + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spacingM
    rightPadding: Theme.spacingM
    topPadding: 0
    bottomPadding: 0

    // The hint while the field is empty (the templates draw none).
    Text {
        id: hint
        x: control.leftPadding
        y: control.topPadding
        width: control.width - control.leftPadding - control.rightPadding
        height: control.height - control.topPadding - control.bottomPadding
        text: control.placeholderText
        font: control.font
        color: control.placeholderTextColor
        verticalAlignment: control.verticalAlignment
        visible: !control.length && !control.preeditText
                 && (!control.activeFocus || control.horizontalAlignment !== Qt.AlignHCenter)
        elide: Text.ElideRight
        renderType: control.renderType
    }

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
