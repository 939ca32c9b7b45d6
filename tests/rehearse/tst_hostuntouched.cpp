// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a rehearsal machine holds and whatever is run on it: no program of the host is started, and no file outside
// of the machine is read or written. The host's programs are stand-ins here, which leave a mark when they are started.

#include "machine/source/machinesource.h"
#include "support/processes.h"
#include "support/suite.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** What a rehearsal, or Qt in it, might think of starting. */
const QStringList temptations{
    u"sc"_s,           u"schtasks"_s, u"powershell"_s, u"taskkill"_s, u"onedrivesetup"_s, u"cmd"_s,     u"powercfg"_s,
    u"bcdedit"_s,      u"takeown"_s,  u"icacls"_s,     u"dism"_s,     u"reg"_s,           u"regedit"_s, u"explorer"_s,
    u"rundll32"_s,     u"xdg-open"_s, u"sh"_s,         u"kde-open"_s, u"gio"_s,           u"firefox"_s, u"xdg-mime"_s,
    u"xdg-settings"_s, u"tempting"_s,
};

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files.append(walk.next());
    files.sort();
    return files;
}

void copyFolder(const QString &from, const QString &to)
{
    for (const QString &file : filesBelow(from)) {
        const QString place = to + file.mid(from.size());
        QVERIFY(QDir().mkpath(QFileInfo(place).path()));
        QVERIFY2(QFile::copy(file, place), qPrintable(place));
    }
}

/** A program or a path in a JSON text. */
QByteArray json(const QString &text)
{
    return '"' + QString(text).replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).toUtf8() + '"';
}

#ifdef KESTRUNE_STRACE
/** What lies below a folder: names, bytes, rights and the time of the last change. Nobody's reading changes it. */
QStringList stateBelow(const QString &folder)
{
    QStringList lines;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QFileInfo info(walk.next());
        lines.append(u"%1 %2 %3 %4"_s.arg(info.filePath(), info.lastModified().toUTC().toString(Qt::ISODateWithMs),
                                          QString::number(info.permissions().toInt(), 16),
                                          info.isFile() ? QString::fromLatin1(readFile(info.filePath())) : QString()));
    }
    lines.sort();
    return lines;
}
#endif

} // namespace

class TestHostUntouched : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void standInsLeaveMarks();
    void noProgramOfTheHostIsStarted_data();
    void noProgramOfTheHostIsStarted();
    void withoutTheStockToolNothingIsStarted();
#ifdef KESTRUNE_STRACE
    void nothingOutsideIsReadOrWritten();
#endif

private:
    void layStandIns(const QString &folder);
    QString program(const QString &name) const
    {
        return programs() + u'/' + name + programSuffix;
    }
    QString programs() const
    {
        return folder_.filePath(u"programs"_s);
    }
    QString standInFolder() const
    {
        return folder_.filePath(u"bin"_s);
    }
    QString makeMachine(const QString &name, const QString &sources);
    Ended start(const QString &program, const QStringList &arguments) const;
    Ended rehearse(const QStringList &arguments) const;
#ifdef KESTRUNE_STRACE
    QStringList openedBelow(const QString &folder) const;
#endif
    void run(const QString &machine, const QStringList &arguments) const;
    void runTweaks(const QString &machine) const;
    void runEverything(const QString &machine, bool whole);
    QStringList marks() const
    {
        return QDir(marksFolder()).entryList(QDir::Files, QDir::Name);
    }
    QString marksFolder() const
    {
        return folder_.filePath(u"marks"_s);
    }

    QTemporaryDir folder_;
    QStringList standIns_; ///< paths
    QString smallSources_;
    QString trace_; ///< where what processes open is noted; empty where nobody wants to know
};

void TestHostUntouched::layStandIns(const QString &folder)
{
    QVERIFY(QDir().mkpath(folder));
    for (const QString &name : temptations) {
        const QString file = folder + u'/' + name + programSuffix;
        QVERIFY2(QFile::copy(builtProgram(u"marker"_s + programSuffix), file), qPrintable(file));
        standIns_.append(file);
    }
}

/** The programs in a folder of their own, with stand-ins beside them, in the current folder and on PATH. */
void TestHostUntouched::initTestCase()
{
    QVERIFY(QDir().mkpath(programs()) && QDir().mkpath(marksFolder()));
    for (const QString &name :
         {u"kestrune-rehearse"_s, u"kestrune-stocktool"_s, QStringLiteral(KESTRUNE_WINDOW_PROGRAM)})
        copyProgram(name, programs() + u'/' + name);
    for (const QString &name : {u"img"_s, u"machines/windows11"_s})
        copyFolder(builtProgram(name), programs() + u'/' + name);
    layStandIns(programs());
    layStandIns(standInFolder());
    layStandIns(standInFolder() + u"/system32/WindowsPowerShell/v1.0"_s);
    // A throw-away Windows whose own programs were replaced, too, by whoever runs this test.
    standIns_ += qEnvironmentVariable("KESTRUNE_MARKED_PROGRAMS").split(u';', Qt::SkipEmptyParts);
    qputenv("KESTRUNE_MARKS", QFile::encodeName(QDir::toNativeSeparators(marksFolder())));
    qputenv("PATH", QFile::encodeName(QDir::toNativeSeparators(standInFolder())));
    // With its drive, before another one is the current one
    smallSources_ = QFileInfo(QStringLiteral(KESTRUNE_TEST_DATA "/small")).absoluteFilePath();
    QVERIFY(QDir::setCurrent(standInFolder()));
}

