import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15

// A row of mutually exclusive choices shown side by side; `model` is a list of labels.
Rectangle {
    id: control

    property var model: []
    property int currentIndex: 0

    signal activated(int index)

    implicitWidth: segments.implicitWidth + 8
    implicitHeight: Theme.controlHeight
    radius: Theme.radiusM
    color: Theme.surfaceAlt
    border.color: Theme.border
    opacity: enabled ? 1 : 0.6

    Accessible.role: Accessible.PageTabList

    RowLayout {
        id: segments
        anchors.fill: parent
        anchors.margins: 4
        spacing: 4

        Repeater {
            model: control.model

            delegate: T.AbstractButton {
                id: segment

                readonly property bool selected: control.currentIndex === index

                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: label.implicitWidth + 2 * Theme.spacingL
                implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                                        implicitContentWidth + leftPadding + rightPadding)
                implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                                         implicitContentHeight + topPadding + bottomPadding)
                hoverEnabled: true
                focusPolicy: Qt.StrongFocus
                checkable: true
                checked: selected
                text: modelData
                Accessible.role: Accessible.PageTab
                Accessible.name: text

                onClicked: {
                    control.currentIndex = index;
                    control.activated(index);
                }

                contentItem: Text {
                    id: label
                    text: segment.text
                    color: segment.selected ? Theme.accent : segment.enabled ? Theme.textSecondary : Theme.textDisabled
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    font.weight: segment.selected ? Font.DemiBold : Font.Normal
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                }

                background: Rectangle {
                    radius: Theme.radiusS + 2
                    color: segment.selected ? Theme.surface : segment.hovered ? Theme.surfaceHover : "transparent"
                    border.width: segment.visualFocus ? 2 : segment.selected ? 1 : 0
                    border.color: segment.visualFocus ? Theme.accent : Theme.border
                }
            }
        }
    }
}
