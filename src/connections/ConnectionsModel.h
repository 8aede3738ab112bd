#pragma once

#include <QAbstractListModel>
#include <QStringList>

// The main view's tiles: connection names, the first four or all of them.
class ConnectionsModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Roles { TitleRole = Qt::UserRole + 1 };
    static constexpr int kPartialRows = 4;

    explicit ConnectionsModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void loadAll();
    Q_INVOKABLE void loadPartial();
    Q_INVOKABLE int totalRows() const { return m_data.size(); }

private:
    void fillData();

    QStringList m_data;
    bool m_loadAll = false;
};
