// SPDX-License-Identifier: GPL-3.0-or-later
// The state of the real PC, read and put back exactly.

#include "nativecontract.h"
#include "platform/windows/adminfolder.h"
#include "platform/windows/processtoken.h"
#include "platform/windows/windowssystem.h"
#include "support/files.h"
#include "support/suite.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString testKey = u"HKEY_CURRENT_USER\\Software\\KestruneSystemTest"_s;

QByteArray utf16(const QString &text)
{
    return "\xff\xfe" + QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
}

} // namespace

class TestWindowsSystem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void valuesGoAndComeExactly_data();
    void valuesGoAndComeExactly();
    void keysAreMadeAndGoOnlyWhenTheyAreEmpty();
    void nothingIsMadeByLooking();
    void usersKeysHaveACommonName();
    void aTasksSwitchIsReadFromItsDocument_data();
    void aTasksSwitchIsReadFromItsDocument();
    void tasksThatAreNoneAreUnknown();
    void bootOptionsAreReadInAnyLanguage_data();
    void bootOptionsAreReadInAnyLanguage();
    void withoutTheToolBootOptionsAreUnknown();
    void ownerAndRightsGoAndCome();
    void ownerAndRightsHaveWords();
    void ownerAndRightsOfWhatIsNotThere();
    void pathsHaveBackslashes();

private:
    WindowsSystem system_;
};

void TestWindowsSystem::cleanup()
{
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\KestruneSystemTest");
}

void TestWindowsSystem::valuesGoAndComeExactly_data()
{
    addColumns<QString, quint32, QByteArray>("name", "type", "data");
    const auto row = [](const char *tag, const QString &name, quint32 type, const QByteArray &data) {
        QTest::newRow(tag) << name << type << data;
    };
    row("unnamed", {}, 1, registryText(u"text"_s));
    row("text", u"a/b\\c"_s, 1, registryText(u"é"_s));
    row("text without its end", u"Value"_s, 1, QByteArray("a\0b\0", 4));
    row("text of odd length", u"Value"_s, 1, QByteArray("a\0b", 3));
    row("empty text", u"Value"_s, 1, QByteArray("", 0));
    row("text with more after its end", u"Value"_s, 1, registryText(u"a"_s) + registryText(u"b"_s));
    row("expanded", u"Value"_s, 2, registryText(u"%windir%"_s));
    row("bytes", u"Value"_s, 3, QByteArray("\0\1\xff", 3));
    row("number", u"Value"_s, 4, registryDWord(0xfedcba98));
    row("short number", u"Value"_s, 4, QByteArray("\1", 1));
    row("big-endian", u"Value"_s, 5, QByteArray("\0\0\0\1", 4));
    row("texts", u"Value"_s, 7, registryTexts({u"a"_s, u"b c"_s}));
    row("wide number", u"Value"_s, 11, registryQWord(1ULL << 40));
    row("none", u"Value"_s, 0, QByteArray("", 0));
    row("a type of its own", u"Value"_s, 0x1234, QByteArray("xyz"));
    row("large", u"Value"_s, 3, QByteArray(200000, 'x'));
}

void TestWindowsSystem::valuesGoAndComeExactly()
{
    QFETCH(const QString, name);
    QFETCH(const quint32, type);
    QFETCH(const QByteArray, data);
    const ContractPlatform contract;
    const RegistryValue value{name, static_cast<RegistryType>(type), data};
    const RegistryValue other{name, RegistryType::DWord, registryDWord(7)};

    contract.writeRaw(testKey, value);
    const std::optional<RegistryValue> read = system_.value(testKey, name);
    QVERIFY(read);
    QCOMPARE(read->data, data);
    QCOMPARE(static_cast<quint32>(read->type), type);

    QVERIFY(system_.setValue(testKey, other));
    QCOMPARE(contract.readRaw(testKey, name), std::optional(other));
    QVERIFY(system_.setValue(testKey, *read));
    QCOMPARE(contract.readRaw(testKey, name), std::optional(value));
    QVERIFY(system_.removeValue(testKey, name));
    QCOMPARE(contract.readRaw(testKey, name), std::optional<RegistryValue>());
    QVERIFY(system_.removeValue(testKey, name));
    QVERIFY(!system_.value(testKey, name));
}

