#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QStringList>
#include <QTranslator>

class QQmlEngine;
class QJSEngine;

// The display language and the keyboard-layout catalogue X knows.
class LanguageBackend : public QObject {
    Q_OBJECT
public:
    struct LayoutCatalogue {
        QStringList internalNames; // codes, e.g. "us"
        QStringList displayNames;  // e.g. "English (US)"
    };

    explicit LanguageBackend(QObject* parent = nullptr);

    static LanguageBackend* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    QTranslator* translator() { return &m_translator; }
    void setEngine(QQmlEngine* engine) { m_engine = engine; }

    // Reads the layout catalogue in the background; the lists fill when it is done.
    Q_INVOKABLE void asyncRead();
    // The catalogue is the one the process-wide instance read (screens make their own objects).
    Q_INVOKABLE QStringList listLocalesDisplay() const;
    Q_INVOKABLE QStringList listLocalesInternal() const;

    // The "! layout" section of evdev.lst: code, blanks, display name per line.
    static LayoutCatalogue parseLayoutCatalogue(const QByteArray& evdevList);

    // Menu index -> language code: 0 "en", 1 "fr", 2 "de", 3 "ru"; empty for any other index.
    static QString languageCode(int index);
    static QStringList languageCodes();

    // Where translation files are looked for, in order (the working directory, then the
    // executable's directory). Tests point it elsewhere.
    static QStringList translationDirectories();
    static void setTranslationDirectories(const QStringList& directories);

    // Loads "norbix_" + code + ".qm", installs it and retranslates the screens; the previous
    // language stays when the file cannot be loaded. Answers whether the language changed.
    Q_INVOKABLE bool updateLanguage(int index);
    Q_INVOKABLE QString getCurrentLanguage();
    Q_INVOKABLE void setCurrentLanguage(const QString& code);
    Q_INVOKABLE int getCurrentSystemLanguage();

    // The enabled keyboard layouts by display name, and removal of one of them.
    Q_INVOKABLE QStringList listActiveLayouts();
    Q_INVOKABLE int listActiveLayoutsCount();
    Q_INVOKABLE void removeLanguage(int index);
    Q_INVOKABLE bool isLayoutCatalogueReady() const;

    // The first-run wizard runs until wizard_lock exists.
    Q_INVOKABLE bool isWizardNeeded();
    Q_INVOKABLE void disableWizard();

signals:
    void layoutsReady();
    void languageChanged(int index);
    void languageFailed(const QString& code);
    void activeLayoutsChanged();

private:
    QTranslator m_translator;
    QTranslator m_qtTranslator;
    QQmlEngine* m_engine = nullptr;
    QStringList m_displayNames;
    QStringList m_internalNames;
    bool m_catalogueRead = false;
    QFuture<LayoutCatalogue> m_future;
    QFutureWatcher<LayoutCatalogue> m_watcher;
};
