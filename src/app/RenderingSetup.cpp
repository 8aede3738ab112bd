#include "RenderingSetup.h"

#include <QDebug>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <atomic>
#include <cstdio>
#include <memory>

namespace {

bool openGlContextWorks()
{
    QOpenGLContext context;
    QOffscreenSurface surface;
    surface.create();
    const bool works = context.create() && surface.isValid() && context.makeCurrent(&surface);
    if (works)
        context.doneCurrent();
    return works;
}

} // namespace

SceneGraphBackendProbe::~SceneGraphBackendProbe()
{
    if (m_thread.joinable())
        m_thread.join();
}

void SceneGraphBackendProbe::start()
{
    m_named = !qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") || !qEnvironmentVariableIsEmpty("QMLSCENE_DEVICE");
    if (m_named)
        return;
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
        return;
    // X11 makes offscreen surfaces from pbuffers and lets any thread use the display (Qt's own
    // render thread does), so the check need not hold up the GUI thread there.
    if (platform == QLatin1String("xcb"))
        m_thread = std::thread([this] { m_openGlWorks = openGlContextWorks(); });
    else
        m_openGlWorks = openGlContextWorks();
}

bool SceneGraphBackendProbe::finish()
{
    if (m_thread.joinable())
        m_thread.join();
    if (m_named || m_openGlWorks || m_software)
        return m_software;
    m_software = true;
    qInfo() << "No usable OpenGL on" << QGuiApplication::platformName() << "- using the software renderer";
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    return true;
}

bool chooseSceneGraphBackend()
{
    SceneGraphBackendProbe probe;
    probe.start();
    return probe.finish();
}

void announceFirstFrame(QQuickWindow* window)
{
    auto announced = std::make_shared<std::atomic_bool>(false);
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [announced] {
            if (announced->exchange(true))
                return;
            std::fputs("norbix: first frame\n", stdout);
            std::fflush(stdout);
        },
        Qt::DirectConnection);
}
