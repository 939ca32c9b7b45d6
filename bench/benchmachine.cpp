// SPDX-License-Identifier: GPL-3.0-or-later

#include "benchmachine.h"

#include "machine/database.h"

using namespace Qt::StringLiterals;

BenchMachine::BenchMachine(MachineOptions options)
{
    const QString folder = folder_.path() + u"/machine"_s;
    Machine::create(folder)->setEnvironment(
        {{u"SystemRoot"_s, u"C:\\Windows"_s}, {u"windir"_s, u"C:\\Windows"_s}, {u"homedrive"_s, u"C:"_s}});
    auto platform = std::make_unique<MachinePlatform>(folder, std::move(options));
    platform_ = platform.get();
    setPlatform(std::move(platform));
}

BenchMachine::~BenchMachine()
{
    setPlatform(nullptr);
}

void BenchMachine::addServices(int count)
{
    Database::Transaction transaction(machine().database());
    RegistryStore &registry = machine().registry();
    const auto services = *registry.make(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services"_s);
    for (int i = 0; i < count; ++i) {
        const QString name = u"Service%1"_s.arg(i, 6, 10, QLatin1Char('0'));
        const auto key = registry.make(services, name);
        registry.setValue(key, {u"Type"_s, RegistryType::DWord, registryDWord(32)});
        registry.setValue(key, {u"Start"_s, RegistryType::DWord, registryDWord(2)});
        registry.setValue(key, {u"DisplayName"_s, RegistryType::String, registryText(u"A service, number "_s + name)});
        registry.setValue(key, {u"Description"_s, RegistryType::String,
                                registryText(u"Does what service %1 is there for, and nothing else."_s.arg(i))});
    }
    transaction.commit();
}

void BenchMachine::addPackages(int count)
{
    Database::Transaction transaction(machine().database());
    RegistryStore &registry = machine().registry();
    const auto packages =
        *registry.make(u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows"
                       "\\CurrentVersion\\AppModel\\Repository\\Packages"_s);
    for (int i = 0; i < count; ++i) {
        const QString name = i % 2 == 0 ? u"Microsoft.Todos"_s : u"Vendor.App%1"_s.arg(i);
        const auto key = registry.make(packages, name + u"_1.%1.0.0_x64__8wekyb3d8bbwe"_s.arg(i));
        registry.setValue(key, {u"DisplayName"_s, RegistryType::String, registryText(u"An app, number %1"_s.arg(i))});
    }
    transaction.commit();
}

void BenchMachine::addAutoruns(int count)
{
    Database::Transaction transaction(machine().database());
    RegistryStore &registry = machine().registry();
    const auto key = *registry.make(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s);
    for (int i = 0; i < count; ++i)
        registry.setValue(key, {u"Program %1"_s.arg(i), RegistryType::String, registryText(u"\"C:\\a.exe\" -x"_s)});
    transaction.commit();
}

QString vendorsTask(const QString &path)
{
    return uR"(<Task version="1.4" xmlns="http://schemas.microsoft.com/windows/2004/02/mit/task">
  <RegistrationInfo>
    <Date>2024-05-01T10:00:00</Date>
    <Author>Vendor</Author>
    <Description>Does what %1 is there for, and nothing else.</Description>
    <URI>%2</URI>
    <SecurityDescriptor>D:P(A;;FA;;;BA)(A;;FA;;;SY)</SecurityDescriptor>
  </RegistrationInfo>
  <Triggers>
    <TimeTrigger>
      <Repetition><Interval>PT1H</Interval></Repetition>
      <StartBoundary>2024-05-01T10:00:00</StartBoundary>
    </TimeTrigger>
  </Triggers>
  <Principals>
    <Principal id="LocalSystem"><UserId>S-1-5-18</UserId><RunLevel>HighestAvailable</RunLevel></Principal>
  </Principals>
  <Settings>
    <MultipleInstancesPolicy>IgnoreNew</MultipleInstancesPolicy>
    <DisallowStartIfOnBatteries>false</DisallowStartIfOnBatteries>
    <Hidden>true</Hidden>
    <ExecutionTimeLimit>PT5M</ExecutionTimeLimit>
  </Settings>
  <Actions Context="LocalSystem"><Exec><Command>C:\Vendor\task.exe</Command></Exec></Actions>
</Task>)"_s.arg(path.section(u'\\', -1), path);
}
