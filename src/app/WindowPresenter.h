#pragma once

#include "ShellOptions.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QQuickWindow;

// Shows the root window (full screen, or at --size) and serves --page, --screenshot and
// --first-frame-marker. firstFrameShown() tells the rest of start-up that the user sees the screen.
class WindowPresenter : public QObject {
    Q_OBJECT
public:
    WindowPresenter(QObject* root, const ShellOptions& options, QObject* parent = nullptr);

signals:
    void firstFrameShown();

private:
    void onFrameSwapped();
    void saveScreenshot();

    QQuickWindow* m_window = nullptr;
    ShellOptions m_options;
    QTimer m_settle;   // restarted by every frame; fires once the screen stops changing
    QTimer m_deadline; // a screen that never settles (a ticking clock) is grabbed anyway
    bool m_firstFrameSeen = false;
};
