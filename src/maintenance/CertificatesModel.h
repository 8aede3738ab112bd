#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>

// The certificates screen's table: the locally installed authorities, optionally followed by every
// certificate of the system bundle (those have no file and cannot be removed).
class CertificatesModel : public QAbstractTableModel {
    Q_OBJECT
public:
    struct CertificateData {
        QString name;
        QString notBefore;
        QString notAfter;
        QString fileName; // under /usr/local/share/ca-certificates/, empty for the system bundle
        bool operator==(const CertificateData& other) const
        {
            return name == other.name && notBefore == other.notBefore && notAfter == other.notAfter && fileName == other.fileName;
        }
    };

    enum Roles { TableDataRole = Qt::UserRole + 1, NameRole, NotBeforeRole, NotAfterRole, DeleteRole,
                 ExpiryStateRole, ExpiryTextRole };

    explicit CertificatesModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    Q_INVOKABLE QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    Q_INVOKABLE void update(bool showAll);
    Q_INVOKABLE void removeCertificate(const QString& fileName, bool showAll);

    // Replaces the rows (update() reads them from the terminal).
    void setCertificates(const QList<CertificateData>& certificates);

private:
    QList<CertificateData> m_model;
};
