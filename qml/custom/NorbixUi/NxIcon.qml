import QtQuick 2.15
import "icons.js" as Icons

// Vector icon painted from icons.js, so the shell needs no icon theme.
Canvas {
    id: icon

    property string name
    property color color: Theme.text
    property real size: Theme.iconSize
    // Stroke width on the 24-unit design grid.
    property real strokeWidth: 1.8

    implicitWidth: size
    implicitHeight: size
    antialiasing: true

    onNameChanged: requestPaint()
    onColorChanged: requestPaint()
    onStrokeWidthChanged: requestPaint()
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()

    onPaint: {
        var ctx = getContext("2d");
        ctx.reset();
        if (width <= 0 || height <= 0)
            return;
        var s = Math.min(width, height) / 24;
        ctx.translate((width - 24 * s) / 2, (height - 24 * s) / 2);
        ctx.scale(s, s);
        ctx.strokeStyle = icon.color;
        ctx.fillStyle = icon.color;
        ctx.lineWidth = icon.strokeWidth;
        ctx.lineCap = "round";
        ctx.lineJoin = "round";
        Icons.draw(ctx, icon.name);
    }
}
