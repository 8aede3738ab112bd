#pragma once

#include "Connection.h"

#include <QObject>
#include <QStringList>

// Opens a site in Firefox, or in Chromium where Firefox is not installed.
class BrowserConnector : public QObject {
    Q_OBJECT
public:
    static void connect(const Connection& connection);
    // "http://" in front of anything that does not start with "http" (case-sensitive).
    static QString siteAddress(const QString& address);
};
