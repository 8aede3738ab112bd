#pragma once

#include "RemoteConnectionInterface.h"

#include <QGraphicsScene>

// Turns the viewer's mouse and keyboard input into the connector's input records.
class CustomGraphicsScene : public QGraphicsScene {
    Q_OBJECT
public:
    using QGraphicsScene::QGraphicsScene;

    void setViewportSize(int width, int height)
    {
        m_width = width;
        m_height = height;
    }
    void setOriginalSize(int width, int height)
    {
        m_owidth = width;
        m_oheight = height;
    }

signals:
    void mouseStatusChanged(CursorEvent event);
    void keyStatusChanged(KeyEvent event);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;

private:
    void emitCursor(QGraphicsSceneMouseEvent* event, bool pressed);

    int m_width = 0;
    int m_height = 0;
    int m_owidth = 0;
    int m_oheight = 0;
};
