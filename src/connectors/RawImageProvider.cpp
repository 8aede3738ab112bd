#include "RawImageProvider.h"

QImage RawImageProvider::requestImage(const QString&, QSize* size, const QSize&)
{
    if (size)
        *size = QSize(1200, 1200);
    if (m_image.isNull())
        return QImage(1200, 1200, QImage::Format_RGB32);
    return m_image.scaled(1200, 1200, Qt::IgnoreAspectRatio);
}
