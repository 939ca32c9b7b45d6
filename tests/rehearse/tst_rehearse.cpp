// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse, run as the process it is.

#include "support/registryvalues.h"
#include "support/rehearsing.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** Breaks its line, clears a terminal by two spellings of the same command, and turns what comes after it around. */
const QString tricky = u"a\r\nforged\x1b[2J\u009b2J\u202e\u2028\u0007\u007fz"_s;
/** The end of it as it is to be shown, in a text and in JSON. */
const QByteArray shownTricky = R"(forged\x1b[2J\x9b2J\u202e\u2028\x07\x7fz)";

/** Has the tricky name wherever a machine has names. */
void plantTrickyNames(Machine &machine)
{
    const QString services = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_s;
    setNumber(machine, services + tricky, u"Type"_s, 0x10);
    setNumber(machine, services + tricky, u"Start"_s, 2);
    setText(machine, services + tricky, u"DisplayName"_s, tricky);
    machine.setRunning(tricky, true);
    machine.setTask({u"\\"_s + tricky, u"<Task><RegistrationInfo><Description>"_s + tricky
                                           + u"</Description></RegistrationInfo></Task>"_s});
    setText(machine, u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s, tricky, tricky);
    setText(machine,
            u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\"
            "AppModel\\Repository\\Packages\\"_s
                + tricky,
            u"DisplayName"_s, tricky);
    setText(machine, u"HKEY_CURRENT_USER\\Software\\Tricky\\"_s + tricky, tricky, tricky);
    setText(machine, u"HKEY_CURRENT_USER\\Software\\Tricky"_s, tricky, tricky);
    machine.setProcesses({tricky});
    machine.setBootOption(tricky, tricky);
}

/** Whether it is lines of text that no terminal obeys. The blank between signal and line is a tab. */
bool isPlain(const QByteArray &output)
{
    const QString text = QString::fromUtf8(output).remove(u'\n').remove(u'\t');
    return std::none_of(text.begin(), text.end(), [](QChar unit) {
        return unit.category() == QChar::Other_Control || unit.category() == QChar::Separator_Line
               || unit.direction() == QChar::DirRLO;
    });
}

/** A folder to work in, with the untouched machine "a" and the machine "b" to change. */
class Workplace
{
public:
    Workplace()
    {
        for (const QString &name : {a, b}) {
            if (rehearse({u"new"_s, name, u"--from"_s, smallSources()}).exitCode != done)
                qFatal("no machine could be made");
        }
    }
    QString path(const QString &name) const { return folder_.filePath(name); }
    /** All there is, without the two machines. */
    QStringList others() const
    {
        QStringList names = QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll(u"a"_s);
        names.removeAll(u"b"_s);
        return names;
    }
    QByteArray difference() const { return rehearse({u"diff"_s, a, b}).output; }

private:
    QTemporaryDir folder_;

public:
    const QString a = path(u"a"_s);
    const QString b = path(u"b"_s);
};

} // namespace

class TestRehearse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help();
    void helpOfEachCommand_data();
    void helpOfEachCommand();
    void helpOfRunTellsJobsOptionsAndFeatures();
    void version();
    void badArgumentsAreToldInOneManner_data();
    void badArgumentsAreToldInOneManner();
    void unreadableMachinesEndWithThree_data();
    void unreadableMachinesEndWithThree();
    void newMakesAnEmptyMachine();
    void newKeepsWhatIsThereUnlessForced();
    void newFromBrokenSourcesLeavesNothing();
    void listServices();
    void listServicesAsJson();
    void listProcesses();
    void listRegistry();
    void controlCharactersAreShownEscaped_data();
    void controlCharactersAreShownEscaped();
    void readingChangesNothing();
    void runServices();
    void runListsWhatIsThere();
    void aKeyHasARoot();
    void aFolderThatIsNotThere();
    void aReadOnlyMachineIsToldBeforeTheJob();
    void aMachineInUseIsNotReplaced();
    void runDisablesOnWindows11();
    void runDisablesOnWindows10();
    void runEnablesAgain();
    void runAsJson();
    void runWinSxs();
    void runSysinfo();
    void runSysinfoAsJson();
    void runMonitor();
    void runReportsServicesThatFailed_data();
    void runReportsServicesThatFailed();
    void runReportsAServiceThatWasRefused();
    void runReportsAServiceThatDoesNotExistOnWindows10_data();
    void runReportsAServiceThatDoesNotExistOnWindows10();
    void runRefusesAnEmptyName_data();
    void runRefusesAnEmptyName();
    void runReportsALineThatDidNotCome();
    void keepsAreChecked();
    void importTellsOfAGuess();
    void importAndExport();
    void exportNamesWhatItLeavesOut();
    void failedImportIsReportedAndChangesNothing();
    void relativeOperandsMeanTheFolderOfTheStart();
    void diffAsJsonAndPage();
    void guiStartsTheWindowOnTheMachine();
    void guiWithoutADisplay();
    void guiWithoutTheProgram();
    void pipesGetNoProgress();
    void outputThatCantBeWrittenIsAFailure();
};

void TestRehearse::help()
{
    const Ended ended = rehearse({u"--help"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.startsWith("Usage: kestrune-rehearse COMMAND"));
    for (const char *command : {"new", "list", "run", "export", "import", "diff", "gui"})
        QVERIFY(ended.output.contains(QByteArray("\n  ") + command + ' '));
    QCOMPARE(ended.errors, QByteArray());
}

void TestRehearse::helpOfEachCommand_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("new") << QByteArray("--from SOURCE");
    QTest::newRow("list") << QByteArray("services|tasks|packages|autorun|processes|registry KEY");
    QTest::newRow("run") << QByteArray("svc-disable NAME...");
    QTest::newRow("import") << QByteArray("DIR FILE...");
    QTest::newRow("export") << QByteArray("DIR KEY");
    QTest::newRow("diff") << QByteArray("--html FILE");
    QTest::newRow("gui") << QByteArray("--not-elevated");
}

