// libFuzzer target: the agent's request handler, the connection wire mapping and the settings push.
// The first byte picks the entry point; the rest is the frame text.
#include "APIManager.h"
#include "AssistanceTunnels.h"
#include "ConnectionWire.h"
#include "JsonText.h"
#include "SettingsPush.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace {

QString g_sent;

void setUp()
{
    static int argc = 1;
    static char name[] = "fuzz_agent";
    static char* argv[] = {name, nullptr};
    static QCoreApplication app(argc, argv);
    static QTemporaryDir root;
    // The simulated terminal answers every command; files stay in the temporary root.
    qputenv("NORBIX_SIMULATE", "1");
    qputenv("NORBIX_ROOT", root.path().toUtf8());
    qputenv("HOME", root.path().toUtf8());
    QDir().mkpath(root.path() + QStringLiteral("/data/norbix"));
    QSettings settings(root.path() + QStringLiteral("/data/norbix/api.ini"), QSettings::IniFormat);
    settings.setValue(QStringLiteral("Enabled"), true);
    settings.setValue(QStringLiteral("URL"), QStringLiteral("wss://mgmt.example.org:8443/api/v1/ws"));
    settings.sync();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    APIManager::getInstance()->setTransport([](const QString& text) { g_sent = text; });
}

void checkWire(const QByteArray& text)
{
    const QJsonDocument document = JsonText::parse(text);
    const QList<Connection> list = ConnectionWire::listFromWire(document.array());
    for (const Connection& connection : list) {
        const int type = connection.getTypeValue();
        if (type < 0 || type > 6)
            std::abort();
    }
    // Records made from the wire go back to it unchanged.
    const QJsonArray back = ConnectionWire::listToWire(list);
    if (ConnectionWire::listFromWire(back) != list)
        std::abort();
    ConnectionWire::toWire(document.object());
}

// A settings document applied on the simulated terminal: whatever it holds, every key it skips is
// one of its own members, named "Group" or "Group/Key".
void checkPush(const QByteArray& text)
{
    const QJsonObject document = JsonText::parse(text).object();
    const QStringList skipped = SettingsPush(SettingsPush::Targets()).apply(document);
    // Every skipped name is a member or a member's key as iteration gives them (Qt drops a byte
    // order mark at the start of a key there, while lookups by that name then fail).
    QSet<QString> names;
    for (auto group = document.constBegin(); group != document.constEnd(); ++group) {
        names << group.key();
        const QJsonObject keys = group.value().toObject();
        for (auto key = keys.constBegin(); key != keys.constEnd(); ++key)
            names << group.key() + QLatin1Char('/') + key.key();
    }
    for (const QString& name : skipped) {
        if (!names.contains(name))
            std::abort();
    }
    SettingsPush::decodeImage(QString::fromUtf8(text));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool ready = (setUp(), true);
    (void)ready;
    if (size == 0)
        return 0;
    const QByteArray text(reinterpret_cast<const char*>(data) + 1, int(size - 1));
    switch (data[0] % 4) {
    case 0:
        g_sent.clear();
        APIManager::getInstance()->handleRequest(QString::fromUtf8(text));
        // Every answer is one JSON object.
        if (!g_sent.isEmpty() && !JsonText::parse(g_sent.toUtf8()).isObject())
            std::abort();
        break;
    case 1:
        checkWire(text);
        break;
    case 3:
        checkPush(text);
        break;
    default:
        APIManager::tunnelHost(QString::fromUtf8(text));
        APIManager::parseId(text);
        break;
    }
    // What the shell's event loop would do between two frames: queued calls, finished processes,
    // objects deleted later. Without it their memory piles up and looks like a leak. A simulated
    // assistance tunnel ends on a timer this loop never runs: end it as the user would.
    AssistanceTunnels::getInstance()->endAssistance();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
