// The floor the shell's start-up is measured against: the smallest Qt Quick window, with the same
// platform and renderer choice, that reports its first frame the way the shell does.
#include "RenderingSetup.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    chooseSceneGraphBackend();
    QQmlApplicationEngine engine;
    engine.loadData(R"(import QtQuick 2.15
import QtQuick.Window 2.15
Window {
    width: 1280; height: 720
    Rectangle { anchors.fill: parent; color: "#1d2433"
        Text { anchors.centerIn: parent; text: "Hello"; color: "white"; font.pixelSize: 32 } }
})");
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (!window)
        return 1;
    announceFirstFrame(window);
    window->show();
    return app.exec();
}
