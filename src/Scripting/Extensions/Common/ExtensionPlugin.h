#pragma once

#include <QScriptExtensionPlugin>

// Base of the script extension plugins. QScriptEngine imports "qt" before any "qt.<name>",
// so each plugin offers the empty parent "qt" besides its own key: whichever plugin the
// engine finds first serves it, and no plugin depends on another being installed.
class ExtensionPlugin : public QScriptExtensionPlugin
{
    Q_OBJECT

public:
    explicit ExtensionPlugin(const QString& extensionKey);

    QStringList keys() const override;
    void initialize(const QString& key, QScriptEngine* engine) override;

protected:
    // Sets up the extension's globals and conversions. Called once for each engine that
    // imports the extension: conversions are registered per engine.
    virtual void install(QScriptEngine* engine) = 0;

private:
    const QString extensionKey;
};
