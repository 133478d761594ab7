// Makes the pictures of the help pages: it starts the program as a first start does, builds
// small scenes, works the tools with the mouse as a hand would, and saves parts of the window
// as PNG files in <help folder>/images. It also runs the worked examples of scripting.html,
// taken from the page itself, and fails if one of them does not do what the page says. Run it
// again whenever the window, a tool or an example changes:
//   ninja -C build MakeHelpPictures
//   xvfb-run -a -s "-screen 0 1600x1000x24" build/bin/MakeHelpPictures doc/en
// It needs a display, a real one or Xvfb. It starts without settings: a Brivane.ini beside it
// is set aside for the run and put back afterwards.
#include "Application/Application.h"
#include "Application/Settings.h"
#include "Gui/ExportDialog.h"
#include "Gui/MainWindow.h"
#include "Gui/PlotWidget.h"
#include "Physics/BodyItem.h"
#include "Physics/CircleItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Scripting/ConsoleWidget.h"
#include "Tools/GraphicsViewAction.h"
#include "View/CameraGraphicsView.h"
#include "View/GraphicsView.h"
#include "ViewGestures.h"
#include "Web/DownloadDialog.h"
#include "Web/UploadDialog.h"

#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QGraphicsItem>
#include <QMetaEnum>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>
#include <cmath>
#include <cstdio>
#include <functional>

namespace {
using Id = MainWindow::ActionId;

// Sizes of the pictures in pixels: a tool at work, and each half of a before-and-after pair.
const QSize toolSize(300, 200);
const QSize halfSize(220, 180);
const int arrowWidth = 40;
// The zoom of the tool pictures, in pixels per metre.
const double toolScale = 40.0;

// The colours of the program's artwork, for the bodies that the pictures build.
const QColor blue(0x3d, 0x7b, 0xe0);
const QColor orange(0xf0, 0x8c, 0x2a);
const QColor green(0x3a, 0xa6, 0x55);
const QColor red(0xd9, 0x46, 0x3b);
const QColor yellow(0xf2, 0xc9, 0x4c);
const QColor grey(0x8a, 0x93, 0xa3);

// "DistanceJoint" as a file name: "distance-joint".
QString fileNameOf(const char* key)
{
    QString name;
    for (const QChar c : QLatin1String(key)) {
        if (c.isUpper() && !name.isEmpty())
            name += QLatin1Char('-');
        name += c.toLower();
    }
    return name;
}

// Two pictures side by side with an arrow from the first to the second.
QImage beside(const QImage& before, const QImage& after)
{
    QImage pair(before.width() + arrowWidth + after.width(), qMax(before.height(), after.height()),
                QImage::Format_RGB32);
    pair.fill(Qt::white);
    QPainter painter(&pair);
    painter.drawImage(0, 0, before);
    painter.drawImage(before.width() + arrowWidth, 0, after);
    painter.setRenderHint(QPainter::Antialiasing);
    const double y = pair.height() / 2.0;
    const double left = before.width() + 8.0;
    const double right = before.width() + arrowWidth - 8.0;
    painter.setPen(QPen(grey, 4.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(left, y), QPointF(right - 6.0, y));
    painter.setPen(Qt::NoPen);
    painter.setBrush(grey);
    painter.drawPolygon(QPolygonF(
        {QPointF(right, y), QPointF(right - 10.0, y - 8.0), QPointF(right - 10.0, y + 8.0)}));
    return pair;
}

// A worked example of the scripting page: the code in its <pre id="..."> block is run as a
// script file, the world is stepped, and `check`, a script expression, must then be true.
// A `key` other than Qt::Key_unknown is held down for the last `keySteps` of the steps.
// The picture of the result shows the scene around `centre`, in metres, at `scale` pixels
// per metre.
struct Example
{
    const char* id;
    int steps;
    Qt::Key key;
    int keySteps;
    const char* check;
    QPointF centre;
    double scale;
};

const Example examples[] = {
    {"example-pyramid", 45, Qt::Key_unknown, 0,
     "blocks.length == 55 && world.bodyItems().length == 59 && ball.X > 0", QPointF(1.5, 5.2),
     24.0},
    {"example-events", 150, Qt::Key_Right, 40,
     "hits > 0 && paddle.X > 2 && paddle.LinearVelocityX == 0", QPointF(0.0, 3.5), 28.0},
    {"example-copies", 90, Qt::Key_unknown, 0,
     "world.bodyItems().length == 18 && world.jointItems().length == 8 && cart.X > -7 && "
     "balls[4].Restitution == ball.Restitution",
     QPointF(-1.0, 3.5), 28.0},
};
} // namespace

// Builds each picture in a scene of its own, in the one running program.
class HelpPictures
{
public:
    explicit HelpPictures(const QString& helpDirectory)
        : help(helpDirectory)
        , images(helpDirectory + QStringLiteral("/images"))
        , window(Application::instance()->mainWindow)
        , view(window->graphicsView())
        , world(PhysicsWorld::instance())
        , gestures(view)
    {
    }

