// SPDX-License-Identifier: GPL-3.0-or-later
// A headless Chromium that a test drives, by the protocol that browsers have for it.

#pragma once

#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

/**
 * Starts chromedriver, which is looked for in PATH, and with it a Chromium that keeps all it writes in a folder of its
 * own and reaches no network. Both end with the object, or with the test, however that ends.
 */
class WebDriver
{
public:
    WebDriver();
    ~WebDriver();
    Q_DISABLE_COPY_MOVE(WebDriver)

    /** Why there is no browser; empty where there is one. */
    QString start();
    /** Ends the browser. False where a process of it is still there then. */
    bool stop();

    void open(const QUrl &url);
    /** Runs the body of a function and gives what it returns. */
    QJsonValue run(const QString &script);
    /** A command of the browser's own protocol, such as "Emulation.setEmulatedMedia". */
    QJsonObject command(const QString &name, const QJsonObject &parameters);
    /** The page as PNG, as it is seen, or whole. */
    QByteArray screenshot(bool whole = false);
    /** Types into the element that a CSS selector finds, as a person does. */
    void type(const QString &selector, const QString &text);
    void click(const QString &selector);
    /** What the page and the browser have written to the console since the last time. */
    QStringList console();

private:
    QString startDriver();
    QString startBrowser();
    QString element(const QString &selector);
    /** The answer's value. What goes wrong is in "error" of it. */
    QJsonValue ask(const QByteArray &method, const QString &path, const QJsonObject &body = {});
    QString session(const QString &path) const;

    QTemporaryDir home_;
    QNetworkAccessManager network_;
    QProcess driver_;
    QUrl address_;
    QString session_;
};
