// SPDX-License-Identifier: GPL-3.0-or-later
// Registry scripts: every type, both encodings, odd line ends, what is wrong with a bad one, and the way there and
// back.

#include "machine/source/regfile.h"
#include "platform/contractplatform.h"
#include "support/suite.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray header = "Windows Registry Editor Version 5.00\n\n";
const QByteArray oneKey = header + "[HKEY_CURRENT_USER\\Software\\Test]\n";
const QString testKey = u"HKEY_CURRENT_USER\\Software\\Test"_s;
const QString fileName = u"x.reg"_s;

QByteArray littleEndian(const QString &text)
{
    return registryText(text).chopped(2);
}

QString problemOf(const QByteArray &script)
{
    try {
        parseRegistryScript(script, fileName);
    } catch (const MachineError &error) {
        return error.message;
    }
    return {};
}

RegistryValue valueOf(const QByteArray &line)
{
    const QList<RegistryEdit> edits = parseRegistryScript(oneKey + line, fileName);
    return edits.size() == 2 ? edits.at(1).value : RegistryValue{u"not one value"_s, RegistryType::None, {}};
}

} // namespace

class TestRegFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { contract_ = std::make_unique<ContractPlatform>(); }

    void readsValues_data();
    void readsValues();
    void readsTheWholeGrammar();
    void readsEveryEncodingAlike_data();
    void readsEveryEncodingAlike();
    void readsVersion4();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void everyTruncationIsReadOrTold();
    void damagedBytesAreReadOrTold();
    void appliesInOrder();
    void aFailedApplyLeavesEverything();
    void writesAsTheRegistryEditorDoes();
    void comesBackExactly_data();
    void comesBackExactly();
    void breaksLongLines();
    void comesBackAsAWhole();
    void leavesOutWhatNoScriptCanSay();
    void readsMany();

private:
    void import(const QByteArray &script) const
    {
        applyRegistryScript(contract_->machine().database(), contract_->machine().registry(),
                            parseRegistryScript(script, fileName));
    }
    QString written(const QString &key = testKey) const
    {
        return writeRegistryScript(contract_->machine().registry(), key);
    }

    std::unique_ptr<ContractPlatform> contract_;
};

