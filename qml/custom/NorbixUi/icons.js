.pragma library

// Line icons drawn on a 24x24 grid; the caller sets stroke/fill style and scale.

function line(ctx, x1, y1, x2, y2) {
    ctx.beginPath();
    ctx.moveTo(x1, y1);
    ctx.lineTo(x2, y2);
    ctx.stroke();
}

function poly(ctx, pts, close) {
    ctx.beginPath();
    ctx.moveTo(pts[0], pts[1]);
    for (var i = 2; i < pts.length; i += 2)
        ctx.lineTo(pts[i], pts[i + 1]);
    if (close)
        ctx.closePath();
    ctx.stroke();
}

function circle(ctx, x, y, r) {
    ctx.beginPath();
    ctx.arc(x, y, r, 0, Math.PI * 2, false);
    ctx.stroke();
}

function dot(ctx, x, y, r) {
    ctx.beginPath();
    ctx.arc(x, y, r, 0, Math.PI * 2, false);
    ctx.fill();
}

function rrect(ctx, x, y, w, h, r) {
    ctx.beginPath();
    ctx.roundedRect(x, y, w, h, r, r);
    ctx.stroke();
}

function arc(ctx, x, y, r, a1, a2) {
    ctx.beginPath();
    ctx.arc(x, y, r, a1, a2, false);
    ctx.stroke();
}

// Filled arrow head at (x, y) pointing along a clockwise arc at angle a.
function arrowHead(ctx, x, y, a) {
    var tx = -Math.sin(a), ty = Math.cos(a);
    var nx = Math.cos(a), ny = Math.sin(a);
    ctx.beginPath();
    ctx.moveTo(x + tx * 3, y + ty * 3);
    ctx.lineTo(x - tx * 1.2 + nx * 3, y - ty * 1.2 + ny * 3);
    ctx.lineTo(x - tx * 1.2 - nx * 3, y - ty * 1.2 - ny * 3);
    ctx.closePath();
    ctx.fill();
}

function deg(d) {
    return d * Math.PI / 180;
}

