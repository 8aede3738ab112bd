#include "SimulatedTerminal.h"

#include "JsonText.h"
#include "SimulatedCertificates.h"
#include "SimulatedDevices.h"
#include "SimulatedDisplays.h"
#include "SimulatedNetwork.h"
#include "SimulatedTime.h"
#include "SystemPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QMutexLocker>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

static void initFixtureResources()
{
    Q_INIT_RESOURCE(simulation);
}

namespace {

QMutex g_handlersMutex;
std::vector<SimulatedTerminal::Handler>& handlers()
{
    static std::vector<SimulatedTerminal::Handler> list;
    return list;
}

SimulatedTerminal::Answer succeeded(const QByteArray& output = {})
{
    return SimulatedTerminal::finished(0, output);
}

// "bash -c '... mkdir -p /x ...'" makes the folders inside the sandbox, so the data directory exists
// as it would on a terminal.
std::optional<SimulatedTerminal::Answer> bashMkdir(const QString& program, const QStringList& arguments)
{
    if (program != QLatin1String("bash") || arguments.size() != 2 || arguments.at(0) != QLatin1String("-c"))
        return std::nullopt;
    static const QRegularExpression mkdir(QStringLiteral("mkdir -p (/\\S+)"));
    auto it = mkdir.globalMatch(arguments.at(1));
    if (!it.hasNext())
        return std::nullopt;
    while (it.hasNext())
        QDir().mkpath(SystemPaths::resolve(it.next().captured(1)));
    return succeeded();
}

// "sudo cp -f SRC DST": system files are edited as copies in the data directory and installed
// with a copy; the sandbox gets the copy, so /etc/hosts and friends can be looked at.
std::optional<SimulatedTerminal::Answer> sudoCopy(const QString& program, const QStringList& arguments)
{
    if (program != QLatin1String("sudo") || arguments.size() != 4 || arguments.at(0) != QLatin1String("cp")
        || arguments.at(1) != QLatin1String("-f") || SystemPaths::root().isEmpty())
        return std::nullopt;
    const QString target = SystemPaths::resolve(arguments.at(3));
    QFile::remove(target);
    SimulatedTerminal::Answer answer = succeeded();
    if (!QFile::copy(SystemPaths::resolve(arguments.at(2)), target)) {
        answer.result.exitCode = 1;
        answer.result.standardError = "cp: cannot stat '" + arguments.at(2).toUtf8() + "': No such file or directory\n";
    }
    return answer;
}

// The FreeRDP client: a missing password fails authorisation, a missing host is an invalid
// address, anything else is a session that the user logs off from a few seconds later.
std::optional<SimulatedTerminal::Answer> rdpClient(const QString& program, const QStringList& arguments)
{
    if (!program.endsWith(QLatin1String("/xfreerdp")))
        return std::nullopt;
    SimulatedTerminal::Answer answer = succeeded();
    if (arguments.contains(QLatin1String("/v:"))) {
        answer.result.exitCode = 140;
        answer.delayMs = 500;
    } else if (arguments.contains(QLatin1String("/p:"))) {
        answer.result.exitCode = 132;
        answer.delayMs = 1500;
    } else {
        answer.result.exitCode = 12;
        answer.delayMs = 3000;
    }
    return answer;
}

// The VNC viewer's port scan: a real TCP connection attempt, so a real VNC server can be used
// from the simulated terminal.
std::optional<SimulatedTerminal::Answer> portScan(const QString& program, const QStringList& arguments)
{
    const int portFlag = arguments.indexOf(QLatin1String("-p"));
    if (program != QLatin1String("nmap") || portFlag < 1 || portFlag + 1 >= arguments.size())
        return std::nullopt;
    const QString host = arguments.at(portFlag - 1);
    bool numeric = false;
    const quint16 port = arguments.at(portFlag + 1).toUShort(&numeric);
    SimulatedTerminal::Answer answer = succeeded();
    QTcpSocket socket;
    socket.connectToHost(host, port);
    if (numeric && socket.waitForConnected(3000))
        answer.result.standardOutput = QStringLiteral("%1/tcp open  vnc\n").arg(port).toUtf8();
    return answer;
}

// The remote-assistance tunnel runs for real when the sandbox holds a build of it at
// <NORBIX_ROOT>/opt/norbix/tools/tunnel: assistance can then be tried end to end in the simulated
// terminal. Only the program's location is taken under the root; its arguments stay as they are.
QString sandboxedTunnel(const QString& program)
{
    if (SystemPaths::root().isEmpty() || program != QLatin1String("/opt/norbix/tools/tunnel"))
        return {};
    const QFileInfo built(SystemPaths::resolve(program));
    return built.isFile() && built.isExecutable() ? built.filePath() : QString();
}

class SimulatedProcess : public RunningProcess {
public:
    explicit SimulatedProcess(const SimulatedTerminal& terminal) : m_terminal(terminal) {}

