#pragma once

#include <QJsonObject>
#include <QMutex>
#include <QObject>

#include <functional>

// Gathers the terminal's settings document for the management server on a thread of its own,
// so that slow backends (lpstat, nmcli, pacmd, ...) never hold up the session. Reports only real
// changes, and gathers only when asked: an idle terminal runs nothing.
class APICollectorThread : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // Settings of subsystems the agent does not link; start-up plugs them in. Unset: false.
    struct Sources {
        std::function<bool()> autoUpdateEnabled;
    };
    static void setSources(const Sources& sources);

    // The document as the backends tell it now (runs on the caller's thread). Every command it
    // runs, it runs once.
    static QJsonObject collect();

    // The last gathered document, from any thread; before the first run() has finished, the
    // document gathered on the caller's thread.
    QJsonObject getData() const;

public slots:
    // Run once when the thread starts; gathers nothing (start-up asks for a run() at once).
    void start();
    // Gathers again; reports the document when asked to and when it differs from the last report.
    void run(bool shouldEmit);

signals:
    void dataReady(QJsonObject document);

private:
    mutable QMutex m_mutex; // getData() is called from the session's thread
    QJsonObject m_data;
    QJsonObject m_lastReported;
};
