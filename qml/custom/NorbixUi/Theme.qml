pragma Singleton
import QtQuick 2.15

QtObject {
    // The high-contrast theme: black on white, strong borders. Set from the accessibility settings.
    property bool highContrast: false
    // Focus rings of keyboard navigation.
    readonly property color focusRing: highContrast ? "#FFB000" : "#2F6FED"
    readonly property int focusRingWidth: highContrast ? 3 : 2

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
    readonly property color navy: highContrast ? "#000000" : "#0F1B2D"
    readonly property color navyRaised: highContrast ? "#000000" : "#15243A"
    readonly property color navyHover: highContrast ? "#1F1F1F" : "#1A2B45"
    readonly property color navySelected: highContrast ? "#003399" : "#213656"
    readonly property color navyBorder: highContrast ? "#FFFFFF" : "#223149"
    readonly property color navyText: highContrast ? "#FFFFFF" : "#D6DEEB"
    readonly property color navyTextStrong: highContrast ? "#FFFFFF" : "#FFFFFF"
    readonly property color navyTextMuted: highContrast ? "#E0E0E0" : "#7F8EA8"

    // Accent
    readonly property color accent: highContrast ? "#0033CC" : "#2F6FED"
    readonly property color accentHover: highContrast ? "#002699" : "#2862D6"
    readonly property color accentPressed: highContrast ? "#001A66" : "#1F52B8"
    readonly property color accentSoft: highContrast ? "#D6E0FF" : "#E8EFFD"
    readonly property color accentOnDark: highContrast ? "#FFD500" : "#6E9DF5"

    // Content area
    readonly property color background: highContrast ? "#FFFFFF" : "#F3F5F9"
    readonly property color surface: highContrast ? "#FFFFFF" : "#FFFFFF"
    readonly property color surfaceAlt: highContrast ? "#FFFFFF" : "#F7F9FC"
    readonly property color surfaceHover: highContrast ? "#E6E6E6" : "#EEF2F7"
    readonly property color surfacePressed: highContrast ? "#CCCCCC" : "#E4E9F1"
    readonly property color border: highContrast ? "#000000" : "#DDE3EC"
    readonly property color borderStrong: highContrast ? "#000000" : "#C2CBD8"
    readonly property color disabledFill: highContrast ? "#E0E0E0" : "#E9EDF3"

    readonly property color text: highContrast ? "#000000" : "#172134"
    readonly property color textSecondary: highContrast ? "#000000" : "#536079"
    readonly property color textMuted: highContrast ? "#1F1F1F" : "#8691A5"
    readonly property color textDisabled: highContrast ? "#595959" : "#A9B2C1"
    readonly property color textOnAccent: highContrast ? "#FFFFFF" : "#FFFFFF"

    // Status
    readonly property color danger: highContrast ? "#B00000" : "#D0393B"
    readonly property color dangerHover: highContrast ? "#8C0000" : "#BA3032"
    readonly property color dangerPressed: highContrast ? "#660000" : "#A1282A"
    readonly property color dangerSoft: highContrast ? "#FFE0E0" : "#FCECEC"
    readonly property color success: highContrast ? "#006B2E" : "#17905A"
    readonly property color successSoft: highContrast ? "#D9F2E3" : "#E5F5ED"
    readonly property color warning: highContrast ? "#7A4A00" : "#B86E0B"
    readonly property color warningSoft: highContrast ? "#FFF0D1" : "#FDF3E3"

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