    // False, with a message, when a picture cannot be saved or an example fails.
    bool makeAll()
    {
        if (!QDir().mkpath(images.path())) {
            fail(QStringLiteral("Cannot create ") + images.path());
            return false;
        }
        // Pictures show points where the mouse put them, not where they snapped.
        Settings::instance()->setSnapToObjects(false);
        makeIcons();
        makeWindow();
        // Drawn in a corner of the part of the view that a picture shows, it would stand over
        // the scene.
        Settings::instance()->setShowScaleIndicator(false);
        makeGeneralTools();
        makeBodyTools();
        makeJointTools();
        makeBooleanTools();
        makeSnapping();
        makePanels();
        makeDialogs();
        makeExamples();
        return succeeded;
    }

private:
    // --- Scenes and the view ---

    // An empty scene with the Select tool, as after New Scene without ground.
    void newScene()
    {
        choose(Id::Select);
        Application::instance()->newFile(false);
    }

    // A static floor whose top lies at y = 0.
    BodyItem* floor(double x, double width)
    {
        BodyItem* body = world->createRectangle(x, -0.25, 0.0, width, 0.5);
        body->setBodyType(BodyItem::StaticBody);
        body->setBrush(QBrush(grey));
        return body;
    }

    BodyItem* box(double x, double y, double w, double h, const QColor& color)
    {
        BodyItem* body = world->createRectangle(x, y, 0.0, w, h);
        body->setBrush(QBrush(color));
        return body;
    }

    BodyItem* ball(double x, double y, double r, const QColor& color)
    {
        BodyItem* body = world->createCircle(x, y, 0.0, r);
        body->setBrush(QBrush(color));
        return body;
    }

    void run(int steps)
    {
        for (int i = 0; i < steps; ++i)
            world->step();
    }

    void choose(Id id) { window->action(id)->trigger(); }

    void look(const QPointF& centre, double pixelsPerMetre = toolScale)
    {
        view->setScale(pixelsPerMetre);
        view->centerOn(centre);
    }

    // --- The mouse, which the pictures draw where the tools last saw it ---

    void press(const QPointF& p)
    {
        mouse = gestures.pixel(p);
        gestures.press(p);
    }
    void release(const QPointF& p)
    {
        mouse = gestures.pixel(p);
        gestures.release(p);
    }
    void hover(const QPointF& p)
    {
        mouse = gestures.pixel(p);
        gestures.move(p);
    }
    void click(const QPointF& p)
    {
        mouse = gestures.pixel(p);
        gestures.click(p);
    }
    // Presses and moves with the left button held along a path, one move per `spacing` metres
    // at most, as a hand gives them; the release is left to the caller.
    void dragAlong(const std::function<QPointF(double)>& path, double length, double spacing = 0.1)
    {
        const int moves = qMax(4, int(std::ceil(length / spacing)));
        press(path(0.0));
        for (int i = 1; i <= moves; ++i) {
            const QPointF p = path(double(i) / moves);
            mouse = gestures.pixel(p);
            gestures.move(p, Qt::LeftButton);
        }
    }
    void drag(const QPointF& from, const QPointF& to)
    {
        dragAlong([from, to](double t) { return from + (to - from) * t; },
                  QLineF(from, to).length());
    }

    // --- Pictures ---

