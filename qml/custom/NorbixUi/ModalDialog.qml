import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15

// Centred modal dialog with title, message, custom content and OK/Cancel.
T.Popup {
    id: dialog

    property string title
    property string message
    property string okText: qsTr("OK")
    property string cancelText: qsTr("Cancel")
    property bool okEnabled: true
    property bool showCancel: true
    property bool showOk: true
    property bool destructive: false
    // Off when the owner validates first and closes the dialog itself.
    property bool closeOnOk: true
    default property alias content: body.data

    property bool _confirmed: false

    signal okClicked()
    signal cancelled()

    function ok() {
        if (!okEnabled || !showOk)
            return;
        okClicked();
        if (closeOnOk) {
            _confirmed = true;
            close();
        }
    }

    // For owners that close the dialog after their own check succeeded.
    function accept() {
        _confirmed = true;
        close();
    }

    function cancel() {
        close();
    }

    parent: T.Overlay.overlay
    // Rounded so text stays on whole pixels.
    x: parent ? Math.round((parent.width - width) / 2) : 0
    // Centred in what the on-screen keyboard leaves free, so the field in use stays visible.
    y: parent ? Math.max(0, Math.round((parent.height - Qt.inputMethod.keyboardRectangle.height - height) / 2)) : 0
    width: parent ? Math.min(Theme.dialogWidth, Math.max(320, parent.width - 2 * Theme.spacingXxl)) : Theme.dialogWidth
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    padding: 0
    implicitHeight: layout.implicitHeight + topPadding + bottomPadding
    height: implicitHeight

    onAboutToShow: _confirmed = false
    onClosed: {
        if (!_confirmed)
            cancelled();
    }

    T.Overlay.modal: Rectangle {
        color: Theme.scrim
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 100 }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: 80 }
    }

    background: Rectangle {
        radius: Theme.radiusL
        color: Theme.surface
        border.color: Theme.border
    }

    contentItem: ColumnLayout {
        id: layout
        spacing: 0

        // Enter confirms from anywhere in the dialog that does not take the key itself (a focused
        // button does first); Escape cancels through the close policy.
        Keys.onReturnPressed: dialog.ok()
        Keys.onEnterPressed: dialog.ok()

        // A plain Column: wrapped text inside a nested layout keeps a stale height when the
        // text changes while the dialog is closed.
        Column {
            Layout.fillWidth: true
            Layout.margins: Theme.spacingXl
            Layout.bottomMargin: body.visible ? 0 : Theme.spacingXl
            spacing: Theme.spacingS

            Text {
                width: parent.width
                text: dialog.title
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle + 2
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
            }

            Text {
                width: parent.width
                visible: text !== ""
                text: dialog.message
                color: Theme.textSecondary
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                wrapMode: Text.Wrap
                lineHeight: 1.15
            }
        }

        ColumnLayout {
            id: body
            Layout.fillWidth: true
            visible: children.length > 0
            Layout.margins: Theme.spacingXl
            Layout.topMargin: Theme.spacingL
            Layout.bottomMargin: Theme.spacingL
            spacing: Theme.spacingL
        }

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: Theme.border
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.margins: Theme.spacingL
            Layout.leftMargin: Theme.spacingXl
            Layout.rightMargin: Theme.spacingXl
            spacing: Theme.spacingS

            Item {
                Layout.fillWidth: true
            }

            SecondaryButton {
                visible: dialog.showCancel
                text: dialog.cancelText
                onClicked: dialog.cancel()
            }

            NxButton {
                visible: dialog.showOk
                kind: dialog.destructive ? "danger" : "primary"
                text: dialog.okText
                enabled: dialog.okEnabled
                onClicked: dialog.ok()
            }
        }
    }
}