/** Else the rest would prove nothing. */
void TestHostUntouched::standInsLeaveMarks()
{
    for (const QString &file : std::as_const(standIns_)) {
        QCOMPARE(marks(), QStringList());
        QCOMPARE(runProgram(file, {}).exitCode, 0);
        QCOMPARE(marks().size(), 1);
        QVERIFY(QFile::remove(marksFolder() + u'/' + marks().first()));
    }
    // By its bare name, as the logic names it
    QCOMPARE(runProgram(u"sc"_s, {u"query"_s}).exitCode, 0);
    QCOMPARE(marks().size(), 1);
    QVERIFY(QFile::remove(marksFolder() + u'/' + marks().first()));
}

QString TestHostUntouched::makeMachine(const QString &name, const QString &sources)
{
    const QString folder = folder_.filePath(name);
    try {
        ::makeMachine(folder, sources, Existing::Keep);
    } catch (const MachineError &error) {
        qFatal("%s", qPrintable(error.message));
    }
    return folder;
}

/** Runs a program of ours. What anybody else on the computer does to the same files isn't noted. */
Ended TestHostUntouched::start(const QString &program, const QStringList &arguments) const
{
#ifdef KESTRUNE_STRACE
    // With the file that a name has led to (-y), for all processes that come of it (-f); only these calls stop them.
    if (!trace_.isEmpty())
        return runProgram(QStringLiteral(KESTRUNE_STRACE),
                          QStringList{u"-f"_s, u"--seccomp-bpf"_s, u"-y"_s, u"-A"_s, u"-o"_s, trace_, u"-e"_s,
                                      u"trace=open,openat,openat2,creat"_s, program}
                              + arguments);
#endif
    return runProgram(program, arguments);
}

Ended TestHostUntouched::rehearse(const QStringList &arguments) const
{
    return start(program(u"kestrune-rehearse"_s), arguments);
}

#ifdef KESTRUNE_STRACE
/** What our processes have opened below a folder, by whatever name. */
QStringList TestHostUntouched::openedBelow(const QString &folder) const
{
    return QString::fromUtf8(readFile(trace_)).split(u'\n').filter(QFileInfo(folder).canonicalFilePath());
}
#endif

/** Any end is right but a crash: what a machine lacks may make a job fail. */
void TestHostUntouched::run(const QString &machine, const QStringList &arguments) const
{
    const Ended ended = rehearse(QStringList{u"run"_s, machine} + arguments);
    QVERIFY2(ended.exitCode == 0 || ended.exitCode == 1, qPrintable(arguments.join(u' ')));
}

void TestHostUntouched::runTweaks(const QString &machine) const
{
    for (const auto &[group, last, none] :
         {std::tuple(u"ssd"_s, 9, 0), std::tuple(u"gaming"_s, 14, 0), std::tuple(u"windows"_s, 12, 11)}) {
        for (int id = 1; id <= last; ++id) {
            for (const QString &state : {u"on"_s, u"off"_s}) {
                if (id != none)
                    run(machine, {u"tweak"_s, group, QString::number(id), state, u"--yes"_s});
            }
        }
    }
}

