import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0

// One connection on the home screen. Clicking it starts the session.
T.AbstractButton {
    id: tile

    property string name
    property int kind: -1
    property string address
    property bool autoConnect: false

    // "Test connection" from the tile's menu.
    signal checkRequested()

    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    implicitWidth: 272
    implicitHeight: 188
    padding: Theme.spacingXl

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.description: kinds.label(kind)

    NxToolTip {
        shown: tile.hovered && nameText.truncated
        delay: 700
        text: tile.name
    }

    ConnectionKinds {
        id: kinds
    }

    contentItem: ColumnLayout {
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingS

            Rectangle {
                Layout.alignment: Qt.AlignTop
                implicitWidth: 48
                implicitHeight: 48
                radius: Theme.radiusM + 4
                color: kinds.tint(tile.kind)

                NxIcon {
                    anchors.centerIn: parent
                    name: kinds.icon(tile.kind)
                    size: 26
                    color: kinds.ink(tile.kind)
                }
            }

            Item {
                Layout.fillWidth: true
            }

            IconButton {
                id: menuButton
                Layout.alignment: Qt.AlignTop
                // Only kinds with a server to reach can be checked.
                visible: tile.kind === kinds.rdp || tile.kind === kinds.vnc || tile.kind === kinds.vmware
                         || tile.kind === kinds.citrix || tile.kind === kinds.putty
                iconName: "chevron-down"
                Accessible.name: qsTr("More actions for %1").arg(tile.name)
                // The menu is made on its first opening: a catalogue of tiles makes none at start.
                property NxMenu menu: null
                onClicked: {
                    if (!menu)
                        menu = tileMenu.createObject(menuButton);
                    menu.popup(menuButton, 0, menuButton.height);
                }

                Component {
                    id: tileMenu

                    NxMenu {
                        NxMenuItem {
                            iconName: "network"
                            text: qsTr("Test connection")
                            onTriggered: tile.checkRequested()
                        }
                    }
                }
            }

            Rectangle {
                Layout.alignment: Qt.AlignTop
                visible: tile.autoConnect
                implicitWidth: autoLabel.implicitWidth + 2 * Theme.spacingS
                implicitHeight: 22
                radius: 11
                color: Theme.successSoft

                Text {
                    id: autoLabel
                    anchors.centerIn: parent
                    text: qsTr("Auto")
                    color: Theme.success
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontCaption
                    font.weight: Font.DemiBold
                }
            }
        }

        Item {
            Layout.fillHeight: true
            Layout.minimumHeight: Theme.spacingM
        }

        Text {
            id: nameText
            Layout.fillWidth: true
            text: tile.name
            color: Theme.text
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontTitle
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            lineHeight: 1.05
        }

        Text {
            Layout.fillWidth: true
            Layout.topMargin: Theme.spacingXs
            text: tile.address !== "" ? qsTr("%1 \u00b7 %2").arg(kinds.label(tile.kind)).arg(tile.address)
                                      : kinds.label(tile.kind)
            color: Theme.textSecondary
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
            elide: Text.ElideRight
        }
    }

    background: Rectangle {
        radius: Theme.radiusL
        color: tile.down ? Theme.surfacePressed : Theme.surface
        border.width: tile.visualFocus ? 2 : 1
        border.color: tile.visualFocus || tile.hovered ? Theme.accent : Theme.border

        Behavior on border.color {
            ColorAnimation { duration: Theme.durationFast }
        }

        Rectangle {
            z: -1
            anchors.fill: parent
            anchors.topMargin: tile.hovered ? 3 : 1
            anchors.bottomMargin: tile.hovered ? -4 : -1
            radius: parent.radius
            color: tile.hovered ? "#1F0F1B2D" : Theme.shadow
        }
    }
}
