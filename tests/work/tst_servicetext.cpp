// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of registry strings that stand for a string in a DLL.

#include "fakeplatform.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/workthread.h"

#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QString none = u"no description"_s;

/** A machine with a few DLLs. */
class MachineWithDlls : public TestMachine
{
public:
    MachineWithDlls()
    {
        addDll(u"C:\\Windows\\System32\\a.dll"_s, {{5, u"five"_s},
                                                   {100, u"Text of a"_s},
                                                   {101, QString(u""_s)},
                                                   {102, u"Überwacht die Geräte 服务"_s},
                                                   {103, u"C:\\Vendor\\RtkBtManServ.exe"_s},
                                                   {104, u"%SystemRoot%, -1 and @x.dll,-5"_s},
                                                   {105, u"error 5"_s}});
        addDll(u"C:\\Windows\\System32\\sub\\b.dll"_s, {{1, u"Text of b"_s}});
        addDll(u"C:\\Windows\\System32\\drivers\\c.sys"_s, {{1, u"Text of c"_s}});
        addDll(u"C:\\Program Files\\Vendor\\v.dll"_s, {{7, u"Text of the vendor"_s}});
        addDll(u"C:\\Windows\\UUS\\amd64\\WaaSMedicSvcImpl.dll"_s, {{100, u"Text of the medic"_s}});
        addFile(u"C:\\Windows\\System32\\nodll.dll"_s, "this is no DLL");
        // What stands on other drives and other computers.
        addDll(u"D:\\Vendor\\d.dll"_s, {{1, u"Text of d"_s}});
        addDll(u"\\\\host\\share\\x"_s, {{1, u"Text of the host"_s}});
        addFile(u"C:\\Windows\\SysWow64\\perfhost.exe"_s);
        addFile(u"C:\\Windows\\SysWow64\\PERFHOST2.EXE"_s);
        logErrors();
    }

private:
    void addDll(const QString &path, const QMap<uint, QString> &strings)
    {
        addFile(path);
        machine().setDllStrings(path, strings);
    }
};

/** DLLs that can't be read without an accident. */
class ThrowingDlls : public FakePlatform
{
public:
    DllString dllString(const QString &, uint) const override { throw std::runtime_error("an accident"); }
};

QString logLine(const QString &path, const QString &id, int error)
{
    return u"GetResourceInDll: HInstance of LoadLibrary is null! "_s + path + u", UID="_s + id + u", ERROR_CODE="_s
           + QString::number(error);
}

} // namespace

class TestServiceText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsExpanded_data();
    void textIsExpanded();
    void aReferenceToAMissingDllIsNotLogged();
    void aReferenceToAFileThatIsNoDllIsLogged();
    void aReferenceToAFolderIsLogged();
    void theVariableAtTheStartIsReplacedWhereverItStandsAndNoOther();
    void aVariableThatIsNotAtTheStartStays();
    void aVariableInTheValueOfAnotherStays();
    void theVariableOfTheEnvironmentCounts();
    void aVariableThatIsNotSetLeavesNothing();

    void stringOfADll_data();
    void stringOfADll();
    void aDllThatCantBeLoadedIsLogged_data();
    void aDllThatCantBeLoadedIsLogged();
    void aStringThatIsNotThereIsNotLogged();
    void theCounterHostThatIsNoDllIsPassedOverQuietly();
    void theCounterHostIsKnownInItsOwnCaseOnly();
    void anExceptionIsLoggedAndGivesNoDescription();
    void nothingIsLoggedUnlessTheLogIsOn();
};

