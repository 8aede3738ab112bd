pragma Singleton
import QtQuick 2.15

QtObject {
    // Typography. The shell registers its own Roboto file; logs need fixed-width text.
    readonly property string fontFamily: "Roboto"
    readonly property string monoFamily: "DejaVu Sans Mono"

    readonly property int fontCaption: 12
    readonly property int fontSmall: 13
    readonly property int fontBody: 14
    readonly property int fontBodyLarge: 16
    readonly property int fontTitle: 18
    readonly property int fontHeadline: 24
    readonly property int fontDisplay: 56
    readonly property int fontMono: 12

    // Side bar and header
    readonly property color navy: "#0F1B2D"
    readonly property color navyRaised: "#15243A"
    readonly property color navyHover: "#1A2B45"
    readonly property color navySelected: "#213656"
    readonly property color navyBorder: "#223149"
    readonly property color navyText: "#D6DEEB"
    readonly property color navyTextStrong: "#FFFFFF"
    readonly property color navyTextMuted: "#7F8EA8"

    // Accent
    readonly property color accent: "#2F6FED"
    readonly property color accentHover: "#2862D6"
    readonly property color accentPressed: "#1F52B8"
    readonly property color accentSoft: "#E8EFFD"
    readonly property color accentOnDark: "#6E9DF5"

    // Content area
    readonly property color background: "#F3F5F9"
    readonly property color surface: "#FFFFFF"
    readonly property color surfaceAlt: "#F7F9FC"
    readonly property color surfaceHover: "#EEF2F7"
    readonly property color surfacePressed: "#E4E9F1"
    readonly property color border: "#DDE3EC"
    readonly property color borderStrong: "#C2CBD8"
    readonly property color disabledFill: "#E9EDF3"

    readonly property color text: "#172134"
    readonly property color textSecondary: "#536079"
    readonly property color textMuted: "#8691A5"
    readonly property color textDisabled: "#A9B2C1"
    readonly property color textOnAccent: "#FFFFFF"

    // Status
    readonly property color danger: "#D0393B"
    readonly property color dangerHover: "#BA3032"
    readonly property color dangerPressed: "#A1282A"
    readonly property color dangerSoft: "#FCECEC"
    readonly property color success: "#17905A"
    readonly property color successSoft: "#E5F5ED"
    readonly property color warning: "#B86E0B"
    readonly property color warningSoft: "#FDF3E3"

    readonly property color scrim: "#8C0B1422"
    readonly property color shadow: "#140F1B2D"

    // Spacing
    readonly property int spacingXs: 4
    readonly property int spacingS: 8
    readonly property int spacingM: 12
    readonly property int spacingL: 16
    readonly property int spacingXl: 24
    readonly property int spacingXxl: 32
    readonly property int spacingHuge: 48

    // Radii
    readonly property int radiusS: 4
    readonly property int radiusM: 8
    readonly property int radiusL: 12

    // Metrics
    readonly property int controlHeight: 40
    readonly property int iconSize: 20
    readonly property int sidebarWidth: 272
    readonly property int navItemHeight: 38
    readonly property int titleBarHeight: 88
    readonly property int contentMaxWidth: 880
    readonly property int dialogWidth: 440

    // Motion
    readonly property int durationFast: 120
    readonly property int durationNormal: 200
}
