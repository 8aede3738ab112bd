#include "TestSandbox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TestSandbox::TestSandbox()
    : m_oldRoot(qgetenv("NORBIX_ROOT")), m_oldHome(qgetenv("HOME"))
{
    QDir().mkpath(root() + QStringLiteral("/data/norbix"));
    QDir().mkpath(root() + QStringLiteral("/opt/norbix/tools"));
    QDir().mkpath(home());
    qputenv("NORBIX_ROOT", root().toUtf8());
    qputenv("HOME", home().toUtf8());
}

TestSandbox::~TestSandbox()
{
    qputenv("NORBIX_ROOT", m_oldRoot);
    qputenv("HOME", m_oldHome);
}

QByteArray TestSandbox::readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestSandbox::writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(content);
}
