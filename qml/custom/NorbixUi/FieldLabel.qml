import QtQuick 2.15

// Caption above a form control.
Text {
    visible: text !== ""
    color: Theme.text
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSmall
    font.weight: Font.DemiBold
    elide: Text.ElideRight
}
