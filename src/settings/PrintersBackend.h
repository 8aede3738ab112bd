#pragma once

#include <QObject>

// Printing on the terminal (CUPS).
class PrintersBackend : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // "Enabled" in printers.ini: whether sessions may print at all.
    Q_INVOKABLE static bool isPrinterEnabled();
    Q_INVOKABLE static void setPrinterEnabled(bool enabled);
    // The CUPS default destination, empty when there is none.
    Q_INVOKABLE static QString getDefaultPrinter();

    // "system default destination: NAME" -> NAME; anything without a colon -> empty.
    static QString parseDefaultPrinter(const QByteArray& lpstatOutput);
};
