import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0

// The eight groups of settings that are exported and imported, as check boxes.
Card {
    id: card

    readonly property var groups: [
        { key: "display", label: qsTr("Display settings") },
        { key: "keyboardAndMouse", label: qsTr("Keyboard and Mouse") },
        { key: "languageSettings", label: qsTr("Language settings") },
        { key: "connections", label: qsTr("Connections") },
        { key: "timeSettings", label: qsTr("Time settings") },
        { key: "apiSettings", label: qsTr("API settings") },
        { key: "adminPassword", label: qsTr("Admin password") },
        { key: "wallpaperSettings", label: qsTr("Wallpapers") }
    ]
    property var checkedKeys: ({})
    readonly property int checkedCount: {
        var count = 0;
        for (var key in checkedKeys) {
            if (checkedKeys[key])
                ++count;
        }
        return count;
    }

    function setChecked(key, checked) {
        var copy = Object.assign({}, checkedKeys);
        copy[key] = checked;
        checkedKeys = copy;
    }

    function setAll(checked) {
        var all = {};
        for (var i = 0; i < groups.length; ++i)
            all[groups[i].key] = checked;
        checkedKeys = all;
    }

    // Hands every group's state to a SettingsManager before it copies.
    function applyTo(manager) {
        for (var i = 0; i < groups.length; ++i)
            manager.selection(groups[i].key, checkedKeys[groups[i].key] === true);
    }

    title: qsTr("Settings")
    headerActions: [
        FlatButton {
            text: card.checkedCount === card.groups.length ? qsTr("Clear all") : qsTr("Select all")
            onClicked: card.setAll(card.checkedCount !== card.groups.length)
        }
    ]

    GridLayout {
        Layout.fillWidth: true
        columns: width > 560 ? 2 : 1
        columnSpacing: Theme.spacingXl
        rowSpacing: Theme.spacingXs

        Repeater {
            model: card.groups

            NxCheckBox {
                Layout.fillWidth: true
                text: modelData.label
                checked: card.checkedKeys[modelData.key] === true
                onToggled: card.setChecked(modelData.key, checked)
            }
        }
    }
}
