#pragma once

#include <thread>

class QQuickWindow;

// Falls back to Qt Quick's software renderer where no OpenGL context can be made (the offscreen
// platform, X servers without GLX, weak thin-client GPUs).
//
// Making the test context loads the GL driver, which takes tens of milliseconds; the scene graph
// would pay that later anyway. On X11 the check runs on a thread of its own, so the caller can
// load its screens meanwhile: start() after the application exists, finish() before the first
// window is made.
class SceneGraphBackendProbe {
public:
    SceneGraphBackendProbe() = default;
    SceneGraphBackendProbe(const SceneGraphBackendProbe&) = delete;
    SceneGraphBackendProbe& operator=(const SceneGraphBackendProbe&) = delete;
    ~SceneGraphBackendProbe();

    void start();
    // Waits for the check and applies its choice. Returns true when the software renderer was chosen.
    bool finish();

private:
    std::thread m_thread;
    bool m_named = false; // an environment variable already names the backend
    bool m_openGlWorks = false;
    bool m_software = false;
};

// Both steps at once, for programs with nothing to do meanwhile.
bool chooseSceneGraphBackend();

// Prints "norbix: first frame" on stdout once the window's first frame is on screen (benchmarks).
// The render thread says so as it swaps: a queued signal would reach the GUI thread only after it
// has drawn the frame of the next expose, which the X server sends right after the first.
void announceFirstFrame(QQuickWindow* window);
