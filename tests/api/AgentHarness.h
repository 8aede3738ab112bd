#pragma once

#include "APIManager.h"
#include "TestSandbox.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QStringList>

// The agent with its frames caught instead of sent, over a sandboxed api.ini.
struct AgentHarness {
    QStringList frames;

    APIManager* api()
    {
        APIManager* agent = APIManager::getInstance();
        agent->setTransport([this](const QString& text) { frames << text; });
        return agent;
    }

    static void setManaged(const TestSandbox& sandbox, bool managed, const QString& url = QString())
    {
        QSettings settings(sandbox.dataFile("api.ini"), QSettings::IniFormat);
        settings.setValue("Enabled", managed);
        settings.setValue("URL", url.isEmpty() ? QStringLiteral("wss://mgmt.example.org/api/v1/ws") : url);
    }

    QJsonObject frame(int index) const
    {
        return index < frames.size() ? QJsonDocument::fromJson(frames.at(index).toUtf8()).object() : QJsonObject();
    }

    static QString text(const QJsonObject& object)
    {
        return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }
};
