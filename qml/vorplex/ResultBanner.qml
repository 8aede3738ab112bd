import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0

// The outcome of an action, in the colours of its kind: "success", "warning", "error" or "info".
Rectangle {
    id: banner

    property string text
    property string kind: "info"

    visible: text !== ""
    implicitHeight: row.implicitHeight + 2 * Theme.spacingM
    radius: Theme.radiusM
    color: kind === "success" ? Theme.successSoft : kind === "warning" ? Theme.warningSoft
         : kind === "error" ? Theme.dangerSoft : Theme.accentSoft

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.margins: Theme.spacingM
        spacing: Theme.spacingM

        NxIcon {
            Layout.alignment: Qt.AlignTop
            name: banner.kind === "success" ? "success" : banner.kind === "info" ? "info" : banner.kind
            size: 20
            color: banner.kind === "success" ? Theme.success : banner.kind === "warning" ? Theme.warning
                 : banner.kind === "error" ? Theme.danger : Theme.accent
        }

        Text {
            Layout.fillWidth: true
            text: banner.text
            color: Theme.text
            font.family: Theme.fontFamily
            font.pixelSize: Theme.fontBody
            wrapMode: Text.Wrap
        }
    }
}
