// SPDX-License-Identifier: GPL-3.0-or-later

#include "webpage.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView style = R"(
:root { color-scheme: light dark; --page: #ffffff; --text: #1d2127; --faint: #5c6570; --line: #d8dde3; --edge: #7a848f; --head: #f1f4f7; --focus: #0b63ce;
        --gone: #a4262c; --new: #1b6e2d; --warn: #8a5300; }
@media (prefers-color-scheme: dark) {
  :root { --page: #16191d; --text: #e4e7ea; --faint: #9aa4af; --line: #333a42; --edge: #78828d; --head: #22272e; --focus: #6cb0ff;
          --gone: #f1868b; --new: #79cf8b; --warn: #e6b35c; }
}
@media print {
  :root { color-scheme: light; --page: #ffffff; --text: #000000; --faint: #444444; --line: #bbbbbb; --edge: #888888; --head: #eeeeee; --focus: #000000;
          --gone: #8a1c22; --new: #14551f; --warn: #6b4000; }
}
body { background: var(--page); color: var(--text); font: 15px/1.45 system-ui, sans-serif; margin: 2rem auto;
       max-width: 80rem; padding: 0 1rem; }
h1 { font-size: 1.5rem; margin-bottom: .2rem; }
h2 { font-size: 1.1rem; margin: 2rem 0 .5rem; }
p { color: var(--faint); margin: 0; }
table { border-collapse: collapse; width: 100%; }
th, td { border-bottom: 1px solid var(--line); padding: .35rem .6rem; text-align: left; vertical-align: top;
         overflow-wrap: anywhere; }
th { background: var(--head); font-weight: 600; }
td { font-family: ui-monospace, monospace; font-size: 13px; }
.gone { color: var(--gone); }
.new { color: var(--new); }
.none { color: var(--faint); }
)"_L1;

/** How a policy names the one style or script that it allows. */
QString hashOf(const QString &text)
{
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    return u"'sha256-%1'"_s.arg(QString::fromLatin1(hash.toBase64()));
}

} // namespace

QString pageStart(const QString &title, QLatin1StringView moreStyle, QLatin1StringView script)
{
    const QString styles = QString(style) + moreStyle;
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
