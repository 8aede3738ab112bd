// Writes the shell's files through its own backends, over and over, for the power-cut harness
// (tests/powercut/powercut.py), and checks what a kill left behind.
//
//   powercut_driver write FIRST_GENERATION   writes generation after generation until killed; prints
//                                            "BEGIN <subject> <g>" before and "DONE <subject> <g>"
//                                            after each write (a subject is one operation)
//   powercut_driver check                    prints "FILE <subject> <file> GEN <g>", "... ABSENT" or
//                                            "... CORRUPT <reason>" per file, then "STRAY <path>" for
//                                            every leftover temporary file
//
// Every generation g gives each file a content that names g (display.ini's screen timers each a
// part of g), so a check can tell the previous version from the next one and both from a mixture. Runs under NORBIX_SIMULATE=1 and NORBIX_ROOT.

#include "APIManager.h"
#include "Connection.h"
#include "ConnectionManager.h"
#include "MouseSettingsBackend.h"
#include "NetworkManager.h"
#include "PasswordManager.h"
#include "SettingsManager.h"
#include "SettingsPush.h"
#include "SystemPaths.h"
#include "TimeBackend.h"
#include "WallpapersManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSettings>

#include <cstdio>
#include <functional>
#include <optional>

namespace {

// What a check found: a generation, or why the file is not a whole version of it.
struct Found {
    std::optional<qint64> generation;
    QString problem; // empty and no generation: the file does not exist
};

Found corrupt(const QString& problem) { return {std::nullopt, problem}; }

// One write operation and the files it changes.
struct Subject {
    const char* name;
    std::function<void(qint64)> write;
    QList<std::pair<const char*, std::function<Found()>>> files;
};

QString data(const char* name) { return SystemPaths::dataFile(QLatin1String(name)); }

QByteArray readAll(const QString& path, bool* exists)
{
    QFile file(path);
    *exists = file.open(QIODevice::ReadOnly);
    return *exists ? file.readAll() : QByteArray();
}

// "<prefix><g>" → g.
std::optional<qint64> generationOf(const QString& text, const QString& prefix)
{
    const QRegularExpression pattern(QStringLiteral("^") + QRegularExpression::escape(prefix) + QStringLiteral("(\\d+)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1).toLongLong();
}

int recordCount(qint64 generation) { return 1 + int(generation % 4); }

// connections.json: 1-4 RDP records named "pc-<g>-<i>", each with a password (stored enciphered).
void writeConnections(qint64 generation)
{
    QList<Connection> list;
    for (int i = 0; i < recordCount(generation); ++i)
        list << Connection::withFields(RDP, {{"name", QStringLiteral("pc-%1-%2").arg(generation).arg(i)},
                                             {"address", QStringLiteral("10.0.%1.%2").arg(generation % 250).arg(i)},
                                             {"login", QStringLiteral("user")},
                                             {"password", QStringLiteral("pw-%1").arg(generation)}});
    ConnectionManager::getInstance()->setConnections(list);
}

Found checkCatalogue(const QString& path)
{
    bool exists = false;
    const QByteArray text = readAll(path, &exists);
    if (!exists)
        return {};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return corrupt(QStringLiteral("not a JSON array (%1 bytes)").arg(text.size()));
    const QJsonArray records = document.array();
    std::optional<qint64> generation;
    for (int i = 0; i < records.size(); ++i) {
        const QString name = records.at(i).toObject().value(QLatin1String("name")).toString();
        const QStringList parts = name.split(QLatin1Char('-'));
        if (parts.size() != 3 || parts.at(0) != QLatin1String("pc") || parts.at(2).toInt() != i)
            return corrupt(QStringLiteral("record %1 is named \"%2\"").arg(i).arg(name));
        if (generation && *generation != parts.at(1).toLongLong())
            return corrupt(QStringLiteral("records of two generations"));
        generation = parts.at(1).toLongLong();
    }
    if (!generation)
        return corrupt(QStringLiteral("no records"));
    if (records.size() != recordCount(*generation))
        return corrupt(QStringLiteral("%1 records of generation %2").arg(records.size()).arg(*generation));
    return {generation, {}};
}

// An INI file holding `key` = prefix + g, whose other keys (seeded once) must survive every write.
Found checkIni(const QString& path, const QString& key, const QString& prefix, const QStringList& kept)
{
    if (!QFile::exists(path))
        return {};
    QSettings settings(path, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError)
        return corrupt(QStringLiteral("unreadable INI"));
    for (const QString& other : kept)
        if (!settings.contains(other))
            return corrupt(QStringLiteral("lost the key ") + other);
    if (!settings.contains(key))
        return {}; // not written yet: the seeded file holds only the kept keys
    const std::optional<qint64> generation = generationOf(settings.value(key).toString(), prefix);
    if (!generation)
        return corrupt(QStringLiteral("%1 is \"%2\"").arg(key, settings.value(key).toString()));
    return {generation, {}};
}

Found checkText(const QString& path, const std::function<std::optional<qint64>(const QByteArray&)>& parse)
{
    bool exists = false;
    const QByteArray text = readAll(path, &exists);
    if (!exists)
        return {};
    const std::optional<qint64> generation = parse(text);
    if (!generation)
        return corrupt(QStringLiteral("unexpected content (%1 bytes)").arg(text.size()));
    return {generation, {}};
}

std::optional<qint64> hostsGeneration(const QByteArray& text)
{
    const QList<QByteArray> lines = text.split('\n');
    if (lines.size() != 8 || !lines.last().isEmpty())
        return std::nullopt;
    const std::optional<qint64> generation = generationOf(QString::fromUtf8(lines.at(2)), QStringLiteral("127.0.1.1 pc"));
    if (generation && text != APIManager::hostsFileContent(QStringLiteral("pc%1").arg(*generation)))
        return std::nullopt;
    return generation;
}

// Exported sets: every file in every set folder must be a whole copy of some version.
Found checkExports()
{
    const QString drive = SystemPaths::resolve(QStringLiteral("/media/POWERCUT"));
    qint64 sets = 0;
    for (const QFileInfo& set : QDir(drive).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        ++sets;
        const Found catalogue = checkCatalogue(set.filePath() + QStringLiteral("/connections.json"));
        if (!catalogue.problem.isEmpty())
            return corrupt(set.fileName() + QStringLiteral("/connections.json: ") + catalogue.problem);
        const QString password = set.filePath() + QStringLiteral("/admin_password");
        if (QFile::exists(password) && QFileInfo(password).size() == 0)
            return corrupt(set.fileName() + QStringLiteral("/admin_password is empty"));
    }
    return {sets, {}};
}

// The settings document of generation g, as tests/powercut/powercut.py's server pushes it: the
// 802.1X certificate and key and the server's wallpaper name g.
QJsonObject pushDocument(qint64 generation)
{
    const QByteArray image = QByteArray("\x89PNG\r\n\x1a\n") + "gen-" + QByteArray::number(generation);
    return {{QStringLiteral("8021x"), QJsonObject{{QStringLiteral("EAP"), QStringLiteral("tls")},
                                                  {QStringLiteral("CACert"), QStringLiteral("ca-cert-%1\n").arg(generation)},
                                                  {QStringLiteral("Key"), QStringLiteral("key-%1\n").arg(generation)}}},
            {QStringLiteral("Background"), QString::fromLatin1(image.toBase64())}};
}

QJsonObject pushTimerDocument(const QString& key, int index)
{
    return {{QStringLiteral("Screens"), QJsonObject{{key, index}}}};
}

// A file that holds exactly prefix + g + "\n".
Found checkLine(const char* name, const QString& prefix)
{
    return checkText(data(name), [prefix](const QByteArray& text) -> std::optional<qint64> {
        if (!text.endsWith('\n'))
            return std::nullopt;
        return generationOf(QString::fromUtf8(text.chopped(1)), prefix);
    });
}

Found checkWallpaper()
{
    return checkText(data("wallpaper/serverWallpaper.jpg"), [](const QByteArray& text) -> std::optional<qint64> {
        const QByteArray head("\x89PNG\r\n\x1a\n");
        if (!text.startsWith(head))
            return std::nullopt;
        return generationOf(QString::fromLatin1(text.mid(head.size())), QStringLiteral("gen-"));
    });
}

// One screen timer of display.ini: an index 0-4.
Found checkDisplayTimer(const QString& key)
{
    const QString path = data("display.ini");
    if (!QFile::exists(path))
        return {};
    QSettings settings(path, QSettings::IniFormat);
    if (!settings.contains(key))
        return {};
    bool ok = false;
    const int index = settings.value(key).toInt(&ok);
    if (settings.status() != QSettings::NoError || !ok || index < 0 || index > 4)
        return corrupt(QStringLiteral("%1 is \"%2\"").arg(key, settings.value(key).toString()));
    return {index, {}};
}

// networks.json: 1-4 entries named "net-<g>-<i>".
void writeNetworkFlags(qint64 generation)
{
    QJsonArray networks;
    for (int i = 0; i < recordCount(generation); ++i)
        networks.append(QJsonObject{{QStringLiteral("ssid"), QStringLiteral("net-%1-%2").arg(generation).arg(i)},
                                    {QStringLiteral("autoConnect"), i == 0},
                                    {QStringLiteral("showForUser"), true}});
    NetworkManager::writeNetworks(networks);
}

Found checkNetworkFlags()
{
    bool exists = false;
    const QByteArray text = readAll(NetworkManager::networksFile(), &exists);
    if (!exists)
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isArray() || document.array().isEmpty())
        return corrupt(QStringLiteral("not a JSON array of networks (%1 bytes)").arg(text.size()));
    std::optional<qint64> generation;
    const QJsonArray networks = document.array();
    for (int i = 0; i < networks.size(); ++i) {
        const QStringList parts = networks.at(i).toObject().value(QLatin1String("ssid")).toString().split(QLatin1Char('-'));
        if (parts.size() != 3 || parts.at(0) != QLatin1String("net") || parts.at(2).toInt() != i
            || (generation && *generation != parts.at(1).toLongLong()))
            return corrupt(QStringLiteral("network %1 does not belong").arg(i));
        generation = parts.at(1).toLongLong();
    }
    if (networks.size() != recordCount(*generation))
        return corrupt(QStringLiteral("%1 networks of generation %2").arg(networks.size()).arg(*generation));
    return {generation, {}};
}

// A wallpaper the user picks: three pictures on a drive, taken in turn; each copy names its
// generation in a body large enough for a kill to land inside the copy.
constexpr int kPictureSize = 256 * 1024;

QByteArray picture(qint64 generation)
{
    QByteArray content("\x89PNG\r\n\x1a\n");
    const QByteArray mark = "generation " + QByteArray::number(generation) + ' ';
    while (content.size() < kPictureSize)
        content += mark;
    content.resize(kPictureSize);
    return content;
}

void writeWallpaperCopy(qint64 generation)
{
    const QString source = SystemPaths::resolve(QStringLiteral("/media/POWERCUT-PICTURES/pic-%1.png").arg(generation % 3));
    QDir().mkpath(QFileInfo(source).absolutePath());
    QFile file(source);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(picture(generation));
    file.close();
    WallpapersManager().setWallpaper(source);
}

Found checkWallpaperCopies()
{
    // Every copy on the terminal is a whole picture of one generation; the newest is the last one
    // copied (display.ini's Wallpaper is shared with the server's wallpaper, so it is not asked).
    std::optional<qint64> newest;
    for (const QFileInfo& copy : QDir(data("wallpaper")).entryInfoList({QStringLiteral("pic-*.png")}, QDir::Files)) {
        bool exists = false;
        const QByteArray content = readAll(copy.filePath(), &exists);
        const QList<QByteArray> words = content.mid(8, 64).split(' ');
        const qint64 generation = words.size() > 1 ? words.at(1).toLongLong() : -1;
        if (content != picture(generation))
            return corrupt(copy.fileName() + QStringLiteral(" is not a whole picture (%1 bytes)").arg(content.size()));
        newest = std::max(newest.value_or(generation), generation);
    }
    return newest ? Found{newest, {}} : Found{};
}

const QList<Subject>& subjects()
{
    static const QList<Subject> list = {
        {"catalogue", writeConnections, {{"connections.json", [] { return checkCatalogue(data("connections.json")); }}}},
        {"account", [](qint64 g) { APIManager::getInstance()->setAccount(QStringLiteral("acct-%1").arg(g)); },
         {{"api.ini", [] {
               return checkIni(data("api.ini"), QStringLiteral("Account"), QStringLiteral("acct-"),
                               {QStringLiteral("Enabled"), QStringLiteral("URL")});
           }}}},
        {"computer-name", [](qint64 g) { APIManager::getInstance()->setId(QStringLiteral("pc%1").arg(g)); },
         {{"hosts", [] { return checkText(data("hosts"), hostsGeneration); }},
          {"hostname", [] {
               return checkText(data("hostname"), [](const QByteArray& text) {
                   return generationOf(QString::fromUtf8(text), QStringLiteral("pc"));
               });
           }}}},
        {"admin-password", [](qint64 g) { PasswordManager().setPassword(QStringLiteral("admin-%1").arg(g)); },
         {{"admin_password", [] {
               if (!QFile::exists(PasswordManager::passwordFile()))
                   return Found{};
               const std::optional<qint64> g = generationOf(PasswordManager().getPassword(), QStringLiteral("admin-"));
               return g ? Found{g, {}} : corrupt(QStringLiteral("does not decipher to a password of ours"));
           }}}},
        // Each export makes a new set (or adds to this second's set); the check counts the sets.
        {"export",
         [](qint64) {
             SettingsManager manager;
             manager.selection(QStringLiteral("connections"), true);
             manager.selection(QStringLiteral("adminPassword"), true);
             manager.exportConfig(SystemPaths::resolve(QStringLiteral("/media/POWERCUT")));
         },
         {{"exported-sets", checkExports}}},
        // The settings push: certificate files, the server's wallpaper, the screen timers.
        {"push", [](qint64 g) { SettingsPush({}).apply(pushDocument(g)); },
         {{"8021x/ca-cert", [] { return checkLine("8021x/ca-cert", QStringLiteral("ca-cert-")); }},
          {"8021x/key", [] { return checkLine("8021x/key", QStringLiteral("key-")); }},
          {"serverWallpaper.jpg", checkWallpaper}}},
        // The screen timers name g in two parts: sleep g mod 5, turn-off g / 5 mod 5.
        {"push-sleep", [](qint64 g) { SettingsPush({}).apply(pushTimerDocument(QStringLiteral("Sleep"), int(g % 5))); },
         {{"display.ini", [] { return checkDisplayTimer(QStringLiteral("SleepTime")); }}}},
        {"push-turnoff", [](qint64 g) { SettingsPush({}).apply(pushTimerDocument(QStringLiteral("TurnOff"), int(g / 5 % 5))); },
         {{"display.ini", [] { return checkDisplayTimer(QStringLiteral("TurnOffTime")); }}}},
        {"ntp", [](qint64 g) {
             TimeBackend time;
             time.setNtp(QStringLiteral("ntp-%1").arg(g));
             time.applyWithTime();
         },
         {{"timesyncd.conf", [] {
               return checkIni(data("timesyncd.conf"), QStringLiteral("Time/NTP"), QStringLiteral("ntp-"), {});
           }}}},
        {"networks", writeNetworkFlags, {{"networks.json", checkNetworkFlags}}},
        {"wallpaper", writeWallpaperCopy, {{"wallpaper/pic-*.png", checkWallpaperCopies}}},
        {"keyboard", [](qint64 g) { MouseSettingsBackend::setPreferredLayoutRaw(QStringLiteral("k%1").arg(g)); },
         {{"keyboard.ini", [] {
               return checkIni(data("keyboard.ini"), QStringLiteral("PreferredLayout"), QStringLiteral("k"),
                               {QStringLiteral("Sensetivity")});
           }}}},
    };
    return list;
}

void say(const QString& line)
{
    std::fputs(qPrintable(line + QLatin1Char('\n')), stdout);
    std::fflush(stdout);
}

int writeForever(qint64 generation)
{
    QDir().mkpath(SystemPaths::resolve(QStringLiteral("/media/POWERCUT")));
    for (;; ++generation) {
        for (const Subject& subject : subjects()) {
            say(QStringLiteral("BEGIN %1 %2").arg(QLatin1String(subject.name)).arg(generation));
            subject.write(generation);
            say(QStringLiteral("DONE %1 %2").arg(QLatin1String(subject.name)).arg(generation));
        }
    }
}

// Temporary files a write may leave when killed: QSaveFile's and QFile::copy's fallbacks, QSettings' lock.
bool isStray(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("(^qt_temp\\.|\\.[A-Za-z0-9]{6}$|\\.lock$)"));
    return pattern.match(name).hasMatch();
}

int check()
{
    for (const Subject& subject : subjects()) {
        for (const auto& [file, checkFile] : subject.files) {
            const Found found = checkFile();
            const QString head = QStringLiteral("FILE %1 %2 ").arg(QLatin1String(subject.name), QLatin1String(file));
            if (found.generation)
                say(head + QStringLiteral("GEN %1").arg(*found.generation));
            else if (found.problem.isEmpty())
                say(head + QStringLiteral("ABSENT"));
            else
                say(head + QStringLiteral("CORRUPT ") + found.problem);
        }
    }
    for (const QString& folder : {QStringLiteral("/data/norbix"), QStringLiteral("/media/POWERCUT")}) {
        QDirIterator it(SystemPaths::resolve(folder), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext())
            if (isStray(QFileInfo(it.next()).fileName()))
                say(QStringLiteral("STRAY ") + it.filePath());
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // stdout is the protocol
    const QStringList arguments = app.arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("write"))
        return writeForever(arguments.at(2).toLongLong());
    if (arguments.size() == 2 && arguments.at(1) == QLatin1String("check"))
        return check();
    std::fputs("usage: powercut_driver write FIRST_GENERATION | check\n", stderr);
    return 2;
}
