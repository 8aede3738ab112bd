#include "CertificateExpiry.h"

#include "CertificatesStorage.h"

#include <QLocale>
#include <QRegularExpression>

QDateTime CertificateExpiry::parseOpensslDate(const QString& text)
{
    // The month is always English and the day padded with a blank: "Feb  1 00:00:00 2020 GMT".
    static const QRegularExpression form(
            QStringLiteral("^\\s*([A-Z][a-z]{2})\\s+(\\d{1,2})\\s+(\\d{2}):(\\d{2}):(\\d{2})\\s+(\\d{4})\\s+GMT\\s*$"));
    const QRegularExpressionMatch m = form.match(text);
    if (!m.hasMatch())
        return {};
    static const QStringList months{QStringLiteral("Jan"), QStringLiteral("Feb"), QStringLiteral("Mar"),
                                    QStringLiteral("Apr"), QStringLiteral("May"), QStringLiteral("Jun"),
                                    QStringLiteral("Jul"), QStringLiteral("Aug"), QStringLiteral("Sep"),
                                    QStringLiteral("Oct"), QStringLiteral("Nov"), QStringLiteral("Dec")};
    const int month = months.indexOf(m.captured(1)) + 1;
    const QDate date(m.captured(6).toInt(), month, m.captured(2).toInt());
    const QTime time(m.captured(3).toInt(), m.captured(4).toInt(), m.captured(5).toInt());
    if (month == 0 || !date.isValid() || !time.isValid())
        return {};
    return QDateTime(date, time, Qt::UTC);
}

CertificateExpiry::State CertificateExpiry::classify(const QDateTime& notAfter, const QDateTime& now)
{
    if (!notAfter.isValid())
        return Unknown;
    if (notAfter <= now)
        return Expired;
    const qint64 days = now.toUTC().date().daysTo(notAfter.toUTC().date());
    return days <= kSoonDays ? ExpiresSoon : Valid;
}

QString CertificateExpiry::describe(State state, const QDateTime& notAfter)
{
    // Short enough for the table column: "1 Feb 2020" in the user's language.
    const QString date = QLocale().toString(notAfter.toUTC().date(), QStringLiteral("d MMM yyyy"));
    switch (state) {
    case Expired:
        return tr("Expired on %1").arg(date);
    case ExpiresSoon:
        return tr("Expires on %1").arg(date);
    default:
        return QString();
    }
}

int CertificateExpiry::countNeedingAttention(const QList<CertificatesModel::CertificateData>& rows, const QDateTime& now)
{
    int count = 0;
    for (const CertificatesModel::CertificateData& row : rows) {
        if (row.fileName.isEmpty())
            continue;
        const State state = classify(row.notAfter, now);
        if (state == Expired || state == ExpiresSoon)
            ++count;
    }
    return count;
}

void CertificateExpiry::refresh()
{
    const int count = countNeedingAttention(CertificatesStorage::listCertificates(false), QDateTime::currentDateTimeUtc());
    if (count == m_count)
        return;
    m_count = count;
    emit attentionCountChanged();
}
