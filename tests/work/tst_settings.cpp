// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the program's settings and records.

#include "support/suite.h"
#include "support/testmachine.h"
#include "work/settings.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRootLiesWhereItAlwaysLay();
    void aValueIsOneInEverySpelling_data();
    void aValueIsOneInEverySpelling();
    void aSettingKeepsTheSpellingItWasFirstWrittenWith();
    void theRootIsOneInEverySpelling();
    void aMissingSettingGivesItsDefault();
    void numbersAreWrittenAsDwordsAndTextsAsTexts();
    void eachGroupOfRecordsIsAKeyOfItsOwn_data();
    void eachGroupOfRecordsIsAKeyOfItsOwn();
    void recordedNamesAreSortedAndAreTheGroupsOwn();
    void theUnnamedValueIsNoRecord();
    void valuesOfSubkeysAreNoRecords();
    void anEmptyGroupHasNoNames();
    void aTaskPathIsOneRecord();
    void removingOneRecordKeepsTheOthers();
    void recordsAreKeptByAProcessThatIsNotElevated();
};

void TestSettings::theRootLiesWhereItAlwaysLay()
{
    const TestMachine machine;
    openSettings()->setValue(u"lang"_s, u"fr"_s);
    QCOMPARE(machine.read(u"HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale"_s, u"lang"_s), QVariant(u"fr"_s));
}

void TestSettings::aValueIsOneInEverySpelling_data()
{
    addColumns<QString, QString>("written", "read");
    QTest::newRow("written by the options, read at the start") << u"StartAsAdmin"_s << u"startAsAdmin"_s;
    QTest::newRow("the other way round") << u"startAsAdmin"_s << u"StartAsAdmin"_s;
}

void TestSettings::aValueIsOneInEverySpelling()
{
    QFETCH(const QString, written);
    QFETCH(const QString, read);
    const TestMachine machine;
    openSettings()->setValue(written, 1);
    QCOMPARE(openSettings()->value(read, 0), QVariant(1));
    openSettings()->setValue(read, 0);
    QCOMPARE(openSettings()->value(written, 1), QVariant(0));
    QCOMPARE(machine.names(settingsKey), QStringList{written});
}

void TestSettings::aSettingKeepsTheSpellingItWasFirstWrittenWith()
{
    const TestMachine machine;
    openRecords(u"SVC"_s)->setValue(u"DiagTrack"_s, 1);
    openRecords(u"SVC"_s)->setValue(u"DIAGTRACK"_s, 1);
    QCOMPARE(recordedNames(u"SVC"_s), QStringList{u"DiagTrack"_s});
}

void TestSettings::theRootIsOneInEverySpelling()
{
    const TestMachine machine;
    openSettings()->setValue(u"optimized"_s, 1);
    const auto other = platform().openKey(u"HKEY_CURRENT_USER\\SOFTWARE\\Kestrune\\Ondrevale"_s);
    QCOMPARE(other->value(u"optimized"_s, 0), QVariant(1));
}

void TestSettings::aMissingSettingGivesItsDefault()
{
    const TestMachine machine;
    QCOMPARE(openSettings()->value(u"Keep_7"_s, 2), QVariant(2));
    openSettings()->setValue(u"Keep_7"_s, 0);
    QCOMPARE(openSettings()->value(u"Keep_7"_s, 2), QVariant(0));
    openSettings()->remove(u"keep_7"_s);
    QCOMPARE(openSettings()->value(u"Keep_7"_s, 2), QVariant(2));
}

void TestSettings::numbersAreWrittenAsDwordsAndTextsAsTexts()
{
    const TestMachine machine;
    openSettings()->setValue(u"Monitor"_s, 1);
    openSettings()->setValue(u"lang"_s, u"auto"_s);
    RegistryStore &registry = machine.machine().registry();
    const auto key = registry.find(settingsKey);
    QVERIFY(key);
    QCOMPARE(registry.value(*key, u"Monitor"_s)->type, RegistryType::DWord);
    QCOMPARE(registry.value(*key, u"lang"_s)->type, RegistryType::String);
}

