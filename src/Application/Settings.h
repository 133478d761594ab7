#pragma once

#include <QByteArray>
#include <QMatrix>
#include <QSettings>
#include <QSize>
#include <QString>
#include <QUrl>

// The persisted preferences: defaults for new bodies, tool parameters, window layout and the
// website login. Every key is read once at construction into a public field that the program
// reads at the moment of use. Each field has one setter slot that stores the field and writes
// the file, also for an unchanged value. There are no change signals. The file lies beside
// the executable, and its existence marks that the program has run before.
class Settings : public QSettings
{
    Q_OBJECT

public:
    static Settings* instance();
    static void destroy();

    // Path of the ini file: the application directory and the application name.
    static QString settingsFileName();

    bool useOpenGL;
    bool antialiasing;
    int timerInterval;
    double linearDampingDefault;
    double angularDampingDefault;
    double frictionDefault;
    double restitutionDefault;
    bool allowSleepDefault;
    bool isBulletDefault;
    bool isStaticDefault;
    QByteArray mainWindowState;
    QByteArray mainWindowGeometry;
    QString quickLoadDirectory;
    QSize quickLoadIconSize;
    int guiStyle;
    int language;
    bool createGroundOnStartup;
    bool snapToGrid;
    double gridSize;
    bool snapToObjects;
    double maxObjectSnapDistance;
    bool showScaleIndicator;
    bool showTipsAtStartup;
    bool attachScriptDebugger;
    int websiteUserType;
    QString websiteUsername;
    int explodeMethod;
    double explodeSize;
    double eraseSize;
    int cameraMode;
    double brushSize;
    QString chainColor;
    double chainCircleRadius;
    int chainAttachPoint;
    QString ropeColor;
    double ropeRectangleWidth;
    int ropeAttachPoint;
    QString text;
    QString fontFamily;
    int fontPointSize;
    double gearToothSize;
    double gearToothCountDivisor;
    bool gearCreateRevoluteJoint;
    QString imageFilename;
    double imagePolygonThreshold;
    double imageScale;
    double revoluteJointRadius;
    QString springForceColor;
    double springForceK;
    double springForceDamping;

public slots:
    void setUseOpenGL(bool useOpenGL);
    void setAntialiasing(bool antialiasing);
    void setTimerInterval(int timerInterval);
    void setLinearDampingDefault(double linearDampingDefault);
    void setAngularDampingDefault(double angularDampingDefault);
    void setFrictionDefault(double frictionDefault);
    void setRestitutionDefault(double restitutionDefault);
    void setAllowSleepDefault(bool allowSleepDefault);
    void setIsBulletDefault(bool isBulletDefault);
    void setIsStaticDefault(bool isStaticDefault);
    void setMainWindowState(QByteArray mainWindowState);
    void setMainWindowGeometry(QByteArray mainWindowGeometry);
    void setQuickLoadDirectory(QString quickLoadDirectory);
    void setQuickLoadIconSize(QSize quickLoadIconSize);
    void setGuiStyle(int guiStyle);
    void setLanguage(int language);
    void setCreateGroundOnStartup(bool createGroundOnStartup);
    void setSnapToGrid(bool snapToGrid);
    void setGridSize(double gridSize);
    void setSnapToObjects(bool snapToObjects);
    void setMaxObjectSnapDistance(double maxObjectSnapDistance);
    void setShowScaleIndicator(bool showScaleIndicator);
    void setShowTipsAtStartup(bool showTipsAtStartup);
    void setAttachScriptDebugger(bool attachScriptDebugger);
    void setWebsiteUserType(int websiteUserType);
    void setWebsiteUsername(QString websiteUsername);
    void setExplodeMethod(int explodeMethod);
    void setExplodeSize(double explodeSize);
    void setEraseSize(double eraseSize);
    void setCameraMode(int cameraMode);
    void setBrushSize(double brushSize);
    void setChainColor(QString chainColor);
    void setChainCircleRadius(double chainCircleRadius);
    void setChainAttachPoint(int chainAttachPoint);
    void setRopeColor(QString ropeColor);
    void setRopeRectangleWidth(double ropeRectangleWidth);
    void setRopeAttachPoint(int ropeAttachPoint);
    void setText(QString text);
    void setFontFamily(QString fontFamily);
    void setFontPointSize(int fontPointSize);
    void setGearToothSize(double gearToothSize);
    void setGearToothCountDivisor(double gearToothCountDivisor);
    void setGearCreateRevoluteJoint(bool gearCreateRevoluteJoint);
    void setImageFilename(QString imageFilename);
    void setImagePolygonThreshold(double imagePolygonThreshold);
    void setImageScale(double imageScale);
    void setRevoluteJointRadius(double revoluteJointRadius);
    void setSpringForceColor(QString springForceColor);
    void setSpringForceK(double springForceK);
    void setSpringForceDamping(double springForceDamping);

private:
    Settings();
    static Settings* settings;
};

// Program-wide constants. The addresses are build-time configuration.
extern const QUrl WebsiteUrl;
extern const QUrl RepositoryUrl;
// The addresses in force: those of the environment variables BRIVANE_WEBSITE_URL and
// BRIVANE_REPOSITORY_URL where set, so that the program can use a repository of one's own
// without a build of its own; else the build's.
QUrl websiteUrl();
QUrl repositoryUrl();
extern const QString ContactAddress; // base64 text of the maker's address
extern const QSize ThumbnailSize;
extern const QMatrix TextureMatrix; // 50 pixels to the metre, y turned over
