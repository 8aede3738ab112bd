import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Shared look of all text buttons; PrimaryButton and friends only pick a kind.
T.Button {
    id: control

    // "primary", "secondary", "flat", "danger" or "onDark" (for the navy areas).
    property string kind: "secondary"
    property string iconName: ""

    readonly property color foreground: {
        if (!enabled)
            return kind === "onDark" ? Theme.navyTextMuted : Theme.textDisabled;
        switch (kind) {
        case "primary":
        case "danger":
            return Theme.textOnAccent;
        case "flat":
            return Theme.accent;
        case "onDark":
            return Theme.navyTextStrong;
        default:
            return Theme.text;
        }
    }

    readonly property color fill: {
        switch (kind) {
        case "primary":
            if (!enabled)
                return Theme.disabledFill;
            return down ? Theme.accentPressed : hovered ? Theme.accentHover : Theme.accent;
        case "danger":
            if (!enabled)
                return Theme.disabledFill;
            return down ? Theme.dangerPressed : hovered ? Theme.dangerHover : Theme.danger;
        case "flat":
            return down ? Theme.surfacePressed : hovered ? Theme.accentSoft : "transparent";
        case "onDark":
            return down ? Theme.navySelected : hovered ? Theme.navyHover : "transparent";
        default:
            return down ? Theme.surfacePressed : hovered ? Theme.surfaceHover : Theme.surface;
        }
    }

    readonly property color outline: {
        if (kind === "secondary")
            return enabled ? Theme.borderStrong : Theme.border;
        if (kind === "onDark")
            return Theme.navyBorder;
        return "transparent";
    }

    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontBody
    font.weight: Font.DemiBold
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Theme.controlHeight
    leftPadding: iconName !== "" ? 14 : 18
    rightPadding: 18
    topPadding: 0
    bottomPadding: 0

    contentItem: Item {
        // Sized from the label's natural width, not from the Row, to keep the width chain one-way.
        implicitWidth: label.implicitWidth + (control.iconName !== "" ? 18 + Theme.spacingS : 0)
        implicitHeight: Math.max(label.implicitHeight, 18)

        Row {
            id: row
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width)
            spacing: Theme.spacingS

            NxIcon {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.iconName !== ""
                name: control.iconName
                size: 18
                color: control.foreground
            }

            Text {
                id: label
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, row.parent.width - (control.iconName !== "" ? 18 + Theme.spacingS : 0))
                text: control.text
                font: control.font
                color: control.foreground
                elide: Text.ElideRight
                verticalAlignment: Text.AlignVCenter
            }
        }
    }

    background: Rectangle {
        implicitWidth: 88
        implicitHeight: Theme.controlHeight
        radius: Theme.radiusM
        color: control.fill
        border.width: control.visualFocus ? 2 : (control.outline.a > 0 ? 1 : 0)
        border.color: control.visualFocus ? (control.kind === "onDark" ? Theme.accentOnDark : Theme.accent)
                                          : control.outline

        Behavior on color {
            ColorAnimation { duration: Theme.durationFast }
        }
    }

    // Enter confirms the focused button, as Space does.
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
}
