#include "ScreensBackend.h"

#include "CommandRunner.h"
#include "QmlSingleton.h"
#include "SettingsChange.h"
#include "SystemPaths.h"
#include "XrandrParser.h"

#include <QDebug>
#include <QFile>
#include <QSettings>

#include <algorithm>

namespace {

const QString kOrderKey = QStringLiteral("Order/ScreenOrder");

// A value written by hand without quotes comes back from QSettings as a list.
QStringList splitOrder(const QVariant& value)
{
    const QString text = value.type() == QVariant::StringList ? value.toStringList().join(QLatin1Char(',')) : value.toString();
    QStringList order;
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString name = part.trimmed();
        if (!name.isEmpty() && !order.contains(name))
            order << name;
    }
    return order;
}

} // namespace

const QList<int>& ScreensBackend::turnOffSeconds()
{
    static const QList<int> table{0, 60, 300, 1800, 3600};
    return table;
}

const QList<int>& ScreensBackend::sleepMinutes()
{
    static const QList<int> table{0, 5, 30, 60, 360};
    return table;
}

ScreensBackend::ScreensBackend(QObject* parent)
    : QObject(parent)
{
    updateInfo();
}

ScreensBackend* ScreensBackend::getInstance()
{
    static ScreensBackend* const instance = new ScreensBackend;
    return instance;
}

QObject* ScreensBackend::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<ScreensBackend>();
}

QString ScreensBackend::displayIni() const
{
    return SystemPaths::dataFile(QStringLiteral("display.ini"));
}

void ScreensBackend::updateInfo()
{
    const CommandResult result = CommandRunner::instance().run(QStringLiteral("xrandr"), {});
    const QList<XrandrOutput> outputs = XrandrParser::parse(result.standardOutput);
    if (outputs.isEmpty()) {
        // Nothing usable came back: keep what was read before rather than show no monitor at all.
        qInfo().noquote() << "xrandr reported no connected output:" << QString::fromLocal8Bit(result.standardError).trimmed();
        emit screensChanged();
        return;
    }

    screens.clear();
    m_data.clear();
    m_resolutionOrder.clear();
    currentResolution.clear();
    offsets.clear();
    orientations.clear();
    rates.clear();
    primaryScreen.clear();
    for (const XrandrOutput& output : outputs) {
        screens << output.name;
        if (output.primary)
            primaryScreen = output.name;
        offsets.insert(output.name, output.offsets);
        orientations.insert(output.name, output.orientation);
        currentResolution.insert(output.name, output.currentResolution);
        rates.insert(output.name, output.currentRate);
        m_data.insert(output.name, output.rates);
        m_resolutionOrder.insert(output.name, output.resolutions);
    }
    qInfo() << "Finished parsing screen data";

    QSettings ini(displayIni(), QSettings::IniFormat);
    QStringList order = splitOrder(ini.value(kOrderKey));
    if (order.isEmpty())
        order = screens;
    m_order.clear();
    for (const QString& name : qAsConst(order)) {
        if (screens.contains(name))
            m_order << name;
    }
    for (const QString& name : qAsConst(screens)) {
        if (!m_order.contains(name))
            m_order << name;
    }
    m_mode = ini.value(QStringLiteral("Mode"), 0).toInt() == 1 ? 1 : 0;
    qInfo().noquote() << "Screens: " + m_order.join(QLatin1Char(','));
    qInfo() << "Update screens info finished";
    if (initialScreens.isEmpty())
        initialScreens = m_order;
    dataUpdated = true;
    emit screensChanged();
}

QString ScreensBackend::getScreenAt(int index) const
{
    return m_order.value(index);
}

int ScreensBackend::getScreenNumberAt(int index) const
{
    return getScreenNumberAtString(screens.value(index));
}

int ScreensBackend::getScreenNumberAtString(const QString& output) const
{
    return m_order.indexOf(output) + 1;
}

QString ScreensBackend::getScreenDisplayNameAt(int index) const
{
    return tr("Display %1").arg(getScreenNumberAt(index));
}

