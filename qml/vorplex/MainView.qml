import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0

// Home screen shown at power-on.
Rectangle {
    id: root

    // Connection tiles: set a model and a tile component; the empty state shows while the grid has no items.
    property var connectionsModel: null
    property Component connectionTile: null
    // Height kept free above the footer for what the window shows over it (the assistance banner).
    property real reservedBottom: 0

    property date now: new Date()

    // Every record, also while the model shows only the first ones.
    property int totalConnections: 0
    readonly property bool expanded: tileGrid.count > partialRows
    readonly property int partialRows: 4

    function refreshTotal() {
        totalConnections = connectionsModel && connectionsModel.totalRows ? connectionsModel.totalRows() : tileGrid.count;
    }

    // The help button shows while the terminal is managed; helpAnswered after the server's reply.
    property bool helpAvailable: false
    property bool helpAnswered: false

    // NetworkManager says no device is connected.
    readonly property bool networkOffline: networkBadge.status.offline

    signal settingsRequested()
    signal connectionSettingsRequested()
    signal helpRequested()

    color: Theme.background

    Connections {
        target: root.connectionsModel
        ignoreUnknownSignals: true

        function onModelReset() {
            root.refreshTotal();
        }
    }

    Component.onCompleted: refreshTotal()
    onConnectionsModelChanged: refreshTotal()

    Timer {
        interval: 1000
        repeat: true
        running: root.visible
        triggeredOnStart: true
        onTriggered: root.now = new Date()
    }

    Rectangle {
        id: header
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: 112
        color: Theme.navy

        Row {
            id: brand
            anchors.left: parent.left
            anchors.leftMargin: Theme.spacingXxl
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spacingM

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 36
                height: 36
                radius: Theme.radiusM
                color: Theme.accent

                Text {
                    anchors.centerIn: parent
                    text: "N"
                    color: Theme.textOnAccent
                    font.family: Theme.fontFamily
                    font.pixelSize: 20
                    font.weight: Font.Bold
                }
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: "Norbix"
                color: Theme.navyTextStrong
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle + 2
                font.weight: Font.DemiBold
            }
        }

        Column {
            anchors.centerIn: parent
            spacing: 2

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                // Seconds would make the header tick; hours and minutes are enough.
                text: Qt.formatTime(root.now, Qt.locale().timeFormat(Locale.ShortFormat).replace(/:ss/, ""))
                color: Theme.navyTextStrong
                font.family: Theme.fontFamily
                font.pixelSize: 40
                font.weight: Font.Light
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.now.toLocaleDateString(Qt.locale(), Locale.LongFormat)
                color: Theme.navyText
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
        }

        Row {
            anchors.right: parent.right
            anchors.rightMargin: Theme.spacingXxl
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spacingS

            NxButton {
                visible: root.helpAvailable
                kind: "onDark"
                iconName: "users"
                text: qsTr("Help")
                onClicked: root.helpRequested()
            }

            NxButton {
                kind: "onDark"
                iconName: "gear"
                text: qsTr("Settings")
                onClicked: root.settingsRequested()
            }
        }
    }

    Item {
        id: body
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.bottom: footer.top

        // Whole tiles only, centred; the section caption lines up with the first tile.
        readonly property int columns: Math.max(1, Math.floor((width - 2 * Theme.spacingHuge + tileGrid.gap) / tileGrid.cellWidth))
        readonly property real gridWidth: columns * tileGrid.cellWidth

        RowLayout {
            id: tilesHeader
            x: Math.round((body.width - body.gridWidth + tileGrid.gap) / 2)
            y: Theme.spacingXxl
            width: body.gridWidth - tileGrid.gap
            visible: tileGrid.count > 0
            spacing: Theme.spacingM

            Text {
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignVCenter
                text: qsTr("Connections")
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }

            FlatButton {
                Layout.alignment: Qt.AlignVCenter
                visible: root.totalConnections > root.partialRows || root.expanded
                iconName: root.expanded ? "chevron-up" : "grid"
                text: root.expanded ? qsTr("Show less") : qsTr("Show all (%1)").arg(root.totalConnections)
                onClicked: root.expanded ? root.connectionsModel.loadPartial() : root.connectionsModel.loadAll()
            }
        }

        GridView {
            id: tileGrid

            readonly property int gap: 24

            x: Math.round((body.width - body.gridWidth) / 2) + gap / 2
            width: body.gridWidth
            anchors.top: tilesHeader.bottom
            anchors.topMargin: Theme.spacingL
            anchors.bottom: parent.bottom
            visible: count > 0
            clip: true
            cellWidth: 272 + gap
            cellHeight: 188 + gap
            model: root.connectionsModel
            delegate: root.connectionTile
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: NxScrollBar {}
        }

        EmptyState {
            anchors.centerIn: parent
            // Never let the wrapped text collapse to zero width while the window is being sized.
            width: Math.min(520, Math.max(320, parent.width - 2 * Theme.spacingHuge))
            visible: tileGrid.count === 0
            iconName: "monitor"
            title: qsTr("No connections yet")
            message: qsTr("Remote desktops and applications will appear here as tiles. An administrator adds them in Settings \u2192 Connections.")

            PrimaryButton {
                iconName: "gear"
                text: qsTr("Open connection settings")
                onClicked: root.connectionSettingsRequested()
            }
        }
    }

    Rectangle {
        id: helpBanner
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: footer.top
        anchors.bottomMargin: Theme.spacingL + root.reservedBottom
        visible: root.helpAnswered
        width: Math.min(parent.width - 2 * Theme.spacingXxl, helpRow.implicitWidth + 2 * Theme.spacingL)
        height: helpRow.implicitHeight + 2 * Theme.spacingM
        radius: Theme.radiusM
        color: Theme.surface
        border.color: Theme.accent

        RowLayout {
            id: helpRow
            anchors.fill: parent
            anchors.margins: Theme.spacingM
            anchors.leftMargin: Theme.spacingL
            spacing: Theme.spacingM

            NxIcon {
                name: "users"
                color: Theme.accent
            }

            Text {
                Layout.fillWidth: true
                text: qsTr("An administrator has seen your request for help and will contact you.")
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                wrapMode: Text.Wrap
            }

            IconButton {
                iconName: "close"
                onClicked: root.helpAnswered = false
            }
        }
    }

    Rectangle {
        id: footer
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 44
        color: Theme.surface

        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            height: 1
            color: Theme.border
        }

        Text {
            anchors.left: parent.left
            anchors.leftMargin: Theme.spacingXxl
            anchors.verticalCenter: parent.verticalCenter
            text: Qt.application.version !== "" ? qsTr("Norbix %1").arg(Qt.application.version) : "Norbix"
            color: Theme.textMuted
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }

        NetworkStatusBadge {
            id: networkBadge
            anchors.centerIn: parent
            managed: root.helpAvailable
        }

        Text {
            anchors.right: parent.right
            anchors.rightMargin: Theme.spacingXxl
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Thin client terminal")
            color: Theme.textMuted
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
        }
    }
}
