// SPDX-License-Identifier: GPL-3.0-or-later
// A trial tells whether a change is in force, and changes nothing.

#include "cli/trial.h"

#include "machine/compare/machinediff.h"
#include "machine/seam/machinesystem.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/command.h"
#include "work/settings.h"
#include "work/tweaks/tweakcatalogue.h"
#include "work/windowsname.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Vendor"_s;

TrialResult tried(TestMachine &pc, const std::function<void()> &routine)
{
    MachineSystem system(pc.machine());
    return tryOut(system, routine);
}

} // namespace

class TestTrial : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOptionIsSeenInForce_data();
    void everyOptionIsSeenInForce();
    void nothingIsChanged();
    void valuesAreComparedByTypeAndBytes();
    void whatIsWrittenLastCounts();
    void removals();
    void tools();
    void filesAndWalks();
    void thePlatformIsBackAfterAnException();
};

void TestTrial::everyOptionIsSeenInForce_data()
{
    QTest::addColumn<QString>("pc");
    for (const char *pc : {"windows10", "windows11"})
        QTest::newRow(pc) << QString::fromLatin1(pc);
}

void TestTrial::everyOptionIsSeenInForce()
{
    QFETCH(QString, pc);
    TestMachine machine(pc);
    WorkThread worker;
    setWindowsName(worker);
    for (const TweakBox &box : tweakBoxes()) {
        // The last one writes to another place each time on Windows 10: below the one that it has made.
        if (box.apply == When::AsJob || !holds(box.apply, worker)
            || (isWindows10(worker.winName) && box.name == "chkWindows12"_L1))
            continue;
        const auto run = [&](int apply) {
            return [&, apply] { (worker.*box.tweak)(static_cast<quint8>(apply), box.id); };
        };
        run(1)();
        QVERIFY2(tried(machine, run(1)) == TrialResult::ChangesNothing, box.name.data());
        // What setting it back does, if anything, has to be seen as well.
        const bool goesBack = tried(machine, run(0)) == TrialResult::Changes;
        run(0)();
        QVERIFY2((tried(machine, run(1)) == TrialResult::Changes) == goesBack, box.name.data());
    }
}

void TestTrial::nothingIsChanged()
{
    TestMachine pc(u"windows11"_s);
    const QTemporaryDir place;
    copyMachine(pc.machine(), place.filePath(u"before"_s));
    WorkThread worker;
    setWindowsName(worker);
    for (const TweakBox &box : tweakBoxes()) {
        for (const quint8 apply : {quint8(0), quint8(1)})
            tried(pc, [&] { (worker.*box.tweak)(apply, box.id); });
    }
    const auto before = Machine::open(place.filePath(u"before"_s));
    QCOMPARE(compareMachines(*before, pc.machine()).size(), 0);
    QVERIFY(pc.commands().isEmpty());
}

void TestTrial::valuesAreComparedByTypeAndBytes()
{
    TestMachine pc;
    const auto write = [](const QVariant &value) {
        return [value] { platform().openKey(key)->setValue(u"Value"_s, value); };
    };
    QCOMPARE(tried(pc, write(1)), TrialResult::Changes);
    write(1)();
    QCOMPARE(tried(pc, write(1)), TrialResult::ChangesNothing);
    QCOMPARE(tried(pc, write(2)), TrialResult::Changes);
    QCOMPARE(tried(pc, write(u"1"_s)), TrialResult::Changes);
    QCOMPARE(tried(pc, write(quint64(1))), TrialResult::Changes);
    for (const QVariant &value : {QVariant(u"text"_s), QVariant(QStringList{u"a"_s, u"b"_s}), QVariant(qint64(-1)),
                                  QVariant(0xffffffffU), QVariant(QString())}) {
        write(value)();
        QVERIFY2(tried(pc, write(value)) == TrialResult::ChangesNothing, value.typeName());
    }
}

