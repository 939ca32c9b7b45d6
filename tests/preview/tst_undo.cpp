// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse preview and its way back: applied to the optimized copy, it gives the machine before.

#include "support/rehearsing.h"
#include "support/suite.h"
#include "support/undoing.h"

#include "machine/compare/machinediff.h"
#include "machine/machine.h"
#include "preview/preview.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void previewLeavesTheMachineAlone();
    void previewTellsOfEveryGroup();
    void undoGivesTheMachineBefore_data();
    void undoGivesTheMachineBefore();
    void scriptIsInTheFormOfTheRegistryEditor();
    void commandsAreTheSystemsOwn();
    void nothingToOptimize();
    void badMachineIsTold();

private:
    QTemporaryDir folder_;
    QString pc_; ///< the one that was previewed
    QString make(const QString &builtIn);
};

QString TestUndo::make(const QString &builtIn)
{
    const QString path = folder_.filePath(
        u"pc-%1-%2"_s.arg(QFileInfo(builtIn).fileName(), QLatin1StringView(QTest::currentTestFunction())));
    if (builtIn.contains(u'/')) {
        copyMachine(*Machine::open(builtIn), path);
        return path;
    }
    makeMachine(path, QCoreApplication::applicationDirPath() + u"/machines/"_s + builtIn, Existing::Replace);
    return path;
}

void TestUndo::initTestCase()
{
    pc_ = make(u"windows11"_s);
    copyMachine(*Machine::open(pc_), folder_.filePath(u"as-it-was"_s));
    const Ended result =
        rehearse({u"preview"_s, pc_, u"--keep"_s, u"printer=0"_s, u"--json"_s, folder_.filePath(u"preview.json"_s),
                  u"--html"_s, folder_.filePath(u"preview.html"_s), u"--undo"_s, folder_.filePath(u"preview.reg"_s)});
    QVERIFY2(result.exitCode == done, result.errors.constData());
}

void TestUndo::previewLeavesTheMachineAlone()
{
    QCOMPARE(compareMachines(*Machine::open(folder_.filePath(u"as-it-was"_s)), *Machine::open(pc_)), QList<DiffRow>());
    QVERIFY(!QFileInfo::exists(pc_ + u"/commands.log"_s));
}

void TestUndo::previewTellsOfEveryGroup()
{
    const QJsonObject report = QJsonDocument::fromJson(readFile(folder_.filePath(u"preview.json"_s))).object();
    QMap<QString, int> groups;
    QStringList titles;
    QStringList unexplainedFiles;
    for (const QJsonValue item : report[u"items"_s].toArray()) {
        ++groups[item[u"group"_s].toString()];
        titles.append(item[u"title"_s].toString());
        if (item[u"group"_s] == "Files"_L1 && item[u"about"_s].toString().isEmpty())
            unexplainedFiles.append(titles.last());
    }
    for (const QString &group : {u"Services"_s, u"Scheduled tasks"_s, u"Windows applications"_s,
                                 u"Programs started at logon"_s, u"System options"_s, u"Kestrune's own records"_s})
        QVERIFY2(groups.value(group) > 0, qPrintable(group));
    QVERIFY2(titles.contains(u"Print Spooler"_s), qPrintable(titles.join(u'\n')));
    QVERIFY2(titles.contains(u"Disable telemetry"_s), qPrintable(titles.join(u'\n')));
    QVERIFY(groups.value(u"Files"_s) > 0);
    QCOMPARE(unexplainedFiles, QStringList());
    const QByteArray page = readFile(folder_.filePath(u"preview.html"_s));
    QVERIFY(page.size() > 10000);
    QVERIFY(page.contains("(Optimize run with --keep printer=0)</p>"));
}

