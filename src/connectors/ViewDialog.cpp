#include "ViewDialog.h"

#include "CustomGraphicsScene.h"
#include "RemoteConnectionInterface.h"
#include "X11ShmPresenter.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>

void Ui_ViewDialog::setupUi(QDialog* dialog)
{
    verticalLayout = new QVBoxLayout(dialog);
    verticalLayout->setContentsMargins(0, 0, 0, 0);
    graphicsView = new QGraphicsView(dialog);
    graphicsView->setFrameShape(QFrame::NoFrame);
    // The scene paints the black surround itself and the frame is opaque: nothing is filled first
    // and then painted over.
    graphicsView->setBackgroundBrush(Qt::NoBrush);
    graphicsView->viewport()->setAutoFillBackground(false);
    graphicsView->viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    // Each frame repaints only what changed; no anti-aliasing or smoothing work per frame.
    graphicsView->setViewportUpdateMode(QGraphicsView::MinimalViewportUpdate);
    graphicsView->setOptimizationFlags(QGraphicsView::DontSavePainterState | QGraphicsView::DontAdjustForAntialiasing);
    graphicsView->setCacheMode(QGraphicsView::CacheNone);
    verticalLayout->addWidget(graphicsView);
    dialog->setWindowTitle(QStringLiteral("Connection"));
}

ViewDialog::ViewDialog(QWidget* parent)
    : QDialog(parent), ui(new Ui_ViewDialog)
{
    ui->setupUi(this);
    m_scene = new CustomGraphicsScene(this);
    ui->graphicsView->setScene(m_scene);
    // Escape belongs to the terminal, not to the remote desktop: stop it before the scene sees it.
    ui->graphicsView->installEventFilter(this);
    ui->graphicsView->viewport()->installEventFilter(this);
}

ViewDialog::~ViewDialog()
{
    delete ui;
}

void ViewDialog::connectView(RemoteConnectionInterface* connector)
{
    if (!connector)
        return;
    m_interface = connector;
    connect(m_scene, &CustomGraphicsScene::mouseStatusChanged, this, [this](CursorEvent event) {
        if (m_interface && !m_stopped)
            m_interface->cursorEvent(event);
    });
    connect(m_scene, &CustomGraphicsScene::keyStatusChanged, this, [this](KeyEvent event) {
        if (m_interface && !m_stopped)
            m_interface->sendKey(event);
    });
    m_imageReadyConnection = connect(connector, &RemoteConnectionInterface::imageReady, this, &ViewDialog::imageReady);
    while (!m_stopped && m_interface->isConnected()) {
        m_interface->handleEvent();
        QCoreApplication::processEvents();
    }
}

void ViewDialog::imageReady(QImage image)
{
    if (!m_interface)
        return;
    const QSize frameSize = image.size();
    // A frame that shares the buffer already shown (the connector's framebuffer) needs no new
    // pixmap: only the part the update changed is repainted.
    const bool sameBuffer = !m_shrink && m_item && !image.isNull() && image.constBits() == m_frameBits
        && frameSize == m_pixmap.size();
    QRect changed = m_pixmap.rect();
    if (sameBuffer) {
        if (const QRect damage = m_interface->pendingDamage(); !damage.isEmpty())
            changed = damage & m_pixmap.rect();
    } else {
        if (m_shrink)
            image = image.scaled(ui->graphicsView->width(), ui->graphicsView->height(), Qt::KeepAspectRatio, Qt::FastTransformation);
        const uchar* bits = image.constBits();
        // For 32-bit frames the pixmap shares the image's pixels (no conversion, no copy).
        m_pixmap = QPixmap::fromImage(std::move(image));
        m_frameBits = !m_shrink && m_pixmap.toImage().constBits() == bits ? bits : nullptr;
    }
    QCoreApplication::processEvents();
    if (m_stopped || !m_scene)
        return;
    if (!m_item) {
        m_item = m_scene->addPixmap(m_pixmap);
        ui->graphicsView->setMouseTracking(true);
    } else if (sameBuffer) {
        if (!presentDirectly(image, changed))
            m_item->update(changed);
    } else {
        m_item->setPixmap(m_pixmap);
    }
    if (m_scene->sceneRect() != QRectF(m_pixmap.rect()))
        m_scene->setSceneRect(m_pixmap.rect());
    m_scene->setViewportSize(frameSize.width(), frameSize.height());
    m_scene->setOriginalSize(frameSize.width(), frameSize.height());
    ui->graphicsView->horizontalScrollBar()->setValue(0);
    ui->graphicsView->verticalScrollBar()->setValue(0);
}

bool ViewDialog::presentDirectly(const QImage& frame, const QRect& changed)
{
    // Straight to the window only where the view shows the frame pixel for pixel; what the toolkit
    // paints there afterwards comes from the same memory.
    const QGraphicsView* view = ui->graphicsView;
    if (!isVisible() || !view->transform().isIdentity() || devicePixelRatioF() != 1.0)
        return false;
    const QPoint origin = view->mapFromScene(QPointF(0, 0));
    const QRect visible = changed.translated(origin) & view->viewport()->rect();
    if (visible.isEmpty())
        return true;
    return X11ShmPresenter::instance().present(window()->winId(), frame, visible.translated(-origin),
                                               view->viewport()->mapTo(window(), visible.topLeft()));
}

bool ViewDialog::eventFilter(QObject* watched, QEvent* event)
{
    if ((event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        return true;
    return QDialog::eventFilter(watched, event);
}

void ViewDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        return;
    QDialog::keyPressEvent(event);
}

void ViewDialog::closeEvent(QCloseEvent* event)
{
    m_stopped = true;
    QCoreApplication::processEvents();
    disconnect(m_imageReadyConnection);
    if (m_interface)
        m_interface->terminate();
    QCoreApplication::processEvents();
    QDialog::closeEvent(event);
}
