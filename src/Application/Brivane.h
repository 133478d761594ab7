#pragma once

#include <QMetaType>
#include <QObject>

// Enumerations shared by the whole program, visible to scripts through the meta-object system.
namespace Brivane {
Q_NAMESPACE

// Kind of a console line: selects its colour and prefix in the console.
enum ConsoleMessageType { Info = 0, Warning = 1, Critical = 2, Input = 3, Output = 4 };
Q_ENUM_NS(ConsoleMessageType)

// How a camera follows a body: the main view follows it, or a window of its own does.
enum CameraMode { MainViewCamera = 0, WindowCamera = 1 };
Q_ENUM_NS(CameraMode)
} // namespace Brivane
