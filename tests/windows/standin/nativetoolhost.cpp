// SPDX-License-Identifier: GPL-3.0-or-later

#include "nativetoolhost.h"

#include "standinkeys.h"

#include "platform/windows/nativekey.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <windows.h>

using namespace Qt::StringLiterals;

std::unique_ptr<RegistryKey> NativeToolHost::openKey(const QString &path) const
{
    return std::make_unique<NativeKey>(path);
}

void NativeToolHost::writeText(const QString &path, const QString &name, const QString &text)
{
    const HKEY hive = path.startsWith("HKEY_CURRENT_USER\\"_L1) ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
    const std::wstring key = path.section(u'\\', 1).toStdWString();
    const std::wstring data = text.toStdWString();
    RegSetKeyValueW(hive, key.c_str(), name.toStdWString().c_str(), REG_SZ, data.c_str(),
                    static_cast<DWORD>((data.size() + 1) * sizeof(wchar_t)));
}

std::unique_ptr<RegistryKey> NativeToolHost::states() const
{
    return openKey(standInStates);
}

bool NativeToolHost::makeFile(const QString &path, qint64 size)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly) && file.resize(size);
}

void NativeToolHost::removeFolder(const QString &path)
{
    QDir(path).removeRecursively();
}

std::optional<bool> NativeToolHost::isRunning(const QString &service) const
{
    const QVariant state = states()->value(service);
    return state.isValid() ? std::optional(state.toInt() != 0) : std::nullopt;
}

void NativeToolHost::setRunning(const QString &service, bool running)
{
    states()->setValue(service, running ? 1 : 0);
}

QStringList NativeToolHost::runningServices() const
{
    const auto key = states();
    QStringList names = key->childKeys();
    names.removeIf([&key](const QString &name) { return key->value(name).toInt() == 0; });
    return names;
}

QList<ScheduledTask> NativeToolHost::tasks() const
{
    QList<ScheduledTask> result;
    const auto key = openKey(standInTasks);
    for (const QString &name : key->childKeys()) {
        const QString text = key->value(name).toString();
        result.append({text.section(u'\n', 0, 0), text.section(u'\n', 1)});
    }
    return result;
}

std::optional<ScheduledTask> NativeToolHost::task(const QString &path) const
{
    for (const ScheduledTask &task : tasks()) {
        if (task.path.compare(path, Qt::CaseInsensitive) == 0)
            return task;
    }
    return {};
}

void NativeToolHost::setTask(const ScheduledTask &task)
{
    const QList<ScheduledTask> present = tasks();
    qsizetype place = 0;
    while (place < present.size() && present.at(place).path.compare(task.path, Qt::CaseInsensitive) != 0)
        ++place;
    openKey(standInTasks)->setValue(standInTaskName(place), task.path + u'\n' + task.document);
}

QStringList NativeToolHost::processes() const
{
    return openKey(standInProcesses)->value(u"Names"_s).toStringList();
}

void NativeToolHost::endProcesses(const QString &name)
{
    QStringList names = processes();
    names.removeIf([&name](const QString &each) { return each.compare(name, Qt::CaseInsensitive) == 0; });
    openKey(standInProcesses)->setValue(u"Names"_s, names);
}

QMap<QString, QString> NativeToolHost::bootOptions() const
{
    const auto key = openKey(standInBootOptions);
    QMap<QString, QString> options;
    for (const QString &name : key->childKeys())
        options.insert(name.toLower(), key->value(name).toString());
    return options;
}

void NativeToolHost::setBootOption(const QString &name, const std::optional<QString> &value)
{
    if (value)
        openKey(standInBootOptions)->setValue(name, *value);
    else
        openKey(standInBootOptions)->remove(name);
}

FileSecurity NativeToolHost::security(const QString &file) const
{
    const QString text = openKey(standInSecurity)->value(file).toString();
    return {text.section(u'\n', 0, 0), text.section(u'\n', 1)};
}

void NativeToolHost::setSecurity(const QString &file, const FileSecurity &security)
{
    openKey(standInSecurity)->setValue(file, security.owner + u'\n' + security.rights);
}
