// SPDX-License-Identifier: GPL-3.0-or-later
// Importing what "schtasks /xml" printed, and the code page of a console.

#include "support/smallmachine.h"
#include "support/suite.h"

#include "console/console.h"
#include "machine/source/toolreport.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString declaration = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n"_s;

QString document(const QString &uri, const QString &description)
{
    return u"<Task version=\"1.2\" xmlns=\"http://x\">\r\n  <RegistrationInfo>\r\n    <Description>%2</Description>\r\n"
           "    <URI>%1</URI>\r\n  </RegistrationInfo>\r\n</Task>"_s.arg(uri, description);
}

/** Two tasks one after another; the first one's comment names another path than it does itself. */
QString plainExport()
{
    return u"\r\n<!-- \\Folder\\Größe -->\r\n"_s + declaration + document(u"\\other"_s, u"wächst"_s) + u"\r\n\r\n\r\n"_s
           + u"<!-- \\Second -->\r\n"_s + declaration + document(u"\\Second"_s, u"a &amp; b"_s) + u"\r\n"_s;
}

QStringList pathsOf(const QList<ScheduledTask> &tasks)
{
    QStringList paths;
    for (const ScheduledTask &task : tasks)
        paths.append(task.path);
    return paths;
}

} // namespace

class TestTaskExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encodings_data();
    void encodings();
    void withinTasks();
    void uriNamesATaskWithoutComment();
    void endTagInsideACDataSection();
    void doubledCarriageReturns();
    void mistakesAreToldWithTheirLine_data();
    void mistakesAreToldWithTheirLine();
    void malformedFileLeavesTheMachine();
    void importSetsAnew();
    void sourceFolderHasTasks();
    void knownByItsContent_data();
    void knownByItsContent();
    void codePage();
    void codePagesByTheirNumbers_data();
    void codePagesByTheirNumbers();
    void largeExport();
};

void TestTaskExport::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QString text = plainExport();
    QStringEncoder little(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    QStringEncoder big(QStringConverter::Utf16BE, QStringConverter::Flag::WriteBom);
    QTest::newRow("UTF-8") << text.toUtf8();
    QTest::newRow("UTF-8 with mark") << "\xef\xbb\xbf" + text.toUtf8();
    QTest::newRow("UTF-16 LE") << QByteArray(little(text));
    QTest::newRow("UTF-16 BE") << QByteArray(big(text));
    QTest::newRow("console") << toConsoleBytes(text);
}

void TestTaskExport::encodings()
{
    QFETCH(QByteArray, bytes);
    const QList<ScheduledTask> tasks = parseTaskExport(bytes, u"f"_s);
    QCOMPARE(pathsOf(tasks), QStringList({u"\\Folder\\Größe"_s, u"\\Second"_s}));
    QCOMPARE(tasks.at(0).document, document(u"\\other"_s, u"wächst"_s).remove(u'\r'));
}

void TestTaskExport::withinTasks()
{
    const QString text = u"<?xml version=\"1.0\" ?>\n<Tasks>\n\n<!-- \\a -->\n"_s + document(u"\\a"_s, {}) + u"\n"_s
                         + document(u"\\b"_s, {}) + u"\n\n</Tasks>\n"_s;
    QCOMPARE(pathsOf(parseTaskExport(text.toUtf8(), u"f"_s)), QStringList({u"\\a"_s, u"\\b"_s}));
}

void TestTaskExport::uriNamesATaskWithoutComment()
{
    const QString text = u"<!-- a remark -->"_s + document(u"without backslash"_s, {});
    QCOMPARE(pathsOf(parseTaskExport(text.toUtf8(), u"f"_s)), QStringList(u"\\without backslash"_s));
}

void TestTaskExport::endTagInsideACDataSection()
{
    const QString first = document(u"\\a"_s, u"<![CDATA[</Task>]]><!-- </Task> -->"_s).remove(u'\r');
    const QString text = first + u'\n' + document(u"\\b"_s, {});
    const QList<ScheduledTask> tasks = parseTaskExport(text.toUtf8(), u"f"_s);
    QCOMPARE(pathsOf(tasks), QStringList({u"\\a"_s, u"\\b"_s}));
    QCOMPARE(tasks.at(0).document, first);
}

void TestTaskExport::doubledCarriageReturns()
{
    QString text = plainExport();
    text.replace(u"\r\n"_s, u"\r\r\n"_s);
    QVERIFY(!parseTaskExport(text.toUtf8(), u"f"_s).at(0).document.contains(u'\r'));
}

void TestTaskExport::mistakesAreToldWithTheirLine_data()
{
    addColumns<QString, QString>("text", "message");
    // clang-format off
    QTest::newRow("empty")              << u""_s                                         << u"f:1: no task in it"_s;
    QTest::newRow("list without tasks") << u"<Tasks>\n</Tasks>"_s                        << u"f:1: no task in it"_s;
    QTest::newRow("other text")         << u"\n\nERROR: Access is denied."_s             << u"f:3: neither a task nor a comment"_s;
    QTest::newRow("comment")            << u"<!-- \\a --\n"_s                            << u"f:1: the comment doesn't end"_s;
    QTest::newRow("declaration")        << u"<!-- \\a -->\n<?xml version"_s              << u"f:2: the declaration doesn't end"_s;
    QTest::newRow("truncated")          << u"<!-- \\a -->\n<Task>\n<Settings>"_s         << u"f:2: the task doesn't end"_s;
    QTest::newRow("truncated in a tag") << u"<!-- \\a -->\n<Task>\n<Sett"_s              << u"f:2: the task doesn't end"_s;
    QTest::newRow("no path")            << u"\n<Task>\n<Settings/>\n</Task>"_s           << u"f:2: the task has neither a comment with its path nor a URI"_s;
    QTest::newRow("path of another")    << u"<!-- \\a --><Task></Task>\n<Task></Task>"_s << u"f:2: the task has neither a comment with its path nor a URI"_s;
    // clang-format on
}

