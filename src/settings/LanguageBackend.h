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
    Q_INVOKABLE QStringList listLocalesDisplay() const { return m_displayNames; }
    Q_INVOKABLE QStringList listLocalesInternal() const { return m_internalNames; }

    // The "! layout" section of evdev.lst: code, blanks, display name per line.
    static LayoutCatalogue parseLayoutCatalogue(const QByteArray& evdevList);

signals:
    void layoutsReady();

private:
    QTranslator m_translator;
    QTranslator m_qtTranslator;
    QQmlEngine* m_engine = nullptr;
    QStringList m_displayNames;
    QStringList m_internalNames;
    QFuture<LayoutCatalogue> m_future;
    QFutureWatcher<LayoutCatalogue> m_watcher;
};