QString ScreensBackend::getScreenDisplayNameAtString(const QString& output) const
{
    return tr("Display %1").arg(getScreenNumberAtString(output));
}

QStringList ScreensBackend::getResolutions(const QString& output) const
{
    return XrandrParser::sortedByPixels(m_resolutionOrder.value(output));
}

QStringList ScreensBackend::getRefreshRate(const QString& output, const QString& resolution) const
{
    return m_data.value(output).value(resolution);
}

QRect ScreensBackend::getGeometry(const QString& output) const
{
    const QStringList offset = offsets.value(output);
    auto size = XrandrParser::resolutionSize(currentResolution.value(output));
    if (orientations.value(output) >= 2)
        std::swap(size.first, size.second);
    return QRect(offset.value(0).toInt(), offset.value(1).toInt(), size.first, size.second);
}

int ScreensBackend::getPrimaryScreenPos() const
{
    return m_order.indexOf(primaryScreen);
}

void ScreensBackend::makePrimary(const QString& output)
{
    if (!screens.contains(output)) {
        qWarning().noquote() << "Cannot make an output primary that is not connected: " + output;
        return;
    }
    primaryScreen = output;
}

void ScreensBackend::setMode(int mode)
{
    m_mode = mode == 1 ? 1 : 0;
}

void ScreensBackend::saveMode(int mode)
{
    setMode(mode);
    qInfo().noquote() << "Set mode to " + QString::number(m_mode);
    QSettings(displayIni(), QSettings::IniFormat).setValue(QStringLiteral("Mode"), m_mode);
    SettingsChange::report();
}

int ScreensBackend::getMode() const
{
    return QSettings(displayIni(), QSettings::IniFormat).value(QStringLiteral("Mode"), 0).toInt();
}

bool ScreensBackend::isMirroring() const
{
    return getMode() == 1;
}

void ScreensBackend::setScreenAt(const QString& output, int index)
{
    if (index < 0 || index >= 16)
        return;
    while (screensToSet.size() <= index)
        screensToSet << QString();
    screensToSet[index] = output;
}

void ScreensBackend::swap(int first, int second)
{
    if (first < 0 || second < 0 || first >= m_order.size() || second >= m_order.size() || first == second)
        return;
    m_order.swapItemsAt(first, second);
    emit screensChanged();
}

QStringList ScreensBackend::getRealOffsets() const
{
    QStringList byPosition = screens;
    std::stable_sort(byPosition.begin(), byPosition.end(), [this](const QString& a, const QString& b) {
        const QRect ga = getGeometry(a);
        const QRect gb = getGeometry(b);
        return ga.x() != gb.x() ? ga.x() < gb.x() : ga.y() < gb.y();
    });
    return byPosition;
}

void ScreensBackend::stageOutput(const QString& output, int orientation, const QString& resolution, const QString& rate)
{
    if (!screens.contains(output)) {
        qWarning().noquote() << "Output not connected, not saved: " + output;
        return;
    }
    if (orientation < 0 || orientation > 3)
        orientation = orientations.value(output);
    QSettings ini(displayIni(), QSettings::IniFormat);
    ini.beginGroup(output);
    ini.setValue(QStringLiteral("Resolution"), resolution);
    ini.setValue(QStringLiteral("Rate"), rate);
    ini.setValue(QStringLiteral("Primary"), output == primaryScreen);
    ini.setValue(QStringLiteral("Orientation"), orientation);
    ini.endGroup();
    if (!resolution.isEmpty())
        currentResolution[output] = resolution;
    if (!rate.isEmpty())
        rates[output] = rate;
    orientations[output] = orientation;
}

