// SPDX-License-Identifier: GPL-3.0-or-later
// Analyze, Optimize and Restore on a real registry, by their buttons. Little is left of the PC, for each change has its
// deliberate pause.

#include "platform/platform.h"
#include "support/automatizerview.h"
#include "support/boxes.h"
#include "support/files.h"
#include "support/listpages.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "windows/standin/standinkeys.h"
#include "windows/trialpc.h"
#include "work/settings.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** How long each of the three may take, in milliseconds. */
constexpr int longPatience = 60000;

const QString controlKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_s;

// The rest runs or stands in vain: it is needed, or kept.
const QStringList needlessServices{u"FontCache"_s, u"lfsvc"_s, u"Spooler"_s, u"SysMain"_s};
const QStringList runningServices = needlessServices + QStringList{u"Dhcp"_s, u"SSDPSRV"_s};
const QStringList needlessTasks{u"Microsoft\\Windows\\Application Experience\\Microsoft Compatibility Appraiser"_s,
                                u"Microsoft\\Windows\\Printing\\PrinterCleanupTask"_s};
const QString usefulTask = u"Microsoft\\Windows\\Time Zone\\SynchronizeTimeZone"_s;
const QStringList needlessPackages{u"Microsoft.BingNews"_s, u"Microsoft.XboxGamingOverlay"_s};
const QString xboxTask = u"Xbox.App.Tasks.FullTrustComponent"_s;
const QStringList programs{u"Quoted"_s, u"Unquoted"_s, xboxTask};
const QStringList startableByHand{
    u"edgeupdate"_s, u"edgeupdatem"_s, u"StiSvc"_s, u"MapsBroker"_s,  u"InventorySvc"_s,          u"LocalKdc"_s,
    u"Wcmsvc"_s,     u"brave"_s,       u"bravem"_s, u"NvContainer"_s, u"NvContainerLocalSystem"_s};

const QString quotedCommand = u"\"C:\\windows\\system32\\notepad.exe\" -tray"_s;
const QString unquotedCommand = u"C:\\windows\\system32\\notepad.exe -tray"_s;

/** A value that a tweak of the Automatizer leaves behind. */
struct TweakTrace
{
    QString key;
    QString name;
    QVariant optimized;
    QVariant restored;
};

const QList<TweakTrace> tweakTraces{
    {controlKey + u"\\FileSystem"_s, u"DisableWriteCacheFlush"_s, 1, 0},
    {controlKey + u"\\Power"_s, u"PowerThrottlingOff"_s, 1, 0},
    {controlKey, u"SvcHostSplitThresholdInKB"_s, 251658240, 380000},
    {controlKey, u"WaitToKillServiceTimeout"_s, u"3000"_s, u"5000"_s},
    {u"HKEY_CURRENT_USER\\Software\\Microsoft\\GameBar"_s, u"UseNexusForGameBarEnabled"_s, 0, 1},
    {u"HKEY_CURRENT_USER\\Control Panel\\Mouse"_s, u"MouseSpeed"_s, u"0"_s, u"1"_s},
    {u"HKEY_CURRENT_USER\\Control Panel\\Desktop"_s, u"MenuShowDelay"_s, u"0"_s, u"400"_s},
    {u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Policies\\Microsoft\\Windows\\AppCompat"_s, u"DisablePCA"_s, 1, 0},
};

QVariant valueOf(const QString &key, const QString &name)
{
    return platform().openKey(key)->value(name);
}

int startModeOf(const QString &service)
{
    return valueOf(servicesKey + u'\\' + service, u"Start"_s).toInt();
}

QString searchProgram(const QString &ending)
{
    const QString program = isWindows11Pc() ? u"MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost"_s
                                            : u"Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp"_s;
    return qEnvironmentVariable("windir") + u"\\SystemApps\\"_s + program + ending;
}

QString overlayConfig()
{
    return qEnvironmentVariable("ProgramFiles(x86)") + u"\\RivaTuner Statistics Server\\Profiles\\config"_s;
}

/** The paths of the tasks that the stand-in keeps as disabled. */
QStringList disabledTasks()
{
    const auto key = platform().openKey(standInTasks);
    QStringList paths;
    for (const QString &name : key->childKeys()) {
        const QString text = key->value(name).toString();
        if (text.contains("<Enabled>false</Enabled>"_L1))
            paths.append(text.section(u'\n', 0, 0).sliced(1));
    }
    return paths;
}

QStringList installedPackages()
{
    QStringList names;
    for (const QString &fullName : platform().openKey(repositoryKey)->childGroups())
        names.append(fullName.section(u'_', 0, 0));
    return sorted(names);
}

/** The lines with each of the names in the place of "%1". */
QStringList each(const QString &line, const QStringList &names)
{
    QStringList lines;
    for (const QString &name : names)
        lines.append(QString(line).replace(u"%1"_s, name));
    return lines;
}

constexpr const char *optimizingVariable = "KESTRUNE_OPTIMIZE_UNTIL_ENDED";

/** Clicks Analyze and Optimize, and waits for its end, which comes from elsewhere. */
std::optional<int> optimizeUntilEnded(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet(optimizingVariable))
        return std::nullopt;
    QApplication application(argc, argv);
    const TrialPc pc;
    const WindowDriver driver;
    const auto isAnalyzed = [&driver] { return driver.status().startsWith("Services:"_L1); };
    driver.click(u"btnAutomatizerAnalyze"_s);
    if (!QTest::qWaitFor(isAnalyzed, longPatience))
        return 1;
    driver.click(u"btnAutomatize"_s);
    return QApplication::exec();
}