void TestRegFile::readsValues_data()
{
    using Type = RegistryType;
    addColumns<QByteArray, QString, RegistryType, QByteArray>("line", "name", "type", "data");
    const QString a = u"a"_s;
    QTest::newRow("text") << QByteArray("\"a\"=\"b\"") << a << Type::String << registryText(u"b"_s);
    QTest::newRow("empty text") << QByteArray("\"a\"=\"\"") << a << Type::String << registryText({});
    QTest::newRow("unnamed") << QByteArray("@=\"b\"") << QString() << Type::String << registryText(u"b"_s);
    QTest::newRow("empty name") << QByteArray("\"\"=\"b\"") << QString() << Type::String << registryText(u"b"_s);
    QTest::newRow("escapes") << QByteArray(R"("a\\b\"c"="C:\\x\\\"y\"")") << u"a\\b\"c"_s << Type::String
                             << registryText(u"C:\\x\\\"y\""_s);
    QTest::newRow("lone backslash") << QByteArray(R"("a"="C:\x")") << a << Type::String << registryText(u"C:\\x"_s);
    QTest::newRow("semicolon in a text") << QByteArray("\"a\"=\"b;c\" ; d") << a << Type::String
                                         << registryText(u"b;c"_s);
    QTest::newRow("equals in a name") << QByteArray("\"a=b\"=\"c\"") << u"a=b"_s << Type::String
                                      << registryText(u"c"_s);
    QTest::newRow("text over two lines") << QByteArray("\"a\"=\"b\r\nc\"") << a << Type::String
                                         << registryText(u"b\r\nc"_s);
    QTest::newRow("umlauts") << QByteArray("\"ä\"=\"ö€\"") << u"ä"_s << Type::String << registryText(u"ö€"_s);
    QTest::newRow("dword") << QByteArray("\"a\"=dword:0000001f") << a << Type::DWord << registryDWord(31);
    QTest::newRow("short dword") << QByteArray("\"a\"=dword:1F") << a << Type::DWord << registryDWord(31);
    QTest::newRow("dword without digits") << QByteArray("\"a\"=dword:") << a << Type::DWord << registryDWord(0);
    QTest::newRow("greatest dword") << QByteArray("\"a\"=DWORD:ffffffff ;x") << a << Type::DWord << registryDWord(~0U);
    QTest::newRow("bytes") << QByteArray("\"a\"=hex:00,ff,7E") << a << Type::Binary << QByteArray("\0\xff\x7e", 3);
    QTest::newRow("no bytes") << QByteArray("\"a\"=hex:") << a << Type::Binary << QByteArray();
    QTest::newRow("bytes over lines") << QByteArray("\"a\"=hex:00,\\\r\n  01,\\ ; why\n\t02") << a << Type::Binary
                                      << QByteArray("\0\1\2", 3);
    QTest::newRow("no type") << QByteArray("\"a\"=hex(0):01") << a << Type::None << QByteArray("\1");
    QTest::newRow("text as bytes") << QByteArray("\"a\"=hex(1):61,00,0a,00,00,00") << a << Type::String
                                   << registryText(u"a\n"_s);
    QTest::newRow("expandable") << QByteArray("\"a\"=hex(2):25,00,00,00") << a << Type::ExpandString
                                << registryText(u"%"_s);
    QTest::newRow("odd dword") << QByteArray("\"a\"=hex(4):01,02") << a << Type::DWord << QByteArray("\1\2");
    QTest::newRow("big-endian") << QByteArray("\"a\"=hex(5):00,00,00,01") << a << Type::DWordBigEndian
                                << QByteArray("\0\0\0\1", 4);
    QTest::newRow("texts") << QByteArray("\"a\"=hex(7):61,00,00,00,00,00") << a << Type::MultiString
                           << registryTexts({u"a"_s});
    QTest::newRow("64 bits") << QByteArray("\"a\"=hex(b):01,00,00,00,00,00,00,80") << a << Type::QWord
                             << registryQWord(0x8000000000000001U);
    QTest::newRow("type of its own") << QByteArray("\"a\"=hex(ffff0012):05") << a << Type(0xffff0012U)
                                     << QByteArray("\5");
    QTest::newRow("blanks") << QByteArray("  \"a\" =\t hex: 01 , 02 ") << a << Type::Binary << QByteArray("\1\2");
}

