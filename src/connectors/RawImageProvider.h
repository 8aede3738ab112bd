#pragma once

#include <QImage>
#include <QQuickImageProvider>

// image://received/...: the QML display path of remote frames. The shell shows sessions in its
// viewer window, so nothing fills this image.
class RawImageProvider : public QQuickImageProvider {
public:
    RawImageProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    QImage m_image;
};