void TestServiceText::textIsExpanded_data()
{
    addColumns<QString, QString>("text", "result");
    const auto row = [](const char *title, const QString &text, const QString &result) {
        QTest::newRow(title) << text << result;
    };
    const QString a = u"Text of a"_s;

    // What is no reference passes through unchanged.
    row("plain text", u"Manages the printers"_s, u"Manages the printers"_s);
    row("empty text", u""_s, u""_s);
    row("at sign at the start", u"@home"_s, u"@home"_s);
    row("dollar, bracket and at sign at the start", u"$(@home)"_s, u"$(@home)"_s);
    row("bracket at the end", u"Updater (vendor)"_s, u"Updater (vendor)"_s);
    row("variable at the start", u"%SystemRoot% is a folder"_s, u"%SystemRoot% is a folder"_s);
    row("name of a DLL", u"Loads x.dll"_s, u"Loads x.dll"_s);
    row("comma and dash apart", u"first, - second"_s, u"first, - second"_s);
    row("other letters", u"Überwacht 服务"_s, u"Überwacht 服务"_s);

    // The marks at the start.
    row("at sign", u"@C:\\Windows\\System32\\a.dll,-100"_s, a);
    row("no at sign", u"C:\\Windows\\System32\\a.dll,-100"_s, a);
    row("dollar, bracket and at sign", u"$(@C:\\Windows\\System32\\a.dll,-100)"_s, a);
    row("bracket at the end alone", u"@C:\\Windows\\System32\\a.dll,-100)"_s, a);
    row("only one bracket at the end is removed", u"@C:\\Windows\\System32\\a.dll,-100))"_s, none);
    row("two at signs", u"@@C:\\Windows\\System32\\a.dll,-100"_s, none);
    row("dollar and bracket without at sign", u"$(C:\\Windows\\System32\\a.dll,-100)"_s, none);

    // Variables at the start.
    row("%SystemRoot%", u"@%SystemRoot%\\System32\\a.dll,-100"_s, a);
    row("%SystemRoot% in lower case", u"@%systemroot%\\system32\\a.dll,-100"_s, a);
    row("%SystemRoot% in upper case", u"@%SYSTEMROOT%\\SYSTEM32\\A.DLL,-100"_s, a);
    row("%windir%", u"@%windir%\\System32\\a.dll,-100"_s, a);
    row("%WinDir%", u"@%WinDir%\\System32\\a.dll,-100"_s, a);
    row("%ProgramFiles%", u"@%ProgramFiles%\\Vendor\\v.dll,-7"_s, u"Text of the vendor"_s);
    row("%programfiles%", u"@%programfiles%\\Vendor\\v.dll,-7"_s, u"Text of the vendor"_s);
    row("variable after dollar, bracket and at sign", u"$(@%SystemRoot%\\System32\\a.dll,-100)"_s, a);
    row("variable without at sign", u"%SystemRoot%\\System32\\a.dll,-100"_s, a);
    row("another variable", u"@%ProgramData%\\a.dll,-100"_s, none);
    row("variable that isn't at the start", u"@C:%SystemRoot%\\System32\\a.dll,-100"_s, none);

    // The folder of a DLL that is named without one.
    row("bare name", u"@a.dll,-100"_s, a);
    row("bare name without at sign", u"a.dll,-100"_s, a);
    row("bare name in brackets", u"$(@a.dll,-100)"_s, a);
    row("below the system folder", u"@sub\\b.dll,-1"_s, u"Text of b"_s);
    row("suffix in another case isn't seen as a DLL", u"@a.DLL,-100"_s, none);
    row("bare name that is no DLL", u"@drivers\\c.sys,-1"_s, none);
    row("no DLL by its whole path", u"@%SystemRoot%\\System32\\drivers\\c.sys,-1"_s, u"Text of c"_s);
    row("the medic's bare name", u"@WaaSMedicSvcImpl.dll,-100"_s, u"Text of the medic"_s);
    row("the medic's name in another case", u"@waasmedicsvcimpl.DLL,-100"_s, u"Text of the medic"_s);
    row("the medic's folder is put before a whole path too", u"@C:\\Windows\\UUS\\amd64\\WaaSMedicSvcImpl.dll,-100"_s,
        none);

    // Number and string.
    row("another number", u"@a.dll,-5"_s, u"five"_s);
    row("second number is left alone", u"@a.dll,-100,-5"_s, a);
    row("number that the DLL lacks", u"@a.dll,-999"_s, none);
    row("no number", u"@a.dll,-"_s, none);
    row("number that is none", u"@a.dll,-abc"_s, none);
    row("number with words after it", u"@a.dll,-100;words"_s, none);
    row("two dashes", u"@a.dll,--100"_s, none);
    row("number that is too large", u"@a.dll,-99999999999999999999"_s, none);
    row("empty string", u"@a.dll,-101"_s, none);
    row("other letters in the DLL", u"@a.dll,-102"_s, u"Überwacht die Geräte 服务"_s);
    row("a string isn't expanded in its turn", u"@a.dll,-104"_s, u"%SystemRoot%, -1 and @x.dll,-5"_s);
    row("a string that begins with error", u"@a.dll,-105"_s, u"error 5"_s);

    // References that lead nowhere.
    row("missing DLL", u"@%SystemRoot%\\System32\\missing.dll,-100"_s, none);
    row("missing folder", u"@C:\\Nowhere\\a.dll,-100"_s, none);
    row("file that is no DLL", u"@nodll.dll,-100"_s, none);
    row("folder in place of a DLL", u"@C:\\Windows\\System32,-100"_s, none);
    row("no path", u"@,-100"_s, none);
    row("plain text with comma and dash", u"Vendor,-the best"_s, none);

    // Nothing but a whole path on a drive of this PC is looked at.
    row("another drive", u"@D:\\Vendor\\d.dll,-1"_s, u"Text of d"_s);
    row("slashes", u"@C:/Windows/System32/a.dll,-100"_s, a);
    row("another computer", u"$(@\\\\host\\share\\x,-1)"_s, none);
    row("another computer, with slashes", u"@//host/share/x,-1"_s, none);
    row("another computer, in the long form", u"@\\\\?\\UNC\\host\\share\\x,-1"_s, none);
    row("the long form", u"@\\\\?\\C:\\Windows\\System32\\a.dll,-100"_s, none);
    row("from the drive's current folder", u"@C:Windows\\System32\\a.dll,-100"_s, none);
    row("from the root", u"@\\Windows\\System32\\drivers\\c.sys,-1"_s, none);
    row("no letter for a drive", u"@1:\\Windows\\System32\\a.dll,-100"_s, none);

    // One vendor's Bluetooth service.
    row("the vendor's path", u"C:\\Vendor\\RtkBtManServ.exe"_s, u"RtkBtManServ"_s);
    row("the vendor's name", u"RtkBtManServ"_s, u"RtkBtManServ"_s);
    row("the vendor's name in the DLL", u"@a.dll,-103"_s, u"RtkBtManServ"_s);
    row("the vendor's name in another case", u"rtkbtmanserv.exe"_s, u"rtkbtmanserv.exe"_s);
    row("the vendor's name in a reference that leads nowhere", u"@C:\\RtkBtManServ.dll,-1"_s, none);
}

