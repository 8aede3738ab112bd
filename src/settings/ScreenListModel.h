#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <QVariantMap>

class ScreensBackend;

// The monitors of the arrangement view, one row per output in left-to-right order.
class ScreenListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
    Q_PROPERTY(QString active READ active NOTIFY activeChanged)
public:
    enum Roles {
        TableDataRole = Qt::UserRole + 1, // 257
        NameRole,
        DisplayRole,
        ActiveRole,
        PrimaryRole,
        GridRole, // 262
    };

    // Without a backend the model follows the ScreensBackend singleton.
    explicit ScreenListModel(QObject* parent = nullptr);
    explicit ScreenListModel(ScreensBackend* backend, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // Re-reads the arrangement from the backend.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE QString getName(int row) const { return m_names.value(row); }
    Q_INVOKABLE int indexOf(const QString& name) const { return m_names.indexOf(name); }
    Q_INVOKABLE void setActive(const QString& name);
    // Moves a monitor one place to the left or right of the arrangement.
    Q_INVOKABLE void move(int from, int to);
    QString active() const { return m_active; }

signals:
    void countChanged();
    void activeChanged();

private:
    ScreensBackend* backend() const;
    // Placement of every row in a unit box: x, y, width, height in 0..1 of the whole arrangement.
    QList<QVariantMap> computeGrid() const;

    ScreensBackend* m_backend = nullptr;
    QStringList m_names;
    QStringList m_displayNames;
    QList<QVariantMap> m_gridList;
    QString m_active;
    QString m_primary;
};
