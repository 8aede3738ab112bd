#include "AtomicFile.h"

#include <QSaveFile>
#include <QDebug>

namespace AtomicFile {

bool write(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qWarning() << "Cannot write" << path << file.errorString();
        return false;
    }
    if (file.write(content) != content.size() || !file.commit()) {
        qWarning() << "Cannot write" << path << file.errorString();
        return false;
    }
    return true;
}

} // namespace AtomicFile
