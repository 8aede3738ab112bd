import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0

// Stands in for an advanced section until the administrator password is entered.
PageScaffold {
    id: page

    signal unlockRequested()

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingXxl

        EmptyState {
            Layout.fillWidth: true
            compact: true
            iconName: "lock"
            title: qsTr("Administrator access required")
            message: qsTr("This section changes how the terminal works for everyone who uses it. Unlock the advanced settings with the administrator password to continue.")

            PrimaryButton {
                iconName: "unlock"
                text: qsTr("Unlock")
                onClicked: page.unlockRequested()
            }
        }
    }
}
