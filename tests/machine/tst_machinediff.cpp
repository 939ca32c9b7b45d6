// SPDX-License-Identifier: GPL-3.0-or-later
// Comparisons of machines.

#include "support/smallmachine.h"
#include "support/suite.h"

#include "machine/compare/machinediff.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString typesKey = u"HKEY_CURRENT_USER\\Software\\Types"_s;

/** Two machines of the same sources. */
struct Pair
{
    SmallMachine before;
    SmallMachine after;

    QList<DiffRow> rows() { return compareMachines(*before, *after); }
    void setValue(const QString &key, const RegistryValue &value)
    {
        RegistryStore &store = after->registry();
        if (const auto id = store.make(key))
            store.setValue(*id, value);
    }
};

QList<DiffRow> oneRow(DiffKind kind, const QString &path, const QString &name, const QString &before,
                      const QString &after)
{
    return {DiffRow{kind, path, name, before, after}};
}

} // namespace

class TestMachineDiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameSourcesDifferInNothing();
    void logAndExitCodesAreNotCompared();
    void runStates();
    void tasks();
    void valuesOfEachType_data();
    void valuesOfEachType();
    void typeAloneDiffers();
    void bytesAloneDiffer();
    void caseOfNamesIsNoDifference();
    void newAndRemovedValues();
    void keyHasItsRowOnlyWhereItIsEmpty();
    void files();
    void filesUpToAMebibyteByTheirContent();
    void foldersHaveTheirRowOnlyWhereTheyAreEmpty();
    void otherDrives();
    void programFolder();
    void attributes();
    void comparingChangesNothing();
    void rowsAreSortedByKindAndPath();
    void textIsInColumns();
    void jsonHoldsEachRow();
    void pageIsEscapedAndSelfContained();
};

void TestMachineDiff::sameSourcesDifferInNothing()
{
    Pair pair;
    QCOMPARE(pair.rows(), QList<DiffRow>());
    QCOMPARE(diffText({}), QString());
}

void TestMachineDiff::logAndExitCodesAreNotCompared()
{
    Pair pair;
    pair.after->logCommand(u"sc"_s, {}, 0);
    pair.after->leaveExitCode(1, 2);
    QCOMPARE(pair.rows(), QList<DiffRow>());
}

void TestMachineDiff::runStates()
{
    Pair pair;
    pair.after->setRunning(u"DIAGTRACK"_s, false);
    pair.after->setRunning(u"Appinfo"_s, true);
    const QList<DiffRow> rows = pair.rows();
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.mid(0, 1), oneRow(DiffKind::Service, u"Appinfo"_s, {}, u"never started"_s, u"running"_s));
    QCOMPARE(rows.mid(1, 1), oneRow(DiffKind::Service, u"DiagTrack"_s, {}, u"running"_s, u"stopped"_s));
}

