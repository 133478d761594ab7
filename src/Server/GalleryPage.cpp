#include "GalleryPage.h"

#include "HtmlPage.h"

QByteArray GalleryPage::render(const QVector<SceneRecord>& scenes)
{
    QString body;
    if (scenes.isEmpty()) {
        body = QStringLiteral("<p class=\"empty\">No scenes yet. Upload one from Brivane with "
                              "File, Upload scene.</p>");
    } else {
        body = QStringLiteral("<p class=\"lead\">Scenes made with Brivane, newest first. "
                              "Open a downloaded scene in Brivane to run it.</p>"
                              "<div class=\"grid\">");
        for (const SceneRecord& scene : scenes)
            body += card(scene);
        body += QStringLiteral("</div>");
    }
    return HtmlPage::document(QStringLiteral("Scenes"), body);
}

QString GalleryPage::card(const SceneRecord& scene)
{
    const QString link = QStringLiteral("/files/") + HtmlPage::pathSegment(scene.storedName);
    const QString name
        = HtmlPage::escape(scene.originalName.chopped(SceneRecord::sceneSuffix().size()));
    const QString picture = scene.hasThumbnail
        ? QStringLiteral("<img src=\"/thumbnails/%1\" alt=\"%2\">")
              .arg(HtmlPage::pathSegment(scene.baseName() + QStringLiteral(".png")), name)
        : QStringLiteral("No picture");
    const QString keywords = scene.keywords.trimmed().isEmpty()
        ? QString()
        : QStringLiteral("<div class=\"keywords\">Keywords: %1</div>")
              .arg(HtmlPage::escape(scene.keywords.trimmed()));
    return QStringLiteral("<article class=\"card\"><a class=\"picture\" href=\"%1\">%2</a>"
                          "<div class=\"text\"><h2>%3</h2><span class=\"category\">%4</span>"
                          "<p class=\"description\">%5</p>%6<div class=\"meta\">"
                          "<span>by %7<br><time datetime=\"%8\">%9</time></span><a "
                          "class=\"button\" href=\"%1\" download>"
                          "Download</a></div></div></article>")
        .arg(link, picture, name,
             HtmlPage::escape(SceneStore::categoryNames().value(scene.category)),
             HtmlPage::escape(scene.description), keywords, HtmlPage::escape(scene.user),
             scene.uploaded.toString(Qt::ISODate),
             scene.uploaded.toString(QStringLiteral("yyyy-MM-dd")));
}
