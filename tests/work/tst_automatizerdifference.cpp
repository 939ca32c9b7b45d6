// SPDX-License-Identifier: GPL-3.0-or-later
// The whole difference that Optimize and Restore make on a small machine, for what is kept and given up: a machine that
// they have run on is compared with one that is changed by hand.

#include "platform/taskdocument.h"
#include "support/suite.h"
#include "tweakruns.h"
#include "work/automatizer/automatizer.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Keep = std::atomic<int> WorkThread::*;

/** What goes with a feature that is given up. */
struct Feature
{
    const char *name;
    Keep keep;
    QStringList services;
    QStringList tasks;
    QStringList packages;
};

const QString folder = u"Microsoft\\Windows\\"_s;
const QList<Feature> features{
    {"printer",
     &WorkThread::keepPrinter,
     {u"Spooler"_s},
     {folder + u"Printing\\EduPrintProv"_s, folder + u"Printing\\PrinterCleanupTask"_s},
     {}},
    {"Bluetooth audio", &WorkThread::keepBluetoothAudio, {u"BthAvctpSvc"_s}, {}, {}},
    {"files sharing", &WorkThread::keepFilesSharing, {u"LanmanServer"_s}, {}, {}},
    {"Xbox app", &WorkThread::keepXboxApp, {u"XblAuthManager"_s}, {}, {u"Microsoft.GamingApp"_s}},
    {"UPnP", &WorkThread::keepUpnp, {u"SSDPSRV"_s}, {}, {}},
    {"proxy and VPN", &WorkThread::keepProxyVpn, {u"RasMan"_s}, {folder + u"Ras\\MobilityManager"_s}, {}},
    {"NFC", &WorkThread::keepNfc, {u"SEMgrSvc"_s}, {}, {}},
    {"game bar", &WorkThread::keepXboxGameBar, {}, {}, {u"Microsoft.XboxGamingOverlay"_s}},
    {"codecs", &WorkThread::keepCodecs, {}, {}, {u"Microsoft.AV1VideoExtension"_s}},
};

/** What goes in any case, and by the features that are given up. */
struct Targets
{
    explicit Targets(const QStringList &kept)
    {
        for (const Feature &feature : features) {
            if (kept.contains(QString::fromLatin1(feature.name)))
                continue;
            services += feature.services;
            tasks += feature.tasks;
            packages += feature.packages;
        }
    }
    QStringList services{u"FontCache"_s, u"PcaSvc"_s};
    QStringList tasks{u"OneDrive Standalone Update Task-S-1-5-21"_s, folder + u"Autochk\\Proxy"_s};
    QStringList packages{u"Microsoft.BingNews"_s};
};

QString packageKey(const QString &name)
{
    return repositoryKey + u'\\' + name + u"_1.0.0.0_x64__8wekyb3d8bbwe"_s;
}

void setTask(const TestMachine &machine, const QString &path, bool enabled)
{
    ScheduledTask task = *machine.machine().task(u'\\' + path);
    task.document = withTaskEnabled(task.document, enabled);
    machine.machine().setTask(task);
}

void setService(TestMachine &machine, const QString &name, int start, bool running)
{
    machine.write(servicesKey + u'\\' + name, u"Start"_s, start);
    machine.machine().setRunning(name, running);
}

void removeValue(const TestMachine &machine, const QString &key, const QString &name)
{
    machine.platform().openKey(key)->remove(name);
}