void TestMachineDiff::tasks()
{
    const auto document = [](const char *settings, const char *info = "") {
        return QString(u"<Task><RegistrationInfo>%1</RegistrationInfo><Settings>%2</Settings></Task>"_s)
            .arg(QLatin1StringView(info), QLatin1StringView(settings));
    };
    const QString off = document("<Enabled>false</Enabled>");
    Pair pair;
    for (const QString &path : {u"\\same"_s, u"\\Folder\\switched"_s, u"\\changed"_s, u"\\removed"_s, u"\\both"_s})
        pair.before->setTask({path, document("")});
    pair.after->setTask({u"\\SAME"_s, document("")});
    pair.after->setTask({u"\\Folder\\switched"_s, off});
    pair.after->setTask({u"\\changed"_s, document("", "x")});
    pair.after->setTask({u"\\new"_s, off});
    pair.after->setTask({u"\\both"_s, document("<Enabled>false</Enabled>", "x")});

    const QList<DiffRow> rows = pair.rows();
    QCOMPARE(rows.size(), 5);
    const auto task = [](const QString &path, const QString &before, const QString &after) {
        return oneRow(DiffKind::Task, path, {}, before, after);
    };
    const QString plain = u", document of 71 characters, sha256 "_s;
    QVERIFY2(rows.at(0).before.startsWith(u"enabled"_s + plain), qUtf8Printable(rows.at(0).before));
    QVERIFY(rows.at(0).after.startsWith("disabled, document of 96 characters, sha256 "_L1));
    QCOMPARE(rows.at(1).path, u"\\changed"_s);
    QVERIFY(rows.at(1).after.startsWith("enabled, document of 72 characters, sha256 "_L1));
    QVERIFY(rows.at(1).before.startsWith(u"enabled"_s + plain));
    QCOMPARE(rows.mid(2, 1), task(u"\\Folder\\switched"_s, u"enabled"_s, u"disabled"_s));
    QCOMPARE(rows.mid(3, 1), task(u"\\new"_s, {}, u"disabled"_s));
    QCOMPARE(rows.mid(4, 1), task(u"\\removed"_s, u"enabled"_s, {}));
    QVERIFY(diffText(rows).startsWith("task      \\both"_L1));
    QVERIFY(diffHtml(rows, u"a"_s, u"b"_s).contains("<h2>Scheduled tasks (5)</h2>"_L1));
}

void TestMachineDiff::valuesOfEachType_data()
{
    addColumns<QString, int, QByteArray, QString, QString>("name", "type", "data", "before", "after");
    const auto row = [](const char *title, const QString &name, RegistryType type, const QByteArray &data,
                        const QString &before, const QString &after) {
        QTest::newRow(title) << name << static_cast<int>(type) << data << before << after;
    };
    using enum RegistryType;
    row("text", u"Text"_s, String, registryText(u"new\nline"_s), u"\"a \"b\" c\""_s, u"\"new\\nline\""_s);
    row("expandable text", u"Path"_s, ExpandString, registryText(u"%b%"_s), u"expand \"%a%\""_s, u"expand \"%b%\""_s);
    row("texts", u"List"_s, MultiString, registryTexts({u"a"_s}), u"multi \"a\" \"b\""_s, u"multi \"a\""_s);
    row("number", u"Number"_s, DWord, registryDWord(0xffffffff), u"dword 42"_s, u"dword 4294967295"_s);
    row("large number", u"Big"_s, QWord, registryQWord(1ULL << 40), u"qword 1"_s, u"qword 1099511627776"_s);
    row("bytes", u"Bytes"_s, Binary, QByteArray("\x01\xff", 2), u"binary 01 02 03"_s, u"binary 01 ff"_s);
    row("no bytes", u"Bytes"_s, Binary, QByteArray(), u"binary 01 02 03"_s, u"binary"_s);
    row("unnamed", u""_s, String, registryText(u"x"_s), u"\"unnamed\""_s, u"\"x\""_s);
    row("broken number", u"Number"_s, DWord, QByteArray("\x01\x02", 2), u"dword 42"_s, u"dword 01 02"_s);
    row("type without a name", u"Number"_s, static_cast<RegistryType>(77), QByteArray("\x01", 1), u"dword 42"_s,
        u"type 77 01"_s);
}

void TestMachineDiff::valuesOfEachType()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(QByteArray, data);
    QFETCH(QString, before);
    QFETCH(QString, after);
    Pair pair;
    pair.setValue(typesKey, {name, static_cast<RegistryType>(type), data});
    QCOMPARE(pair.rows(), oneRow(DiffKind::Registry, typesKey, name.isEmpty() ? u"(default)"_s : name, before, after));
}

void TestMachineDiff::typeAloneDiffers()
{
    Pair pair;
    pair.setValue(typesKey, {u"Text"_s, RegistryType::ExpandString, registryText(u"a \"b\" c"_s)});
    QCOMPARE(pair.rows(),
             oneRow(DiffKind::Registry, typesKey, u"Text"_s, u"\"a \"b\" c\""_s, u"expand \"a \"b\" c\""_s));
}

