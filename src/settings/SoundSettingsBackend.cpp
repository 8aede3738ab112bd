#include "SoundSettingsBackend.h"

#include "CommandRunner.h"
#include "QmlSingleton.h"
#include "SettingsChange.h"
#include "SoundParsers.h"

#include <QDebug>

namespace {

CommandResult bash(const QString& script)
{
    return CommandRunner::instance().run(QStringLiteral("bash"), {QStringLiteral("-c"), script});
}

} // namespace

SoundSettingsBackend::SoundSettingsBackend(QObject* parent)
    : QObject(parent)
{
}

SoundSettingsBackend* SoundSettingsBackend::getInstance()
{
    static SoundSettingsBackend* const instance = new SoundSettingsBackend;
    return instance;
}

QObject* SoundSettingsBackend::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<SoundSettingsBackend>();
}

int SoundSettingsBackend::getSoundVolume()
{
    return SoundParsers::parseVolume(
        bash(QStringLiteral("amixer -D pulse sget Master | grep -m 1 '%' | awk -F'[][]' '{ print $2 }'")).standardOutput);
}

void SoundSettingsBackend::setSoundVolume(int percent)
{
    percent = qBound(0, percent, 100);
    bash(QStringLiteral("amixer -D pulse sset Master %1%").arg(percent));
    qInfo().nospace().noquote() << "Set sound volume to " << percent;
    SettingsChange::report();
}

int SoundSettingsBackend::getMicrophoneVolume()
{
    return SoundParsers::parseVolume(
        bash(QStringLiteral("amixer -D pulse sget Capture | grep -m 1 '%' | awk -F'[][]' '{ print $2 }'")).standardOutput);
}

void SoundSettingsBackend::setMicrophoneVolume(int percent)
{
    percent = qBound(0, percent, 100);
    bash(QStringLiteral("amixer -D pulse sset Capture %1%").arg(percent));
    qInfo().nospace().noquote() << "Set microphone volume to " << percent;
    SettingsChange::report();
}

QStringList SoundSettingsBackend::listSinks()
{
    return SoundParsers::parseSinks(bash(QStringLiteral("pacmd list-sinks")).standardOutput).names;
}

int SoundSettingsBackend::getActiveSink()
{
    return SoundParsers::parseSinks(bash(QStringLiteral("pacmd list-sinks")).standardOutput).active;
}

QString SoundSettingsBackend::getActiveSinkName()
{
    const SoundParsers::SinkList sinks = SoundParsers::parseSinks(bash(QStringLiteral("pacmd list-sinks")).standardOutput);
    return sinks.names.value(sinks.active);
}

void SoundSettingsBackend::setActiveSink(int index)
{
    qInfo().nospace().noquote() << "Set active sink to " << index;
    const QStringList names = SoundParsers::parseLines(
        bash(QStringLiteral("pactl list sinks short | awk '{print $2 }'")).standardOutput);
    if (index < 0 || index >= names.size()) {
        qWarning() << "No sink at" << index << "of" << names.size();
        return;
    }
    qInfo() << "setting pactl set-default-sink";
    const CommandResult result = CommandRunner::instance().run(
        QStringLiteral("pactl"), {QStringLiteral("set-default-sink"), names.at(index)});
    if (result.exitCode != 0)
        qWarning() << "pactl:" << result.standardError.trimmed();
    emit activeSinkChanged();
    SettingsChange::report();
}

void SoundSettingsBackend::setSoundEnabled(bool enabled)
{
    qInfo().nospace().noquote() << "Set sound muted " << enabled;
}

void SoundSettingsBackend::testSound()
{
    CommandRunner::instance().runCommandLine(QStringLiteral("speaker-test -D pulse -t wav -c 2 -P 2 -l 1"));
}

void SoundSettingsBackend::testMicrophone()
{
    bash(QStringLiteral(" arecord -D pulse -d 3 test-mic.wav"));
    CommandRunner::instance().runCommandLine(QStringLiteral("aplay -D pulse test-mic.wav"));
}
