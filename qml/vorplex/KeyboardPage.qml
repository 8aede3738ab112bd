import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.LanguageBackend 1.0
import com.MouseSettingsBackend 1.0

PageScaffold {
    id: page

    property var layouts: []      // { code, name }
    property string preferred: ""
    property string current: ""
    property string currentName: ""

    function load() {
        var codes = keyboard.listLayoutsEnabled();
        var names = keyboard.listActiveLayoutNames();
        var list = [];
        for (var i = 0; i < codes.length; ++i)
            list.push({ code: codes[i], name: names[i] });
        layouts = list;
        preferred = keyboard.getPreferredLayoutRaw();
        current = keyboard.getKeyboardLayout();
        currentName = current === "Unknown" ? qsTr("Unknown") : keyboard.layoutDisplayName(current);
    }

    Component.onCompleted: load()

    MouseSettingsBackend {
        id: keyboard
    }

    LanguageBackend {
        id: language
    }

    // Layout names come with the catalogue, which may still be loading when the page opens.
    Connections {
        target: typeof keyboadLayoutModel !== "undefined" ? keyboadLayoutModel : null
        function onLoadingChanged() { page.load(); }
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingS

        SettingsRow {
            Layout.fillWidth: true
            iconName: "keyboard"
            title: qsTr("Current layout")
            description: page.currentName
        }
        SettingsRow {
            Layout.fillWidth: true
            iconName: "info"
            title: qsTr("Switching layouts")
            description: qsTr("Press Alt+Shift to switch to the next layout.")
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Layouts")
        subtitle: qsTr("The preferred layout is active after power-on.")
        headerActions: [
            PrimaryButton {
                iconName: "plus"
                text: qsTr("Add layouts")
                onClicked: addDialog.open()
            }
        ]

        Repeater {
            model: page.layouts

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 52
                color: index % 2 === 0 ? Theme.surfaceAlt : Theme.surface
                radius: Theme.radiusS

                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: Theme.spacingM
                    anchors.rightMargin: Theme.spacingS
                    spacing: Theme.spacingM

                    Text {
                        Layout.fillWidth: true
                        text: modelData.name
                        color: Theme.text
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                        elide: Text.ElideRight
                    }
                    Text {
                        text: modelData.code
                        color: Theme.textMuted
                        font.family: Theme.monoFamily
                        font.pixelSize: Theme.fontSmall
                    }
                    Text {
                        visible: modelData.code === page.preferred
                        text: qsTr("Preferred")
                        color: Theme.accent
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.DemiBold
                    }
                    SecondaryButton {
                        visible: modelData.code !== page.preferred
                        text: qsTr("Make preferred")
                        onClicked: {
                            keyboard.setPreferredLayoutRaw(modelData.code);
                            keyboard.initLayouts();
                            page.load();
                        }
                    }
                    DangerButton {
                        enabled: page.layouts.length > 1
                        text: qsTr("Remove")
                        onClicked: {
                            language.removeLanguage(index);
                            page.load();
                        }
                    }
                }
            }
        }

        EmptyState {
            Layout.fillWidth: true
            visible: page.layouts.length === 0
            compact: true
            iconName: "keyboard"
            title: qsTr("No layouts chosen")
            message: qsTr("The keyboard uses the system's layout. Add the layouts you type with.")
        }
    }

    AddLayoutDialog {
        id: addDialog
        objectName: "addLayoutDialog"
        onApplied: page.load()
    }
}
