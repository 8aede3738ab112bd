#include "Connection.h"

#include <QJsonValue>

QString Connection::get(const QString& key) const
{
    return m_data.value(key).toString();
}

int Connection::getInt(const QString& key) const
{
    return m_data.value(key).toInt();
}

bool Connection::getBool(const QString& key) const
{
    return m_data.value(key).toBool();
}

void Connection::add(const QString& key, const QString& value)
{
    m_data.insert(key, value);
}

void Connection::setType(ConnectionType type)
{
    m_type = type;
    m_data.insert(QStringLiteral("type"), int(type));
}

ConnectionType Connection::getType() const
{
    return ConnectionType(getInt(QStringLiteral("type")));
}

Connection Connection::withFields(ConnectionType type, std::initializer_list<std::pair<const char*, QString>> fields)
{
    Connection record;
    record.setType(type);
    for (const auto& field : fields)
        record.add(QLatin1String(field.first), field.second);
    return record;
}
