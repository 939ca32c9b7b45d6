// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli on a real registry, with administrator rights: it applies, does nothing a second time, and takes all of
// it back; also where it was ended in the middle.

#include "platform/platform.h"
#include "support/files.h"
#include "support/packageplaces.h"
#include "support/processes.h"
#include "support/suite.h"
#include "windows/trialpc.h"
#include "work/settings.h"

#include <QDir>
#include <QProcess>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int done = 0;
constexpr int restartWanted = 3010;

const QStringList services{u"FontCache"_s, u"lfsvc"_s, u"Spooler"_s, u"SysMain"_s, u"Dhcp"_s};
const QStringList tasks{u"\\Microsoft\\Windows\\Application Experience\\Microsoft Compatibility Appraiser"_s,
                        u"\\Microsoft\\Windows\\Time Zone\\SynchronizeTimeZone"_s};

Ended cli(const QStringList &arguments)
{
    return runProgram(builtProgram(u"kestrune-cli"_s), arguments);
}

/** "[key] name=data" of all below a few keys that a program changes, but what Wine and the stand-ins write for
 * themselves. */
QStringList registryLines()
{
    static const QStringList places{u"HKLM\\SYSTEM\\CurrentControlSet"_s, u"HKLM\\SOFTWARE\\Microsoft"_s,
                                    u"HKLM\\SOFTWARE\\Policies"_s, u"HKLM\\SOFTWARE\\Wow6432Node\\Policies"_s,
                                    u"HKCU"_s};
    const QTemporaryDir folder;
    QStringList lines;
    for (const QString &place : places) {
        const QString file = QDir::toNativeSeparators(folder.filePath(u"exported.reg"_s));
        QProcess::execute(u"reg"_s, {u"export"_s, place, file, u"/y"_s});
        const QByteArray bytes = readFile(file);
        const QString text = QStringDecoder(QStringConverter::Utf16)(bytes);
        QString key;
        for (const QString &line : text.split(u'\n')) {
            const QString bare = line.trimmed();
            if (bare.startsWith(u'['))
                key = bare;
            // The service manager counts its processes, and Wine names the network adapters once somebody asks for
            // them.
            const bool isOwn = key.contains("\\Kestrune"_L1) || key.contains("\\Wine"_L1)
                               || key.contains("\\NetworkCards"_L1) || key.contains("\\ServiceCurrent"_L1);
            if (!bare.isEmpty() && !isOwn)
                lines.append(bare.startsWith(u'[') ? bare : key + u' ' + bare);
        }
    }
    return lines;
}

/** The lines of what didn't come back. */
QByteArray notBack(const Ended &undone)
{
    QByteArray lines;
    for (const QByteArray &line : undone.output.split('\n')) {
        if (!line.contains("\tas it was\t"))
            lines += line + '\n';
    }
    return lines;
}

/** What one list has and the other doesn't. */
QStringList differences(const QStringList &left, const QStringList &right)
{
    const QSet<QString> lefts(left.cbegin(), left.cend());
    const QSet<QString> rights(right.cbegin(), right.cend());
    QStringList found;
    for (const QString &line : lefts - rights)
        found.append(u"- "_s + line);
    for (const QString &line : rights - lefts)
        found.append(u"+ "_s + line);
    found.sort();
    return found;
}

} // namespace

class TestRealCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void appliesOnceAndTakesItBack();
    void anEndInTheMiddleIsTakenBack();

private:
    QTemporaryDir place_;
    QString profile_;
};

void TestRealCli::initTestCase()
{
    {
        const TrialPc pc; // it has the journal for itself while it is there
        QVERIFY(platform().isElevated());
        emptyKey(settingsKey);
        pc.startServices(services);
        pc.registerTasks(tasks);
        for (const QString &key : {userRunKey, machineRunKey, machineRunKey32})
            emptyKey(key);
        platform().openKey(userRunKey)->setValue(u"Quoted"_s, u"\"C:\\windows\\system32\\notepad.exe\" -tray"_s);
    }
    // What was laid, and what other tests did here, is how the PC is.
    QVERIFY(QDir(qEnvironmentVariable("ProgramData") + u"\\Kestrune"_s).removeRecursively());
    profile_ = place_.filePath(u"profile.json"_s);
    writeFile(profile_,
              R"({"formatVersion": 1, "keep": {"printer": false}, "tweaks": {"ssd7": false, "windows10": false},
        "never": ["*BingNews*"]})");
}

void TestRealCli::appliesOnceAndTakesItBack()
{
    QVERIFY(cli({u"status"_s}).exitCode == done); // a first look may make keys of Wine's own
    const QStringList before = registryLines();
    QVERIFY(before.size() > 1000);
    const Ended applied = cli({u"apply"_s, u"--profile"_s, profile_});
    QVERIFY2(applied.exitCode == done || applied.exitCode == restartWanted,
             (applied.errors + applied.output).constData());
    QVERIFY2(applied.output.contains("in force\tservice\tSpooler\tdisabled"), applied.output.constData());
    const QStringList changes = differences(before, registryLines());
    QVERIFY(changes.size() > 50);

    const Ended again = cli({u"apply"_s, u"--profile"_s, profile_});
    QCOMPARE(again.exitCode, done);
    QVERIFY2(again.output.contains("nothing was changed"), again.output.constData());
    QCOMPARE(cli({u"verify"_s, u"--profile"_s, profile_}).exitCode, done);

    const Ended undone = cli({u"undo"_s});
    QVERIFY2(undone.exitCode == done, (undone.errors + notBack(undone)).constData());
    const QStringList left = differences(before, registryLines());
    QVERIFY2(left.isEmpty(), qPrintable(left.join(u'\n')));
}

void TestRealCli::anEndInTheMiddleIsTakenBack()
{
    constexpr int longPatience = 60000; // milliseconds
    {
        const TrialPc pc; // the stand-ins' services aren't those whose state the journal knows
        pc.startServices(services);
    }
    const QStringList before = registryLines();
    const Ended status = cli({u"status"_s});
    QVERIFY2(status.output.contains("not in force\tservice\tFontCache\tdisabled"), status.output.constData());
    QProcess process;
    process.start(builtProgram(u"kestrune-cli"_s), {u"apply"_s, u"--profile"_s, profile_});
    const auto isBegun = [] {
        QProcess query;
        query.start(u"reg"_s,
                    {u"query"_s, u"HKLM\\SYSTEM\\CurrentControlSet\\Services\\FontCache"_s, u"/v"_s, u"Start"_s});
        query.waitForFinished();
        return query.readAllStandardOutput().contains("0x4");
    };
    QVERIFY(QTest::qWaitFor(isBegun, longPatience));
    process.kill();
    process.waitForFinished();
    QVERIFY(!differences(before, registryLines()).isEmpty());

    const Ended undone = cli({u"undo"_s});
    QVERIFY2(undone.exitCode == done, (undone.errors + notBack(undone)).constData());
    const QStringList left = differences(before, registryLines());
    QVERIFY2(left.isEmpty(), qPrintable(left.join(u'\n')));
}

KESTRUNE_SUITE(TestRealCli)
#include "tst_realcli.moc"
