import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15

// Entry of an NxMenu: icon, label and an optional muted detail on the right.
T.MenuItem {
    id: item

    property string iconName
    property string detail

    hoverEnabled: true
    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: 40
    padding: 6
    leftPadding: Theme.spacingM
    rightPadding: Theme.spacingM
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontBody

    Accessible.name: text

    indicator: Item {}
    arrow: Item {}

    contentItem: RowLayout {
        spacing: Theme.spacingM

        NxIcon {
            Layout.alignment: Qt.AlignVCenter
            visible: item.iconName !== ""
            name: item.iconName
            size: 18
            color: item.enabled ? Theme.textSecondary : Theme.textDisabled
        }

        Text {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
            text: item.text
            color: item.enabled ? Theme.text : Theme.textDisabled
            font: item.font
            elide: Text.ElideRight
        }

        Text {
            Layout.alignment: Qt.AlignVCenter
            visible: text !== ""
            text: item.detail
            color: Theme.textMuted
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
    }

    background: Rectangle {
        implicitWidth: 220
        radius: Theme.radiusS + 2
        color: item.down ? Theme.surfacePressed : item.highlighted || item.hovered ? Theme.surfaceHover : "transparent"
    }
}