void TestRehearse::helpOfEachCommand()
{
    QFETCH(QByteArray, text);
    const QString command = QString::fromLatin1(QTest::currentDataTag());
    const Ended ended = rehearse({command, u"--help"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.startsWith("Usage: kestrune-rehearse " + command.toUtf8() + " DIR") || command == "diff"_L1);
    QVERIFY2(ended.output.contains(text), ended.output.constData());
}

void TestRehearse::helpOfRunTellsJobsOptionsAndFeatures()
{
    const QByteArray help = rehearse({u"run"_s, u"--help"_s}).output;
    // clang-format off
    for (const char *text : {
             "\n  analyze                     look for what could be optimized\n",
             "\n  optimize                    analyze and optimize\n",
             "\n  restore                     take an optimization back\n",
             "--keep FEATURE=STATE,...", "keep or give up features, for this run alone\n",
             "--no-programs",            "let the Automatizer leave packages and programs at logon alone\n",
             "--no-features",            "let the Automatizer leave the tweaks alone\n",
             "--yes",                    "answer Yes to the window's question for a walk over all files\n",
             "--no-walk",                "answer No to it (default)\n",
             "(default: as in the machine's Keep list):\n",
             "\n  printer, bluetooth-audio, files-sharing, xbox-app, upnp, proxy-vpn, nfc, xbox-game-bar, codecs.\n"})
        QVERIFY2(help.contains(text), text);
    // clang-format on

    const QString tweaks =
        QString::fromUtf8(help).section(u"Tweaks, by their group and ID:\n"_s, 1).section(u"\n\n"_s, 0, 0);
    static const QRegularExpression row(u"^  (ssd|gaming|windows) \\d+ +\\S.*$"_s, QRegularExpression::MultilineOption);
    QCOMPARE(tweaks.count(row), 34);
    QVERIFY2(tweaks.contains(u"  gaming 5                    Disable HPET\n"_s), qPrintable(tweaks));
}

void TestRehearse::version()
{
    const Ended ended = rehearse({u"--version"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(QString::fromUtf8(ended.output)
                .contains(QRegularExpression(u"^kestrune-rehearse \\(Kestrune\\) \\d+\\.\\d+"_s)));
}

void TestRehearse::badArgumentsAreToldInOneManner_data()
{
    addColumns<QString, QString>("arguments", "message");
    // clang-format off
    QTest::newRow("nothing")            << "" << "missing command";
    QTest::newRow("command")            << "frobnicate" << "unknown command 'frobnicate'\nCommands: new, capture, list, run, undo, preview, verify, diff, gui, tour, export, import, pack, unpack";
    QTest::newRow("misspelt command")   << "preveiw" << "unknown command 'preveiw'\nDid you mean 'preview'?\nCommands: new, capture, list, run, undo, preview, verify, diff, gui, tour, export, import, pack, unpack";
    QTest::newRow("option first")       << "--frob" << "unrecognized option '--frob'";
    QTest::newRow("option")             << "new|m|--frob" << "unrecognized option '--frob'";
    QTest::newRow("short option")       << "new|m|-f" << "invalid option -- 'f'";
    QTest::newRow("option's value")     << "new|m|--from" << "option '--from' requires an argument";
    QTest::newRow("value for a flag")   << "new|m|--force=1" << "option '--force' doesn't allow an argument";
    QTest::newRow("no operand")         << "new" << "missing operand";
    QTest::newRow("few operands")       << "diff|A" << "missing operand after 'A'";
    QTest::newRow("many operands")      << "diff|A|B|C" << "extra operand 'C'";
    QTest::newRow("what to list")       << "list|A|toys" << "'toys' can't be listed\nLists: services, tasks, packages, autorun, processes, registry";
    QTest::newRow("misspelt list")      << "list|A|service" << "'service' can't be listed\nDid you mean 'services'?\nLists: services, tasks, packages, autorun, processes, registry";
    QTest::newRow("key to list")        << "list|A|registry" << "missing operand after 'registry'";
    QTest::newRow("too much to list")   << "list|A|services|x" << "extra operand 'x'";
    QTest::newRow("code page")          << "import|--code-page|x|A|f" << "'x' isn't the number of a code page";
    QTest::newRow("no code page")       << "import|--code-page|0|A|f" << "'0' isn't the number of a code page";
    QTest::newRow("unknown code page")  << "import|--code-page|99999|A|f" << "there is no code page 99999 here";
    QTest::newRow("job")                << "run|A|dance" << "unknown job 'dance'\nJobs: services, svc-disable, svc-enable, tasks, task-disable, task-enable, packages, package-uninstall, package-install, autorun, autorun-disable, autorun-enable, tweak, analyze, optimize, restore, winsxs, sysinfo, monitor";
    QTest::newRow("misspelt job")       << "run|A|optimise" << "unknown job 'optimise'\nDid you mean 'optimize'?\nJobs: services, svc-disable, svc-enable, tasks, task-disable, task-enable, packages, package-uninstall, package-install, autorun, autorun-disable, autorun-enable, tweak, analyze, optimize, restore, winsxs, sysinfo, monitor";
    QTest::newRow("job's operand")      << "run|A|svc-disable" << "missing operand after 'svc-disable'";
    QTest::newRow("job's operands")     << "run|A|services|x" << "extra operand 'x'";
    QTest::newRow("pace")               << "run|A|services|--pace|fast" << "invalid argument 'fast' for '--pace'";
    QTest::newRow("negative pace")      << "run|A|services|--pace=-1" << "invalid argument '-1' for '--pace'";
    QTest::newRow("feature")            << "run|A|services|--keep|cat=0" << "unknown feature 'cat' for '--keep'\nFeatures: printer, bluetooth-audio, files-sharing, xbox-app, upnp, proxy-vpn, nfc, xbox-game-bar, codecs";
    QTest::newRow("misspelt feature")   << "run|A|services|--keep|nfcc=0" << "unknown feature 'nfcc' for '--keep'\nDid you mean 'nfc'?\nFeatures: printer, bluetooth-audio, files-sharing, xbox-app, upnp, proxy-vpn, nfc, xbox-game-bar, codecs";
    QTest::newRow("walk")               << "run|A|tweak|ssd|8|on" << "'ssd 8' walks over all files of the partition: say --yes to that";
    QTest::newRow("feature's state")    << "run|A|services|--keep|nfc=0,upnp=1" << "invalid state '1' of 'upnp' for '--keep': 2 keeps it, 0 gives it up";
    QTest::newRow("two forms")          << "diff|A|B|--json|--html|x" << "--json and --html can't be given together";
    // clang-format on
}

void TestRehearse::badArgumentsAreToldInOneManner()
{
    QFETCH(QString, arguments);
    QFETCH(QString, message);
    const Ended ended = rehearse(arguments.split(u'|', Qt::SkipEmptyParts));
    QCOMPARE(ended.exitCode, badArguments);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(QString::fromUtf8(ended.errors),
             u"kestrune-rehearse: "_s + message + u"\nTry 'kestrune-rehearse --help' for more information.\n"_s);
}

void TestRehearse::unreadableMachinesEndWithThree_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char *command :
         {"list|%1|services", "run|%1|services", "import|%1|x.reg", "export|%1|HKEY_USERS", "diff|%1|%1", "gui|%1"})
        QTest::newRow(command) << QString(QLatin1StringView(command));
}

void TestRehearse::unreadableMachinesEndWithThree()
{
    QFETCH(QString, arguments);
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir(u"empty"_s);
    QDir(folder.path()).mkdir(u"damaged"_s);
    writeFile(folder.filePath(u"damaged/machine.sqlite"_s), QByteArray(5000, 'x'));
    for (const QString &name : {u"missing"_s, u"empty"_s, u"damaged"_s}) {
        const Ended ended = rehearse(arguments.arg(folder.filePath(name)).split(u'|'));
        QCOMPARE(ended.exitCode, machineUnreadable);
        QVERIFY(ended.errors.startsWith("kestrune-rehearse: "));
        QCOMPARE(ended.errors.count('\n'), 1);
        QCOMPARE(ended.output, QByteArray());
    }
    QVERIFY(!QFileInfo::exists(folder.filePath(u"missing"_s)));
    QVERIFY(QDir(folder.filePath(u"empty"_s)).isEmpty());
    QCOMPARE(QDir(folder.filePath(u"damaged"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             {u"machine.sqlite"_s});
}

void TestRehearse::newMakesAnEmptyMachine()
{
    const QTemporaryDir folder;
    const Ended ended = rehearse({u"new"_s, folder.filePath(u"m"_s)});
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(ended.output + ended.errors, QByteArray());
    QCOMPARE(rehearse({u"list"_s, folder.filePath(u"m"_s), u"services"_s}).output, QByteArray());
}

void TestRehearse::newKeepsWhatIsThereUnlessForced()
{
    const Workplace work;
    const Ended refused = rehearse({u"new"_s, work.b});
    QCOMPARE(refused.exitCode, jobFailed);
    QVERIFY(refused.errors.endsWith(": there is a machine already\n"));
    QCOMPARE(work.difference(), QByteArray());
    QCOMPARE(rehearse({u"new"_s, u"--force"_s, work.b}).exitCode, done);
    QVERIFY(!work.difference().isEmpty());
    QCOMPARE(rehearse({u"new"_s, work.b, u"--force"_s, u"--from=no-such-machine"_s}).exitCode, badArguments);
    QCOMPARE(work.others(), QStringList());
}

void TestRehearse::newFromBrokenSourcesLeavesNothing()
{
    const Workplace work;
    const QTemporaryDir sources;
    writeFile(sources.filePath(u"machine.json"_s), "{\n\n  nonsense");
    const Ended ended = rehearse({u"new"_s, work.path(u"c"_s), u"--from"_s, sources.path()});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY(ended.errors.startsWith("kestrune-rehearse: " + sources.filePath(u"machine.json"_s).toUtf8() + ":3: "));
    QCOMPARE(ended.errors.count('\n'), 1);
    QCOMPARE(work.others(), QStringList());
}

void TestRehearse::listServices()
{
    const Workplace work;
    const Ended ended = rehearse({u"list"_s, work.a, u"services"_s});
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(ended.output, QByteArray("Appinfo        stopped  manual    Application Information\n"
                                      "Broken Needs   stopped  manual    @missing.dll,-7\n"
                                      "cbdhsvc        stopped  manual    Clipboard User Service\n"
                                      "cbdhsvc_5cbba  running  manual    Clipboard User Service_5cbba\n"
                                      "DiagTrack      running  auto      Telemetry\n"
                                      "Off            stopped  disabled  Off\n"
                                      "RpcSs          running  auto      Remote Procedure Call (RPC)\n"));
}

void TestRehearse::listServicesAsJson()
{
    const Workplace work;
    const QJsonArray services =
        QJsonDocument::fromJson(rehearse({u"list"_s, work.a, u"services"_s, u"--json"_s}).output).array();
    QCOMPARE(services.size(), 7);
    QCOMPARE(services.at(4).toObject(), (QJsonObject{{u"name"_s, u"DiagTrack"_s},
                                                     {u"state"_s, u"running"_s},
                                                     {u"start"_s, u"auto"_s},
                                                     {u"type"_s, 16},
                                                     {u"displayName"_s, u"Telemetry"_s}}));
}

void TestRehearse::listProcesses()
{
    const Workplace work;
    QCOMPARE(rehearse({u"list"_s, work.a, u"processes"_s}).output, QByteArray("explorer.exe\nsvchost.exe\n"));
    QCOMPARE(QJsonDocument::fromJson(rehearse({u"list"_s, work.a, u"processes"_s, u"--json"_s}).output).array().size(),
             2);
}

void TestRehearse::listRegistry()
{
    const Workplace work;
    QCOMPARE(rehearse({u"list"_s, work.a, u"registry"_s, u"HKCU\\Software"_s}).output,
             QByteArray("[Empty]\n[Types]\n"));
    const Ended types = rehearse({u"list"_s, work.a, u"registry"_s, u"HKEY_CURRENT_USER\\software\\TYPES"_s});
    QVERIFY(types.output.startsWith("(default)  text    \"unnamed\"\n"));
    QVERIFY(types.output.contains("\nNumber     dword   42\n"));
    const Ended missing = rehearse({u"list"_s, work.a, u"registry"_s, u"HKCU\\Nope"_s});
    QCOMPARE(missing.exitCode, badArguments);
    QCOMPARE(missing.errors, QByteArray("kestrune-rehearse: there is no key 'HKCU\\Nope'\n"));
    const QJsonObject json =
        QJsonDocument::fromJson(
            rehearse({u"list"_s, work.a, u"registry"_s, u"HKCU\\Software\\Types"_s, u"--json"_s}).output)
            .object();
    QCOMPARE(json.value("values"_L1).toArray().size(), 7);
}

void TestRehearse::controlCharactersAreShownEscaped_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char *command :
         {"list|%1|services", "list|%1|tasks", "list|%1|packages", "list|%1|autorun", "list|%1|processes",
          "list|%1|registry|HKEY_CURRENT_USER\\Software\\Tricky", "run|%1|autorun", "diff|%1|%2", "diff|%2|%1"})
        QTest::newRow(command) << QString(QLatin1StringView(command));
}

void TestRehearse::controlCharactersAreShownEscaped()
{
    QFETCH(QString, arguments);
    const Workplace work;
    plantTrickyNames(*Machine::open(work.b));
    QStringList words = arguments.split(u'|');
    words.replaceInStrings(u"%1"_s, work.b).replaceInStrings(u"%2"_s, work.a);

    const Ended text = rehearse(words);
    QVERIFY2(text.exitCode == done, text.errors.constData());
    QVERIFY2(isPlain(text.output), text.output.constData());
    QVERIFY2(text.output.contains("a\\r\\n" + shownTricky), text.output.constData());

    const Ended json = rehearse(words + QStringList{u"--json"_s});
    QVERIFY2(json.exitCode == done, json.errors.constData());
    QVERIFY2(isPlain(json.output), json.output.constData());
    for (const QByteArray &line : json.output.split('\n')) // "run" prints an object a line
        QVERIFY2(words.first() != u"run"_s || line.isEmpty() || QJsonDocument::fromJson(line).isObject(), line);
    QVERIFY(words.first() == u"run"_s || !QJsonDocument::fromJson(json.output).isNull());
}

void TestRehearse::readingChangesNothing()
{
    const Workplace work;
    for (const QStringList &arguments :
         {QStringList{u"list"_s, work.b, u"services"_s},
          QStringList{u"list"_s, work.b, u"registry"_s, u"HKLM\\SOFTWARE\\Nope"_s},
          QStringList{u"export"_s, work.b, u"HKEY_LOCAL_MACHINE"_s}, QStringList{u"diff"_s, work.b, work.b}})
        rehearse(arguments);
    QCOMPARE(work.difference(), QByteArray());
}

void TestRehearse::runServices()
{
    const Workplace work;
    const Ended ended = rehearse({u"run"_s, work.b, u"services"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.startsWith("valueChanged\tWorkThread::SvcMakeList\nservice\t"));
    QVERIFY2(ended.output.contains("\nservice\tDiagTrack (running, automatic): "), ended.output.constData());
    const QByteArray difference = work.difference();
    QCOMPARE(difference.count('\n'), 1);
    QVERIFY(difference.startsWith("file      program\\backup_svc\\StartMode.reg  not there -> "));
}

void TestRehearse::runListsWhatIsThere()
{
    const QTemporaryDir folder;
    const QString machine = folder.filePath(u"pc"_s);
    QCOMPARE(rehearse({u"new"_s, machine, u"--from"_s, u"windows11"_s}).exitCode, done);
    const QByteArray tasks = rehearse({u"run"_s, machine, u"tasks"_s}).output;
    QVERIFY2(tasks.contains("\ntask\tMicrosoft\\\\Windows\\\\Defrag\\\\ScheduledDefrag (enabled): ")
                 || tasks.contains("\ntask\tMicrosoft\\Windows\\Defrag\\ScheduledDefrag (enabled): "),
             tasks.constData());
    const QByteArray packages = rehearse({u"run"_s, machine, u"packages"_s, u"--json"_s}).output;
    QVERIFY2(packages.contains("{\"name\":\"package\",\"text\":\"Microsoft.BingNews: "), packages.constData());
}

void TestRehearse::aKeyHasARoot()
{
    const Workplace work;
    for (const QStringList &command :
         {QStringList{u"list"_s, work.a, u"registry"_s}, QStringList{u"export"_s, work.a}}) {
        const Ended ended = rehearse(command + QStringList{u"Software\\Types"_s});
        QCOMPARE(ended.exitCode, badArguments);
        QCOMPARE(ended.errors, QByteArray("kestrune-rehearse: 'Software\\Types' has no root: a key begins with HKLM, "
                                          "HKCU, HKCR or HKU, such as HKCU\\Software\n"));
    }
}

void TestRehearse::aFolderThatIsNotThere()
{
    const QTemporaryDir folder;
    const Ended ended = rehearse({u"run"_s, folder.filePath(u"nowhere"_s), u"services"_s});
    QCOMPARE(ended.exitCode, machineUnreadable);
    QCOMPARE(ended.errors, "kestrune-rehearse: " + QDir::toNativeSeparators(folder.filePath(u"nowhere"_s)).toUtf8()
                               + ": there is no such folder\n");
}

void TestRehearse::aReadOnlyMachineIsToldBeforeTheJob()
{
    const Workplace work;
    QVERIFY(QFile(work.b + u"/machine.sqlite"_s).setPermissions(QFile::ReadOwner));
    if (QFileInfo(work.b + u"/machine.sqlite"_s).isWritable())
        QSKIP("this user may write into read-only files");
    const Ended ended = rehearse({u"run"_s, work.b, u"services"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errors,
             "kestrune-rehearse: " + QDir::toNativeSeparators(work.b).toUtf8() + ": the machine is read-only\n");
}

/** It would go on working on a machine that nobody finds any more. */
void TestRehearse::aMachineInUseIsNotReplaced()
{
#ifdef Q_OS_WIN
    QSKIP("Wine lets a folder be renamed in which a program has files open, as Windows doesn't");
#endif
    const Workplace work;
    {
        const std::unique_ptr<Machine> opened = Machine::open(work.b);
        opened->setName(u"in use"_s);
        const Ended ended = rehearse({u"new"_s, work.b, u"--force"_s});
        QCOMPARE(ended.exitCode, jobFailed);
        QVERIFY2(ended.errors.startsWith("kestrune-rehearse: " + work.b.toUtf8() + ": "), ended.errors.constData());
        QCOMPARE(Machine::open(work.b)->name(), u"in use"_s);
    }
    QCOMPARE(work.others(), QStringList());
    QCOMPARE(rehearse({u"new"_s, work.b, u"--force"_s}).exitCode, done);
}

void TestRehearse::runDisablesOnWindows11()
{
    const Workplace work;
    const Ended ended = rehearse({u"run"_s, work.b, u"svc-disable"_s, u"DiagTrack"_s});
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(ended.output, QByteArray("valueChanged\tpgr:max:1\n"
                                      "valueChanged\tpgr:value:1\n"
                                      "valueChanged\tDiagTrack\n"
                                      "valueChanged\tpgr:SvcStopOrStart=finished\n"));
    const QList<QByteArray> rows = work.difference().split('\n');
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows.at(0), QByteArray("service   DiagTrack  running -> stopped"));
    QVERIFY(rows.at(1).simplified().endsWith("\\SVC\\DiagTrack not there -> dword 1"));
    QVERIFY(rows.at(2).simplified().endsWith("\\Services\\DiagTrack\\Start dword 2 -> dword 4"));
}

void TestRehearse::runDisablesOnWindows10()
{
    const Workplace work;
    writeFile(work.path(u"ten.reg"_s), "Windows Registry Editor Version 5.00\r\n\r\n"
                                       "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion]\r\n"
                                       "\"CurrentBuild\"=\"19045\"\r\n");
    for (const QString &machine : {work.a, work.b})
        QCOMPARE(rehearse({u"import"_s, machine, work.path(u"ten.reg"_s)}).exitCode, done);
    QCOMPARE(rehearse({u"run"_s, work.b, u"svc-disable"_s, u"DiagTrack"_s}).exitCode, done);
    const QByteArray difference = work.difference();
    QCOMPARE(difference.count('\n'), 2);
    QVERIFY(!difference.contains("service "));
}

void TestRehearse::runEnablesAgain()
{
    const Workplace work;
    QCOMPARE(rehearse({u"run"_s, work.b, u"svc-disable"_s, u"DiagTrack"_s, u"Appinfo"_s}).exitCode, done);
    QCOMPARE(rehearse({u"run"_s, work.b, u"svc-enable"_s, u"DiagTrack"_s}).exitCode, done);
    const QByteArray difference = work.difference();
    QVERIFY2(!difference.contains("DiagTrack\\Start"), difference.constData());
    QVERIFY(!difference.contains("service   DiagTrack"));
    QVERIFY(difference.contains("Appinfo\\Start"));
}

void TestRehearse::runAsJson()
{
    const Workplace work;
    const QList<QByteArray> lines =
        rehearse({u"run"_s, work.b, u"svc-disable"_s, u"Appinfo"_s, u"--json"_s}).output.trimmed().split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(QJsonDocument::fromJson(lines.at(2)).object(),
             (QJsonObject{{u"signal"_s, u"valueChanged"_s}, {u"line"_s, u"Appinfo"_s}}));
}

void TestRehearse::runWinSxs()
{
    const Workplace work;
    const Ended ended = rehearse({u"run"_s, work.b, u"winsxs"_s});
    QCOMPARE(ended.exitCode, done);
    // 3500 bytes, in gibibytes.
    QVERIFY2(ended.output.contains("valueChanged\t3.25963e-06\n"), ended.output.constData());
    QVERIFY(ended.output.endsWith("valueChanged\t\n"));
}

void TestRehearse::runSysinfo()
{
    const Workplace work;
    const QString cards = work.path(u"cards.json"_s);
    writeFile(cards, R"({ "formatVersion": 1, "wmi": { "Win32_VideoController": [
        { "Caption": "A", "MaxRefreshRate": 60 }, { "Caption": "B", "MaxRefreshRate": 0 }] } })");
    QCOMPARE(rehearse({u"import"_s, work.b, cards}).exitCode, done);
    const Ended ended = rehearse({u"run"_s, work.b, u"sysinfo"_s});
    QCOMPARE(ended.exitCode, done);
    const QList<QByteArray> lines = ended.output.split('\n');
    QCOMPARE(lines.size(), 8 + 33 + 1); // each line, each text, and nothing after the last line break
    QCOMPARE(lines.at(0), "valueChanged\tpgr:max:7");
    QCOMPARE(lines.at(7), "valueChanged\tpgr:value:7");
    QVERIFY(lines.at(8).startsWith("winName\tWindows "));
    QVERIFY(lines.contains("gpuName\tA"));
    // Line breaks are shown: a text has one line.
    QVERIFY(lines.contains("screenMaxRefreshRate\t60\\r\\nCaption=B\\r\\nCurrentHorizontalResolution=0\\r\\n"
                           "CurrentRefreshRate=0\\r\\nCurrentVerticalResolution=0\\r\\nDriverDate=0\\r\\n"
                           "DriverVersion=0\\r\\nMaxRefreshRate=0 Hz"));
    QCOMPARE(lines.at(40), "diskInfo\t");
}