void ScreensBackend::applySettings(const QString& output, int orientation, const QString& resolution, const QString& rate)
{
    stageOutput(output, orientation, resolution, rate);

    QSettings ini(displayIni(), QSettings::IniFormat);
    // Only one output may stay marked primary, or the replay could not tell which one it is.
    for (const QString& name : qAsConst(screens)) {
        if (name != output && ini.childGroups().contains(name))
            ini.setValue(name + QStringLiteral("/Primary"), name == primaryScreen);
    }
    qInfo().noquote() << "Set mode to " + QString::number(m_mode);
    ini.setValue(QStringLiteral("Mode"), m_mode);

    QStringList order;
    for (const QString& name : qAsConst(screensToSet)) {
        if (!name.isEmpty() && !order.contains(name))
            order << name;
    }
    if (order.isEmpty())
        order = m_order;
    const QString joined = order.join(QLatin1Char(','));
    qInfo().noquote() << "ScreenOrder " + joined;
    ini.setValue(kOrderKey, joined);
    ini.sync();

    runLayout(order);
    if (order.size() <= XrandrCommand::kMaxOutputs) {
        QStringList applied;
        for (const QString& name : qAsConst(order)) {
            if (screens.contains(name))
                applied << name;
        }
        for (const QString& name : qAsConst(m_order)) {
            if (!applied.contains(name))
                applied << name;
        }
        m_order = applied;
    }

    screensToSet.clear();
    applyTurnOffTime();
    applySleepTime();
    SettingsChange::report();
}

QList<XrandrOutputSetting> ScreensBackend::settingsFor(const QStringList& order) const
{
    QList<XrandrOutputSetting> settings;
    for (const QString& name : order) {
        if (!screens.contains(name)) {
            qWarning().noquote() << "Skipping output that is not connected: " + name;
            continue;
        }
        XrandrOutputSetting setting;
        setting.name = name;
        setting.resolution = currentResolution.value(name);
        setting.rate = rates.value(name);
        setting.orientation = orientations.value(name);
        setting.primary = name == primaryScreen;
        const QStringList offered = m_data.value(name).value(setting.resolution);
        if (setting.rate.isEmpty() || !offered.contains(setting.rate))
            setting.rate = offered.value(0);
        if (setting.resolution.isEmpty() || setting.rate.isEmpty()) {
            qWarning().noquote() << "Skipping output without a usable mode: " + name;
            continue;
        }
        settings << setting;
    }
    return settings;
}

void ScreensBackend::runLayout(const QStringList& order)
{
    const QList<XrandrOutputSetting> settings = settingsFor(order);
    if (settings.size() > XrandrCommand::kMaxOutputs) {
        qWarning().noquote() << "Screen order of " + QString::number(settings.size()) + " outputs is not applied";
        return;
    }
    const QString command = XrandrCommand::build(settings, m_mode == 1);
    if (command.isEmpty()) {
        qWarning() << "No output to apply";
        return;
    }
    const CommandResult result = CommandRunner::instance().runCommandLine(command);
    qInfo().noquote() << command;
    qInfo().noquote() << QString::fromLocal8Bit(result.standardOutput);
    if (!result.standardError.isEmpty())
        qCritical().noquote() << QString::fromLocal8Bit(result.standardError);
}