void TestRegFile::readsValues()
{
    QFETCH(const QByteArray, line);
    QFETCH(const QString, name);
    QFETCH(const RegistryType, type);
    QFETCH(const QByteArray, data);
    for (const QByteArray &end : {QByteArray(), QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r\r\n\r\r\n")}) {
        const RegistryValue value = valueOf(line + end);
        QCOMPARE(value.name, name);
        QCOMPARE(value.type, type);
        QCOMPARE(value.data, data);
    }
}

void TestRegFile::readsTheWholeGrammar()
{
    using Kind = RegistryEdit::Kind;
    const QByteArray script = "; made by hand\r\n\r\nwindows registry editor version 5.00  \r\n"
                              "; [HKEY_CURRENT_USER\\Ignored]\r\n"
                              "[HKEY_CURRENT_USER\\A]b]  ; a bracket in the name\r\n"
                              "\"x\"=-\r\n@=-\r\n"
                              "[-HKLM\\Software\\Gone]\r\n\r\n"
                              "  [HKEY_USERS\\.DEFAULT]\r\n\"y\"=dword:2\r\n";
    const QList<RegistryEdit> edits = parseRegistryScript(script, fileName);
    QCOMPARE(edits.size(), 6);
    QCOMPARE(edits.at(0).kind, Kind::MakeKey);
    QCOMPARE(edits.at(0).key, u"HKEY_CURRENT_USER\\A]b"_s);
    QCOMPARE(edits.at(1).kind, Kind::RemoveValue);
    QCOMPARE(edits.at(1).value.name, u"x"_s);
    QCOMPARE(edits.at(2).kind, Kind::RemoveValue);
    QCOMPARE(edits.at(2).value.name, QString());
    QCOMPARE(edits.at(3).kind, Kind::RemoveKey);
    QCOMPARE(edits.at(3).key, u"HKLM\\Software\\Gone"_s);
    QCOMPARE(edits.at(4).key, u"HKEY_USERS\\.DEFAULT"_s);
    QCOMPARE(edits.at(5).kind, Kind::SetValue);
    QCOMPARE(edits.at(5).key, u"HKEY_USERS\\.DEFAULT"_s);
    QCOMPARE(edits.at(5).value.data, registryDWord(2));
    QVERIFY(parseRegistryScript(header, fileName).isEmpty());
}

void TestRegFile::readsEveryEncodingAlike_data()
{
    const QString text = QString::fromUtf8(oneKey + "\"ä€\"=\"\xF0\x9F\x98\x80\"\r\r\n\"d\"=dword:\r\r\n");
    QByteArray bigEndian = littleEndian(text);
    for (qsizetype i = 0; i < bigEndian.size(); i += 2)
        std::swap(bigEndian[i], bigEndian[i + 1]);
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-8") << text.toUtf8();
    QTest::newRow("UTF-8, marked") << "\xEF\xBB\xBF" + text.toUtf8();
    QTest::newRow("UTF-16") << littleEndian(text);
    QTest::newRow("UTF-16, marked") << "\xFF\xFE" + littleEndian(text);
    QTest::newRow("UTF-16, big-endian") << "\xFE\xFF" + bigEndian;
}

void TestRegFile::readsEveryEncodingAlike()
{
    QFETCH(const QByteArray, bytes);
    const QList<RegistryEdit> edits = parseRegistryScript(bytes, fileName);
    QCOMPARE(edits.size(), 3);
    QCOMPARE(edits.at(0).key, testKey);
    QCOMPARE(edits.at(1).value, (RegistryValue{u"ä€"_s, RegistryType::String, registryText(u"\U0001F600"_s)}));
    QCOMPARE(edits.at(2).value, (RegistryValue{u"d"_s, RegistryType::DWord, registryDWord(0)}));
}

void TestRegFile::readsVersion4()
{
    const QByteArray script =
        "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Gr\xF6\xDF"
        "e]\r\n"
        "\"a\"=\"\xE4\"\r\n\"e\"=hex(2):25,61,25,00\r\n\"m\"=hex(7):61,00,62,00,00\r\n\"b\"=hex:61,00\r\n";
    const QList<RegistryEdit> edits = parseRegistryScript(script, fileName);
    QCOMPARE(edits.size(), 5);
    QCOMPARE(edits.at(0).key, u"HKEY_CURRENT_USER\\Software\\Größe"_s);
    QCOMPARE(edits.at(1).value.data, registryText(u"ä"_s));
    QCOMPARE(edits.at(2).value.data, registryText(u"%a%"_s));
    QCOMPARE(edits.at(3).value.data, registryTexts({u"a"_s, u"b"_s}));
    QCOMPARE(edits.at(4).value.data, QByteArray("a\0", 2)); // bytes stay bytes
}

void TestRegFile::tellsWhatIsWrong_data()
{
    addColumns<QByteArray, int, QString>("script", "line", "reason");
    QTest::newRow("empty") << QByteArray() << 1 << u"not a registry script"_s;
    QTest::newRow("other text") << QByteArray("\n\nHello\n") << 3 << u"not a registry script"_s;
    QTest::newRow("no script") << QByteArray("[HKEY_CURRENT_USER\\a]\n") << 1 << u"not a registry script"_s;
    QTest::newRow("garbage line") << oneKey + "hello\n" << 4 << u"not a key"_s;
    QTest::newRow("open bracket") << header + "[HKEY_CURRENT_USER\\a\n\"x\"=\"]\"\n" << 3 << u"closing bracket"_s;
    QTest::newRow("after the bracket") << header + "[HKEY_CURRENT_USER\\a] b\n" << 3 << u"after the key"_s;
    QTest::newRow("no key") << header + "[]\n" << 3 << u"hives"_s;
    QTest::newRow("removing nothing") << header + "[-]\n" << 3 << u"hives"_s;
    QTest::newRow("other hive") << header + "[HKEY_NOWHERE\\a]\n" << 3 << u"hives"_s;
    QTest::newRow("removing a hive") << header + "[-HKEY_LOCAL_MACHINE]\n" << 3 << u"hive can't be removed"_s;
    QTest::newRow("removing a hive, short") << header + "[-HKLM\\]\n" << 3 << u"hive can't be removed"_s;
    QTest::newRow("value without key") << header + "\"a\"=\"b\"\n" << 3 << u"before the first key"_s;
    QTest::newRow("value of a removed key") << header + "[-HKCU\\a]\n\"a\"=\"b\"\n" << 4 << u"is removed"_s;
    QTest::newRow("no equals") << oneKey + "\"a\" \"b\"\n" << 4 << u"\"=\""_s;
    QTest::newRow("no data") << oneKey + "\"a\"=\n" << 4 << u"data"_s;
    QTest::newRow("unknown data") << oneKey + "\"a\"=qword:1\n" << 4 << u"data"_s;
    QTest::newRow("open text") << oneKey + "\n\"a\"=\"b\n" << 5 << u"quotation mark"_s;
    QTest::newRow("open name") << oneKey + "\"a\n" << 4 << u"quotation mark"_s;
    QTest::newRow("after the text") << oneKey + "\"a\"=\"b\"c\n" << 4 << u"after the value"_s;
    QTest::newRow("long dword") << oneKey + "\"a\"=dword:000000001\n" << 4 << u"eight digits"_s;
    QTest::newRow("bad dword") << oneKey + "\"a\"=dword:12x\n" << 4 << u"after the value"_s;
    QTest::newRow("bad byte") << oneKey + "\"a\"=hex:00,\\\n  0g\n" << 5 << u"after the value"_s;
    QTest::newRow("long byte") << oneKey + "\"a\"=hex:000\n" << 4 << u"two digits"_s;
    QTest::newRow("open type") << oneKey + "\"a\"=hex(7:00\n" << 4 << u"type"_s;
    QTest::newRow("no type") << oneKey + "\"a\"=hex():00\n" << 4 << u"type"_s;
    QTest::newRow("no colon") << oneKey + "\"a\"=hex 00\n" << 4 << u"\":\""_s;
    QTest::newRow("nothing goes on") << oneKey + "\"a\"=hex:00,\\\n" << 4 << u"ends inside a value"_s;
    QTest::newRow("no UTF-8") << oneKey + "\"a\"=\"b\"\n\"c\"=\"\xFF\"\n" << 5 << u"UTF-8"_s;
    QTest::newRow("half a character") << "\xFF\xFE" + littleEndian(u"Windows\nx"_s) + "x" << 2
                                      << u"inside a character"_s;
}

void TestRegFile::tellsWhatIsWrong()
{
    QFETCH(const QByteArray, script);
    QFETCH(const int, line);
    QFETCH(const QString, reason);
    const QString problem = problemOf(script);
    QVERIFY2(problem.startsWith(u"x.reg:%1: "_s.arg(line)), qUtf8Printable(problem));
    QVERIFY2(problem.contains(reason), qUtf8Printable(problem));
    QVERIFY(!problem.contains(u'\n'));
    QByteArray windows = script;
    if (!windows.startsWith('\xFF'))
        QVERIFY(problemOf(windows.replace("\n", "\r\n")).startsWith(u"x.reg:%1: "_s.arg(line)));
}

void TestRegFile::everyTruncationIsReadOrTold()
{
    const QByteArray script =
        oneKey + "\"a\"=\"b\\\\c\"\n\"d\"=hex(7):61,00,\\\n  00,00\n@=dword:1\n[-HKCU\\x]\n[HKLM\\y]\n";
    const qsizetype all = parseRegistryScript(script, fileName).size();
    for (qsizetype size = 0; size < script.size(); ++size) {
        const QByteArray part = script.first(size);
        const QString problem = problemOf(part);
        if (problem.isEmpty())
            QVERIFY(parseRegistryScript(part, fileName).size() <= all);
        else
            QVERIFY2(problem.startsWith(u"x.reg:"_s), qUtf8Printable(problem));
    }
}

void TestRegFile::damagedBytesAreReadOrTold()
{
    const QByteArray script = oneKey + "\"a\"=\"b\\\\c\"\n\"d\"=hex(7):61,00,\\\n  00,00\n@=dword:1\n[-HKCU\\x]\n";
    int told = 0;
    for (qsizetype at = 0; at < script.size(); ++at) {
        for (const char damage : {'\0', '"', '\\', '\n', '[', '\xFF'}) {
            QByteArray damaged = script;
            damaged[at] = damage;
            const QString problem = problemOf(damaged);
            if (!problem.isEmpty()) {
                ++told;
                QVERIFY2(problem.startsWith(u"x.reg:"_s) && problem.count(u'\n') == 0, qUtf8Printable(problem));
            }
        }
    }
    QVERIFY(told > 100);
}

void TestRegFile::appliesInOrder()
{
    import(oneKey + "\"a\"=\"1\"\n\"b\"=\"2\"\n@=\"3\"\n[HKCU\\Software\\Test\\sub\\deep]\n\"x\"=dword:1\n");
    import(oneKey + "\"A\"=dword:5\n\"b\"=-\n\"absent\"=-\n@=-\n[-HKCU\\Software\\TEST\\sub]\n[-HKCU\\absent\\key]\n");
    QCOMPARE(platform().openKey(testKey)->allKeys(), QStringList{u"a"_s});
    QCOMPARE(platform().openKey(testKey)->value(u"a"_s), QVariant(5));
    QVERIFY(!contract_->hasKey(testKey + u"\\sub"_s));
    QVERIFY(!contract_->hasKey(u"HKCU\\absent"_s));
    // A key that was removed is new when it comes again in the same script.
    import(oneKey
           + "\"n\"=\"1\"\n[-HKEY_CURRENT_USER\\Software\\Test]\n[HKEY_CURRENT_USER\\Software\\Test]\n\"m\"=\"2\"\n");
    QCOMPARE(platform().openKey(testKey)->allKeys(), QStringList{u"m"_s});
}

void TestRegFile::aFailedApplyLeavesEverything()
{
    import(oneKey + "\"a\"=\"1\"\n");
    const QString before = written(u"HKEY_CURRENT_USER"_s);
    QList<RegistryEdit> edits = parseRegistryScript(oneKey + "\"a\"=\"2\"\n[HKCU\\new]\n[-HKCU\\Software]\n", fileName);
    edits << RegistryEdit{RegistryEdit::Kind::MakeKey, u"NOWHERE\\x"_s, {}};
    QVERIFY_THROWS_EXCEPTION(
        MachineError, applyRegistryScript(contract_->machine().database(), contract_->machine().registry(), edits));
    QCOMPARE(written(u"HKEY_CURRENT_USER"_s), before);
    import(oneKey + "\"b\"=\"1\"\n"); // and the database isn't stuck in a transaction
    QCOMPARE(Machine::open(contract_->folder())->registry().valueNames(*contract_->machine().registry().find(testKey)),
             (QStringList{u"a"_s, u"b"_s}));
}

void TestRegFile::writesAsTheRegistryEditorDoes()
{
    import(oneKey
           + "\"z\"=hex(2):25,00,00,00\n\"Text\"=\"a\\\\b \\\"c\\\"\"\n@=\"unnamed\"\n\"n\"=dword:1f\n\"q\"=hex(b):01\n"
             "\"b\"=hex:\n[HKCU\\Software\\Test\\b]\n[HKCU\\Software\\Test\\B2]\n\"x\"=\"\"\n");
    QCOMPARE(written(u"hkcu\\software\\test"_s),
             u"Windows Registry Editor Version 5.00\n\n"
             "[HKEY_CURRENT_USER\\Software\\Test]\n@=\"unnamed\"\n\"Text\"=\"a\\\\b \\\"c\\\"\"\n\"b\"=hex:\n"
             "\"n\"=dword:0000001f\n\"q\"=hex(b):01\n\"z\"=hex(2):25,00,00,00\n\n"
             "[HKEY_CURRENT_USER\\Software\\Test\\B2]\n\"x\"=\"\"\n\n"
             "[HKEY_CURRENT_USER\\Software\\Test\\b]\n"_s);
    QCOMPARE(written(u"HKCU\\absent"_s), u"Windows Registry Editor Version 5.00\n"_s);
}

void TestRegFile::comesBackExactly_data()
{
    addColumns<QString, RegistryType, QByteArray>("name", "type", "data");
    const QList<QByteArray> samples{
        QByteArray(),
        QByteArray("\0", 1),
        registryText({}),
        registryText(u"plain"_s),
        registryText(u"two\r\nlines"_s),
        registryText(u"one\nline"_s),
        registryText(u"tab\t; \"x\" \\"_s),
        littleEndian(u"no zero"_s),
        registryText(u"zero\0in"_s),
        registryText(u"x"_s) + QByteArray(2, '\0'),
        QByteArray("odd"),
        QByteArray("\x3D\xD8\0\0", 4),
        registryText(u"\U0001F600ä"_s),
        registryDWord(0xDEADBEEF),
        registryQWord(0x0102030405060708),
        QByteArray(1000, '\xAB'),
    };
    for (const quint32 type : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 10U, 11U, 0x12345678U}) {
        for (qsizetype i = 0; i < samples.size(); ++i)
            QTest::addRow("type %u sample %d", type, int(i)) << u"n"_s << RegistryType(type) << samples.at(i);
    }
    for (const QString &name :
         {QString(), u"a\\b"_s, u"q\"q"_s, u"a/b"_s, u"="_s, u"[x]"_s, u"@"_s, u";"_s, u"ä\U0001F600"_s, u" "_s})
        QTest::addRow("name %s", qUtf8Printable(name)) << name << RegistryType::String << registryText(name);
}

