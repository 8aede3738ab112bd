#pragma once

#include <QJsonObject>
#include <QMutex>
#include <QObject>

// Gathers the terminal's settings document for the management server on a thread of its own,
// so that slow backends (lpstat, ...) never hold up the session. Reports only real changes.
class APICollectorThread : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // The document as the backends tell it now (runs on the caller's thread).
    static QJsonObject collect();

    // The last gathered document, at once, from any thread.
    QJsonObject getData() const;

public slots:
    // Run once when the thread starts: the first document, without reporting it.
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
