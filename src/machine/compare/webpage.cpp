// SPDX-License-Identifier: GPL-3.0-or-later

#include "webpage.h"

#include "webpage.css.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace {

/** How a policy names the one style or script that it allows. */
QString hashOf(const QString &text)
{
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    return u"'sha256-%1'"_s.arg(QString::fromLatin1(hash.toBase64()));
}

} // namespace

QString pageStart(const QString &title, QLatin1StringView moreStyle, QLatin1StringView script)
{
    const QString styles = QString(webpageCss) + moreStyle;
    return u"<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; base-uri 'none'; "
           "form-action 'none'; style-src "_s
           + hashOf(styles) + u"; script-src "_s + (script.isEmpty() ? u"'none'"_s : hashOf(script))
           + u"\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"_s
           + title.toHtmlEscaped() + u"</title>\n<style>"_s + styles + u"</style>\n</head>\n<body>\n"_s;
}

QString pageEnd(QLatin1StringView script)
{
    const QString element = script.isEmpty() ? QString() : u"<script>"_s + script + u"</script>\n"_s;
    return element + u"</body>\n</html>\n"_s;
}