void TestRegFile::comesBackExactly()
{
    QFETCH(const QString, name);
    QFETCH(const RegistryType, type);
    QFETCH(const QByteArray, data);
    const RegistryValue value{name, type, data};
    contract_->writeRaw(testKey, value);
    const QString script = written();
    const auto key = contract_->machine().registry().find(testKey);
    contract_->machine().registry().removeKey(*key);
    import(script.toUtf8());
    const auto read = contract_->readRaw(testKey, name);
    QVERIFY(read);
    QCOMPARE(read->name, name);
    QCOMPARE(read->type, type);
    QCOMPARE(read->data, data);
    // No line but a plain text's may be longer than the registry editor writes it.
    for (const QString &line : script.split(u'\n'))
        QVERIFY2(line.size() <= 80, qUtf8Printable(line));
}

void TestRegFile::breaksLongLines()
{
    contract_->writeRaw(testKey, {u"n"_s, RegistryType::Binary, QByteArray(30, '\1')});
    const QStringList lines = written().split(u'\n');
    QCOMPARE(lines.at(3), u"\"n\"=hex:"_s + u"01,"_s.repeated(23) + u"\\"_s);
    QCOMPARE(lines.at(4), u"  "_s + u"01,"_s.repeated(6) + u"01"_s);
}