    // The middle of the view at the given size, with the cursor of the current tool drawn
    // where the mouse is: the pointer with the tool's icon beside it, as the tools show it.
    QImage shot(const QSize& size, bool withCursor = true)
    {
        QCoreApplication::processEvents();
        const QRect viewport = view->viewport()->geometry();
        const QRect area(viewport.center() - QPoint(size.width() / 2, size.height() / 2), size);
        QImage image = view->grab(area).toImage();
        if (withCursor) {
            QPainter painter(&image);
            painter.translate(viewport.topLeft() + mouse - area.topLeft());
            const QIcon pointer(QStringLiteral(":/icons/mousePointer.png"));
            painter.drawPixmap(0, 0, pointer.pixmap(20, 20));
            const QAction* tool = view->currentAction;
            if (tool != window->action(Id::Select))
                painter.drawPixmap(12, 0, tool->icon().pixmap(20, 20));
        }
        return image;
    }

    void fail(const QString& message)
    {
        qCritical("%s", qPrintable(message));
        succeeded = false;
    }

    void save(const QImage& image, const QString& name)
    {
        const QString path = images.filePath(name + QStringLiteral(".png"));
        if (!image.save(path, "PNG"))
            fail(QStringLiteral("Cannot write ") + path);
    }

    // A widget as it shows, cut to at most `most` pixels.
    void saveWidget(QWidget* widget, const QString& name, const QSize& most)
    {
        QCoreApplication::processEvents();
        const QSize size = widget->size().boundedTo(most);
        save(widget->grab(QRect(QPoint(), size)).toImage(), name);
    }

    // The icons of the toolbars, for the pages that name the buttons.
    void makeIcons()
    {
        const QMetaEnum ids = QMetaEnum::fromType<Id>();
        for (int i = 0; i < int(Id::Count); ++i) {
            const QIcon icon = window->action(Id(i))->icon();
            if (!icon.isNull())
                save(icon.pixmap(24, 24).toImage(),
                     QStringLiteral("icon-") + fileNameOf(ids.key(i)));
        }
        for (const char* name : {"pause", "snapToGrid", "snapToObjects", "perspective"}) {
            save(QIcon(QStringLiteral(":/icons/%1.png").arg(QLatin1String(name)))
                     .pixmap(24, 24)
                     .toImage(),
                 QStringLiteral("icon-") + fileNameOf(name));
        }
    }

    // The whole window at half size, its parts numbered as the getting started page lists
    // them.
    void makeWindow()
    {
        Application::instance()->load(Application::dataDirectory(QStringLiteral("saves"))
                                      + QStringLiteral("/car.scene"));
        QCoreApplication::processEvents();
        if (!world->bodyItems().isEmpty())
            world->bodyItems().last()->graphicsItem()->setSelected(true);
        QImage image = window->grab().toImage().scaled(window->size() / 2, Qt::IgnoreAspectRatio,
                                                       Qt::SmoothTransformation);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QFont font = painter.font();
        font.setBold(true);
        font.setPixelSize(13);
        painter.setFont(font);
        // Each badge stands this far right of its part's left edge, clear of its first words.
        const struct
        {
            const QWidget* widget;
            double offset;
        } parts[] = {
            {window->findChild<QToolBar*>(QStringLiteral("GeneralToolbar")), 40.0},
            {window->findChild<QToolBar*>(QStringLiteral("SnapToolbar")), 40.0},
            {window->findChild<QDockWidget*>(QStringLiteral("QuickLoadDockWidget")), 80.0},
            {view, 12.0},
            {window->findChild<QDockWidget*>(QStringLiteral("PropertyEditorDockWidget")), 80.0},
            {window->statusBar(), 160.0},
        };
        int number = 1;
        for (const auto& part : parts) {
            if (!part.widget || !part.widget->isVisible())
                continue;
            const QPointF corner = QPointF(part.widget->mapTo(window, QPoint(0, 0))) / 2.0;
            QRectF badge(corner + QPointF(part.offset, 2.0), QSizeF(18, 18));
            badge.moveBottom(qMin(badge.bottom(), image.height() - 1.0));
            painter.setPen(QPen(Qt::white, 1.5));
            painter.setBrush(red);
            painter.drawEllipse(badge);
            painter.drawText(badge, Qt::AlignCenter, QString::number(number++));
        }
        painter.end();
        save(image, QStringLiteral("window"));
    }

