#include "InfoBackend.h"

#include "AtomicFile.h"
#include "SystemPaths.h"

#include <QClipboard>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

void InfoBackend::copyToClipboard(const QString& text)
{
    if (auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        app->clipboard()->setText(text);
}

QStringList InfoBackend::listDrives() const
{
    const QDir media(SystemPaths::resolve(QStringLiteral("/media")));
    QStringList drives;
    for (const QFileInfo& entry : media.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        drives << entry.absoluteFilePath();
    return drives;
}

QString InfoBackend::driveLabel(const QString& drive) const
{
    return QFileInfo(drive).fileName();
}

QString InfoBackend::saveToDrive(const QString& text, const QString& drive)
{
    // Only the drives offered, never a path the screen made up.
    if (!listDrives().contains(drive)) {
        qWarning().noquote() << "No such drive: " + drive;
        return {};
    }
    const QString path = drive + QStringLiteral("/system-info-")
                         + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss")) + QStringLiteral(".txt");
    if (!AtomicFile::write(path, text.toUtf8())) {
        qWarning().noquote() << "Cannot write " + path;
        return {};
    }
    qInfo().noquote() << "System information saved to " + path;
    return path;
}
