#pragma once

#include <QAbstractListModel>
#include <QSet>
#include <QStringList>

// The checkable list of keyboard layouts X knows, behind the popup that adds layouts.
class KeyboardsLayoutModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
public:
    enum Roles { NameRole = Qt::UserRole + 1, CodeRole, CheckedRole, EnabledRole };

    explicit KeyboardsLayoutModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool isLoading() const { return m_loading; }
    int checkedCount() const { return m_selectedNames.size(); }

    // Takes the catalogue the language backend has read (and the enabled layouts, shown checked
    // and fixed).
    Q_INVOKABLE void updateData();
    Q_INVOKABLE void addRowChecked(int row);
    Q_INVOKABLE void removeRowChecked(int row);
    Q_INVOKABLE void clearRowChecked();
    // Appends the checked layouts to the enabled ones and applies the list.
    Q_INVOKABLE void apply();

    // The catalogue itself (tests, and the start before the read is done).
    void setCatalogue(const QStringList& internalNames, const QStringList& displayNames);

signals:
    void loadingChanged();
    void checkedCountChanged();
    void applied();

private:
    void setChecked(int row, bool checked);

    QStringList m_displayNames;
    QStringList m_internalNames;
    QSet<QString> m_selectedNames;
    QStringList m_enabled;
    bool m_loading = true;
};
