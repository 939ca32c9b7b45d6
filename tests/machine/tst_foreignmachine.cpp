// SPDX-License-Identifier: GPL-3.0-or-later
// Machines from strangers: what their database would run, what never ends, what is too deep or too large, and paths
// that would lead out.

#include "machine/database.h"
#include "machine/machinekey.h"
#include "machine/source/regfile.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include <QDataStream>
#include <QDir>
#include <QTest>
#include <QThread>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const char *const endless = "WITH RECURSIVE n (x) AS (VALUES (1) UNION ALL SELECT x + 1 FROM n) SELECT max(x) FROM n";

/** SQL that makes keys below HKEY_CURRENT_USER, each in the one before. */
QByteArray nestedKeys(int count)
{
    return "INSERT INTO key (id, parent, name, fold) WITH RECURSIVE n (x) AS (VALUES (1000) UNION ALL SELECT x + 1 "
           "FROM n WHERE x + 1 < 1000 + "
           + QByteArray::number(count) + ") SELECT x, CASE x WHEN 1000 THEN 2 ELSE x - 1 END, 'k', 'K' FROM n";
}

/** The path of a key so many levels deep, the hive among them. */
QString deepKey(int levels)
{
    return u"HKEY_CURRENT_USER"_s + u"\\k"_s.repeated(levels - 1);
}

/** A value as settings keep variants that are no texts. */
RegistryValue variantValue(const QByteArray &bytes)
{
    const QString text = u"@Variant("_s + QString::fromLatin1(bytes) + u')';
    return {u"x"_s, RegistryType::Binary, registryText(text).chopped(2)};
}

QByteArray scriptOf(const QString &key)
{
    return "Windows Registry Editor Version 5.00\n\n[" + key.toUtf8() + "]\n";
}

} // namespace

class TestForeignMachine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nothingOfADatabaseIsRun();
    void whatIsSaidIsOneLine();
    void anEndlessQueryEnds();
    void anEndlessQueryHeedsInterruption();
    void openRefuses_data();
    void openRefuses();
    void damageIsFoundAtOpening();
    void keysMayBeAsDeepAsThoseOfWindows();
    void deeperKeysAreRefused();
    void nestedListsAreReadToADepth();
    void foreignTypesAreNotBuilt();
    void aZeroInAPathLeadsNowhere();
    void aZeroInAPathIsNotImported();
    void hugeThingsAreNotImported_data();
    void hugeThingsAreNotImported();

private:
    QString folder() const { return temporary_->filePath(u"m"_s); }
    QString beside(const QString &name) const { return temporary_->filePath(name); }

    std::unique_ptr<QTemporaryDir> temporary_;
};

void TestForeignMachine::init()
{
    temporary_ = std::make_unique<QTemporaryDir>();
}

void TestForeignMachine::nothingOfADatabaseIsRun()
{
    Database database(beside(u"x.sqlite"_s));
    database.execute("CREATE TABLE t (x); CREATE TRIGGER more AFTER INSERT ON t BEGIN INSERT INTO t VALUES (2); END;"
                     "CREATE VIEW v AS SELECT x FROM t");
    database.execute("INSERT INTO t VALUES (1)");
    {
        auto count = database.query("SELECT count(*) FROM t");
        QVERIFY(count.next());
        QCOMPARE(count.integer(0), 1);
    }
    QVERIFY(!errorOf([&] { database.query("SELECT x FROM v").run(); }).isEmpty());
    auto trusted = database.query("PRAGMA trusted_schema");
    QVERIFY(trusted.next());
    QCOMPARE(trusted.integer(0), 0);
    // What an attack would do to the schema by means of a statement
    QVERIFY(!errorOf([&] {
                 database.execute("PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = 'x'");
             }).isEmpty());
}

/** Whoever made a file gives names to its tables, which SQLite tells. */
void TestForeignMachine::whatIsSaidIsOneLine()
{
    Database database(beside(u"x.sqlite"_s));
    const QString problem = errorOf([&] { database.execute("SELECT * FROM \"two\nlines\x1b[0m\""); });
    QVERIFY2(problem.contains(u"two\\nlines\\x1b[0m"_s), qPrintable(problem));
}

void TestForeignMachine::anEndlessQueryEnds()
{
    Database database(beside(u"x.sqlite"_s));
    const QString problem = errorOf([&] { database.query(endless).run(); });
    QVERIFY2(problem.contains(u"x.sqlite"_s) && problem.contains(u"doesn't end"_s), qPrintable(problem));
    // The next one has all its time again.
    database.execute("CREATE TABLE t (x)");
}

void TestForeignMachine::anEndlessQueryHeedsInterruption()
{
    Database database(beside(u"x.sqlite"_s));
    QString problem;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        QThread::currentThread()->requestInterruption();
        problem = errorOf([&] { database.query(endless).run(); });
    }));
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY2(problem.contains(u"interrupted"_s), qPrintable(problem));
}

