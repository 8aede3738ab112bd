import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// A thin line between groups of an NxMenu's entries.
T.MenuSeparator {
    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)
    topPadding: Theme.spacingXs
    bottomPadding: Theme.spacingXs

    contentItem: Rectangle {
        implicitHeight: 1
        color: Theme.border
    }
}
