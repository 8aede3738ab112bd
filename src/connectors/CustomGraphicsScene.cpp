#include "CustomGraphicsScene.h"

#include "VncInput.h"

#include <QGraphicsItem>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPainter>

void CustomGraphicsScene::emitCursor(QGraphicsSceneMouseEvent* event, bool pressed)
{
    // Qt's button bits go out as the VNC button mask as they are (0 while moving).
    const QList<QGraphicsItem*> under = items(event->scenePos(), Qt::IntersectsItemShape, Qt::DescendingOrder);
    for (QGraphicsItem* item : under) {
        const QPointF local = item->mapFromScene(event->scenePos());
        event->setPos(local);
        CursorEvent cursor;
        cursor.pos = VncInput::remotePosition(local, QSize(m_owidth, m_oheight), QSize(m_width, m_height), sceneRect().size());
        cursor.mask = int(event->button());
        cursor.pressed = pressed;
        emit mouseStatusChanged(cursor);
    }
}

void CustomGraphicsScene::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mousePressEvent(event);
    emitCursor(event, true);
}

void CustomGraphicsScene::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseMoveEvent(event);
    emitCursor(event, false);
}

void CustomGraphicsScene::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseReleaseEvent(event);
    emitCursor(event, false);
}

void CustomGraphicsScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event)
{
    QGraphicsScene::mouseDoubleClickEvent(event);
    emitCursor(event, false);
}

void CustomGraphicsScene::keyPressEvent(QKeyEvent* event)
{
    QGraphicsScene::keyPressEvent(event);
    emit keyStatusChanged(KeyEvent{event->key(), true});
}

void CustomGraphicsScene::keyReleaseEvent(QKeyEvent* event)
{
    QGraphicsScene::keyReleaseEvent(event);
    emit keyStatusChanged(KeyEvent{event->key(), false});
}

void CustomGraphicsScene::drawBackground(QPainter* painter, const QRectF& rect)
{
    // Black around the frame only: the frame is opaque and fills the scene rectangle.
    QRegion surround(rect.toAlignedRect());
    if (!items().isEmpty())
        surround -= sceneRect().toAlignedRect();
    for (const QRect& part : surround)
        painter->fillRect(part, Qt::black);
}
