#pragma once

#include <QObject>
#include <QStringList>

class QMenu;
class QSystemTrayIcon;

// The user's way back from full-screen session clients: "Minimize All" takes every RDP, Horizon
// and Citrix window out of full screen.
class TrayIcon : public QObject {
    Q_OBJECT
public:
    explicit TrayIcon(QObject* parent = nullptr);
    ~TrayIcon() override;

    // The window ids of session clients in the output of "wmctrl -l".
    static QStringList sessionWindows(const QString& windowList);

public slots:
    void minimizeAll();

private:
    QMenu* m_menu = nullptr;
    QSystemTrayIcon* m_icon = nullptr;
};
