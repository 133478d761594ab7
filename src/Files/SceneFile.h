#pragma once

#include <QString>

// A scene archive: a zip file that holds the scene document and its thumbnail.
class SceneFile
{
public:
    // File suffix of scene archives, without the dot.
    static const QString extension;
};
