#include "Application/Settings.h"

#include "Application/Application.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>

const QUrl WebsiteUrl(QStringLiteral(BRIVANE_WEBSITE_URL));
const QUrl RepositoryUrl(QStringLiteral(BRIVANE_REPOSITORY_URL));
const QString ContactAddress = QString::fromLatin1(QByteArray(BRIVANE_CONTACT_ADDRESS).toBase64());
const QSize ThumbnailSize(160, 120);
const QMatrix TextureMatrix(0.02, 0, 0, -0.02, 0, 0);

namespace {
QUrl addressInForce(const char* variable, const QUrl& built)
{
    const QString set = qEnvironmentVariable(variable);
    return set.isEmpty() ? built : QUrl(set);
}
} // namespace

QUrl websiteUrl()
{
    return addressInForce("BRIVANE_WEBSITE_URL", WebsiteUrl);
}

QUrl repositoryUrl()
{
    return addressInForce("BRIVANE_REPOSITORY_URL", RepositoryUrl);
}

Settings* Settings::settings = nullptr;

// The one table of keys: type, field, setter name, key, default, QVariant conversion.
// Field and key names deliberately follow no common rule, so each key is spelled out.
#define BRIVANE_SETTINGS(X)                                                                        \
    X(bool, useOpenGL, UseOpenGL, "Graphics/UseOpenGL", true, toBool)                              \
    X(bool, antialiasing, Antialiasing, "Graphics/Antialiasing", true, toBool)                     \
    X(int, timerInterval, TimerInterval, "Physics/TimerInterval", 16, toInt)                       \
    X(double, linearDampingDefault, LinearDampingDefault, "Physics/LinearDampingDefault", 0.0,     \
      toDouble)                                                                                    \
    X(double, angularDampingDefault, AngularDampingDefault, "Physics/AngularDampingDefault", 0.01, \
      toDouble)                                                                                    \
    X(double, frictionDefault, FrictionDefault, "Physics/FrictionDefault", 0.3, toDouble)          \
    X(double, restitutionDefault, RestitutionDefault, "Physics/RestitutionDefault", 0.4, toDouble) \
    X(bool, allowSleepDefault, AllowSleepDefault, "Physics/AllowSleepDefault", true, toBool)       \
    X(bool, isBulletDefault, IsBulletDefault, "Physics/IsBulletDefault", false, toBool)            \
    X(bool, isStaticDefault, IsStaticDefault, "Physics/IsStaticDefault", false, toBool)            \
    X(QByteArray, mainWindowState, MainWindowState, "General/MainWindowState", QByteArray(),       \
      toByteArray)                                                                                 \
    X(QByteArray, mainWindowGeometry, MainWindowGeometry, "General/MainWindowGeometry",            \
      QByteArray(), toByteArray)                                                                   \
    X(QString, quickLoadDirectory, QuickLoadDirectory, "General/QuickLoadDirectory",               \
      Application::savesDirectory(), toString)                                                     \
    X(QSize, quickLoadIconSize, QuickLoadIconSize, "General/QuickLoadIconSize", QSize(80, 60),     \
      toSize)                                                                                      \
    X(int, guiStyle, GuiStyle, "General/GuiStyle", 0, toInt)                                       \
    X(int, language, Language, "General/Language", int(QLocale::English), toInt)                   \
    X(bool, createGroundOnStartup, CreateGroundOnStartup, "General/CreateGroundOnStartup", true,   \
      toBool)                                                                                      \
    X(bool, snapToGrid, SnapToGrid, "General/SnapToGrid", false, toBool)                           \
    X(double, gridSize, GridSize, "General/GridSize", 0.5, toDouble)                               \
    X(bool, snapToObjects, SnapToObjects, "General/SnapToObjects", true, toBool)                   \
    X(double, maxObjectSnapDistance, MaxObjectSnapDistance, "General/MaxObjectSnapDistance", 0.2,  \
      toDouble)                                                                                    \
    X(bool, showScaleIndicator, ShowScaleIndicator, "General/ShowScaleIndicator", true, toBool)    \
    X(bool, showTipsAtStartup, ShowTipsAtStartup, "General/ShowTipsAtStartup", true, toBool)       \
    X(bool, attachScriptDebugger, AttachScriptDebugger, "General/AttachScriptDebugger", false,     \
      toBool)                                                                                      \
    X(int, websiteUserType, WebsiteUserType, "Website/UserType", 0, toInt)                         \
    X(QString, websiteUsername, WebsiteUsername, "Website/Username", QString(), toString)          \
    X(int, explodeMethod, ExplodeMethod, "Tools/Explode/Method", 3, toInt)                         \
    X(double, explodeSize, ExplodeSize, "Tools/Explode/Size", 0.5, toDouble)                       \
    X(double, eraseSize, EraseSize, "Tools/Erase/Size", 0.05, toDouble)                            \
    X(int, cameraMode, CameraMode, "Tools/Camera/Mode", 0, toInt)                                  \
    X(double, brushSize, BrushSize, "Tools/Brush/Size", 0.25, toDouble)                            \
    X(QString, chainColor, ChainColor, "Tools/Chain/Color", QStringLiteral("#3333dd"), toString)   \
    X(double, chainCircleRadius, ChainCircleRadius, "Tools/Chain/CircleRadius", 0.2, toDouble)     \
    X(int, chainAttachPoint, ChainAttachPoint, "Tools/Chain/AttachPoint", 1, toInt)                \
    X(QString, ropeColor, RopeColor, "Tools/Rope/Color", QStringLiteral("#ffa500"), toString)      \
    X(double, ropeRectangleWidth, RopeRectangleWidth, "Tools/Rope/RectangleWidth", 0.6, toDouble)  \
    X(int, ropeAttachPoint, RopeAttachPoint, "Tools/Rope/AttachPoint", 1, toInt)                   \
    X(QString, text, Text, "Tools/Text/Text", QCoreApplication::applicationName(), toString)       \
    X(QString, fontFamily, FontFamily, "Tools/Text/FontFamily", QStringLiteral("Arial"), toString) \
    X(int, fontPointSize, FontPointSize, "Tools/Text/FontPointSize", 12, toInt)                    \
    X(double, gearToothSize, GearToothSize, "Tools/Gear/ToothSize", 0.4, toDouble)                 \
    X(double, gearToothCountDivisor, GearToothCountDivisor, "Tools/Gear/ToothCountDivisor", 0.6,   \
      toDouble)                                                                                    \
    X(bool, gearCreateRevoluteJoint, GearCreateRevoluteJoint, "Tools/Gear/CreateRevoluteJoint",    \
      true, toBool)                                                                                \
    X(QString, imageFilename, ImageFilename, "Tools/Image/Filename",                               \
      Application::dataDirectory("images") + QDir::separator() + "tux.png", toString)              \
    X(double, imagePolygonThreshold, ImagePolygonThreshold, "Tools/Image/PolygonThreshold", 0.2,   \
      toDouble)                                                                                    \
    X(double, imageScale, ImageScale, "Tools/Image/Scale", 0.01, toDouble)                         \
    X(double, revoluteJointRadius, RevoluteJointRadius, "Tools/RevoluteJoint/Radius", 0.25,        \
      toDouble)                                                                                    \
    X(QString, springForceColor, SpringForceColor, "Tools/SpringForce/Color",                      \
      QStringLiteral("#aaaaaa"), toString)                                                         \
    X(double, springForceK, SpringForceK, "Tools/SpringForce/K", 400.0, toDouble)                  \
    X(double, springForceDamping, SpringForceDamping, "Tools/SpringForce/Damping", 5.0, toDouble)

Settings* Settings::instance()
{
    if (!settings)
        settings = new Settings();
    return settings;
}

void Settings::destroy()
{
    delete settings;
    settings = nullptr;
}

QString Settings::settingsFileName()
{
    const QString name = QCoreApplication::applicationName() + QStringLiteral(".ini");
    if (Application::isInstalled())
        return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/"
            + QCoreApplication::applicationName() + "/" + name;
    return QCoreApplication::applicationDirPath() + "/" + name;
}

Settings::Settings()
    : QSettings(settingsFileName(), QSettings::IniFormat)
{
#define BRIVANE_READ_SETTING(type, field, Name, key, fallback, conversion)                         \
    field = value(QStringLiteral(key), fallback).conversion();
    BRIVANE_SETTINGS(BRIVANE_READ_SETTING)
#undef BRIVANE_READ_SETTING
}

#define BRIVANE_DEFINE_SETTER(type, field, Name, key, fallback, conversion)                        \
    void Settings::set##Name(type newValue)                                                        \
    {                                                                                              \
        field = newValue;                                                                          \
        setValue(QStringLiteral(key), newValue);                                                   \
    }
BRIVANE_SETTINGS(BRIVANE_DEFINE_SETTER)
#undef BRIVANE_DEFINE_SETTER
