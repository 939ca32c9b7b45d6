// SPDX-License-Identifier: GPL-3.0-or-later
// Lists and jobs of kestrune-rehearse for scheduled tasks, packaged applications and programs started at logon.

#include "support/registryvalues.h"
#include "support/rehearsing.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray taskGroup = "HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale\\Task\\";
const QByteArray packageGroup = "HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale\\Packages\\";
const QByteArray autorunGroup = "HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale\\Autorun\\";
const QString defrag = u"\\Microsoft\\Windows\\Defrag\\ScheduledDefrag"_s;

void makeBuiltIn(const QString &folder, const QString &from)
{
    if (rehearse({u"new"_s, folder, u"--from"_s, from}).exitCode != done)
        qFatal("no machine could be made");
}

/** An untouched machine, which all tests share. */
QString untouched(const QString &from)
{
    static const QTemporaryDir folder;
    const QString machine = folder.filePath(from);
    if (!QDir(machine).exists())
        makeBuiltIn(machine, from);
    return machine;
}

/** The untouched machine "a" and the machine "b" to change, both of a built-in one. */
class Workplace
{
public:
    explicit Workplace(const QString &from)
        : a(untouched(from))
    {
        makeBuiltIn(b, from);
    }
    Ended run(const QStringList &arguments) const { return rehearse(QStringList{u"run"_s, b} + arguments); }
    /** The lines of a comparison, without the blanks of its columns. */
    QList<QByteArray> differences() const
    {
        QList<QByteArray> lines;
        for (const QByteArray &line : rehearse({u"diff"_s, a, b}).output.split('\n')) {
            if (!line.isEmpty())
                lines.append(line.simplified());
        }
        return lines;
    }

private:
    QTemporaryDir folder_;

public:
    const QString a;
    const QString b = folder_.filePath(u"b"_s);
};

bool hasLine(const QList<QByteArray> &lines, const QByteArray &start)
{
    return std::any_of(lines.cbegin(), lines.cend(),
                       [&start](const QByteArray &line) { return line.startsWith(start); });
}

QJsonArray listed(const QString &machine, const QString &what)
{
    return QJsonDocument::fromJson(rehearse({u"list"_s, machine, what, u"--json"_s}).output).array();
}

} // namespace

class TestRehearseSoftware : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsChangeNothing();
    void tasksJob();
    void tasksJobWithoutTheTool();
    void taskDisableAndEnable();
    void taskReportsWhatFailed_data();
    void taskReportsWhatFailed();
    void packagesJob();
    void packageUninstallAndInstall_data();
    void packageUninstallAndInstall();
    void packageReportsWhatFailed();
    void autorunJob();
    void autorunDisableAndEnable();
    void autorunRecordsAnEmptyCommandAsThePageDoes();
    void autorunReportsWhatFailed_data();
    void autorunReportsWhatFailed();
    void autorunWithoutRightsChangesNothing();
    void tweakJob();
    void tweakOfTheWalkIsAJob();
    void tweakOperandsAreChecked_data();
    void tweakOperandsAreChecked();
    void operandsAreChecked();
};

void TestRehearseSoftware::listsChangeNothing()
{
    const Workplace work(u"windows11"_s);
    const QJsonArray tasks = listed(work.b, u"tasks"_s);
    QVERIFY(tasks.size() >= 180);
    QVERIFY(tasks.contains(QJsonObject{
        {u"path"_s, defrag}, {u"state"_s, u"enabled"_s}, {u"description"_s, u"Optimizes the drives of the PC."_s}}));
    const QJsonArray packages = listed(work.b, u"packages"_s);
    QVERIFY(
        packages.contains(QJsonObject{{u"name"_s, u"Microsoft.WindowsCamera"_s},
                                      {u"fullName"_s, u"Microsoft.WindowsCamera_2024.2404.4.0_x64__8wekyb3d8bbwe"_s},
                                      {u"displayName"_s, u"Camera"_s}}));
    const QJsonArray autorun = listed(work.b, u"autorun"_s);
    QStringList names;
    for (const QJsonValue entry : autorun)
        names.append(entry[u"name"_s].toString());
    QVERIFY(names.contains(u"Steam"_s) && names.contains(u"RTSS"_s) && names.contains(u"SecurityHealth"_s));
    QVERIFY(names.contains(u"StartTerminalOnLoginTask"_s) && !names.contains(QString()));

    const QByteArray text = rehearse({u"list"_s, work.b, u"tasks"_s}).output;
    QVERIFY(text.contains(defrag.toUtf8() + " "));
    QVERIFY(!text.contains(" \n"));
    QCOMPARE(work.differences(), QList<QByteArray>());
}

