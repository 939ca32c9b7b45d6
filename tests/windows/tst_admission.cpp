// SPDX-License-Identifier: GPL-3.0-or-later
// Which programs an elevated process starts.

#include "platform/windows/windowsplatform.h"
#include "support/suite.h"
#include "work/command.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestAdmission : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { setPlatform(nullptr); }

    void systemsOwnAreStarted_data();
    void systemsOwnAreStarted();
    void unsignedOnesAreRefused_data();
    void unsignedOnesAreRefused();
    void refusedCommandEndsWithTheSystemsNumber();

private:
    QString exitWith() const { return QCoreApplication::applicationDirPath() + u"/exitwith.exe"_s; }
};

void TestAdmission::initTestCase()
{
    setPlatform(std::make_unique<WindowsPlatform>());
    QVERIFY(platform().isElevated());
}

void TestAdmission::systemsOwnAreStarted_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("name") << u"cmd"_s;
    QTest::newRow("PowerShell") << u"powershell"_s;
    QTest::newRow("path") << u"C:\\Windows\\System32\\cmd.exe"_s;
    QTest::newRow("slashes") << u"C:/Windows/System32/cmd.exe"_s;
    QTest::newRow("way round") << u"C:\\Windows\\System32\\drivers\\..\\cmd.exe"_s;
    QTest::newRow("quotes") << u"\"C:\\Windows\\System32\\cmd.exe\""_s;
}

void TestAdmission::systemsOwnAreStarted()
{
    QFETCH(const QString, program);
    const std::optional<AdmittedProgram> admitted = platform().admitProgram(program, {});
    QVERIFY(admitted);
    const QString folder = admitted->file.section(u'\\', 0, -2).toLower();
    QVERIFY2(folder == u"c:\\windows\\system32" || folder == u"c:\\windows\\system32\\windowspowershell\\v1.0",
             qPrintable(admitted->file));
    QCOMPARE(admitted->hold, nullptr);
}

void TestAdmission::unsignedOnesAreRefused_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::newRow("anywhere") << QString() << u"OneDriveSetup.exe"_s;
    // These belong to the system, and every user can write there.
    QTest::newRow("the folder for temporary files") << u"C:\\Windows\\Temp"_s << u"OneDriveSetup.exe"_s;
    QTest::newRow("a folder of the system's") << u"C:\\Windows\\System32\\spool\\drivers\\color"_s << u"x.exe"_s;
    QTest::newRow("a folder that begins like it") << u"C:\\Windows\\System32x"_s << u"x.exe"_s;
    QTest::newRow("Windows itself") << u"C:\\Windows"_s << u"planted.exe"_s;
}

void TestAdmission::unsignedOnesAreRefused()
{
    QFETCH(QString, folder);
    QFETCH(const QString, name);
    const QTemporaryDir temporary;
    if (folder.isEmpty())
        folder = QDir::toNativeSeparators(temporary.path());
    QVERIFY(QDir().mkpath(folder));
    const QString program = folder + u'\\' + name;
    QVERIFY(QFile::copy(exitWith(), program));
    const bool found = !platform().programFile(program).isEmpty();
    const bool admitted = platform().admitProgram(program, {}).has_value();
    const bool roundabout =
        platform().admitProgram(u"C:\\Windows\\System32\\..\\.."_s + program.sliced(2), {}).has_value();
    QVERIFY(QFile::remove(program));
    QVERIFY(found);
    QVERIFY(!admitted && !roundabout);
}

void TestAdmission::refusedCommandEndsWithTheSystemsNumber()
{
    const QTemporaryDir folder;
    const QString program = folder.filePath(u"setup.exe"_s);
    QVERIFY(QFile::copy(exitWith(), program));
    Command command;
    command.start(u'"' + program + u'"', {u"0"_s});
    QVERIFY(!command.failedToStart());
    command.waitForFinished();
    QCOMPARE(command.exitCode(), 5);
    QCOMPARE(command.errorString(), u"Unknown error"_s);
    command.close();
    QCOMPARE(command.exitCode(), 5);
    // The next one is another.
    command.start(u"cmd"_s, {u"/c"_s, u"exit"_s, u"7"_s});
    command.waitForFinished();
    QCOMPARE(command.exitCode(), 7);
}

KESTRUNE_SUITE(TestAdmission)
#include "tst_admission.moc"
