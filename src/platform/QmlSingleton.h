#pragma once

#include <QQmlEngine>

// The QML face of a process-wide singleton: the engine gets the object getInstance() returns and
// must never delete it.
template <typename T>
QObject* qmlSingleton()
{
    T* instance = T::getInstance();
    QQmlEngine::setObjectOwnership(instance, QQmlEngine::CppOwnership);
    return instance;
}
