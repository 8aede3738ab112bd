#include "CertificatesModel.h"

#include "CertificateExpiry.h"
#include "CertificatesStorage.h"

namespace {
const char* const kHeaders[] = {QT_TRANSLATE_NOOP("CertificatesModel", "Name"), QT_TRANSLATE_NOOP("CertificatesModel", "Not before"),
                                QT_TRANSLATE_NOOP("CertificatesModel", "Not after"), QT_TRANSLATE_NOOP("CertificatesModel", "Manage")};
constexpr int kColumns = 4;
} // namespace

CertificatesModel::CertificatesModel(QObject* parent) : QAbstractTableModel(parent) {}

int CertificatesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_model.size();
}

int CertificatesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant CertificatesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const CertificateData& row = m_model.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TableDataRole:
        switch (index.column()) {
        case 0:
            return row.name;
        case 1:
            return row.notBefore;
        case 2:
            return row.notAfter;
        default:
            return row.fileName;
        }
    case NameRole:
        return row.name;
    case NotBeforeRole:
        return row.notBefore;
    case NotAfterRole:
        return row.notAfter;
    case DeleteRole:
        return row.fileName;
    case ExpiryStateRole:
        return CertificateExpiry::classify(row.notAfter, QDateTime::currentDateTimeUtc());
    case ExpiryTextRole: {
        const QDateTime notAfter = CertificateExpiry::parseOpensslDate(row.notAfter);
        return CertificateExpiry::describe(CertificateExpiry::classify(notAfter, QDateTime::currentDateTimeUtc()), notAfter);
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> CertificatesModel::roleNames() const
{
    return {{TableDataRole, "display"}, {NameRole, "name"}, {NotBeforeRole, "notBefore"}, {NotAfterRole, "notAfter"}, {DeleteRole, "fileName"},
            {ExpiryStateRole, "expiryState"}, {ExpiryTextRole, "expiryText"}};
}

QVariant CertificatesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= kColumns || (role != Qt::DisplayRole && role != TableDataRole))
        return {};
    return tr(kHeaders[section]);
}

void CertificatesModel::update(bool showAll)
{
    setCertificates(CertificatesStorage::listCertificates(showAll));
}

void CertificatesModel::removeCertificate(const QString& fileName, bool showAll)
{
    CertificatesStorage::removeCertificate(fileName);
    update(showAll);
}

void CertificatesModel::setCertificates(const QList<CertificateData>& certificates)
{
    beginResetModel();
    m_model = certificates;
    endResetModel();
}
