#include "WindowPresenter.h"

#include "RenderingSetup.h"

#include <QCoreApplication>
#include <QDebug>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QQuickWindow>
#include <QVariant>

WindowPresenter::WindowPresenter(QObject* root, const ShellOptions& options, QObject* parent)
    : QObject(parent), m_window(qobject_cast<QQuickWindow*>(root)), m_options(options)
{
    if (!m_window) {
        qWarning() << "The root screen is not a window";
        return;
    }
    if (!options.page.isEmpty() && !QMetaObject::invokeMethod(root, "openPage", Q_ARG(QVariant, options.page)))
        qWarning() << "The root screen cannot open" << options.page;

    if (!options.screenshotFile.isEmpty()) {
        m_settle.setSingleShot(true);
        m_settle.setInterval(400);
        connect(&m_settle, &QTimer::timeout, this, &WindowPresenter::saveScreenshot);
        m_deadline.setSingleShot(true);
        m_deadline.setInterval(8000);
        connect(&m_deadline, &QTimer::timeout, this, &WindowPresenter::saveScreenshot);
    }
    connect(m_window, &QQuickWindow::frameSwapped, this, &WindowPresenter::onFrameSwapped);
    if (options.firstFrameMarker)
        announceFirstFrame(m_window);

    if (options.size.isValid()) {
        m_window->resize(options.size);
        m_window->show();
    } else {
        // Without a window manager (a bare X session) the full-screen request alone does nothing.
        if (QScreen* screen = m_window->screen())
            m_window->setGeometry(screen->geometry());
        m_window->showFullScreen();
    }
}

void WindowPresenter::onFrameSwapped()
{
    if (!m_firstFrameSeen) {
        m_firstFrameSeen = true;
        if (!m_options.screenshotFile.isEmpty())
            m_deadline.start();
        else
            disconnect(m_window, &QQuickWindow::frameSwapped, this, &WindowPresenter::onFrameSwapped);
        emit firstFrameShown();
    }
    if (!m_options.screenshotFile.isEmpty())
        m_settle.start();
}

void WindowPresenter::saveScreenshot()
{
    m_settle.stop();
    m_deadline.stop();
    QImage image = m_window->grabWindow();
    // The software renderer cannot always read back its own frame; the platform still has it.
    if (image.isNull() && m_window->screen())
        image = m_window->screen()->grabWindow(m_window->winId()).toImage();
    if (image.isNull() || !image.save(m_options.screenshotFile, "PNG")) {
        qCritical() << "Cannot save the screenshot to" << m_options.screenshotFile << (image.isNull() ? "(nothing rendered)" : "");
        QCoreApplication::exit(2);
        return;
    }
    QCoreApplication::exit(0);
}
