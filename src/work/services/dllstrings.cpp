// SPDX-License-Identifier: GPL-3.0-or-later
// Strings of the registry that stand for a string in a DLL.

#include "services.h"

#include "platform/platform.h"
#include "work/settings.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

/** Puts the value of a variable for its name at the start of the text; only the first of the three that fits. */
void expandLeadingVariable(QString &text)
{
    struct Variable
    {
        QLatin1StringView placeholder;
        const char *name;
    };
    static constexpr Variable variables[] = {
        {"%SystemRoot%"_L1, "SystemRoot"},
        {"%windir%"_L1, "windir"},
        {"%ProgramFiles%"_L1, "programfiles"},
    };
    for (const Variable &variable : variables) {
        if (text.startsWith(variable.placeholder, Qt::CaseInsensitive)) {
            text.replace(variable.placeholder, qEnvironmentVariable(variable.name), Qt::CaseInsensitive);
            return;
        }
    }
}

/** Puts the folder in front of a DLL that is named without one. */
void addFolder(QString &text)
{
    if (text.contains("WaaSMedicSvcImpl.dll"_L1, Qt::CaseInsensitive))
        text.prepend(qEnvironmentVariable("SystemRoot") + u"\\UUS\\amd64\\"_s);
    else if (!text.contains(u':') && text.contains(".dll"_L1))
        text.prepend(qEnvironmentVariable("SystemRoot") + u"\\System32\\"_s);
}

} // namespace

QString expandResourceString(const QString &text)
{
    QString reference = text;
    if (reference.startsWith("$(@"_L1))
        reference.remove(0, 3);
    else if (reference.startsWith(u'@'))
        reference.remove(0, 1);
    expandLeadingVariable(reference);
    addFolder(reference);
    if (reference.endsWith(u')'))
        reference.chop(1);

    QString result = text;
    if (reference.contains(",-"_L1)) {
        const QStringList parts = reference.split(u",-"_s);
        // Whoever registers a task or a service may name any path: another computer would be given the user's name and
        // proof with the question alone.
        result = platform().isOnFixedDrive(parts.at(0)) ? resourceInDll(parts.at(0), parts.at(1))
                                                        : WorkThread::tr("no description");
    }
    // The Bluetooth service of one vendor names itself by its program's path.
    if (result.contains("RtkBtManServ"_L1))
        result = u"RtkBtManServ"_s;
    return result;
}

QString resourceInDll(const QString &dllPath, const QString &id)
{
    DllString string;
    const auto log = [&](const QString &what) {
        LogError(u"GetResourceInDll: "_s + what + dllPath + u", UID="_s + id + u", ERROR_CODE="_s
                 + QString::number(string.error));
    };
    try {
        string = platform().dllString(dllPath, id.toUInt());
        // An empty string counts as none.
        if (string.loaded && string.text && !string.text->isEmpty())
            return *string.text;
        // This one is no DLL, and every machine has it.
        if (!string.loaded && !dllPath.endsWith("perfhost.exe"_L1))
            log(u"HInstance of LoadLibrary is null! "_s);
    } catch (const std::exception &) {
        log({});
    }
    return WorkThread::tr("no description");
}

QString WorkThread::ExpandResourceString(const QString &text)
{
    return expandResourceString(text);
}

QString WorkThread::GetResourceInDll(const QString &dllPath, const QString &id)
{
    return resourceInDll(dllPath, id);
}
