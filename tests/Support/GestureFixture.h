#pragma once

#include "ToolFixture.h"

#include <QTest>

// For the tests of tools whose gestures can be started and finished in a test-specific way:
// the checks that an abandoned gesture leaves no trace.
class GestureFixture : protected ToolFixture
{
protected:
    virtual ~GestureFixture() = default;

    // Starts a gesture of a tool without finishing it, and finishes it as the tool would.
    virtual void beginGesture(MainWindow::ActionId id) = 0;
    virtual void endGesture(MainWindow::ActionId id) = 0;

    // Escape in the middle of a gesture hides the preview, pushes nothing, makes nothing and
    // keeps the tool.
    void checkEscapeDropsTheGesture(MainWindow::ActionId id)
    {
        const int items = world()->items().size();
        selectTool(id);
        beginGesture(id);
        QCOMPARE(shownPreviews().size(), 1);
        QTest::keyClick(view(), Qt::Key_Escape);
        QVERIFY(shownPreviews().isEmpty());
        endGesture(id);
        QCOMPARE(stack()->count(), 0);
        QCOMPARE(world()->items().size(), items);
        QCOMPARE(view()->currentAction, tool(id));
        QVERIFY(window()->action(id)->isChecked());
    }

    // Choosing another tool in the middle of a gesture drops it without a trace: the release
    // goes to the new tool, and back at the old tool a whole gesture makes one command.
    void checkChangeOfToolDropsTheGesture(MainWindow::ActionId id)
    {
        const int items = world()->items().size();
        selectTool(id);
        beginGesture(id);
        QCOMPARE(shownPreviews().size(), 1);
        selectTool(MainWindow::ActionId::Select);
        QVERIFY(shownPreviews().isEmpty());
        endGesture(id);
        QCOMPARE(stack()->count(), 0);
        QCOMPARE(world()->items().size(), items);
        QCOMPARE(view()->currentAction, tool(MainWindow::ActionId::Select));
        selectTool(id);
        beginGesture(id);
        endGesture(id);
        QCOMPARE(stack()->count(), 1);
    }
};
