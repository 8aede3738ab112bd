#pragma once

#include "Connection.h"

#include <QObject>

// SSH sessions in PuTTY.
class PuttyConnector : public QObject {
    Q_OBJECT
public:
    static PuttyConnector* getInstance();
    // Starts PuTTY on the record's host, or PuTTY's own dialog when host or user is missing; true.
    bool initConnection(const Connection& connection);

private:
    PuttyConnector() = default;
    static PuttyConnector* m_connector;
};
