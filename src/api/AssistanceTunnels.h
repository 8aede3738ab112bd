#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QJSEngine;
class QQmlEngine;
class RunningProcess;

// The remote-assistance tunnels this shell started, watched until they end: the screens show
// that assistance is under way and let the user end it.
class AssistanceTunnels : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged)
    Q_PROPERTY(int count READ count NOTIFY activeChanged)
public:
    static constexpr int kStopGraceMs = 3000;

    explicit AssistanceTunnels(QObject* parent = nullptr) : QObject(parent) {}
    ~AssistanceTunnels() override;

    // The one the agent starts its tunnels through.
    static AssistanceTunnels* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    // Starts one tunnel through the command seam; false when it could not be started.
    bool start(const QString& program, const QStringList& arguments);
    // Stops every tunnel this shell started: asked to end first, killed when it does not.
    Q_INVOKABLE void endAssistance();

    bool isActive() const { return !m_running.isEmpty(); }
    int count() const { return m_running.size(); }

signals:
    void activeChanged();

private:
    void onFinished(RunningProcess* process, int exitCode);

    QList<RunningProcess*> m_running; // children of this object until they end
};