    void makeGeneralTools()
    {
        // Select: a band from empty space selects what it touches.
        newScene();
        floor(0.0, 7.0);
        box(-2.0, 0.5, 1.0, 1.0, blue);
        box(-0.6, 0.75, 1.2, 1.5, orange);
        ball(1.6, 0.6, 0.6, green);
        look(QPointF(0.0, 2.0));
        choose(Id::Select);
        drag(QPointF(-3.2, 4.0), QPointF(-0.2, 0.7));
        save(shot(toolSize), QStringLiteral("tool-select"));
        release(QPointF(-0.2, 0.7));

        // Remove: a band takes what it touches, and the joints that hang on it.
        newScene();
        floor(0.0, 6.0);
        BodyItem* left = box(-1.5, 0.5, 1.0, 1.0, blue);
        BodyItem* right = ball(0.5, 0.5, 0.5, orange);
        world->createDistanceJoint(left, right, QPointF(-1.5, 0.5), QPointF(0.5, 0.5));
        box(1.9, 0.4, 0.8, 0.8, green);
        look(QPointF(0.0, 0.9), 50.0);
        choose(Id::Remove);
        drag(QPointF(-2.1, 1.4), QPointF(-0.4, 0.2));
        const QImage band = shot(halfSize);
        release(QPointF(-0.4, 0.2));
        save(beside(band, shot(halfSize)), QStringLiteral("tool-remove"));

        // Explode: a click breaks the body into pieces, here circles.
        newScene();
        floor(0.0, 6.0);
        box(0.0, 1.0, 2.4, 2.0, orange);
        look(QPointF(0.0, 1.3));
        choose(Id::Explode);
        hover(QPointF(0.2, 1.2));
        const QImage whole = shot(halfSize);
        click(QPointF(0.2, 1.2));
        run(20);
        save(beside(whole, shot(halfSize)), QStringLiteral("tool-explode"));

        // Erase: a stroke cuts a plank in two, and the halves fall.
        newScene();
        floor(0.0, 6.0);
        for (double x : {-2.0, 2.0}) {
            BodyItem* pillar = box(x, 0.75, 0.5, 1.5, grey);
            pillar->setBodyType(BodyItem::StaticBody);
        }
        box(0.0, 1.75, 5.0, 0.5, yellow);
        Settings::instance()->setEraseSize(0.2);
        look(QPointF(0.0, 1.5));
        choose(Id::Erase);
        drag(QPointF(-0.1, 2.6), QPointF(0.1, 0.8));
        const QImage stroke = shot(halfSize);
        release(QPointF(0.1, 0.8));
        run(40);
        save(beside(stroke, shot(halfSize)), QStringLiteral("tool-erase"));

        // Camera: a window of its own follows the ball.
        newScene();
        floor(0.0, 30.0);
        BodyItem* rolling = ball(-1.0, 0.5, 0.5, red);
        rolling->setAngularVelocity(-6.0);
        box(2.0, 0.3, 0.6, 0.6, blue);
        look(QPointF(0.0, 1.5));
        Settings::instance()->setCameraMode(1);
        choose(Id::Camera);
        click(QPointF(-1.0, 0.6));
        const QImage clicked = shot(halfSize);
        world->deselectAll();
        run(30);
        auto* camera = window->findChild<CameraGraphicsView*>();
        if (camera) {
            camera->resize(halfSize);
            QTest::qWait(100);
            // Rendered rather than grabbed: its viewport may be an OpenGL widget, which a grab
            // does not read back on every display.
            QImage following(halfSize, QImage::Format_RGB32);
            following.fill(Qt::white);
            QPainter painter(&following);
            painter.setRenderHint(QPainter::Antialiasing);
            const QPoint centre = camera->viewport()->rect().center();
            camera->render(
                &painter, QRectF(),
                QRect(centre - QPoint(halfSize.width() / 2, halfSize.height() / 2), halfSize));
            painter.end();
            save(beside(clicked, following), QStringLiteral("tool-camera"));
            camera->close();
        } else {
            fail(QStringLiteral("The camera tool opened no window"));
        }

        // Gun: drag away from the way the body is to fly.
        newScene();
        floor(0.0, 40.0);
        BodyItem* shotBody = ball(-1.5, 0.4, 0.4, red);
        look(QPointF(0.0, 1.5));
        choose(Id::Gun);
        drag(QPointF(-1.5, 0.4), QPointF(-2.6, -0.2));
        const QImage aimed = shot(halfSize);
        release(QPointF(-2.6, -0.2));
        world->deselectAll();
        // Faint copies that nothing collides with mark where the ball has been.
        for (int i = 0; i < 3; ++i) {
            run(6);
            if (BodyItem* trail = world->clone(shotBody)) {
                trail->setBodyType(BodyItem::StaticBody);
                trail->setOpacity(0.15 + 0.15 * i);
                trail->setFilterCategories(QStringLiteral("P"));
                trail->setFilterMasks(QStringLiteral("P"));
            }
        }
        run(6);
        save(beside(aimed, shot(halfSize, false)), QStringLiteral("tool-gun"));

        // Plot: the speed of a bouncing ball.
        newScene();
        floor(0.0, 6.0);
        BodyItem* bouncing = ball(0.0, 4.0, 0.4, blue);
        bouncing->setRestitution(0.7);
        look(QPointF(0.0, 2.0));
        choose(Id::Plot);
        click(QPointF(0.0, 4.0));
        auto* plot = window->findChild<PlotWidget*>();
        if (plot) {
            plot->resize(460, 260);
            run(240);
            saveWidget(plot, QStringLiteral("tool-plot"), plot->size());
            plot->close();
        } else {
            fail(QStringLiteral("The plot tool opened no window"));
        }
    }

