// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the one-time backup of start modes.

#include "fakeplatform.h"
#include "joblines.h"
#include "machine/source/regfile.h"
#include "support/files.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/services/services.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <filesystem>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QByteArray header = "Windows Registry Editor Version 5.00\r\r\n\r\r\n";

QByteArray entry(const QByteArray &name, const QByteArray &start)
{
    return "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\" + name + "]\r\r\n\"Start\"=dword:0000000"
           + start + "\r\r\n";
}

QByteArray backup()
{
    QFile file(startModeBackupFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A registry that can't be opened. */
class ThrowingRegistry : public FakePlatform
{
public:
    std::unique_ptr<RegistryKey> openKey(const QString &) const override { throw std::runtime_error("an accident"); }
};

/** A file operation that reports by exception. */
class ThrowingFile : public FakePlatform
{
public:
    std::unique_ptr<RegistryKey> openKey(const QString &) const override { throw QFileDevice::WriteError; }
};

} // namespace

class TestStartModeBackup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itLiesInTheProgramFolder();
    void bytesAreThoseOfARegistryScript();
    void aMachineWithoutServicesGivesTheHeaderAlone();
    void onlySharedProcessServicesAreWritten_data();
    void onlySharedProcessServicesAreWritten();
    void excludedServicesAreNeverInTheFile_data();
    void excludedServicesAreNeverInTheFile();
    void anExclusionIsMeantInItsExactCase();
    void aTypeThatIsTextCountsAsItReads();
    void aServiceWithoutTypeIsLeftOut();
    void startValueIsWrittenAsItReads_data();
    void startValueIsWrittenAsItReads();
    void namesAreWrittenAsTheyAre_data();
    void namesAreWrittenAsTheyAre();
    void aFileThatIsThereStaysAsItIs();
    void aFileThatWasCutOffIsRenamed_data();
    void aFileThatWasCutOffIsRenamed();
    void renamedFilesStay();
    void aCompleteFileOfAnotherFormStays_data();
    void aCompleteFileOfAnotherFormStays();
    void aFileThatIsBeingReadIsNeverHalfThere();
    void aSecondListingLeavesBytesAndTimeUntouched();
    void aFileThatWasDeletedIsWrittenAnewWithTheStateOfThen();
    void anUnwritableProgramFolderGivesNoFileAndNoMessage();
    void theListingGoesOnWithoutBackup();
    void theListingWritesItEvenWhereServicesCantBeAsked();
    void exceptionsAreCaught();
    void theWindowsRegistryEditorWouldReadItBack();
    void itFollowsNoLink();
};

void TestStartModeBackup::itLiesInTheProgramFolder()
{
    const TestMachine machine;
    const QString folder = machine.platform().programFolder();
    QVERIFY(!QFile::exists(folder + u"/backup_svc"_s));
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"backup_svc"_s});
    QCOMPARE(QDir(folder + u"/backup_svc"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{u"StartMode.reg"_s});
    QCOMPARE(QFileInfo(startModeBackupFile()), QFileInfo(folder + u"/backup_svc/StartMode.reg"_s));
}

void TestStartModeBackup::bytesAreThoseOfARegistryScript()
{
    TestMachine machine;
    machine.add({.name = u"stisvc"_s, .type = 32, .start = 3});
    machine.add({.name = u"Appinfo"_s, .type = 32, .start = 2});
    machine.add({.name = u"Spooler"_s, .type = 272, .start = 2});
    machine.add({.name = u"WinRM"_s, .type = 32, .start = 4});
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header + entry("Appinfo", "2") + entry("WinRM", "4") + entry("stisvc", "3"));
}

void TestStartModeBackup::aMachineWithoutServicesGivesTheHeaderAlone()
{
    const TestMachine machine;
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header);
}

void TestStartModeBackup::onlySharedProcessServicesAreWritten_data()
{
    addColumns<int, bool>("type", "written");
    for (const int type : {0, 1, 2, 4, 8, 16, 33, 48, 80, 96, 208, 224, 256, 272, 288, -32, 320})
        QTest::addRow("%d", type) << type << false;
    QTest::addRow("%d", 32) << 32 << true;
}

void TestStartModeBackup::onlySharedProcessServicesAreWritten()
{
    QFETCH(const int, type);
    QFETCH(const bool, written);
    TestMachine machine;
    machine.add({.name = u"Test"_s, .type = type, .start = 2});
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), written ? header + entry("Test", "2") : header);
}

