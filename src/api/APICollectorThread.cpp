#include "APICollectorThread.h"

#include "PasswordManager.h"
#include "PrintersBackend.h"
#include "SystemPaths.h"
#include "USBManager.h"

#include <QDebug>
#include <QMutexLocker>
#include <QSettings>

namespace {

QVariant iniValue(const QString& file, const QString& key, const QVariant& fallback)
{
    return QSettings(SystemPaths::dataFile(file), QSettings::IniFormat).value(key, fallback);
}

} // namespace

QJsonObject APICollectorThread::collect()
{
    const QString api = QStringLiteral("api.ini");
    QJsonObject document;
    document.insert(QStringLiteral("Config"),
                    QJsonObject{{QStringLiteral("AdminPassword"), PasswordManager().getPassword()},
                                {QStringLiteral("DebugLogs"), iniValue(api, QStringLiteral("DebugLogs"), false).toBool()}});
    document.insert(QStringLiteral("AdditionalSettingsEnabled"), iniValue(api, QStringLiteral("AdvancedEnabled"), false).toBool());
    document.insert(QStringLiteral("USB"), QJsonObject{{QStringLiteral("Enabled"), USBManager::isUsbEnabled()}});
    document.insert(QStringLiteral("Printers"), QJsonObject{{QStringLiteral("ActivePrinter"), PrintersBackend::getDefaultPrinter()}});
    document.insert(QStringLiteral("System"),
                    QJsonObject{{QStringLiteral("Language"),
                                 iniValue(QStringLiteral("language.ini"), QStringLiteral("Language"), QStringLiteral("en")).toString()}});
    return document;
}

QJsonObject APICollectorThread::getData() const
{
    QMutexLocker locker(&m_mutex);
    return m_data;
}

void APICollectorThread::start()
{
    qInfo() << "Settings collector started";
    const QJsonObject document = collect();
    QMutexLocker locker(&m_mutex);
    m_data = document;
}

void APICollectorThread::run(bool shouldEmit)
{
    const QJsonObject document = collect();
    {
        QMutexLocker locker(&m_mutex);
        m_data = document;
    }
    if (!shouldEmit || document == m_lastReported)
        return;
    m_lastReported = document;
    emit dataReady(document);
}