const SuiteHelper optimizing(optimizeUntilEnded);

/** A phase of the log, after which an empty line stands. */
QStringList phase(const QStringList &lines)
{
    return lines + QStringList{QString()};
}

} // namespace

class TestRealAutomatizer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void analyzeFindsWhatIsNeedless();
    void optimizeTakesItAway();
    void restoreBringsItBack();
    void restoreBringsBackWhatAKilledOptimizeTook();

private:
    void layPrograms() const;
    bool waitFor(const QString &status) const;
    /** Compares the log, whose phases have an order and whose lines needn't. */
    void compareLog(const QStringList &expected) const;

    std::unique_ptr<TrialPc> pc_;
    std::unique_ptr<WindowDriver> driver_;
    QProcess encoder_;
    QStringList setToManual_;
};

void TestRealAutomatizer::initTestCase()
{
    pc_ = std::make_unique<TrialPc>();
    QVERIFY(platform().isElevated());
    const auto settings = platform().openKey(settingsKey);
    emptyKey(settingsKey);
    settings->setValue(u"Keep_1"_s, 0); // printer
    settings->setValue(u"Keep_8"_s, 0); // game bar

    pc_->startServices(runningServices);
    pc_->registerTasks(each(u"\\%1"_s, needlessTasks + QStringList{usefulTask}));
    const auto repository = platform().openKey(repositoryKey);
    for (const QString &fullName : repository->childGroups()) {
        if (!needlessPackages.contains(fullName.section(u'_', 0, 0)))
            repository->remove(fullName);
    }
    layPrograms();
    for (const QString &service : startableByHand) {
        if (const int start = startModeOf(service); start == 1 || start == 2)
            setToManual_.append(service);
    }
    QVERIFY(setToManual_.size() > 2);

    driver_ = std::make_unique<WindowDriver>();
    QVERIFY(QTest::qWaitForWindowExposed(&driver_->window()));
}

void TestRealAutomatizer::layPrograms() const
{
    for (const QString &key : {userRunKey, machineRunKey, machineRunKey32})
        emptyKey(key);
    platform().openKey(userRunKey)->setValue(u"Quoted"_s, quotedCommand);
    platform().openKey(machineRunKey)->setValue(u"Unquoted"_s, unquotedCommand);
    platform().openKey(terminalTaskKey)->setValue(u"State"_s, 1);
    platform().openKey(xboxTaskKey)->setValue(u"State"_s, 2);
    QFile::remove(qEnvironmentVariable("LOCALAPPDATA") + u"\\Microsoft\\OneDrive\\OneDrive.exe"_s);
    layFile(searchProgram(u".exe"_s));
    layFile(overlayConfig());
    QFile config(overlayConfig());
    QVERIFY(config.open(QIODevice::WriteOnly));
    config.write("[RTSS]\r\nEnableEncoderServer=1\r\n");
}