void TestStartModeBackup::excludedServicesAreNeverInTheFile_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"DPS", "DcomLaunch", "RpcSs", "SamSs", "TrkWks", "WdiServiceHost", "WdiSystemHost", "gpsvc", "wscsvc"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestStartModeBackup::excludedServicesAreNeverInTheFile()
{
    QFETCH(const QString, name);
    TestMachine machine;
    machine.add({.name = name, .type = 32, .start = 2});
    machine.add({.name = u"Other"_s, .type = 32, .start = 3});
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header + entry("Other", "3"));
}

void TestStartModeBackup::anExclusionIsMeantInItsExactCase()
{
    TestMachine machine;
    machine.add({.name = u"dcomlaunch"_s, .type = 32, .start = 2});
    machine.add({.name = u"GPSVC"_s, .type = 32, .start = 2});
    machine.add({.name = u"TrkWks2"_s, .type = 32, .start = 2});
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header + entry("GPSVC", "2") + entry("TrkWks2", "2") + entry("dcomlaunch", "2"));
}

void TestStartModeBackup::aTypeThatIsTextCountsAsItReads()
{
    TestMachine machine;
    machine.write(servicesKey + u"\\Text"_s, u"Type"_s, u"32"_s);
    machine.write(servicesKey + u"\\Text"_s, u"Start"_s, 3);
    machine.write(servicesKey + u"\\Hexadecimal"_s, u"Type"_s, u"0x20"_s);
    machine.write(servicesKey + u"\\Hexadecimal"_s, u"Start"_s, 3);
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header + entry("Text", "3"));
}

void TestStartModeBackup::aServiceWithoutTypeIsLeftOut()
{
    TestMachine machine;
    machine.write(servicesKey + u"\\Odd"_s, u"Start"_s, 3);
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header);
}

void TestStartModeBackup::startValueIsWrittenAsItReads_data()
{
    addColumns<QVariant, QByteArray>("start", "text");
    for (int start = 0; start <= 4; ++start)
        QTest::addRow("%d", start) << QVariant(start) << QByteArray::number(start);
    QTest::newRow("none") << QVariant() << QByteArray();
    QTest::newRow("two digits") << QVariant(12) << "12"_ba;
    QTest::newRow("text") << QVariant(u"auto"_s) << "auto"_ba;
}

void TestStartModeBackup::startValueIsWrittenAsItReads()
{
    QFETCH(const QVariant, start);
    QFETCH(const QByteArray, text);
    TestMachine machine;
    machine.write(servicesKey + u"\\Test"_s, u"Type"_s, 32);
    if (start.isValid())
        machine.write(servicesKey + u"\\Test"_s, u"Start"_s, start);
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header + entry("Test", text));
}

void TestStartModeBackup::namesAreWrittenAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << u"My own service"_s;
    QTest::newRow("quotes") << u"My \"own\" service"_s;
    QTest::newRow("colon") << u"Vendor: Updater"_s;
    QTest::newRow("brackets") << u"Updater [x64]"_s;
    QTest::newRow("other letters") << u"Überwachung 服务"_s;
}

void TestStartModeBackup::namesAreWrittenAsTheyAre()
{
    QFETCH(const QString, name);
    TestMachine machine;
    machine.add({.name = name, .type = 32, .start = 2});
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header + entry(name.toUtf8(), "2"));
}

void TestStartModeBackup::aFileThatIsThereStaysAsItIs()
{
    TestMachine machine;
    machine.add({.name = u"Test"_s});
    const QByteArray earlier = header + entry("Earlier", "2");
    writeFile(startModeBackupFile(), earlier);
    QCOMPARE(WriteStartModeBackup(), -1);
    QCOMPARE(backup(), earlier);
}

void TestStartModeBackup::aFileThatWasCutOffIsRenamed_data()
{
    QTest::addColumn<QByteArray>("rest");
    const QByteArray whole = header + entry("Test", "2");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no head") << entry("Test", "2");
    QTest::newRow("in the head") << header.first(10);
    QTest::newRow("in a line") << whole.chopped(5);
    QTest::newRow("before the last line end") << whole.chopped(3);
    QTest::newRow("something else") << "from an earlier program"_ba;
}

