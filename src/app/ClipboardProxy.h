#pragma once

#include <QObject>
#include <QString>

// A text the screens hand from one place to another inside the shell; the system clipboard is
// left alone on purpose (it would reach the session clients).
class ClipboardProxy : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE void setClipboard(const QString& text) { m_clipboard = text; }
    Q_INVOKABLE QString clipboard() const { return m_clipboard; }

private:
    QString m_clipboard;
};
