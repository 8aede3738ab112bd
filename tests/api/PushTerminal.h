#pragma once

#include "SettingsChange.h"
#include "SimulatedDevices.h"
#include "SimulatedDisplays.h"
#include "SimulatedNetwork.h"
#include "SimulatedTerminal.h"
#include "SimulatedTime.h"
#include "SystemBus.h"
#include "TestSandbox.h"

#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

#include <memory>

// The simulated terminal with every command and bus call written down, in a fresh sandbox: what
// a settings push runs, and what it changes reads back changed.
class PushTerminal {
public:
    class Recorder : public SimulatedTerminal {
    public:
        QStringList commands() const
        {
            QMutexLocker locker(&m_mutex);
            return m_commands;
        }
        void clear()
        {
            QMutexLocker locker(&m_mutex);
            m_commands.clear();
        }

    protected:
        CommandResult execute(const QString& program, const QStringList& arguments) override
        {
            note(program, arguments, QString());
            return SimulatedTerminal::execute(program, arguments);
        }
        bool executeDetached(const QString& program, const QStringList& arguments, qint64* pid) override
        {
            note(program, arguments, QStringLiteral("& "));
            return SimulatedTerminal::executeDetached(program, arguments, pid);
        }

    private:
        void note(const QString& program, const QStringList& arguments, const QString& prefix)
        {
            QMutexLocker locker(&m_mutex);
            m_commands << prefix + (QStringList(program) + arguments).join(QLatin1Char(' '));
        }
        mutable QMutex m_mutex; // the collector runs commands from its own thread
        QStringList m_commands;
    };

    PushTerminal()
    {
        SimulatedNetwork::reset();
        SimulatedDisplays::reset();
        SimulatedDevices::reset();
        SimulatedTime::reset();
        m_terminal = std::make_unique<Recorder>();
        CommandRunner::setInstance(m_terminal.get());
        SystemBus::setInstance(&m_bus);
        SettingsChange::setReporter([this] { ++reports; });
    }
    ~PushTerminal()
    {
        SettingsChange::setReporter(nullptr);
        SystemBus::setInstance(nullptr);
        CommandRunner::setInstance(nullptr);
    }

    QStringList commands() const { return m_terminal->commands(); }
    QStringList busMethods() const
    {
        QMutexLocker locker(&m_busMutex);
        return m_busMethods;
    }
    void clear()
    {
        m_terminal->clear();
        QMutexLocker locker(&m_busMutex);
        m_busMethods.clear();
        reports = 0;
    }

    TestSandbox sandbox;
    int reports = 0;

private:
    std::unique_ptr<Recorder> m_terminal;
    mutable QMutex m_busMutex;
    QStringList m_busMethods;
    FunctionBus m_bus{[this](const BusCall& call) {
        {
            QMutexLocker locker(&m_busMutex);
            m_busMethods << call.method;
        }
        return SimulatedNetwork::busAnswer(call);
    }};
};