    void makeBodyTools()
    {
        // Bodies drawn by dragging: the preview as the button is still down.
        const struct
        {
            Id tool;
            QPointF from;
            QPointF to;
            const char* name;
        } drags[] = {
            {Id::Rectangle, QPointF(-1.5, 3.3), QPointF(1.3, 1.1), "tool-rectangle"},
            {Id::Circle, QPointF(0.0, 2.1), QPointF(1.3, 2.7), "tool-circle"},
            {Id::Balloon, QPointF(0.0, 2.4), QPointF(1.0, 3.0), "tool-balloon"},
            {Id::Gear, QPointF(0.0, 2.0), QPointF(1.2, 2.9), "tool-gear"},
        };
        for (const auto& d : drags) {
            newScene();
            floor(0.0, 7.0);
            box(-2.6, 0.5, 1.0, 1.0, grey);
            look(QPointF(0.0, 2.0));
            choose(d.tool);
            drag(d.from, d.to);
            save(shot(toolSize), QLatin1String(d.name));
            QTest::keyClick(view, Qt::Key_Escape);
        }

        // Polygon: three points set, the fourth follows the mouse.
        newScene();
        floor(0.0, 7.0);
        look(QPointF(0.0, 2.0));
        choose(Id::Polygon);
        for (const QPointF& p : {QPointF(-2.0, 0.8), QPointF(1.2, 0.6), QPointF(2.2, 3.0)})
            click(p);
        hover(QPointF(-0.8, 3.6));
        save(shot(toolSize), QStringLiteral("tool-polygon"));
        QTest::keyClick(view, Qt::Key_Escape);

        // Brush: a wavy stroke.
        newScene();
        floor(0.0, 7.0);
        look(QPointF(0.0, 2.0));
        choose(Id::Brush);
        dragAlong([](double t) { return QPointF(-2.8 + 5.4 * t, 2.0 + std::sin(t * 6.0) * 0.9); },
                  7.0);
        save(shot(toolSize), QStringLiteral("tool-brush"));
        QTest::keyClick(view, Qt::Key_Escape);

        // Chain and rope, pinned at both ends: the links as they are laid, and the same
        // hanging.
        Settings::instance()->setChainAttachPoint(4);
        Settings::instance()->setRopeAttachPoint(4);
        for (const auto& link :
             {std::make_pair(Id::Chain, "tool-chain"), std::make_pair(Id::Rope, "tool-rope")}) {
            newScene();
            look(QPointF(0.0, 3.2));
            choose(link.first);
            const auto path
                = [](double t) { return QPointF(-2.3 + 4.6 * t, 3.6 - 0.8 * std::sin(t * M_PI)); };
            dragAlong(path, 5.0, 0.05);
            const QImage laying = shot(halfSize);
            release(path(1.0));
            run(60);
            save(beside(laying, shot(halfSize, false)), QLatin1String(link.second));
        }

        // Text and image: the stamp follows the mouse; a click puts it down.
        newScene();
        floor(0.0, 8.0);
        look(QPointF(0.2, 1.6), 30.0);
        choose(Id::Text);
        hover(QPointF(-3.0, 1.4));
        const QImage text = shot(halfSize);
        click(QPointF(-3.0, 1.4));
        run(30);
        save(beside(text, shot(halfSize, false)), QStringLiteral("tool-text"));

        newScene();
        floor(0.0, 8.0);
        look(QPointF(0.0, 1.8));
        choose(Id::Image);
        hover(QPointF(-1.2, 3.4));
        const QImage picture = shot(halfSize);
        click(QPointF(-1.2, 3.4));
        run(45);
        save(beside(picture, shot(halfSize, false)), QStringLiteral("tool-image"));
    }

