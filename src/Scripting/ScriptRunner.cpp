#include "Scripting/ScriptRunner.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScriptEngine>
#include <QToolButton>
#include <QWidget>

namespace {
bool isUserInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

bool isKey(QEvent* event, std::initializer_list<int> keys)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}
} // namespace

ScriptRunner::ScriptRunner(QScriptEngine* engine, QObject* parent)
    : QObject(parent)
    , engine(engine)
{
    engine->setProcessEventsInterval(processEventsInterval);
    watch.setInterval(processEventsInterval);
    connect(&watch, &QTimer::timeout, this, &ScriptRunner::onWatch);
    qApp->installEventFilter(this);
}

void ScriptRunner::guard(QWidget* guardedWindow, QAction* action)
{
    window = guardedWindow;
    stopAction = action;
}

QScriptValue ScriptRunner::evaluate(const QString& program, const QString& fileName, int lineNumber)
{
    ++depth;
    return finish(engine->evaluate(program, fileName, lineNumber));
}

QScriptValue ScriptRunner::call(QScriptValue function, const QScriptValue& thisObject,
                                const QScriptValueList& arguments)
{
    ++depth;
    // In a context of its own a call counts for the engine as an evaluation, which it can
    // abort; from the global context it would not.
    engine->pushContext();
    const QScriptValue result = function.call(thisObject, arguments);
    engine->popContext();
    return finish(result);
}

QScriptValue ScriptRunner::finish(const QScriptValue& result)
{
    // An inner run that was stopped leaves the abort standing, so the runs around it end too.
    if (--depth > 0 || !stopRequested)
        return result;
    clearAbort();
    return QScriptValue();
}

void ScriptRunner::clearAbort()
{
    stopRequested = false;
    // The engine keeps aborting every run until it evaluates again.
    engine->evaluate(QString());
    engine->clearExceptions();
    emit scriptStopped();
}

bool ScriptRunner::isRunning() const
{
    return depth > 0 || engine->isEvaluating();
}

void ScriptRunner::stop()
{
    if (!engine->isEvaluating())
        return;
    noticeRunning();
    stopRequested = true;
    engine->abortEvaluation();
}

void ScriptRunner::noticeRunning()
{
    if (noticed)
        return;
    noticed = true;
    watch.start();
    emit runningChanged(true);
}

void ScriptRunner::onWatch()
{
    if (isRunning())
        return;
    watch.stop();
    noticed = false;
    emit runningChanged(false);
    // A script that the engine ran by itself, for a signal, was stopped.
    if (stopRequested)
        clearAbort();
}

bool ScriptRunner::eventFilter(QObject* watched, QEvent* event)
{
    // Events reach this filter during an evaluation only when the engine processes them.
    if (!isRunning())
        return false;
    noticeRunning();
    if (!isUserInput(event->type()))
        return false;
    if (QApplication::activeModalWidget())
        return false;
    if (isKey(event, {Qt::Key_Escape})) {
        stop();
    } else if (!isGuarded(watched) || isStopControl(watched, event)) {
        return false;
    } else if (event->type() == QEvent::Close) {
        // Closing waits for the script; the user can close again once it has ended.
        event->ignore();
        return true;
    }
    // Accepted, an override keeps the shortcuts of the key from firing.
    event->accept();
    return true;
}

bool ScriptRunner::isGuarded(QObject* target) const
{
    for (QObject* object = target; object; object = object->parent()) {
        if (object == window)
            return true;
    }
    return false;
}

bool ScriptRunner::isStopControl(QObject* target, QEvent* event) const
{
    if (auto* button = qobject_cast<QToolButton*>(target))
        return button->defaultAction() && button->defaultAction() == stopAction;
    // The menu bar only opens menus; in a menu, only the stop entry or a submenu is chosen.
    if (qobject_cast<QMenuBar*>(target))
        return true;
    auto* menu = qobject_cast<QMenu*>(target);
    if (!menu)
        return false;
    QAction* chosen = nullptr;
    if (event->type() == QEvent::MouseButtonRelease) {
        chosen = menu->actionAt(static_cast<QMouseEvent*>(event)->pos());
    } else if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        // Arrows move through the menu; letters would choose entries by their mnemonics.
        if (isKey(event, {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right}))
            return true;
        if (!isKey(event, {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select}))
            return false;
        chosen = menu->activeAction();
    } else {
        return true;
    }
    return !chosen || chosen->menu() || chosen == stopAction;
}