void TestMachineDiff::bytesAloneDiffer()
{
    Pair pair;
    // A text without its closing zero reads the same.
    pair.setValue(typesKey, {u"Path"_s, RegistryType::ExpandString, registryText(u"%a%"_s).chopped(2)});
    QCOMPARE(pair.rows(), oneRow(DiffKind::Registry, typesKey, u"Path"_s, u"expand bytes 25 00 61 00 25 00 00 00"_s,
                                 u"expand bytes 25 00 61 00 25 00"_s));
}

void TestMachineDiff::caseOfNamesIsNoDifference()
{
    Pair pair;
    RegistryStore &store = pair.after->registry();
    if (const auto key = store.find(u"HKEY_CURRENT_USER\\Software\\Empty"_s))
        store.removeKey(*key);
    QVERIFY(store.make(u"HKEY_CURRENT_USER\\Software\\EMPTY"_s));
    const auto types = store.find(typesKey);
    QVERIFY(types);
    store.removeValue(*types, u"Number"_s);
    store.setValue(*types, {u"NUMBER"_s, RegistryType::DWord, registryDWord(42)});
    QCOMPARE(pair.rows(), QList<DiffRow>());
}

void TestMachineDiff::newAndRemovedValues()
{
    Pair pair;
    pair.setValue(typesKey, {u"New"_s, RegistryType::DWord, registryDWord(1)});
    const auto key = pair.after->registry().find(typesKey);
    QVERIFY(key);
    pair.after->registry().removeValue(*key, u"Bytes"_s);
    const QList<DiffRow> rows = pair.rows();
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.mid(0, 1), oneRow(DiffKind::Registry, typesKey, u"Bytes"_s, u"binary 01 02 03"_s, {}));
    QCOMPARE(rows.mid(1, 1), oneRow(DiffKind::Registry, typesKey, u"New"_s, {}, u"dword 1"_s));
}

void TestMachineDiff::keyHasItsRowOnlyWhereItIsEmpty()
{
    Pair pair;
    const QString above = u"HKEY_CURRENT_USER\\Software\\Above"_s;
    pair.setValue(above + u"\\WithValue"_s, {u"x"_s, RegistryType::DWord, registryDWord(1)});
    QVERIFY(pair.after->registry().make(above + u"\\Empty"_s));
    const auto gone = pair.after->registry().find(u"HKEY_CURRENT_USER\\Software\\Empty"_s);
    QVERIFY(gone);
    pair.after->registry().removeKey(*gone);
    const QList<DiffRow> rows = pair.rows();
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.mid(0, 1), oneRow(DiffKind::Registry, above + u"\\Empty"_s, {}, {}, u"key"_s));
    QCOMPARE(rows.mid(1, 1), oneRow(DiffKind::Registry, above + u"\\WithValue"_s, u"x"_s, {}, u"dword 1"_s));
    QCOMPARE(rows.mid(2, 1), oneRow(DiffKind::Registry, u"HKEY_CURRENT_USER\\Software\\Empty"_s, {}, u"key"_s, {}));
}

void TestMachineDiff::files()
{
    Pair pair;
    const QString folder = pair.after->hostPath(u"C:\\Users\\Public"_s);
    writeFile(folder + u"/notes.txt"_s, "longer than before");
    writeFile(folder + u"/.hidden-on-unix"_s, "x");
    QVERIFY(QFile::remove(pair.after->hostPath(u"C:\\Windows\\explorer.exe"_s)));
    const QList<DiffRow> rows = pair.rows();
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.mid(0, 1), oneRow(DiffKind::File, u"C:\\Users\\Public\\.hidden-on-unix"_s, {}, {}, u"1 bytes"_s));
    QCOMPARE(rows.mid(1, 1),
             oneRow(DiffKind::File, u"C:\\Users\\Public\\notes.txt"_s, {}, u"6 bytes"_s, u"18 bytes"_s));
    QCOMPARE(rows.mid(2, 1), oneRow(DiffKind::File, u"C:\\Windows\\explorer.exe"_s, {}, u"2097152 bytes"_s, {}));
}

