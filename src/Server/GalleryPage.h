#pragma once

#include "SceneStore.h"

#include <QByteArray>

// The web page of the repository's scenes, newest first: each with its thumbnail, name,
// category, description, keywords, uploader, date and a download link.
class GalleryPage
{
public:
    static QByteArray render(const QVector<SceneRecord>& scenes);

private:
    static QString card(const SceneRecord& scene);
};
