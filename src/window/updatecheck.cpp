// SPDX-License-Identifier: GPL-3.0-or-later
// The check for a newer version, once a day at most.

#include "kestrune.h"
#include "messagebox.h"
#include "webhost.h"
#include "work/settings.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QUrl pageOfHost(const QString &path)
{
    return QUrl(u"http://"_s + webHost() + path);
}

} // namespace

void Kestrune::checkUpdate()
{
    const QString today = QDateTime::currentDateTime().toString(u"dd.MM.yyyy"_s);
    const auto settings = openSettings();
    if (settings->value(u"LastCheckUpdate"_s, u"01.01.2000"_s).toString() == today)
        return;

    updateManager = new QNetworkAccessManager(this);
    connect(updateManager, &QNetworkAccessManager::finished, this, &Kestrune::onCheckUpdateResult);
    QNetworkReply *reply = updateManager->get(QNetworkRequest(pageOfHost(u"/build/ver.txt"_s)));
    connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > longestAnswer)
            reply->abort();
    });
    // Before any answer: a check that fails isn't tried again today.
    settings->setValue(u"LastCheckUpdate"_s, today);
}

void Kestrune::onCheckUpdateResult(QNetworkReply *reply)
{
    if (reply->error() != QNetworkReply::NoError)
        return;
    const std::optional<QString> online = otherVersion(reply->readAll(), appVersion);
    if (!online)
        return;
    const auto answer = ask({.text = tr("A newer version of Kestrune is available!\r\nWould you like to visit the "
                                        "website for download?\r\n\r\nCurrent version: %1\r\nOnline version: %2")
                                         .arg(appVersion, *online)});
    if (answer != QMessageBox::Yes)
        return;
    // Only who has never chosen a language gets the English page.
    const bool english = currentLang == "en"_L1;
    QDesktopServices::openUrl(pageOfHost(english ? u"/download.html"_s : u"/download_fr.html"_s));
}
