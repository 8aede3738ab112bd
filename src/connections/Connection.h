#pragma once

#include <QJsonObject>
#include <QMetaType>
#include <QString>

#include <initializer_list>
#include <utility>

enum ConnectionType { VMWare = 0, VNC = 1, Citrix = 2, RDP = 3, Browser = 4, Teams = 5, Putty = 6 };

// One stored connection: a JSON object with an integer "type" and the kind's own keys.
class Connection {
    Q_GADGET
    Q_PROPERTY(QString name READ getConnectionName)
    Q_PROPERTY(QString address READ getAddress)
    Q_PROPERTY(int type READ getTypeValue)
    Q_PROPERTY(bool autoConnect READ autoConnect)
public:
    Connection() = default;
    explicit Connection(const QJsonObject& data) : m_data(data) {}
    // A record of that kind with these text fields.
    static Connection withFields(ConnectionType type, std::initializer_list<std::pair<const char*, QString>> fields);

    Q_INVOKABLE QString get(const QString& key) const;
    Q_INVOKABLE int getInt(const QString& key) const;
    Q_INVOKABLE bool getBool(const QString& key) const;
    void add(const QString& key, const QString& value);

    void setType(ConnectionType type);
    ConnectionType getType() const;
    int getTypeValue() const { return getInt(QStringLiteral("type")); }

    void setData(const QJsonObject& data) { m_data = data; }
    QJsonObject getData() const { return m_data; }

    QString getConnectionName() const { return get(QStringLiteral("name")); }
    QString getAddress() const { return get(QStringLiteral("address")); }
    bool autoConnect() const { return getBool(QStringLiteral("auto_connect")); }

    bool operator==(const Connection& other) const { return m_data == other.m_data; }

private:
    QJsonObject m_data;
    ConnectionType m_type = VMWare; // "type" inside m_data is what counts
};

Q_DECLARE_METATYPE(Connection)