void TestRegFile::comesBackAsAWhole()
{
    for (int i = 0; i < 300; ++i) {
        const QString key = testKey + u"\\%1\\%2"_s.arg(i % 7).arg(i);
        contract_->writeRaw(key, {u"v%1"_s.arg(i), RegistryType(quint32(i % 12)), QByteArray(i, char(i))});
    }
    const QString script = written();
    contract_->machine().registry().removeKey(*contract_->machine().registry().find(testKey));
    import("\xFF\xFE" + littleEndian(QString(script).replace(u"\n"_s, u"\r\n"_s)));
    QCOMPARE(written(), script);
    QCOMPARE(platform().openKey(testKey)->allKeys().size(), 300);
}

/** A line break would begin another line. */
void TestRegFile::leavesOutWhatNoScriptCanSay()
{
    RegistryStore &registry = contract_->machine().registry();
    const auto text = [](const QString &name) {
        return RegistryValue{name, RegistryType::String, registryText(u"a text"_s)};
    };
    const auto kept = *registry.make(testKey + u"\\kept"_s);
    registry.setValue(kept, text(u"kept"_s));
    const QString good = written();
    for (const QString &name : {u"a\nb"_s, u"a]\r\n[HKEY_USERS\r"_s, u"\0x"_s}) {
        registry.setValue(kept, text(name));
        registry.setValue(*registry.make(testKey + u'\\' + name + u"\\below"_s), text(u"lost"_s));
    }
    QCOMPARE(written(), good);
    QStringList leftOut;
    writeRegistryScript(registry, testKey, &leftOut);
    QCOMPARE(leftOut.size(), 6);
    QVERIFY(leftOut.contains(testKey + u"\\a\nb"_s));
    QVERIFY(leftOut.contains(testKey + u"\\kept: a\nb"_s));
}

void TestRegFile::readsMany()
{
    QByteArray script = header;
    for (int i = 0; i < 5000; ++i)
        script +=
            "[HKLM\\SOFTWARE\\Many\\" + QByteArray::number(i) + "]\n\"n\"=dword:" + QByteArray::number(i, 16) + "\n";
    import(script);
    const auto key = platform().openKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Many"_s);
    QCOMPARE(key->childGroups().size(), 5000);
    QCOMPARE(key->value(u"4999/n"_s), QVariant(4999));
}

KESTRUNE_SUITE(TestRegFile)
#include "tst_regfile.moc"
