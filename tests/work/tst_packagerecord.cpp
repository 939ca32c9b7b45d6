// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the record of removed packages, as it is kept from the lines of a job.

#include "support/markingtranslator.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "work/packages/packages.h"

#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class TestPackageRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doneLineNamesThePackage_data();
    void doneLineNamesThePackage();
    void otherLinesLeaveTheRecord_data();
    void otherLinesLeaveTheRecord();
    void removalIsRecordedOnce();
    void installationTakesTheRecordOfThatPackageAlone();
    void lineOfTheOldXboxAppIsRecordedAsItReads();
    void installedOldXboxAppLosesItsRecords_data();
    void installedOldXboxAppLosesItsRecords();
    void remarkIsNoPartOfTheName();
};

void TestPackageRecord::doneLineNamesThePackage_data()
{
    addColumns<QString, QString>("line", "name");
    const auto row = [](const char *title, const QString &line, const QString &name) {
        QTest::newRow(title) << line << name;
    };
    row("as the job sends it", u"   Uninstall   package: Microsoft.Todos: done"_s, u"Microsoft.Todos"_s);
    row("nothing before it", u"package: Microsoft.Todos: done"_s, u"Microsoft.Todos"_s);
    row("blanks in the name", u"   Uninstall   package: MS OneDrive: done"_s, u"MS OneDrive"_s);
    row("colon in the name", u"   Uninstall   package: a: b: done"_s, u"a: b"_s);
    row("done in the name", u"   Uninstall   package: a: done: done"_s, u"a"_s);
    row("the mark in the name", u"   Uninstall   package: a package: b: done"_s, u"a "_s);
    row("other letters", u"   Uninstall   package: Überwachung.服务: done"_s, u"Überwachung.服务"_s);
    row("done without its colon", u"   Uninstall   package: Microsoft.Todos done"_s, u"Microsoft.Todos done"_s);
}

void TestPackageRecord::doneLineNamesThePackage()
{
    QFETCH(const QString, line);
    QFETCH(const QString, name);
    TestMachine machine;
    recordPackageLine(line, false);
    QCOMPARE(machine.names(packageRecordsKey), QStringList{name});
    QCOMPARE(machine.read(packageRecordsKey, name), QVariant(1));
    recordPackageLine(line, true);
    QCOMPARE(machine.names(packageRecordsKey), QStringList());
}

void TestPackageRecord::otherLinesLeaveTheRecord_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("error") << u"   Uninstall   package: Microsoft.Todos: error"_s;
    QTest::newRow("the end") << u"   Uninstall   packages finished  "_s;
    QTest::newRow("no package") << u"   Uninstall   Microsoft.Todos: done"_s;
    QTest::newRow("blanks after it") << u"   Uninstall   package: Microsoft.Todos: done  "_s;
    QTest::newRow("another case") << u"   Uninstall   Package: Microsoft.Todos: done"_s;
    QTest::newRow("done in another case") << u"   Uninstall   package: Microsoft.Todos: Done"_s;
    QTest::newRow("no blank") << u"   Uninstall   package:Microsoft.Todos: done"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("listing") << u"WorkThread::PackageGetList"_s;
    QTest::newRow("no name") << u"   Uninstall   package: : done"_s;
}

void TestPackageRecord::otherLinesLeaveTheRecord()
{
    QFETCH(const QString, line);
    TestMachine machine;
    machine.write(packageRecordsKey, u"Before"_s, 1);
    for (const bool install : {false, true}) {
        recordPackageLine(line, install);
        QCOMPARE(machine.names(packageRecordsKey), QStringList{u"Before"_s});
    }
}

void TestPackageRecord::removalIsRecordedOnce()
{
    TestMachine machine;
    machine.write(packageRecordsKey, u"A"_s, 0);
    recordPackageLine(u"package: A: done"_s, false);
    recordPackageLine(u"package: A: done"_s, false);
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"A"_s});
    QCOMPARE(machine.read(packageRecordsKey, u"A"_s), QVariant(1));
}

void TestPackageRecord::installationTakesTheRecordOfThatPackageAlone()
{
    TestMachine machine;
    for (const QString &name : {u"A"_s, u"AB"_s, u"B"_s})
        machine.write(packageRecordsKey, name, 1);
    recordPackageLine(u"package: A: done"_s, true);
    recordPackageLine(u"package: Missing: done"_s, true);
    recordPackageLine(u"package: B: error"_s, true);
    QCOMPARE(machine.names(packageRecordsKey), (QStringList{u"AB"_s, u"B"_s}));
}

void TestPackageRecord::lineOfTheOldXboxAppIsRecordedAsItReads()
{
    TestMachine machine;
    const QString line = u"   Uninstall   package: Microsoft.XboxApp (Old Xbox App, no longer supported!) : done"_s;
    recordPackageLine(line, false);
    QCOMPARE(machine.names(packageRecordsKey),
             QStringList{u"Microsoft.XboxApp (Old Xbox App, no longer supported!) "_s});
}

void TestPackageRecord::installedOldXboxAppLosesItsRecords_data()
{
    QTest::addColumn<bool>("translated");
    QTest::newRow("in English") << false;
    QTest::newRow("in another language") << true;
}

void TestPackageRecord::installedOldXboxAppLosesItsRecords()
{
    QFETCH(const bool, translated);
    std::optional<MarkingTranslator> language;
    if (translated)
        language.emplace("WorkThread");
    TestMachine machine;
    const QString recorded = u"Microsoft.XboxApp (Old Xbox App, no longer supported!) "_s;
    // The page's own, the Automatizer's, and another package's.
    for (const QString &name : {recorded, u"Microsoft.XboxApp"_s, u"Microsoft.XboxApp2"_s})
        machine.write(packageRecordsKey, name, 1);
    const QString line =
        translated ? u"   «Install»   package: Microsoft.XboxApp («Old Xbox App, no longer supported!») : «done»"_s
                   : u"   Install   package: "_s + recorded + u": done"_s;
    recordPackageLine(line, true);
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"Microsoft.XboxApp2"_s});
    // No record of it is made in another language.
    if (translated)
        recordPackageLine(line, false);
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"Microsoft.XboxApp2"_s});
}

void TestPackageRecord::remarkIsNoPartOfTheName()
{
    QCOMPARE(recordedPackage(u"Microsoft.XboxApp (Old Xbox App, no longer supported!) "_s), u"Microsoft.XboxApp"_s);
    for (const QString &name : {u"Microsoft.XboxApp"_s, u"Microsoft.XboxApp (calc.exe) "_s, u"Microsoft.Todos"_s})
        QCOMPARE(recordedPackage(name), name);
    const MarkingTranslator language("WorkThread");
    // What was recorded before the language changed is known.
    QCOMPARE(recordedPackage(u"Microsoft.XboxApp (Old Xbox App, no longer supported!) "_s), u"Microsoft.XboxApp"_s);
    QCOMPARE(recordedPackage(u"Microsoft.XboxApp («Old Xbox App, no longer supported!») "_s), u"Microsoft.XboxApp"_s);
}

KESTRUNE_SUITE(TestPackageRecord)
#include "tst_packagerecord.moc"
