// SPDX-License-Identifier: GPL-3.0-or-later

#include "webpage.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView style = R"(
:root { color-scheme: light dark; --page: #ffffff; --text: #1d2127; --faint: #5c6570; --line: #d8dde3; --head: #f3f5f7;
        --gone: #a4262c; --new: #1b6e2d; --warn: #8a5300; }
@media (prefers-color-scheme: dark) {
  :root { --page: #16191d; --text: #e4e7ea; --faint: #9aa4af; --line: #333a42; --head: #20252b;
          --gone: #f1868b; --new: #79cf8b; --warn: #e6b35c; }
}
@media print {
  :root { color-scheme: light; --page: #ffffff; --text: #000000; --faint: #444444; --line: #bbbbbb; --head: #eeeeee;
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

} // namespace

QString pageStart(const QString &title, QLatin1StringView moreStyle)
{
    return u"<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"_s
           + title.toHtmlEscaped() + u"</title>\n<style>"_s + style + moreStyle + u"</style>\n</head>\n<body>\n"_s;
}

QString pageEnd()
{
    return u"</body>\n</html>\n"_s;
}