void TestWindowsSystem::keysAreMadeAndGoOnlyWhenTheyAreEmpty()
{
    const ContractPlatform contract;
    const QString below = testKey + u"\\One\\Two"_s;
    QVERIFY(system_.makeKey(below));
    QVERIFY(system_.makeKey(below));
    QVERIFY(contract.hasKey(below) && system_.hasKey(below));
    QVERIFY(!system_.removeEmptyKey(testKey + u"\\One"_s));
    QVERIFY(system_.setValue(below, {{}, RegistryType::None, {}}));
    QVERIFY(!system_.removeEmptyKey(below));
    QVERIFY(system_.removeValue(below, {}));
    QVERIFY(system_.removeEmptyKey(below));
    QVERIFY(!contract.hasKey(below) && !system_.hasKey(below));
    QVERIFY(system_.removeEmptyKey(below));
    QVERIFY(system_.removeEmptyKey(testKey + u"\\One"_s));
    // A value's key is made with it.
    QVERIFY(system_.setValue(below, {u"Value"_s, RegistryType::DWord, registryDWord(1)}));
    QVERIFY(contract.hasKey(below));
}

void TestWindowsSystem::nothingIsMadeByLooking()
{
    QVERIFY(!system_.hasKey(testKey));
    QVERIFY(!system_.value(testKey, u"Value"_s));
    QVERIFY(!system_.key(testKey).isThere);
    QVERIFY(system_.removeValue(testKey, u"Value"_s));
    QVERIFY(!system_.hasKey(testKey));
    QVERIFY(!system_.hasKey(u"HKEY_NOWHERE\\Software"_s));
    QVERIFY(!system_.makeKey(u"HKEY_NOWHERE\\Software"_s));
    QVERIFY(!system_.setValue(u"HKEY_NOWHERE"_s, {u"Value"_s, RegistryType::DWord, registryDWord(1)}));
    QVERIFY(system_.serviceReports());
}

void TestWindowsSystem::usersKeysHaveACommonName()
{
    const ContractPlatform contract;
    QVERIFY2(sidOfUser().startsWith("S-1-5-"_L1), qPrintable(sidOfUser()));
    const RegistryValue value{u"Value"_s, RegistryType::DWord, registryDWord(1)};
    const QString common = u"HKEY_USERS\\"_s + sidOfUser() + testKey.sliced(testKey.indexOf(u'\\'));
    QVERIFY(system_.setValue(common, value));
    QCOMPARE(contract.readRaw(testKey, u"Value"_s), std::optional(value));
    QVERIFY(system_.hasKey(u"HKEY_USERS\\"_s + sidOfUser()));
}

void TestWindowsSystem::aTasksSwitchIsReadFromItsDocument_data()
{
    addColumns<QByteArray, bool>("content", "enabled");
    const auto document = [](const QString &encoding, const QString &settings) {
        return u"<?xml version=\"1.0\" encoding=\"%1\"?>\r\n<Task version=\"1.2\" "
               "xmlns=\"http://schemas.microsoft.com/windows/2004/02/mit/task\">\r\n  <Triggers><LogonTrigger>"
               "<Enabled>false</Enabled></LogonTrigger></Triggers>\r\n  <Settings>%2</Settings>\r\n</Task>"_s.arg(
                   encoding, settings);
    };
    const QString off = u"<Hidden>true</Hidden><Enabled>false</Enabled>"_s;
    QTest::newRow("as Windows writes it, off") << utf16(document(u"UTF-16"_s, off)) << false;
    QTest::newRow("as Windows writes it, on") << utf16(document(u"UTF-16"_s, {})) << true;
    QTest::newRow("UTF-8, off") << document(u"UTF-8"_s, off).toUtf8() << false;
    QTest::newRow("UTF-8, on") << document(u"UTF-8"_s, u"<Enabled>true</Enabled>"_s).toUtf8() << true;
}

void TestWindowsSystem::aTasksSwitchIsReadFromItsDocument()
{
    QFETCH(const QByteArray, content);
    QFETCH(const bool, enabled);
    const QString folder = u"C:/windows/system32/Tasks/KestruneTest"_s;
    QVERIFY(QDir().mkpath(folder));
    writeFile(folder + u"/Some Task"_s, content);
    const std::optional<bool> read = system_.isTaskEnabled(u"\\KestruneTest\\Some Task"_s);
    QVERIFY(QDir(folder).removeRecursively());
    QCOMPARE(read, std::optional(enabled));
}