    void doStart(const QString& program, const QStringList& arguments) override
    {
        const QString real = sandboxedTunnel(program);
        if (!real.isEmpty()) {
            // Already in the command log under its terminal path, as every command is.
            m_real = std::make_unique<QProcess>();
            connect(m_real.get(), &QProcess::readyReadStandardOutput, this, &RunningProcess::readyReadStandardOutput);
            connect(m_real.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
                    [this](int code, QProcess::ExitStatus) { emit finished(code); });
            m_real->start(real, arguments);
            return;
        }
        m_real.reset();
        m_answer = m_terminal.answer(program, arguments);
        m_done = false;
        m_running = m_answer.result.started;
        if (m_running)
            QTimer::singleShot(m_answer.delayMs, this, [this] { finish(); });
    }
    bool waitForStarted(int msecs) override { return m_real ? m_real->waitForStarted(msecs) : m_answer.result.started; }
    bool waitForFinished(int msecs) override
    {
        if (m_real)
            return m_real->waitForFinished(msecs);
        const bool wasRunning = m_running;
        finish();
        return wasRunning;
    }
    bool isRunning() const override { return m_real ? m_real->state() != QProcess::NotRunning : m_running; }
    int exitCode() const override { return m_real ? m_real->exitCode() : m_done ? m_answer.result.exitCode : 0; }
    QByteArray readAllStandardOutput() override
    {
        if (m_real)
            return m_real->readAllStandardOutput();
        return m_done ? std::exchange(m_answer.result.standardOutput, {}) : QByteArray();
    }
    QByteArray readAllStandardError() override
    {
        if (m_real)
            return m_real->readAllStandardError();
        return m_done ? std::exchange(m_answer.result.standardError, {}) : QByteArray();
    }
    void terminate() override
    {
        if (m_real)
            m_real->terminate();
        else
            kill();
    }
    void kill() override
    {
        if (m_real) {
            m_real->kill();
            return;
        }
        if (!m_running)
            return;
        m_answer.result.exitCode = 15;
        m_answer.result.standardOutput.clear();
        finish();
    }

private:
    void finish()
    {
        if (!m_running)
            return;
        m_running = false;
        m_done = true;
        if (!m_answer.result.standardOutput.isEmpty())
            emit readyReadStandardOutput();
        emit finished(m_answer.result.exitCode);
    }

    const SimulatedTerminal& m_terminal;
    std::unique_ptr<QProcess> m_real; // the tunnel, when it is let through to run for real
    SimulatedTerminal::Answer m_answer;
    bool m_running = false;
    bool m_done = false;
};

} // namespace

SimulatedTerminal::Answer SimulatedTerminal::finished(int exitCode, const QByteArray& out, const QByteArray& err)
{
    Answer answer;
    answer.result.started = true;
    answer.result.finished = true;
    answer.result.exitCode = exitCode;
    answer.result.standardOutput = out;
    answer.result.standardError = err;
    return answer;
}

QByteArray SimulatedTerminal::fixture(const QString& name)
{
    QFile file(QStringLiteral(":/simulation/") + name);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning() << "simulated terminal: missing fixture" << name;
        return {};
    }
    return file.readAll();
}

SimulatedTerminal::SimulatedTerminal()
{
    initFixtureResources();
    m_rules = JsonText::parse(fixture(QStringLiteral("commands.json"))).array();
    prepareSandbox();
}

