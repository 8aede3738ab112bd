#pragma once

#include <QDialog>
#include <QMetaObject>
#include <QPixmap>

class CustomGraphicsScene;
class QGraphicsPixmapItem;
class QGraphicsView;
class QVBoxLayout;
class RemoteConnectionInterface;

// The viewer window's widgets.
struct Ui_ViewDialog {
    QVBoxLayout* verticalLayout = nullptr;
    QGraphicsView* graphicsView = nullptr;
    void setupUi(QDialog* dialog);
};

// The window of a VNC session. connectView() runs the session loop on the main thread until the
// window is closed.
class ViewDialog : public QDialog {
    Q_OBJECT
public:
    explicit ViewDialog(QWidget* parent = nullptr);
    ~ViewDialog() override;

    void connectView(RemoteConnectionInterface* connector);
    void setShrink(bool shrink) { m_shrink = shrink; }

    QGraphicsView* view() const { return ui->graphicsView; }
    // The frame on screen; unscaled, it shares the session's framebuffer rather than being a copy.
    QPixmap lastFrame() const { return m_pixmap; }

public slots:
    void imageReady(QImage image);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Puts the changed part of a shared frame on the window without the toolkit's painting.
    bool presentDirectly(const QImage& frame, const QRect& changed);

    bool m_stopped = false;
    Ui_ViewDialog* ui;
    RemoteConnectionInterface* m_interface = nullptr;
    QPixmap m_pixmap;
    CustomGraphicsScene* m_scene = nullptr;
    QGraphicsPixmapItem* m_item = nullptr; // one item for the whole session
    const uchar* m_frameBits = nullptr;    // the pixels m_pixmap shares, when not scaled
    QMetaObject::Connection m_imageReadyConnection;
    bool m_shrink = false;
};