void TestSettings::eachGroupOfRecordsIsAKeyOfItsOwn_data()
{
    QTest::addColumn<QString>("group");
    for (const char *group : {"SVC", "Task", "Autorun", "Packages", "Tweak"})
        QTest::newRow(group) << QString::fromLatin1(group);
}

void TestSettings::eachGroupOfRecordsIsAKeyOfItsOwn()
{
    QFETCH(const QString, group);
    const TestMachine machine;
    openRecords(group)->setValue(u"a record"_s, 1);
    QCOMPARE(machine.read(settingsKey + u'\\' + group, u"a record"_s), QVariant(1));
    QCOMPARE(machine.names(settingsKey), QStringList());
    for (const QString &other : {u"SVC"_s, u"Task"_s, u"Autorun"_s, u"Packages"_s, u"Tweak"_s})
        QCOMPARE(recordedNames(other), other == group ? QStringList{u"a record"_s} : QStringList());
}

void TestSettings::recordedNamesAreSortedAndAreTheGroupsOwn()
{
    const TestMachine machine;
    for (const QString &name : {u"beta"_s, u"Zeta"_s, u"alpha"_s})
        openRecords(u"SVC"_s)->setValue(name, 1);
    openSettings()->setValue(u"lang"_s, u"en"_s);
    QCOMPARE(recordedNames(u"SVC"_s), (QStringList{u"Zeta"_s, u"alpha"_s, u"beta"_s}));
}

void TestSettings::theUnnamedValueIsNoRecord()
{
    TestMachine machine;
    openRecords(u"SVC"_s)->setValue(u"DiagTrack"_s, 1);
    machine.write(settingsKey + u"\\SVC"_s, QString(), u"unnamed"_s);
    QCOMPARE(recordedNames(u"SVC"_s), QStringList{u"DiagTrack"_s});
}

void TestSettings::valuesOfSubkeysAreNoRecords()
{
    TestMachine machine;
    openRecords(u"SVC"_s)->setValue(u"DiagTrack"_s, 1);
    machine.write(settingsKey + u"\\SVC\\Other"_s, u"Spooler"_s, 1);
    QCOMPARE(recordedNames(u"SVC"_s), QStringList{u"DiagTrack"_s});
}

void TestSettings::anEmptyGroupHasNoNames()
{
    const TestMachine machine;
    QCOMPARE(recordedNames(u"SVC"_s), QStringList());
}

void TestSettings::aTaskPathIsOneRecord()
{
    const TestMachine machine;
    const QString path = u"Microsoft\\Windows\\Defrag\\ScheduledDefrag"_s;
    openRecords(u"Task"_s)->setValue(path, 1);
    QCOMPARE(recordedNames(u"Task"_s), QStringList{path});
    QCOMPARE(openRecords(u"Task"_s)->childGroups(), QStringList());
}

void TestSettings::removingOneRecordKeepsTheOthers()
{
    const TestMachine machine;
    openRecords(u"Task"_s)->setValue(u"Backup of a task"_s, 1);
    openRecords(u"Task"_s)->setValue(u"Vendor\\Task"_s, 1);
    openRecords(u"Task"_s)->remove(u"Vendor\\Task"_s);
    openRecords(u"Task"_s)->remove(u"absent"_s);
    QCOMPARE(recordedNames(u"Task"_s), QStringList{u"Backup of a task"_s});
}

void TestSettings::recordsAreKeptByAProcessThatIsNotElevated()
{
    const TestMachine machine(TestMachine::Windows::Eleven, {.elevated = false});
    openRecords(u"SVC"_s)->setValue(u"DiagTrack"_s, 1);
    QCOMPARE(recordedNames(u"SVC"_s), QStringList{u"DiagTrack"_s});
}

KESTRUNE_SUITE(TestSettings)
#include "tst_settings.moc"
