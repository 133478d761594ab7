#include "Gui/SocialWidget.h"

namespace {
struct Service
{
    const char* link; // with the keys {url} and {title}
    const char* icon;
};

const Service services[] = {
    {"http://www.facebook.com/sharer.php?u={url}&t={title}", "facebook.png"},
    {"http://twitter.com/home?status={url}&title={title}", "twitter.png"},
    {"http://slashdot.org/bookmark.pl?url={url}&title={title}", "slashdot.png"},
    {"http://digg.com/submit?phase=2&url={url}&title={title}", "digg.png"},
    {"http://www.reddit.com/submit?url={url}&title={title}", "reddit.png"},
    {"http://www.stumbleupon.com/submit?url={url}&title={title}", "stumbleupon.png"},
    {"http://delicious.com/post?url={url}&title={title}", "delicious.png"},
    {"http://technorati.com/faves?add={url}", "technorati.png"},
    {"http://www.newsvine.com/_wine/save?u={url}&h={title}", "newsvine.png"},
    {"http://www.google.com/buzz/post?message={title}&url={url}", "google-buzz.png"},
};
} // namespace

SocialWidget::SocialWidget(const QString& url, const QString& title, QWidget* parent)
    : QLabel(parent)
{
    setMinimumHeight(36);
    setWordWrap(true);
    setOpenExternalLinks(true);
    setAlignment(Qt::AlignCenter);
    QString links;
    for (const Service& service : services) {
        const QString link = QString::fromLatin1(service.link)
                                 .replace(QLatin1String("{url}"), url)
                                 .replace(QLatin1String("{title}"), title);
        links += QStringLiteral("<a href='%1'><img src='%2' /></a> ")
                     .arg(link, QStringLiteral(":/icons/social/") + QLatin1String(service.icon));
    }
    setText(links);
}
