// SPDX-License-Identifier: GPL-3.0-or-later
// The environment variables of a rehearsal machine in this process.

#include "environment.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/**
 * What the logic asks for, in the spellings that it uses. No other variable of a machine is let in: LD_PRELOAD, for
 * one, would have every tool run what it names.
 */
constexpr QStringView spellings[] = {
    u"windir",       u"WINDIR", u"WinDir",    u"SystemRoot",  u"programfiles", u"ProgramFiles(x86)",
    u"LOCALAPPDATA", u"temp",   u"homedrive", u"systemdrive", u"USERNAME",     u"USERDOMAIN",
};

bool isAskedFor(const QString &name)
{
    return std::any_of(std::begin(spellings), std::end(spellings),
                       [&name](QStringView each) { return name.compare(each, Qt::CaseInsensitive) == 0; });
}

/** With all that the value has; the system's own code page lacks most of the world's letters on Windows. */
void setVariable(const QString &name, const QString &value)
{
#ifdef Q_OS_WIN
    _wputenv_s(qUtf16Printable(name), qUtf16Printable(value));
#else
    qputenv(name.toLocal8Bit().constData(), value.toLocal8Bit());
#endif
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
        if (!isAskedFor(each.key()))
            continue;
        for (const QString &name : spellingsOf(each.key())) {
            setVariable(name, each.value());
            entered << name;
        }
    }
}

bool isOfWindows(const QString &windowsPath)
{
    const QString folder = qEnvironmentVariable("windir");
    return !folder.isEmpty()
           && QString(windowsPath).replace(u'/', u'\\').startsWith(folder + u'\\', Qt::CaseInsensitive);
}
