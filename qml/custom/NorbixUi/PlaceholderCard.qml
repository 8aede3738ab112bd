import QtQuick 2.15
import QtQuick.Layouts 1.15

// Shown in sections whose settings are not part of this build yet.
Card {
    id: card

    property string heading: qsTr("Not available on this terminal yet")
    property string message: qsTr("These settings arrive with a later software update. Until then the terminal keeps its current configuration, and nothing here needs your attention.")

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.spacingL

        Rectangle {
            Layout.alignment: Qt.AlignTop
            implicitWidth: 44
            implicitHeight: 44
            radius: 22
            color: Theme.accentSoft

            NxIcon {
                anchors.centerIn: parent
                name: "info"
                color: Theme.accent
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingXs

            Text {
                Layout.fillWidth: true
                text: card.heading
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBodyLarge
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
            }

            Text {
                Layout.fillWidth: true
                text: card.message
                color: Theme.textSecondary
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                wrapMode: Text.Wrap
                lineHeight: 1.2
            }
        }
    }
}