void TestRehearse::runSysinfoAsJson()
{
    const Workplace work;
    const QList<QByteArray> lines =
        rehearse({u"run"_s, work.b, u"sysinfo"_s, u"--json"_s}).output.trimmed().split('\n');
    QCOMPARE(lines.size(), 8 + 33);
    QCOMPARE(QJsonDocument::fromJson(lines.at(7)).object(),
             (QJsonObject{{u"signal"_s, u"valueChanged"_s}, {u"line"_s, u"pgr:value:7"_s}}));
    QCOMPARE(QJsonDocument::fromJson(lines.at(12)).object(),
             (QJsonObject{{u"name"_s, u"winOnSsd"_s}, {u"text"_s, u"No"_s}}));
}

void TestRehearse::runMonitor()
{
    const Workplace work;
    const QString hardware = work.path(u"hardware.json"_s);
    writeFile(hardware, R"({ "formatVersion": 1, "hardware": { "freeMemory": 1073741824,
        "volumes": { "C:": { "freeBytes": 2147483648 } },
        "processorTimes": [{ "idle": 75, "kernel": 80, "user": 20 }] } })");
    QCOMPARE(rehearse({u"import"_s, work.b, hardware}).exitCode, done);
    for (int run = 0; run < 2; ++run) {
        const Ended ended = rehearse({u"run"_s, work.b, u"monitor"_s});
        QCOMPARE(ended.exitCode, done);
        QCOMPARE(ended.output, "valueChanged\tcpu 26% | processes 3 | free memory 1024 Mo | free on C: 2Go\n");
    }
}

