import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15

// One line of a settings list: icon, title, description and trailing controls.
T.AbstractButton {
    id: row

    property string title
    property string description
    property string iconName
    property bool clickable: false
    property bool showChevron: clickable
    default property alias trailing: trailingRow.data

    hoverEnabled: clickable
    focusPolicy: clickable ? Qt.StrongFocus : Qt.NoFocus
    leftPadding: Theme.spacingL
    rightPadding: Theme.spacingL
    topPadding: Theme.spacingM
    bottomPadding: Theme.spacingM
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(56, implicitContentHeight + topPadding + bottomPadding)

    Accessible.name: title
    Accessible.description: description

    contentItem: RowLayout {
        spacing: Theme.spacingL

        NxIcon {
            visible: row.iconName !== ""
            name: row.iconName
            color: Theme.textSecondary
            Layout.alignment: Qt.AlignVCenter
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
            spacing: 2

            Text {
                Layout.fillWidth: true
                text: row.title
                color: row.enabled ? Theme.text : Theme.textDisabled
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
            }

            Text {
                Layout.fillWidth: true
                visible: row.description !== ""
                text: row.description
                color: Theme.textSecondary
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
                lineHeight: 1.15
            }
        }

        Row {
            id: trailingRow
            visible: children.length > 0
            spacing: Theme.spacingS
            Layout.alignment: Qt.AlignVCenter
        }

        NxIcon {
            visible: row.showChevron
            name: "chevron-right"
            size: 18
            color: Theme.textMuted
            Layout.alignment: Qt.AlignVCenter
        }
    }

    background: Rectangle {
        radius: Theme.radiusM
        color: !row.clickable ? "transparent"
                              : row.down ? Theme.surfacePressed : row.hovered ? Theme.surfaceHover : "transparent"
        border.width: row.visualFocus ? 2 : 0
        border.color: Theme.accent
    }
}
