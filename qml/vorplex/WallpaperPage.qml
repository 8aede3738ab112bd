import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.WallpapersManager 1.0

PageScaffold {
    id: page

    property var images: []
    property string current: ""
    property bool active: false

    function load() {
        images = wallpapers.listAvaiableImages();
        current = wallpapers.getWallpaper();
        active = wallpapers.isWallpaperActive();
    }

    function fileName(path) {
        return path.substring(path.lastIndexOf("/") + 1);
    }

    function choose(path) {
        if (wallpapers.setWallpaper(path)) {
            wallpapers.setWallpaperActive(true);
            toast.show(qsTr("Wallpaper set to %1.").arg(fileName(path)), "success");
        } else {
            toast.show(wallpapers.lastError(), "error");
        }
        load();
    }

    Component.onCompleted: load()

    WallpapersManager {
        id: wallpapers
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Current background")
        subtitle: page.active && page.current !== "" ? page.fileName(page.current) : qsTr("The built-in background")

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingXl

            Rectangle {
                Layout.preferredWidth: 256
                Layout.preferredHeight: 144
                radius: Theme.radiusM
                color: Theme.surfaceAlt
                border.color: Theme.border
                clip: true

                Image {
                    anchors.fill: parent
                    anchors.margins: 1
                    fillMode: Image.PreserveAspectCrop
                    asynchronous: true
                    sourceSize.width: 512
                    source: page.active && page.current !== "" ? page.current : "qrc:/images/default_background.png"
                }
            }

            SecondaryButton {
                Layout.alignment: Qt.AlignTop
                enabled: page.active
                text: qsTr("Use the built-in background")
                onClicked: {
                    wallpapers.setWallpaperActive(false);
                    page.load();
                }
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Pictures on USB drives")
        subtitle: qsTr("PNG and JPEG images on the drives connected to this terminal. The picture is copied to the terminal.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.load()
            }
        ]

        Flow {
            Layout.fillWidth: true
            spacing: Theme.spacingM

            Repeater {
                model: page.images

                Rectangle {
                    width: 200
                    height: 150
                    radius: Theme.radiusM
                    color: area.containsMouse ? Theme.surfaceHover : Theme.surfaceAlt
                    border.color: area.containsMouse ? Theme.accent : Theme.border

                    Image {
                        id: thumb
                        x: 6
                        y: 6
                        width: parent.width - 12
                        height: 108
                        fillMode: Image.PreserveAspectCrop
                        asynchronous: true
                        sourceSize.width: 400
                        clip: true
                        source: "file://" + modelData
                    }
                    Text {
                        anchors.left: parent.left
                        anchors.right: parent.right
                        anchors.bottom: parent.bottom
                        anchors.margins: Theme.spacingS
                        text: thumb.status === Image.Error ? qsTr("%1 (not an image)").arg(page.fileName(modelData)) : page.fileName(modelData)
                        color: thumb.status === Image.Error ? Theme.danger : Theme.text
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        elide: Text.ElideMiddle
                    }
                    MouseArea {
                        id: area
                        anchors.fill: parent
                        hoverEnabled: true
                        cursorShape: Qt.PointingHandCursor
                        onClicked: page.choose(modelData)
                    }
                }
            }
        }

        EmptyState {
            Layout.fillWidth: true
            visible: page.images.length === 0
            compact: true
            iconName: "image"
            title: qsTr("No pictures found")
            message: qsTr("Insert a USB drive with PNG or JPEG pictures, then refresh.")
        }
    }

    Toast {
        id: toast
    }
}