/** Registry with the program's records, tasks, run states, and the encoder's file. */
QStringList wholeState(const TestMachine &machine)
{
    RegistryStore &registry = machine.machine().registry();
    QStringList state = registryState(registry, u"HKEY_LOCAL_MACHINE"_s);
    state += registryState(registry, u"HKEY_CURRENT_USER"_s);
    for (const QString &name : machine.names(settingsKey))
        state.append(u"setting "_s + name + u'=' + machine.read(settingsKey, name).toString());
    for (const char *group : {"SVC", "Task", "Packages", "Autorun"})
        state += registryState(registry, settingsKey + u'\\' + QString::fromLatin1(group));
    for (const ScheduledTask &task : machine.machine().tasks())
        state.append(task.path + (taskFacts(task.document).enabled ? u" on"_s : u" off"_s));
    const QMap<QString, bool> states = machine.machine().runStates();
    for (auto service = states.cbegin(); service != states.cend(); ++service)
        state.append(service.key() + (service.value() ? u" runs"_s : u" stopped"_s));
    QFile config(machine.platform().hostPath(encoderConfig));
    if (config.open(QIODevice::ReadOnly))
        state.append(QString::fromLatin1(config.readAll()));
    state.sort();
    return state;
}

/** Does by hand what Optimize has to do, but for the tweaks. */
void optimizeByHand(TestMachine &machine, const Targets &targets)
{
    for (const QString &name : targets.services) {
        setService(machine, name, 4, false);
        machine.write(serviceRecordsKey, name, 1);
    }
    machine.write(controlKey, u"WaitToKillServiceTimeout"_s, u"3000"_s);
    for (const char *name : {"StiSvc", "Wcmsvc"})
        machine.write(servicesKey + u'\\' + QString::fromLatin1(name), u"Start"_s, 3);
    for (const QString &path : targets.tasks) {
        setTask(machine, path, false);
        machine.write(taskRecordsKey, QString(path).replace(u'\\', u'/'), 1);
    }
    for (const QString &name : targets.packages) {
        machine.machine().registry().removeKey(*machine.machine().registry().find(packageKey(name)));
        machine.write(packageRecordsKey, name, 1);
    }
    const auto record = [&machine](const QString &key, const QString &name, const QString &command) {
        removeValue(machine, key, name);
        machine.write(autorunRecordsKey, name, command + u'=' + key + u'\\' + name);
    };
    record(userRunKey, u"Quoted"_s, u"\"C:\\Tools\\a.exe\" -x"_s);
    record(userRunKey, u"Unquoted"_s, u"C:\\Tools\\a.exe -x"_s);
    record(userRunKey, u"Gone"_s, u"\"C:\\Tools\\gone.exe\""_s);
    record(machineRunKey, u"WithEquals"_s, u"\"C:\\Tools\\a.exe\" --mode"_s);
    machine.write(terminalTaskKey, u"State"_s, 1);
    machine.write(autorunRecordsKey, u"StartTerminalOnLoginTask"_s, terminalTaskKey + u'=');
    machine.addFile(encoderConfig, "[RTSS]\r\nEnableEncoderServer=0\r\n");
    machine.write(settingsKey, u"optimized"_s, 1);
}

/** What Restore has to do after that. */
void restoreByHand(TestMachine &machine, const Targets &targets)
{
    for (const QString &name : targets.services) {
        setService(machine, name, 2, true);
        removeValue(machine, serviceRecordsKey, name);
    }
    machine.write(controlKey, u"WaitToKillServiceTimeout"_s, 2000);
    for (const QString &path : targets.tasks)
        setTask(machine, path, true);
    for (const QString &name : targets.packages)
        installPackage(machine, name);
    machine.write(userRunKey, u"Quoted"_s, u"\"C:\\Tools\\a.exe\" -x"_s);
    machine.write(machineRunKey, u"WithEquals"_s, u"\"C:\\Tools\\a.exe\" --mode"_s);
    machine.write(terminalTaskKey, u"State"_s, 2);
}

QString tweaksOfOptimize(bool keepsGameBar)
{
    return u"S1 S2 S3 S4 S5 S6 G7 S9 G1 G2 G3 G4 G5 "_s + (keepsGameBar ? u""_s : u"G6 "_s)
           + u"G7 G8 G9 G10 G11 G12 W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;
}

const QString tweaksOfRestore = u"S1 S2 S3 S4 S5 S6 S7 S9 G1 G2 G3 G4 G5 G6 G7 G8 G9 G10 G11 G12 G13 "
                                "W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;

