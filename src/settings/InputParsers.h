#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Text in, values out: what xinput, setxkbmap's inputs and the window manager's rc.xml give us.
namespace InputParsers {

struct XinputDevice {
    QString name;
    QString id;
};

// `xinput --list --short`: one device per line, "<tree> Name<TAB>id=N<TAB>[role]". The tree
// decoration (box-drawing characters, arrows) is dropped; lines without an id are skipped.
QList<XinputDevice> parseDeviceList(const QByteArray& output);

// `xinput --list-props ID`: the value of "libinput Accel Speed (NNN):	0.200000", if listed.
std::optional<double> parseAccelSpeed(const QByteArray& properties);

// `xinput get-button-map ID`: 1 (left-handed) when the map starts with 3, else 0.
int parsePrimaryButton(const QByteArray& buttonMap);

// The milliseconds grep found in rc.xml (first line); nullopt when there is no number.
std::optional<int> parseDoubleClickTime(const QByteArray& output);

// A layout code fit to be put on a setxkbmap command line: letters, digits, '_' and '-'.
bool isLayoutCode(const QString& code);

// "us,de" -> ["us", "de"]: trimmed, empty and repeated entries dropped, order kept.
QStringList splitLayouts(const QString& stored);

// The enabled codes with the preferred one first and the rest in stored order. A preferred code
// that is not enabled is ignored.
QStringList orderLayouts(const QStringList& enabled, const QString& preferred);

// What removing one enabled layout leaves behind: the remaining codes and the preferred and
// current codes, the first remaining one taking over when either was the removed code.
struct LayoutRemoval {
    QStringList layouts;
    QString preferred;
    QString current;
};
LayoutRemoval removeLayout(const QStringList& enabled, int index, const QString& preferred, const QString& current);

// The codes of `added` that are not enabled yet, appended to `enabled` in the order given.
QStringList appendLayouts(const QStringList& enabled, const QStringList& added);

// Pointer speed as libinput takes it: a number between -1 and 1.
std::optional<double> parseSensitivity(const QString& text);

} // namespace InputParsers
