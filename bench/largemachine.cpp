// SPDX-License-Identifier: GPL-3.0-or-later

#include "largemachine.h"

#include "benchmachine.h"
#include "machine/database.h"
#include "machine/source/machinesource.h"
#include "work/tasks/tasks.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int services = 5000;
constexpr int tasks = 20000;
constexpr int tasksInFolder = 100;
constexpr int components = 1000;
constexpr int classes = 100; // of each component
constexpr int values = 10;   // of each class

void addServices(Machine &machine)
{
    RegistryStore &registry = machine.registry();
    const auto parent = *registry.make(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services"_s);
    for (int i = 0; i < services; ++i) {
        const QString name = u"Vendor%1"_s.arg(i);
        const auto key = registry.make(parent, name);
        const quint32 start = i % 5 == 0 ? 2 : 3;
        registry.setValue(key, {u"Type"_s, RegistryType::DWord, registryDWord(32)});
        registry.setValue(key, {u"Start"_s, RegistryType::DWord, registryDWord(start)});
        registry.setValue(key,
                          {u"DisplayName"_s, RegistryType::String, registryText(u"A service, number %1"_s.arg(i))});
        registry.setValue(key, {u"Description"_s, RegistryType::String,
                                registryText(u"Does what service %1 is there for, and nothing else."_s.arg(i))});
        machine.setRunning(name, start == 2);
    }
}

void addTasks(Machine &machine)
{
    const QString nonVital = nonVitalTaskPrefixes().constFirst();
    for (int i = 0; i < tasks; ++i) {
        const QString name = (i % tasksInFolder == 0 ? nonVital : u"Task "_s) + QString::number(i);
        const QString path = u"\\Vendor\\Folder %1\\%2"_s.arg(i / tasksInFolder).arg(name);
        machine.setTask({path, vendorsTask(path)});
    }
}

void addValues(Machine &machine)
{
    RegistryStore &registry = machine.registry();
    const auto vendor = *registry.make(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Vendor"_s);
    for (int component = 0; component < components; ++component) {
        const auto parent = registry.make(vendor, u"Component %1"_s.arg(component));
        for (int each = 0; each < classes; ++each) {
            const auto key = registry.make(parent, u"Class %1"_s.arg(each));
            for (int i = 0; i < values; ++i) {
                const RegistryValue text{u"Text %1"_s.arg(i), RegistryType::String,
                                         registryText(u"of class %1 in component %2"_s.arg(each).arg(component))};
                const RegistryValue number{u"Number %1"_s.arg(i), RegistryType::DWord, registryDWord(quint32(each))};
                registry.setValue(key, i % 2 == 0 ? text : number);
            }
        }
    }
}

} // namespace

void makeLargeMachine(const QString &folder)
{
    makeMachine(folder, QCoreApplication::applicationDirPath() + u"/machines/windows11"_s, Existing::Keep);
    const auto machine = Machine::open(folder);
    Database::Transaction transaction(machine->database());
    addServices(*machine);
    addTasks(*machine);
    addValues(*machine);
    transaction.commit();
}