void TestRealAutomatizer::cleanupTestCase()
{
    driver_.reset();
    pc_.reset();
    encoder_.kill();
    encoder_.waitForFinished();
}

bool TestRealAutomatizer::waitFor(const QString &status) const
{
    return QTest::qWaitFor([&] { return driver_->status().startsWith(status) && !driver_->worker().isRunning(); },
                           longPatience);
}

void TestRealAutomatizer::compareLog(const QStringList &expected) const
{
    const AutomatizerView view(*driver_);
    QCOMPARE(sorted(view.log), sorted(expected));
    QCOMPARE(view.log.constFirst(), expected.constFirst());
    QCOMPARE(view.log.constLast(), expected.constLast());
    QVERIFY(view.shown && view.isFull());
}

void TestRealAutomatizer::analyzeFindsWhatIsNeedless()
{
    // A process of that name, whatever it does: it waits for commands.
    const QString encoder = qEnvironmentVariable("TEMP") + u"\\EncoderServer.exe"_s;
    QVERIFY(QFile::exists(encoder) || QFile::copy(qEnvironmentVariable("windir") + u"\\system32\\cmd.exe"_s, encoder));
    encoder_.start(encoder, QStringList());
    QVERIFY(encoder_.waitForStarted());

    const Boxes noBox;
    driver_->click(u"btnAutomatizerAnalyze"_s);
    QVERIFY(waitFor(u"Services:"_s));
    takePicture(u"automatizer-analyzed"_s);
    QCOMPARE(driver_->status(), u"Services: %1  |  Tasks: 2  |  Packages: 2  |  Autorun: 3"_s.arg(
                                    needlessServices.size() + setToManual_.size()));
    compareLog(phase(each(u"Service: can be disable: %1"_s, needlessServices)
                     + each(u"Service: can be set to manual: %1"_s, setToManual_))
               + phase(each(u"Task: can be disable: %1"_s, needlessTasks))
               + phase(each(u"Package: can be uninstalled: %1"_s, needlessPackages))
               + phase(each(u"Autorun: can be disabled:  %1"_s, programs))
               + phase({u"Process: can be disable: EncoderServer.exe from Riva Tuner Statistic Server app!"_s,
                        u"This process only allows screen video capture.Does not affect the monitoring display in any "
                        "way"_s})
               + QStringList{u"Features: %1 improvements can be applied"_s.arg(isWindows11Pc() ? 32 : 30)});

    // Nothing has changed.
    for (const QString &service : needlessServices)
        QVERIFY(startModeOf(service) != 4);
    QCOMPARE(disabledTasks(), QStringList());
    QCOMPARE(installedPackages(), needlessPackages);
    QCOMPARE(valueOf(userRunKey, u"Quoted"_s), QVariant(quotedCommand));
    QCOMPARE(recordedNames(u"SVC"_s), QStringList());
}