    void makeJointTools()
    {
        // Joints and the spring drawn by dragging from one body to another.
        const struct
        {
            Id tool;
            const char* name;
        } pairs[] = {
            {Id::DistanceJoint, "tool-distance-joint"},
            {Id::PrismaticJoint, "tool-prismatic-joint"},
            {Id::SpringForce, "tool-spring-force"},
        };
        for (const auto& pair : pairs) {
            newScene();
            floor(0.0, 7.0);
            box(-1.8, 2.6, 1.0, 1.0, blue);
            box(1.8, 0.5, 1.0, 1.0, orange);
            look(QPointF(0.0, 2.0));
            choose(pair.tool);
            drag(QPointF(-1.8, 2.6), QPointF(1.8, 0.6));
            const QImage preview = shot(halfSize);
            release(QPointF(1.8, 0.6));
            choose(Id::Select);
            world->deselectAll();
            save(beside(preview, shot(halfSize, false)), QLatin1String(pair.name));
        }

        // Revolute joint: the pin follows the mouse; a click joins the two top bodies.
        newScene();
        floor(0.0, 7.0);
        box(-0.5, 2.5, 3.4, 0.4, blue);
        box(1.0, 2.5, 0.4, 2.4, orange);
        look(QPointF(0.0, 2.0));
        choose(Id::RevoluteJoint);
        hover(QPointF(1.0, 2.5));
        const QImage pin = shot(halfSize);
        click(QPointF(1.0, 2.5));
        hover(QPointF(-1.9, 2.5));
        click(QPointF(-1.9, 2.5));
        run(40);
        save(beside(pin, shot(halfSize, false)), QStringLiteral("tool-revolute-joint"));

        // Pulley joint: four clicks, the last one still to come.
        newScene();
        floor(0.0, 7.0);
        box(-1.6, 0.8, 1.0, 1.0, blue);
        box(1.6, 1.4, 0.8, 0.8, orange);
        look(QPointF(0.0, 2.0));
        choose(Id::PulleyJoint);
        for (const QPointF& p : {QPointF(-1.6, 1.2), QPointF(-1.6, 3.8), QPointF(1.6, 3.8)})
            click(p);
        hover(QPointF(1.6, 1.6));
        const QImage three = shot(halfSize);
        click(QPointF(1.6, 1.6));
        choose(Id::Select);
        run(40);
        save(beside(three, shot(halfSize, false)), QStringLiteral("tool-pulley-joint"));
    }

    void makeBooleanTools()
    {
        // Hovering over two bodies shows the result; a click makes it.
        for (Id tool : {Id::Union, Id::Difference, Id::Intersection}) {
            newScene();
            box(-0.5, 1.6, 2.4, 1.6, blue);
            ball(0.7, 2.2, 1.0, orange);
            look(QPointF(0.0, 1.9));
            choose(tool);
            hover(QPointF(0.1, 1.9));
            const QImage hovering = shot(halfSize);
            click(QPointF(0.1, 1.9));
            choose(Id::Select);
            save(beside(hovering, shot(halfSize, false)),
                 QStringLiteral("tool-")
                     + fileNameOf(QMetaEnum::fromType<Id>().valueToKey(int(tool))));
        }
    }

