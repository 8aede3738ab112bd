import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0

// Settings area: navy navigation on the left, the selected section on the right.
Item {
    id: root

    property bool adminUnlocked: false
    property string currentSection: ""
    property Item selectedNavItem: null
    // The page of the current section (the locked stand-in while it is locked).
    readonly property Item currentPage: pageLoader.item

    signal homeRequested()

    // Escape leaves the settings when nothing inside (an open form, a dialog) takes it first.
    Keys.onEscapePressed: root.homeRequested()

    function hasSection(id) {
        return catalog.find(id) !== null;
    }

    // Selects a section; an advanced one asks for the administrator password first.
    function showSection(id) {
        var entry = catalog.find(id);
        if (!entry)
            return false;
        currentSection = id;
        if (entry.admin && !adminUnlocked)
            requestUnlock();
        return true;
    }

    function showFirstSection() {
        currentSection = catalog.firstOpen(adminUnlocked);
    }

    function requestUnlock() {
        if (!loginDialog.opened)
            loginDialog.open();
    }

    function lock() {
        loginDialog.close();
        adminUnlocked = false;
    }

    // Only for the shell's own page previews, never reachable from the UI.
    function openUnlocked(id) {
        adminUnlocked = true;
        return showSection(id);
    }

    function isLocked(entry) {
        return entry.admin && !adminUnlocked;
    }

    function reloadPage() {
        var entry = catalog.find(currentSection);
        if (!entry) {
            pageLoader.source = "";
            return;
        }
        var props = { title: entry.title, subtitle: entry.description, iconName: entry.icon };
        var url = isLocked(entry) ? "LockedPage.qml" : entry.page !== "" ? entry.page : "PlaceholderPage.qml";
        pageLoader.setSource(url, props);
    }

    // Brings a selected entry that is out of view to the middle of the list.
    function ensureNavVisible(item) {
        var top = item.mapToItem(navColumn, 0, 0).y + navColumn.y;
        if (top >= navFlick.contentY && top + item.height <= navFlick.contentY + navFlick.height)
            return;
        var target = top + item.height / 2 - navFlick.height / 2;
        navFlick.contentY = Math.max(0, Math.min(navFlick.contentHeight - navFlick.height, target));
    }

    onCurrentSectionChanged: reloadPage()
    onAdminUnlockedChanged: {
        var entry = catalog.find(currentSection);
        if (entry && entry.admin)
            reloadPage();
    }

    SectionCatalog {
        id: catalog
    }

    Rectangle {
        id: sidebar
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: Theme.sidebarWidth
        color: Theme.navy

        Item {
            id: sidebarHeader
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            height: Theme.titleBarHeight

            Text {
                anchors.left: parent.left
                anchors.leftMargin: Theme.spacingXl
                anchors.right: homeButton.left
                anchors.rightMargin: Theme.spacingS
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Settings")
                color: Theme.navyTextStrong
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontTitle + 2
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }

            NxButton {
                id: homeButton
                anchors.right: parent.right
                anchors.rightMargin: Theme.spacingM
                anchors.verticalCenter: parent.verticalCenter
                implicitHeight: 36
                kind: "onDark"
                iconName: "home"
                text: qsTr("Home")
                Accessible.name: qsTr("Back to home")
                onClicked: root.homeRequested()
            }

            Rectangle {
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                height: 1
                color: Theme.navyBorder
            }
        }

        Flickable {
            id: navFlick
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: sidebarHeader.bottom
            anchors.bottom: lockPanel.top
            clip: true
            contentWidth: width
            contentHeight: navColumn.height + 2 * Theme.spacingS
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: NxScrollBar {
                onDark: true
            }

            // The window may get its final size after a section was chosen.
            onHeightChanged: {
                if (root.selectedNavItem)
                    Qt.callLater(root.ensureNavVisible, root.selectedNavItem);
            }

            Column {
                id: navColumn
                x: Theme.spacingM
                y: Theme.spacingS
                width: navFlick.width - 2 * Theme.spacingM
                spacing: 2

                Repeater {
                    model: catalog.groups

                    delegate: Column {
                        id: group

                        readonly property var groupData: modelData

                        width: navColumn.width
                        spacing: 2

                        Item {
                            width: parent.width
                            height: 34

                            SectionHeader {
                                anchors.left: parent.left
                                anchors.right: parent.right
                                anchors.bottom: parent.bottom
                                anchors.leftMargin: Theme.spacingM
                                anchors.bottomMargin: 6
                                onDark: true
                                title: group.groupData.title
                            }
                        }

                        Repeater {
                            model: group.groupData.sections

                            delegate: NavItem {
                                width: group.width
                                text: modelData.title
                                iconName: modelData.icon
                                locked: modelData.admin && !root.adminUnlocked
                                selected: root.currentSection === modelData.id
                                onClicked: root.showSection(modelData.id)

                                Loader {
                                    anchors.right: parent.right
                                    anchors.rightMargin: 36
                                    anchors.verticalCenter: parent.verticalCenter
                                    active: modelData.id === "certificates"
                                    source: "CertificateCountBadge.qml"
                                }
                                onSelectedChanged: {
                                    if (selected) {
                                        root.selectedNavItem = this;
                                        Qt.callLater(root.ensureNavVisible, this);
                                    }
                                }
                            }
                        }
                    }
                }
            }
        }

        // Fades hint that the list continues beyond the visible part.
        Rectangle {
            anchors.left: navFlick.left
            anchors.right: navFlick.right
            anchors.top: navFlick.top
            height: 20
            visible: !navFlick.atYBeginning
            gradient: Gradient {
                GradientStop { position: 0.0; color: Theme.navy }
                GradientStop { position: 1.0; color: Qt.rgba(Theme.navy.r, Theme.navy.g, Theme.navy.b, 0) }
            }
        }

        Rectangle {
            anchors.left: navFlick.left
            anchors.right: navFlick.right
            anchors.bottom: navFlick.bottom
            height: 28
            visible: !navFlick.atYEnd
            gradient: Gradient {
                GradientStop { position: 0.0; color: Qt.rgba(Theme.navy.r, Theme.navy.g, Theme.navy.b, 0) }
                GradientStop { position: 1.0; color: Theme.navy }
            }
        }

        Rectangle {
            id: lockPanel
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: lockRow.implicitHeight + 2 * Theme.spacingL
            color: Theme.navyRaised

            Rectangle {
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                height: 1
                color: Theme.navyBorder
            }

            RowLayout {
                id: lockRow
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                anchors.leftMargin: Theme.spacingL + Theme.spacingXs
                anchors.rightMargin: Theme.spacingM
                spacing: Theme.spacingM

                NxIcon {
                    Layout.alignment: Qt.AlignVCenter
                    name: root.adminUnlocked ? "unlock" : "lock"
                    size: 20
                    color: root.adminUnlocked ? "#5FD39A" : Theme.navyTextMuted
                }

                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.alignment: Qt.AlignVCenter
                    spacing: 0

                    Text {
                        Layout.fillWidth: true
                        text: qsTr("Advanced settings")
                        color: Theme.navyTextStrong
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.DemiBold
                        elide: Text.ElideRight
                    }

                    Text {
                        Layout.fillWidth: true
                        text: root.adminUnlocked ? qsTr("Unlocked") : qsTr("Locked")
                        color: Theme.navyTextMuted
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontCaption
                        elide: Text.ElideRight
                    }
                }

                NxButton {
                    Layout.alignment: Qt.AlignVCenter
                    implicitHeight: 36
                    kind: "onDark"
                    text: root.adminUnlocked ? qsTr("Lock") : qsTr("Unlock")
                    onClicked: root.adminUnlocked ? root.lock() : root.requestUnlock()
                }
            }
        }
    }

    Loader {
        id: pageLoader
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
    }

    Connections {
        target: pageLoader.item
        ignoreUnknownSignals: true

        function onUnlockRequested() {
            root.requestUnlock();
        }
    }

    AdminLoginDialog {
        id: loginDialog
        onUnlocked: root.adminUnlocked = true
    }
}
