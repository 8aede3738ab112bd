#include "SystemPaths.h"

#include <QDir>

namespace SystemPaths {

QString root()
{
    QString value = qEnvironmentVariable("NORBIX_ROOT");
    while (value.size() > 1 && value.endsWith(QLatin1Char('/')))
        value.chop(1);
    return value == QLatin1String("/") ? QString() : value;
}

QString resolve(const QString& absolutePath)
{
    const QString base = root();
    if (base.isEmpty() || !absolutePath.startsWith(QLatin1Char('/')))
        return absolutePath;
    return base + absolutePath;
}

QString dataFile(const QString& name)
{
    return resolve(QLatin1String(kDataDir) + QLatin1Char('/') + name);
}

} // namespace SystemPaths
