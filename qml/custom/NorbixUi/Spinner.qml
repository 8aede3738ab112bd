import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// Busy indicator: a rotating arc in the accent colour.
T.BusyIndicator {
    id: control

    property color color: Theme.accent
    property real size: 28

    implicitWidth: size
    implicitHeight: size
    padding: 0

    contentItem: Canvas {
        id: arc
        opacity: control.running ? 1 : 0
        antialiasing: true

        onWidthChanged: requestPaint()
        onHeightChanged: requestPaint()

        onPaint: {
            var ctx = getContext("2d");
            ctx.reset();
            var r = Math.min(width, height) / 2 - 2;
            ctx.lineWidth = 3;
            ctx.lineCap = "round";
            ctx.strokeStyle = control.color;
            ctx.beginPath();
            ctx.arc(width / 2, height / 2, r, 0, Math.PI * 1.5, false);
            ctx.stroke();
        }

        RotationAnimator on rotation {
            from: 0
            to: 360
            duration: 900
            loops: Animation.Infinite
            running: control.running && control.visible
        }
    }
}
