#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class RunningProcess;

// Whether the terminal has a network, and which: shown at a glance on the main view, and asked
// before a connection starts so that "no network" is said plainly instead of a client's exit code.
class NetworkStatus : public QObject {
    Q_OBJECT
    Q_PROPERTY(int kind READ kind NOTIFY changed)
    Q_PROPERTY(bool online READ isOnline NOTIFY changed)
    Q_PROPERTY(QString networkName READ networkName NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    // NetworkManager answered and no device is connected: starting a connection is pointless.
    Q_PROPERTY(bool offline READ isOffline NOTIFY changed)
public:
    enum Kind { NoNetwork = 0, Wired, WiFi };
    Q_ENUM(Kind)
    static constexpr int kRefreshMs = 10000;

    struct State {
        Kind kind = NoNetwork;
        QString name; // the Wi-Fi network's (profile) name; empty for the others
        bool known = false; // NetworkManager's table was read; without it nothing is claimed
        bool operator==(const State& other) const { return kind == other.kind && name == other.name && known == other.known; }
        bool operator!=(const State& other) const { return !(*this == other); }
    };

    // Refreshes by itself every kRefreshMs when `autoRefresh` is true.
    explicit NetworkStatus(QObject* parent = nullptr) : NetworkStatus(true, parent) {}
    NetworkStatus(bool autoRefresh, QObject* parent);
    ~NetworkStatus() override;

    // `nmcli device status` taken apart by its header's columns (names may hold blanks). A wired
    // link wins over Wi-Fi; a device only counts once it is "connected".
    static State parseDeviceStatus(const QByteArray& output);
    static QString describe(const State& state);

    // Asks NetworkManager again without waiting for it (the main view must not stall on nmcli);
    // refreshed() follows once the answer is in, changed() only on a real change. An nmcli still
    // busy from the last refresh is given up.
    Q_INVOKABLE void refresh();

    int kind() const { return m_state.kind; }
    bool isOnline() const { return m_state.kind != NoNetwork; }
    bool isOffline() const { return m_state.known && m_state.kind == NoNetwork; }
    QString networkName() const { return m_state.name; }
    QString text() const { return describe(m_state); }
    State state() const { return m_state; }

signals:
    void changed();
    void refreshed();

private:
    void take(const QByteArray& output);

    State m_state;
    QTimer m_timer;
    std::unique_ptr<RunningProcess> m_process;
};
