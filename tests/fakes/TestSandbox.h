#pragma once

#include <QString>
#include <QTemporaryDir>

// A throw-away terminal for one test: NORBIX_ROOT and HOME point into a temporary directory (with
// the data directory made), and are put back when the sandbox goes.
class TestSandbox {
public:
    TestSandbox();
    ~TestSandbox();

    QString root() const { return m_dir.path() + QStringLiteral("/root"); }
    QString home() const { return m_dir.path() + QStringLiteral("/home"); }
    QString path(const QString& absolute) const { return root() + absolute; } // under the root
    QString dataFile(const QString& name) const { return path(QStringLiteral("/data/norbix/") + name); }

    static QByteArray readFile(const QString& path);
    static void writeFile(const QString& path, const QByteArray& content);

private:
    QTemporaryDir m_dir;
    QByteArray m_oldRoot;
    QByteArray m_oldHome;
};
