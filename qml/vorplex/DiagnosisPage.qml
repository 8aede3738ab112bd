import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.PingManager 1.0

PageScaffold {
    id: page

    property bool running: false

    function start() {
        hostField.errorText = "";
        countField.errorText = "";
        sizeField.errorText = "";
        var host = hostField.text.trim();
        if (host === "" || /\s/.test(host)) {
            hostField.errorText = qsTr("Enter a host name or address.");
            return;
        }
        var count = -1;
        if (modeControl.currentIndex === 1) {
            count = parseInt(countField.text, 10);
            if (!(count > 0) || String(count) !== countField.text.trim()) {
                countField.errorText = qsTr("Enter a number of packages from 1.");
                return;
            }
        }
        var size = parseInt(sizeField.text, 10);
        if (!(size >= 0 && size <= 65507) || String(size) !== sizeField.text.trim()) {
            sizeField.errorText = qsTr("Enter a length from 0 to 65507 bytes.");
            return;
        }
        output.text = "";
        running = true;
        ping.start(host, count, size);
    }

    Component.onDestruction: ping.stop()

    PingManager {
        id: ping
        onNewDataAvailable: {
            output.text += data;
            output.cursorPosition = output.length;
        }
        onFinished: page.running = false
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Ping")
        subtitle: qsTr("Sends echo requests to a host and shows its answers.")

        FormField {
            id: hostField
            objectName: "hostField"
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Host")
            placeholderText: "server.example.com"
            onEdited: errorText = ""
            onAccepted: page.start()
        }

        SegmentedControl {
            id: modeControl
            objectName: "modeControl"
            model: [qsTr("Keep sending packages:"), qsTr("Send only:")]
            currentIndex: 0
            onActivated: currentIndex = index
        }

        GridLayout {
            Layout.fillWidth: true
            columns: page.columnWidth > 700 ? 2 : 1
            columnSpacing: Theme.spacingL

            FormField {
                id: countField
                objectName: "countField"
                Layout.fillWidth: true
                enabled: modeControl.currentIndex === 1
                label: qsTr("Number of packages")
                text: "3"
                validator: IntValidator { bottom: 1; top: 100000 }
                onEdited: errorText = ""
            }
            FormField {
                id: sizeField
                objectName: "sizeField"
                Layout.fillWidth: true
                label: qsTr("Packet length (bytes)")
                text: "64"
                validator: IntValidator { bottom: 0; top: 65507 }
                onEdited: errorText = ""
            }
        }

        RowLayout {
            spacing: Theme.spacingS
            PrimaryButton {
                iconName: "arrow-right"
                text: qsTr("Start")
                enabled: !page.running
                onClicked: page.start()
            }
            SecondaryButton {
                iconName: "close"
                text: qsTr("Stop")
                enabled: page.running
                onClicked: ping.stop()
            }
            Spinner {
                visible: page.running
                size: 22
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Output")

        T.ScrollView {
            id: outputView
            Layout.fillWidth: true
            Layout.preferredHeight: 260
            clip: true

            T.ScrollBar.vertical: NxScrollBar {
                parent: outputView
                x: outputView.width - width
                y: outputView.topPadding
                height: outputView.availableHeight
            }

            NxTextArea {
                id: output
                readOnly: true
                wrapMode: TextEdit.WrapAnywhere
                font.family: "monospace"
                font.pixelSize: Theme.fontSmall
                placeholderText: qsTr("The answers appear here.")
                background: Rectangle {
                    color: Theme.surfaceAlt
                    radius: Theme.radiusS
                    border.color: Theme.border
                }
            }
        }
    }
}
