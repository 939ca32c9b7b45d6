// SPDX-License-Identifier: GPL-3.0-or-later

#include "testmachine.h"

#include "files.h"

#include "machine/seam/scriptopener.h"
#include "machine/source/machinesource.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

const QMap<QString, QString> environment{
    {u"SystemRoot"_s, u"C:\\Windows"_s},
    {u"windir"_s, u"C:\\Windows"_s},
    {u"SystemDrive"_s, u"C:"_s},
    {u"HOMEDRIVE"_s, u"C:"_s},
    {u"ProgramFiles"_s, u"C:\\Program Files"_s},
    {u"ProgramFiles(x86)"_s, u"C:\\Program Files (x86)"_s},
    {u"LOCALAPPDATA"_s, u"C:\\Users\\Test\\AppData\\Local"_s},
    {u"TEMP"_s, u"C:\\Users\\Test\\AppData\\Local\\Temp"_s},
    {u"USERNAME"_s, u"Test"_s},
    {u"USERDOMAIN"_s, u"TESTPC"_s},
};

} // namespace

TestMachine::TestMachine(Windows windows, MachineOptions options)
{
    {
        const auto made = Machine::create(folder());
        made->setEnvironment(environment);
    }
    start(std::move(options));
    const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"_s;
    write(key, u"ProductName"_s, u"Windows 10 Home"_s);
    write(key, u"CurrentBuild"_s, windows == Windows::Eleven ? u"26100"_s : u"19045"_s);
}

TestMachine::TestMachine(const QString &builtIn, MachineOptions options)
{
    makeMachine(folder(), QCoreApplication::applicationDirPath() + u"/machines/"_s + builtIn, Existing::Keep);
    start(std::move(options));
}

TestMachine::~TestMachine()
{
    setPlatform(nullptr);
}

void TestMachine::start(MachineOptions options)
{
    if (!options.launcher)
        options.launcher = [starts = shellStarts_](const ShellStart &start) { starts->append(start); };
    if (!options.opener)
        options.opener = ScriptOpener::make;
    auto platform = std::make_unique<MachinePlatform>(folder(), std::move(options));
    platform_ = platform.get();
    setPlatform(std::move(platform));
}

void TestMachine::add(const TestService &service)
{
    RegistryStore &registry = machine().registry();
    const auto key = *registry.make(servicesKey + u'\\' + service.name);
    const auto set = [&](const QString &name, RegistryType type, const QByteArray &data) {
        registry.setValue(key, {name, type, data});
    };
    set(u"Type"_s, RegistryType::DWord, registryDWord(static_cast<quint32>(service.type)));
    set(u"Start"_s, RegistryType::DWord, registryDWord(static_cast<quint32>(service.start)));
    if (!service.displayName.isEmpty())
        set(u"DisplayName"_s, RegistryType::String, registryText(service.displayName));
    if (!service.description.isEmpty())
        set(u"Description"_s, RegistryType::String, registryText(service.description));
    if (!service.dependsOn.isEmpty())
        set(u"DependOnService"_s, RegistryType::MultiString, registryTexts(service.dependsOn));
    machine().setRunning(service.name, service.running);
}

QString TestMachine::addFile(const QString &windowsPath, const QByteArray &content)
{
    const QString path = machine().hostPath(windowsPath);
    writeFile(path, content);
    return path;
}

QVariant TestMachine::read(const QString &key, const QString &name) const
{
    // Through the store, since opening a key through the seam would make it.
    return machine().registry().find(key) ? platform_->openKey(key)->value(name) : QVariant();
}

void TestMachine::write(const QString &key, const QString &name, const QVariant &value)
{
    RegistryStore &registry = machine().registry();
    const auto id = *registry.make(key);
    if (value.typeId() == QMetaType::Int)
        registry.setValue(id, {name, RegistryType::DWord, registryDWord(static_cast<quint32>(value.toInt()))});
    else
        registry.setValue(id, {name, RegistryType::String, registryText(value.toString())});
}

QStringList TestMachine::names(const QString &key) const
{
    QStringList result;
    if (const auto id = machine().registry().find(key)) {
        for (const RegistryValue &value : machine().registry().values(*id))
            result.append(value.name);
    }
    return result;
}

QList<LoggedCommand> TestMachine::commands() const
{
    QList<LoggedCommand> result;
    QFile file(folder() + u"/commands.log"_s);
    if (!file.open(QIODevice::ReadOnly))
        return result;
    while (!file.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
        LoggedCommand command{line[u"program"_s].toString(), {}, line[u"exitCode"_s].toInt()};
        for (const QJsonValue argument : line[u"arguments"_s].toArray())
            command.arguments.append(argument.toString());
        result.append(command);
    }
    return result;
}

QStringList TestMachine::errorLog() const
{
    QFile file(platform_->programFolder() + u"/log.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines;
    const QStringList raw = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : raw) {
        // Date, " - ", time as hh:mm:ss, ": ", message.
        const qsizetype time = line.indexOf(u" - "_s);
        lines.append(line.sliced(line.indexOf(u": "_s, time) + 2).trimmed());
    }
    return lines;
}

void TestMachine::logErrors()
{
    write(settingsKey, u"LogError"_s, 1);
}