void keepOnly(WorkThread &worker, const QStringList &kept)
{
    worker.winName = u"Windows 11 Home"_s;
    for (const Feature &feature : features)
        worker.*feature.keep = kept.contains(QString::fromLatin1(feature.name)) ? 2 : 0;
}

QStringList allFeatures()
{
    QStringList names;
    for (const Feature &feature : features)
        names.append(QString::fromLatin1(feature.name));
    return names;
}

} // namespace

class TestAutomatizerDifference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void machinesAreAsTheyShouldBe_data();
    void machinesAreAsTheyShouldBe();
    void aSecondRunBringsBackWhatIsKept();
};

void TestAutomatizerDifference::machinesAreAsTheyShouldBe_data()
{
    QTest::addColumn<QStringList>("kept");
    QTest::newRow("all kept") << allFeatures();
    QTest::newRow("none kept") << QStringList();
    for (const QString &name : allFeatures())
        QTest::addRow("only %s kept", qPrintable(name)) << QStringList{name};
}

void TestAutomatizerDifference::machinesAreAsTheyShouldBe()
{
    QFETCH(const QStringList, kept);
    QStringList fresh, optimized, restored;
    {
        TestMachine machine;
        fillAutomatizerMachine(machine);
        WorkThread worker;
        keepOnly(worker, kept);
        fresh = wholeState(machine);
        optimize(worker);
        optimized = wholeState(machine);
        restore(worker);
        restored = wholeState(machine);
    }
    AutomatizerMachine machine;
    QCOMPARE(wholeState(machine), fresh);
    WorkThread worker;
    keepOnly(worker, kept);
    const Targets targets(kept);
    optimizeByHand(machine, targets);
    runTweaks(worker, tweaksOfOptimize(kept.contains(u"game bar"_s)), true);
    QCOMPARE(optimized, wholeState(machine));
    QVERIFY(optimized != fresh);

    restoreByHand(machine, targets);
    runTweaks(worker, tweaksOfRestore, false);
    QCOMPARE(restored, wholeState(machine));
    QVERIFY(restored != optimized);
}

void TestAutomatizerDifference::aSecondRunBringsBackWhatIsKept()
{
    AutomatizerMachine machine;
    {
        WorkThread worker;
        keepOnly(worker, {});
        worker.automatizerTweak = 0;
        optimize(worker);
    }
    WorkThread worker;
    keepOnly(worker, {u"printer"_s, u"game bar"_s});
    worker.automatizerTweak = 0;
    optimize(worker);
    const auto start = [&machine](const char *name) {
        return machine.read(servicesKey + u'\\' + QString::fromLatin1(name), u"Start"_s).toInt();
    };
    QCOMPARE(start("Spooler"), 2);
    QCOMPARE(machine.machine().isRunning(u"Spooler"_s), std::optional(true));
    QVERIFY(!machine.names(serviceRecordsKey).contains(u"Spooler"_s));
    QCOMPARE(start("SSDPSRV"), 4);
    const auto isOn = [&machine](const QString &path) {
        return taskFacts(machine.machine().task(path)->document).enabled;
    };
    // Also one that was off before the first run.
    for (const char *name : {"EduPrintProv", "PrinterCleanupTask", "PrintJobCleanupTask"})
        QVERIFY(isOn(u"\\Microsoft\\Windows\\Printing\\"_s + QString::fromLatin1(name)));
    QVERIFY(!isOn(u"\\Microsoft\\Windows\\Ras\\MobilityManager"_s));
    RegistryStore &registry = machine.machine().registry();
    QVERIFY(registry.find(packageKey(u"Microsoft.XboxGamingOverlay"_s)));
    QVERIFY(!registry.find(packageKey(u"Microsoft.GamingApp"_s)));
    // What was brought back is recorded all the same, of tasks and packages.
    QVERIFY(machine.names(packageRecordsKey).contains(u"Microsoft.XboxGamingOverlay"_s));
}

KESTRUNE_SUITE(TestAutomatizerDifference)
#include "tst_automatizerdifference.moc"
