import QtQuick 2.15
import QtQuick.Layouts 1.15

// Small upper-case caption that opens a group of rows or cards.
ColumnLayout {
    id: root

    property string title
    property string description
    property bool onDark: false

    spacing: 2

    Text {
        Layout.fillWidth: true
        text: root.title
        color: root.onDark ? Theme.navyTextMuted : Theme.textSecondary
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontCaption
        font.weight: Font.DemiBold
        font.capitalization: Font.AllUppercase
        font.letterSpacing: 0.8
        elide: Text.ElideRight
    }

    Text {
        Layout.fillWidth: true
        visible: root.description !== ""
        text: root.description
        color: root.onDark ? Theme.navyText : Theme.textSecondary
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontSmall
        wrapMode: Text.Wrap
    }
}
