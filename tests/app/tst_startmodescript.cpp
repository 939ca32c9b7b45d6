// SPDX-License-Identifier: GPL-3.0-or-later
// Which registry scripts an elevated program hands to the registry editor.

#include "app/startmodescript.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/services/services.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray header = "Windows Registry Editor Version 5.00\r\r\n\r\r\n";
const QByteArray services = "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\";

} // namespace

class TestStartModeScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void backupOfAMachineIsOne();
    void scripts_data();
    void scripts();
};

void TestStartModeScript::backupOfAMachineIsOne()
{
    const TestMachine machine(u"windows11"_s);
    QCOMPARE(WriteStartModeBackup(), 0);
    QFile backup(startModeBackupFile());
    QVERIFY(backup.open(QIODevice::ReadOnly));
    const QByteArray script = backup.readAll();
    QVERIFY(script.count("\"Start\"") > 50);
    QVERIFY(setsStartModesOnly(script));
}

void TestStartModeScript::scripts_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("expected");
    const QByteArray service = services + "DiagTrack]\r\r\n\"Start\"=dword:00000002\r\r\n";
    QTest::newRow("one service") << header + service << true;
    QTest::newRow("two services") << header + service + services + "A b.c-1_{2}]\r\r\n\"Start\"=dword:00000004\r\r\n"
                                  << true;
    QTest::newRow("no start mode") << header + services + "X]\r\r\n\"Start\"=dword:0000000\r\r\n" << true;
    QTest::newRow("no digits") << header + services + "X]\r\r\n\"Start\"=dword:\r\r\n" << true;
    QTest::newRow("other line ends") << QByteArray(header + service).replace("\r\r\n", "\n") << true;
    QTest::newRow("without an end") << QByteArray(header + service).trimmed() << true;
    QTest::newRow("no service") << header << true;

    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("no header") << service << false;
    QTest::newRow("an empty line first") << "\r\n" + header + service << false;
    QTest::newRow("another header") << "REGEDIT4\r\n" + service << false;
    QTest::newRow("more after the header") << "Windows Registry Editor Version 5.00;\r\n" + service << false;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe") + header + service << false;
    QTest::newRow("a start mode of nothing") << header + "\"Start\"=dword:00000002\r\r\n" << false;
    QTest::newRow("another value") << header + service + "\"ImagePath\"=\"C:\\\\evil.exe\"\r\r\n" << false;
    QTest::newRow("another type") << header + services + "X]\r\r\n\"Start\"=\"2\"\r\r\n" << false;
    QTest::newRow("the unnamed value") << header + services + "X]\r\r\n@=dword:00000002\r\r\n" << false;
    QTest::newRow("a removed value") << header + services + "X]\r\r\n\"Start\"=-\r\r\n" << false;
    QTest::newRow("too many digits") << header + services + "X]\r\r\n\"Start\"=dword:000000002\r\r\n" << false;
    QTest::newRow("no number") << header + services + "X]\r\r\n\"Start\"=dword:0000000g\r\r\n" << false;
    QTest::newRow("a line that goes on") << header + services + "X]\r\r\n\"Start\"=dword:00\\\r\r\n" << false;
    QTest::newRow("a comment") << header + "; hello\r\r\n" + service << false;
    QTest::newRow("blanks before it") << header + " " + service << false;
    QTest::newRow("a key of a service") << header + services + "X\\Parameters]\r\r\n\"Start\"=dword:00000002\r\r\n"
                                        << false;
    QTest::newRow("the key of all services") << header + services.chopped(1) + "]\r\r\n\"Start\"=dword:00000002\r\r\n"
                                             << false;
    QTest::newRow("no name") << header + services + "]\r\r\n\"Start\"=dword:00000002\r\r\n" << false;
    QTest::newRow("a removed key") << header + QByteArray(service).replace("[HKEY", "[-HKEY") << false;
    QTest::newRow("another key") << header + "[HKEY_LOCAL_MACHINE\\SOFTWARE\\X]\r\r\n\"Start\"=dword:00000002\r\r\n"
                                 << false;
    QTest::newRow("another key further down") << header + service + "[HKEY_CURRENT_USER\\Software\\X]\r\r\n" << false;
    QTest::newRow("a section in a section") << header + services + "X][HKEY_CURRENT_USER\\X]\r\r\n" << false;
    // The registry editor ends a line there, and so does the look at it.
    QTest::newRow("a carriage return in a name") << header + services + "X\r[HKEY_CURRENT_USER\\Software\\X]\r\r\n"
                                                 << false;
    QTest::newRow("a zero in a name") << header + services + QByteArray("X\0Y]\r\r\n", 6) << false;
    QTest::newRow("a zero at the end") << header + service + QByteArray("\0[HKEY_CURRENT_USER\\X]\r\r\n", 24) << false;
    // What it reads these as depends on the PC's code page.
    QTest::newRow("a letter beyond ASCII") << header + services + "\xc3\xa4]\r\r\n\"Start\"=dword:00000002\r\r\n"
                                           << false;
}

void TestStartModeScript::scripts()
{
    QFETCH(const QByteArray, script);
    QFETCH(const bool, expected);
    QCOMPARE(setsStartModesOnly(script), expected);
}

KESTRUNE_SUITE(TestStartModeScript)
#include "tst_startmodescript.moc"
