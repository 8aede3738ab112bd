import QtQuick 2.15

NxButton {
    kind: "primary"
}