void SimulatedTerminal::prepareSandbox()
{
    if (SystemPaths::root().isEmpty())
        return;
    for (const char* dir : {"/opt/norbix/tools", "/media/NORBIX-USB", "/usr/local/share/ca-certificates", "/etc"})
        QDir().mkpath(SystemPaths::resolve(QLatin1String(dir)));
    SimulatedCertificates::seedSandbox();
    SimulatedDevices::seedSandbox();
}

void SimulatedTerminal::addHandler(const Handler& handler)
{
    QMutexLocker locker(&g_handlersMutex);
    handlers().push_back(handler);
}

SimulatedTerminal::Answer SimulatedTerminal::answer(const QString& program, const QStringList& arguments) const
{
    {
        QMutexLocker locker(&g_handlersMutex);
        const auto& list = handlers();
        for (auto it = list.rbegin(); it != list.rend(); ++it) {
            if (auto answer = (*it)(program, arguments))
                return *answer;
        }
    }
    if (auto answer = bashMkdir(program, arguments))
        return *answer;
    if (auto answer = sudoCopy(program, arguments))
        return *answer;
    if (auto answer = rdpClient(program, arguments))
        return *answer;
    if (auto answer = portScan(program, arguments))
        return *answer;
    if (auto answer = SimulatedCertificates::answer(program, arguments))
        return *answer;
    if (auto answer = SimulatedDisplays::answer(program, arguments))
        return *answer;
    if (auto answer = SimulatedTime::answer(program, arguments))
        return *answer;
    if (auto answer = SimulatedNetwork::answer(program, arguments))
        return *answer;
    if (auto answer = SimulatedDevices::answer(program, arguments))
        return *answer;
    if (auto answer = fromTable(program, arguments))
        return *answer;
    return succeeded();
}

// Rules: {"program", "args" (exact) or "argsMatch" (regex over the arguments joined by blanks),
// "stdout"/"stderr" (fixture file names) or "stdoutText", "exit", "delayMs"}; the first match wins.
std::optional<SimulatedTerminal::Answer> SimulatedTerminal::fromTable(const QString& program, const QStringList& arguments) const
{
    const QString joined = arguments.join(QLatin1Char(' '));
    for (const QJsonValue& value : m_rules) {
        const QJsonObject rule = value.toObject();
        if (rule.value(QLatin1String("program")).toString() != program)
            continue;
        if (rule.contains(QLatin1String("args"))) {
            QStringList expected;
            for (const QJsonValue& arg : rule.value(QLatin1String("args")).toArray())
                expected << arg.toString();
            if (expected != arguments)
                continue;
        }
        if (rule.contains(QLatin1String("argsMatch"))) {
            const QRegularExpression re(QLatin1Char('^') + rule.value(QLatin1String("argsMatch")).toString() + QLatin1Char('$'));
            if (!re.match(joined).hasMatch())
                continue;
        }
        Answer answer = succeeded();
        if (rule.contains(QLatin1String("stdout")))
            answer.result.standardOutput = fixture(rule.value(QLatin1String("stdout")).toString());
        answer.result.standardOutput += rule.value(QLatin1String("stdoutText")).toString().toUtf8();
        if (rule.contains(QLatin1String("stderr")))
            answer.result.standardError = fixture(rule.value(QLatin1String("stderr")).toString());
        answer.result.exitCode = rule.value(QLatin1String("exit")).toInt(0);
        answer.delayMs = rule.value(QLatin1String("delayMs")).toInt(0);
        return answer;
    }
    return std::nullopt;
}

CommandResult SimulatedTerminal::execute(const QString& program, const QStringList& arguments)
{
    return answer(program, arguments).result;
}

bool SimulatedTerminal::executeDetached(const QString& program, const QStringList& arguments, qint64* pid)
{
    if (pid)
        *pid = 0;
    return answer(program, arguments).result.started;
}

std::unique_ptr<RunningProcess> SimulatedTerminal::createProcess()
{
    return std::make_unique<SimulatedProcess>(*this);
}
