import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15

// Entry of the navy side bar.
T.AbstractButton {
    id: item

    property string iconName
    property bool selected: false
    property bool locked: false

    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    implicitHeight: Theme.navItemHeight
    implicitWidth: 200
    leftPadding: Theme.spacingM
    rightPadding: Theme.spacingM

    Accessible.role: Accessible.PageTab
    Accessible.name: locked ? qsTr("%1 (locked)").arg(text) : text

    contentItem: RowLayout {
        spacing: Theme.spacingM

        NxIcon {
            Layout.alignment: Qt.AlignVCenter
            name: item.iconName
            size: 18
            color: item.selected ? Theme.navyTextStrong : Theme.navyTextMuted
        }

        Text {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
            text: item.text
            color: item.selected ? Theme.navyTextStrong : Theme.navyText
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            font.weight: item.selected ? Font.DemiBold : Font.Normal
            elide: Text.ElideRight
        }

        NxIcon {
            Layout.alignment: Qt.AlignVCenter
            visible: item.locked
            name: "lock"
            size: 14
            strokeWidth: 2
            color: Theme.navyTextMuted
        }
    }

    background: Rectangle {
        radius: Theme.radiusM
        color: item.selected ? Theme.navySelected
                             : item.down ? Theme.navySelected : item.hovered ? Theme.navyHover : "transparent"
        border.width: item.visualFocus ? 2 : 0
        border.color: Theme.accentOnDark

        Rectangle {
            visible: item.selected
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: 3
            height: 18
            radius: 1.5
            color: Theme.accentOnDark
        }
    }
}
