// SPDX-License-Identifier: GPL-3.0-or-later

#include "autorun.h"

#include "platform/platform.h"
#include "platform/registryscript.h"
#include "work/backups.h"

#include <QStringEncoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// In the program folder
const QString scriptName = u"backup_autorun/Run.reg"_s;

/** The script so far, with LF line ends; nothing where one is there that can't be read or put aside. */
std::optional<QString> scriptSoFar(const QString &file)
{
    const BackupState state = backupState(file, isCompleteScript);
    if (state == BackupState::CutOff && !setAside(file))
        return {};
    if (state != BackupState::Complete)
        return registryScriptHead + u'\n';
    std::optional<QString> script = readBackup(file);
    if (script)
        script->replace("\r\n"_L1, "\n"_L1);
    return script;
}

/** As the registry editor writes its own, so that it reads any name. */
bool writeScript(QString script)
{
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    return platform().writeFile(platform().programFolder(), scriptName, encoder(script.replace(u'\n', "\r\n"_L1)),
                                IfThere::Exchange);
}

} // namespace

QString runBackupFile()
{
    return platform().programFolder() + u'/' + scriptName;
}

bool backUpRunValue(const QString &key, const QString &name)
{
    const QString exact = registryName(name);
    const QList<RegistryValue> values = platform().registryValues(key);
    const auto value = std::find_if(values.cbegin(), values.cend(), [&exact](const RegistryValue &each) {
        return each.name.compare(exact, Qt::CaseInsensitive) == 0;
    });
    if (value == values.cend())
        return true;
    if (!fitsRegistryScript(exact))
        return false;
    const QString file = runBackupFile();
    const std::optional<QString> script = scriptSoFar(file);
    const QString added = u"\n["_s + key + u"]\n"_s + registryScriptValue(*value) + u'\n';
    return script && (script->contains(added) || writeScript(*script + added));
}