void TestStartModeBackup::aFileThatWasCutOffIsRenamed()
{
    QFETCH(const QByteArray, rest);
    TestMachine machine;
    machine.add({.name = u"Test"_s, .type = 32, .start = 3});
    writeFile(startModeBackupFile(), rest);
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header + entry("Test", "3"));
    const QString folder = QFileInfo(startModeBackupFile()).path();
    QCOMPARE(readFile(folder + u"/StartMode-cut.reg"_s), rest);
    QCOMPARE(QDir(folder).entryList(QDir::Files), (QStringList{u"StartMode-cut.reg"_s, u"StartMode.reg"_s}));
    QCOMPARE(WriteStartModeBackup(), -1);
}

void TestStartModeBackup::renamedFilesStay()
{
    const TestMachine machine;
    const QString folder = QFileInfo(startModeBackupFile()).path();
    writeFile(folder + u"/StartMode-cut.reg"_s, "first");
    writeFile(folder + u"/StartMode-cut2.reg"_s, "second");
    writeFile(startModeBackupFile(), "third");
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(readFile(folder + u"/StartMode-cut.reg"_s), "first"_ba);
    QCOMPARE(readFile(folder + u"/StartMode-cut2.reg"_s), "second"_ba);
    QCOMPARE(readFile(folder + u"/StartMode-cut3.reg"_s), "third"_ba);
}

void TestStartModeBackup::aCompleteFileOfAnotherFormStays_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QString script = u"Windows Registry Editor Version 5.00\r\n\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\A]\r\n"_s;
    QTest::newRow("line ends of the registry editor") << script.toUtf8();
    QTest::newRow("16 bits") << QByteArray("\xff\xfe") + registryText(script).chopped(2);
    QTest::newRow("the older form") << "REGEDIT4\r\n\r\n"_ba;
}

void TestStartModeBackup::aCompleteFileOfAnotherFormStays()
{
    QFETCH(const QByteArray, bytes);
    const TestMachine machine;
    writeFile(startModeBackupFile(), bytes);
    QCOMPARE(WriteStartModeBackup(), -1);
    QCOMPARE(backup(), bytes);
    QCOMPARE(QDir(QFileInfo(startModeBackupFile()).path()).entryList(QDir::Files), QStringList{u"StartMode.reg"_s});
}

void TestStartModeBackup::aFileThatIsBeingReadIsNeverHalfThere()
{
    /** A registry that looks, at each opening, for a backup under its name. */
    class LookingPlatform : public FakePlatform
    {
    public:
        std::unique_ptr<RegistryKey> openKey(const QString &path) const override
        {
            wasThere = wasThere || QFile::exists(startModeBackupFile());
            return FakePlatform::openKey(path);
        }
        mutable bool wasThere = false;
    };
    const PlatformInForce<LookingPlatform> looking;
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header);
    QVERIFY(!looking->wasThere);
}

void TestStartModeBackup::aSecondListingLeavesBytesAndTimeUntouched()
{
    TestMachine machine;
    machine.add({.name = u"Test"_s, .type = 32, .start = 2});
    WorkThread worker;
    worker.SvcMakeList();
    const QByteArray bytes = backup();
    QCOMPARE(bytes, header + entry("Test", "2"));
    const QDateTime longAgo(QDate(2020, 1, 2), QTime(3, 4, 5));
    QFile file(startModeBackupFile());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    file.close();

    machine.add({.name = u"Test"_s, .type = 32, .start = 4});
    worker.SvcMakeList();
    QCOMPARE(worker.services.at(0).start, u"4"_s);
    QCOMPARE(backup(), bytes);
    QCOMPARE(QFileInfo(startModeBackupFile()).lastModified(), longAgo);
}

void TestStartModeBackup::aFileThatWasDeletedIsWrittenAnewWithTheStateOfThen()
{
    TestMachine machine;
    machine.add({.name = u"Test"_s, .type = 32, .start = 2});
    QCOMPARE(WriteStartModeBackup(), 0);
    machine.add({.name = u"Test"_s, .type = 32, .start = 4});
    QVERIFY(QFile::remove(startModeBackupFile()));
    QCOMPARE(WriteStartModeBackup(), 0);
    QCOMPARE(backup(), header + entry("Test", "4"));
}

