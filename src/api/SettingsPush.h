#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

#include <functional>

// Applies a settings document sent by the management server through the same backend operations
// the settings screens use. Groups are applied in a fixed order, each group and key only when
// present; a key that cannot apply (wrong type, refused value) is skipped and logged with its
// group and key while every other key still applies.
class SettingsPush {
public:
    // Operations of subsystems the agent does not link (logging, updater) or owns itself; start-up
    // plugs them in. An unset one leaves its key skipped.
    struct Targets {
        std::function<void(const QString& password)> setAdminPassword;
        std::function<void(bool enabled)> setDebugEnabled;
        std::function<void(bool enabled)> setAutoUpdateEnabled;
        std::function<void(bool enabled)> setAdvancedEnabled;
    };

    static constexpr const char* k8021xDir = "/data/norbix/8021x";
    static constexpr const char* kWallpaperDir = "/data/norbix/wallpaper";
    static constexpr const char* kServerWallpaper = "/data/norbix/wallpaper/serverWallpaper.jpg";

    explicit SettingsPush(Targets targets);

    // Applies the document. Returns "Group/Key" of every key that was skipped, in document order.
    QStringList apply(const QJsonObject& document);

    // Standard Base64 that decodes to a PNG or JPEG image; empty when it does not.
    static QByteArray decodeImage(const QString& text);
    // The 802.1X property a plain key of the "8021x" group sets; empty for file keys and unknown ones.
    static QString property8021x(const QString& key);

private:
    class Group;
    void applyDateTime(Group& group);
    void applyPrinters(Group& group);
    void applySound(Group& group);
    void applySystem(Group& group);
    void applyKeyboardMouse(Group& group);
    void applyWiFi(Group& group);
    void apply8021x(Group& group);
    void applyNetwork(Group& group);
    void applyLayouts(const QJsonValue& value);
    void applyUsb(Group& group);
    void applyUpdates(Group& group);
    void applyPreferredLayout(const QJsonValue& value);
    void applyScreens(Group& group);
    void applyBackground(const QJsonValue& value);
    void applyConfig(Group& group);
    void skip(const QString& group, const QString& key, const QString& reason);

    Targets m_targets;
    QStringList m_skipped;
};
