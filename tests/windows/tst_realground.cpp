// SPDX-License-Identifier: GPL-3.0-or-later
// The program itself with administrator rights, where every program of its user may have prepared the ground: other
// programs under the tools' names around it, and variables that lead astray.

#include "journal/realjournal.h"
#include "platform/windows/windowsplatform.h"
#include "support/suite.h"
#include "windows/standin/standinkeys.h"
#include "windows/trialpc.h"
#include "work/settings.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // milliseconds

} // namespace

class TestRealGround : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsTheSystemsToolsInTheirOwnSurroundings();

private:
    static QString variable(const QStringList &variables, const QString &name);
};

QString TestRealGround::variable(const QStringList &variables, const QString &name)
{
    for (const QString &entry : variables) {
        if (entry.startsWith(name + u'=', Qt::CaseInsensitive))
            return entry.section(u'=', 1);
    }
    return {};
}

void TestRealGround::startsTheSystemsToolsInTheirOwnSurroundings()
{
    const TrialPc pc;
    QVERIFY(platform().isElevated());
    // It makes its journal anew, and alone.
    setPlatform(nullptr);
    QVERIFY(QDir(realJournalFolder()).removeRecursively());
    setPlatform(std::make_unique<WindowsPlatform>());
    const QTemporaryDir folder;
    const QString marks = folder.filePath(u"marks"_s);
    const QString current = folder.filePath(u"current"_s);
    const QString beside = folder.filePath(u"beside"_s);
    for (const QString &each : {marks, current, beside})
        QVERIFY(QDir().mkpath(each));
    const QString planted = QDir::toNativeSeparators(current);
    for (const QString &place : {current, beside}) {
        for (const QString &tool : {u"sc"_s, u"schtasks"_s, u"cmd"_s, u"powershell"_s})
            QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + u"/marker.exe"_s,
                                place + u'/' + tool + u".exe"_s));
    }
    const QString program = beside + u"/kestrune.exe"_s;
    QVERIFY(QFile::copy(qEnvironmentVariable("KESTRUNE_TRIAL_PROGRAM"), program));

    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"KESTRUNE_MARKS"_s, QDir::toNativeSeparators(marks));
    for (const QString &name : {u"windir"_s, u"SystemRoot"_s, u"PATH"_s, u"PSModulePath"_s, u"ProgramFiles(x86)"_s,
                                u"ComSpec"_s, u"QT_PLUGIN_PATH"_s, u"COR_PROFILER_PATH"_s, u"COMPLUS_InstallRoot"_s})
        environment.insert(name, planted);
    environment.insert(u"USERNAME"_s, u"Somebody"_s);
    environment.insert(u"USERDOMAIN"_s, u"ELSEWHERE"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(current);
    // The Services page, which asks sc at once
    openSettings()->setValue(u"lastPage"_s, 1);
    forgetCommands();
    process.start(program, QStringList());
    const bool asked = QTest::qWaitFor([] { return !commandsOf(u"sc"_s).isEmpty(); }, patience);
    process.kill();
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(QDir(marks).entryList(QDir::Files), QStringList());
    QVERIFY(asked);
    QVERIFY(QFileInfo(realJournalFolder() + u"\\changes.sqlite"_s).size() > 0);
    QCOMPARE(commandsOf(u"sc"_s).constFirst(), (QStringList{u"query"_s, u"state="_s, u"all"_s}));

    const auto surroundings = platform().openKey(standInSurroundings);
    const QString windows = u"c:\\windows"_s;
    const QString system = windows + u"\\system32"_s;
    QCOMPARE(surroundings->value(standInFolder).toString().toLower(), system);
    const QStringList seen = surroundings->value(u"sc"_s).toStringList();
    for (const QString &name : {u"windir"_s, u"SystemRoot"_s})
        QCOMPARE(variable(seen, name).toLower(), windows.toLower());
    QCOMPARE(variable(seen, u"ComSpec"_s).toLower(), system + u"\\cmd.exe"_s);
    QVERIFY2(variable(seen, u"PATH"_s).startsWith(system + u';', Qt::CaseInsensitive),
             qPrintable(variable(seen, u"PATH"_s)));
    QCOMPARE(variable(seen, u"PSExecutionPolicyPreference"_s), u"Restricted"_s);
    QCOMPARE(variable(seen, u"USERNAME"_s), qEnvironmentVariable("USERNAME"));
    for (const QString &entry : seen)
        QVERIFY2(!entry.contains(planted) && !entry.contains(u"ELSEWHERE"), qPrintable(entry));
}

KESTRUNE_WINDOW_SUITE(TestRealGround)
#include "tst_realground.moc"
