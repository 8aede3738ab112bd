import QtQuick 2.15

// How each kind of connection looks: name, icon, colour and the form that edits it.
// Keyed by a record's "type" (VMWare 0, VNC 1, Citrix 2, RDP 3, Browser 4, Teams 5, PuTTY 6).
QtObject {
    readonly property int vmware: 0
    readonly property int vnc: 1
    readonly property int citrix: 2
    readonly property int rdp: 3
    readonly property int browser: 4
    readonly property int teams: 5
    readonly property int putty: 6

    readonly property var kinds: ({
        0: { label: qsTr("VMware Horizon"), icon: "layers", tint: "#E6F4EA", ink: "#1E7B45", form: "VMWareConnectDialog.qml" },
        1: { label: qsTr("VNC"), icon: "screen-share", tint: "#EEEAFB", ink: "#5A46C2", form: "AddVNCConnection.qml" },
        2: { label: qsTr("Citrix"), icon: "cloud", tint: "#E3F4F6", ink: "#137A87", form: "AddCitrixConnection.qml" },
        3: { label: qsTr("Remote Desktop"), icon: "remote-desktop", tint: "#E8EFFD", ink: "#2F6FED", form: "AddRDPConnection.qml" },
        4: { label: qsTr("Browser"), icon: "globe", tint: "#FDF0E3", ink: "#B8620B", form: "AddBrowserConnection.qml" },
        5: { label: qsTr("Microsoft Teams"), icon: "users", tint: "#ECEBFA", ink: "#5B5FC7", form: "" },
        6: { label: qsTr("PuTTY"), icon: "terminal", tint: "#E9ECF1", ink: "#3A475C", form: "AddPuttyConnection.qml" }
    })

    readonly property var unknown: ({ label: qsTr("Connection"), icon: "plug", tint: "#E9ECF1", ink: "#536079", form: "" })

    function find(type) {
        var kind = kinds[type];
        return kind !== undefined ? kind : unknown;
    }

    function label(type) {
        return find(type).label;
    }

    function icon(type) {
        return find(type).icon;
    }

    function tint(type) {
        return find(type).tint;
    }

    function ink(type) {
        return find(type).ink;
    }

    // Empty when this build has no form for the kind.
    function form(type) {
        return find(type).form;
    }
}