void TestServiceText::textIsExpanded()
{
    QFETCH(const QString, text);
    QFETCH(const QString, result);
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(text), result);
}

void TestServiceText::aReferenceToAMissingDllIsNotLogged()
{
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(u"@missing.dll,-100"_s), none);
    QCOMPARE(worker.ExpandResourceString(u"@,-100"_s), none);
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceText::aReferenceToAFileThatIsNoDllIsLogged()
{
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(u"@nodll.dll,-100"_s), none);
    QCOMPARE(machine.errorLog(), QStringList{logLine(u"C:\\Windows\\System32\\nodll.dll"_s, u"100"_s, 193)});
}

void TestServiceText::aReferenceToAFolderIsLogged()
{
    // It is there, and only the look into it fails.
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(u"@C:\\Windows\\System32\\sub,-100"_s), none);
    QCOMPARE(machine.errorLog().size(), 1);
    QVERIFY(machine.errorLog().first().startsWith(
        u"GetResourceInDll: HInstance of LoadLibrary is null! C:\\Windows\\System32\\sub, UID=100, "_s));
}

void TestServiceText::theVariableAtTheStartIsReplacedWhereverItStandsAndNoOther()
{
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(
                 u"@%SystemRoot%\\System32\\nodll.dll,-%systemroot%%windir%%ProgramFiles%%SYSTEMROOT%"_s),
             none);
    QCOMPARE(machine.errorLog(), QStringList{logLine(u"C:\\Windows\\System32\\nodll.dll"_s,
                                                     u"C:\\Windows%windir%%ProgramFiles%C:\\Windows"_s, 193)});
}

void TestServiceText::aVariableThatIsNotAtTheStartStays()
{
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(u"@C:\\Windows\\System32\\nodll.dll,-%windir%"_s), none);
    QCOMPARE(machine.errorLog(), QStringList{logLine(u"C:\\Windows\\System32\\nodll.dll"_s, u"%windir%"_s, 193)});
}

void TestServiceText::aVariableInTheValueOfAnotherStays()
{
    // The first of the three that fits is the only one that is looked up.
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\there\\v.exe"_s);
    machine.machine().setDllStrings(u"C:\\Windows\\there\\v.exe"_s, {{1, u"found"_s}});
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(u"@%windir%\\there\\v.exe,-1"_s), u"found"_s);
    qputenv("SystemRoot", "%windir%");
    QCOMPARE(worker.ExpandResourceString(u"@%SystemRoot%\\there\\v.exe,-1"_s), none);
}

