import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Styled drop-down list; long entries such as paths are elided in the middle.
T.ComboBox {
    id: control

    property bool hasError: false
    property string placeholderText: ""

    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontBody
    hoverEnabled: true
    implicitWidth: 280
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.spacingM
    rightPadding: Theme.spacingM + 18 + Theme.spacingS

    delegate: T.ItemDelegate {
        id: option
        width: ListView.view ? ListView.view.width : implicitWidth
        implicitHeight: 38
        highlighted: control.highlightedIndex === index
        hoverEnabled: true
        leftPadding: Theme.spacingM
        rightPadding: Theme.spacingM
        text: control.textRole ? (Array.isArray(control.model) ? modelData[control.textRole] : model[control.textRole])
                               : modelData

        contentItem: Text {
            text: option.text
            color: Theme.text
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            font.weight: control.currentIndex === index ? Font.DemiBold : Font.Normal
            elide: Text.ElideMiddle
            verticalAlignment: Text.AlignVCenter
        }

        background: Rectangle {
            radius: Theme.radiusS
            color: option.down ? Theme.surfacePressed
                               : option.highlighted || option.hovered ? Theme.surfaceHover : "transparent"
        }
    }

    indicator: NxIcon {
        x: control.width - width - Theme.spacingM
        y: (control.height - height) / 2
        name: "chevron-down"
        size: 18
        color: control.enabled ? Theme.textSecondary : Theme.textDisabled
    }

    contentItem: Text {
        text: control.displayText !== "" ? control.displayText : control.placeholderText
        color: !control.enabled ? Theme.textDisabled
                                : control.displayText !== "" ? Theme.text : Theme.textMuted
        font: control.font
        elide: Text.ElideMiddle
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        implicitWidth: 280
        implicitHeight: Theme.controlHeight
        radius: Theme.radiusM
        color: control.enabled ? Theme.surface : Theme.surfaceAlt
        border.width: control.visualFocus || control.popup.visible || control.hasError ? 2 : 1
        border.color: control.hasError ? Theme.danger
                                       : control.visualFocus || control.popup.visible ? Theme.accent
                                                                                      : control.hovered ? Theme.borderStrong : Theme.border
    }

    popup: T.Popup {
        y: control.height + 4
        width: control.width
        implicitHeight: Math.min(contentItem.implicitHeight + topPadding + bottomPadding, 320)
        padding: 4

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: control.popup.visible ? control.delegateModel : null
            currentIndex: control.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollIndicator.vertical: T.ScrollIndicator {}
        }

        background: Rectangle {
            radius: Theme.radiusM
            color: Theme.surface
            border.color: Theme.border
        }
    }
}
