import QtQuick 2.15
import QtQuick.VirtualKeyboard 2.4
import QtQuick.VirtualKeyboard.Settings 2.1
import com.AccessibilityBackend 1.0

// The on-screen keyboard along the bottom of the window, in the display language's layout. It is
// loaded only while the accessibility switch is on.
InputPanel {
    id: panel

    readonly property bool shown: Qt.inputMethod.visible

    visible: shown

    Binding {
        target: VirtualKeyboardSettings
        property: "locale"
        value: AccessibilityBackend.keyboardLocale
    }
}