/** With all tweaks one by one, and the window, or else with the Automatizer and a preview. */
void TestHostUntouched::runEverything(const QString &machine, bool whole)
{
    for (const char *what : {"services", "tasks", "packages", "autorun", "processes"})
        QCOMPARE(rehearse({u"list"_s, machine, QString::fromLatin1(what)}).exitCode, 0);
    for (const char *job : {"services", "tasks", "packages", "autorun", "winsxs", "sysinfo", "monitor"})
        run(machine, {QString::fromLatin1(job)});
    run(machine, {u"svc-disable"_s, u"DiagTrack"_s, u"Tempting"_s});
    run(machine, {u"svc-enable"_s, u"DiagTrack"_s, u"Tempting"_s});
    run(machine, {u"task-disable"_s, u"\\Tempting"_s});
    run(machine, {u"task-enable"_s, u"\\Tempting"_s});
    run(machine, {u"package-uninstall"_s, u"Microsoft.OneDrive"_s, u"Microsoft.BingNews"_s});
    run(machine, {u"package-install"_s, u"Microsoft.OneDrive"_s, u"Microsoft.BingNews"_s});
    run(machine, {u"autorun-disable"_s, u"Tempting"_s});
    run(machine, {u"autorun-enable"_s, u"Tempting"_s});
    if (whole) {
        runTweaks(machine);
        QCOMPARE(rehearse({u"tour"_s, machine, u"--out"_s, folder_.filePath(u"pictures"_s)}).exitCode, 0);
    } else {
        run(machine, {u"analyze"_s});
        run(machine, {u"optimize"_s, u"--yes"_s});
        run(machine, {u"restore"_s});
        const Ended preview =
            rehearse({u"preview"_s, machine, u"--undo"_s, folder_.filePath(u"undo.reg"_s), u"--html"_s,
                      folder_.filePath(u"preview.html"_s), u"--json"_s, folder_.filePath(u"preview.json"_s)});
        QVERIFY2(preview.exitCode == 0 || preview.exitCode == 1, preview.errors.constData());
    }
    QCOMPARE(rehearse({u"diff"_s, machine, machine}).exitCode, 0);
}

void TestHostUntouched::noProgramOfTheHostIsStarted_data()
{
    addColumns<QString, QString, bool>("sources", "addition", "whole");
    const QString place = QDir::toNativeSeparators(standInFolder());
    const QString sc = place + QDir::separator() + u"sc"_s + programSuffix;
    QTest::newRow("a built-in PC") << builtProgram(u"machines/windows11"_s) << QString() << true;
    QTest::newRow("tools that are missing")
        << smallSources_
        << uR"("faults": { "sc": {"missing": true}, "schtasks": {"missing": true}, "powershell": {"missing": true},
                       "taskkill": {"missing": true}, "onedrivesetup": {"missing": true}, "cmd": {"missing": true},
                       "powercfg": {"missing": true}, "bcdedit": {"missing": true}, "takeown": {"missing": true},
                       "icacls": {"missing": true} })"_s
        << false;
    QTest::newRow("variables that name the host")
        << smallSources_
        << uR"("environment": { "windir": %1, "SystemRoot": %1, "PATH": %1, "ComSpec": %2, "LD_PRELOAD": %2,
                       "TEMP": %1, "LOCALAPPDATA": %1 })"_s.arg(QString::fromUtf8(json(place)),
                                                                QString::fromUtf8(json(sc)))
        << false;
    QTest::newRow("paths that name the host")
        << smallSources_
        << uR"("dlls": { "C:\\Windows\\System32\\OneDriveSetup.exe": {} }, "processes": [%1, "sc.exe"])"_s.arg(
               QString::fromUtf8(json(sc)))
        << false;
}

void TestHostUntouched::noProgramOfTheHostIsStarted()
{
    QFETCH(const QString, sources);
    QFETCH(const QString, addition);
    QFETCH(const bool, whole);
    const QString machine = makeMachine(QString::fromLatin1(QTest::currentDataTag()), sources);
    // The registry, the tasks and the machine's own files tempt in every row.
    const QString tempting =
        QDir::toNativeSeparators(standInFolder()) + QDir::separator() + u"tempting"_s + programSuffix;
    const QByteArray path = json(tempting);
    const QByteArray quoted = json(u'"' + tempting + u"\" /x"_s);
    const QByteArray dll = json(u'@' + tempting + u",-1"_s);
    const QString services = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Tempting"_s;
    const QString current = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion"_s;
    writeFile(folder_.filePath(u"tempting.reg"_s),
              "Windows Registry Editor Version 5.00\n\n[" + services.toUtf8()
                  + "]\n\"Type\"=dword:10\n\"Start\"=dword:2\n"
                    "\"ImagePath\"="
                  + path + "\n\"DisplayName\"=" + dll + "\n\"Description\"=" + dll + "\n\n[" + current.toUtf8()
                  + "\\Run]\n\"Tempting\"=" + quoted + "\n\"Sh\"=\"/bin/sh -c id\"\n\"OneDrive\"=" + quoted + "\n\n["
                  + current.toUtf8() + "\\Uninstall\\OneDriveSetup.exe]\n\"UninstallString\"=" + quoted + "\n");
    writeFile(folder_.filePath(u"tempting.xml"_s),
              "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<!-- \\Tempting -->\r\n"
              "<Task version=\"1.2\" xmlns=\"http://schemas.microsoft.com/windows/2004/02/mit/task\">\r\n"
              "  <RegistrationInfo><URI>\\Tempting</URI></RegistrationInfo>\r\n"
              "  <Actions><Exec><Command>"
                  + tempting.toUtf8() + "</Command></Exec></Actions>\r\n</Task>\r\n");
    QCOMPARE(rehearse({u"import"_s, machine, folder_.filePath(u"tempting.reg"_s), folder_.filePath(u"tempting.xml"_s)})
                 .exitCode,
             0);
    if (!addition.isEmpty()) {
        writeFile(folder_.filePath(u"addition.json"_s), "{ \"formatVersion\": 1, " + addition.toUtf8() + " }");
        QCOMPARE(rehearse({u"import"_s, machine, folder_.filePath(u"addition.json"_s)}).exitCode, 0);
    }
    for (const QString &place : {u"/drive_c/Windows/System32"_s, u"/program"_s}) {
        QVERIFY(QDir().mkpath(machine + place));
        for (const QString &name : temptations)
            QFile::copy(builtProgram(u"marker"_s + programSuffix), machine + place + u'/' + name + programSuffix);
    }

    runEverything(machine, whole);
    QCOMPARE(marks(), QStringList());
}

