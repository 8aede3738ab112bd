import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.SoundSettingsBackend 1.0

PageScaffold {
    id: page

    property var sinks: []

    function load() {
        sinks = SoundSettingsBackend.listSinks();
        sinkBox.currentIndex = SoundSettingsBackend.getActiveSink();
        outputSlider.value = SoundSettingsBackend.getSoundVolume();
        micSlider.value = SoundSettingsBackend.getMicrophoneVolume();
    }

    Component.onCompleted: load()

    Card {
        Layout.fillWidth: true
        title: qsTr("Output")
        subtitle: qsTr("Where the terminal and its sessions play sound.")

        FormComboBox {
            id: sinkBox
            Layout.fillWidth: true
            Layout.maximumWidth: 520
            label: qsTr("Output device")
            model: page.sinks
            enabled: page.sinks.length > 0
            placeholderText: qsTr("No output device found")
            onActivated: {
                SoundSettingsBackend.setActiveSink(index);
                currentIndex = SoundSettingsBackend.getActiveSink();
            }
        }

        FieldLabel {
            Layout.topMargin: Theme.spacingS
            text: qsTr("Volume")
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingM

            NxIcon {
                name: "sound"
                color: Theme.textSecondary
            }
            NxSlider {
                id: outputSlider
                Layout.fillWidth: true
                from: 0
                to: 100
                stepSize: 1
                onPressedChanged: {
                    if (!pressed)
                        SoundSettingsBackend.setSoundVolume(Math.round(value));
                }
            }
            Text {
                Layout.preferredWidth: 48
                horizontalAlignment: Text.AlignRight
                text: qsTr("%1%").arg(Math.round(outputSlider.value))
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
        }

        SecondaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "sound"
            text: qsTr("Test sound")
            onClicked: SoundSettingsBackend.testSound()
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Microphone")
        subtitle: qsTr("The recording level of the microphone.")

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingM

            NxSlider {
                id: micSlider
                Layout.fillWidth: true
                from: 0
                to: 100
                stepSize: 1
                onPressedChanged: {
                    if (!pressed)
                        SoundSettingsBackend.setMicrophoneVolume(Math.round(value));
                }
            }
            Text {
                Layout.preferredWidth: 48
                horizontalAlignment: Text.AlignRight
                text: qsTr("%1%").arg(Math.round(micSlider.value))
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
        }

        RowLayout {
            Layout.topMargin: Theme.spacingS
            spacing: Theme.spacingM

            SecondaryButton {
                text: qsTr("Test microphone")
                enabled: !micTimer.running
                onClicked: {
                    micHint.text = qsTr("Recording for three seconds, then playing it back...");
                    micTimer.start();
                }
            }
            // Lets the hint paint before the recording holds the screen.
            Timer {
                id: micTimer
                interval: 150
                onTriggered: {
                    SoundSettingsBackend.testMicrophone();
                    micHint.text = qsTr("Done. Did you hear yourself?");
                }
            }
            Text {
                id: micHint
                Layout.fillWidth: true
                text: qsTr("Speak after pressing: three seconds are recorded and played back.")
                color: Theme.textSecondary
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                wrapMode: Text.Wrap
            }
        }
    }
}
