#include "Application/Application.h"
#include "Application/Settings.h"
#include "Application/VersionCheck.h"
#include "Gui/MainWindow.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPainter>
#include <QSplashScreen>
#include <QThread>

namespace {
// The logo on white with a thin frame, and below it the version and the maker's credit.
QPixmap splashPixmap()
{
    const QPixmap logo(QStringLiteral(":/images/BrivaneLogo.png"));
    QPixmap pixmap(logo.width() + 20, 200);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.setPen(Qt::black);
    painter.drawRect(0, 0, pixmap.width() - 1, pixmap.height() - 1);
    painter.drawPixmap((pixmap.width() - logo.width()) / 2, 10, logo);
    const QRect textRect(0, logo.height() + 10, pixmap.width(),
                         pixmap.height() - logo.height() - 10);
    painter.drawText(textRect, Qt::AlignCenter,
                     QObject::tr("Version: %1").arg(QCoreApplication::applicationVersion())
                         + QStringLiteral("\n\n") + QObject::tr("Made by the Brivane Project")
                         + QLatin1Char('\n') + websiteUrl().host());
    return pixmap;
}
} // namespace

int main(int argc, char* argv[])
{
    Application application(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(QObject::tr("A two-dimensional physics sandbox."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("scene"), QObject::tr("A scene file to open."),
                                 QStringLiteral("[scene]"));
    parser.process(application);

    if (newVersionAvailable()
        && QMessageBox::question(nullptr, QObject::tr("Updates Available"),
                                 QObject::tr("A new version of Brivane is available.\nUpdate the "
                                             "application?"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
            == QMessageBox::Yes) {
        if (!launchUpdater())
            QMessageBox::warning(nullptr, QObject::tr("Error"),
                                 QObject::tr("Failed to launch the updater.\nPlease run it "
                                             "manually using the following command:\n\n%1/"
                                             "maintenancetool")
                                     .arg(QCoreApplication::applicationDirPath()));
        return 0;
    }

    QSplashScreen splash(splashPixmap());
    splash.show();
    // The splash stays three seconds in every case.
    QElapsedTimer shown;
    shown.start();
    while (shown.elapsed() < 3000) {
        QCoreApplication::processEvents();
        QThread::msleep(10);
    }

    application.initialise(parser.positionalArguments().value(0));
    splash.finish(application.mainWindow);
    return application.exec();
}
