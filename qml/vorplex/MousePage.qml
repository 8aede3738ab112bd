import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.MouseSettingsBackend 1.0

PageScaffold {
    id: page

    property bool hasPointers: false

    function load() {
        mouse.getMouseNames();
        hasPointers = mouse.hasPointers();
        speedSlider.value = mouse.getMouseSensetivity();
        buttons.currentIndex = mouse.getPrimaryButton() === 1 ? 1 : 0;
        var click = mouse.getDoubleClickSpeed();
        clickSlider.value = click > 0 ? Math.round(click / 100) : 5;
    }

    Component.onCompleted: load()

    MouseSettingsBackend {
        id: mouse
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Pointer speed")
        subtitle: page.hasPointers ? qsTr("How far the pointer moves for a movement of the mouse or touchpad.")
                                   : qsTr("No mouse or touchpad with an adjustable speed is connected.")

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingM
            enabled: page.hasPointers

            Text {
                text: qsTr("SLOW")
                color: Theme.textSecondary
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                font.weight: Font.DemiBold
            }
            NxSlider {
                id: speedSlider
                objectName: "speedSlider"
                Layout.fillWidth: true
                from: -1
                to: 1
                stepSize: 0.2
                snapMode: T.Slider.SnapAlways
                onMoved: mouse.setMouseSensetivity(Math.round(value * 10) / 10)
            }
            Text {
                text: qsTr("FAST")
                color: Theme.textSecondary
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontSmall
                font.weight: Font.DemiBold
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Primary button")
        subtitle: qsTr("The button that selects and opens; the other one opens menus.")

        SegmentedControl {
            id: buttons
            enabled: page.hasPointers
            model: [qsTr("Left button (right-handed)"), qsTr("Right button (left-handed)")]
            onActivated: mouse.setPrimaryButton(index)
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Double-click time")
        subtitle: qsTr("The longest pause between the two clicks of a double-click.")

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingM

            NxSlider {
                id: clickSlider
                Layout.fillWidth: true
                from: 1
                to: 10
                stepSize: 1
                snapMode: T.Slider.SnapAlways
                onMoved: mouse.setDoubleClickSpeed(Math.round(value) * 100)
            }
            Text {
                Layout.preferredWidth: 80
                horizontalAlignment: Text.AlignRight
                text: qsTr("%1 ms").arg(Math.round(clickSlider.value) * 100)
                color: Theme.text
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
            }
        }
    }
}
