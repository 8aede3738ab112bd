import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.ConnectionManager 1.0

// Settings → Connections: the catalogue as a table, the kinds that may be added, and the
// add/edit forms, which open on top of the table in the same place.
Item {
    id: page

    property string title: qsTr("Connections")
    property string subtitle
    property string iconName: "plug"

    readonly property var tableModel: typeof connectionTableModel !== "undefined" ? connectionTableModel : null
    readonly property int rowHeight: 56
    readonly property bool formOpen: stack.depth > 1
    property int hoveredRow: -1
    // Indexed by the application id: 0 VNC, 1 RDP, 2 Browser, 3 Citrix, 4 VMWare, 5 Teams, 6 PuTTY.
    property var applicationEnabled: [true, true, true, true, true, true, true]

    readonly property var applications: [
        { id: 1, type: kinds.rdp, title: qsTr("RDP") },
        { id: 3, type: kinds.citrix, title: qsTr("Citrix") },
        { id: 4, type: kinds.vmware, title: qsTr("VMware Horizon") },
        { id: 2, type: kinds.browser, title: qsTr("Browser") },
        { id: 6, type: kinds.putty, title: qsTr("PuTTY") },
        { id: 5, type: kinds.teams, title: qsTr("Microsoft Teams") },
        { id: 0, type: kinds.vnc, title: qsTr("VNC") }
    ]

    readonly property bool anyAddable: applicationEnabled[0] || applicationEnabled[1] || applicationEnabled[3] || applicationEnabled[4]
                                       || applicationEnabled[2] || applicationEnabled[6] || applicationEnabled[5]

    function refreshApplications() {
        var list = [];
        for (var id = 0; id < 7; ++id)
            list.push(ConnectionManager.isConnectionTypeEnabled(id));
        applicationEnabled = list;
    }

    // The table model announces every change as one inserted row, so the view starts afresh.
    function rebindTable() {
        table.model = null;
        table.model = page.tableModel;
    }

    function columnWidth(column) {
        var fixed = [0, 168, 0, 128, 112];
        if (fixed[column] > 0)
            return fixed[column];
        var rest = Math.max(0, table.width - 168 - 128 - 112);
        return Math.max(96, Math.floor(rest / 2));
    }

    // Opens the add form of a kind (index -1) or the edit form of a record; false when the kind has none.
    function openForm(type, index, immediate) {
        var source = kinds.form(type);
        if (source === "")
            return false;
        var form = stack.push(Qt.resolvedUrl(source), { connectionIndex: index, dismissStyle: "back" },
                              immediate ? T.StackView.Immediate : T.StackView.PushTransition);
        if (!form)
            return false;
        form.dismissed.connect(page.closeForm);
        form.saved.connect(function (name) {
            page.closeForm();
            toast.show(index < 0 ? qsTr("\u201c%1\u201d added.").arg(name) : qsTr("Changes to \u201c%1\u201d saved.").arg(name),
                       "success");
        });
        return true;
    }

    function closeForm() {
        // Later: the form may still be inside the handler that asked for this.
        Qt.callLater(function () {
            if (stack.depth > 1)
                stack.pop(null);
        });
    }

    function addTeams() {
        if (ConnectionManager.addTeamsConnection())
            toast.show(qsTr("Microsoft Teams added."), "success");
        else
            toast.show(qsTr("Microsoft Teams is already in the list."), "info");
    }

    // Row i of the table is record i of the catalogue.
    function hasRow(row) {
        return page.tableModel !== null && row >= 0 && row < page.tableModel.rowCount();
    }

    function kindOf(row) {
        return hasRow(row) ? ConnectionManager.getConnectionType(row) : -1;
    }

    function requestRemove(row) {
        if (!hasRow(row))
            return;
        removeDialog.row = row;
        removeDialog.connectionName = ConnectionManager.getConnection(row).name;
        removeDialog.open();
    }

    Component.onCompleted: refreshApplications()

    ConnectionKinds {
        id: kinds
    }

    Connections {
        target: ConnectionManager

        // Later: the models refresh on the same signal, and a switch in the table may still be
        // inside the handler that changed the catalogue.
        function onUpdateConnections() {
            Qt.callLater(page.rebindTable);
        }
    }

    T.StackView {
        id: stack
        anchors.fill: parent
        initialItem: overview

        pushEnter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationNormal }
        }
        pushExit: Transition {
            NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationNormal }
        }
        popEnter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationNormal }
        }
        popExit: Transition {
            NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationNormal }
        }
    }

    PageScaffold {
        id: overview
        title: page.title
        subtitle: page.subtitle
        iconName: page.iconName
        maxContentWidth: 1080

        headerActions: [
            PrimaryButton {
                id: addButton
                iconName: "plus"
                text: qsTr("Add connection")
                enabled: page.anyAddable
                onClicked: {
                    page.refreshApplications();
                    addMenu.open();
                }

                NxMenu {
                    id: addMenu
                    x: addButton.width - width
                    y: addButton.height + Theme.spacingXs

                    NxMenuItem {
                        visible: page.applicationEnabled[1]
                        height: visible ? implicitHeight : 0
                        iconName: kinds.icon(kinds.rdp)
                        text: qsTr("Remote Desktop (RDP)")
                        onTriggered: page.openForm(kinds.rdp, -1)
                    }
                    NxMenuItem {
                        visible: page.applicationEnabled[3]
                        height: visible ? implicitHeight : 0
                        iconName: kinds.icon(kinds.citrix)
                        text: qsTr("Citrix")
                        onTriggered: page.openForm(kinds.citrix, -1)
                    }
                    NxMenuItem {
                        visible: page.applicationEnabled[4]
                        height: visible ? implicitHeight : 0
                        iconName: kinds.icon(kinds.vmware)
                        text: qsTr("VMware Horizon")
                        onTriggered: page.openForm(kinds.vmware, -1)
                    }
                    NxMenuItem {
                        visible: page.applicationEnabled[2]
                        height: visible ? implicitHeight : 0
                        iconName: kinds.icon(kinds.browser)
                        text: qsTr("Browser")
                        onTriggered: page.openForm(kinds.browser, -1)
                    }
                    NxMenuItem {
                        visible: page.applicationEnabled[6]
                        height: visible ? implicitHeight : 0
                        iconName: kinds.icon(kinds.putty)
                        text: qsTr("PuTTY")
                        onTriggered: page.openForm(kinds.putty, -1)
                    }
                    NxMenuItem {
                        visible: page.applicationEnabled[0]
                        height: visible ? implicitHeight : 0
                        iconName: kinds.icon(kinds.vnc)
                        text: qsTr("VNC")
                        onTriggered: page.openForm(kinds.vnc, -1)
                    }
                    NxMenuSeparator {
                        visible: page.applicationEnabled[5]
                        height: visible ? implicitHeight : 0
                    }
                    NxMenuItem {
                        visible: page.applicationEnabled[5]
                        height: visible ? implicitHeight : 0
                        iconName: kinds.icon(kinds.teams)
                        text: qsTr("Add Microsoft Teams")
                        onTriggered: page.addTeams()
                    }
                }
            }
        ]

        Card {
            Layout.fillWidth: true
            padding: 0
            spacing: 0

            // Column captions, from the model.
            Item {
                Layout.fillWidth: true
                implicitHeight: 44
                visible: table.rows > 0

                Row {
                    anchors.fill: parent

                    Repeater {
                        model: 5

                        delegate: Item {
                            width: page.columnWidth(index)
                            height: parent.height

                            Text {
                                anchors.left: parent.left
                                anchors.right: parent.right
                                anchors.leftMargin: index === 0 ? Theme.spacingXl : Theme.spacingS
                                anchors.rightMargin: index === 4 ? Theme.spacingL + 6 : Theme.spacingS
                                anchors.verticalCenter: parent.verticalCenter
                                horizontalAlignment: index === 4 ? Text.AlignRight : Text.AlignLeft
                                text: page.tableModel ? page.tableModel.headerData(index, Qt.Horizontal) : ""
                                color: Theme.textSecondary
                                font.family: Theme.fontFamily
                                font.pixelSize: Theme.fontCaption
                                font.weight: Font.DemiBold
                                font.capitalization: Font.AllUppercase
                                font.letterSpacing: 0.6
                                elide: Text.ElideRight
                            }
                        }
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

            TableView {
                id: table
                Layout.fillWidth: true
                Layout.preferredHeight: rows * page.rowHeight
                Layout.bottomMargin: rows > 0 ? Theme.spacingXs : 0
                visible: rows > 0
                interactive: false
                reuseItems: false
                clip: true
                model: page.tableModel
                columnWidthProvider: function (column) { return page.columnWidth(column); }
                rowHeightProvider: function (row) { return page.rowHeight; }
                onWidthChanged: forceLayout()

                HoverHandler {
                    onHoveredChanged: {
                        if (!hovered)
                            page.hoveredRow = -1;
                    }
                }

                delegate: Item {
                    id: cell

                    readonly property bool rowHovered: page.hoveredRow === row
                    readonly property int kind: column === 1 || column === 4 ? page.kindOf(row) : -1

                    implicitWidth: 96
                    implicitHeight: page.rowHeight

                    // The whole row lights up; only entering a cell moves the highlight.
                    HoverHandler {
                        onHoveredChanged: {
                            if (hovered)
                                page.hoveredRow = row;
                        }
                    }

                    Rectangle {
                        anchors.fill: parent
                        color: cell.rowHovered ? Theme.surfaceAlt : "transparent"
                    }

                    Rectangle {
                        anchors.left: parent.left
                        anchors.right: parent.right
                        anchors.bottom: parent.bottom
                        height: 1
                        visible: row < table.rows - 1
                        color: Theme.border
                    }

                    Loader {
                        anchors.fill: parent
                        anchors.leftMargin: column === 0 ? Theme.spacingXl : Theme.spacingS
                        anchors.rightMargin: column === 4 ? Theme.spacingL : Theme.spacingS
                        sourceComponent: [nameCell, typeCell, addressCell, autoCell, actionCell][column]
                    }

                    Component {
                        id: nameCell

                        Text {
                            text: model.display
                            color: Theme.text
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontBody
                            font.weight: Font.DemiBold
                            verticalAlignment: Text.AlignVCenter
                            elide: Text.ElideRight

                            HoverHandler {
                                id: nameHover
                            }

                            NxToolTip {
                                shown: nameHover.hovered && parent.truncated
                                text: parent.text
                            }
                        }
                    }

                    Component {
                        id: typeCell

                        RowLayout {
                            spacing: Theme.spacingS

                            Rectangle {
                                Layout.alignment: Qt.AlignVCenter
                                implicitWidth: 28
                                implicitHeight: 28
                                radius: Theme.radiusM
                                color: kinds.tint(cell.kind)

                                NxIcon {
                                    anchors.centerIn: parent
                                    name: kinds.icon(cell.kind)
                                    size: 16
                                    color: kinds.ink(cell.kind)
                                }
                            }

                            Text {
                                Layout.fillWidth: true
                                Layout.alignment: Qt.AlignVCenter
                                text: model.display
                                color: Theme.textSecondary
                                font.family: Theme.fontFamily
                                font.pixelSize: Theme.fontBody
                                elide: Text.ElideRight
                            }
                        }
                    }

                    Component {
                        id: addressCell

                        Text {
                            text: model.display !== "" ? model.display : "\u2014"
                            color: model.display !== "" ? Theme.textSecondary : Theme.textMuted
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontBody
                            verticalAlignment: Text.AlignVCenter
                            elide: Text.ElideMiddle

                            HoverHandler {
                                id: addressHover
                            }

                            NxToolTip {
                                shown: addressHover.hovered && parent.truncated
                                text: parent.text
                            }
                        }
                    }

                    Component {
                        id: autoCell

                        Item {
                            NxSwitch {
                                anchors.verticalCenter: parent.verticalCenter
                                checked: model.auto
                                Accessible.name: qsTr("Start automatically")
                                onToggled: ConnectionManager.setAutoconnect(row, checked)
                            }
                        }
                    }

                    Component {
                        id: actionCell

                        Item {
                            Row {
                                anchors.right: parent.right
                                anchors.verticalCenter: parent.verticalCenter
                                spacing: Theme.spacingXs

                                IconButton {
                                    iconName: "edit"
                                    iconSize: 18
                                    enabled: kinds.form(cell.kind) !== ""
                                    text: enabled ? qsTr("Edit") : qsTr("Nothing to edit for this kind")
                                    onClicked: page.openForm(cell.kind, row)
                                }

                                IconButton {
                                    id: removeButton
                                    iconName: "trash"
                                    iconSize: 18
                                    text: qsTr("Remove")
                                    onClicked: page.requestRemove(row)
                                }
                            }
                        }
                    }
                }
            }

            EmptyState {
                Layout.fillWidth: true
                Layout.margins: Theme.spacingXxl
                visible: table.rows === 0
                compact: true
                iconName: "plug"
                title: qsTr("No connections yet")
                message: qsTr("Add a remote desktop, a web site or an application. Each connection appears as a tile on the home screen.")

                PrimaryButton {
                    iconName: "plus"
                    text: qsTr("Add connection")
                    enabled: page.anyAddable
                    onClicked: {
                        page.refreshApplications();
                        addMenu.open();
                    }
                }
            }
        }

        Card {
            Layout.fillWidth: true
            title: qsTr("Applications")
            subtitle: qsTr("Kinds of connection that can be added on this terminal.")
            padding: Theme.spacingXl

            GridLayout {
                Layout.fillWidth: true
                Layout.leftMargin: -Theme.spacingL
                Layout.rightMargin: -Theme.spacingL
                columns: width >= 720 ? 3 : 2
                columnSpacing: Theme.spacingS
                rowSpacing: 0

                Repeater {
                    model: page.applications

                    delegate: SwitchRow {
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        iconName: kinds.icon(modelData.type)
                        title: modelData.title
                        checked: page.applicationEnabled[modelData.id]
                        onToggled: {
                            ConnectionManager.setConnectionTypeEnabled(modelData.id, checked);
                            page.refreshApplications();
                        }
                    }
                }
            }
        }
    }

    ModalDialog {
        id: removeDialog

        property int row: -1
        property string connectionName

        title: qsTr("Remove connection?")
        message: qsTr("\u201c%1\u201d will be removed from this terminal, and its tile from the home screen.").arg(connectionName)
        okText: qsTr("Remove")
        destructive: true
        onOkClicked: {
            ConnectionManager.remove(row);
            toast.show(qsTr("\u201c%1\u201d removed.").arg(connectionName), "info");
        }
    }

    Toast {
        id: toast
    }
}
