#pragma once

#include "XrandrCommand.h"

#include <QMap>
#include <QObject>
#include <QRect>
#include <QStringList>

class QQmlEngine;
class QJSEngine;

// The monitors of the X session: what xrandr reports, the arrangement the user chooses, and the
// power-saving timers. Everything chosen is kept in display.ini and replayed by loadInitial().
class ScreensBackend : public QObject {
    Q_OBJECT
public:
    // Index -> seconds before the screen turns off / minutes before the terminal sleeps.
    static const QList<int>& turnOffSeconds();
    static const QList<int>& sleepMinutes();
    static constexpr const char* kSuspendTool = "/opt/norbix/tools/suspend.sh";

    // Reads the monitors at once (updateInfo()).
    explicit ScreensBackend(QObject* parent = nullptr);

    static ScreensBackend* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    Q_INVOKABLE void updateInfo();
    Q_INVOKABLE QStringList listScreens() const { return screens; }
    // The arrangement, left to right: the saved order restricted to connected outputs, then any
    // connected output it does not name.
    Q_INVOKABLE QStringList arrangement() const { return m_order; }
    Q_INVOKABLE QString getScreenAt(int index) const;
    // 1-based position of an output in the arrangement ("Display 1" is the leftmost); 0 if unknown.
    Q_INVOKABLE int getScreenNumberAt(int index) const;
    Q_INVOKABLE int getScreenNumberAtString(const QString& output) const;
    Q_INVOKABLE QString getScreenDisplayNameAt(int index) const;
    Q_INVOKABLE QString getScreenDisplayNameAtString(const QString& output) const;
    Q_INVOKABLE QStringList getResolutions(const QString& output) const;
    Q_INVOKABLE QStringList getRefreshRate(const QString& output, const QString& resolution) const;
    Q_INVOKABLE QString getCurrentResolution(const QString& output) const { return currentResolution.value(output); }
    Q_INVOKABLE QString getCurrentRate(const QString& output) const { return rates.value(output); }
    Q_INVOKABLE int getOrientation(const QString& output) const { return orientations.value(output); }
    // Where the output sits on the desktop, width and height turned with a portrait orientation.
    Q_INVOKABLE QRect getGeometry(const QString& output) const;
    Q_INVOKABLE QString getPrimaryScreen() const { return primaryScreen; }
    Q_INVOKABLE int getPrimaryScreenPos() const;
    Q_INVOKABLE void makePrimary(const QString& output);
    Q_INVOKABLE void setMode(int mode);
    Q_INVOKABLE int getMode() const;
    // Stores the mode for the next replay of the saved arrangement (loadInitial) and stages it.
    void saveMode(int mode);
    Q_INVOKABLE bool isMirroring() const;
    Q_INVOKABLE void setScreenAt(const QString& output, int index);
    Q_INVOKABLE void swap(int first, int second);
    // Outputs by their position on the desktop as xrandr reports it, left to right.
    Q_INVOKABLE QStringList getRealOffsets() const;
    // Keeps an output's settings (file and memory) for the next apply, without running anything.
    Q_INVOKABLE void stageOutput(const QString& output, int orientation, const QString& resolution, const QString& rate);
    Q_INVOKABLE void applySettings(const QString& output, int orientation, const QString& resolution, const QString& rate);
    Q_INVOKABLE void loadInitial();
    Q_INVOKABLE void reset();

    Q_INVOKABLE int getScreenTurnOffTime() const;
    Q_INVOKABLE void setScreenTurnOffTime(int index);
    Q_INVOKABLE int getSleepTime() const;
    Q_INVOKABLE void setSleepTime(int index);
    Q_INVOKABLE void applyTurnOffTime();
    Q_INVOKABLE void applySleepTime();

    bool isDataUpdated() const { return dataUpdated; }
    QStringList initialOrder() const { return initialScreens; }

signals:
    // After every updateInfo(): the lists and maps may have changed.
    void screensChanged();

private:
    QList<XrandrOutputSetting> settingsFor(const QStringList& order) const;
    void runLayout(const QStringList& order);
    QString displayIni() const;

    QStringList screens;
    QMap<QString, QMap<QString, QStringList>> m_data;
    QMap<QString, QStringList> m_resolutionOrder;
    QMap<QString, QString> currentResolution;
    QMap<QString, QStringList> offsets;
    QMap<QString, int> orientations;
    QString primaryScreen;
    QMap<QString, QString> rates;
    int m_mode = 0;
    QStringList screensToSet;
    QStringList m_order;
    bool dataUpdated = false;
    QStringList initialScreens;
};
