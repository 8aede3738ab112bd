#include "DisplayRevertGuard.h"

#include "ScreensBackend.h"

#include <QDebug>

DisplayRevertGuard::DisplayRevertGuard(QObject* parent)
    : DisplayRevertGuard(nullptr, parent)
{
}

DisplayRevertGuard::DisplayRevertGuard(ScreensBackend* backend, QObject* parent)
    : QObject(parent)
    , m_backend(backend)
{
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this, &DisplayRevertGuard::tick);
}

ScreensBackend* DisplayRevertGuard::backend() const
{
    return m_backend ? m_backend : ScreensBackend::getInstance();
}

void DisplayRevertGuard::capture()
{
    const ScreensBackend* screens = backend();
    m_snapshot = Snapshot();
    for (const QString& name : screens->arrangement()) {
        m_snapshot.outputs << OutputState{name, screens->getCurrentResolution(name), screens->getCurrentRate(name),
                                          screens->getOrientation(name)};
    }
    m_snapshot.primary = screens->getPrimaryScreen();
    m_snapshot.mode = screens->getMode();
    m_captured = true;
}

void DisplayRevertGuard::start()
{
    if (!m_captured) {
        qWarning() << "Display layout not captured before apply, nothing to revert to";
        return;
    }
    m_secondsLeft = m_countdown;
    emit secondsLeftChanged();
    m_timer.start();
    emit pendingChanged();
}

void DisplayRevertGuard::stop()
{
    const bool wasPending = m_timer.isActive();
    m_timer.stop();
    if (wasPending)
        emit pendingChanged();
}

void DisplayRevertGuard::tick()
{
    m_secondsLeft = qMax(0, m_secondsLeft - 1);
    emit secondsLeftChanged();
    if (m_secondsLeft == 0)
        revert();
}

void DisplayRevertGuard::confirm()
{
    if (!m_timer.isActive())
        return;
    stop();
    m_captured = false;
    qInfo() << "Display settings kept";
    emit confirmed();
}

void DisplayRevertGuard::revert()
{
    stop();
    if (!m_captured || m_snapshot.outputs.isEmpty())
        return;
    m_captured = false;
    qInfo() << "Display settings not confirmed, restoring the previous layout";
    ScreensBackend* screens = backend();
    screens->setMode(m_snapshot.mode);
    if (!m_snapshot.primary.isEmpty())
        screens->makePrimary(m_snapshot.primary);
    for (int i = 0; i < m_snapshot.outputs.size(); ++i)
        screens->setScreenAt(m_snapshot.outputs.at(i).name, i);
    for (int i = 0; i + 1 < m_snapshot.outputs.size(); ++i) {
        const OutputState& output = m_snapshot.outputs.at(i);
        screens->stageOutput(output.name, output.orientation, output.resolution, output.rate);
    }
    const OutputState& last = m_snapshot.outputs.last();
    screens->applySettings(last.name, last.orientation, last.resolution, last.rate);
    screens->updateInfo();
    emit reverted();
}