void ScreensBackend::loadInitial()
{
    if (!QFile::exists(displayIni())) {
        qInfo() << "No saved display settings";
        return;
    }
    QSettings ini(displayIni(), QSettings::IniFormat);
    const QStringList saved = splitOrder(ini.value(kOrderKey));
    if (saved == screens)
        qInfo() << "Order equeal to constructed";
    else
        qInfo() << "Order not equeal to constructed";

    QStringList order;
    for (const QString& name : saved) {
        if (screens.contains(name))
            order << name;
        else
            qWarning().noquote() << "Saved output not connected, skipped: " + name;
    }
    for (const QString& name : qAsConst(screens)) {
        if (!order.contains(name))
            order << name;
    }

    bool modeOk = false;
    const int mode = ini.value(QStringLiteral("Mode"), 0).toInt(&modeOk);
    if (!modeOk || (mode != 0 && mode != 1))
        qWarning().noquote() << "Saved mode not usable: " + ini.value(QStringLiteral("Mode")).toString();
    m_mode = modeOk && mode == 1 ? 1 : 0;

    QString savedPrimary;
    for (const QString& name : qAsConst(screens)) {
        if (!ini.childGroups().contains(name))
            continue; // nothing saved: keep what xrandr reported
        ini.beginGroup(name);
        if (ini.contains(QStringLiteral("Orientation"))) {
            bool ok = false;
            const int orientation = ini.value(QStringLiteral("Orientation")).toInt(&ok);
            if (ok && orientation >= 0 && orientation <= 3)
                orientations[name] = orientation;
            else
                qWarning().noquote() << "Saved orientation not usable for " + name + ": "
                        + ini.value(QStringLiteral("Orientation")).toString();
        }
        const QString resolution = ini.value(QStringLiteral("Resolution")).toString();
        const QString rate = ini.value(QStringLiteral("Rate")).toString();
        if (!resolution.isEmpty() && m_data.value(name).contains(resolution)) {
            currentResolution[name] = resolution;
            rates[name] = rate; // checked against the mode's rates when the command is built
        } else {
            qWarning().noquote() << "Saved resolution not offered by " + name + ": \"" + resolution + "\"";
        }
        if (ini.value(QStringLiteral("Primary")).toBool() && savedPrimary.isEmpty())
            savedPrimary = name;
        ini.endGroup();
    }
    if (!savedPrimary.isEmpty())
        primaryScreen = savedPrimary;

    runLayout(order);
    m_order = order;
    updateInfo();
}

void ScreensBackend::reset()
{
    const CommandResult result = CommandRunner::instance().runCommandLine(QStringLiteral("xrandr -s 0"));
    if (!result.standardError.isEmpty())
        qCritical().noquote() << QString::fromLocal8Bit(result.standardError);
}

int ScreensBackend::getScreenTurnOffTime() const
{
    return QSettings(displayIni(), QSettings::IniFormat).value(QStringLiteral("TurnOffTime"), 0).toInt();
}

void ScreensBackend::setScreenTurnOffTime(int index)
{
    QSettings(displayIni(), QSettings::IniFormat).setValue(QStringLiteral("TurnOffTime"), index);
}

int ScreensBackend::getSleepTime() const
{
    return QSettings(displayIni(), QSettings::IniFormat).value(QStringLiteral("SleepTime"), 0).toInt();
}

void ScreensBackend::setSleepTime(int index)
{
    QSettings(displayIni(), QSettings::IniFormat).setValue(QStringLiteral("SleepTime"), index);
}

void ScreensBackend::applyTurnOffTime()
{
    const int seconds = turnOffSeconds().value(getScreenTurnOffTime(), 0);
    qInfo().noquote() << "Set screen turnoff time to " + QString::number(seconds);
    CommandRunner& runner = CommandRunner::instance();
    const CommandResult lock = runner.runCommandLine(QStringLiteral("gsettings set org.gnome.desktop.screensaver lock-enabled false"));
    if (!lock.finished || lock.exitCode != 0)
        qWarning().noquote() << "Failed to set turn off time: " + QString::fromLocal8Bit(lock.standardError);
    const CommandResult dpms = seconds != 0
        ? runner.runCommandLine(QStringLiteral("xset dpms %1 %2 0 s off").arg(seconds).arg(seconds))
        : runner.runCommandLine(QStringLiteral("xset -dpms s off"));
    if (!dpms.finished || dpms.exitCode != 0)
        qWarning().noquote() << "Failed to set turn off time: " + QString::fromLocal8Bit(dpms.standardError);
}

void ScreensBackend::applySleepTime()
{
    const int minutes = sleepMinutes().value(getSleepTime(), 0);
    CommandRunner& runner = CommandRunner::instance();
    runner.runCommandLine(QStringLiteral("killall xautolock"));
    if (minutes != 0) {
        qInfo() << "Starting xautolock";
        runner.startDetached(QStringLiteral("xautolock"),
                             {QStringLiteral("-time"), QString::number(minutes), QStringLiteral("-locker"),
                              QString::fromLatin1(kSuspendTool)});
    }
    qInfo().noquote() << "Set sleep time to " + QString::number(minutes);
}
