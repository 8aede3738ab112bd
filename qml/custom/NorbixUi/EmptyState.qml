import QtQuick 2.15
import QtQuick.Layouts 1.15

// Centred icon, headline and hint for places that have nothing to show yet.
ColumnLayout {
    id: root

    property string iconName: "info"
    property string title
    property string message
    property bool compact: false
    default property alias actions: actionRow.data

    spacing: compact ? Theme.spacingS : Theme.spacingM

    Rectangle {
        Layout.alignment: Qt.AlignHCenter
        Layout.bottomMargin: root.compact ? 0 : Theme.spacingS
        implicitWidth: root.compact ? 48 : 80
        implicitHeight: implicitWidth
        radius: implicitWidth / 2
        color: Theme.accentSoft

        NxIcon {
            anchors.centerIn: parent
            name: root.iconName
            size: root.compact ? 24 : 36
            strokeWidth: 1.6
            color: Theme.accent
        }
    }

    Text {
        Layout.fillWidth: true
        text: root.title
        horizontalAlignment: Text.AlignHCenter
        color: Theme.text
        font.family: Theme.fontFamily
        font.pixelSize: root.compact ? Theme.fontBodyLarge : Theme.fontHeadline - 2
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
    }

    Text {
        Layout.fillWidth: true
        Layout.maximumWidth: 520
        Layout.alignment: Qt.AlignHCenter
        visible: text !== ""
        text: root.message
        horizontalAlignment: Text.AlignHCenter
        color: Theme.textSecondary
        font.family: Theme.fontFamily
        font.pixelSize: root.compact ? Theme.fontSmall : Theme.fontBodyLarge - 1
        wrapMode: Text.Wrap
        lineHeight: 1.2
    }

    Row {
        id: actionRow
        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: Theme.spacingM
        visible: children.length > 0
        spacing: Theme.spacingS
    }
}
