#pragma once

#include <QString>

// The check for a newer release at start-up, against the website's version page, and the
// hand-over to the installation's updater.

// The longest wait for the website's answer: the start never waits longer on the network.
constexpr int versionCheckMilliseconds = 3000;

// The version the website names, or the application's own when the website does not answer
// in time or answers with anything but a version number.
QString latestVersion();
// Whether the website names a version newer than the application's.
bool newVersionAvailable();
// Starts the updater beside the executable, detached; false if it could not be started.
bool launchUpdater();
