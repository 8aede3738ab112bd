import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15

// Frame of an editing form: title bar, scrolling content and a footer whose buttons stay in reach.
// Hosts listen to `dismissed`; the form itself handles `submitted` after its own checks.
FocusScope {
    id: page

    property string title
    property string subtitle
    property string iconName
    // "back" puts an arrow before the title (page in a stack), "close" a cross after it (dialog).
    property string dismissStyle: "back"
    property string submitText: qsTr("Save")
    property string dismissText: qsTr("Cancel")
    property bool submitEnabled: true
    property int maxContentWidth: 760
    property alias flickable: flick
    default property alias content: contentColumn.data

    readonly property int sideMargin: width >= 1100 ? Theme.spacingHuge : Theme.spacingXl
    readonly property real columnWidth: Math.max(320, Math.min(width - 2 * sideMargin, maxContentWidth))
    readonly property real columnX: Math.round((width - columnWidth) / 2)

    signal submitted()
    signal dismissed()

    // Scrolls so that an item inside the content (a field with an error, say) is in view.
    function reveal(item) {
        if (!item)
            return;
        var top = item.mapToItem(contentColumn, 0, 0).y + contentColumn.y;
        var bottom = top + item.height;
        var margin = Theme.spacingXl;
        if (top - margin < flick.contentY)
            flick.contentY = Math.max(0, top - margin);
        else if (bottom + margin > flick.contentY + flick.height)
            flick.contentY = Math.min(Math.max(0, flick.contentHeight - flick.height), bottom + margin - flick.height);
    }

    Keys.onEscapePressed: page.dismissed()

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    Rectangle {
        id: titleBar
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: Math.max(Theme.titleBarHeight - 8, titleRow.implicitHeight + 2 * Theme.spacingL)
        color: Theme.surface

        RowLayout {
            id: titleRow
            anchors.left: parent.left
            anchors.right: parent.right
            // Lined up with the content column, the back arrow standing out to its left where there is room.
            anchors.leftMargin: page.dismissStyle === "back"
                                ? Math.max(Theme.spacingL, page.columnX - Theme.controlHeight - Theme.spacingM)
                                : Math.max(Theme.spacingXl, page.columnX)
            anchors.rightMargin: page.dismissStyle === "close"
                                 ? Theme.spacingL
                                 : Math.max(Theme.spacingXl, page.width - page.columnX - page.columnWidth)
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spacingM

            IconButton {
                visible: page.dismissStyle === "back"
                Layout.alignment: Qt.AlignVCenter
                iconName: "back"
                text: qsTr("Back")
                onClicked: page.dismissed()
            }

            Rectangle {
                visible: page.iconName !== ""
                Layout.alignment: Qt.AlignVCenter
                implicitWidth: 40
                implicitHeight: 40
                radius: Theme.radiusM + 2
                color: Theme.accentSoft

                NxIcon {
                    anchors.centerIn: parent
                    name: page.iconName
                    size: 22
                    color: Theme.accent
                }
            }

            Column {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignVCenter
                spacing: 2

                Text {
                    width: parent.width
                    text: page.title
                    color: Theme.text
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontHeadline - 2
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
                    elide: Text.ElideRight
                }
            }

            IconButton {
                visible: page.dismissStyle === "close"
                Layout.alignment: Qt.AlignVCenter
                iconName: "close"
                text: qsTr("Close")
                onClicked: page.dismissed()
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
        anchors.bottom: footer.top
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

    Rectangle {
        id: footer
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 72
        color: Theme.surface

        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            height: 1
            color: Theme.border
        }

        Row {
            anchors.right: parent.right
            anchors.rightMargin: Math.max(Theme.spacingXl, page.width - page.columnX - page.columnWidth)
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spacingS

            SecondaryButton {
                text: page.dismissText
                onClicked: page.dismissed()
            }

            PrimaryButton {
                iconName: "check"
                text: page.submitText
                enabled: page.submitEnabled
                onClicked: page.submitted()
            }
        }
    }
}
