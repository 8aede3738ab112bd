import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0

PageScaffold {
    PlaceholderCard {
        Layout.fillWidth: true
    }
}
