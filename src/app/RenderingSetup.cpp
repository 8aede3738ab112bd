#include "RenderingSetup.h"

#include <QDebug>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QSGRendererInterface>

bool chooseSceneGraphBackend()
{
    if (!qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") || !qEnvironmentVariableIsEmpty("QMLSCENE_DEVICE"))
        return false;

    const QString platform = QGuiApplication::platformName();
    bool openGlWorks = platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
    if (openGlWorks) {
        QOpenGLContext context;
        QOffscreenSurface surface;
        surface.create();
        openGlWorks = context.create() && surface.isValid() && context.makeCurrent(&surface);
        if (openGlWorks)
            context.doneCurrent();
    }
    if (openGlWorks)
        return false;
    qInfo() << "No usable OpenGL on" << platform << "- using the software renderer";
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    return true;
}