void TestWindowsSystem::tasksThatAreNoneAreUnknown()
{
    QVERIFY(!system_.isTaskEnabled(u"\\KestruneTest\\None"_s));
    QVERIFY(!system_.isTaskEnabled(u"\\"_s));
    QVERIFY(!system_.isTaskEnabled(u"\\..\\..\\win.ini"_s));
}

void TestWindowsSystem::bootOptionsAreReadInAnyLanguage_data()
{
    QTest::addColumn<QString>("listing");
    QTest::addColumn<QString>("tick");
    QTest::newRow("English") << u"\r\nWindows Boot Loader\r\n-------------------\r\n"
                                "identifier              {current}\r\ndevice                  partition=C:\r\n"
                                "displayorder            {a}\r\n                        {b}\r\n"
                                "disabledynamictick      Yes\r\n"_s
                             << u"Yes"_s;
    QTest::newRow("German") << u"\r\nWindows-Startladeprogramm\r\n-------------------------\r\n"
                               "Bezeichner              {current}\r\ndevice                  partition=C:\r\n"
                               "displayorder            {a}\r\n                        {b}\r\n"
                               "disabledynamictick      Ja\r\n"_s
                            << u"Ja"_s;
}

void TestWindowsSystem::bootOptionsAreReadInAnyLanguage()
{
    QFETCH(const QString, listing);
    QFETCH(const QString, tick);
    const auto options = bootOptionsIn(listing);
    QVERIFY(options);
    QCOMPARE(options->value(u"disabledynamictick"_s), tick);
    QCOMPARE(options->value(u"device"_s), u"partition=C:"_s);
    QCOMPARE(options->value(u"displayorder"_s), u"{a}"_s);
    QVERIFY(!options->contains(u"useplatformtick"_s));
    QVERIFY(!bootOptionsIn(u"The boot configuration data store could not be opened.\r\nAccess is denied.\r\n"_s));
}

void TestWindowsSystem::withoutTheToolBootOptionsAreUnknown()
{
    if (!WindowsPlatform().programFile(u"bcdedit"_s).isEmpty())
        QSKIP("this Windows has the tool");
    QVERIFY(!system_.bootOptions());
}

void TestWindowsSystem::ownerAndRightsGoAndCome()
{
    const QTemporaryDir folder;
    const QString file = QDir::toNativeSeparators(folder.filePath(u"file.txt"_s));
    writeFile(file, "x");
    const std::optional<QByteArray> before = system_.fileSecurity(file);
    QVERIFY(before);
    QVERIFY2(before->startsWith("O:") && before->contains("D:"), before->constData());
    // Wine keeps of a list what the mode of a Unix file can hold, and no owner.
    QVERIFY(system_.setFileSecurity(file, "O:BAD:P(A;;FR;;;WD)(A;;FR;;;BA)"));
    QVERIFY(system_.fileSecurity(file) != before);
    QVERIFY(system_.setFileSecurity(file, *before));
    QCOMPARE(system_.fileSecurity(file).value_or(QByteArray()), *before);
    QVERIFY(system_.fileSecurity(QDir::toNativeSeparators(folder.path())));
}

void TestWindowsSystem::ownerAndRightsHaveWords()
{
    const SecurityWords words = system_.securityWords("O:BAG:SYD:PAI(A;;FA;;;SY)(A;;FR;;;BU)");
    QCOMPARE(words.owner, u"*S-1-5-32-544"_s);
    QCOMPARE(words.rights, QString());
    QCOMPARE(words.descriptor, u"D:PAI(A;;FA;;;SY)(A;;FR;;;BU)"_s);
    QCOMPARE(system_.securityWords("nonsense").owner, QString());
}

void TestWindowsSystem::ownerAndRightsOfWhatIsNotThere()
{
    const QTemporaryDir folder;
    const QString none = QDir::toNativeSeparators(folder.filePath(u"none"_s));
    QVERIFY(!system_.fileSecurity(none));
    QVERIFY(!system_.setFileSecurity(none, "O:BAD:P(A;;FR;;;WD)"));
    QVERIFY(!system_.setFileSecurity(QDir::toNativeSeparators(folder.path()), "nonsense"));
}

void TestWindowsSystem::pathsHaveBackslashes()
{
    QCOMPARE(system_.windowsPath(u"C:/Windows/a b"_s), u"C:\\Windows\\a b"_s);
}

KESTRUNE_SUITE(TestWindowsSystem)
#include "tst_windowssystem.moc"
