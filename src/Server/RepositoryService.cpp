#include "RepositoryService.h"

#include "GalleryPage.h"
#include "RegistrationPage.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <cstdio>

namespace {

const std::string uploadPath = "/scenes/upload/";
const char* const textType = "text/plain; charset=utf-8";
const char* const htmlType = "text/html; charset=utf-8";
// Room for the text fields and the multipart framing around the largest accepted archive.
constexpr qint64 FormMarginBytes = 1024 * 1024;
constexpr int MaxListedFiles = 50;
constexpr int GallerySize = 200;

QString field(const httplib::Request& request, const char* name)
{
    return QString::fromStdString(request.get_file_value(name).content);
}

// The program reads "CODE*MESSAGE": 0 for success, 1 for a refusal shown to the person.
void reply(httplib::Response& response, bool success, const QString& message)
{
    response.set_content((success ? "0*" : "1*") + message.toStdString(), textType);
}

void setContent(httplib::Response& response, const QByteArray& content, const char* type)
{
    response.set_content(content.toStdString(), type);
}

} // namespace

RepositoryService::RepositoryService(const Options& options)
    : options(options)
    , scenes(options.dataDirectory, options.maxArchiveBytes)
    , users(QDir(options.dataDirectory).filePath(QStringLiteral("repository.sqlite")))
{
    http.set_payload_max_length(options.maxArchiveBytes + FormMarginBytes);
    http.set_logger(&RepositoryService::log);
    http.set_error_handler([this](const httplib::Request& request, httplib::Response& response) {
        handleError(request, response);
    });

    http.Post(uploadPath, [this](const httplib::Request& request, httplib::Response& response) {
        upload(request, response);
    });
    http.Get(R"(/scenes/fileList/([^/]*)/?)",
             [this](const httplib::Request& request, httplib::Response& response) {
                 listFiles(request, response);
             });
    http.Get(R"(/files/([^/]*))",
             [this](const httplib::Request& request, httplib::Response& response) {
                 sendFile(scenes.archivePath(QString::fromStdString(request.matches[1])),
                          "application/zip", response);
             });
    http.Get(R"(/thumbnails/([^/]*))",
             [this](const httplib::Request& request, httplib::Response& response) {
                 sendFile(scenes.thumbnailPath(QString::fromStdString(request.matches[1])),
                          "image/png", response);
             });
    http.Get("/repository/version.html",
             [this](const httplib::Request&, httplib::Response& response) {
                 response.set_content(this->options.latestVersion.toStdString(), textType);
             });
    http.Get("/component/user/register", [](const httplib::Request&, httplib::Response& response) {
        setContent(response, RegistrationPage::form(), htmlType);
    });
    http.Post("/component/user/register",
              [this](const httplib::Request& request, httplib::Response& response) {
                  registerUser(request, response);
              });
    http.Get(R"(/scenes/?)", [this](const httplib::Request&, httplib::Response& response) {
        setContent(response, GalleryPage::render(scenes.newest(GallerySize)), htmlType);
    });
}

bool RepositoryService::open()
{
    return scenes.open() && users.open();
}

int RepositoryService::bind(const QString& host, int port)
{
    const std::string address = host.toStdString();
    if (port == 0)
        return http.bind_to_any_port(address);
    return http.bind_to_port(address, port) ? port : -1;
}

bool RepositoryService::run()
{
    return http.listen_after_bind();
}

void RepositoryService::stop()
{
    http.stop();
}

void RepositoryService::upload(const httplib::Request& request, httplib::Response& response)
{
    for (const char* name :
         {"username", "password", "category", "description", "keywords", "sceneFile"}) {
        if (!request.has_file(name))
            return reply(response, false,
                         QStringLiteral("The upload is incomplete: it has no %1.").arg(name));
    }

    const QString user = field(request, "username");
    const bool anonymous = user == UserStore::anonymousName()
        && field(request, "password") == QStringLiteral("#########");
    if (anonymous && !options.anonymousUploads)
        return reply(response, false,
                     QStringLiteral("This repository takes no anonymous uploads. Please "
                                    "register on its website and upload under your name."));
    if (!anonymous && !users.verify(user, field(request, "password")))
        return reply(response, false, QStringLiteral("Wrong user name or password."));

    SceneRecord record;
    const httplib::MultipartFormData file = request.get_file_value("sceneFile");
    record.originalName = QString::fromStdString(file.filename);
    bool isNumber = false;
    record.category = field(request, "category").toInt(&isNumber);
    if (!isNumber)
        record.category = -1;
    record.description = field(request, "description");
    record.keywords = field(request, "keywords");
    record.user = user;
    const QString refusal
        = scenes.add(record, QByteArray::fromRawData(file.content.data(), file.content.size()));
    if (!refusal.isEmpty())
        return reply(response, false, refusal);
    reply(
        response, true,
        QStringLiteral("Thank you! The scene is in the repository as %1.").arg(record.storedName));
}

void RepositoryService::listFiles(const httplib::Request& request,
                                  httplib::Response& response) const
{
    bool isNumber = false;
    const int count = QString::fromStdString(request.matches[1]).toInt(&isNumber);
    QStringList paths;
    if (isNumber) {
        for (const SceneRecord& scene : scenes.newest(qBound(1, count, MaxListedFiles)))
            paths.append(QStringLiteral("files/") + scene.storedName);
    }
    response.set_content(paths.join('*').toStdString(), textType);
}

void RepositoryService::registerUser(const httplib::Request& request, httplib::Response& response)
{
    const QString name = QString::fromStdString(request.get_param_value("username"));
    const QString problem
        = users.add(name, QString::fromStdString(request.get_param_value("password")),
                    QString::fromStdString(request.get_param_value("password2")));
    setContent(response,
               problem.isEmpty() ? RegistrationPage::welcome(name)
                                 : RegistrationPage::form(problem, name),
               htmlType);
}

void RepositoryService::handleError(const httplib::Request& request,
                                    httplib::Response& response) const
{
    // The program shows the message of a refused upload, whatever stopped it.
    if (request.path == uploadPath) {
        reply(response, false,
              response.status == 413 ? scenes.sizeRefusal()
                                     : QStringLiteral("The upload could not be read."));
    } else if (response.body.empty()) {
        response.set_content(response.status == 404 ? "Not found." : "The request failed.",
                             textType);
    }
}

void RepositoryService::sendFile(const QString& path, const char* contentType,
                                 httplib::Response& response)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        response.status = 404;
        return;
    }
    setContent(response, file.readAll(), contentType);
}

void RepositoryService::log(const httplib::Request& request, const httplib::Response& response)
{
    // The raw target, not the decoded path: it cannot hold line breaks.
    std::fprintf(stderr, "%s %s %s %s %d %zu\n",
                 qPrintable(QDateTime::currentDateTimeUtc().toString(Qt::ISODate)),
                 request.remote_addr.c_str(), request.method.c_str(), request.target.c_str(),
                 response.status, response.body.size());
}
