// SPDX-License-Identifier: GPL-3.0-or-later

#include "webdriver.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <cerrno>
#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30000; // milliseconds

// clang-format off
constexpr QLatin1StringView browserArguments[] = {
    "--headless"_L1,
    "--no-sandbox"_L1,            // it needs rights that a container doesn't give, and the page is our own
    "--disable-dev-shm-usage"_L1, // small in containers
    "--disable-gpu"_L1,
    "--disable-quic"_L1,
    "--disable-sync"_L1,
    "--disable-breakpad"_L1,
    "--disable-extensions"_L1,
    "--disable-background-networking"_L1,
    "--disable-component-update"_L1,
    "--no-first-run"_L1,
    "--no-default-browser-check"_L1,
    "--hide-scrollbars"_L1,
    "--window-size=1280,1000"_L1,
    "--host-resolver-rules=MAP * ~NOTFOUND"_L1,
    "--remote-debugging-pipe"_L1, // the browser ends with the driver
};
// clang-format on

/** Everything that the browser writes goes to its own folder, also where a user has no home. */
QProcessEnvironment environmentIn(const QString &home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name :
         {u"HOME"_s, u"TMPDIR"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_RUNTIME_DIR"_s})
        environment.insert(name, home);
    return environment;
}

} // namespace

WebDriver::WebDriver()
{
    // What the browser leaves without a parent becomes a child of this process, which can wait for it.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
}

WebDriver::~WebDriver()
{
    stop();
}

bool WebDriver::stop()
{
    if (driver_.state() == QProcess::NotRunning)
        return true;
    if (!session_.isEmpty())
        ask("DELETE", session(QString()));
    session_.clear();
    driver_.terminate();
    if (!driver_.waitForFinished(patience)) {
        driver_.kill();
        driver_.waitForFinished(patience);
    }
    const QDeadlineTimer deadline(patience);
    while (!deadline.hasExpired()) {
        if (::waitpid(-1, nullptr, WNOHANG) < 0)
            return errno == ECHILD; // the last one is gone
        QThread::msleep(10);
    }
    return false;
}

QString WebDriver::start()
{
    if (const QString reason = startDriver(); !reason.isEmpty())
        return reason;
    return startBrowser();
}

QString WebDriver::startDriver()
{
    const QString program = QStandardPaths::findExecutable(u"chromedriver"_s);
    if (program.isEmpty())
        return u"chromedriver isn't in PATH (Debian's package chromium-driver)"_s;
    network_.setProxy(QNetworkProxy::NoProxy);
    driver_.setProcessEnvironment(environmentIn(home_.path()));
    driver_.setProcessChannelMode(QProcess::MergedChannels);
    driver_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    driver_.start(program, {u"--port=0"_s});

    static const QRegularExpression started(u"started successfully on port (\\d+)"_s);
    QByteArray output;
    const QDeadlineTimer deadline(patience);
    while (!deadline.hasExpired() && driver_.waitForReadyRead(patience)) {
        output += driver_.readAll();
        if (const auto match = started.match(QString::fromUtf8(output)); match.hasMatch()) {
            address_ = QUrl(u"http://127.0.0.1:"_s + match.captured(1));
            return QString();
        }
    }
    return program + u" doesn't start: "_s + QString::fromUtf8(output) + driver_.errorString();
}

QString WebDriver::startBrowser()
{
    const QString browser = QStandardPaths::findExecutable(u"chromium"_s);
    if (browser.isEmpty())
        return u"chromium isn't in PATH"_s;
    QJsonArray arguments;
    for (const QLatin1StringView argument : browserArguments)
        arguments.append(argument);
    arguments.append(QString(u"--user-data-dir="_s + home_.filePath(u"profile"_s)));
    const QJsonObject chosen{{u"goog:chromeOptions"_s, QJsonObject{{u"binary"_s, browser}, {u"args"_s, arguments}}},
                             {u"goog:loggingPrefs"_s, QJsonObject{{u"browser"_s, u"ALL"_s}}}};
    const QJsonValue answer = ask("POST", u"session"_s, {{u"capabilities"_s, QJsonObject{{u"alwaysMatch"_s, chosen}}}});
    session_ = answer[u"sessionId"_s].toString();
    return session_.isEmpty() ? browser + u" doesn't start: "_s + answer[u"message"_s].toString() : QString();
}

void WebDriver::open(const QUrl &url)
{
    ask("POST", session(u"url"_s), {{u"url"_s, url.toString()}});
}

QJsonValue WebDriver::run(const QString &script)
{
    return ask("POST", session(u"execute/sync"_s), {{u"script"_s, script}, {u"args"_s, QJsonArray()}});
}

QJsonObject WebDriver::command(const QString &name, const QJsonObject &parameters)
{
    return ask("POST", session(u"goog/cdp/execute"_s), {{u"cmd"_s, name}, {u"params"_s, parameters}}).toObject();
}

QByteArray WebDriver::screenshot(bool whole)
{
    const QJsonObject picture = command(u"Page.captureScreenshot"_s, {{u"captureBeyondViewport"_s, whole}});
    return QByteArray::fromBase64(picture[u"data"_s].toString().toLatin1());
}

QString WebDriver::element(const QString &selector)
{
    const QJsonObject found =
        ask("POST", session(u"element"_s), {{u"using"_s, u"css selector"_s}, {u"value"_s, selector}}).toObject();
    return u"element/"_s + found.begin().value().toString();
}

void WebDriver::type(const QString &selector, const QString &text)
{
    ask("POST", session(element(selector) + u"/clear"_s));
    ask("POST", session(element(selector) + u"/value"_s), {{u"text"_s, text}});
}

void WebDriver::click(const QString &selector)
{
    ask("POST", session(element(selector) + u"/click"_s));
}

QStringList WebDriver::console()
{
    QStringList lines;
    for (const QJsonValue entry : ask("POST", session(u"se/log"_s), {{u"type"_s, u"browser"_s}}).toArray())
        lines.append(entry[u"level"_s].toString() + u' ' + entry[u"message"_s].toString());
    return lines;
}

QString WebDriver::session(const QString &path) const
{
    return u"session/"_s + session_ + (path.isEmpty() ? QString() : u'/' + path);
}

QJsonValue WebDriver::ask(const QByteArray &method, const QString &path, const QJsonObject &body)
{
    QNetworkRequest request(address_.resolved(QUrl(u'/' + path)));
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    request.setTransferTimeout(patience);
    const QByteArray content = method == "POST" ? QJsonDocument(body).toJson(QJsonDocument::Compact) : QByteArray();
    QNetworkReply *reply = network_.sendCustomRequest(request, method, content);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    const QJsonValue value = QJsonDocument::fromJson(reply->readAll()).object()[u"value"_s];
    if (value.isUndefined() || value[u"error"_s].isString())
        qWarning("WebDriver: %s: %s", qPrintable(path),
                 qPrintable(value.isUndefined() ? reply->errorString() : value[u"message"_s].toString()));
    reply->deleteLater();
    return value;
}
