#pragma once

#include "LocalUpdaterBackend.h"

#include <QObject>
#include <QTimer>
#include <QVariantList>

class QQmlEngine;
class QJSEngine;

// The terminal's software updates as the screens and the management server see them: the local
// update service's state, the versions it offers, and the automatic update of the shell.
class Updater : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString state READ state NOTIFY statusChanged)
    Q_PROPERTY(int progress READ progress NOTIFY statusChanged)
    Q_PROPERTY(QString version READ version NOTIFY statusChanged)
    Q_PROPERTY(QString message READ message NOTIFY statusChanged)
    Q_PROPERTY(bool serviceAvailable READ serviceAvailable NOTIFY statusChanged)
    Q_PROPERTY(bool busy READ busy NOTIFY statusChanged)
    Q_PROPERTY(QVariantList available READ available NOTIFY availableChanged)
    Q_PROPERTY(bool autoUpdateEnabled READ isAutoUpdateEnabled WRITE setAutoUpdateEnabled NOTIFY autoUpdateEnabledChanged)
public:
    static constexpr int kBusyPollMs = 1000;
    static constexpr int kCheckIntervalMs = 10 * 60 * 1000;

    static Updater* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    QString state() const { return m_state; }
    int progress() const { return m_status.progress; }
    QString version() const { return m_status.version; }
    QString message() const { return m_message; }
    bool serviceAvailable() const { return m_serviceAvailable; }
    bool busy() const;
    QVariantList available() const;

    Q_INVOKABLE void refresh();
    // The shell (or another package type) in a version the service offers.
    Q_INVOKABLE void update(const QString& type, const QString& version);
    // The terminal's system image.
    Q_INVOKABLE void updateSystem(const QString& type, const QString& version);
    Q_INVOKABLE bool isAutoUpdateEnabled() const;
    Q_INVOKABLE void setAutoUpdateEnabled(bool enabled);

    LocalUpdaterBackend* backend() { return &m_backend; }

    // The newest offered shell version above the installed one, if any.
    static std::optional<LocalUpdaterBackend::Version> pickAutoUpdate(const QList<LocalUpdaterBackend::Version>& offered,
                                                                       const QString& installed);

signals:
    void statusChanged();
    void availableChanged();
    void autoUpdateEnabledChanged();

private:
    Updater();
    void start();
    void onStatus(const LocalUpdaterBackend::Status& status);
    void onAvailable(const QList<LocalUpdaterBackend::Version>& versions);
    void onServiceError(const QString& path, const QString& text);
    void onCommandFinished(const QString& path, bool ok, const QString& text);
    void requestUpgrade(const QString& type, const QString& version, bool system);
    void maybeAutoUpdate();
    void setState(const QString& state, const QString& message, bool serviceAvailable);
    void schedulePolling();

    static Updater* m_instance;

    LocalUpdaterBackend m_backend;
    QTimer m_pollTimer;
    QTimer m_checkTimer;
    LocalUpdaterBackend::Status m_status;
    QList<LocalUpdaterBackend::Version> m_available;
    QString m_state = QStringLiteral("unknown");
    QString m_message;
    bool m_serviceAvailable = false;
    bool m_requestPending = false; // an upgrade was asked for and the service has not started it yet
    QString m_autoRequested;       // the version automatic update asked for in this run
};
