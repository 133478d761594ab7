#pragma once

#include "SceneStore.h"
#include "UserStore.h"

#include <httplib.h>

// The repository's HTTP face: it routes the requests of the program (upload, file list,
// scene files, latest version) and of the website (registration, gallery) to the stores and
// pages, and logs one line per request to stderr. Requests are answered on a pool of threads.
class RepositoryService
{
public:
    struct Options
    {
        QString dataDirectory;
        bool anonymousUploads = true;
        qint64 maxArchiveBytes = 20 * 1024 * 1024;
        QString latestVersion;
    };

    explicit RepositoryService(const Options& options);

    // Prepares the data folder; false when it cannot be used.
    bool open();

    // Opens the listening socket; port 0 picks a free one. Returns the port, or -1.
    int bind(const QString& host, int port);

    // Answers requests until stop(); false when listening failed.
    bool run();
    void stop();

private:
    void upload(const httplib::Request& request, httplib::Response& response);
    void listFiles(const httplib::Request& request, httplib::Response& response) const;
    void registerUser(const httplib::Request& request, httplib::Response& response);
    void handleError(const httplib::Request& request, httplib::Response& response) const;
    static void sendFile(const QString& path, const char* contentType, httplib::Response& response);
    static void log(const httplib::Request& request, const httplib::Response& response);

    Options options;
    SceneStore scenes;
    UserStore users;
    httplib::Server http;
};