void TestForeignMachine::openRefuses_data()
{
    addColumns<QByteArray, QString>("statements", "reason"); // carried out in a good machine's database
    const auto row = [](const char *name, const QByteArray &statements, const QString &reason) {
        QTest::newRow(name) << statements << reason;
    };
    row("a trigger that never ends",
        "CREATE TRIGGER endless AFTER INSERT ON exitcode BEGIN INSERT INTO process (name) SELECT x FROM (WITH "
        "RECURSIVE n (x) AS (VALUES (1) UNION ALL "
        "SELECT x + 1 FROM n) SELECT x FROM n); END",
        u"'endless'"_s);
    row("a view for a table",
        "DROP TABLE runstate; CREATE VIEW runstate (fold, service, running) AS WITH RECURSIVE n (x) AS (VALUES (1) "
        "UNION ALL SELECT x + 1 FROM n) SELECT x, x, 1 FROM n",
        u"'runstate'"_s);
    row("an index that reckons", "CREATE INDEX slow ON value (printf('%.*c', 1000, name))", u"'slow'"_s);
    row("a table that reckons",
        "DROP TABLE process; CREATE TABLE process (id INTEGER PRIMARY KEY, name TEXT NOT NULL, "
        "x TEXT AS (printf('%.*c', 1000, name)))",
        u"'process'"_s);
    row("a table without a column", "ALTER TABLE task DROP COLUMN document",
        u"its table 'task' has no column 'document'"_s);
    row("a table too few", "DROP TABLE process", u"it has no table 'process'"_s);
    row("a table too many", "CREATE TABLE other (x)", u"'other'"_s);
    row("a key that is its own parent", "UPDATE key SET parent = id WHERE name = 'HKEY_USERS'", u"registry"_s);
    row("keys that are each other's parent",
        "INSERT INTO key (id, parent, name, fold) VALUES (1000, 1001, 'a', 'A'), (1001, 1000, 'b', 'B')",
        u"registry"_s);
    row("a key that is the root", "INSERT INTO key (id, parent, name, fold) VALUES (0, 0, 'a', 'A')", u"registry"_s);
    row("513 levels of keys", nestedKeys(512), u"512 levels"_s);
    row("a key's long name",
        "UPDATE key SET name = '" + QByteArray(256, 'a') + "' WHERE id = (SELECT max(id) FROM key)",
        u"a name of more than 255 characters"_s);
    row("200,000 levels of keys", nestedKeys(200000), u"512 levels"_s);
    row("an output without end", "INSERT INTO fault VALUES ('SC', 0, 0, NULL, 'x', 2147483647)", u"'SC'"_s);
    row("a long output again and again", "INSERT INTO fault VALUES ('SC', 0, 0, NULL, hex(zeroblob(1000000)), 1000)",
        u"'SC'"_s);
    row("a file of 10 TB", "INSERT INTO meta VALUES ('size C:\\X', 10995116277760)", u"C:\\X"_s);
    row("a file of 10 TB to be made", "INSERT INTO meta VALUES ('hiberfile', 10995116277760)", u"hiberfil.sys"_s);
}

void TestForeignMachine::openRefuses()
{
    QFETCH(QByteArray, statements);
    QFETCH(QString, reason);
    Machine::create(folder())->database().execute(statements.constData());

    const QString problem = errorOf([this] { Machine::open(folder()); });

    QVERIFY2(problem.contains(u"machine.sqlite"_s) && problem.contains(u"damaged"_s), qPrintable(problem));
    QVERIFY2(problem.contains(reason) && !problem.contains(u'\n'), qPrintable(problem));
}

/** Not by the job that comes upon it after half its work. */
void TestForeignMachine::damageIsFoundAtOpening()
{
    {
        const auto machine = Machine::create(folder());
        for (int i = 0; i < 2000; ++i)
            machine->registry().make(u"HKEY_CURRENT_USER\\"_s + QString::number(i));
    }
    const QString file = folder() + u"/machine.sqlite"_s;
    const QByteArray good = readFile(file);
    constexpr qsizetype page = 4096;
    for (qsizetype at = page; at < good.size(); at += page) {
        QByteArray damaged = good;
        damaged.replace(at, 100, QByteArray(100, '\xA5'));
        writeFile(file, damaged);
        const QString problem = errorOf([this] { Machine::open(folder()); });
        QVERIFY2(problem.contains(u"damaged"_s), qPrintable(u"page %1: %2"_s.arg(at / page).arg(problem)));
    }
}

void TestForeignMachine::keysMayBeAsDeepAsThoseOfWindows()
{
    {
        SmallMachine machine;
        const QString file = machine.beside(u"deep.reg"_s);
        writeFile(file, scriptOf(deepKey(512)));
        importFile(*machine, file);
        QVERIFY(machine->registry().find(deepKey(512)));
        QCOMPARE(errorOf([&] { Machine::open(machine.folder()); }), QString());
    }
    Machine::create(folder())->database().execute(nestedKeys(511).constData());
    QVERIFY(Machine::open(folder())->registry().find(deepKey(512)));
}

