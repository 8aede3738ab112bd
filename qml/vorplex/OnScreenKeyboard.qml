import QtQuick 2.15
import QtQuick.VirtualKeyboard 2.4
import QtQuick.VirtualKeyboard.Settings 2.1
import com.AccessibilityBackend 1.0

// The on-screen keyboard along the bottom of the window, in the display language's layout. It is
// loaded only while the accessibility switch is on; the layer itself takes no input.
Item {
    id: layer

    // How much of the window's bottom the keyboard takes now.
    readonly property real keyboardHeight: panel.visible ? panel.height : 0

    InputPanel {
        id: panel
        width: layer.width
        y: visible ? layer.height - height : layer.height
        visible: Qt.inputMethod.visible
    }

    Binding {
        target: VirtualKeyboardSettings
        property: "locale"
        value: AccessibilityBackend.keyboardLocale
    }
}
