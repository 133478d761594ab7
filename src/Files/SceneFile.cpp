#include "Files/SceneFile.h"

const QString SceneFile::extension = QStringLiteral("scene");
