import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import NorbixUi 1.0

// Large dialog that shows a connection's add/edit form over the current screen.
T.Popup {
    id: dialog

    property int connectionIndex: -1
    readonly property Item form: loader.item

    signal saved(string name, bool added)

    function openForm(source, index) {
        connectionIndex = index;
        loader.setSource(source, { connectionIndex: index, dismissStyle: "close" });
        open();
    }

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: parent ? Math.min(880, parent.width - 2 * Theme.spacingXxl) : 880
    height: parent ? Math.min(parent.height - 2 * Theme.spacingXl, 960) : 640
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose
    padding: 0
    // The form's white title bar and footer continue into the rounded corners.
    topPadding: Theme.radiusL
    bottomPadding: Theme.radiusL

    // Later: the form may still be inside the handler that closed the dialog.
    onClosed: Qt.callLater(function () {
        if (!dialog.visible)
            loader.source = "";
    })

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

    contentItem: Loader {
        id: loader
        focus: true
    }

    Connections {
        target: loader.item
        ignoreUnknownSignals: true

        function onDismissed() {
            dialog.close();
        }

        function onSaved(name) {
            var added = dialog.connectionIndex < 0;
            dialog.close();
            dialog.saved(name, added);
        }
    }
}
