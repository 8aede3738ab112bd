#include "ViewDialog.h"

#include "CustomGraphicsScene.h"
#include "RemoteConnectionInterface.h"

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
    graphicsView->setBackgroundBrush(Qt::black);
    // Each frame repaints only what is visible; no anti-aliasing or smoothing work per frame.
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
    if (m_shrink)
        image = image.scaled(ui->graphicsView->width(), ui->graphicsView->height(), Qt::KeepAspectRatio, Qt::FastTransformation);
    m_pixmap = QPixmap::fromImage(std::move(image));
    QCoreApplication::processEvents();
    if (m_stopped || !m_scene)
        return;
    if (!m_item) {
        m_item = m_scene->addPixmap(m_pixmap);
        ui->graphicsView->setMouseTracking(true);
    } else {
        m_item->setPixmap(m_pixmap);
    }
    m_scene->setSceneRect(m_pixmap.rect());
    m_scene->setViewportSize(frameSize.width(), frameSize.height());
    m_scene->setOriginalSize(frameSize.width(), frameSize.height());
    ui->graphicsView->horizontalScrollBar()->setValue(0);
    ui->graphicsView->verticalScrollBar()->setValue(0);
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
