#include "ConnectorLaunchers.h"

#include "BrowserConnector.h"
#include "CitrixConnector.h"
#include "PuttyConnector.h"
#include "RDPConnector.h"
#include "TeamsConnector.h"
#include "VMWareConnector.h"
#include "VNCConnector.h"

QHash<int, ConnectionManager::Launcher> ConnectorLaunchers::table()
{
    return {
        {VMWare, [](const Connection& connection) {
             VMWareConnector::connect(connection);
             return true;
         }},
        {VNC, [](const Connection& connection) { return VNCConnector::getInstance()->initConnection(connection); }},
        {Citrix, [](const Connection& connection) { return CitrixConnector::getInstance()->connect(connection); }},
        {RDP, [](const Connection& connection) {
             return RDPConnector::getInstance()->initConnection(RDPConnector::createConnectionString(connection));
         }},
        {Browser, [](const Connection& connection) {
             BrowserConnector::connect(connection);
             return true;
         }},
        {Teams, [](const Connection&) {
             TeamsConnector::connect();
             return true;
         }},
        {Putty, [](const Connection& connection) { return PuttyConnector::getInstance()->initConnection(connection); }},
    };
}

void ConnectorLaunchers::install()
{
    ConnectionManager::setLaunchers(table());
}
