import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import QtQml.Models 2.15
import NorbixUi 1.0
import com.ScreensBackend 1.0
import com.DisplayRevertGuard 1.0

PageScaffold {
    id: page

    readonly property var orientationNames: [qsTr("Landscape"), qsTr("Inverted Landscape"), qsTr("Left Portrait"), qsTr("Right Portrait")]
    // Choices made per monitor and not yet applied: name -> { resolution, rate, orientation }.
    property var pending: ({})
    // The model is gone for a moment while the shell shuts down; bindings must not trip over that.
    readonly property string selected: screenModel ? screenModel.active : ""
    readonly property int screenCount: screenModel ? screenModel.count : 0
    // Bumped whenever the monitor list is rebuilt, so bindings over its functions follow.
    property int revision: 0
    readonly property int selectedRow: revision, screenModel ? screenModel.indexOf(selected) : -1
    readonly property string selectedName: revision, ScreensBackend.getScreenDisplayNameAtString(selected)
    readonly property string primaryName: revision, ScreensBackend.getPrimaryScreen()
    property bool identifying: false

    function settingsOf(name) {
        if (pending[name] !== undefined)
            return pending[name];
        return { resolution: ScreensBackend.getCurrentResolution(name), rate: ScreensBackend.getCurrentRate(name),
                 orientation: ScreensBackend.getOrientation(name) };
    }

    function loadSelected() {
        if (selected === "")
            return;
        var current = settingsOf(selected);
        var resolutions = ScreensBackend.getResolutions(selected);
        resolutionBox.model = resolutions;
        resolutionBox.currentIndex = resolutions.indexOf(current.resolution);
        loadRates(current.rate);
        orientationBox.currentIndex = current.orientation;
    }

    function loadRates(rate) {
        var rates = ScreensBackend.getRefreshRate(selected, resolutionBox.currentText);
        rateBox.model = rates;
        var at = rates.indexOf(rate);
        rateBox.currentIndex = at >= 0 ? at : 0;
    }

    function remember() {
        var copy = pending;
        copy[selected] = { resolution: resolutionBox.currentText, rate: rateBox.currentText,
                           orientation: orientationBox.currentIndex };
        pending = copy;
    }

    function reload() {
        pending = {};
        modeControl.currentIndex = ScreensBackend.getMode() === 1 ? 1 : 0;
        screenModel.refresh();
        loadSelected();
    }

    function apply() {
        if (resolutionBox.currentText === "" || rateBox.currentText === "") {
            toast.show(qsTr("Choose a resolution and a refresh rate first."), "error");
            return;
        }
        remember();
        revertGuard.capture();
        ScreensBackend.setMode(modeControl.currentIndex);
        for (var row = 0; row < screenModel.count; ++row)
            ScreensBackend.setScreenAt(screenModel.getName(row), row);
        for (var name in pending) {
            if (name !== selected)
                ScreensBackend.stageOutput(name, pending[name].orientation, pending[name].resolution, pending[name].rate);
        }
        var own = pending[selected];
        ScreensBackend.applySettings(selected, own.orientation, own.resolution, own.rate);
        ScreensBackend.updateInfo();
        reload();
        revertGuard.start();
        confirmDialog.open();
    }

    onSelectedChanged: loadSelected()

    Connections {
        target: screenModel
        function onModelReset() { page.revision++; }
    }

    Component.onCompleted: {
        ScreensBackend.loadInitial();
        reload();
    }

    DisplayRevertGuard {
        id: revertGuard
        objectName: "revertGuard"
        onReverted: {
            confirmDialog.close();
            page.reload();
            toast.show(qsTr("The previous display settings are back."), "info");
        }
        onConfirmed: toast.show(qsTr("Display settings kept."), "success")
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Arrangement")
        subtitle: qsTr("Displays from left to right. Select one to change its settings.")

        Item {
            id: arrangement
            Layout.fillWidth: true
            Layout.preferredHeight: 190

            // The whole arrangement, scaled to fit the box and centred.
            readonly property real aspect: page.screenCount > 0 && tiles.count > 0 && tiles.itemAt(0)
                                           ? tiles.itemAt(0).gridData.aspect : 16 / 9
            readonly property real boxWidth: Math.min(width, height * aspect)
            readonly property real boxHeight: boxWidth / aspect
            readonly property real boxX: (width - boxWidth) / 2

            Repeater {
                id: tiles
                model: screenModel

                delegate: Rectangle {
                    id: tile

                    readonly property var gridData: model.grid

                    x: arrangement.boxX + gridData.x * arrangement.boxWidth + 3
                    y: (arrangement.height - arrangement.boxHeight) / 2 + gridData.y * arrangement.boxHeight + 3
                    width: gridData.width * arrangement.boxWidth - 6
                    height: gridData.height * arrangement.boxHeight - 6
                    radius: Theme.radiusM
                    color: model.active ? Theme.accentSoft : Theme.surfaceAlt
                    border.width: model.active || activeFocus ? 2 : 1
                    border.color: model.active || activeFocus ? Theme.accent : Theme.borderStrong
                    activeFocusOnTab: true
                    Accessible.role: Accessible.Button
                    Accessible.name: model.displayName

                    Keys.onReturnPressed: screenModel.setActive(model.name)
                    Keys.onEnterPressed: screenModel.setActive(model.name)
                    Keys.onSpacePressed: screenModel.setActive(model.name)

                    MouseArea {
                        anchors.fill: parent
                        onClicked: {
                            screenModel.setActive(model.name);
                            tile.forceActiveFocus();
                        }
                    }

                    Column {
                        anchors.centerIn: parent
                        width: parent.width - 2 * Theme.spacingS
                        spacing: 2

                        Text {
                            width: parent.width
                            text: model.displayName
                            horizontalAlignment: Text.AlignHCenter
                            color: Theme.text
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontBody
                            font.weight: Font.DemiBold
                            elide: Text.ElideRight
                        }
                        Text {
                            width: parent.width
                            text: model.name
                            horizontalAlignment: Text.AlignHCenter
                            color: Theme.textSecondary
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontCaption
                            elide: Text.ElideRight
                        }
                        Text {
                            width: parent.width
                            visible: model.primary
                            text: qsTr("Primary")
                            horizontalAlignment: Text.AlignHCenter
                            color: Theme.accent
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontCaption
                            font.weight: Font.DemiBold
                            elide: Text.ElideRight
                        }
                    }
                }
            }

            EmptyState {
                anchors.centerIn: parent
                visible: page.screenCount === 0
                iconName: "monitor"
                title: qsTr("No display found")
            }
        }

        Flow {
            Layout.fillWidth: true
            spacing: Theme.spacingS

            SecondaryButton {
                text: qsTr("Move left")
                enabled: page.selectedRow > 0
                onClicked: screenModel.move(page.selectedRow, page.selectedRow - 1)
            }
            SecondaryButton {
                text: qsTr("Move right")
                enabled: page.selectedRow >= 0 && page.selectedRow < page.screenCount - 1
                onClicked: screenModel.move(page.selectedRow, page.selectedRow + 1)
            }
            SecondaryButton {
                text: qsTr("Make primary")
                enabled: page.selected !== "" && page.primaryName !== page.selected
                onClicked: {
                    ScreensBackend.makePrimary(page.selected);
                    screenModel.refresh();
                }
            }
            SecondaryButton {
                iconName: "monitor"
                text: qsTr("IDENTIFY SCREENS")
                enabled: page.screenCount > 0
                onClicked: {
                    page.identifying = true;
                    identifyTimer.restart();
                }
            }
        }

        SettingsRow {
            Layout.fillWidth: true
            iconName: "layers"
            title: qsTr("Several displays")
            description: qsTr("Extend the desktop across the displays, or show the same picture on each.")

            SegmentedControl {
                id: modeControl
                objectName: "modeControl"
                model: [qsTr("Extend"), qsTr("Mirror")]
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: page.selected === "" ? qsTr("Display") : qsTr("%1 (%2)").arg(page.selectedName).arg(page.selected)
        subtitle: qsTr("Resolutions are listed from the smallest to the largest.")

        GridLayout {
            Layout.fillWidth: true
            columns: page.columnWidth > 760 ? 3 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingL

            FormComboBox {
                id: resolutionBox
                objectName: "resolutionBox"
                Layout.fillWidth: true
                label: qsTr("Resolution")
                onActivated: {
                    page.loadRates(rateBox.currentText);
                    page.remember();
                }
            }
            FormComboBox {
                id: rateBox
                objectName: "rateBox"
                Layout.fillWidth: true
                label: qsTr("Refresh rate (Hz)")
                onActivated: page.remember()
            }
            FormComboBox {
                id: orientationBox
                objectName: "orientationBox"
                Layout.fillWidth: true
                label: qsTr("Orientation")
                model: page.orientationNames
                onActivated: page.remember()
            }
        }

        RowLayout {
            Layout.topMargin: Theme.spacingS
            spacing: Theme.spacingS

            PrimaryButton {
                iconName: "check"
                text: qsTr("APPLY")
                enabled: page.selected !== ""
                onClicked: page.apply()
            }
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Reset")
                onClicked: {
                    ScreensBackend.reset();
                    ScreensBackend.updateInfo();
                    page.reload();
                    toast.show(qsTr("Displays reset to their default size."), "info");
                }
            }
        }
    }

    ModalDialog {
        id: confirmDialog
        objectName: "confirmDialog"
        title: qsTr("Keep these settings?")
        message: qsTr("The previous settings come back in %n second(s).", "", revertGuard.secondsLeft)
        okText: qsTr("Keep settings")
        cancelText: qsTr("Revert")
        onOkClicked: revertGuard.confirm()
        onCancelled: {
            if (revertGuard.pending)
                revertGuard.revert();
        }

        // Takes the keyboard when the dialog opens: Enter keeps, Escape reverts.
        Item {
            Layout.preferredHeight: 0
            focus: true
            Keys.onReturnPressed: confirmDialog.ok()
            Keys.onEnterPressed: confirmDialog.ok()
        }
    }

    Timer {
        id: identifyTimer
        interval: 4000
        onTriggered: page.identifying = false
    }

    // One window in the middle of each monitor with its number.
    Instantiator {
        objectName: "identifyWindows"
        model: page.identifying ? screenModel : null
        delegate: Window {
            readonly property rect area: ScreensBackend.getGeometry(model.name)
            flags: Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint | Qt.ToolTip | Qt.WindowDoesNotAcceptFocus
            width: 240
            height: 240
            x: area.x + Math.max(0, (area.width - width) / 2)
            y: area.y + Math.max(0, (area.height - height) / 2)
            color: Theme.navy
            visible: true

            Column {
                anchors.centerIn: parent
                spacing: Theme.spacingS

                Text {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: index + 1
                    color: Theme.navyTextStrong
                    font.family: Theme.fontFamily
                    font.pixelSize: 120
                    font.weight: Font.DemiBold
                }
                Text {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: model.name
                    color: Theme.navyText
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                }
            }
        }
    }

    Toast {
        id: toast
    }
}