void TestUndo::undoGivesTheMachineBefore_data()
{
    addColumns<QString, QString>("builtIn", "keep");
    const QString none = u"printer=0,bluetooth-audio=0,files-sharing=0,xbox-app=0,upnp=0,proxy-vpn=0,nfc=0,"
                         "xbox-game-bar=0,codecs=0"_s;
    QTest::newRow("Windows 11, none kept") << u"windows11"_s << none;
    QTest::newRow("Windows 10, none kept") << u"windows10"_s << none;
    // One that was captured elsewhere
    if (const QString captured = qEnvironmentVariable("KESTRUNE_CAPTURED_PC"); !captured.isEmpty())
        QTest::newRow("captured") << captured << none;
}

void TestUndo::undoGivesTheMachineBefore()
{
    QFETCH(QString, builtIn);
    QFETCH(QString, keep);
    const QString pc = make(builtIn);
    const QString undo = folder_.filePath(u"undo.reg"_s);
    Ended result = rehearse({u"preview"_s, pc, u"--keep"_s, keep, u"--undo"_s, undo});
    QVERIFY2(result.exitCode == done, result.errors.constData());

    QDir(folder_.filePath(u"before"_s)).removeRecursively();
    copyMachine(*Machine::open(pc), folder_.filePath(u"before"_s));
    result = rehearse({u"run"_s, pc, u"optimize"_s, u"--keep"_s, keep});
    QVERIFY2(result.exitCode == done, result.errors.constData());
    const auto before = Machine::open(folder_.filePath(u"before"_s));
    const auto optimized = Machine::open(pc);
    QVERIFY(!compareMachines(*before, *optimized).isEmpty());

    QCOMPARE(::undo(*optimized, undo), QString());

    QStringList left;
    for (const DiffRow &row : compareMachines(*before, *optimized)) {
        // Its log and backups stay, for whoever wants to look.
        if (!row.path.startsWith("program\\"_L1))
            left.append(kindName(row.kind) + u' ' + row.path + u' ' + row.name + u": "_s + row.before + u" -> "_s
                        + row.after);
    }
    QVERIFY2(left.isEmpty(), qPrintable(left.join(u'\n')));
}

void TestUndo::scriptIsInTheFormOfTheRegistryEditor()
{
    const QByteArray bytes = readFile(folder_.filePath(u"preview.reg"_s));
    QVERIFY(bytes.startsWith("\xff\xfe"));
    const QString text = QStringDecoder(QStringConverter::Utf16)(bytes);
    QVERIFY(text.startsWith(u"Windows Registry Editor Version 5.00\r\n"_s));
    QVERIFY(!text.contains(u"\\AppModel\\Repository\\Packages\\"_s));
}

/** Whatever lies in the folder that they are given in, and whatever the search path is. */
void TestUndo::commandsAreTheSystemsOwn()
{
    int commands = 0;
    for (const QString &line : QString::fromUtf8(readFile(folder_.filePath(u"preview-commands.txt"_s)))
                                   .split(u"\r\n"_s, Qt::SkipEmptyParts)) {
        if (line == u"rem"_s || line.startsWith(u"rem "_s))
            continue;
        QVERIFY2(line.startsWith(u"%SystemRoot%\\System32\\"_s), qPrintable(line));
        ++commands;
    }
    QVERIFY(commands > 0);
}

void TestUndo::nothingToOptimize()
{
    const QString pc = folder_.filePath(u"empty"_s);
    makeMachine(pc, QString(), Existing::Keep);
    const Ended result = rehearse({u"preview"_s, pc, u"--no-features"_s});
    QVERIFY2(result.exitCode == done, result.errors.constData());
    QVERIFY2(result.output.startsWith("    0 come back exactly\n"), result.output.constData());
}

void TestUndo::badMachineIsTold()
{
    const Ended result = rehearse({u"preview"_s, folder_.filePath(u"nothing"_s)});
    QCOMPARE(result.exitCode, machineUnreadable);
    QVERIFY(!result.errors.isEmpty());
}

KESTRUNE_SUITE(TestUndo)
#include "tst_undo.moc"
