#include "TimeZoneTable.h"

#include <QByteArray>

const QStringList& TimeZoneTable::labels()
{
    // Kept exactly as users have always seen them, odd spacing and Etc/GMT signs included.
    static const QStringList table{
        QStringLiteral("(UTC-12:00) Etc/GMT-12"),
        QStringLiteral("(UTC-11:00) Etc/GMT-11"),
        QStringLiteral("(UTC-10:00) Pacific/Honolulu, Hawaii"),
        QStringLiteral("(UTC-09:00) America/Anchorage, Alaska"),
        QStringLiteral("(UTC-08:00) America/Los_Angeles,  California"),
        QStringLiteral("(UTC-08:00) Etc/GMT-8, Pacific Time (US & Canada)"),
        QStringLiteral("(UTC-07:00) America/Phoenix, Arizona"),
        QStringLiteral("(UTC-07:00) America/Chihuahua, La Paz, Mazatlan"),
        QStringLiteral("(UTC-07:00) America/Denver, Mountain Time (US & Canada)"),
        QStringLiteral("(UTC-06:00) Etc/GMT-6"),
        QStringLiteral("(UTC-06:00) America/Mexico_City, Guadalajara, Monterrey"),
        QStringLiteral("(UTC-06:00) America/Regina, Saskatchewan"),
        QStringLiteral("(UTC-05:00) America/Bogota, Lima, Quito, Rio Branco"),
        QStringLiteral("(UTC-05:00) America/New_York, Toronto, Eastern Time (US & Canada)"),
        QStringLiteral("(UTC-05:00) America/Indiana/Indianapolis"),
        QStringLiteral("(UTC-04:30) America/Caracas"),
        QStringLiteral("(UTC-04:00) America/Asuncion"),
        QStringLiteral("(UTC-04:00) Atlantic/Bermuda, Atlantic Time (Canada)"),
        QStringLiteral("(UTC-04:00) America/Cuiaba"),
        QStringLiteral("(UTC-04:00) America/Manaus, La Paz, Manaus, San Juan"),
        QStringLiteral("(UTC-04:00) America/Santiago"),
        QStringLiteral("(UTC-03:30) America/Newfoundland"),
        QStringLiteral("(UTC-03:00) America/Sao_Paulo, Brasilia"),
        QStringLiteral("(UTC-03:00) America/Argentina/Buenos_Aires"),
        QStringLiteral("(UTC-03:00) America/Cayenne, Fortaleza"),
        QStringLiteral("(UTC-03:00) America/Godthab, Greenland"),
        QStringLiteral("(UTC-03:00) America/Montevideo"),
        QStringLiteral("(UTC-03:00) America/El_Salvador"),
        QStringLiteral("(UTC-02:00) Etc/GMT-2"),
        QStringLiteral("(UTC-01:00) Atlantic/Azores"),
        QStringLiteral("(UTC-01:00) Atlantic/Cape_Verde"),
        QStringLiteral("(UTC) Africa/Casablanca"),
        QStringLiteral("(UTC) Europe/London, Coordinated Universal Time"),
        QStringLiteral("(UTC) Europe/Dublin, Edinburgh, Lisbon, London"),
        QStringLiteral("(UTC) Africa/Monrovia, Reykjavik"),
        QStringLiteral("(UTC+01:00) Europe/Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna"),
        QStringLiteral("(UTC+01:00) Europe/Belgrade, Bratislava, Budapest, Ljubljana, Prague"),
        QStringLiteral("(UTC+01:00) Europe/Brussels, Copenhagen, Madrid, Paris"),
        QStringLiteral("(UTC+01:00) Europe/Warsaw, Sarajevo, Skopje,  Zagreb"),
        QStringLiteral("(UTC+01:00) Africa/Lagos, West Central Africa"),
        QStringLiteral("(UTC+01:00) Africa/Windhoek"),
        QStringLiteral("(UTC+02:00) Asia/Amman"),
        QStringLiteral("(UTC+02:00) Europe/Athens, Bucharest"),
        QStringLiteral("(UTC+02:00) Asia/Beirut"),
        QStringLiteral("(UTC+02:00) Africa/Cairo"),
        QStringLiteral("(UTC+02:00) Asia/Damascus"),
        QStringLiteral("(UTC+02:00) Europe/Chisinau, E. Europe"),
        QStringLiteral("(UTC+02:00) Africa/Johannesburg, Harare, Pretoria"),
        QStringLiteral("(UTC+02:00) Europe/Helsinki, Kyiv, Riga, Sofia, Tallinn, Vilnius"),
        QStringLiteral("(UTC+02:00) Europe/Istanbul"),
        QStringLiteral("(UTC+02:00) Asia/Jerusalem"),
        QStringLiteral("(UTC+02:00) Europe/Kaliningrad, (RTZ 1)"),
        QStringLiteral("(UTC+02:00) Africa/Tripoli"),
        QStringLiteral("(UTC+03:00) Asia/Baghdad"),
        QStringLiteral("(UTC+03:00) Asia/Riyadh, Kuwait"),
        QStringLiteral("(UTC+03:00) Europe/Minsk"),
        QStringLiteral("(UTC+03:00) Europe/Moscow, St. Petersburg, Volgograd (RTZ 2)"),
        QStringLiteral("(UTC+03:00) Africa/Nairobi"),
        QStringLiteral("(UTC+03:30) Asia/Tehran"),
        QStringLiteral("(UTC+04:00) Asia/Dubai, Abu Dhabi, Muscat"),
        QStringLiteral("(UTC+04:00) Asia/Baku"),
        QStringLiteral("(UTC+04:00) Europe/Samara, Izhevsk (RTZ 3)"),
        QStringLiteral("(UTC+04:00) Indian/Mauritius, Port Louis"),
        QStringLiteral("(UTC+04:00) Asia/Tbilisi"),
        QStringLiteral("(UTC+04:00) Asia/Yerevan"),
        QStringLiteral("(UTC+04:30) Asia/Kabul"),
        QStringLiteral("(UTC+05:00) Asia/Ashgabat, Tashkent"),
        QStringLiteral("(UTC+05:00) Asia/Yekaterinburg, (RTZ 4)"),
        QStringLiteral("(UTC+05:00) Asia/Karachi, Islamabad"),
        QStringLiteral("(UTC+05:30) Asia/Kolkata, Chennai, Mumbai, New Delhi"),
        QStringLiteral("(UTC+05:30) Asia/Colombo, Sri Jayawardenepura"),
        QStringLiteral("(UTC+05:45) Asia/Kathmandu"),
        QStringLiteral("(UTC+06:00) Asia/Almaty, Astana"),
        QStringLiteral("(UTC+06:00) Asia/Dhaka"),
        QStringLiteral("(UTC+06:00) Asia/Novosibirsk, (RTZ 5)"),
        QStringLiteral("(UTC+06:30) Asia/Yangon, (Rangoon)"),
        QStringLiteral("(UTC+07:00) Asia/Bangkok, Hanoi, Jakarta"),
        QStringLiteral("(UTC+07:00) Asia/Krasnoyarsk, (RTZ 6)"),
        QStringLiteral("(UTC+08:00) Asia/Hong_Kong, Beijing, Chongqing, Urumqi"),
        QStringLiteral("(UTC+08:00) Asia/Irkutsk, (RTZ 7)"),
        QStringLiteral("(UTC+08:00) Asia/Singapore, Kuala Lumpur"),
        QStringLiteral("(UTC+08:00) Australia/Perth"),
        QStringLiteral("(UTC+08:00) Asia/Taipei"),
        QStringLiteral("(UTC+08:00) Asia/Ulaanbaatar"),
        QStringLiteral("(UTC+09:00) Asia/Tokyo, Osaka, Sapporo"),
        QStringLiteral("(UTC+09:00) Asia/Seoul"),
        QStringLiteral("(UTC+09:00) Asia/Yakutsk, (RTZ 8)"),
        QStringLiteral("(UTC+09:30) Australia/Adelaide"),
        QStringLiteral("(UTC+09:30) Australia/Darwin"),
        QStringLiteral("(UTC+10:00) Australia/Brisbane"),
        QStringLiteral("(UTC+10:00) Australia/Sydney, Canberra, Melbourne"),
        QStringLiteral("(UTC+10:00) Pacific/Guam, Port Moresby"),
        QStringLiteral("(UTC+10:00) Australia/Hobart"),
        QStringLiteral("(UTC+10:00) Asia/Magadan, Vladivostok"),
        QStringLiteral("(UTC+11:00) Pacific/Norfolk"),
        QStringLiteral("(UTC+12:00) Asia/Anadyr, Petropavlovsk-Kamchatsky (RTZ 11)"),
        QStringLiteral("(UTC+12:00) Pacific/Auckland, Wellington"),
        QStringLiteral("(UTC+12:00) Etc/GMT+12"),
        QStringLiteral("(UTC+12:00) Pacific/Fiji"),
        QStringLiteral("(UTC+13:00) Pacific/Tongatapu, Nuku'alofa"),
        QStringLiteral("(UTC+13:00) Pacific/Apia, Samoa"),
        QStringLiteral("(UTC+14:00) Pacific/Kiritimati"),
    };
    return table;
}
QString TimeZoneTable::zoneOf(const QString& label)
{
    const int close = label.indexOf(QLatin1Char(')'));
    if (close < 0)
        return {};
    const int comma = label.indexOf(QLatin1Char(','), close + 1);
    return label.mid(close + 1, comma < 0 ? -1 : comma - close - 1).trimmed();
}

QString TimeZoneTable::parseTimedatectlZone(const QByteArray& status)
{
    for (const QByteArray& rawLine : status.split('\n')) {
        const QString line = QString::fromUtf8(rawLine);
        const int at = line.indexOf(QLatin1String("Time zone:"));
        if (at < 0)
            continue;
        const QStringList words = line.mid(at + 10).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        return words.value(0);
    }
    return {};
}
