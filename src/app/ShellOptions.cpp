#include "ShellOptions.h"

#include <QRegularExpression>

ShellOptions ShellOptions::parse(int argc, const char* const* argv)
{
    ShellOptions options;
    for (int i = 1; i < argc; ++i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        auto value = [&]() -> QString {
            if (i + 1 >= argc) {
                options.error = arg + QStringLiteral(" needs a value");
                return {};
            }
            return QString::fromLocal8Bit(argv[++i]);
        };
        if (arg == QLatin1String("--screenshot")) {
            options.screenshotFile = value();
        } else if (arg == QLatin1String("--page")) {
            options.page = value();
        } else if (arg == QLatin1String("--size")) {
            const QString text = value();
            static const QRegularExpression form(QStringLiteral("^(\\d{2,5})x(\\d{2,5})$"));
            const auto match = form.match(text);
            if (match.hasMatch())
                options.size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
            else if (options.error.isEmpty())
                options.error = QStringLiteral("--size takes WIDTHxHEIGHT, not ") + text;
        } else if (arg == QLatin1String("--first-frame-marker")) {
            options.firstFrameMarker = true;
        }
        // Anything else is Qt's (-platform, -style, ...).
    }
    return options;
}
