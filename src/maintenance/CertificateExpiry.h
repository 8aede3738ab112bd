#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include "CertificatesModel.h"

// When a certificate stops being valid, as the certificates screen and its settings entry show it.
class CertificateExpiry : public QObject {
    Q_OBJECT
    // Installed certificates that expired or expire within kSoonDays (the settings entry's count).
    Q_PROPERTY(int attentionCount READ attentionCount NOTIFY attentionCountChanged)
public:
    enum State { Unknown = 0, Valid, ExpiresSoon, Expired };
    Q_ENUM(State)
    static constexpr int kSoonDays = 30;

    explicit CertificateExpiry(QObject* parent = nullptr) : QObject(parent) {}

    // openssl's "Feb  1 00:00:00 2020 GMT" (UTC); invalid when the text is not such a date.
    static QDateTime parseOpensslDate(const QString& text);
    // Expired once `notAfter` has passed; expiring soon while at most kSoonDays calendar days
    // (UTC) remain, the last day included.
    static State classify(const QDateTime& notAfter, const QDateTime& now);
    static State classify(const QString& opensslNotAfter, const QDateTime& now)
    {
        return classify(parseOpensslDate(opensslNotAfter), now);
    }
    // "Expired on ...", "Expires on ..." for the rows that need attention, empty for the others.
    static QString describe(State state, const QDateTime& notAfter);
    // Rows with a file only: system-bundle authorities are not the user's to renew.
    static int countNeedingAttention(const QList<CertificatesModel::CertificateData>& rows, const QDateTime& now);

    int attentionCount() const { return m_count; }
    // Reads the installed certificates again (the settings list calls it when shown).
    Q_INVOKABLE void refresh();

signals:
    void attentionCountChanged();

private:
    int m_count = 0;
};
