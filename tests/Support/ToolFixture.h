#pragma once

#include "Application/Application.h"
#include "Application/Settings.h"
#include "Commands/Command.h"
#include "Gui/MainWindow.h"
#include "Physics/PhysicsWorld.h"
#include "Tools/GraphicsViewAction.h"
#include "View/GraphicsView.h"
#include "ViewGestures.h"

#include <QAction>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QLineF>
#include <QSignalSpy>
#include <QUndoStack>
#include <cmath>

// What the tests of the tools share: the running program's window, view, world and stack, the
// choice of a tool through its action as a user makes it, and the previews that tools show.
class ToolFixture
{
protected:
    static MainWindow* window() { return Application::instance()->mainWindow; }
    static GraphicsView* view() { return window()->graphicsView(); }
    static PhysicsWorld* world() { return PhysicsWorld::instance(); }
    static QUndoStack* stack() { return Application::instance()->undoStack; }
    static ViewGestures gestures() { return ViewGestures(view()); }

    static GraphicsViewAction* tool(MainWindow::ActionId id)
    {
        return qobject_cast<GraphicsViewAction*>(window()->action(id));
    }
    // As a click on the tool's button: the window cancels the old tool and switches.
    static void selectTool(MainWindow::ActionId id) { window()->action(id)->trigger(); }

    // The start-up's first scene arrives from the event loop a little after start.
    static bool waitForFirstScene()
    {
        QSignalSpy created(Application::instance(), &Application::fileCreated);
        return created.wait(5000);
    }
    // A new scene without ground, the Select tool current and the view as a new scene has it.
    static void newEmptyScene()
    {
        selectTool(MainWindow::ActionId::Select);
        Application::instance()->newFile(false);
    }

    // Object snapping is on by default; most tests want the points as the mouse gives them.
    static void snapNowhere()
    {
        Settings::instance()->setSnapToGrid(false);
        Settings::instance()->setSnapToObjects(false);
    }

    // The previews shown now: visible scene items at the previews' height, above all items.
    static QList<QGraphicsItem*> shownPreviews()
    {
        QList<QGraphicsItem*> shown;
        for (QGraphicsItem* item : view()->scene()->items()) {
            if (item->isVisible() && item->zValue() == 100000.0)
                shown.append(item);
        }
        return shown;
    }
    template<typename Item> static Item* shownPreview()
    {
        const QList<QGraphicsItem*> shown = shownPreviews();
        return shown.size() == 1 ? dynamic_cast<Item*>(shown.first()) : nullptr;
    }

    // The item that the command on top of the stack made.
    template<typename CommandClass, typename Item> static Item* topItem()
    {
        if (stack()->count() == 0)
            return nullptr;
        const auto* command
            = dynamic_cast<const CommandClass*>(stack()->command(stack()->count() - 1));
        return command ? dynamic_cast<Item*>(command->item()) : nullptr;
    }

    // An anchor property as items write it: "x,y".
    static QPointF pointFromText(const QString& text)
    {
        const QStringList parts = text.split(QLatin1Char(','));
        return parts.size() == 2 ? QPointF(parts.at(0).toDouble(), parts.at(1).toDouble())
                                 : QPointF(qQNaN(), qQNaN());
    }
    // Anchors are written with six significant digits.
    static bool nearPoint(const QString& anchor, const QPointF& expected)
    {
        return QLineF(pointFromText(anchor), expected).length() < 1e-4;
    }

    // Box2D keeps single precision.
    static bool near(double actual, double expected, double tolerance = 1e-5)
    {
        return std::abs(actual - expected) <= tolerance;
    }
};
