#pragma once

#include <QObject>
#include <QStringList>

class QQmlEngine;
class QJSEngine;

// Output and microphone volume and the output device (PulseAudio), and the sound tests.
class SoundSettingsBackend : public QObject {
    Q_OBJECT
public:
    static SoundSettingsBackend* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    Q_INVOKABLE static int getSoundVolume();
    Q_INVOKABLE void setSoundVolume(int percent);
    Q_INVOKABLE static int getMicrophoneVolume();
    Q_INVOKABLE void setMicrophoneVolume(int percent);
    Q_INVOKABLE QStringList listSinks();
    Q_INVOKABLE int getActiveSink();
    Q_INVOKABLE void setActiveSink(int index);
    // The active sink's name as listSinks() gives it (one listing); empty when none is marked.
    // The readers keep no state: the settings report calls them from its own thread.
    static QString getActiveSinkName();
    Q_INVOKABLE void setSoundEnabled(bool enabled);
    Q_INVOKABLE void testSound();
    Q_INVOKABLE void testMicrophone();

signals:
    void activeSinkChanged();

private:
    explicit SoundSettingsBackend(QObject* parent = nullptr);
};
