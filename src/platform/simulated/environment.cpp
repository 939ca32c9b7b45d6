// SPDX-License-Identifier: GPL-3.0-or-later
// The environment variables of a rehearsal machine in this process.

#include "environment.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView spellings[] = {
    u"windir",       u"WINDIR", u"WinDir",    u"SystemRoot",  u"programfiles", u"ProgramFiles(x86)",
    u"LOCALAPPDATA", u"temp",   u"homedrive", u"systemdrive", u"USERNAME",     u"USERDOMAIN",
};

/** What this process and its children need of the host to run at all. */
constexpr QStringView hostVariables[] = {
    u"PATH", u"HOME", u"USER", u"SHELL", u"LANG", u"DISPLAY", u"TMPDIR", u"XDG_RUNTIME_DIR", u"QT_QPA_PLATFORM",
};

bool isOfHost(const QString &name)
{
    return std::any_of(std::begin(hostVariables), std::end(hostVariables),
                       [&name](QStringView each) { return name.compare(each, Qt::CaseInsensitive) == 0; });
}

QSet<QString> spellingsOf(const QString &name)
{
    QSet<QString> result{name, name.toUpper(), name.toLower()};
    for (const QStringView spelling : spellings) {
        if (name.compare(spelling, Qt::CaseInsensitive) == 0)
            result << spelling.toString();
    }
    return result;
}

} // namespace

void enterEnvironment(const QMap<QString, QString> &variables)
{
    static QSet<QString> entered;
    for (const QString &name : std::as_const(entered))
        qunsetenv(name.toLocal8Bit().constData());
    entered.clear();
    for (auto each = variables.cbegin(); each != variables.cend(); ++each) {
        if (isOfHost(each.key()))
            continue;
        for (const QString &name : spellingsOf(each.key())) {
            qputenv(name.toLocal8Bit().constData(), each.value().toLocal8Bit());
            entered << name;
        }
    }
}
