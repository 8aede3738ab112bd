import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.APIManager 1.0
import com.NetworkStatus 1.0

// The terminal's network at a glance, and whether the management server is reached when managed.
RowLayout {
    id: badge

    property alias status: network
    // Managed terminals only: the server's line is hidden otherwise.
    property bool managed: false

    spacing: Theme.spacingS

    NetworkStatus {
        id: network
    }

    NxIcon {
        Layout.alignment: Qt.AlignVCenter
        name: network.kind === NetworkStatus.WiFi ? "wifi" : "network"
        color: network.offline ? Theme.danger : Theme.textSecondary
        size: 18
    }

    Column {
        Layout.alignment: Qt.AlignVCenter
        Layout.maximumWidth: 260
        spacing: 0

        Text {
            width: Math.min(implicitWidth, 260)
            text: network.text
            color: network.offline ? Theme.danger : Theme.textSecondary
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
            font.weight: Font.DemiBold
            elide: Text.ElideRight
        }

        Text {
            width: Math.min(implicitWidth, 260)
            visible: badge.managed
            text: APIManager.connected ? qsTr("Management server reached") : qsTr("Management server not reached")
            color: APIManager.connected ? Theme.textMuted : Theme.warning
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontCaption
            elide: Text.ElideRight
        }
    }
}
