#pragma once

#include <QString>
#include <QStringList>

namespace TimeZoneTable {

// The zones offered on the date and time screen, from UTC-12 to UTC+14, as the user reads them.
const QStringList& labels();

// The zone id of a label: the text after the first ")" up to the next "," (or the end), trimmed.
// "(UTC-05:00) America/New_York, Toronto" gives "America/New_York"; empty when there is no ")".
QString zoneOf(const QString& label);

// The zone in timedatectl's status: the word after "Time zone:". Empty when there is none.
QString parseTimedatectlZone(const QByteArray& status);

} // namespace TimeZoneTable
