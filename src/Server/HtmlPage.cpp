#include "HtmlPage.h"

#include <QUrl>

namespace {

const char* const styleSheet = R"(
* { box-sizing: border-box; }
body { margin: 0; font: 15px/1.45 "DejaVu Sans", system-ui, sans-serif; color: #1f2933;
       background: #eef1f5; }
a { color: #1d6fb8; text-decoration: none; }
a:hover { text-decoration: underline; }
header { background: #22303f; color: #fff; padding: 14px 32px; display: flex;
         align-items: baseline; gap: 24px; }
header h1 { margin: 0; font-size: 21px; font-weight: 600; letter-spacing: .3px; }
header nav { margin-left: auto; display: flex; gap: 20px; }
header a { color: #cfe2f6; }
main { max-width: 1200px; margin: 0 auto; padding: 28px 32px 48px; }
.lead { margin: 0 0 22px; color: #52606d; }
.grid { display: grid; grid-template-columns: repeat(auto-fill, minmax(260px, 1fr)); gap: 22px; }
.card { background: #fff; border-radius: 10px; overflow: hidden; display: flex;
        flex-direction: column; box-shadow: 0 1px 3px rgba(31, 41, 51, .15); }
.picture { aspect-ratio: 4 / 3; background: #dde3ea; display: flex; align-items: center;
           justify-content: center; color: #7b8794; }
.picture img { width: 100%; height: 100%; object-fit: contain; }
.text { padding: 14px 16px 16px; display: flex; flex-direction: column; gap: 8px; flex: 1; }
.text h2 { margin: 0; font-size: 17px; overflow-wrap: anywhere; }
.category { align-self: flex-start; font-size: 12px; padding: 2px 9px; border-radius: 10px;
            background: #e1ecf8; color: #1d5a94; }
.description { margin: 0; color: #323f4b; overflow-wrap: anywhere; white-space: pre-line; }
.keywords { font-size: 13px; color: #52606d; overflow-wrap: anywhere; }
.meta { margin-top: auto; padding-top: 6px; font-size: 13px; color: #7b8794; display: flex;
        justify-content: space-between; align-items: center; gap: 8px; }
.meta span { overflow-wrap: anywhere; }
.meta time { white-space: nowrap; }
.meta .button { flex: none; }
.button, button { display: inline-block; padding: 6px 14px; border-radius: 6px; border: 0;
                  background: #1d6fb8; color: #fff; font: inherit; cursor: pointer; }
.button:hover, button:hover { background: #175c99; text-decoration: none; }
.panel { max-width: 420px; margin: 20px auto; background: #fff; border-radius: 10px;
         padding: 24px 28px; box-shadow: 0 1px 3px rgba(31, 41, 51, .15); }
.panel h2 { margin-top: 0; font-size: 20px; }
label { display: block; margin: 12px 0 4px; font-weight: 600; font-size: 14px; }
input { width: 100%; padding: 7px 9px; border: 1px solid #b8c2cc; border-radius: 6px;
        font: inherit; }
.panel button { margin-top: 18px; }
.problem { background: #fde8e8; color: #9b1c1c; padding: 8px 12px; border-radius: 6px; }
.empty { color: #52606d; }
)";

} // namespace

QByteArray HtmlPage::document(const QString& title, const QString& body)
{
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
                          "<meta name=\"viewport\" content=\"width=device-width\">"
                          "<title>%1</title><style>%2</style></head><body>"
                          "<header><h1>Brivane scene repository</h1><nav>"
                          "<a href=\"/scenes\">Scenes</a>"
                          "<a href=\"/component/user/register\">Register</a></nav></header>"
                          "<main>%3</main></body></html>\n")
        .arg(escape(title), QString::fromLatin1(styleSheet), body)
        .toUtf8();
}

QString HtmlPage::pathSegment(const QString& fileName)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(fileName));
}
