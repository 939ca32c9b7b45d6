// SPDX-License-Identifier: GPL-3.0-or-later
// What a rehearsal changes in the process that runs it.

#include "rehearsalprocess.h"

#include "machine/machine.h"
#include "machine/source/regfile.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
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

const ScriptOpener *current = nullptr; // a later one takes over before the former goes
// A page in the web would be shown by a program of the host's.
const QString schemes[] = {u"file"_s, u"http"_s, u"https"_s, u"mailto"_s};

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

ScriptOpener::ScriptOpener(Machine &machine, bool elevated)
    : machine_(machine)
    , elevated_(elevated)
{
    for (const QString &scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, this, "open");
    current = this;
}

ScriptOpener::~ScriptOpener()
{
    // After the application Qt's own list of handlers is gone, too.
    if (current != this || !QCoreApplication::instance())
        return;
    for (const QString &scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
    current = nullptr;
}

void ScriptOpener::open(const QUrl &address)
{
    if (!address.isLocalFile()) {
        qInfo("A rehearsal opens no page of the web: %s", qUtf8Printable(address.toString()));
        return;
    }
    const QString path = address.toLocalFile();
    if (!elevated_ || !path.endsWith(u".reg", Qt::CaseInsensitive))
        return;
    QFile file(machine_.hostPath(path));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("%s: %s", qUtf8Printable(file.fileName()), qUtf8Printable(file.errorString()));
        return;
    }
    try {
        const QList<RegistryEdit> edits = parseRegistryScript(file.readAll(), file.fileName());
        applyRegistryScript(machine_.database(), machine_.registry(), edits);
    } catch (const MachineError &error) {
        qWarning("%s", qUtf8Printable(error.message));
    }
}