void TestStartModeBackup::anUnwritableProgramFolderGivesNoFileAndNoMessage()
{
    // The administrator may write everywhere: a plain file where the folder must be is what nobody can write into.
    LoggingMachine machine;
    machine.add({.name = u"Test"_s});
    QFile inTheWay(machine.platform().programFolder() + u"/backup_svc"_s);
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    QCOMPARE(WriteStartModeBackup(), -1);
    QVERIFY(!QFile::exists(startModeBackupFile()));
    QCOMPARE(inTheWay.size(), 0);
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestStartModeBackup::theListingGoesOnWithoutBackup()
{
    LoggingMachine machine;
    machine.add({.name = u"Test"_s, .running = true});
    QFile inTheWay(machine.platform().programFolder() + u"/backup_svc"_s);
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), QStringList{u"page: WorkThread::SvcMakeList"_s});
    QCOMPARE(worker.services.size(), 1);
    QVERIFY(worker.services.at(0).running);
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestStartModeBackup::theListingWritesItEvenWhereServicesCantBeAsked()
{
    TestMachine machine;
    machine.add({.name = u"Test"_s, .type = 32, .start = 2});
    machine.machine().setFault(u"sc"_s, {.missing = true});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(backup(), header + entry("Test", "2"));
}

void TestStartModeBackup::exceptionsAreCaught()
{
    {
        const PlatformInForce<ThrowingRegistry> platform;
        QCOMPARE(WriteStartModeBackup(), 1);
    }
    {
        const PlatformInForce<ThrowingFile> platform;
        QCOMPARE(WriteStartModeBackup(), 2);
    }
}

void TestStartModeBackup::theWindowsRegistryEditorWouldReadItBack()
{
    TestMachine machine;
    machine.add({.name = u"Appinfo"_s, .type = 32, .start = 2});
    machine.add({.name = u"My own service"_s, .type = 32, .start = 4});
    machine.write(servicesKey + u"\\NoStart"_s, u"Type"_s, 32);
    QCOMPARE(WriteStartModeBackup(), 0);

    QMap<QString, quint32> starts;
    try {
        const QByteArray bytes = backup();
        for (const RegistryEdit &edit : parseRegistryScript(bytes, u"StartMode.reg"_s)) {
            if (edit.kind != RegistryEdit::Kind::SetValue)
                continue;
            QCOMPARE(edit.value.name, u"Start"_s);
            QCOMPARE(edit.value.type, RegistryType::DWord);
            QCOMPARE(edit.value.data.size(), 4);
            starts.insert(edit.key, quint32(edit.value.data.at(0)));
        }
    } catch (const MachineError &error) {
        QFAIL(qPrintable(error.message));
    }
    const QMap<QString, quint32> expected{
        {servicesKey + u"\\Appinfo"_s, 2}, {servicesKey + u"\\My own service"_s, 4}, {servicesKey + u"\\NoStart"_s, 0}};
    QCOMPARE(starts, expected);

    // Carried out, it brings the start modes of before back.
    machine.add({.name = u"Appinfo"_s, .type = 32, .start = 4});
    applyRegistryScript(machine.machine().database(), machine.machine().registry(),
                        parseRegistryScript(backup(), u"StartMode.reg"_s));
    QCOMPARE(machine.read(servicesKey + u"\\Appinfo"_s, u"Start"_s), QVariant(2));
}

void TestStartModeBackup::itFollowsNoLink()
{
    TestMachine machine;
    machine.add({.name = u"A"_s, .type = 32});
    const QString some = machine.addFile(u"C:\\Windows\\some.txt"_s);
    const QString elsewhere = QFileInfo(some).path();
    const std::filesystem::path folder = QFileInfo(startModeBackupFile()).path().toStdU16String();
    std::error_code error;
    std::filesystem::create_directory_symlink(elsewhere.toStdU16String(), folder, error);
    if (error)
        QSKIP("this system makes no such links");
    QCOMPARE(WriteStartModeBackup(), -1);
    QVERIFY(!QFileInfo::exists(elsewhere + u"/StartMode.reg"_s));
    std::filesystem::remove(folder);
    QVERIFY(QDir().mkpath(QFileInfo(startModeBackupFile()).path()));
    std::filesystem::create_symlink((elsewhere + u"/absent"_s).toStdU16String(),
                                    startModeBackupFile().toStdU16String());
    QCOMPARE(WriteStartModeBackup(), -1);
    QVERIFY(!QFileInfo::exists(elsewhere + u"/absent"_s));
}

KESTRUNE_SUITE(TestStartModeBackup)
#include "tst_startmodebackup.moc"
