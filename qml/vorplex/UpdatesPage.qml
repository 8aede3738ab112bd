import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.Updater 1.0
import com.LocalUpdaterBackend 1.0

PageScaffold {
    id: page

    readonly property var stateLabels: ({
        "unknown": qsTr("Contacting the update service…"),
        "unavailable": qsTr("Update service unavailable"),
        "idle": qsTr("Ready"),
        "checking": qsTr("Checking for updates"),
        "downloading": qsTr("Downloading update"),
        "installing": qsTr("Installing update"),
        "done": qsTr("Update installed"),
        "failed": qsTr("Update failed")
    })
    property var packages: []
    property string localResult: ""
    property string localKind: "info"

    function refreshPackages() {
        var previous = packageBox.currentText;
        packages = localService.listPackages();
        var index = packages.indexOf(previous);
        packageBox.currentIndex = index >= 0 ? index : (packages.length > 0 ? 0 : -1);
    }

    Component.onCompleted: {
        autoRow.checked = Updater.autoUpdateEnabled;
        refreshPackages();
    }

    LocalUpdaterBackend {
        id: localService
        onCommandFinished: {
            page.localKind = ok ? "success" : "error";
            if (path === "factory/reset")
                page.localResult = ok ? qsTr("The terminal is being reset to its factory settings.") : message;
            else
                page.localResult = ok ? qsTr("The update service is installing the package.") : message;
            Updater.refresh();
        }
        onServiceError: {
            page.localKind = "error";
            page.localResult = message;
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Status")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Check now")
                onClicked: Updater.refresh()
            }
        ]

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingL

            Rectangle {
                implicitWidth: 44
                implicitHeight: 44
                radius: Theme.radiusM + 2
                color: Updater.serviceAvailable ? (Updater.state === "failed" ? Theme.dangerSoft : Theme.accentSoft) : Theme.warningSoft

                NxIcon {
                    anchors.centerIn: parent
                    name: Updater.serviceAvailable ? (Updater.state === "failed" ? "error" : "update") : "warning"
                    size: 24
                    color: Updater.serviceAvailable ? (Updater.state === "failed" ? Theme.danger : Theme.accent) : Theme.warning
                }
            }

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2

                Text {
                    Layout.fillWidth: true
                    text: page.stateLabels[Updater.state] !== undefined ? page.stateLabels[Updater.state] : Updater.state
                    color: Theme.text
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBodyLarge
                    font.weight: Font.DemiBold
                    elide: Text.ElideRight
                }
                Text {
                    Layout.fillWidth: true
                    visible: Updater.version !== ""
                    text: qsTr("Installed version: %1").arg(Updater.version)
                    color: Theme.textSecondary
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    elide: Text.ElideRight
                }
                Text {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: Updater.message
                    color: Theme.textSecondary
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    wrapMode: Text.Wrap
                }
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            visible: Updater.busy
            spacing: Theme.spacingXs

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 8
                radius: 4
                color: Theme.surfacePressed

                Rectangle {
                    width: parent.width * Math.max(0, Math.min(100, Updater.progress)) / 100
                    height: parent.height
                    radius: parent.radius
                    color: Theme.accent
                }
            }
            Text {
                text: qsTr("%1 %").arg(Updater.progress)
                color: Theme.textMuted
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Available updates")
        subtitle: qsTr("Versions the update service offers for this terminal.")

        Repeater {
            id: versionRepeater
            model: Updater.available

            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spacingL

                ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 2
                    Text {
                        Layout.fillWidth: true
                        text: (modelData.system ? qsTr("System %1") : qsTr("Shell %1")).arg(modelData.version)
                        color: Theme.text
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                        font.weight: Font.DemiBold
                        elide: Text.ElideRight
                    }
                    Text {
                        Layout.fillWidth: true
                        visible: text !== ""
                        text: modelData.notes
                        color: Theme.textSecondary
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        wrapMode: Text.Wrap
                        maximumLineCount: 3
                        elide: Text.ElideRight
                    }
                }

                PrimaryButton {
                    iconName: "download"
                    text: qsTr("Install")
                    enabled: !Updater.busy
                    onClicked: modelData.system ? Updater.updateSystem(modelData.type, modelData.version)
                                                : Updater.update(modelData.type, modelData.version)
                }
            }
        }

        EmptyState {
            Layout.fillWidth: true
            visible: versionRepeater.count === 0
            compact: true
            iconName: Updater.serviceAvailable ? "success" : "info"
            title: Updater.serviceAvailable ? qsTr("No updates available") : qsTr("No information about updates")
            message: Updater.serviceAvailable ? qsTr("This terminal runs the newest software the update service knows of.")
                                              : qsTr("Available versions appear here while the update service is running.")
        }
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingS

        SwitchRow {
            id: autoRow
            Layout.fillWidth: true
            title: qsTr("Install updates automatically")
            description: qsTr("A newer version of the shell is installed as soon as the update service offers it.")
            onToggled: {
                Updater.setAutoUpdateEnabled(checked);
                autoRow.checked = Updater.autoUpdateEnabled;
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Install from a USB drive")
        subtitle: qsTr("An update package (.deb) for terminals without access to the update server.")

        FormComboBox {
            id: packageBox
            Layout.fillWidth: true
            label: qsTr("Update package")
            model: page.packages
            enabled: page.packages.length > 0
            placeholderText: qsTr("No update packages found")
            hintText: page.packages.length === 0 ? qsTr("Insert a USB drive with an update package, then refresh the list.") : ""

            IconButton {
                iconName: "refresh"
                text: qsTr("Refresh package list")
                onClicked: page.refreshPackages()
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingM

            PrimaryButton {
                iconName: "download"
                text: qsTr("Install package")
                enabled: packageBox.currentIndex >= 0 && !Updater.busy
                onClicked: {
                    page.localResult = "";
                    localService.installFromFile(packageBox.currentText);
                }
            }

            Item {
                Layout.fillWidth: true
            }

            DangerButton {
                iconName: "warning"
                text: qsTr("Factory reset")
                onClicked: resetDialog.open()
            }
        }

        ResultBanner {
            Layout.fillWidth: true
            text: page.localResult
            kind: page.localKind
        }
    }

    ModalDialog {
        id: resetDialog
        title: qsTr("Factory reset")
        message: qsTr("Every setting and connection of this terminal is erased and the terminal restarts with its factory settings.")
        okText: qsTr("Reset")
        destructive: true
        onOkClicked: {
            page.localResult = "";
            localService.factoryReset();
        }
    }
}