void TestRealAutomatizer::optimizeTakesItAway()
{
    forgetCommands();
    Boxes boxes({QMessageBox::No});
    driver_->click(u"btnAutomatize"_s);
    QVERIFY(waitFor(u"Optimization finished"_s));
    takePicture(u"automatizer-optimized"_s);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(boxes.shown().constFirst().text.startsWith("Would you like to apply option for set indexing"_L1));
    compareLog(
        phase(each(isWindows11Pc() ? u"Service: disable and stop %1 done"_s : u"Service: disable %1 done"_s,
                   needlessServices)
              + each(u"Service: set to manual: %1"_s, setToManual_))
        + phase(each(u"Task: disable and stop %1 done"_s, needlessTasks))
        + phase(each(u"Windows application: uninstall %1 done"_s, needlessPackages))
        + phase(each(u"Autorun program: disable %1 done"_s, {u"Quoted"_s, u"Unquoted"_s, xboxTask + u".exe"_s}))
        + phase({u"Process: disable EncoderServer done"_s})
        + phase({u"Features: applies SSD optimizations"_s, u"Features: applies Gaming optimizations"_s,
                 u"Features: applies Windows optimizations"_s, u"Features: applied successfully. Restart your PC!"_s})
        + QStringList{u"Optimization finished"_s});

    for (const QString &service : needlessServices)
        QCOMPARE(startModeOf(service), 4);
    for (const QString &service : setToManual_)
        QCOMPARE(startModeOf(service), 3);
    QCOMPARE(sorted(disabledTasks()), needlessTasks);
    QCOMPARE(installedPackages(), QStringList());
    QCOMPARE(platform().openKey(userRunKey)->childKeys(), QStringList());
    QCOMPARE(platform().openKey(machineRunKey)->childKeys(), QStringList());
    QCOMPARE(valueOf(xboxTaskKey, u"State"_s).toInt(), 1);
    QCOMPARE(readFile(overlayConfig()), QByteArray("[RTSS]\r\nEnableEncoderServer=0\r\n"));
    QVERIFY(!QFile::exists(searchProgram(u".exe"_s)) && QFile::exists(searchProgram(u"_disable.exe"_s)));
    for (const TweakTrace &trace : tweakTraces)
        QCOMPARE(valueOf(trace.key, trace.name), trace.optimized);

    // What Restore will need
    QCOMPARE(sorted(recordedNames(u"SVC"_s)), sorted(needlessServices));
    QCOMPARE(sorted(recordedNames(u"Task"_s)), needlessTasks);
    QCOMPARE(sorted(recordedNames(u"Packages"_s)), needlessPackages);
    QCOMPARE(openRecords(u"Autorun"_s)->value(u"Quoted"_s).toString(),
             quotedCommand + u'=' + userRunKey + u"\\Quoted"_s);
    QCOMPARE(valueOf(settingsKey, u"optimized"_s).toInt(), 1);

    QList<QStringList> sc;
    if (isWindows11Pc()) {
        for (const QString &service : needlessServices)
            sc += {{u"stop"_s, service}, {u"config"_s, service, u"start=disabled"_s}};
    }
    QCOMPARE(commandsOf(u"sc"_s), sc);
    QList<QStringList> kills;
    for (const QString &process : {xboxTask + u".exe"_s, u"RTSS.exe"_s, searchProgram(u".exe"_s).section(u'\\', -1)})
        kills.append({u"/im"_s, process, u"/f"_s, u"/t"_s});
    QCOMPARE(commandsOf(u"taskkill"_s), kills);
    QCOMPARE(commandsOf(u"takeown"_s), QList<QStringList>(1, {u"/f"_s, searchProgram(u".exe"_s)}));
    QCOMPARE(commandsOf(u"icacls"_s).size(), 1);
    // One of the options is set for two reasons.
    const QStringList noTick{u"/set"_s, u"disabledynamictick"_s, u"Yes"_s};
    const QList<QStringList> boot{noTick, {u"/set"_s, u"useplatformclock"_s, u"False"_s}, noTick};
    QCOMPARE(commandsOf(u"bcdedit"_s), isWindows11Pc() ? boot : QList<QStringList>());
    QCOMPARE(commandsOf(u"powercfg"_s), QList<QStringList>());
}