void TestRehearse::runReportsServicesThatFailed_data()
{
    addColumns<QStringList, QByteArray>("arguments", "message");
    QTest::newRow("no such service") << QStringList{u"svc-disable"_s, u"Nope"_s, u"DiagTrack"_s}
                                     << QByteArray("svc-disable failed for Nope: there is no such service (sc: 1060)");
    QTest::newRow("not elevated") << QStringList{u"svc-disable"_s, u"DiagTrack"_s, u"--not-elevated"_s}
                                  << QByteArray("svc-disable failed for DiagTrack: access denied (sc: 5)");
    QTest::newRow("enable, not elevated") << QStringList{u"svc-enable"_s, u"Off"_s, u"--not-elevated"_s}
                                          << QByteArray("svc-enable failed for Off: access denied (sc: 5)");
    QTest::newRow("no such task") << QStringList{u"task-disable"_s, u"\\Nope"_s}
                                  << QByteArray("task-disable failed for \\Nope: there is no such scheduled task");
    QTest::newRow("no such program") << QStringList{u"autorun-disable"_s, u"Nope"_s}
                                     << QByteArray(
                                            "autorun-disable failed for Nope: there is no such program at logon");
}

void TestRehearse::runReportsServicesThatFailed()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const Workplace work;
    const Ended ended = rehearse(QStringList{u"run"_s, work.b} + arguments);
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors, "kestrune-rehearse: " + message + '\n');
    if (message.startsWith("svc"))
        QVERIFY(ended.output.endsWith("valueChanged\tpgr:SvcStopOrStart=finished\n"));
}

