#pragma once

#include <QAbstractListModel>
#include <QFutureWatcher>
#include <QList>
#include <QString>

// The facts of the system-information page, one row each, hardware first, then software. Labels
// and the "unknown" / "not installed" stand-ins are translated when the screens ask, so a language
// change shows at once.
class SystemInfoModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(bool ready READ isReady NOTIFY readyChanged)
public:
    enum Roles { SectionRole = Qt::UserRole + 1, LabelRole, ValueRole, KindRole };

    enum class State { Known, Unknown, NotInstalled };

    struct Fact {
        QString section; // "hardware" or "software"
        QString kind;    // cpu, memory, disk, adapter, display, shell, kernel, os, client
        QString subject; // the disk, adapter, display or client the fact is about; empty otherwise
        QString value;
        State state = State::Known;
    };

    explicit SystemInfoModel(QObject* parent = nullptr);
    ~SystemInfoModel() override;

    // Runs the tools (lscpu, df, ip, xrandr, dpkg-query...) through the command seam.
    // Blocking: asyncRead() calls it on a worker thread.
    static QList<Fact> collect();

    // Reads the facts off the GUI thread; the model fills when the reading is done.
    Q_INVOKABLE void asyncRead();
    bool isReady() const { return m_ready; }

    // The facts as text for support: one "Label: value" line each, under the section titles.
    Q_INVOKABLE QString asText() const;

    static QString label(const Fact& fact);
    static QString displayValue(const Fact& fact);
    static QString formatBytes(qint64 bytes);

    void setFacts(const QList<Fact>& facts);
    const QList<Fact>& facts() const { return m_facts; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void readyChanged();

private:
    QList<Fact> m_facts;
    bool m_ready = false;
    QFutureWatcher<QList<Fact>> m_watcher;
};