var painters = {
    "gear": function (ctx) {
        var teeth = 8, inner = 7, outer = 9.6;
        var step = Math.PI * 2 / teeth;
        ctx.beginPath();
        for (var i = 0; i < teeth; ++i) {
            var a = i * step;
            var pts = [[inner, a - step * 0.36], [outer, a - step * 0.2], [outer, a + step * 0.2], [inner, a + step * 0.36]];
            for (var k = 0; k < pts.length; ++k) {
                var x = 12 + Math.cos(pts[k][1]) * pts[k][0], y = 12 + Math.sin(pts[k][1]) * pts[k][0];
                if (i === 0 && k === 0)
                    ctx.moveTo(x, y);
                else
                    ctx.lineTo(x, y);
            }
        }
        ctx.closePath();
        ctx.stroke();
        circle(ctx, 12, 12, 3);
    },
    "home": function (ctx) {
        poly(ctx, [3, 11, 12, 3.5, 21, 11]);
        poly(ctx, [5.5, 9.5, 5.5, 20.5, 18.5, 20.5, 18.5, 9.5]);
        poly(ctx, [10, 20.5, 10, 15, 14, 15, 14, 20.5]);
    },
    "back": function (ctx) {
        line(ctx, 19, 12, 5, 12);
        poly(ctx, [11, 6, 5, 12, 11, 18]);
    },
    "chevron-right": function (ctx) {
        poly(ctx, [9, 6, 15, 12, 9, 18]);
    },
    "chevron-down": function (ctx) {
        poly(ctx, [6, 9, 12, 15, 18, 9]);
    },
    "lock": function (ctx) {
        rrect(ctx, 5, 11, 14, 10, 2);
        ctx.beginPath();
        ctx.moveTo(8, 11);
        ctx.lineTo(8, 7.5);
        ctx.arc(12, 7.5, 4, Math.PI, 0, false);
        ctx.lineTo(16, 11);
        ctx.stroke();
        line(ctx, 12, 15, 12, 17);
    },
    "unlock": function (ctx) {
        rrect(ctx, 5, 11, 14, 10, 2);
        ctx.beginPath();
        ctx.moveTo(8, 11);
        ctx.lineTo(8, 7.5);
        ctx.arc(12, 7.5, 4, Math.PI, deg(-20), false);
        ctx.stroke();
        line(ctx, 12, 15, 12, 17);
    },
    "refresh": function (ctx) {
        var end = deg(250);
        arc(ctx, 12, 12, 7.5, deg(-40), end);
        arrowHead(ctx, 12 + Math.cos(end) * 7.5, 12 + Math.sin(end) * 7.5, end);
    },
    "eye": function (ctx) {
        ctx.beginPath();
        ctx.moveTo(2.5, 12);
        ctx.quadraticCurveTo(12, 1.5, 21.5, 12);
        ctx.quadraticCurveTo(12, 22.5, 2.5, 12);
        ctx.closePath();
        ctx.stroke();
        circle(ctx, 12, 12, 3);
    },
    "eye-off": function (ctx) {
        painters["eye"](ctx);
        line(ctx, 4, 4, 20, 20);
    },
    "check": function (ctx) {
        poly(ctx, [5, 12.5, 10, 17.5, 19, 7]);
    },
    "close": function (ctx) {
        line(ctx, 6, 6, 18, 18);
        line(ctx, 18, 6, 6, 18);
    },
    "info": function (ctx) {
        circle(ctx, 12, 12, 9);
        line(ctx, 12, 11, 12, 16.5);
        dot(ctx, 12, 7.8, 1.2);
    },
    "warning": function (ctx) {
        poly(ctx, [12, 3.5, 21.5, 20, 2.5, 20], true);
        line(ctx, 12, 9.5, 12, 14);
        dot(ctx, 12, 17, 1.1);
    },
    "error": function (ctx) {
        circle(ctx, 12, 12, 9);
        line(ctx, 9, 9, 15, 15);
        line(ctx, 15, 9, 9, 15);
    },
    "success": function (ctx) {
        circle(ctx, 12, 12, 9);
        poly(ctx, [8, 12.5, 11, 15.5, 16.5, 9.5]);
    },
    "plug": function (ctx) {
        line(ctx, 9, 2.5, 9, 7);
        line(ctx, 15, 2.5, 15, 7);
        ctx.beginPath();
        ctx.moveTo(6, 7);
        ctx.lineTo(18, 7);
        ctx.lineTo(18, 11);
        ctx.arc(12, 11, 6, 0, Math.PI, false);
        ctx.closePath();
        ctx.stroke();
        line(ctx, 12, 17, 12, 21.5);
    },
    "monitor": function (ctx) {
        rrect(ctx, 3, 4, 18, 12, 2);
        line(ctx, 8, 20, 16, 20);
        line(ctx, 12, 16, 12, 20);
    },
    "network": function (ctx) {
        rrect(ctx, 9, 3, 6, 5, 1);
        rrect(ctx, 3, 16, 6, 5, 1);
        rrect(ctx, 15, 16, 6, 5, 1);
        line(ctx, 12, 8, 12, 12);
        poly(ctx, [6, 16, 6, 12, 18, 12, 18, 16]);
    },
    "wifi": function (ctx) {
        arc(ctx, 12, 19, 5, deg(-135), deg(-45));
        arc(ctx, 12, 19, 9.5, deg(-135), deg(-45));
        arc(ctx, 12, 19, 14, deg(-130), deg(-50));
        dot(ctx, 12, 19, 1.4);
    },
    "shield": function (ctx) {
        ctx.beginPath();
        ctx.moveTo(12, 3);
        ctx.lineTo(19.5, 6);
        ctx.lineTo(19.5, 11);
        ctx.bezierCurveTo(19.5, 16, 16, 19.5, 12, 21);
        ctx.bezierCurveTo(8, 19.5, 4.5, 16, 4.5, 11);
        ctx.lineTo(4.5, 6);
        ctx.closePath();
        ctx.stroke();
        poly(ctx, [8.8, 12, 11, 14.2, 15.4, 9.8]);
    },
    "badge": function (ctx) {
        rrect(ctx, 3, 5, 18, 14, 2);
        circle(ctx, 8.5, 10.5, 2);
        line(ctx, 6, 15.5, 11, 15.5);
        line(ctx, 14, 10, 18, 10);
        line(ctx, 14, 14, 18, 14);
    },
    "power": function (ctx) {
        arc(ctx, 12, 13, 7.5, deg(-55), deg(235));
        line(ctx, 12, 3, 12, 11);
    },
    "clock": function (ctx) {
        circle(ctx, 12, 12, 9);
        poly(ctx, [12, 7, 12, 12, 15.5, 14]);
    },
    "sound": function (ctx) {
        poly(ctx, [4, 9.5, 8, 9.5, 12.5, 5.5, 12.5, 18.5, 8, 14.5, 4, 14.5], true);
        arc(ctx, 13, 12, 3.8, deg(-50), deg(50));
        arc(ctx, 13, 12, 7.6, deg(-50), deg(50));
    },
    "keyboard": function (ctx) {
        rrect(ctx, 2.5, 6, 19, 12, 2);
        var keys = [6.5, 10, 10.5, 10, 14.5, 10, 17.5, 10];
        for (var i = 0; i < keys.length; i += 2)
            dot(ctx, keys[i], keys[i + 1], 1);
        line(ctx, 8, 14.5, 16, 14.5);
    },
    "mouse": function (ctx) {
        rrect(ctx, 6.5, 3, 11, 18, 5.5);
        line(ctx, 12, 6.5, 12, 9.5);
    },
    "globe": function (ctx) {
        circle(ctx, 12, 12, 9);
        ctx.beginPath();
        ctx.ellipse(8, 3, 8, 18);
        ctx.stroke();
        line(ctx, 3, 12, 21, 12);
    },
    "printer": function (ctx) {
        poly(ctx, [7, 9, 7, 3, 17, 3, 17, 9]);
        poly(ctx, [7, 17, 4.5, 17, 3, 15.5, 3, 10.5, 4.5, 9, 19.5, 9, 21, 10.5, 21, 15.5, 19.5, 17, 17, 17]);
        rrect(ctx, 7, 14, 10, 7, 0.5);
    },
    "usb": function (ctx) {
        rrect(ctx, 7, 9, 10, 12.5, 2);
        poly(ctx, [9, 9, 9, 3, 15, 3, 15, 9]);
        dot(ctx, 10.8, 6, 0.9);
        dot(ctx, 13.2, 6, 0.9);
    },
    "image": function (ctx) {
        rrect(ctx, 3, 4, 18, 16, 2);
        circle(ctx, 8.5, 9.5, 1.6);
        poly(ctx, [20.5, 15.5, 15.5, 10.5, 5, 19.5]);
    },
    "award": function (ctx) {
        circle(ctx, 12, 9, 6);
        poly(ctx, [8.6, 14, 7.5, 21.5, 12, 19, 16.5, 21.5, 15.4, 14]);
    },
    "server": function (ctx) {
        rrect(ctx, 3, 3.5, 18, 7, 2);
        rrect(ctx, 3, 13.5, 18, 7, 2);
        dot(ctx, 7, 7, 1.1);
        dot(ctx, 7, 17, 1.1);
    },
    "download": function (ctx) {
        line(ctx, 12, 3, 12, 15);
        poly(ctx, [7, 10, 12, 15, 17, 10]);
        poly(ctx, [4, 15, 4, 20, 20, 20, 20, 15]);
    },
    "upload": function (ctx) {
        line(ctx, 12, 15, 12, 3);
        poly(ctx, [7, 8, 12, 3, 17, 8]);
        poly(ctx, [4, 15, 4, 20, 20, 20, 20, 15]);
    },
    "update": function (ctx) {
        arc(ctx, 12, 12, 8, deg(200), deg(340));
        arc(ctx, 12, 12, 8, deg(20), deg(160));
        poly(ctx, [19.6, 4.8, 19.5, 9.3, 15.2, 8.8]);
        poly(ctx, [4.4, 19.2, 4.5, 14.7, 8.8, 15.2]);
    },
    "key": function (ctx) {
        circle(ctx, 7.5, 16.5, 4.5);
        line(ctx, 10.7, 13.3, 20.5, 3.5);
        line(ctx, 16.5, 7.5, 19.5, 10.5);
        line(ctx, 14, 10, 16, 12);
    },
    "document": function (ctx) {
        poly(ctx, [14, 2.5, 5.5, 2.5, 5.5, 21.5, 18.5, 21.5, 18.5, 7], true);
        poly(ctx, [14, 2.5, 14, 7, 18.5, 7]);
        line(ctx, 9, 12, 15, 12);
        line(ctx, 9, 16, 15, 16);
    },
    "folder": function (ctx) {
        poly(ctx, [3, 6, 3, 19, 21, 19, 21, 8, 11.5, 8, 9.5, 5, 3, 5], true);
    },
    "plus": function (ctx) {
        line(ctx, 12, 5, 12, 19);
        line(ctx, 5, 12, 19, 12);
    },
    "edit": function (ctx) {
        poly(ctx, [4, 20, 4.8, 16, 15.5, 5.3, 18.7, 8.5, 8, 19.2], true);
        line(ctx, 13.3, 7.5, 16.5, 10.7);
    },
    "trash": function (ctx) {
        line(ctx, 4, 6.5, 20, 6.5);
        poly(ctx, [9, 6.5, 9, 3.5, 15, 3.5, 15, 6.5]);
        poly(ctx, [6, 6.5, 7, 20.5, 17, 20.5, 18, 6.5]);
        line(ctx, 10, 10.5, 10, 16.5);
        line(ctx, 14, 10.5, 14, 16.5);
    },
    "chevron-up": function (ctx) {
        poly(ctx, [6, 15, 12, 9, 18, 15]);
    },
    "grid": function (ctx) {
        rrect(ctx, 3.5, 3.5, 7, 7, 1.5);
        rrect(ctx, 13.5, 3.5, 7, 7, 1.5);
        rrect(ctx, 3.5, 13.5, 7, 7, 1.5);
        rrect(ctx, 13.5, 13.5, 7, 7, 1.5);
    },
    "remote-desktop": function (ctx) {
        rrect(ctx, 2.5, 4, 19, 12.5, 2);
        line(ctx, 8, 20.5, 16, 20.5);
        line(ctx, 12, 16.5, 12, 20.5);
        poly(ctx, [9, 12.5, 15, 7.5]);
        poly(ctx, [11, 7.5, 15, 7.5, 15, 11.5]);
    },
    "cloud": function (ctx) {
        ctx.beginPath();
        ctx.moveTo(7, 19);
        ctx.arc(7, 14.5, 4.5, Math.PI / 2, deg(235), false);
        ctx.arc(11.5, 9.5, 5.5, deg(200), deg(330), false);
        ctx.arc(17, 14, 4.5, deg(-80), Math.PI / 2, false);
        ctx.closePath();
        ctx.stroke();
    },
    "layers": function (ctx) {
        poly(ctx, [12, 3.5, 21, 8, 12, 12.5, 3, 8], true);
        poly(ctx, [3, 12, 12, 16.5, 21, 12]);
        poly(ctx, [3, 16, 12, 20.5, 21, 16]);
    },
    "terminal": function (ctx) {
        rrect(ctx, 2.5, 4, 19, 16, 2);
        poly(ctx, [6.5, 9, 9.5, 12, 6.5, 15]);
        line(ctx, 12, 15.5, 17, 15.5);
    },
    "users": function (ctx) {
        circle(ctx, 9, 8, 3.5);
        ctx.beginPath();
        ctx.moveTo(2.5, 20);
        ctx.bezierCurveTo(2.5, 14.5, 15.5, 14.5, 15.5, 20);
        ctx.stroke();
        arc(ctx, 16, 8, 3, deg(-70), deg(110));
        ctx.beginPath();
        ctx.moveTo(17.5, 14.3);
        ctx.bezierCurveTo(20, 14.8, 21.5, 16.8, 21.5, 20);
        ctx.stroke();
    },
    "screen-share": function (ctx) {
        rrect(ctx, 3, 4, 18, 12, 2);
        line(ctx, 8, 20, 16, 20);
        line(ctx, 12, 16, 12, 20);
        circle(ctx, 12, 10, 2.5);
    },
    "arrow-right": function (ctx) {
        line(ctx, 5, 12, 19, 12);
        poly(ctx, [13, 6, 19, 12, 13, 18]);
    }
};

function draw(ctx, name) {
    var p = painters[name];
    if (p)
        p(ctx);
}

function has(name) {
    return painters[name] !== undefined;
}
