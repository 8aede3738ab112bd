#pragma once

#include <QObject>
#include <QStringList>

// The first-run wizard's course: which steps a new terminal is taken through, where it stands and
// where it resumes after a power cut. The steps' pages apply their settings through the ordinary
// backends; this object only decides the order and records progress.
//
// Progress lives in /data/norbix/wizard_progress (JSON, written whole and atomically); the wizard
// is done once /data/norbix/wizard_lock exists, and the progress file goes with it.
class WizardBackend : public QObject {
    Q_OBJECT
    Q_PROPERTY(QStringList steps READ steps NOTIFY stepsChanged)
    Q_PROPERTY(QString currentStep READ currentStep NOTIFY currentStepChanged)
    Q_PROPERTY(int stepIndex READ stepIndex NOTIFY currentStepChanged)
    Q_PROPERTY(int stepCount READ stepCount NOTIFY stepsChanged)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY currentStepChanged)
    Q_PROPERTY(bool lastStep READ isLastStep NOTIFY currentStepChanged)
    Q_PROPERTY(bool done READ isDone NOTIFY doneChanged)
public:
    struct Progress {
        QStringList steps;
        QString current;
    };

    explicit WizardBackend(QObject* parent = nullptr);

    // Every step in the order it is shown: language, keyboard, network, time, management.
    static QStringList allSteps();
    // The steps this terminal still needs: a language, layouts, time settings or a management
    // server that an imported or pushed settings set already brought are not asked for again.
    static QStringList stepsNeeded();

    // The progress file's text and back. A file that does not parse, names unknown steps or a
    // current step outside its list reads as no progress (nullopt-like: empty steps).
    static Progress parseProgress(const QByteArray& json);
    static QByteArray serializeProgress(const Progress& progress);

    Q_INVOKABLE bool isNeeded() const;
    // Picks up where a previous run stopped, or begins with the steps still needed.
    Q_INVOKABLE void start();
    // The current step's page has applied its settings; move on.
    Q_INVOKABLE void next();
    // Leave the current step as it is; move on.
    Q_INVOKABLE void skip();
    Q_INVOKABLE void back();
    // Jumps to a step of the course (previews); false when the step is not part of it.
    Q_INVOKABLE bool goTo(const QString& step);
    // Writes wizard_lock and forgets the progress; the wizard never comes back.
    Q_INVOKABLE void finish();

    QStringList steps() const { return m_steps; }
    QString currentStep() const;
    int stepIndex() const { return m_index; }
    int stepCount() const { return m_steps.size(); }
    bool canGoBack() const { return m_index > 0; }
    bool isLastStep() const { return m_index == m_steps.size() - 1; }
    bool isDone() const { return m_done; }

signals:
    void stepsChanged();
    void currentStepChanged();
    void doneChanged();

private:
    void moveTo(int index);
    void saveProgress() const;

    QStringList m_steps;
    int m_index = 0;
    bool m_done = false;
};
