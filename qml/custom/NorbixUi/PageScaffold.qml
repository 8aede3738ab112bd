import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15

// Settings page frame: title bar plus a scrolling, width-limited content column.
Item {
    id: page

    property string title
    property string subtitle
    property string iconName
    property int maxContentWidth: Theme.contentMaxWidth
    property alias headerActions: actionsRow.data
    property alias flickable: flick
    default property alias content: contentColumn.data

    // Horizontal geometry shared by title bar and content so both edges line up.
    readonly property int sideMargin: width >= 1200 ? Theme.spacingHuge : Theme.spacingXxl
    // The floor keeps wrapped text from collapsing while the page is first sized.
    readonly property real columnWidth: Math.max(360, Math.min(width - 2 * sideMargin, maxContentWidth))
    readonly property real columnX: Math.round((width - columnWidth) / 2)
    readonly property real viewportHeight: flick.height

    // Scrolls the content so that an item inside it is fully in view (with a margin).
    function ensureVisible(item) {
        if (!item || !flick.contentItem)
            return;
        var inside = false;
        for (var p = item.parent; p; p = p.parent) {
            if (p === contentColumn) {
                inside = true;
                break;
            }
        }
        if (!inside)
            return;
        var top = item.mapToItem(flick.contentItem, 0, 0).y - Theme.spacingL;
        var bottom = top + item.height + 2 * Theme.spacingL;
        var maxY = Math.max(0, flick.contentHeight - flick.height);
        if (top < flick.contentY)
            flick.contentY = Math.max(0, top);
        else if (bottom > flick.contentY + flick.height)
            flick.contentY = Math.min(maxY, bottom - flick.height);
    }

    // Keyboard navigation and the on-screen keyboard both move the focus out of view: follow it.
    Connections {
        target: page.Window.window
        ignoreUnknownSignals: true

        function onActiveFocusItemChanged() {
            page.ensureVisible(page.Window.window.activeFocusItem);
        }
    }
    onHeightChanged: if (page.Window.window) ensureVisible(page.Window.window.activeFocusItem)

    Rectangle {
        id: titleBar
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: Math.max(Theme.titleBarHeight, titleColumn.implicitHeight + 2 * Theme.spacingXl)
        color: Theme.surface

        RowLayout {
            x: page.columnX
            width: page.columnWidth
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spacingL

            Rectangle {
                visible: page.iconName !== ""
                Layout.alignment: Qt.AlignVCenter
                implicitWidth: 44
                implicitHeight: 44
                radius: Theme.radiusM + 2
                color: Theme.accentSoft

                NxIcon {
                    anchors.centerIn: parent
                    name: page.iconName
                    size: 24
                    color: Theme.accent
                }
            }

            // A plain Column: a wrapping subtitle inside a nested layout makes the row rearrange itself in a loop.
            Column {
                id: titleColumn
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignVCenter
                spacing: 2

                Text {
                    width: parent.width
                    text: page.title
                    color: Theme.text
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontHeadline
                    font.weight: Font.DemiBold
                    elide: Text.ElideRight
                }

                Text {
                    width: parent.width
                    visible: text !== ""
                    text: page.subtitle
                    color: Theme.textSecondary
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                }
            }

            Row {
                id: actionsRow
                Layout.alignment: Qt.AlignVCenter
                spacing: Theme.spacingS
            }
        }

        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: 1
            color: Theme.border
        }
    }

    Flickable {
        id: flick
        anchors.top: titleBar.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        clip: true
        contentWidth: width
        contentHeight: contentColumn.height + 2 * Theme.spacingXl
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: NxScrollBar {}

        ColumnLayout {
            id: contentColumn
            x: page.columnX
            y: Theme.spacingXl
            width: page.columnWidth
            spacing: Theme.spacingXl
        }
    }
}