/** What lies in the machine is no way round it. */
void TestHostUntouched::withoutTheStockToolNothingIsStarted()
{
    const QString machine = makeMachine(u"planted"_s, smallSources_);
    for (const QString &name : temptations)
        QVERIFY(
            QFile::copy(builtProgram(u"marker"_s + programSuffix), machine + u"/program/"_s + name + programSuffix));
    const QString stockTool = program(u"kestrune-stocktool"_s);
    QVERIFY(QFile::rename(stockTool, stockTool + u".away"_s));
    run(machine, {u"svc-disable"_s, u"DiagTrack"_s});
    run(machine, {u"optimize"_s});
    QVERIFY(QFile::rename(stockTool + u".away"_s, stockTool));
    QCOMPARE(marks(), QStringList());
}

#ifdef KESTRUNE_STRACE
void TestHostUntouched::nothingOutsideIsReadOrWritten()
{
    const QString outside = folder_.filePath(u"outside"_s);
    const QString component = u"amd64_example-one_31bf3856ad364e35_10.0.26100.1_none_0123456789abcdef"_s;
    for (const QString &file : {u"hiberfil.sys"_s, u"config"_s, u"OneDrive.exe"_s, u"SearchHost.exe"_s, u"tasks.xml"_s,
                                component + u"/a.dll"_s, u"notes.txt"_s}) {
        QVERIFY(QDir().mkpath(QFileInfo(outside + u'/' + file).path()));
        writeFile(outside + u'/' + file, "outside");
    }
    const QString machine = makeMachine(u"linked"_s, builtProgram(u"machines/windows11"_s));
    const QString drive = machine + u"/drive_c/"_s;
    const auto lead = [&](const QString &link, const QString &target) {
        QDir().mkpath(QFileInfo(drive + link).path());
        if (QFileInfo(drive + link).isDir())
            QVERIFY(QDir(drive + link).removeRecursively());
        QFile::remove(drive + link);
        QVERIFY2(QFile::link(target.isEmpty() ? outside : outside + u'/' + target, drive + link), qPrintable(link));
    };
    lead(u"hiberfil.sys"_s, u"hiberfil.sys"_s);
    lead(u"Users/Alex/AppData/Local/Temp"_s, {});
    lead(u"Users/Alex/AppData/Local/Microsoft/OneDrive"_s, {});
    lead(u"Users/Alex/notes"_s, {});
    lead(u"Program Files (x86)/RivaTuner Statistics Server/Profiles"_s, {});
    lead(u"Windows/SystemApps/MicrosoftWindows.Client.CBS_cw5n1h2txyewy"_s, {});
    lead(u"Windows/WinSxS/"_s + component, component);
    lead(u"Windows/System32/appinfo.dll"_s, u"notes.txt"_s);

    trace_ = folder_.filePath(u"trace"_s);
    if (rehearse({u"--help"_s}).exitCode != 0)
        QSKIP("strace may not follow processes here");
    const QStringList before = stateBelow(outside);
    runEverything(machine, false);
    runEverything(machine, true);
    QCOMPARE(start(program(u"kestrune-stocktool"_s),
                   {machine, u"cmd"_s, u"/k"_s, u"dism /online /Cleanup-Image /StartComponentCleanup"_s})
                 .exitCode,
             0);
    QCOMPARE(openedBelow(outside), QStringList());
    QCOMPARE(stateBelow(outside), before);
    // A look by one of our processes is seen, through a link too; one by anybody else isn't.
    QCOMPARE(readFile(outside + u"/notes.txt"_s), QByteArray("outside"));
    QCOMPARE(openedBelow(outside), QStringList());
    const QString link = folder_.filePath(u"link.reg"_s);
    QVERIFY(QFile::link(outside + u"/notes.txt"_s, link));
    rehearse({u"import"_s, machine, link});
    QVERIFY(!openedBelow(outside).isEmpty());
}
#endif

KESTRUNE_SUITE(TestHostUntouched)
#include "tst_hostuntouched.moc"
