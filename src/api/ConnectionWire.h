#pragma once

#include "Connection.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>

// Connection records as the management server sends and expects them: CamelCase keys and the
// kind as a name ("RDP") instead of the record's integer. Keys outside the table do not travel.
namespace ConnectionWire {

// The kind's name on the wire, empty for a value outside ConnectionType.
QString typeName(int type);
// The ConnectionType of a wire name, -1 when the name is unknown (case-sensitive).
int typeValue(const QString& name);

// A stored record in wire form. Missing keys stay missing; values keep their JSON type.
QJsonObject toWire(const QJsonObject& record);
// A wire object as a record. Without a known "Type" there is no record to start: `ok` is false.
QJsonObject fromWire(const QJsonObject& wire, bool* ok = nullptr);

QJsonArray listToWire(const QList<Connection>& connections);
// Elements that are not objects or carry no known kind are dropped.
QList<Connection> listFromWire(const QJsonArray& array);

} // namespace ConnectionWire