void TestForeignMachine::deeperKeysAreRefused()
{
    SmallMachine machine;
    const QString file = machine.beside(u"deep.reg"_s);
    for (const int levels : {513, 15000}) {
        writeFile(file, scriptOf(deepKey(levels)));
        QCOMPARE(errorOf([&] { importFile(*machine, file); }), file + u":3: a key is at most 512 levels deep"_s);
        QVERIFY(!errorOf([&] { machine->registry().make(deepKey(levels)); }).isEmpty());
    }
    const auto key = machine->registry().make(deepKey(512));
    QVERIFY(key);
    QVERIFY(!errorOf([&] { machine->registry().make(*key, u"k"_s); }).isEmpty());
    QVERIFY(!machine->registry().find(deepKey(513)));
}

void TestForeignMachine::nestedListsAreReadToADepth()
{
    const QByteArray list("\0\0\0\x09\0\0\0\x01", 8);
    const QByteArray number("\0\0\0\x02\0\0\0\x07", 8);
    QVariant read = variantOf(variantValue(list.repeated(60) + number));
    for (int depth = 0; depth < 60; ++depth) {
        QCOMPARE(read.toList().size(), 1);
        read = read.toList().constFirst();
    }
    QCOMPARE(read, QVariant(7));
    QCOMPARE(variantOf(variantValue(list.repeated(65) + number)), QVariant());
    QCOMPARE(variantOf(variantValue(list.repeated(200000) + number)), QVariant());
    // More entries than there are bytes
    QCOMPARE(variantOf(variantValue(QByteArray("\0\0\0\x09\xff\xff\xff\xff", 8))), QVariant());
    QCOMPARE(variantOf(variantValue(QByteArray("\0\0\0\x0b\xff\xff\xff\xf0", 8))), QVariant());
}

void TestForeignMachine::foreignTypesAreNotBuilt()
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_0);
    stream << QVariant(QUrl(u"file://host/x"_s));
    QCOMPARE(variantOf(variantValue(bytes)), QVariant());

    const QVariantList settings{
        u"text"_s,      7, qint64(8), 9u, true, 1.5, QByteArray("\0x", 2), QStringList{u"a"_s, u""_s}, QVariant(),
        QVariantList{1}};
    QCOMPARE(variantOf(registryValueOf(u"x"_s, QVariant(settings))), QVariant(settings));
}

/** QFileInfo says that there is no such file, and QFile opens the one whose name ends there. */
void TestForeignMachine::aZeroInAPathLeadsNowhere()
{
#ifdef Q_OS_WIN
    QSKIP("needs a link to a file");
#endif
    SmallMachine machine;
    const QString outside = machine.beside(u"outside.txt"_s);
    writeFile(outside, "untouched");
    QVERIFY(QFile::link(outside, machine->driveFolder() + u"/o"_s));
    for (const QString &path : {u"C:\\o"_s + QChar(0) + u'x', u"C:\\o"_s + QChar(0), u"C:\\o\\"_s + QChar(0) + u"\\x"_s,
                                machine->driveFolder() + u"/o"_s + QChar(0) + u'x'}) {
        QFile file(machine->hostPath(path));
        QVERIFY(!file.open(QIODevice::WriteOnly));
        QVERIFY(!file.fileName().contains(QChar(0)));
    }
    QCOMPARE(readFile(outside), QByteArray("untouched"));
}

void TestForeignMachine::aZeroInAPathIsNotImported()
{
#ifdef Q_OS_WIN
    QSKIP("needs a link to a file");
#endif
    SmallMachine machine;
    const QString outside = machine.beside(u"outside.txt"_s);
    writeFile(outside, "untouched");
    QVERIFY(QFile::link(outside, machine->driveFolder() + u"/o"_s));
    const QString file = machine.beside(u"machine.json"_s);
    writeFile(file, R"({"formatVersion": 1, "files": [{"path": "C:\\o\u0000x", "text": "owned\n"}]})");
    QCOMPARE(errorOf([&] { importFile(*machine, file); }), file + u": files[0].path: has a zero in it"_s);
    QCOMPARE(readFile(outside), QByteArray("untouched"));
}

void TestForeignMachine::hugeThingsAreNotImported_data()
{
    addColumns<QByteArray, QString>("part", "message");
    QTest::newRow("a file of 10 TB") << QByteArray(R"("files": [{"path": "C:\\x", "size": 10995116277760}])")
                                     << u": files[0].size: must be between 0 and 1099511627776"_s;
    QTest::newRow("an output without end") << QByteArray(R"("faults": {"sc": {"output": "x", "repeat": 2147483647}})")
                                           << u": faults.sc: prints more than 256 MB"_s;
}

void TestForeignMachine::hugeThingsAreNotImported()
{
    QFETCH(QByteArray, part);
    QFETCH(QString, message);
    SmallMachine machine;
    const QString file = machine.beside(u"machine.json"_s);
    writeFile(file, R"({"formatVersion": 1, )" + part + '}');
    QCOMPARE(errorOf([&] { importFile(*machine, file); }), file + message);
}

KESTRUNE_SUITE(TestForeignMachine)
#include "tst_foreignmachine.moc"
