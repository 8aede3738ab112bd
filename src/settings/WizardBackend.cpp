#include "WizardBackend.h"

#include "AtomicFile.h"
#include "JsonText.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

namespace {

const QString kLanguage = QStringLiteral("language");
const QString kKeyboard = QStringLiteral("keyboard");
const QString kNetwork = QStringLiteral("network");
const QString kTime = QStringLiteral("time");
const QString kManagement = QStringLiteral("management");

QString progressPath()
{
    return SystemPaths::dataFile(QStringLiteral("wizard_progress"));
}

QString lockPath()
{
    return SystemPaths::dataFile(QStringLiteral("wizard_lock"));
}

bool iniHasValue(const QString& file, const QString& key)
{
    const QString path = SystemPaths::dataFile(file);
    if (!QFile::exists(path))
        return false;
    // "us,de" written without quotes reads back as a list.
    const QVariant value = QSettings(path, QSettings::IniFormat).value(key);
    const QString text = value.type() == QVariant::StringList ? value.toStringList().join(QLatin1Char(',')) : value.toString();
    return !text.trimmed().isEmpty();
}

} // namespace

WizardBackend::WizardBackend(QObject* parent) : QObject(parent) {}

QStringList WizardBackend::allSteps()
{
    return {kLanguage, kKeyboard, kNetwork, kTime, kManagement};
}

QStringList WizardBackend::stepsNeeded()
{
    QStringList steps;
    if (!iniHasValue(QStringLiteral("language.ini"), QStringLiteral("Language")))
        steps << kLanguage;
    if (!iniHasValue(QStringLiteral("keyboard.ini"), QStringLiteral("Layouts")))
        steps << kKeyboard;
    // Whether the network works is only known by trying; the step shows the state and offers Wi-Fi.
    steps << kNetwork;
    if (!QFile::exists(SystemPaths::dataFile(QStringLiteral("time.ini"))))
        steps << kTime;
    if (!iniHasValue(QStringLiteral("api.ini"), QStringLiteral("URL")))
        steps << kManagement;
    return steps;
}

WizardBackend::Progress WizardBackend::parseProgress(const QByteArray& json)
{
    QJsonParseError error{};
    const QJsonDocument document = JsonText::parse(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return {};
    const QJsonObject object = document.object();
    const QJsonValue stepsValue = object.value(QStringLiteral("steps"));
    const QJsonValue currentValue = object.value(QStringLiteral("current"));
    if (!stepsValue.isArray() || !currentValue.isString())
        return {};
    const QStringList known = allSteps();
    Progress progress;
    for (const QJsonValue& step : stepsValue.toArray()) {
        const QString name = step.toString();
        if (!known.contains(name) || progress.steps.contains(name))
            return {};
        progress.steps << name;
    }
    progress.current = currentValue.toString();
    if (!progress.steps.contains(progress.current))
        return {};
    return progress;
}

QByteArray WizardBackend::serializeProgress(const Progress& progress)
{
    QJsonObject object;
    object.insert(QStringLiteral("steps"), QJsonArray::fromStringList(progress.steps));
    object.insert(QStringLiteral("current"), progress.current);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

bool WizardBackend::isNeeded() const
{
    return !QFile::exists(lockPath());
}

void WizardBackend::start()
{
    m_done = !isNeeded();
    if (m_done) {
        emit doneChanged();
        return;
    }
    QFile file(progressPath());
    Progress progress;
    if (file.open(QIODevice::ReadOnly))
        progress = parseProgress(file.readAll());
    if (progress.steps.isEmpty()) {
        progress.steps = stepsNeeded();
        progress.current = progress.steps.value(0);
        if (file.exists())
            qWarning() << "Wizard progress unreadable, starting over";
    } else {
        qInfo().noquote() << "Wizard resumes at " + progress.current;
    }
    m_steps = progress.steps;
    emit stepsChanged();
    moveTo(qMax(0, m_steps.indexOf(progress.current)));
}

QString WizardBackend::currentStep() const
{
    return m_steps.value(m_index);
}

void WizardBackend::next()
{
    if (m_done || m_steps.isEmpty())
        return;
    if (isLastStep()) {
        finish();
        return;
    }
    moveTo(m_index + 1);
}

void WizardBackend::skip()
{
    if (!m_done && !m_steps.isEmpty())
        qInfo().noquote() << "Wizard step skipped: " + currentStep();
    next();
}

void WizardBackend::back()
{
    if (!m_done && canGoBack())
        moveTo(m_index - 1);
}

bool WizardBackend::goTo(const QString& step)
{
    const int index = m_steps.indexOf(step);
    if (m_done || index < 0)
        return false;
    moveTo(index);
    return true;
}

void WizardBackend::finish()
{
    if (m_done)
        return;
    QFile lock(lockPath());
    if (!lock.open(QIODevice::WriteOnly)) {
        qWarning().noquote() << "Cannot create " + lockPath() + ": " + lock.errorString();
        return;
    }
    lock.close();
    QFile::remove(progressPath());
    qInfo() << "Wizard finished";
    m_done = true;
    emit doneChanged();
}

void WizardBackend::moveTo(int index)
{
    m_index = index;
    saveProgress();
    emit currentStepChanged();
}

void WizardBackend::saveProgress() const
{
    if (m_steps.isEmpty())
        return;
    if (!AtomicFile::write(progressPath(), serializeProgress({m_steps, currentStep()})))
        qWarning().noquote() << "Cannot save wizard progress to " + progressPath();
}
