#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

class RunningProcess;

// The diagnosis screen's ping: one process at a time, its output handed on as it arrives.
class PingManager : public QObject {
    Q_OBJECT
public:
    explicit PingManager(QObject* parent = nullptr);
    ~PingManager() override;

    // count > 0 sends that many packets; 0 or less pings until stop().
    Q_INVOKABLE void start(const QString& host, int count, int size);
    Q_INVOKABLE void stop();
    Q_INVOKABLE bool isRunning() const;

    static QStringList arguments(const QString& host, int count, int size);

signals:
    void newDataAvailable(const QString& data);
    void finished();

private:
    std::unique_ptr<RunningProcess> m_process;
};
