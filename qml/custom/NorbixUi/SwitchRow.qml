import QtQuick 2.15

// Settings row whose whole surface toggles the switch. Use `checked` and `onToggled` as on a Switch.
SettingsRow {
    id: row

    checkable: true
    clickable: true
    showChevron: false

    NxSwitch {
        id: toggle
        checked: row.checked
        focusPolicy: Qt.NoFocus
        Accessible.name: row.title
        onToggled: {
            row.checked = checked;
            checked = Qt.binding(function () { return row.checked; });
            row.toggled();
        }
    }
}
