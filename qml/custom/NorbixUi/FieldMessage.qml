import QtQuick 2.15

// Error or hint line under a form control; collapses when empty.
Text {
    property bool isError: true

    visible: text !== ""
    color: isError ? Theme.danger : Theme.textSecondary
    font.family: Theme.fontFamily
    font.pixelSize: Theme.fontSmall
    wrapMode: Text.Wrap
}
