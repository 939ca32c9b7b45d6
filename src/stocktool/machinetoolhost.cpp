// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinetoolhost.h"

#include "machine/database.h"
#include "machine/machinekey.h"
#include "machine/registrydisplay.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

const QString processClass = u"Win32_Process"_s;
constexpr const char *withinVariable = "KESTRUNE_TOOLS_WITHIN";
const QString hiberfile = u"C:\\hiberfil.sys"_s;

} // namespace

MachineToolHost::MachineToolHost(Machine &machine, bool elevated)
    : machine_(machine)
    , elevated_(elevated)
{
}

std::unique_ptr<RegistryKey> MachineToolHost::openKey(const QString &path) const
{
    // The key itself instead of the whole platform behind it: a tool must start in no time.
    return std::make_unique<MachineKey>(machine_.registry(), path, elevated_);
}

void MachineToolHost::writeText(const QString &path, const QString &name, const QString &text)
{
    if (const auto key = machine_.registry().make(path))
        machine_.registry().setValue(*key, {name, RegistryType::String, registryText(text)});
}

QString MachineToolHost::resolveText(const QString &text) const
{
    return resolveResourceText(machine_, text);
}

QString MachineToolHost::hostPath(const QString &windowsPath) const
{
    return machine_.hostPath(windowsPath);
}

bool MachineToolHost::makeFile(const QString &path, qint64 size)
{
    QFile file(machine_.hostPath(path));
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly))
        return false;
    machine_.setFileSize(path, size);
    return true;
}

void MachineToolHost::removeFolder(const QString &path)
{
    QDir(machine_.hostPath(path)).removeRecursively();
}

std::optional<bool> MachineToolHost::isRunning(const QString &service) const
{
    return machine_.isRunning(service);
}

void MachineToolHost::setRunning(const QString &service, bool running)
{
    machine_.setRunning(service, running);
}

QStringList MachineToolHost::runningServices() const
{
    const QMap<QString, bool> states = machine_.runStates();
    return states.keys(true);
}

QList<ScheduledTask> MachineToolHost::tasks() const
{
    return machine_.tasks();
}

std::optional<ScheduledTask> MachineToolHost::task(const QString &path) const
{
    return machine_.task(path);
}

void MachineToolHost::setTask(const ScheduledTask &task)
{
    machine_.setTask(task);
}

QStringList MachineToolHost::processes() const
{
    return machine_.processes();
}

void MachineToolHost::endProcesses(const QString &name)
{
    Database::Transaction transaction(machine_.database());
    QStringList left = machine_.processes();
    left.removeIf([&name](const QString &process) { return process.compare(name, Qt::CaseInsensitive) == 0; });
    machine_.setProcesses(left);
    // The management instrumentation lists them, too.
    QList<QJsonObject> instances = machine_.wmiInstances(processClass);
    instances.removeIf([&name](const QJsonObject &instance) {
        return instance.value("Name"_L1).toString().compare(name, Qt::CaseInsensitive) == 0;
    });
    if (machine_.hasWmiClass(processClass))
        machine_.setWmiInstances(processClass, instances);
    transaction.commit();
}

/** What it had before; at the first time two fifths of the memory, in whole pages. */
qint64 MachineToolHost::hiberfileSize() const
{
    constexpr qint64 page = 4096;

    if (const std::optional<qint64> former = machine_.formerHiberfileSize())
        return *former;
    const QList<QJsonObject> computers = machine_.wmiInstances(u"Win32_ComputerSystem"_s);
    const qint64 memory =
        computers.isEmpty() ? 0 : computers.constFirst().value("TotalPhysicalMemory"_L1).toString().toLongLong();
    return (memory * 2 / 5 + page - 1) / page * page;
}

bool MachineToolHost::setHiberfile(bool present)
{
    constexpr quint32 hiddenSystemArchive = 0x26;

    const QString path = machine_.hostPath(hiberfile);
    if (QFileInfo::exists(path) == present)
        return true;
    QFile file(path);
    if (!present) {
        machine_.setFormerHiberfileSize(machine_.fileSize(hiberfile));
        return file.remove();
    }
    if (!makeFile(hiberfile, hiberfileSize()))
        return false;
    machine_.setAttributes(hiberfile, hiddenSystemArchive);
    return true;
}

QMap<QString, QString> MachineToolHost::bootOptions() const
{
    return machine_.bootOptions();
}

void MachineToolHost::setBootOption(const QString &name, const std::optional<QString> &value)
{
    machine_.setBootOption(name, value);
}

void MachineToolHost::setSecurity(const QString &file, const FileSecurity &security)
{
    machine_.setSecurity(file, security);
}

ToolResult runToolOn(Machine &machine, const QString &name, const QStringList &arguments, bool elevated)
{
    MachineToolHost host(machine, elevated);
    ToolResult result = runTool(name, host, arguments);
    machine.logCommand(name, arguments, result.exitCode);
    return result;
}

void carryToolsOutWithin(QProcess &process)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(withinVariable), u"1"_s);
    process.setProcessEnvironment(environment);
}

std::function<ProgramAnswer(Machine &, const QString &, const QStringList &, bool)> toolsWithin()
{
    if (!qEnvironmentVariableIsSet(withinVariable))
        return {};
    return [](Machine &machine, const QString &name, const QStringList &arguments, bool elevated) {
        ToolResult result = runToolOn(machine, name, arguments, elevated);
        return ProgramAnswer{result.exitCode, std::move(result.output)};
    };
}
