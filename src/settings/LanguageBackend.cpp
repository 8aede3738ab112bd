#include "LanguageBackend.h"

#include "CommandRunner.h"

#include <QDebug>
#include "QmlSingleton.h"
#include <QtConcurrent>

LanguageBackend::LanguageBackend(QObject* parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcher<LayoutCatalogue>::finished, this, [this] {
        const LayoutCatalogue catalogue = m_watcher.result();
        m_internalNames = catalogue.internalNames;
        m_displayNames = catalogue.displayNames;
        qInfo() << "Layouts from evdev.lst ready";
        emit layoutsReady();
    });
}

LanguageBackend* LanguageBackend::getInstance()
{
    static LanguageBackend* const instance = new LanguageBackend;
    return instance;
}

QObject* LanguageBackend::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<LanguageBackend>();
}

void LanguageBackend::asyncRead()
{
    if (m_future.isRunning())
        return;
    m_future = QtConcurrent::run([] {
        const CommandResult result = CommandRunner::instance().runCommandLine(
            QStringLiteral("cat /usr/share/X11/xkb/rules/evdev.lst"));
        return parseLayoutCatalogue(result.standardOutput);
    });
    m_watcher.setFuture(m_future);
}

LanguageBackend::LayoutCatalogue LanguageBackend::parseLayoutCatalogue(const QByteArray& evdevList)
{
    LayoutCatalogue catalogue;
    bool inLayouts = false;
    for (const QByteArray& rawLine : evdevList.split('\n')) {
        const QString line = QString::fromUtf8(rawLine).trimmed();
        if (line.startsWith(QLatin1Char('!'))) {
            if (inLayouts)
                break;
            inLayouts = line == QLatin1String("! layout");
            continue;
        }
        if (!inLayouts || line.isEmpty())
            continue;
        const int gap = line.indexOf(QLatin1Char(' '));
        if (gap <= 0)
            continue;
        catalogue.internalNames << line.left(gap);
        catalogue.displayNames << line.mid(gap).trimmed();
    }
    return catalogue;
}