void TestRehearseSoftware::tasksJob()
{
    const Workplace work(u"windows11"_s);
    const Ended ended = work.run({u"tasks"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.startsWith("valueChanged\tWorkThread::TaskMakeList\ntask\t"));
    // The export and its backup, and nothing else.
    const QList<QByteArray> differences = work.differences();
    QCOMPARE(differences.size(), 2);
    QVERIFY(hasLine(differences, "file C:\\Users\\Alex\\AppData\\Local\\Temp\\tasks.xml not there -> "));
    QVERIFY(hasLine(differences, "file program\\backup_tasks\\tasks.xml not there -> "));
}

void TestRehearseSoftware::tasksJobWithoutTheTool()
{
    const Workplace work(u"windows10"_s);
    ToolFault fault;
    fault.missing = true;
    Machine::open(work.b)->setFault(u"schtasks"_s, fault);
    const Ended ended = work.run({u"tasks"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors, QByteArray("kestrune-rehearse: the job tasks ended without its closing line\n"));
}

void TestRehearseSoftware::taskDisableAndEnable()
{
    const Workplace work(u"windows11"_s);
    const QString other = u"Microsoft\\Windows\\Printing\\EduPrintProv"_s; // without its backslash
    Ended ended = work.run({u"task-disable"_s, defrag, other});
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(ended.output,
             QByteArray("valueChanged\tpgr:max:2\nvalueChanged\tpgr:value:0\nvalueChanged\tTask: ScheduledDefrag\n"
                        "valueChanged\tpgr:value:1\nvalueChanged\tTask: EduPrintProv\n"
                        "valueChanged\tpgr:TaskSetState=finished\n"));
    QList<QByteArray> differences = work.differences();
    QCOMPARE(differences.size(), 4);
    QVERIFY(hasLine(differences, "task " + defrag.toUtf8() + " enabled -> disabled"));
    QVERIFY(hasLine(differences, "task \\" + other.toUtf8() + " enabled -> disabled"));
    QVERIFY(hasLine(differences,
                    "registry " + taskGroup + "Microsoft/Windows/Defrag/ScheduledDefrag not there -> dword 1"));

    QCOMPARE(work.run({u"task-enable"_s, defrag, other}).exitCode, done);
    differences = work.differences();
    QCOMPARE(differences.size(), 2);
    QVERIFY(hasLine(differences,
                    "registry " + taskGroup + "Microsoft/Windows/Defrag/ScheduledDefrag not there -> dword 0"));
}

void TestRehearseSoftware::taskReportsWhatFailed_data()
{
    addColumns<QStringList, QByteArray>("arguments", "errors");
    QTest::newRow("no such task")
        << QStringList{u"task-disable"_s, u"none"_s, defrag}
        << QByteArray(
               "kestrune-rehearse: task-disable failed for none: there is no such scheduled task (schtasks: 1)\n");
    QTest::newRow("not elevated") << QStringList{u"--not-elevated"_s, u"task-enable"_s, defrag}
                                  << QByteArray("kestrune-rehearse: task-enable failed for " + defrag.toUtf8()
                                                + ": administrator rights are needed\n");
}

void TestRehearseSoftware::taskReportsWhatFailed()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, errors);
    const Workplace work(u"windows10"_s);
    const Ended ended = work.run(arguments);
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors, errors);
}