void TestTrial::whatIsWrittenLastCounts()
{
    TestMachine pc;
    pc.write(key, u"Value"_s, 2);
    QCOMPARE(tried(pc,
                   [] {
                       platform().openKey(key)->setValue(u"value"_s, 1);
                       platform().openKey(u"HKLM\\SOFTWARE\\Vendor"_s)->setValue(u"Value"_s, 2);
                   }),
             TrialResult::ChangesNothing);
    QCOMPARE(tried(pc, [] { platform().openKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE"_s)->setValue(u"Vendor/Value"_s, 2); }),
             TrialResult::ChangesNothing);
}

void TestTrial::removals()
{
    TestMachine pc;
    pc.write(key + u"\\Below"_s, u"Value"_s, 2);
    QCOMPARE(tried(pc, [] { platform().openKey(key)->remove(u"None"_s); }), TrialResult::ChangesNothing);
    QCOMPARE(tried(pc, [] { platform().openKey(key)->remove(u"Below"_s); }), TrialResult::Changes);
    QCOMPARE(tried(pc, [] { platform().openKey(key)->remove(u"Below/Value"_s); }), TrialResult::Changes);
    QCOMPARE(tried(pc, [] { platform().openKey(key + u"\\Below"_s)->removeOwnValue(u"Value"_s); }),
             TrialResult::Changes);
    QCOMPARE(tried(pc, [] { platform().openKey(key + u"\\Below"_s)->removeOwnValue(u"Other"_s); }),
             TrialResult::ChangesNothing);
}

void TestTrial::tools()
{
    TestMachine pc(u"windows11"_s);
    const auto task = [](const QString &path, const QString &verb) {
        return [path, verb] { runTool(u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, path, verb}); };
    };
    const QString path = u"\\Microsoft\\Windows\\Application Experience\\ProgramDataUpdater"_s;
    const QString known = pc.machine().task(path) ? path : pc.machine().taskPaths().constFirst();
    QCOMPARE(tried(pc, task(u"\\Nowhere"_s, u"/DISABLE"_s)), TrialResult::ChangesNothing);
    task(known, u"/DISABLE"_s)();
    QCOMPARE(tried(pc, task(known, u"/DISABLE"_s)), TrialResult::ChangesNothing);
    QCOMPARE(tried(pc, task(known, u"/ENABLE"_s)), TrialResult::Changes);
    const auto boot = [](const QString &value) {
        return [value] { runTool(u"bcdedit"_s, {u"/set"_s, u"disabledynamictick"_s, value}); };
    };
    boot(u"Yes"_s)();
    QCOMPARE(tried(pc, boot(u"True"_s)), TrialResult::ChangesNothing);
    QCOMPARE(tried(pc, boot(u"No"_s)), TrialResult::Changes);
    QCOMPARE(tried(pc, [] { runTool(u"sc"_s, {u"stop"_s, u"Spooler"_s}); }), TrialResult::Changes);
    QCOMPARE(tried(pc, [] { runTool(u"nothing"_s, {u"/set"_s}); }), TrialResult::Unknown);
    QCOMPARE(tried(pc, [] { runTool(u"taskkill"_s, {u"/im"_s, u"x.exe"_s}); }), TrialResult::ChangesNothing);
}

void TestTrial::filesAndWalks()
{
    TestMachine pc;
    const QString file = pc.addFile(u"C:\\some.txt"_s, "content");
    QCOMPARE(tried(pc, [&] { QVERIFY(!platform().removeFile(file)); }), TrialResult::Changes);
    QCOMPARE(tried(pc, [&] { QVERIFY(!platform().renameFile(file, file + u'2')); }), TrialResult::Changes);
    QCOMPARE(tried(pc, [&] { platform().setFileAttributes(file, 0x2020); }), TrialResult::Changes);
    QCOMPARE(tried(pc, [] { platform().walk(u"C:\\"_s, [](const WalkEntry &) { return true; }); }),
             TrialResult::Unknown);
    QVERIFY(QFile::exists(file));
}

void TestTrial::thePlatformIsBackAfterAnException()
{
    TestMachine pc;
    QVERIFY_THROWS_EXCEPTION(int, tried(pc, [] { throw 1; }));
    pc.write(key, u"Value"_s, 1);
    QCOMPARE(pc.read(key, u"Value"_s), QVariant(1));
}

KESTRUNE_SUITE(TestTrial)
#include "tst_trial.moc"