void TestMachineDiff::filesUpToAMebibyteByTheirContent()
{
    Pair pair;
    writeFile(pair.after->hostPath(u"C:\\Users\\Public\\notes.txt"_s), "HELLO\n");
    for (SmallMachine *machine : {&pair.before, &pair.after}) {
        const QByteArray fill(1024 * 1024, machine == &pair.before ? 'a' : 'b');
        writeFile((*machine)->driveFolder() + u"/limit"_s, fill);
        writeFile((*machine)->driveFolder() + u"/over"_s, fill + 'x');
    }
    const QList<DiffRow> rows = pair.rows();
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.at(0).path, u"C:\\limit"_s);
    QVERIFY(rows.at(0).before.startsWith("1048576 bytes, sha256 "_L1));
    QCOMPARE(rows.mid(1, 1), oneRow(DiffKind::File, u"C:\\Users\\Public\\notes.txt"_s, {},
                                    u"6 bytes, sha256 5891b5b5"_s, rows.at(1).after));
    QVERIFY(rows.at(1).after != rows.at(1).before);
}

void TestMachineDiff::foldersHaveTheirRowOnlyWhereTheyAreEmpty()
{
    Pair pair;
    QVERIFY(QDir(pair.after->driveFolder()).mkpath(u"a/b"_s));
    QCOMPARE(pair.rows(), oneRow(DiffKind::File, u"C:\\a\\b"_s, {}, {}, u"folder"_s));
    writeFile(pair.after->driveFolder() + u"/a/b/c"_s, "");
    QCOMPARE(pair.rows(), oneRow(DiffKind::File, u"C:\\a\\b\\c"_s, {}, {}, u"0 bytes"_s));
}

void TestMachineDiff::otherDrives()
{
    Pair pair;
    QVERIFY(QDir().mkpath(pair.after.folder() + u"/drive_d"_s));
    writeFile(pair.after.folder() + u"/drive_d/x"_s, "abc");
    QCOMPARE(pair.rows(), oneRow(DiffKind::File, u"D:\\x"_s, {}, {}, u"3 bytes"_s));
}

void TestMachineDiff::programFolder()
{
    Pair pair;
    QVERIFY(QDir(pair.after->programFolder()).mkpath(u"backup_svc"_s));
    writeFile(pair.after->programFolder() + u"/backup_svc/StartMode.reg"_s, "abc");
    QCOMPARE(pair.rows(), oneRow(DiffKind::File, u"program\\backup_svc\\StartMode.reg"_s, {}, {}, u"3 bytes"_s));
}

void TestMachineDiff::attributes()
{
    Pair pair;
    pair.after->setAttributes(u"C:\\Users\\Public\\secret.ini"_s, 0x20);
    pair.after->setAttributes(u"C:\\Users\\Public\\notes.txt"_s, 0x23);
    // A file that is gone has its row as a file.
    pair.after->setAttributes(u"C:\\Users\\Public\\none"_s, 0x2);
    const QList<DiffRow> rows = pair.rows();
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.mid(0, 1), oneRow(DiffKind::Attribute, u"C:\\Users\\Public\\notes.txt"_s, {}, u"archive"_s,
                                    u"readonly hidden archive"_s));
    QCOMPARE(rows.mid(1, 1), oneRow(DiffKind::Attribute, u"C:\\Users\\Public\\secret.ini"_s, {},
                                    u"hidden system archive"_s, u"archive"_s));
}

