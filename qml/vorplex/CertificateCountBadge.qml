import QtQuick 2.15
import NorbixUi 1.0
import com.CertificateExpiry 1.0

// How many installed certificates expired or expire within 30 days, on the settings list's entry.
Rectangle {
    id: badge

    visible: expiry.attentionCount > 0
    implicitWidth: Math.max(height, countText.implicitWidth + 12)
    implicitHeight: 20
    radius: height / 2
    color: Theme.warning

    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("%n certificate(s) expired or expiring soon", "", expiry.attentionCount)

    CertificateExpiry {
        id: expiry
        Component.onCompleted: refresh()
    }

    // The settings list is on screen (its loader is visible only then): look again when it comes
    // up, after an import or a removal, and now and then while it stays.
    readonly property bool shown: parent ? parent.visible : false
    onShownChanged: {
        if (shown)
            expiry.refresh();
    }

    Timer {
        interval: 30000
        repeat: true
        running: badge.shown
        onTriggered: expiry.refresh()
    }

    Text {
        id: countText
        anchors.centerIn: parent
        text: expiry.attentionCount
        color: "white"
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontCaption
        font.weight: Font.DemiBold
    }
}
