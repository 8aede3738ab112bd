#pragma once

#include <QHostAddress>
#include <QTcpServer>

// A port on 127.0.0.1 that nothing listens on at the moment of asking: for test servers, and for
// addresses that must be refused.
inline quint16 freeLocalPort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}