void TestMachineDiff::comparingChangesNothing()
{
    SmallMachine full;
    makeMachine(full.beside(u"empty"_s), QString(), Existing::Keep);
    const auto empty = Machine::open(full.beside(u"empty"_s));
    const QList<DiffRow> rows = compareMachines(*empty, *full);
    QVERIFY(rows.size() > 30);
    QCOMPARE(compareMachines(*empty, *full), rows);
    QVERIFY(!empty->registry().find(typesKey));
}

void TestMachineDiff::rowsAreSortedByKindAndPath()
{
    Pair pair;
    pair.after->setAttributes(u"C:\\Users\\Public\\notes.txt"_s, 0x22);
    writeFile(pair.after->driveFolder() + u"/b"_s, "");
    writeFile(pair.after->driveFolder() + u"/A"_s, "");
    pair.setValue(typesKey, {u"Number"_s, RegistryType::DWord, registryDWord(1)});
    pair.after->setRunning(u"Off"_s, true);
    QStringList order;
    for (const DiffRow &row : pair.rows())
        order.append(kindName(row.kind) + u' ' + row.path);
    QCOMPARE(order, QStringList({u"service Off"_s, u"registry "_s + typesKey, u"file C:\\A"_s, u"file C:\\b"_s,
                                 u"attribute C:\\Users\\Public\\notes.txt"_s}));
}

void TestMachineDiff::textIsInColumns()
{
    const QList<DiffRow> rows{
        {DiffKind::Service, u"DiagTrack"_s, {}, u"running"_s, u"stopped"_s},
        {DiffKind::Registry, u"HKEY_CURRENT_USER\\Long"_s, u"Name"_s, {}, u"dword 1"_s},
        {DiffKind::Registry, u"HKEY_USERS"_s, u"x"_s, u"dword 2"_s, {}},
    };
    QCOMPARE(diffText(rows), u"service   DiagTrack  running -> stopped\n"
                             "registry  HKEY_CURRENT_USER\\Long\\Name  not there -> dword 1\n"
                             "registry  HKEY_USERS\\x                 dword 2 -> not there\n"_s);
}

void TestMachineDiff::jsonHoldsEachRow()
{
    const QJsonArray array =
        QJsonDocument::fromJson(diffJson({
                                    {DiffKind::Registry, u"HKEY_USERS"_s, u"x"_s, {}, u"dword 1"_s},
                                }))
            .array();
    QCOMPARE(array.size(), 1);
    const QJsonObject row = array.at(0).toObject();
    QCOMPARE(row.keys(), QStringList({u"after"_s, u"before"_s, u"kind"_s, u"name"_s, u"path"_s}));
    QVERIFY(row.value("before"_L1).isNull());
    QCOMPARE(row.value("after"_L1).toString(), u"dword 1"_s);
    QCOMPARE(row.value("kind"_L1).toString(), u"registry"_s);
    QCOMPARE(diffJson({}).trimmed(), QByteArray("[\n]"));
}

void TestMachineDiff::pageIsEscapedAndSelfContained()
{
    const QString page = diffHtml({{DiffKind::File, u"C:\\<b>&\""_s, {}, {}, u"1 bytes"_s}}, u"<a>"_s, u"b"_s);
    QVERIFY(page.startsWith("<!DOCTYPE html>"_L1));
    QVERIFY(page.contains("C:\\&lt;b&gt;&amp;&quot;"_L1));
    QVERIFY(page.contains("before: &lt;a&gt;"_L1));
    QVERIFY(!page.contains("<b>"_L1));
    QVERIFY(page.contains("prefers-color-scheme: dark"_L1));
    for (const QLatin1StringView outside : {"http:"_L1, "https:"_L1, "<script"_L1, "<link"_L1, "url("_L1})
        QVERIFY(!page.contains(outside));
    QVERIFY(diffHtml({}, u"a"_s, u"b"_s).contains("Nothing differs."_L1));
}

KESTRUNE_SUITE(TestMachineDiff)
#include "tst_machinediff.moc"
