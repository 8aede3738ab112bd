import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.AccessibilityBackend 1.0

// The on-screen keyboard for touch terminals and the high-contrast theme.
PageScaffold {
    id: page

    Card {
        Layout.fillWidth: true
        title: qsTr("Touch and reading")
        subtitle: qsTr("High contrast takes effect at once.")

        SwitchRow {
            Layout.fillWidth: true
            iconName: "keyboard"
            title: qsTr("On-screen keyboard")
            description: AccessibilityBackend.onScreenKeyboard && !AccessibilityBackend.inputMethodReady
                         ? qsTr("The on-screen keyboard appears after the next start of the terminal.")
                         : qsTr("A keyboard appears on the screen whenever a text field is chosen. Its layout follows the display language.")
            checked: AccessibilityBackend.onScreenKeyboard
            onToggled: AccessibilityBackend.onScreenKeyboard = checked
        }

        SwitchRow {
            Layout.fillWidth: true
            iconName: "eye"
            title: qsTr("High contrast")
            description: qsTr("Black text on white, strong outlines and a clearly marked focus.")
            checked: AccessibilityBackend.highContrast
            onToggled: AccessibilityBackend.highContrast = checked
        }
    }
}
