#include "QmlRegistration.h"

#include "LanguageBackend.h"
#include "LogManager.h"
#include "PasswordManager.h"

#include <QtQml>

void registerQmlTypes()
{
    qmlRegisterType<LanguageBackend>("com.LanguageBackend", 1, 0, "LanguageBackend");
    qmlRegisterType<LogManager>("com.LogManager", 1, 0, "LogManager");
    qmlRegisterType<PasswordManager>("com.PasswordManager", 1, 0, "PasswordManager");
}

void ContextObjects::publish(QQmlContext* context)
{
    context->setContextProperty(QStringLiteral("hardwareUtils"), &hardwareUtils);
    context->setContextProperty(QStringLiteral("cryptoUtils"), &cryptoUtils);
    qInfo() << "Models ready";
}
