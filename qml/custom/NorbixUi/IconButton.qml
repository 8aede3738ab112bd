import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Square icon-only button. `text` is used for the tooltip and accessibility.
T.AbstractButton {
    id: control

    property string iconName
    property bool onDark: false
    property int iconSize: 20

    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    implicitWidth: Theme.controlHeight
    implicitHeight: Theme.controlHeight
    padding: 0

    Accessible.name: text

    NxToolTip {
        shown: control.hovered
        text: control.text
    }

    contentItem: Item {
        NxIcon {
            anchors.centerIn: parent
            name: control.iconName
            size: control.iconSize
            color: {
                if (!control.enabled)
                    return control.onDark ? Theme.navyTextMuted : Theme.textDisabled;
                return control.onDark ? Theme.navyTextStrong : Theme.textSecondary;
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusM
        color: {
            if (control.onDark)
                return control.down ? Theme.navySelected : control.hovered ? Theme.navyHover : "transparent";
            return control.down ? Theme.surfacePressed : control.hovered ? Theme.surfaceHover : "transparent";
        }
        border.width: control.visualFocus ? 2 : 0
        border.color: control.onDark ? Theme.accentOnDark : Theme.accent
    }
}
