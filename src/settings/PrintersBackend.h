#pragma once

#include <QObject>
#include <QStringList>

// Printing on the terminal (CUPS): queues, the default one, and whether sessions may print.
class PrintersBackend : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // "Enabled" in printers.ini: whether sessions may print at all.
    Q_INVOKABLE static bool isPrinterEnabled();
    Q_INVOKABLE static void setPrinterEnabled(bool enabled);
    // The CUPS default destination, empty when there is none.
    Q_INVOKABLE static QString getDefaultPrinter();
    Q_INVOKABLE static QStringList listPrinters();

    // Add a queue; false (and lastError() says why) when refused or when lpadmin failed.
    Q_INVOKABLE bool addPrinter(const QString& name, const QString& host);
    Q_INVOKABLE bool addUSBPrinter(const QString& name, const QString& uri, const QString& driver);
    Q_INVOKABLE static QStringList listUSBPrinters();
    Q_INVOKABLE static QStringList listUSBPrinterDrivers();
    Q_INVOKABLE void setCurrentPrinter(const QString& name);
    Q_INVOKABLE void deletePrinter(const QString& name);

    // What the form shows under the name and host fields (empty when fine).
    Q_INVOKABLE static QString printerNameProblem(const QString& name);
    Q_INVOKABLE static QString printerHostProblem(const QString& host);
    Q_INVOKABLE QString lastError() const { return m_lastError; }

    // "system default destination: NAME" -> NAME; anything without a colon -> empty.
    static QString parseDefaultPrinter(const QByteArray& lpstatOutput);

signals:
    void printersChanged();

private:
    bool runLpadmin(const QStringList& arguments);

    QString m_lastError;
};
