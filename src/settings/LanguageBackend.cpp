#include "LanguageBackend.h"

#include "CommandRunner.h"
#include "InputParsers.h"
#include "MouseSettingsBackend.h"
#include "QmlSingleton.h"
#include "SettingsChange.h"
#include "SystemPaths.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QQmlEngine>
#include <QSettings>
#include <QtConcurrent>

namespace {

QStringList& translationDirectoryOverride()
{
    static QStringList directories;
    return directories;
}

QString languageIni()
{
    return SystemPaths::dataFile(QStringLiteral("language.ini"));
}

} // namespace

LanguageBackend::LanguageBackend(QObject* parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcher<LayoutCatalogue>::finished, this, [this] {
        const LayoutCatalogue catalogue = m_watcher.result();
        m_internalNames = catalogue.internalNames;
        m_displayNames = catalogue.displayNames;
        m_catalogueRead = true;
        if (m_internalNames.isEmpty())
            qWarning() << "No keyboard layouts in evdev.lst (missing or unreadable)";
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

QStringList LanguageBackend::listLocalesDisplay() const
{
    return getInstance()->m_displayNames;
}

QStringList LanguageBackend::listLocalesInternal() const
{
    return getInstance()->m_internalNames;
}

bool LanguageBackend::isLayoutCatalogueReady() const
{
    return getInstance()->m_catalogueRead;
}

void LanguageBackend::asyncRead()
{
    if (m_future.isRunning())
        return;
    m_catalogueRead = false;
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

QStringList LanguageBackend::languageCodes()
{
    return {QStringLiteral("en"), QStringLiteral("fr"), QStringLiteral("de"), QStringLiteral("ru")};
}

QString LanguageBackend::languageCode(int index)
{
    return languageCodes().value(index);
}

QStringList LanguageBackend::translationDirectories()
{
    if (!translationDirectoryOverride().isEmpty())
        return translationDirectoryOverride();
    QStringList directories{QDir::currentPath()};
    if (QCoreApplication::instance() && !directories.contains(QCoreApplication::applicationDirPath()))
        directories << QCoreApplication::applicationDirPath();
    return directories;
}

void LanguageBackend::setTranslationDirectories(const QStringList& directories)
{
    translationDirectoryOverride() = directories;
}

bool LanguageBackend::updateLanguage(int index)
{
    // One translator for the whole process: the screens' own objects hand over to the shared one,
    // which knows the engine and outlives them.
    if (this != getInstance())
        return getInstance()->updateLanguage(index);
    const QString code = languageCode(index);
    if (code.isEmpty())
        return false;
    qInfo().nospace().noquote() << "Changing language to " << code;
    const QString fileName = QStringLiteral("norbix_") + code + QStringLiteral(".qm");
    QString directory;
    for (const QString& candidate : translationDirectories()) {
        // Probe with a throw-away translator: a failed load would empty the installed one.
        QTranslator probe;
        if (probe.load(fileName, candidate)) {
            directory = candidate;
            break;
        }
    }
    qInfo().nospace().noquote() << "Load " << fileName;
    // The screens are written in English: without an English file the source texts are shown.
    const bool sourceLanguage = code == QLatin1String("en");
    if (directory.isNull() && !sourceLanguage) {
        qWarning() << "COULD NOT INSTALL TRANSLATION" << fileName;
        emit languageFailed(code);
        return false;
    }
    QCoreApplication::removeTranslator(&m_translator);
    QCoreApplication::removeTranslator(&m_qtTranslator);
    QLocale::setDefault(QLocale(code)); // dates and numbers follow the texts' language
    if (directory.isNull()) {
        m_translator.load(QString()); // empties it
        qInfo() << "No" << fileName << "- showing the source texts";
    } else {
        m_translator.load(fileName, directory);
        QCoreApplication::installTranslator(&m_translator);
    }
    // Qt's own texts (dialog buttons and the like) follow when Qt ships that language.
    if (m_qtTranslator.load(QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qtTranslator);
    if (m_engine)
        m_engine->retranslate();
    QSettings(languageIni(), QSettings::IniFormat).setValue(QStringLiteral("Language"), code);
    emit languageChanged(index);
    SettingsChange::report();
    return true;
}

QString LanguageBackend::getCurrentLanguage()
{
    return QSettings(languageIni(), QSettings::IniFormat).value(QStringLiteral("Language")).toString();
}

void LanguageBackend::setCurrentLanguage(const QString& code)
{
    const int index = languageCodes().indexOf(code);
    if (index < 0) {
        qWarning() << "Unknown language" << code << "- keeping the current one";
        return;
    }
    updateLanguage(index);
}

int LanguageBackend::getCurrentSystemLanguage()
{
    return qMax(0, languageCodes().indexOf(getCurrentLanguage()));
}

QStringList LanguageBackend::listActiveLayouts()
{
    return MouseSettingsBackend::listActiveLayoutNames();
}

int LanguageBackend::listActiveLayoutsCount()
{
    return MouseSettingsBackend::listLayoutsEnabled().size();
}

void LanguageBackend::removeLanguage(int index)
{
    const QStringList enabled = MouseSettingsBackend::listLayoutsEnabled();
    if (index < 0 || index >= enabled.size()) {
        qWarning() << "No keyboard layout at" << index;
        return;
    }
    qInfo().nospace().noquote() << "Removing layout " << enabled.at(index);
    QSettings settings(SystemPaths::dataFile(QStringLiteral("keyboard.ini")), QSettings::IniFormat);
    const InputParsers::LayoutRemoval after = InputParsers::removeLayout(
        enabled, index, settings.value(QStringLiteral("PreferredLayout")).toString(),
        settings.value(QStringLiteral("CurrentLayout")).toString());
    settings.setValue(QStringLiteral("Layouts"), after.layouts.join(QLatin1Char(',')));
    settings.setValue(QStringLiteral("PreferredLayout"), after.preferred);
    settings.setValue(QStringLiteral("CurrentLayout"), after.current);
    settings.sync();
    MouseSettingsBackend::applyLayouts(InputParsers::orderLayouts(after.layouts, after.preferred));
    emit activeLayoutsChanged();
}

bool LanguageBackend::isWizardNeeded()
{
    return !QFile::exists(SystemPaths::dataFile(QStringLiteral("wizard_lock")));
}

void LanguageBackend::disableWizard()
{
    QFile lock(SystemPaths::dataFile(QStringLiteral("wizard_lock")));
    if (!lock.open(QIODevice::WriteOnly | QIODevice::Append))
        qWarning() << "Cannot create" << lock.fileName() << lock.errorString();
}