void TestRehearseSoftware::packagesJob()
{
    const Workplace work(u"windows10"_s);
    const Ended ended = work.run({u"packages"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.startsWith("valueChanged\tWorkThread::PackageGetList\npackage\t"));
    QCOMPARE(work.differences(), QList<QByteArray>());
}

void TestRehearseSoftware::packageUninstallAndInstall_data()
{
    QTest::addColumn<QString>("from");
    QTest::newRow("windows11") << u"windows11"_s;
    QTest::newRow("windows10") << u"windows10"_s;
}

void TestRehearseSoftware::packageUninstallAndInstall()
{
    QFETCH(QString, from);
    const Workplace work(from);
    const QStringList names{u"Microsoft.WindowsCalculator"_s, u"MS OneDrive"_s};
    Ended ended = work.run(QStringList{u"package-uninstall"_s} + names);
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(ended.output, QByteArray("valueChanged\t   Uninstall   package: Microsoft.WindowsCalculator: done\n"
                                      "valueChanged\t   Uninstall   package: MS OneDrive: done\n"
                                      "valueChanged\t   Uninstall   packages finished  \n"));
    const QList<QByteArray> differences = work.differences();
    QVERIFY(hasLine(differences, "registry " + packageGroup + "Microsoft.WindowsCalculator not there -> dword 1"));
    QVERIFY(hasLine(differences, "registry " + packageGroup + "MS OneDrive not there -> dword 1"));
    // Two full names of three values, five values of OneDrive and its start, its file, and the records.
    QCOMPARE(differences.size(), 6 + 6 + 1 + 2);

    ended = work.run(QStringList{u"package-install"_s} + names);
    QVERIFY(ended.output.endsWith("valueChanged\t   Install   packages finished  \n"));
    if (from == "windows11"_L1) {
        // What is started for OneDrive is its installer of 32 bits, which Windows 11 has no more.
        QCOMPARE(ended.exitCode, jobFailed);
        QVERIFY2(ended.errors.contains("package-install failed for MS OneDrive"), ended.errors.constData());
        QCOMPARE(work.differences().size(), 5 + 1 + 1 + 1);
        return;
    }
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(work.differences(), QList<QByteArray>({"registry HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale\\"
                                                    "Packages not there -> key"}));
}

void TestRehearseSoftware::packageReportsWhatFailed()
{
    const Workplace work(u"windows11"_s);
    ToolFault fault;
    fault.exitCode = 1;
    Machine::open(work.b)->setFault(u"powershell"_s, fault);
    Ended ended = work.run({u"package-uninstall"_s, u"Microsoft.Todos"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY(ended.output.contains("package: Microsoft.Todos: error\n"));
    QCOMPARE(ended.errors,
             QByteArray("kestrune-rehearse: package-uninstall failed for Microsoft.Todos: refused (powershell: 1)\n"));
    QCOMPARE(work.differences(), QList<QByteArray>());

    Machine::open(work.b)->clearFault(u"powershell"_s);
    ended = work.run({u"package-install"_s, u"Microsoft.None"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY(ended.output.contains("package: Microsoft.None: done\n"));
}

void TestRehearseSoftware::autorunJob()
{
    const Workplace work(u"windows10"_s);
    const Ended ended = work.run({u"autorun"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(
        ended.output.startsWith("autorun\tHKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run\\"
                                "CCleaner Smart Cleaning=\"C:\\Program Files\\CCleaner\\CCleaner64.exe\" /MONITOR\n"));
    QVERIFY(ended.output.endsWith("\\Xbox.App.Tasks.FullTrustComponent=\n"));
    QVERIFY(!ended.output.contains("SecurityHealth") && !ended.output.contains("StartTerminalOnLoginTask"));
    QCOMPARE(ended.output.count('\n'), 9);
    QCOMPARE(work.differences(), QList<QByteArray>());
}

void TestRehearseSoftware::autorunDisableAndEnable()
{
    const Workplace work(u"windows11"_s);
    const QStringList names{u"steam"_s, u"StartTerminalOnLoginTask"_s};
    Ended ended = work.run(QStringList{u"autorun-disable"_s} + names);
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.startsWith("autorun\tHKEY_CURRENT_USER\\"));
    QVERIFY(!ended.output.contains("Steam") && !ended.output.contains("StartTerminalOnLoginTask"));
    const QList<QByteArray> differences = work.differences();
    const QByteArray backup = "file program\\backup_autorun\\Run.reg not there -> 346 bytes";
    QCOMPARE(differences.size(), 5);
    QVERIFY(hasLine(differences, backup));
    QVERIFY(
        hasLine(differences, "registry " + autorunGroup
                                 + "Steam not there -> \"\"C:\\Program Files (x86)\\Steam\\steam.exe\" -silent="
                                   "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run\\Steam\""));

    ended = work.run(QStringList{u"autorun-enable"_s} + names);
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.contains("\\Run\\Steam=\"C:\\Program Files (x86)\\Steam\\steam.exe\" -silent\n"));
    QCOMPARE(work.differences(),
             QList<QByteArray>(
                 {"registry HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale\\Autorun not there -> key", backup}));
}

void TestRehearseSoftware::autorunRecordsAnEmptyCommandAsThePageDoes()
{
    const Workplace work(u"windows11"_s);
    const QString run = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
    setText(*Machine::open(work.b), run, u"Empty"_s, QString());
    QCOMPARE(work.run({u"autorun-disable"_s, u"Empty"_s}).exitCode, done);
    const QByteArray path = (run + u"\\Empty"_s).toUtf8();
    QVERIFY(
        hasLine(work.differences(), "registry " + autorunGroup + "Empty not there -> \"" + path + '=' + path + '"'));
}

void TestRehearseSoftware::autorunReportsWhatFailed_data()
{
    addColumns<QString, QByteArray>("name", "second");
    // One without quotes, one whose program is gone: they can be switched off and never on again.
    QTest::newRow("without quotes") << u"LogiOptionsPlus"_s
                                    << QByteArray("kestrune-rehearse: autorun-enable failed for LogiOptionsPlus\n");
    QTest::newRow("program gone") << u"Old Player"_s
                                  << QByteArray("kestrune-rehearse: autorun-enable failed for Old Player\n");
}

void TestRehearseSoftware::autorunReportsWhatFailed()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, second);
    const Workplace work(u"windows11"_s);
    QCOMPARE(work.run({u"autorun-disable"_s, name}).exitCode, done);
    Ended ended = work.run({u"autorun-disable"_s, u"None"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors,
             QByteArray("kestrune-rehearse: autorun-disable failed for None: there is no such program at logon\n"));
    ended = work.run({u"autorun-enable"_s, name});
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors, second);
    // The record goes all the same.
    QVERIFY(!hasLine(work.differences(), "registry " + autorunGroup));
}

void TestRehearseSoftware::autorunWithoutRightsChangesNothing()
{
    const Workplace work(u"windows11"_s);
    const Ended ended = work.run({u"--not-elevated"_s, u"autorun-disable"_s, u"Steam"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY(ended.output.contains("\\Run\\Steam="));
    QVERIFY(!hasLine(work.differences(), "registry " + autorunGroup));
    QVERIFY(!hasLine(work.differences(), "registry HKEY_CURRENT_USER\\Software\\Microsoft\\"));
}

void TestRehearseSoftware::tweakJob()
{
    const Workplace work(u"windows10"_s);
    const Ended on = work.run({u"tweak"_s, u"gaming"_s, u"5"_s, u"on"_s});
    QCOMPARE(on.exitCode, done);
    QCOMPARE(on.output, QByteArray("tweak\tgaming 5 on\ntweak\trestart needed\n"));
    QCOMPARE(
        work.differences(),
        QList<QByteArray>{"registry HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Hpet\\Start dword 3 -> "
                          "dword 4"});
    const Ended off = work.run({u"tweak"_s, u"windows"_s, u"2"_s, u"off"_s});
    QCOMPARE(off.output, QByteArray("tweak\twindows 2 off\n"));
}

void TestRehearseSoftware::tweakOfTheWalkIsAJob()
{
    const Workplace work(u"windows11"_s);
    const Ended on = work.run({u"tweak"_s, u"ssd"_s, u"8"_s, u"on"_s, u"--yes"_s});
    QCOMPARE(on.exitCode, done);
    QCOMPARE(on.output, QByteArray("valueChanged\tWorkThread::TweakSSD::RemoveIndexedAttrib\ntweak\tssd 8 on\n"));
    QVERIFY(hasLine(work.differences(), "attribute C:\\Windows\\explorer.exe archive -> archive not-indexed"));
    QVERIFY(!hasLine(work.differences(), "attribute C:\\hiberfil.sys"));
    QCOMPARE(work.run({u"tweak"_s, u"ssd"_s, u"8"_s, u"off"_s, u"--yes"_s}).exitCode, done);
    QCOMPARE(work.differences(), QList<QByteArray>());
}

void TestRehearseSoftware::tweakOperandsAreChecked_data()
{
    QTest::addColumn<QStringList>("operands");
    QTest::newRow("no state") << QStringList{u"ssd"_s, u"1"_s};
    QTest::newRow("no group") << QStringList{u"sound"_s, u"1"_s, u"on"_s};
    QTest::newRow("0") << QStringList{u"ssd"_s, u"0"_s, u"on"_s};
    QTest::newRow("beyond the last") << QStringList{u"ssd"_s, u"10"_s, u"on"_s};
    QTest::newRow("never given") << QStringList{u"windows"_s, u"11"_s, u"on"_s};
    QTest::newRow("another state") << QStringList{u"gaming"_s, u"1"_s, u"maybe"_s};
    QTest::newRow("too many") << QStringList{u"gaming"_s, u"1"_s, u"on"_s, u"off"_s};
}

void TestRehearseSoftware::tweakOperandsAreChecked()
{
    QFETCH(const QStringList, operands);
    const Ended ended = rehearse(QStringList{u"run"_s, untouched(u"windows11"_s), u"tweak"_s} + operands);
    QCOMPARE(ended.exitCode, badArguments);
    QCOMPARE(ended.output, QByteArray());
}

void TestRehearseSoftware::operandsAreChecked()
{
    const QTemporaryDir folder;
    for (const char *job :
         {"task-disable", "task-enable", "package-uninstall", "package-install", "autorun-disable", "autorun-enable"}) {
        const Ended ended = rehearse({u"run"_s, folder.path(), QString::fromLatin1(job)});
        QCOMPARE(ended.exitCode, badArguments);
        QVERIFY(ended.errors.contains(QByteArray("missing operand after '") + job + "'"));
    }
    for (const QString &job : {u"tasks"_s, u"packages"_s, u"autorun"_s})
        QCOMPARE(rehearse({u"run"_s, folder.path(), job, u"x"_s}).exitCode, badArguments);
}

KESTRUNE_SUITE(TestRehearseSoftware)
#include "tst_rehearsesoftware.moc"