void TestRehearse::runReportsAServiceThatWasRefused()
{
    const Workplace work;
    constexpr int refused = 1053;
    const QString command = u"sc start DiagTrack"_s;
    Machine::open(work.b)->setFault(command, {.exitCode = refused});
    const Ended ended = rehearse({u"run"_s, work.b, u"svc-enable"_s, u"DiagTrack"_s, u"RpcSs"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors, "kestrune-rehearse: svc-enable failed for DiagTrack: refused (sc: 1053)\n");
    Machine::open(work.b)->clearFault(command);
    // One that runs already is as it was asked to be.
    QCOMPARE(rehearse({u"run"_s, work.b, u"svc-enable"_s, u"DiagTrack"_s}).exitCode, done);
    QCOMPARE(rehearse({u"run"_s, work.b, u"svc-enable"_s, u"DiagTrack"_s}).exitCode, done);
}

void TestRehearse::runReportsAServiceThatDoesNotExistOnWindows10_data()
{
    addColumns<QString, int>("job", "start");
    QTest::newRow("disable") << u"svc-disable"_s << 4;
    QTest::newRow("enable") << u"svc-enable"_s << 2;
}

void TestRehearse::runReportsAServiceThatDoesNotExistOnWindows10()
{
    QFETCH(const QString, job);
    QFETCH(const int, start);
    const QTemporaryDir folder;
    const QString machine = folder.filePath(u"ten"_s);
    QCOMPARE(rehearse({u"new"_s, machine, u"--from"_s, u"windows10"_s}).exitCode, done);
    const Ended ended = rehearse({u"run"_s, machine, job, u"Nope"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors,
             QByteArray("kestrune-rehearse: " + job.toUtf8() + " failed for Nope: there is no such service\n"));
    // The job itself asks nobody: it writes the start mode.
    const QByteArray key = rehearse({u"list"_s, machine, u"registry"_s,
                                     u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Nope"_s})
                               .output;
    QVERIFY2(key.contains(QByteArray::number(start)), key.constData());
}

void TestRehearse::runRefusesAnEmptyName_data()
{
    QTest::addColumn<QStringList>("job");
    for (const char *job : {"svc-disable", "svc-enable", "task-disable", "package-uninstall", "autorun-disable"})
        QTest::newRow(job) << QStringList{QLatin1StringView(job), u"DiagTrack"_s, QString()};
}

void TestRehearse::runRefusesAnEmptyName()
{
    QFETCH(const QStringList, job);
    const Workplace work;
    const Ended ended = rehearse(QStringList{u"run"_s, work.b} + job);
    QCOMPARE(ended.exitCode, badArguments);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errors, QByteArray("kestrune-rehearse: empty operand for '" + job.first().toUtf8()
                                      + "'\nTry 'kestrune-rehearse --help' for more information.\n"));
    QCOMPARE(work.difference(), QByteArray());
}

void TestRehearse::runReportsALineThatDidNotCome()
{
    const Workplace work;
    writeFile(work.path(u"fault.json"_s), R"({ "formatVersion": 1, "faults": { "sc": { "missing": true } } })");
    QCOMPARE(rehearse({u"import"_s, work.b, work.path(u"fault.json"_s)}).exitCode, done);
    const Ended ended = rehearse({u"run"_s, work.b, u"services"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY(ended.errors.endsWith("kestrune-rehearse: the job services ended without its closing line\n"));
}

void TestRehearse::keepsAreChecked()
{
    const Workplace work;
    QCOMPARE(rehearse({u"run"_s, work.b, u"services"_s, u"--keep"_s, u"printer=0,nfc=2,codecs=0"_s}).exitCode, done);
}

void TestRehearse::importTellsOfAGuess()
{
    const Workplace work;
    writeFile(work.path(u"sc.txt"_s), "\r\nSERVICE_NAME: Neu\r\nDISPLAY_NAME: Gr\x94\xe1\x65\r\n"
                                      "        TYP                : 10  WIN32_OWN_PROCESS  \r\n"
                                      "        STATUS             : 4  RUNNING \r\n");
    Ended ended = rehearse({u"import"_s, work.b, work.path(u"sc.txt"_s)});
    QCOMPARE(ended.exitCode, done);
    QVERIFY2(ended.output.contains("code page 850, which is a guess"), ended.output);
    ended = rehearse({u"import"_s, u"--code-page"_s, u"850"_s, work.b, work.path(u"sc.txt"_s)});
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(ended.output, QByteArray());
}

void TestRehearse::importAndExport()
{
    const Workplace work;
    const Ended exported = rehearse({u"export"_s, work.a, u"HKEY_CURRENT_USER\\Software"_s});
    QCOMPARE(exported.exitCode, done);
    QVERIFY(exported.output.startsWith("Windows Registry Editor Version 5.00\n"));
    QCOMPARE(rehearse({u"new"_s, u"--force"_s, work.b}).exitCode, done);
    writeFile(work.path(u"export.reg"_s), exported.output);
    QCOMPARE(rehearse({u"import"_s, work.b, work.path(u"export.reg"_s)}).exitCode, done);
    QCOMPARE(rehearse({u"export"_s, work.b, u"HKEY_CURRENT_USER\\Software"_s}).output, exported.output);
    QVERIFY(!work.difference().contains("HKEY_CURRENT_USER"));
    QCOMPARE(rehearse({u"export"_s, work.a, u"HKEY_CURRENT_USER\\Nope"_s}).exitCode, badArguments);
}

void TestRehearse::exportNamesWhatItLeavesOut()
{
    const Workplace work;
    Machine::open(work.a)->registry().make(u"HKEY_CURRENT_USER\\Software\\two\nlines"_s);
    const Ended exported = rehearse({u"export"_s, work.a, u"HKEY_CURRENT_USER\\Software"_s});
    QCOMPARE(exported.exitCode, done);
    QCOMPARE(exported.errors, QByteArray("kestrune-rehearse: left out, since no script can say its name: "
                                         "HKEY_CURRENT_USER\\Software\\two\\nlines\n"));
    writeFile(work.path(u"export.reg"_s), exported.output);
    QCOMPARE(rehearse({u"import"_s, work.b, work.path(u"export.reg"_s)}).exitCode, done);
}

void TestRehearse::failedImportIsReportedAndChangesNothing()
{
    const Workplace work;
    writeFile(work.path(u"good.reg"_s), "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\New]\n");
    writeFile(work.path(u"bad.reg"_s),
              "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\New]\n\"x\"=oops\n");
    const Ended ended = rehearse({u"import"_s, work.b, work.path(u"good.reg"_s), work.path(u"bad.reg"_s)});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY2(ended.errors.contains("bad.reg:4: "), ended.errors.constData());
    QCOMPARE(ended.errors.count('\n'), 1);
    QCOMPARE(work.difference(), QByteArray());
}

/** Whatever the current folder is later on. Messages name files as they were named. */
void TestRehearse::relativeOperandsMeanTheFolderOfTheStart()
{
    const QTemporaryDir folder;
    const QString current = QDir::currentPath();
    const auto exists = [&folder](const QString &name) { return QFileInfo::exists(folder.filePath(name)); };
    QVERIFY(QDir(folder.path()).mkpath(u"sources"_s) && QDir(folder.path()).mkpath(u"sub"_s));
    writeFile(folder.filePath(u"sources/machine.json"_s), R"({"formatVersion": 1, "processes": ["one.exe"]})");
    writeFile(folder.filePath(u"sub/more.json"_s), R"({"formatVersion": 1, "processes": ["two.exe"]})");
    writeFile(folder.filePath(u"sub/broken.json"_s), "{");

    QVERIFY(QDir::setCurrent(folder.path()));
    const Ended made = rehearse({u"new"_s, u"sub/pc"_s, u"--from"_s, u"sources"_s});
    const Ended listed = rehearse({u"list"_s, u"sub/pc"_s, u"processes"_s});
    const Ended other = rehearse({u"new"_s, u"other"_s});
    const Ended imported = rehearse({u"import"_s, u"other"_s, u"sub/more.json"_s});
    const Ended broken = rehearse({u"import"_s, u"other"_s, u"sub/broken.json"_s});
    const Ended missing = rehearse({u"import"_s, u"other"_s, u"missing.reg"_s});
    const Ended noSources = rehearse({u"new"_s, u"third"_s, u"--from"_s, u"missing"_s});
    const Ended compared = rehearse({u"diff"_s, u"sub/pc"_s, u"other"_s, u"--html"_s, u"sub/page.html"_s});
    const Ended unwritten = rehearse({u"diff"_s, u"sub/pc"_s, u"other"_s, u"--html"_s, u"missing/page.html"_s});
    const Ended previewed =
        rehearse({u"preview"_s, u"other"_s, u"--json"_s, u"preview.json"_s, u"--undo"_s, u"sub/undo.reg"_s});
    QVERIFY(QDir::setCurrent(current));

    for (const Ended &ended : {made, listed, other, imported, compared, previewed})
        QVERIFY2(ended.exitCode == done, ended.errors.constData());
    QCOMPARE(listed.output, QByteArray("one.exe\n"));
    QCOMPARE(Machine::open(folder.filePath(u"other"_s))->processes(), QStringList{u"two.exe"_s});
    QVERIFY(exists(u"sub/page.html"_s) && exists(u"preview.json"_s) && exists(u"sub/undo.reg"_s));
    QVERIFY2(broken.errors.startsWith("kestrune-rehearse: sub/broken.json:"), broken.errors.constData());
    QVERIFY2(missing.errors.startsWith("kestrune-rehearse: missing.reg: "), missing.errors.constData());
    QVERIFY2(noSources.errors.startsWith("kestrune-rehearse: 'missing' is neither"), noSources.errors.constData());
    const QByteArray place = QDir::toNativeSeparators(u"missing/page.html"_s).toUtf8();
    QVERIFY2(unwritten.errors.startsWith("kestrune-rehearse: " + place + ": "), unwritten.errors.constData());
}

void TestRehearse::diffAsJsonAndPage()
{
    const Workplace work;
    QCOMPARE(rehearse({u"run"_s, work.b, u"svc-disable"_s, u"DiagTrack"_s}).exitCode, done);
    const QJsonArray rows = QJsonDocument::fromJson(rehearse({u"diff"_s, work.a, work.b, u"--json"_s}).output).array();
    QCOMPARE(rows.size(), 3);
    const Ended page = rehearse({u"diff"_s, work.a, work.b, u"--html"_s, work.path(u"page.html"_s)});
    QCOMPARE(page.exitCode, done);
    QCOMPARE(page.output, QByteArray());
    QVERIFY(readFile(work.path(u"page.html"_s)).contains("<h2>Services (1)</h2>"));
    QCOMPARE(rehearse({u"diff"_s, work.a, work.b, u"--html"_s, work.path(u"none/page.html"_s)}).exitCode, jobFailed);
}

void TestRehearse::guiStartsTheWindowOnTheMachine()
{
    const Workplace work;
    const QTemporaryDir programs;
    const QString rehearseCopy = copyProgram(u"kestrune-rehearse"_s, programs.filePath(u"kestrune-rehearse"_s));
    copyProgram(u"windowstandin"_s, programs.filePath(QStringLiteral(KESTRUNE_WINDOW_PROGRAM)));
    const Ended ended = runProgram(rehearseCopy, {u"gui"_s, work.a});
    QCOMPARE(ended.exitCode, 7);
    QCOMPARE(ended.output.trimmed(), work.a.toUtf8() + " 1");
    QCOMPARE(runProgram(rehearseCopy, {u"gui"_s, u"--not-elevated"_s, work.a}).output.trimmed(),
             work.a.toUtf8() + " 0");
}

void TestRehearse::guiWithoutADisplay()
{
#ifdef Q_OS_WIN
    QSKIP("Windows always has a display");
#endif
    const Workplace work;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1StringView(name));
    process.setProcessEnvironment(environment);
    process.start(builtProgram(u"kestrune-rehearse"_s), {u"gui"_s, work.a});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), jobFailed);
    QCOMPARE(process.readAllStandardError(),
             QByteArray(
                 "kestrune-rehearse: there is no display to open the window on; 'tour' takes pictures without one\n"));
}

void TestRehearse::guiWithoutTheProgram()
{
    const Workplace work;
    const QTemporaryDir programs;
    const QString rehearseCopy = copyProgram(u"kestrune-rehearse"_s, programs.filePath(u"kestrune-rehearse"_s));
    const Ended ended = runProgram(rehearseCopy, {u"gui"_s, work.a});
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors,
             QByteArray("kestrune-rehearse: the program " KESTRUNE_WINDOW_PROGRAM " is missing beside this one\n"));
}

void TestRehearse::pipesGetNoProgress()
{
    const Workplace work;
    QCOMPARE(rehearse({u"diff"_s, work.a, work.b}).errors, QByteArray());
    QCOMPARE(rehearse({u"run"_s, work.b, u"services"_s}).errors, QByteArray());
}

void TestRehearse::outputThatCantBeWrittenIsAFailure()
{
    if (!QFileInfo::exists(u"/dev/full"_s))
        QSKIP("needs a device that is always full");
    const Ended ended =
        runProgram(u"/bin/sh"_s, {u"-c"_s, u"exec \"$0\" --help > /dev/full"_s, builtProgram(u"kestrune-rehearse"_s)});
    QCOMPARE(ended.exitCode, jobFailed);
    QCOMPARE(ended.errors, QByteArray("kestrune-rehearse: standard output can't be written\n"));
}

KESTRUNE_SUITE(TestRehearse)
#include "tst_rehearse.moc"