void TestRealAutomatizer::restoreBringsItBack()
{
    forgetCommands();
    Boxes boxes({QMessageBox::Yes, QMessageBox::No});
    driver_->click(u"btnAutomatizerRestore"_s);
    QVERIFY(waitFor(u"Restoration finished"_s));
    takePicture(u"automatizer-restored"_s);
    QCOMPARE(boxes.shown().size(), 2);
    QStringList shortNames;
    for (const QString &path : needlessTasks)
        shortNames.append(path.section(u'\\', -1));
    compareLog(
        phase(each(isWindows11Pc() ? u"Service: enable and start %1 done"_s : u"Service: enable %1 done"_s,
                   needlessServices))
        + phase(each(u"Task: Enable and start %1 done"_s, shortNames))
        + phase(each(u"Autorun program: enable %1 done"_s, programs))
        + phase(each(u"Windows application: install %1 done"_s, needlessPackages))
        + phase({u"Features: reset SSD optimizations"_s, u"Features: reset Gaming optimizations"_s,
                 u"Features: reset Windows optimizations"_s, u"Features: applied successfully. Restart your PC!"_s})
        + QStringList{u"Restoration finished"_s});

    for (const QString &service : needlessServices)
        QCOMPARE(startModeOf(service), 2);
    // These were never recorded.
    for (const QString &service : setToManual_)
        QCOMPARE(startModeOf(service), 3);
    QCOMPARE(disabledTasks(), QStringList());
    QCOMPARE(installedPackages(), needlessPackages);
    QCOMPARE(valueOf(userRunKey, u"Quoted"_s), QVariant(quotedCommand));
    // Told as enabled, and lost.
    QVERIFY(!platform().openKey(machineRunKey)->contains(u"Unquoted"_s));
    QCOMPARE(valueOf(xboxTaskKey, u"State"_s).toInt(), 2);
    QVERIFY(QFile::exists(searchProgram(u".exe"_s)) && !QFile::exists(searchProgram(u"_disable.exe"_s)));
    for (const TweakTrace &trace : tweakTraces)
        QCOMPARE(valueOf(trace.key, trace.name), trace.restored);
    QCOMPARE(recordedNames(u"SVC"_s), QStringList());
    QCOMPARE(valueOf(settingsKey, u"optimized"_s).toInt(), 1);

    QList<QStringList> schtasks;
    for (const QString &path : needlessTasks)
        schtasks.append({u"/CHANGE"_s, u"/TN"_s, path, u"/ENABLE"_s});
    QCOMPARE(commandsOf(u"schtasks"_s), schtasks);
    QCOMPARE(commandsOf(u"powercfg"_s), QList<QStringList>(1, {u"-h"_s, u"ON"_s}));
    const QList<QStringList> boot{{u"/set"_s, u"useplatformclock"_s, u"True"_s},
                                  {u"/set"_s, u"disabledynamictick"_s, u"No"_s}};
    QCOMPARE(commandsOf(u"bcdedit"_s), isWindows11Pc() ? boot : QList<QStringList>());
    QCOMPARE(commandsOf(u"icacls"_s), QList<QStringList>(1, {searchProgram(u".exe"_s), u"/reset"_s}));
}

void TestRealAutomatizer::restoreBringsBackWhatAKilledOptimizeTook()
{
    driver_.reset();
    emptyKey(settingsKey);
    platform().openKey(settingsKey)->setValue(u"Keep_1"_s, 0); // printer
    pc_->startServices(runningServices);

    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(optimizingVariable), u"1"_s);
    other.setProcessEnvironment(environment);
    other.start(QCoreApplication::applicationFilePath(), QStringList());
    QVERIFY(other.waitForStarted());
    QVERIFY(QTest::qWaitFor([] { return !recordedNames(u"SVC"_s).isEmpty(); }, 2 * longPatience));
    other.kill();
    QVERIFY(other.waitForFinished());
    const QStringList recorded = recordedNames(u"SVC"_s);
    for (const QString &service : recorded)
        QCOMPARE(startModeOf(service), 4);
    QCOMPARE(valueOf(settingsKey, u"optimizeBegun"_s).toInt(), 1);
    QCOMPARE(valueOf(settingsKey, u"optimized"_s).toInt(), 0);

    driver_ = std::make_unique<WindowDriver>();
    QVERIFY(QTest::qWaitForWindowExposed(&driver_->window()));
    const Boxes boxes({QMessageBox::Yes, QMessageBox::No});
    driver_->click(u"btnAutomatizerRestore"_s);
    QVERIFY(waitFor(u"Restoration finished"_s));
    for (const QString &service : recorded)
        QCOMPARE(startModeOf(service), 2);
    QCOMPARE(recordedNames(u"SVC"_s), QStringList());
    QVERIFY(!platform().openKey(settingsKey)->contains(u"optimizeBegun"_s));
}

KESTRUNE_WINDOW_SUITE(TestRealAutomatizer)
#include "tst_realautomatizer.moc"
