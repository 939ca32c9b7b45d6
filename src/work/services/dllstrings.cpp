// SPDX-License-Identifier: GPL-3.0-or-later
// Registry strings that stand for a string in a DLL.

#include "work/errorlog.h"
#include "platform/platform.h"
#include "work/workthread.h"

#include <QFileInfo>

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

QString WorkThread::ExpandResourceString(const QString &text)
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
        result = QFileInfo::exists(platform().hostPath(parts.at(0))) ? GetResourceInDll(parts.at(0), parts.at(1))
                                                                      : tr("no description");
    }
    // The Bluetooth service of one vendor names itself by its program's path.
    if (result.contains("RtkBtManServ"_L1))
        result = u"RtkBtManServ"_s;
    return result;
}

QString WorkThread::GetResourceInDll(const QString &dllPath, const QString &id)
{
    const DllString string = platform().dllString(dllPath, id.toUInt());
    if (string.loaded)
        return string.text.value_or(tr("no description"));
    // This one is no DLL, and every machine has it.
    if (!dllPath.endsWith("perfhost.exe"_L1)) {
        LogError(u"GetResourceInDll: HInstance of LoadLibrary is null! "_s + dllPath + u", UID="_s + id
                 + u", ERROR_CODE="_s + QString::number(string.error));
    }
    return tr("no description");
}
