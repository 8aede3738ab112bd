import QtQuick 2.15
import QtQuick.Layouts 1.15

// White rounded panel with an optional title row; children stack in a column.
Rectangle {
    id: card

    property string title
    property string subtitle
    property int padding: Theme.spacingXl
    property alias spacing: body.spacing
    property alias headerActions: actionsRow.data
    default property alias content: body.data

    implicitWidth: 320
    implicitHeight: column.implicitHeight + 2 * padding
    color: Theme.surface
    radius: Theme.radiusL
    border.color: Theme.border
    border.width: 1

    // Soft drop shadow without graphical effects.
    Rectangle {
        z: -1
        anchors.fill: parent
        anchors.topMargin: 1
        anchors.bottomMargin: -1
        radius: parent.radius
        color: Theme.shadow
    }

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: card.padding
        spacing: Theme.spacingL

        RowLayout {
            Layout.fillWidth: true
            visible: card.title !== "" || actionsRow.children.length > 0
            spacing: Theme.spacingL

            ColumnLayout {
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignVCenter
                spacing: 2

                Text {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: card.title
                    color: Theme.text
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBodyLarge
                    font.weight: Font.DemiBold
                    wrapMode: Text.Wrap
                }

                Text {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: card.subtitle
                    color: Theme.textSecondary
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                    wrapMode: Text.Wrap
                }
            }

            Row {
                id: actionsRow
                Layout.alignment: Qt.AlignVCenter
                spacing: Theme.spacingS
            }
        }

        ColumnLayout {
            id: body
            Layout.fillWidth: true
            spacing: Theme.spacingL
        }
    }
}