    // The snap toolbar's buttons, as a click on each turns it on.
    void makeSnapping()
    {
        QToolButton* grid = nullptr;
        QToolButton* objects = nullptr;
        for (QToolButton* button : window->findChildren<QToolButton*>()) {
            if (button->icon().cacheKey() == 0)
                continue;
            if (button->toolTip().contains(QLatin1String("Grid")))
                grid = button;
            else if (button->toolTip().contains(QLatin1String("Objects")))
                objects = button;
        }
        if (!grid || !objects) {
            fail(QStringLiteral("The snap buttons are missing"));
            return;
        }
        newScene();
        look(QPointF(0.0, 1.5));
        grid->click();
        choose(Id::Rectangle);
        drag(QPointF(-1.9, 0.6), QPointF(1.1, 2.35));
        save(shot(toolSize), QStringLiteral("snap-grid"));
        QTest::keyClick(view, Qt::Key_Escape);

        newScene();
        box(-0.8, 1.5, 1.4, 1.4, blue);
        look(QPointF(0.0, 1.5));
        objects->click();
        choose(Id::DistanceJoint);
        drag(QPointF(-0.75, 1.45), QPointF(-0.05, 2.27));
        save(shot(toolSize), QStringLiteral("snap-objects"));
        QTest::keyClick(view, Qt::Key_Escape);
        objects->click();
    }

    QDockWidget* dock(const char* name) const
    {
        return window->findChild<QDockWidget*>(QLatin1String(name));
    }

    void makePanels()
    {
        newScene();
        floor(0.0, 8.0);
        choose(Id::Rectangle);
        drag(QPointF(-1.0, 0.5), QPointF(0.5, 1.5));
        release(QPointF(0.5, 1.5));
        choose(Id::Circle);
        drag(QPointF(2.0, 2.0), QPointF(2.5, 2.0));
        release(QPointF(2.5, 2.0));
        window->action(Id::PlayPause)->trigger();
        run(30);
        window->action(Id::PlayPause)->trigger();
        Application::instance()->undoStack->undo();
        QDockWidget* history = dock("UndoViewDockWidget");
        history->show();
        history->resize(260, 200);
        saveWidget(history, QStringLiteral("commands-history"), QSize(260, 200));
        history->hide();

        world->deselectAll();
        world->bodyItems().at(1)->graphicsItem()->setSelected(true);
        QDockWidget* editor = dock("PropertyEditorDockWidget");
        editor->show();
        saveWidget(editor, QStringLiteral("property-editor"), QSize(280, 480));

        QDockWidget* scene = dock("ScenePropertiesDockWidget");
        scene->setFloating(true);
        scene->show();
        scene->resize(300, 380);
        saveWidget(scene, QStringLiteral("scene-properties"), QSize(300, 380));
        scene->hide();

        QDockWidget* quickLoad = dock("QuickLoadDockWidget");
        quickLoad->show();
        saveWidget(quickLoad, QStringLiteral("quick-load"), QSize(300, 360));

        QDockWidget* console = dock("ConsoleDockWidget");
        console->setFloating(true);
        console->show();
        console->resize(460, 290);
        window->console()->onGotInput(QStringLiteral("world.bodyItems().length"));
        window->console()->onGotInput(QStringLiteral("var b = world.createCircle(0, 3, 0, 0.5)"));
        window->console()->onGotInput(QStringLiteral("b.Radius"));
        window->console()->onGotInput(QStringLiteral("b.Mass.toFixed(2)"));
        window->console()->onGotInput(QStringLiteral("world.createCircle(0, 3, 0, -1)"));
        window->console()->onGotInput(QStringLiteral("b.Radius +"));
        saveWidget(console, QStringLiteral("console"), console->size());
        console->hide();
    }

    void makeDialogs()
    {
        ExportDialog exportDialog(window);
        exportDialog.show();
        saveWidget(&exportDialog, QStringLiteral("export-dialog"), QSize(480, 400));
        exportDialog.close();

        UploadDialog upload(Application::dataDirectory(QStringLiteral("saves"))
                                + QStringLiteral("/car.scene"),
                            window);
        upload.show();
        saveWidget(&upload, QStringLiteral("upload-dialog"), QSize(480, 400));
        upload.close();

        DownloadDialog download(Application::dataDirectory(QStringLiteral("saves")), window);
        download.show();
        saveWidget(&download, QStringLiteral("download-dialog"), QSize(480, 200));
        download.close();
    }