void TestTaskExport::mistakesAreToldWithTheirLine()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    QCOMPARE(errorOf([&] { parseTaskExport(text.toUtf8(), u"f"_s); }), message);
}

void TestTaskExport::malformedFileLeavesTheMachine()
{
    SmallMachine machine;
    const QString file = machine.beside(u"tasks.xml"_s);
    writeFile(file, plainExport().toUtf8() + "<!-- \\c -->\n<Task>\n  <Settings>\n  </Setting>\n</Task>\n");
    const QString error = errorOf([&] { importFile(*machine, file); });
    QVERIFY2(error.startsWith(file + u":23: "_s), qUtf8Printable(error));
    QCOMPARE(error.count(u'\n'), 0);
    QVERIFY(machine->tasks().isEmpty());
}

void TestTaskExport::importSetsAnew()
{
    SmallMachine machine;
    machine->setTask({u"\\SECOND"_s, u"<Task/>"_s});
    machine->setTask({u"\\stays"_s, u"<Task/>"_s});
    const QString file = machine.beside(u"from-a-pc.txt"_s);
    writeFile(file, toConsoleBytes(plainExport()));
    importFile(*machine, file);
    QCOMPARE(pathsOf(machine->tasks()), QStringList({u"\\SECOND"_s, u"\\stays"_s, u"\\Folder\\Größe"_s}));
    QVERIFY(machine->task(u"\\second"_s)->document.contains("a &amp; b"_L1));
}

void TestTaskExport::sourceFolderHasTasks()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"tasks.xml"_s), plainExport().toUtf8());
    makeMachine(folder.filePath(u"machine"_s), folder.path(), Existing::Keep);
    QCOMPARE(Machine::open(folder.filePath(u"machine"_s))->tasks().size(), 2);
}

void TestTaskExport::knownByItsContent_data()
{
    addColumns<QString, QByteArray, bool>("name", "bytes", "known");
    // clang-format off
    QTest::newRow("by its name")        << u"TASKS.XML"_s << QByteArray()                        << true;
    QTest::newRow("comment")            << u"a.txt"_s     << QByteArray("\r\n<!-- \\a -->\r\n")  << true;
    QTest::newRow("declaration")        << u"a.txt"_s     << QByteArray("<?xml version")         << true;
    QTest::newRow("list")               << u"a.txt"_s     << QByteArray("<Tasks>")               << true;
    QTest::newRow("description")        << u"a.json"_s    << QByteArray("{ \"a\": \"<Task>\" }") << false;
    QTest::newRow("services")           << u"a.txt"_s     << QByteArray("SERVICE_NAME: a")       << false;
    QTest::newRow("nothing")            << u"a.txt"_s     << QByteArray()                        << false;
    // clang-format on
}

void TestTaskExport::knownByItsContent()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QTEST(isTaskExport(name, bytes), "known");
}

void TestTaskExport::codePage()
{
    QCOMPARE(toConsoleBytes(u"aÄöß®\u00a0–日😀z"_s), QByteArray("a\x8e\x94\xe1\xa9\xff???z"));
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    QCOMPARE(fromConsoleBytes(all).size(), 256);
    QCOMPARE(toConsoleBytes(fromConsoleBytes(all)), all);
}

void TestTaskExport::codePagesByTheirNumbers_data()
{
    addColumns<uint, QByteArray, QString>("number", "bytes", "text");
    QTest::newRow("simplified Chinese") << 936U << QByteArray("a\xc3\xfb\xb3\xc6z") << u"a名称z"_s;
    QTest::newRow("Russian console") << 866U << QByteArray("\x88\xac\xef z") << u"Имя z"_s;
    QTest::newRow("Russian window") << 1251U << QByteArray("\xc8\xec\xff z") << u"Имя z"_s;
    QTest::newRow("Western Europe") << 850U << QByteArray("Gr\x94\xe1\x65") << u"Größe"_s;
    QTest::newRow("nothing") << 936U << QByteArray() << QString();
    QTest::newRow("cut off") << 936U << QByteArray("a\xc3") << u"a\ufffd"_s;
    // More than is read in one go
    QTest::newRow("long") << 936U << QByteArray("\xc3\xfb").repeated(5000) << u"名"_s.repeated(5000);
}

void TestTaskExport::codePagesByTheirNumbers()
{
    QFETCH(uint, number);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(textOfCodePage(bytes, number), std::optional(text));
    QCOMPARE(textOfCodePage(bytes, 99999), std::optional<QString>());
}

void TestTaskExport::largeExport()
{
    constexpr int count = 3000;
    QString text;
    for (int i = 0; i < count; ++i)
        text += u"<!-- \\t%1 -->\r\n"_s.arg(i) + document({}, QString(500, u'x'));
    const QList<ScheduledTask> tasks = parseTaskExport(text.toUtf8(), u"f"_s);
    QCOMPARE(tasks.size(), count);
    QCOMPARE(tasks.last().path, u"\\t2999"_s);
}

KESTRUNE_SUITE(TestTaskExport)
#include "tst_taskexport.moc"
