import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Tool tip above its parent item, made only while `shown` (and there is text): the buttons and
// table cells that carry one cost nothing until the pointer rests on them.
Loader {
    id: tip

    property string text
    property bool shown: false
    property int delay: 600

    active: shown && text !== ""

    sourceComponent: T.ToolTip {
        parent: tip.parent
        x: parent ? Math.round((parent.width - width) / 2) : 0
        y: -height - 4
        margins: Theme.spacingS
        topPadding: 6
        bottomPadding: 6
        leftPadding: Theme.spacingS + 2
        rightPadding: Theme.spacingS + 2
        implicitWidth: Math.min(label.implicitWidth, 420) + leftPadding + rightPadding
        implicitHeight: label.implicitHeight + topPadding + bottomPadding
        delay: tip.delay
        text: tip.text
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent
        Component.onCompleted: open()

        contentItem: Text {
            id: label
            text: tip.text
            color: Theme.navyTextStrong
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontSmall
            wrapMode: Text.Wrap
        }

        background: Rectangle {
            radius: Theme.radiusS
            color: Theme.navy
            border.color: Theme.navyBorder
        }
    }
}