    // The code of an example block of the scripting page, as plain text.
    QString exampleCode(const QString& page, const char* id) const
    {
        const QRegularExpression block(
            QStringLiteral("<pre[^>]*id=\"%1\"[^>]*>(.*?)</pre>").arg(QLatin1String(id)),
            QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = block.match(page);
        return match.hasMatch() ? QTextDocumentFragment::fromHtml(match.captured(1)).toPlainText()
                                : QString();
    }

    void makeExamples()
    {
        QFile page(help.filePath(QStringLiteral("scripting.html")));
        if (!page.open(QIODevice::ReadOnly)) {
            fail(QStringLiteral("Cannot read ") + page.fileName());
            return;
        }
        const QString html = QString::fromUtf8(page.readAll());
        QTemporaryDir scripts;
        for (const Example& example : examples) {
            newScene();
            if (runExample(exampleCode(html, example.id),
                           scripts.filePath(QLatin1String(example.id) + ".script"), example)) {
                world->deselectAll();
                look(example.centre, example.scale);
                save(shot(QSize(440, 300), false), QLatin1String(example.id));
            }
        }
    }

    // Runs the code as File > Evaluate Script... runs a file, steps the world and checks the
    // outcome; false, with a message, where the example does not do what the page says.
    bool runExample(const QString& code, const QString& path, const Example& example)
    {
        const QString id = QLatin1String(example.id);
        QFile script(path);
        if (code.isEmpty()) {
            fail(QStringLiteral("No example %1 on the scripting page").arg(id));
            return false;
        }
        if (!script.open(QIODevice::WriteOnly) || script.write(code.toUtf8()) < 0) {
            fail(QStringLiteral("Cannot write ") + path);
            return false;
        }
        script.close();
        if (!Application::instance()->evaluateScript(path)) {
            fail(QStringLiteral("The example %1 does not run").arg(id));
            return false;
        }
        run(example.steps - example.keySteps);
        if (example.key != Qt::Key_unknown) {
            QTest::keyPress(view, example.key);
            run(example.keySteps);
            QTest::keyRelease(view, example.key);
            run(1);
        }
        QScriptEngine* engine = Application::instance()->scriptEngine;
        const QScriptValue checked = engine->evaluate(QLatin1String(example.check));
        engine->clearExceptions();
        if (!checked.toBool()) {
            fail(QStringLiteral("The example %1 fails: %2 is %3")
                     .arg(id, QLatin1String(example.check), checked.toString()));
            return false;
        }
        return true;
    }

    const QDir help;
    const QDir images;
    MainWindow* const window;
    GraphicsView* const view;
    PhysicsWorld* const world;
    const ViewGestures gestures;
    // The last position of the mouse in viewport pixels.
    QPoint mouse;
    bool succeeded = true;
};

int main(int argc, char* argv[])
{
    if (argc != 2) {
        fprintf(stderr, "Usage: %s <help folder, such as doc/en>\n", argv[0]);
        return 2;
    }
    const QString helpDirectory = QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath();
    const QString ini = QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath()
        + QStringLiteral("/Brivane.ini");
    const QString keptIni = ini + QStringLiteral(".kept");
    const bool hadSettings = QFile::exists(ini);
    if (hadSettings && !QFile::rename(ini, keptIni)) {
        fprintf(stderr, "Cannot set %s aside\n", qPrintable(ini));
        return 1;
    }
    int result = 0;
    {
        Application application(argc, argv);
        // The pages are English, whatever language a first start takes from the system.
        application.setLanguage(QLocale::English);
        // Settings of a first start, without the tips and with a viewport that grabs alike on
        // every display.
        Settings::instance()->setShowTipsAtStartup(false);
        Settings::instance()->setUseOpenGL(false);
        QSignalSpy created(&application, &Application::fileCreated);
        application.initialise();
        application.mainWindow->resize(1280, 800);
        application.mainWindow->move(0, 0);
        if (!created.wait(5000)) {
            fprintf(stderr, "The program did not start\n");
            result = 1;
        } else if (!HelpPictures(helpDirectory).makeAll()) {
            result = 1;
        }
    }
    QFile::remove(ini);
    if (hadSettings)
        QFile::rename(keptIni, ini);
    return result;
}
