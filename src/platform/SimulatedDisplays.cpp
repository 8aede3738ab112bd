#include "SimulatedDisplays.h"

#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>
#include <QSize>

#include <algorithm>

namespace {

struct Mode {
    QString name;
    QStringList rates;
};

struct Output {
    QString name;
    bool connected = false;
    QString tail; // what follows the geometry: the rotations offered and the size in mm
    QList<Mode> modes;
    QString preferredMode, preferredRate;
    QString mode, rate; // empty: off
    QString rotation = QStringLiteral("normal");
    int x = 0, y = 0;
    bool primary = false;

    QSize size() const
    {
        static const QRegularExpression wh(QStringLiteral("^(\\d+)x(\\d+)"));
        const auto m = wh.match(mode);
        if (!m.hasMatch())
            return {};
        QSize s(m.captured(1).toInt(), m.captured(2).toInt());
        if (rotation == QLatin1String("left") || rotation == QLatin1String("right"))
            s.transpose();
        return s;
    }
    const Mode* findMode(const QString& name) const
    {
        for (const Mode& m : modes) {
            if (m.name == name)
                return &m;
        }
        return nullptr;
    }
};

QMutex g_mutex;
QList<Output> g_outputs;
bool g_loaded = false;

// Seeds the model from the recorded output of a two-monitor terminal.
void load()
{
    g_outputs.clear();
    QFile file(QStringLiteral(":/simulation/xrandr-query.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    static const QRegularExpression outputLine(
        QStringLiteral("^(\\S+) (connected|disconnected)( primary)?(?: (\\d+x\\d+)\\+(\\d+)\\+(\\d+))?(?: (normal|left|right|inverted))? ?(.*)$"));
    for (const QByteArray& raw : file.readAll().split('\n')) {
        const QString line = QString::fromUtf8(raw);
        if (line.startsWith(QLatin1String("Screen")) || line.trimmed().isEmpty())
            continue;
        if (!line.startsWith(QLatin1Char(' '))) {
            const auto m = outputLine.match(line);
            if (!m.hasMatch())
                continue;
            Output output;
            output.name = m.captured(1);
            output.connected = m.captured(2) == QLatin1String("connected");
            output.primary = !m.captured(3).isEmpty();
            output.x = m.captured(5).toInt();
            output.y = m.captured(6).toInt();
            if (!m.captured(7).isEmpty())
                output.rotation = m.captured(7);
            output.tail = m.captured(8);
            g_outputs << output;
            continue;
        }
        if (g_outputs.isEmpty())
            continue;
        Output& output = g_outputs.last();
        const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        Mode mode{words.first(), {}};
        for (int i = 1; i < words.size(); ++i) {
            QString rate = words.at(i);
            if (rate.contains(QLatin1Char('*'))) {
                output.mode = mode.name;
                output.rate = QString(rate).remove(QLatin1Char('*')).remove(QLatin1Char('+'));
            }
            if (rate.contains(QLatin1Char('+'))) {
                output.preferredMode = mode.name;
                output.preferredRate = QString(rate).remove(QLatin1Char('*')).remove(QLatin1Char('+'));
            }
            rate.remove(QLatin1Char('*')).remove(QLatin1Char('+'));
            if (!rate.isEmpty())
                mode.rates << rate;
        }
        output.modes << mode;
    }
    g_loaded = true;
}

Output* find(const QString& name)
{
    for (Output& output : g_outputs) {
        if (output.name == name && output.connected)
            return &output;
    }
    return nullptr;
}

QByteArray render()
{
    int width = 0, height = 0;
    for (const Output& output : qAsConst(g_outputs)) {
        if (output.connected && !output.mode.isEmpty()) {
            width = std::max(width, output.x + output.size().width());
            height = std::max(height, output.y + output.size().height());
        }
    }
    QString text = QStringLiteral("Screen 0: minimum 320 x 200, current %1 x %2, maximum 16384 x 16384\n").arg(width).arg(height);
    for (const Output& output : qAsConst(g_outputs)) {
        if (!output.connected) {
            text += output.name + QStringLiteral(" disconnected ") + output.tail + QLatin1Char('\n');
            continue;
        }
        text += output.name + QStringLiteral(" connected ");
        if (output.primary)
            text += QStringLiteral("primary ");
        if (!output.mode.isEmpty()) {
            const QSize size = output.size();
            text += QStringLiteral("%1x%2+%3+%4 ").arg(size.width()).arg(size.height()).arg(output.x).arg(output.y);
            if (output.rotation != QLatin1String("normal"))
                text += output.rotation + QLatin1Char(' ');
        }
        text += output.tail + QLatin1Char('\n');
        for (const Mode& mode : output.modes) {
            text += QStringLiteral("   %1").arg(mode.name, -12);
            for (const QString& rate : mode.rates) {
                const bool current = mode.name == output.mode && rate == output.rate;
                const bool preferred = mode.name == output.preferredMode && rate == output.preferredRate;
                text += QStringLiteral(" %1%2%3").arg(rate, 6).arg(current ? '*' : ' ').arg(preferred ? '+' : ' ');
            }
            text += QLatin1Char('\n');
        }
    }
    return text.toUtf8();
}

struct Request {
    Output* output = nullptr;
    QString mode, rate, rotation, leftOf, sameAs;
    bool primary = false;
    bool off = false;
};

// "xrandr --output A --left-of B --mode M --rotate R --rate F --primary --output B ...", checked
// whole before anything changes, as xrandr does.
SimulatedTerminal::Answer configure(const QStringList& arguments)
{
    QList<Request> requests;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& option = arguments.at(i);
        const QString value = arguments.value(i + 1);
        const bool takesValue = option != QLatin1String("--primary") && option != QLatin1String("--off")
            && option != QLatin1String("--auto");
        if (takesValue && value.isEmpty())
            return SimulatedTerminal::finished(1, {}, "xrandr: " + option.toUtf8() + " requires an argument\n");
        if (option == QLatin1String("--output")) {
            Output* output = find(value);
            if (!output)
                return SimulatedTerminal::finished(1, {}, "warning: output " + value.toUtf8() + " not found; ignoring\n");
            requests << Request{output, {}, {}, {}, {}, {}, false, false};
        } else if (requests.isEmpty()) {
            return SimulatedTerminal::finished(1, {}, "xrandr: unrecognized option '" + option.toUtf8() + "'\n");
        } else if (option == QLatin1String("--mode")) {
            requests.last().mode = value;
        } else if (option == QLatin1String("--rate")) {
            requests.last().rate = value;
        } else if (option == QLatin1String("--rotate")) {
            if (!QStringList{"normal", "left", "right", "inverted"}.contains(value))
                return SimulatedTerminal::finished(1, {}, "xrandr: invalid rotation '" + value.toUtf8() + "'\n");
            requests.last().rotation = value;
        } else if (option == QLatin1String("--left-of")) {
            requests.last().leftOf = value;
        } else if (option == QLatin1String("--same-as")) {
            requests.last().sameAs = value;
        } else if (option == QLatin1String("--primary")) {
            requests.last().primary = true;
        } else if (option == QLatin1String("--off")) {
            requests.last().off = true;
        } else if (option == QLatin1String("--auto")) {
            requests.last().mode = requests.last().output->preferredMode;
        } else {
            return SimulatedTerminal::finished(1, {}, "xrandr: unrecognized option '" + option.toUtf8() + "'\n");
        }
        if (takesValue)
            ++i;
    }
    for (Request& request : requests) {
        const QString mode = request.mode.isEmpty() ? request.output->mode : request.mode;
        const Mode* known = request.output->findMode(mode);
        if (!request.off && !known)
            return SimulatedTerminal::finished(1, {}, "xrandr: cannot find mode " + mode.toUtf8() + "\n");
        if (!request.off && !request.rate.isEmpty() && !known->rates.contains(request.rate))
            return SimulatedTerminal::finished(1, {}, "xrandr: cannot find mode " + mode.toUtf8() + " at " + request.rate.toUtf8() + " Hz\n");
        if ((!request.leftOf.isEmpty() && !find(request.leftOf)) || (!request.sameAs.isEmpty() && !find(request.sameAs)))
            return SimulatedTerminal::finished(1, {}, "xrandr: cannot find output\n");
    }

    for (const Request& request : qAsConst(requests)) {
        Output& output = *request.output;
        if (request.off) {
            output.mode.clear();
            output.rate.clear();
            continue;
        }
        if (!request.mode.isEmpty() && request.mode != output.mode) {
            output.mode = request.mode;
            output.rate = output.findMode(output.mode)->rates.value(0);
        }
        if (!request.rate.isEmpty())
            output.rate = request.rate;
        if (!request.rotation.isEmpty())
            output.rotation = request.rotation;
        if (request.primary) {
            for (Output& other : g_outputs)
                other.primary = false;
            output.primary = true;
        }
    }
    // Placement: mirrored outputs sit on their partner; a chain of --left-of runs from the output
    // nobody is right of, left to right.
    QStringList rightNeighbours;
    for (const Request& request : qAsConst(requests)) {
        if (!request.leftOf.isEmpty())
            rightNeighbours << request.leftOf;
    }
    for (const Request& request : qAsConst(requests)) {
        if (request.leftOf.isEmpty() || rightNeighbours.contains(request.output->name))
            continue;
        int x = 0;
        for (Output* output = request.output; output;) {
            output->x = x;
            output->y = 0;
            x += output->size().width();
            Output* next = nullptr;
            for (const Request& link : qAsConst(requests)) {
                if (link.output == output && !link.leftOf.isEmpty())
                    next = find(link.leftOf);
            }
            output = next;
        }
    }
    for (const Request& request : qAsConst(requests)) {
        if (!request.sameAs.isEmpty()) {
            const Output* partner = find(request.sameAs);
            request.output->x = partner->x;
            request.output->y = partner->y;
        }
    }
    return SimulatedTerminal::finished(0);
}

// "xrandr -s 0": every monitor back to its preferred mode, side by side.
void defaultSize()
{
    int x = 0;
    for (Output& output : g_outputs) {
        if (!output.connected)
            continue;
        output.mode = output.preferredMode;
        output.rate = output.preferredRate;
        output.rotation = QStringLiteral("normal");
        output.x = x;
        output.y = 0;
        x += output.size().width();
    }
}

} // namespace

std::optional<SimulatedTerminal::Answer> SimulatedDisplays::answer(const QString& program, const QStringList& arguments)
{
    if (program != QLatin1String("xrandr"))
        return std::nullopt;
    QMutexLocker locker(&g_mutex);
    if (!g_loaded)
        load();
    if (arguments.isEmpty() || arguments == QStringList(QStringLiteral("--query")))
        return SimulatedTerminal::finished(0, render());
    if (arguments == QStringList{QStringLiteral("-s"), QStringLiteral("0")}) {
        defaultSize();
        return SimulatedTerminal::finished(0);
    }
    return configure(arguments);
}

void SimulatedDisplays::reset()
{
    QMutexLocker locker(&g_mutex);
    load();
}
