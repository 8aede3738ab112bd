#include "TrayIcon.h"

#include "CommandRunner.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>

TrayIcon::TrayIcon(QObject* parent) : QObject(parent), m_menu(new QMenu), m_icon(new QSystemTrayIcon(this))
{
    m_icon->setIcon(QIcon(QStringLiteral(":/images/trayArrows.png")));
    QAction* minimize = m_menu->addAction(QStringLiteral("Minimize All"));
    connect(minimize, &QAction::triggered, this, &TrayIcon::minimizeAll);
    m_icon->setContextMenu(m_menu);
    m_icon->show();
}

TrayIcon::~TrayIcon()
{
    delete m_menu; // a widget: no QObject parent of ours can own it
}

QStringList TrayIcon::sessionWindows(const QString& windowList)
{
    static const char* const markers[] = {"selfservice", "vmware-view", "xfreerdp"};
    QStringList ids;
    for (const QString& line : windowList.split(QLatin1Char('\n'))) {
        for (const char* marker : markers) {
            if (line.contains(QLatin1String(marker))) {
                const QStringList parts = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
                if (!parts.isEmpty())
                    ids << parts.first();
                break;
            }
        }
    }
    return ids;
}

void TrayIcon::minimizeAll()
{
    const CommandResult list = CommandRunner::instance().run(QStringLiteral("wmctrl"), {QStringLiteral("-l")});
    for (const QString& id : sessionWindows(QString::fromLocal8Bit(list.standardOutput)))
        CommandRunner::instance().run(QStringLiteral("wmctrl"),
                                      {QStringLiteral("-ir"), id, QStringLiteral("-b"), QStringLiteral("remove,fullscreen")});
}
