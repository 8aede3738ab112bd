import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.AssistanceTunnels 1.0

// Shown over every screen while a remote-assistance tunnel started by this shell runs.
Rectangle {
    id: banner

    visible: AssistanceTunnels.active
    width: Math.min(parent ? parent.width - 2 * Theme.spacingXl : 600, row.implicitWidth + 2 * Theme.spacingL)
    height: row.implicitHeight + 2 * Theme.spacingS
    radius: Theme.radiusM
    color: Theme.warningSoft
    border.color: Theme.warning

    Accessible.role: Accessible.AlertMessage
    Accessible.name: label.text

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.margins: Theme.spacingS
        anchors.leftMargin: Theme.spacingL
        spacing: Theme.spacingM

        NxIcon {
            name: "screen-share"
            color: Theme.warning
        }

        Text {
            id: label
            Layout.fillWidth: true
            text: qsTr("Remote assistance active")
            color: Theme.text
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            font.weight: Font.DemiBold
            elide: Text.ElideRight
        }

        SecondaryButton {
            text: qsTr("End assistance")
            onClicked: AssistanceTunnels.endAssistance()
        }
    }
}
