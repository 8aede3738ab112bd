#include "Updater.h"

#include "QmlSingleton.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QSettings>
#include <QVersionNumber>

Updater* Updater::m_instance = nullptr;

namespace {

const char* const kBusyStates[] = {"checking", "downloading", "installing"};

QSettings updateSettings()
{
    return QSettings(SystemPaths::dataFile(QStringLiteral("update.ini")), QSettings::IniFormat);
}

const QString kAutoKey = QStringLiteral("AutoAppUpdate");

} // namespace

Updater* Updater::getInstance()
{
    if (!m_instance)
        m_instance = new Updater;
    return m_instance;
}

QObject* Updater::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<Updater>();
}

// Made during start-up before the application object: the first look at the service waits for
// the event loop.
Updater::Updater()
{
    connect(&m_backend, &LocalUpdaterBackend::statusReady, this, &Updater::onStatus);
    connect(&m_backend, &LocalUpdaterBackend::availableReady, this, &Updater::onAvailable);
    connect(&m_backend, &LocalUpdaterBackend::serviceError, this, &Updater::onServiceError);
    connect(&m_backend, &LocalUpdaterBackend::commandFinished, this, &Updater::onCommandFinished);
    m_pollTimer.setSingleShot(true);
    connect(&m_pollTimer, &QTimer::timeout, this, [this] { m_backend.requestStatus(); });
    connect(&m_checkTimer, &QTimer::timeout, this, &Updater::refresh);
    QMetaObject::invokeMethod(this, &Updater::start, Qt::QueuedConnection);
}

void Updater::start()
{
    m_checkTimer.start(kCheckIntervalMs);
    refresh();
}

bool Updater::busy() const
{
    if (m_requestPending)
        return true;
    for (const char* state : kBusyStates) {
        if (m_state == QLatin1String(state))
            return true;
    }
    return false;
}

QVariantList Updater::available() const
{
    QVariantList list;
    for (const auto& version : m_available)
        list.append(version.toMap());
    return list;
}

void Updater::refresh()
{
    m_backend.requestStatus();
    m_backend.requestAvailable();
}

void Updater::update(const QString& type, const QString& version)
{
    requestUpgrade(type, version, false);
}

void Updater::updateSystem(const QString& type, const QString& version)
{
    requestUpgrade(type, version, true);
}

void Updater::requestUpgrade(const QString& type, const QString& version, bool system)
{
    qInfo().noquote() << (system ? "Update system" : "Update") << type << version;
    m_requestPending = true;
    emit statusChanged();
    m_backend.startUpgrade(type, version, system);
}

bool Updater::isAutoUpdateEnabled() const
{
    return updateSettings().value(kAutoKey, false).toBool();
}

void Updater::setAutoUpdateEnabled(bool enabled)
{
    if (enabled == isAutoUpdateEnabled())
        return;
    qInfo().noquote() << "Set auto update" << (enabled ? "true" : "false");
    updateSettings().setValue(kAutoKey, enabled);
    emit autoUpdateEnabledChanged();
    if (enabled)
        refresh();
}

void Updater::setState(const QString& state, const QString& message, bool serviceAvailable)
{
    if (state == m_state && message == m_message && serviceAvailable == m_serviceAvailable)
        return;
    m_state = state;
    m_message = message;
    m_serviceAvailable = serviceAvailable;
    emit statusChanged();
}

void Updater::schedulePolling()
{
    if (busy())
        m_pollTimer.start(kBusyPollMs);
    else
        m_pollTimer.stop();
}

void Updater::onStatus(const LocalUpdaterBackend::Status& status)
{
    const bool changed = status.progress != m_status.progress || status.version != m_status.version;
    m_status = status;
    if (changed)
        emit statusChanged();
    setState(status.state, status.message, true);
    schedulePolling();
    maybeAutoUpdate();
}

void Updater::onAvailable(const QList<LocalUpdaterBackend::Version>& versions)
{
    m_available = versions;
    emit availableChanged();
    maybeAutoUpdate();
}

void Updater::onServiceError(const QString& path, const QString& text)
{
    if (path == QLatin1String("upgrade/available") && !m_available.isEmpty()) {
        m_available.clear();
        emit availableChanged();
    }
    // Whatever the service was doing, it cannot be followed any more.
    const bool changed = m_requestPending || m_status.progress != 0 || !m_status.version.isEmpty();
    if (path == QLatin1String("upgrade/"))
        m_requestPending = false;
    m_status = {};
    const QString before = m_state + m_message;
    setState(QStringLiteral("unavailable"), text, false);
    if (changed && before == m_state + m_message)
        emit statusChanged();
    schedulePolling();
}

void Updater::onCommandFinished(const QString& path, bool ok, const QString& text)
{
    if (path != QLatin1String("upgrade/"))
        return;
    m_requestPending = false;
    if (ok) {
        emit statusChanged();
        m_backend.requestStatus();
        return;
    }
    qWarning().noquote() << "Update refused:" << text;
    const QString before = m_state + m_message;
    setState(QStringLiteral("failed"), text, true);
    if (before == m_state + m_message)
        emit statusChanged();
}

std::optional<LocalUpdaterBackend::Version> Updater::pickAutoUpdate(const QList<LocalUpdaterBackend::Version>& offered,
                                                                    const QString& installed)
{
    const QVersionNumber current = QVersionNumber::fromString(installed);
    if (current.isNull())
        return std::nullopt; // nothing to compare with: never guess
    std::optional<LocalUpdaterBackend::Version> best;
    QVersionNumber bestNumber = current;
    for (const auto& version : offered) {
        if (version.system || version.type != QLatin1String("app"))
            continue;
        const QVersionNumber number = QVersionNumber::fromString(version.version);
        if (!number.isNull() && number > bestNumber) {
            best = version;
            bestNumber = number;
        }
    }
    return best;
}

void Updater::maybeAutoUpdate()
{
    if (!isAutoUpdateEnabled() || busy() || m_state != QLatin1String("idle"))
        return;
    const auto pick = pickAutoUpdate(m_available, m_status.version);
    if (!pick || pick->version == m_autoRequested)
        return;
    m_autoRequested = pick->version;
    qInfo().noquote() << "Automatic update to" << pick->version;
    update(pick->type, pick->version);
}
