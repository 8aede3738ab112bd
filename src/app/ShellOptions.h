#pragma once

#include <QSize>
#include <QString>

// Command-line options of norbix-shell beyond what Qt itself takes.
struct ShellOptions {
    QString screenshotFile; // --screenshot FILE: render, save the root window as PNG, exit
    QString page;           // --page NAME: open this screen first
    QSize size;             // --size WxH: a window of this size instead of full screen
    bool firstFrameMarker = false; // --first-frame-marker: print "norbix: first frame" once drawn
    QString error;          // what was wrong with the command line, if anything

    static ShellOptions parse(int argc, const char* const* argv);
};
