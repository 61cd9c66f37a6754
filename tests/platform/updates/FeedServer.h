// SPDX-License-Identifier: MIT
#pragma once

#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QUrl>

#include <stdexcept>

/// A feed with one item.
inline QByteArray feedWith(const QByteArray& build, const QByteArray& version,
                           const QByteArray& link = "https://www.example/get",
                           const QByteArray& notes = "What is new") {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?><rss version=\"2.0\" xmlns:f=\"urn:feed\"><channel>"
           "<title>Changes</title><link>https://www.example/</link><item><title>Version " +
           version + "</title><description><![CDATA[" + notes + "]]></description><link>" + link +
           "</link><enclosure url=\"https://www.example/get.zip\" f:version=\"" + build +
           "\" f:shortVersionString=\"" + version + "\" length=\"1\" type=\"application/zip\"/></item>" +
           "</channel></rss>";
}

/// A feed's web server on the loopback: one honest host, one with a certificate that nobody vouches for, and
/// one without TLS, which is also a proxy that lets nothing through. Its authority is trusted while the
/// object lives.
class FeedServer {
public:
    FeedServer() {
        // A proxy of the machine that runs the tests knows nothing of its loopback.
        for (const char* name : {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY",
                                 "ALL_PROXY", "no_proxy", "NO_PROXY"})
            qunsetenv(name);
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(u"/usr/bin/python3"_s,
                       {QStringLiteral(TESTS_SOURCE_DIR "/platform/updates/feed_server.py"), folder_.path()});
        if (!process_.waitForReadyRead(10000))
            throw std::runtime_error("no feed server");
        ports_ = QJsonDocument::fromJson(process_.readLine()).object();
    }

    ~FeedServer() {
        process_.closeWriteChannel();
        process_.waitForFinished(5000);
    }

    /// What `path` answers from now on.
    void put(const QString& path, const QByteArray& body) { writeFile(folder_.filePath(path), body); }

    QString host(const char* kind = "trusted") const {
        return u"localhost:%1"_s.arg(ports_.value(QLatin1String(kind)).toInt());
    }

    QUrl url(const QString& path, const char* kind = "trusted") const {
        return QUrl((qstrcmp(kind, "plain") == 0 ? u"http://"_s : u"https://"_s) + host(kind) + u'/' + path);
    }

    /// The requests so far, "<kind of host> <path and query>", of what a proxy is asked for "plain
    /// <host>:<port>".
    QStringList requests() {
        while (process_.waitForReadyRead(50)) {
        }
        const QString text = QString::fromUtf8(process_.readAllStandardOutput());
        return requests_ += text.split(u'\n', Qt::SkipEmptyParts);
    }

private:
    QTemporaryDir folder_;
    WithEnvironment trusted_{"SSL_CERT_FILE", folder_.filePath(u"ca.pem"_s).toUtf8()};
    QProcess process_;
    QJsonObject ports_;
    QStringList requests_;
};
