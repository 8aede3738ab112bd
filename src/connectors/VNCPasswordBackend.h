#pragma once

#include "Connection.h"

#include <QObject>
#include <QString>

// The VNC password prompt: a VNC record stored without a password asks for it when started
// (auto-connect or tile) and starts with it. What is typed is not stored.
class VNCPasswordBackend : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // True for a VNC record without a stored password: the root screen opens this prompt for it
    // instead of the Remote Desktop sign-in.
    Q_INVOKABLE static bool needsPrompt(int index);
    static bool needsPrompt(const Connection& record);
    // The record as it is started: the typed password in place of the missing one.
    static Connection withPassword(Connection record, const QString& password);
    // Starts record `index` with `password`; false (and nothing started) for an empty password or
    // a record that is not VNC.
    Q_INVOKABLE bool connect(int index, const QString& password);
};
