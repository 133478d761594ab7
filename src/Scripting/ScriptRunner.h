#pragma once

#include <QObject>
#include <QPointer>
#include <QScriptValue>
#include <QTimer>

class QAction;
class QEvent;
class QScriptEngine;
class QWidget;

// Runs the scripts that the program starts (console lines, script files, item events) so
// that the user can stop one that runs too long. The engine processes events at an interval
// while a script runs; meanwhile this application-wide filter keeps the user's input from
// the guarded window, all but the ways to stop (Escape, the stop action in a menu or on a
// button), so that no gesture, command or new scene changes the world under the script.
// Modal dialogs that a script opens keep their input. A stop aborts the outermost run, and
// scriptStopped() follows as it returns.
class ScriptRunner : public QObject
{
    Q_OBJECT

public:
    // How often a running script lets events through, in milliseconds.
    static const int processEventsInterval = 100;

    ScriptRunner(QScriptEngine* engine, QObject* parent);

    // The window whose input waits while a script runs, and the action that stops it.
    void guard(QWidget* window, QAction* stopAction);

    // Both give what the engine gives, or an invalid value for a run that was stopped.
    QScriptValue evaluate(const QString& program, const QString& fileName = QString(),
                          int lineNumber = 1);
    QScriptValue call(QScriptValue function, const QScriptValue& thisObject,
                      const QScriptValueList& arguments);

    // Whether a script is under way; events then come only from inside it.
    bool isRunning() const;

public slots:
    // Aborts the run under way, if any.
    void stop();

signals:
    // A script has run long enough to process events (true), or the engine is idle again.
    void runningChanged(bool running);
    // A stopped run has returned.
    void scriptStopped();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QScriptValue finish(const QScriptValue& result);
    void clearAbort();
    void noticeRunning();
    void onWatch();
    bool isGuarded(QObject* target) const;
    bool isStopControl(QObject* target, QEvent* event) const;

    QScriptEngine* engine;
    QPointer<QWidget> window;
    QPointer<QAction> stopAction;
    // Runs started here and not yet finished.
    int depth = 0;
    // Looks, while a script runs, for the moment the engine is idle again.
    QTimer watch;
    bool noticed = false;
    // Asked for and not yet taken effect.
    bool stopRequested = false;
};