void TestServiceText::theVariableOfTheEnvironmentCounts()
{
    TestMachine machine;
    machine.addFile(u"C:\\Other\\System32\\a.dll"_s);
    machine.machine().setDllStrings(u"C:\\Other\\System32\\a.dll"_s, {{1, u"elsewhere"_s}});
    qputenv("SystemRoot", "C:\\Other");
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(u"@%SystemRoot%\\System32\\a.dll,-1"_s), u"elsewhere"_s);
    QCOMPARE(worker.ExpandResourceString(u"@a.dll,-1"_s), u"elsewhere"_s);
}

void TestServiceText::aVariableThatIsNotSetLeavesNothing()
{
    TestMachine machine;
    machine.addFile(u"C:\\Vendor\\v.exe"_s);
    machine.machine().setDllStrings(u"C:\\Vendor\\v.exe"_s, {{1, u"on the root"_s}});
    qunsetenv("programfiles");
    WorkThread worker;
    // What is left has no drive.
    QCOMPARE(worker.ExpandResourceString(u"@%ProgramFiles%\\Vendor\\v.exe,-1"_s), none);
}

void TestServiceText::stringOfADll_data()
{
    addColumns<QString, QString>("id", "result");
    QTest::newRow("there") << u"100"_s << u"Text of a"_s;
    QTest::newRow("not there") << u"6"_s << none;
    QTest::newRow("empty") << u"101"_s << none;
    QTest::newRow("no number") << u"x"_s << none;
    QTest::newRow("nothing") << u""_s << none;
}

void TestServiceText::stringOfADll()
{
    QFETCH(const QString, id);
    QFETCH(const QString, result);
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.GetResourceInDll(u"C:\\Windows\\System32\\a.dll"_s, id), result);
}

void TestServiceText::aDllThatCantBeLoadedIsLogged_data()
{
    addColumns<QString, QString, int>("path", "id", "error");
    QTest::newRow("missing") << u"C:\\Windows\\System32\\missing.dll"_s << u"100"_s << 126;
    QTest::newRow("no DLL") << u"C:\\Windows\\System32\\nodll.dll"_s << u"100"_s << 193;
    QTest::newRow("id that is no number") << u"C:\\Windows\\System32\\nodll.dll"_s << u"abc;d"_s << 193;
    QTest::newRow("empty id") << u"C:\\Windows\\System32\\nodll.dll"_s << u""_s << 193;
}

void TestServiceText::aDllThatCantBeLoadedIsLogged()
{
    QFETCH(const QString, path);
    QFETCH(const QString, id);
    QFETCH(const int, error);
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.GetResourceInDll(path, id), none);
    QCOMPARE(machine.errorLog(), QStringList{logLine(path, id, error)});
}

void TestServiceText::aStringThatIsNotThereIsNotLogged()
{
    const MachineWithDlls machine;
    WorkThread worker;
    for (const QString &id : {u"6"_s, u"101"_s, u"x"_s})
        QCOMPARE(worker.GetResourceInDll(u"C:\\Windows\\System32\\a.dll"_s, id), none);
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceText::theCounterHostThatIsNoDllIsPassedOverQuietly()
{
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.ExpandResourceString(u"@%systemroot%\\SysWow64\\perfhost.exe,-2"_s), none);
    QCOMPARE(worker.GetResourceInDll(u"perfhost.exe"_s, u"2"_s), none);
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceText::theCounterHostIsKnownInItsOwnCaseOnly()
{
    const MachineWithDlls machine;
    WorkThread worker;
    QCOMPARE(worker.GetResourceInDll(u"C:\\Windows\\SysWow64\\PerfHost.exe"_s, u"2"_s), none);
    QCOMPARE(machine.errorLog(), QStringList{logLine(u"C:\\Windows\\SysWow64\\PerfHost.exe"_s, u"2"_s, 193)});
}

void TestServiceText::anExceptionIsLoggedAndGivesNoDescription()
{
    const PlatformInForce<ThrowingDlls> dlls;
    WorkThread worker;
    QCOMPARE(worker.GetResourceInDll(u"C:\\x.dll"_s, u"100"_s), none);
    QCOMPARE(dlls->errorLog(), QStringList{u"GetResourceInDll: C:\\x.dll, UID=100, ERROR_CODE=0"_s});
}

void TestServiceText::nothingIsLoggedUnlessTheLogIsOn()
{
    MachineWithDlls machine;
    machine.write(settingsKey, u"LogError"_s, 0);
    WorkThread worker;
    QCOMPARE(worker.GetResourceInDll(u"C:\\Windows\\System32\\nodll.dll"_s, u"100"_s), none);
    QCOMPARE(machine.errorLog(), QStringList());
}

KESTRUNE_SUITE(TestServiceText)
#include "tst_servicetext.moc"
