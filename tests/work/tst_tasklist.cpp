// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the list of scheduled tasks.

#include "joblines.h"
#include "platform/forwardingplatform.h"
#include "support/files.h"
#include "support/suite.h"
#include "support/taskexport.h"
#include "support/testmachine.h"
#include "work/command.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringConverter>
#include <QTest>

#include <filesystem>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QStringList closingLine{u"page: WorkThread::TaskMakeList"_s};
const QString none = u"no description"_s;

/** Lets schtasks print a text. */
void print(const TestMachine &machine, const QString &text, int repeat = 1)
{
    machine.machine().setFault(u"schtasks"_s, {.output = text, .repeat = repeat});
}

/** A stock tool that prints these very bytes, whatever it is asked. */
class PrintingTool
{
public:
    MachineOptions options() const { return {.stockTool = file_}; }

    void print(const QByteArray &bytes, const QByteArray &commandsAfter = {}) const
    {
        writeFile(file_ + u".txt"_s, bytes);
        writeFile(file_, "#!/bin/sh\ncat \"$0.txt\"\n" + commandsAfter);
        QVERIFY(QFile::setPermissions(file_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

private:
    QTemporaryDir folder_;
    QString file_ = folder_.filePath(u"tool"_s);
};

QString exportFile(const TestMachine &machine)
{
    return machine.platform().hostPath(u"C:\\Users\\Test\\AppData\\Local\\Temp\\tasks.xml"_s);
}

QString backupFolder(const TestMachine &machine)
{
    return machine.platform().programFolder() + u"/backup_tasks"_s;
}

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "can't be read";
}

QStringList pathsOf(const QList<TaskRow> &rows)
{
    QStringList paths;
    for (const TaskRow &row : rows)
        paths.append(row.path);
    return paths;
}

/** A list that is there from an earlier run. */
QList<TaskRow> oldList()
{
    return {{u"Old"_s, u"from before"_s, u"Old"_s, {}, 0}};
}

/** The rows that come of what schtasks prints. */
QList<TaskRow> rowsOf(const TestMachine &machine, const QString &text)
{
    print(machine, text);
    WorkThread worker;
    worker.TaskMakeList();
    return worker.tasks;
}

/** A machine with a folder for its temporary files. */
class TaskMachine : public TestMachine
{
public:
    explicit TaskMachine(MachineOptions options = {})
        : TestMachine(Windows::Eleven, std::move(options))
    {
        QDir().mkpath(QFileInfo(exportFile(*this)).path());
    }
};

} // namespace

class TestTaskList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Command::timeLimit = 30000; }

    void schtasksIsAskedOnceForAllTasks();
    void aRowHasAllItsFields();
    void rowsComeInTheOrderOfTheExport_data() { forms(); }
    void rowsComeInTheOrderOfTheExport();
    void theLastPieceNeverGivesARow_data();
    void theLastPieceNeverGivesARow();
    void aTaskOfTheNameTasksIsListed();

    void pathLosesItsFirstCharacter_data();
    void pathLosesItsFirstCharacter();
    void enabledCountsByItsTagAlone_data();
    void enabledCountsByItsTagAlone();
    void theTagOfOneTaskIsNotThatOfTheNext();
    void description_data();
    void description();
    void textBeforeTheFirstTaskDoesNotMatter_data();
    void textBeforeTheFirstTaskDoesNotMatter();
    void anAddressBeforeTheFirstTaskIsTakenForItsOwn();
    void markupInCDataAndCommentsIsCutLikeAnyOther();
    void nothingIsDecoded();

    void damagedExportGivesItsWholeTasks_data();
    void damagedExportGivesItsWholeTasks();
    void anExportCutAnywhereGivesTheTasksBeforeTheCut();
    void exportOf16BitsWithItsMarkIsRead_data();
    void exportOf16BitsWithItsMarkIsRead();
    void exportOf16BitsWithoutMarkGivesNoRow();
    void bytesThatAreNoTextAreRead();
    void sixtyMegabytesAreRead();

    void exportIsLeftBehindAndOverwritten();
    void exportFollowsNoLink_data() { links(); }
    void exportFollowsNoLink();
    void exportOfSomebodyElseIsNotRead();
    void folderOfTheExportMayLieOnALink();
    void backupFollowsNoLink();
    void backupInALinkedFolderIsLeftOut();
    void firstExportIsKeptAsABackup();
    void backupThatWasCutOffIsRenamed_data();
    void backupThatWasCutOffIsRenamed();
    void exportOfAnUnknownFormTakesNoBackupsPlace();
    void exportThatIsStillBeingPrintedIsNoBackup();
    void withoutRightsThereIsNoBackup();
    void backupThatCannotBeWrittenDoesNotMatter();

    void missingToolSendsNoLineAndEmptiesTheList();
    void missingToolIsNotLoggedUnlessTheLogIsOn();
    void failingToolSendsNoLine_data();
    void failingToolSendsNoLine();
    void hangingToolIsGivenUpAndWhatItPrintedIsRead();
    void exportThatCannotBeWrittenSendsNoLine();
    void anExceptionEndsTheListWithALineInTheLog();

    void aRunEmptiesTheListOfBefore();
    void duringAnalyzeNoClosingLineIsSent();
    void duringOptimizeAndRestoreTheClosingLineIsSent();
    void nothingIsLoggedOfAListingThatWorked();

private:
    static void forms();
    static void links();
};

void TestTaskList::forms()
{
    QTest::addColumn<bool>("inside");
    QTest::newRow("one document for each task") << false;
    QTest::newRow("one element around all tasks") << true;
}

void TestTaskList::schtasksIsAskedOnceForAllTasks()
{
    const TaskMachine machine;
    print(machine, listOfDocuments({{u"\\A"_s}}));
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 1));
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"schtasks"_s, {u"/xml"_s}, 0}}));
    QCOMPARE(machine.platform().takePauses(), QList<int>());
    QCOMPARE(lines.all(), closingLine);
}

void TestTaskList::aRowHasAllItsFields()
{
    const TaskMachine machine;
    const auto rows = rowsOf(machine, listOfDocuments({{u"\\Microsoft\\Windows\\Shell\\My task"_s, u"Does it."_s}}));
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.at(0).path, u"Microsoft\\Windows\\Shell\\My task"_s);
    QCOMPARE(rows.at(0).name, u"My task"_s);
    QCOMPARE(rows.at(0).description, u"Does it."_s);
    QCOMPARE(rows.at(0).extra, QString());
    QCOMPARE(rows.at(0).disabled, 0);
}

void TestTaskList::rowsComeInTheOrderOfTheExport()
{
    QFETCH(const bool, inside);
    const TaskMachine machine;
    const QList<ExportedTask> tasks{
        {u"\\Zeta"_s, u"Z"_s}, {u"\\Folder\\alpha"_s}, {u"\\Zeta"_s, u"Again"_s}, {u"\\Beta"_s}};
    const auto rows = rowsOf(machine, inside ? insideTasks(tasks) : listOfDocuments(tasks));
    QCOMPARE(pathsOf(rows), (QStringList{u"Zeta"_s, u"Folder\\alpha"_s, u"Zeta"_s, u"Beta"_s}));
    QCOMPARE(rows.at(0).description, u"Z"_s);
    QCOMPARE(rows.at(1).description, none);
    QCOMPARE(rows.at(2).description, u"Again"_s);
}

void TestTaskList::theLastPieceNeverGivesARow_data()
{
    QTest::addColumn<QString>("rest");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a line end") << u"\r\n"_s;
    QTest::newRow("closing tag") << u"</Tasks>"_s;
    QTest::newRow("closing tag after line ends") << u"\r\n\r\n</Tasks>\r\n"_s;
    QTest::newRow("closing tag after three line ends") << u"\r\n\r\n\r\n</Tasks>"_s;
    QTest::newRow("blanks") << u"      "_s;
    QTest::newRow("comment") << u"\r\n<!-- the end -->\r\n"_s;
    QTest::newRow("message") << u"\r\nERROR: Access is denied.\r\n"_s;
    QTest::newRow("a task that was cut off") << u"\r\n<Task><RegistrationInfo><URI>\\B</URI>"_s;
}

void TestTaskList::theLastPieceNeverGivesARow()
{
    QFETCH(const QString, rest);
    const TaskMachine machine;
    const QString task = taskElement({u"\\A"_s});
    QCOMPARE(pathsOf(rowsOf(machine, task + rest)), QStringList{u"A"_s});
    QCOMPARE(pathsOf(rowsOf(machine, rest)), QStringList());
}

void TestTaskList::aTaskOfTheNameTasksIsListed()
{
    const TaskMachine machine;
    QCOMPARE(pathsOf(rowsOf(machine, insideTasks({{u"\\Tasks"_s}, {u"\\B"_s}}))), (QStringList{u"Tasks"_s, u"B"_s}));
}

void TestTaskList::pathLosesItsFirstCharacter_data()
{
    addColumns<QString, QString, QString>("uri", "path", "name");
    QTest::newRow("no folder") << u"\\A task"_s << u"A task"_s << u"A task"_s;
    QTest::newRow("folders") << u"\\A\\B\\C d"_s << u"A\\B\\C d"_s << u"C d"_s;
    QTest::newRow("no leading backslash") << u"Vendor\\Task"_s << u"endor\\Task"_s << u"Task"_s;
    QTest::newRow("two backslashes") << u"\\\\A"_s << u"\\A"_s << u"A"_s;
    QTest::newRow("backslash at the end") << u"\\A\\"_s << u"A\\"_s << QString();
    QTest::newRow("slashes") << u"\\A/B"_s << u"A/B"_s << u"A/B"_s;
    QTest::newRow("colon and quotes") << u"\\A: \"b\" 'c'"_s << u"A: \"b\" 'c'"_s << u"A: \"b\" 'c'"_s;
    QTest::newRow("braces") << u"\\N_{B2FE1952-0186}"_s << u"N_{B2FE1952-0186}"_s << u"N_{B2FE1952-0186}"_s;
    QTest::newRow("other letters") << u"\\Überwachung\\服务"_s << u"Überwachung\\服务"_s << u"服务"_s;
}

void TestTaskList::pathLosesItsFirstCharacter()
{
    QFETCH(const QString, uri);
    QFETCH(const QString, path);
    QFETCH(const QString, name);
    const TaskMachine machine;
    const auto rows = rowsOf(machine, listOfDocuments({{uri}}));
    QCOMPARE(pathsOf(rows), QStringList{path});
    QCOMPARE(rows.at(0).name, name);
}

void TestTaskList::enabledCountsByItsTagAlone_data()
{
    addColumns<QString, QString, int>("settings", "triggers", "disabled");
    QTest::newRow("no tag") << QString() << QString() << 0;
    QTest::newRow("false") << u"<Enabled>false</Enabled>"_s << QString() << 1;
    QTest::newRow("true") << u"<Enabled>true</Enabled>"_s << QString() << 1;
    QTest::newRow("empty") << u"<Enabled></Enabled>"_s << QString() << 1;
    QTest::newRow("in a trigger only") << QString() << u"<BootTrigger><Enabled>true</Enabled></BootTrigger>"_s << 1;
    QTest::newRow("in both") << u"<Enabled>false</Enabled>"_s << u"<X><Enabled>true</Enabled></X>"_s << 1;
    QTest::newRow("in another case") << u"<enabled>false</enabled>"_s << QString() << 0;
    QTest::newRow("without content") << u"<Enabled/>"_s << QString() << 0;
    QTest::newRow("with a blank") << u"<Enabled >false</Enabled>"_s << QString() << 0;
    QTest::newRow("closing tag alone") << u"</Enabled>"_s << QString() << 0;
    QTest::newRow("another element") << u"<WakeEnabled>true</WakeEnabled>"_s << QString() << 0;
    QTest::newRow("in a comment") << u"<!-- <Enabled> -->"_s << QString() << 1;
}

void TestTaskList::enabledCountsByItsTagAlone()
{
    QFETCH(const QString, settings);
    QFETCH(const QString, triggers);
    QFETCH(const int, disabled);
    const TaskMachine machine;
    const auto rows = rowsOf(machine, insideTasks({{u"\\A"_s, {}, settings, triggers}}));
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.at(0).disabled, disabled);
}

void TestTaskList::theTagOfOneTaskIsNotThatOfTheNext()
{
    const TaskMachine machine;
    const QString off = u"<Enabled>false</Enabled>"_s;
    const auto rows =
        rowsOf(machine, listOfDocuments({{u"\\A"_s}, {u"\\B"_s, u"b"_s, off}, {u"\\C"_s}, {u"\\D"_s, {}, off}}));
    QList<int> disabled;
    for (const TaskRow &row : rows)
        disabled.append(row.disabled);
    QCOMPARE(disabled, (QList<int>{0, 1, 0, 1}));
    QCOMPARE(rows.at(2).description, none);
}

void TestTaskList::description_data()
{
    addColumns<QString, QString>("element", "text");
    const auto row = [](const char *title, const QString &inside, const QString &text) {
        QTest::newRow(title) << u"<Description>"_s + inside + u"</Description>"_s << text;
    };
    row("plain", u"Does it."_s, u"Does it."_s);
    row("empty", {}, {});
    row("blanks", u"  a  "_s, u"  a  "_s);
    row("two lines", u"one\r\ntwo"_s, u"one\ntwo"_s);
    row("other letters", u"Hält 服务 am Leben"_s, u"Hält 服务 am Leben"_s);
    row("reference", u"$(@%SystemRoot%\\system32\\a.dll,-100)"_s, u"Text of a"_s);
    row("reference to a bare name", u"$(@a.dll,-100)"_s, u"Text of a"_s);
    row("reference to a missing DLL", u"$(@%SystemRoot%\\missing.dll,-100)"_s, none);
    row("reference to a missing number", u"$(@a.dll,-999)"_s, none);
    row("reference without a number", u"$(@a.dll)"_s, u"$(@a.dll)"_s);
    row("reference further on", u"See $(@a.dll,-100)"_s, u"See $(@a.dll,-100)"_s);
    row("reference of another form", u"@a.dll,-100"_s, u"@a.dll,-100"_s);
    row("reference of a missing letter", u"$(a.dll,-100)"_s, u"$(a.dll,-100)"_s);
    row("an element in it", u"a <b>c</b>"_s, u"a <b>c</b>"_s);
    QTest::newRow("none") << QString() << none;
    QTest::newRow("without content") << u"<Description/>"_s << none;
    QTest::newRow("in another case") << u"<description>x</description>"_s << none;
    QTest::newRow("two") << u"<Description>one</Description><Description>two</Description>"_s << u"one"_s;
}

void TestTaskList::description()
{
    QFETCH(const QString, element);
    QFETCH(const QString, text);
    TaskMachine machine;
    machine.addFile(u"C:\\Windows\\System32\\a.dll"_s);
    machine.machine().setDllStrings(u"C:\\Windows\\System32\\a.dll"_s, {{100, u"Text of a"_s}});
    const auto rows = rowsOf(machine, u"<Task><URI>\\A</URI>"_s + element + u"</Task>"_s);
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.at(0).description, text);
    QCOMPARE(rows.at(0).path, u"A"_s);
}

void TestTaskList::textBeforeTheFirstTaskDoesNotMatter_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("comment") << u"<!-- \\Other\\Task -->\r\n"_s;
    QTest::newRow("declaration") << u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>"_s;
    QTest::newRow("byte order mark") << u"\uFEFF"_s;
    QTest::newRow("message") << u"INFO: Folder: \\ has tasks.\r\n"_s;
    QTest::newRow("closing tag of an address") << u"</URI>"_s;
    QTest::newRow("closing tag of a description") << u"</Description>"_s;
    QTest::newRow("opening tag of a task") << u"<Task>"_s;
    QTest::newRow("much text") << QString(100000, u'x');
}

void TestTaskList::textBeforeTheFirstTaskDoesNotMatter()
{
    QFETCH(const QString, text);
    const TaskMachine machine;
    const auto rows = rowsOf(machine, text + taskElement({u"\\Folder\\A"_s}) + taskElement({u"\\B"_s}));
    QCOMPARE(pathsOf(rows), (QStringList{u"Folder\\A"_s, u"B"_s}));
    QCOMPARE(rows.at(0).name, u"A"_s);
    QCOMPARE(rows.at(0).description, none);
}

void TestTaskList::anAddressBeforeTheFirstTaskIsTakenForItsOwn()
{
    const TaskMachine machine;
    const auto rows = rowsOf(machine, u"<URI>\\Stray</URI>"_s + taskElement({u"\\Folder\\A"_s, u"a"_s})
                                          + taskElement({u"\\B"_s, u"b"_s}));
    QCOMPARE(pathsOf(rows), (QStringList{u"Stray"_s, u"B"_s}));
    QCOMPARE(rows.at(0).description, u"a"_s);
    QCOMPARE(rows.at(1).description, u"b"_s);
}

void TestTaskList::markupInCDataAndCommentsIsCutLikeAnyOther()
{
    const TaskMachine machine;
    const auto rows = rowsOf(machine, listOfDocuments({{u"\\A"_s, u"<![CDATA[a <URI>\\X</URI>]]>"_s},
                                                       {u"\\B"_s, u"<![CDATA[b </Task> c]]>"_s},
                                                       {u"\\C"_s, u"c"_s, u"<!-- <Enabled>true</Enabled> -->"_s},
                                                       {u"\\D"_s, u"d"_s, u"<!-- </Task> -->"_s},
                                                       {u"\\E"_s, u"<!-- e -->"_s}}));
    QCOMPARE(pathsOf(rows), (QStringList{u"X"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}));
    QCOMPARE(rows.at(0).description, u"<![CDATA[a <URI>\\X</URI>]]>"_s);
    // The end of the task took its description's beginning with it.
    QCOMPARE(rows.at(1).description, none);
    QCOMPARE(rows.at(2).disabled, 1);
    QCOMPARE(rows.at(3).description, u"d"_s);
    QCOMPARE(rows.at(4).description, u"<!-- e -->"_s);
}

void TestTaskList::nothingIsDecoded()
{
    const TaskMachine machine;
    const auto rows =
        rowsOf(machine, listOfDocuments({{u"\\A &amp; B"_s, u"Tom &amp; &lt;Jerry&gt; <![CDATA[<x>]]> &#65;"_s}}));
    QCOMPARE(rows.at(0).path, u"A &amp; B"_s);
    QCOMPARE(rows.at(0).description, u"Tom &amp; &lt;Jerry&gt; <![CDATA[<x>]]> &#65;"_s);
}

void TestTaskList::damagedExportGivesItsWholeTasks_data()
{
    QTest::addColumn<QString>("damage"); // stands between two whole tasks
    QTest::newRow("nothing but closing tags") << u"</Task></Task>"_s;
    QTest::newRow("a task without an address") << u"<Task><Description>x</Description></Task>"_s;
    QTest::newRow("a task with an empty address") << u"<Task><URI></URI></Task>"_s;
    QTest::newRow("tags in a wrong order") << u"</URI></Description></Tasks>"_s;
    QTest::newRow("no text") << u"\u0001\u0002 \uFFFD"_s;
    QTest::newRow("the end of the list, and a second one") << u"</Tasks>\r\n<Tasks>"_s;
}

void TestTaskList::damagedExportGivesItsWholeTasks()
{
    QFETCH(const QString, damage);
    const TaskMachine machine;
    const auto rows = rowsOf(machine, taskElement({u"\\A"_s}) + damage + taskElement({u"\\Folder\\B"_s, u"b"_s}));
    QCOMPARE(pathsOf(rows), (QStringList{u"A"_s, u"Folder\\B"_s}));
    QCOMPARE(rows.at(1).description, u"b"_s);
}

void TestTaskList::anExportCutAnywhereGivesTheTasksBeforeTheCut()
{
    const TaskMachine machine;
    const QString whole = listOfDocuments({{u"\\A"_s, u"a"_s}, {u"\\B"_s, u"b"_s}});
    const qsizetype first = whole.indexOf(u"</Task>"_s) + 7;
    const qsizetype second = whole.indexOf(u"</Task>"_s, first) + 7;
    for (const qsizetype cut :
         {qsizetype(0), qsizetype(5), whole.indexOf(u"<URI>"_s) + 2, whole.indexOf(u"</URI>"_s) + 3, first - 1, first,
          first + 3, whole.lastIndexOf(u"<URI>"_s) + 3, whole.lastIndexOf(u"</URI>"_s) + 2, second - 1, second}) {
        QStringList expected;
        if (cut >= first)
            expected.append(u"A"_s);
        if (cut >= second)
            expected.append(u"B"_s);
        QCOMPARE(pathsOf(rowsOf(machine, whole.first(cut))), expected);
    }
}

void TestTaskList::exportOf16BitsWithItsMarkIsRead_data()
{
    QTest::addColumn<QStringConverter::Encoding>("encoding");
    QTest::newRow("little-endian") << QStringConverter::Utf16LE;
    QTest::newRow("big-endian") << QStringConverter::Utf16BE;
    QTest::newRow("8 bits") << QStringConverter::Utf8;
}

void TestTaskList::exportOf16BitsWithItsMarkIsRead()
{
    QFETCH(const QStringConverter::Encoding, encoding);
    const PrintingTool tool;
    const TaskMachine machine(tool.options());
    QStringEncoder encode(encoding, QStringConverter::Flag::WriteBom);
    tool.print(encode(listOfDocuments({{u"\\Folder\\A"_s, u"Hält"_s}, {u"\\B"_s}})));
    WorkThread worker;
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), (QStringList{u"Folder\\A"_s, u"B"_s}));
    QCOMPARE(worker.tasks.at(0).description, u"Hält"_s);
    QCOMPARE(lines.all(), closingLine);
}

void TestTaskList::exportOf16BitsWithoutMarkGivesNoRow()
{
    const PrintingTool tool;
    const TaskMachine machine(tool.options());
    QStringEncoder encode(QStringConverter::Utf16LE);
    tool.print(encode(listOfDocuments({{u"\\A"_s}, {u"\\B"_s}})));
    WorkThread worker;
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList());
    QCOMPARE(lines.all(), closingLine);
}

void TestTaskList::bytesThatAreNoTextAreRead()
{
    const PrintingTool tool;
    const TaskMachine machine(tool.options());
    tool.print("<Task><URI>\\A</URI><Description>H\x84lt" + QByteArray(1, '\0')
               + " an</Description></Task><Task><URI>\\\x81"
                 "ber</URI></Task>");
    WorkThread worker;
    worker.TaskMakeList();
    QCOMPARE(worker.tasks.size(), 2);
    QCOMPARE(worker.tasks.at(0).path, u"A"_s);
    QVERIFY(worker.tasks.at(0).description.startsWith(u'H') && worker.tasks.at(0).description.endsWith(u" an"_s));
    QVERIFY(worker.tasks.at(1).path.endsWith(u"ber"_s));
}

void TestTaskList::sixtyMegabytesAreRead()
{
    constexpr int sixtyMegabytes = 60 * 1024 * 1024;
    const TaskMachine machine;
    const QString two =
        listOfDocuments({{u"\\Folder\\A"_s, QString(1000, u'd')}, {u"\\B"_s, {}, u"<Enabled>false</Enabled>"_s}});
    const int repeat = sixtyMegabytes / int(two.size()) + 1;
    print(machine, two, repeat);
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 1));
    QVERIFY(QFileInfo(exportFile(machine)).size() > sixtyMegabytes);
    QCOMPARE(worker.tasks.size(), 2 * repeat);
    QCOMPARE(worker.tasks.constFirst().path, u"Folder\\A"_s);
    QCOMPARE(worker.tasks.at(worker.tasks.size() - 2).description.size(), 1000);
    QCOMPARE(worker.tasks.constLast().path, u"B"_s);
    QCOMPARE(worker.tasks.constLast().disabled, 1);
    QCOMPARE(lines.all(), closingLine);
}

void TestTaskList::exportIsLeftBehindAndOverwritten()
{
    const TaskMachine machine;
    const QString first = listOfDocuments({{u"\\A"_s, u"longer than the second"_s}, {u"\\B"_s}});
    const QString second = insideTasks({{u"\\C"_s}});
    WorkThread worker;
    print(machine, first);
    worker.TaskMakeList();
    QCOMPARE(content(exportFile(machine)), first.toUtf8());
    print(machine, second);
    worker.TaskMakeList();
    QCOMPARE(content(exportFile(machine)), second.toUtf8());
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"C"_s});
}

void TestTaskList::links()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("to a file") << 0;
    QTest::newRow("to what isn't there") << 1;
    QTest::newRow("a second name") << 2;
}

void TestTaskList::exportFollowsNoLink()
{
    QFETCH(const int, kind);
    TaskMachine machine;
    const QString file = exportFile(machine);
    const QString hosts = machine.addFile(u"C:\\Windows\\System32\\drivers\\etc\\hosts"_s, "of the system");
    const QString absent = machine.platform().hostPath(u"C:\\Windows\\absent"_s);
    if (kind == 2)
        std::filesystem::create_hard_link(hosts.toStdString(), file.toStdString());
    else
        QVERIFY(QFile::link(kind == 0 ? hosts : absent, file));
    const QString text = listOfDocuments({{u"\\A"_s}});
    print(machine, text);
    WorkThread worker;
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(content(file), text.toUtf8());
    QVERIFY(!QFileInfo(file).isSymLink());
    QCOMPARE(content(hosts), QByteArray("of the system"));
    QVERIFY(!QFileInfo::exists(absent));
}

void TestTaskList::exportOfSomebodyElseIsNotRead()
{
    const PrintingTool tool;
    const TaskMachine machine(tool.options());
    const QByteArray text = listOfDocuments({{u"\\A"_s}}).toUtf8();
    // Whoever can write there puts another list in its place as soon as the tool has printed.
    tool.print(text, "\nprintf '<Task><URI>\\\\Evil</URI></Task>' >'" + QFile::encodeName(exportFile(machine)) + "'\n");
    WorkThread worker;
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QCOMPARE(content(exportFile(machine)), text);
    QCOMPARE(content(backupFolder(machine) + u"/tasks.xml"_s), text);
}

void TestTaskList::folderOfTheExportMayLieOnALink()
{
    TaskMachine machine;
    const QString folder = QFileInfo(exportFile(machine)).path();
    const QString elsewhere = machine.addFile(u"C:\\Elsewhere\\some.txt"_s);
    QVERIFY(QDir().rmdir(folder));
    QVERIFY(QFile::link(QFileInfo(elsewhere).path(), folder));
    print(machine, listOfDocuments({{u"\\A"_s}}));
    WorkThread worker;
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QVERIFY(QFileInfo(QFileInfo(elsewhere).path() + u"/tasks.xml"_s).isFile());
}

void TestTaskList::backupFollowsNoLink()
{
    const PrintingTool tool;
    TaskMachine machine(tool.options());
    const QString absent = machine.platform().hostPath(u"C:\\Windows\\absent"_s);
    QVERIFY(QDir().mkpath(backupFolder(machine)));
    QVERIFY(QFile::link(absent, backupFolder(machine) + u"/tasks.xml"_s));
    tool.print(listOfDocuments({{u"\\A"_s}}).toUtf8()); // the stock tool works on no machine with a link there
    WorkThread worker;
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QVERIFY(!QFileInfo::exists(absent));
}

void TestTaskList::backupInALinkedFolderIsLeftOut()
{
    const PrintingTool tool;
    TaskMachine machine(tool.options());
    const QString some = machine.addFile(u"C:\\Windows\\some.txt"_s);
    QVERIFY(QFile::link(QFileInfo(some).path(), backupFolder(machine)));
    tool.print(listOfDocuments({{u"\\A"_s}}).toUtf8()); // the stock tool works on no machine with a link there
    WorkThread worker;
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(lines.all(), closingLine);
    QVERIFY(!QFileInfo::exists(QFileInfo(some).path() + u"/tasks.xml"_s));
}

void TestTaskList::firstExportIsKeptAsABackup()
{
    const TaskMachine machine;
    const QString first = listOfDocuments({{u"\\A"_s}});
    WorkThread worker;
    QVERIFY(!QFileInfo::exists(backupFolder(machine)));
    print(machine, first);
    worker.TaskMakeList();
    QCOMPARE(QDir(backupFolder(machine)).entryList(QDir::Files), QStringList{u"tasks.xml"_s});
    QCOMPARE(content(backupFolder(machine) + u"/tasks.xml"_s), first.toUtf8());
    print(machine, listOfDocuments({{u"\\B"_s}}));
    worker.TaskMakeList();
    QCOMPARE(content(backupFolder(machine) + u"/tasks.xml"_s), first.toUtf8());
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"B"_s});

    // One that was taken away is made anew.
    QVERIFY(QFile::remove(backupFolder(machine) + u"/tasks.xml"_s));
    worker.TaskMakeList();
    QCOMPARE(content(backupFolder(machine) + u"/tasks.xml"_s), listOfDocuments({{u"\\B"_s}}).toUtf8());
}

void TestTaskList::backupThatWasCutOffIsRenamed_data()
{
    QTest::addColumn<QByteArray>("rest");
    const QByteArray whole = insideTasks({{u"\\A"_s}, {u"\\B"_s}}).toUtf8();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("in a line") << whole.first(whole.indexOf("<URI>") + 3);
    QTest::newRow("between two lines") << whole.first(whole.lastIndexOf("  <Triggers>"));
    QTest::newRow("no head") << whole.sliced(whole.indexOf("<Tasks>"));
}

void TestTaskList::backupThatWasCutOffIsRenamed()
{
    QFETCH(const QByteArray, rest);
    const TaskMachine machine;
    writeFile(backupFolder(machine) + u"/tasks.xml"_s, rest);
    const QString whole = listOfDocuments({{u"\\A"_s}});
    print(machine, whole);
    WorkThread worker;
    worker.TaskMakeList();
    QCOMPARE(content(backupFolder(machine) + u"/tasks.xml"_s), whole.toUtf8());
    QCOMPARE(content(backupFolder(machine) + u"/tasks-cut.xml"_s), rest);
    QCOMPARE(QDir(backupFolder(machine)).entryList(QDir::Files).size(), 2);
}

void TestTaskList::exportOfAnUnknownFormTakesNoBackupsPlace()
{
    const TaskMachine machine;
    writeFile(backupFolder(machine) + u"/tasks.xml"_s, "<Task>in another form");
    print(machine, u"<Task>in another form, and later"_s);
    WorkThread worker;
    worker.TaskMakeList();
    QCOMPARE(content(backupFolder(machine) + u"/tasks.xml"_s), "<Task>in another form"_ba);
    QCOMPARE(QDir(backupFolder(machine)).entryList(QDir::Files), QStringList{u"tasks.xml"_s});
}

void TestTaskList::exportThatIsStillBeingPrintedIsNoBackup()
{
    const TaskMachine machine;
    machine.machine().setFault(u"schtasks"_s, {.hang = true, .output = listOfDocuments({{u"\\A"_s}})});
    Command::timeLimit = 1000;
    WorkThread worker;
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QVERIFY(!QFileInfo::exists(backupFolder(machine)));
}

void TestTaskList::withoutRightsThereIsNoBackup()
{
    const TaskMachine machine({.elevated = false});
    print(machine, listOfDocuments({{u"\\A"_s}}));
    WorkThread worker;
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QVERIFY(!QFileInfo::exists(backupFolder(machine)));
    QVERIFY(QFile::exists(exportFile(machine)));
    QCOMPARE(lines.all(), closingLine);
}

void TestTaskList::backupThatCannotBeWrittenDoesNotMatter()
{
    const TaskMachine machine;
    QFile inTheWay(backupFolder(machine));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    print(machine, listOfDocuments({{u"\\A"_s}}));
    WorkThread worker;
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QCOMPARE(lines.all(), closingLine);
}

void TestTaskList::missingToolSendsNoLineAndEmptiesTheList()
{
    TaskMachine machine;
    machine.logErrors();
    machine.machine().setFault(u"schtasks"_s, {.missing = true});
    WorkThread worker;
    worker.tasks = oldList();
    JobLines lines(worker);
    QVERIFY(runJob(worker, 1));
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(pathsOf(worker.tasks), QStringList());
    QCOMPARE(machine.errorLog(), QStringList{u"TaskMakeList: schtasks process error: Process failed to start: "
                                             u"The system cannot find the file specified."_s});
    QVERIFY(!QFileInfo::exists(backupFolder(machine)));
}

void TestTaskList::missingToolIsNotLoggedUnlessTheLogIsOn()
{
    const TaskMachine machine;
    machine.machine().setFault(u"schtasks"_s, {.missing = true});
    WorkThread worker;
    worker.TaskMakeList();
    QVERIFY(!QFile::exists(machine.platform().programFolder() + u"/log.txt"_s));
}

void TestTaskList::failingToolSendsNoLine_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {1, 5, 256, -1})
        QTest::addRow("%d", code) << code;
}

void TestTaskList::failingToolSendsNoLine()
{
    QFETCH(const int, code);
    TaskMachine machine;
    machine.logErrors();
    machine.machine().setFault(u"schtasks"_s, {.exitCode = code, .output = listOfDocuments({{u"\\A"_s}})});
    WorkThread worker;
    worker.tasks = oldList();
    JobLines lines(worker);
    QVERIFY(runJob(worker, 1));
    QCOMPARE(machine.commands().value(0).exitCode, code);
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(pathsOf(worker.tasks), QStringList());
    QCOMPARE(machine.errorLog(), QStringList{u"TaskMakeList: schtasks process error: "_s + QString::number(code)});
    QVERIFY(!QFileInfo::exists(backupFolder(machine)));
}

void TestTaskList::hangingToolIsGivenUpAndWhatItPrintedIsRead()
{
    TaskMachine machine;
    machine.logErrors();
    machine.machine().setFault(u"schtasks"_s,
                               {.hang = true, .output = listOfDocuments({{u"\\A"_s}}) + u"<Task><URI>"_s});
    Command::timeLimit = 1000;
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 1));
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestTaskList::exportThatCannotBeWrittenSendsNoLine()
{
    TaskMachine machine;
    machine.logErrors();
    // A folder stands where the export would.
    QVERIFY(QDir().mkpath(exportFile(machine)));
    print(machine, listOfDocuments({{u"\\A"_s}}));
    WorkThread worker;
    worker.tasks = oldList();
    JobLines lines(worker);
    QVERIFY(runJob(worker, 1));
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(pathsOf(worker.tasks), QStringList());
    QCOMPARE(machine.errorLog(), QStringList());
    QVERIFY(!QFileInfo::exists(backupFolder(machine)));
}

void TestTaskList::anExceptionEndsTheListWithALineInTheLog()
{
    /** An accident that comes while the text of a DLL is looked up. */
    class Accident final : public ForwardingPlatform
    {
    public:
        using ForwardingPlatform::ForwardingPlatform;
        bool isOnFixedDrive(const QString &) const override { throw std::runtime_error("an accident"); }
    };
    TaskMachine machine;
    machine.logErrors();
    print(machine, listOfDocuments({{u"\\A"_s, u"$(@a.dll,-100)"_s}}));
    const QString log = machine.platform().programFolder() + u"/log.txt"_s;
    const QString folder = machine.folder();
    setPlatform(nullptr); // one at a time
    setPlatform(std::make_unique<Accident>(std::make_unique<MachinePlatform>(folder, MachineOptions())));
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 1));
    QCOMPARE(lines.all(), QStringList());
    const QString logged = QString::fromUtf8(content(log)).trimmed();
    QVERIFY2(QRegularExpression(u": TaskMakeList: schtasks process error: \\d+$"_s).match(logged).hasMatch(),
             qPrintable(logged));
}

void TestTaskList::aRunEmptiesTheListOfBefore()
{
    const TaskMachine machine;
    print(machine, listOfDocuments({{u"\\A"_s}, {u"\\B"_s}}));
    WorkThread worker;
    worker.tasks = oldList();
    worker.TaskMakeList();
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), (QStringList{u"A"_s, u"B"_s}));
    machine.machine().setFault(u"schtasks"_s, {.exitCode = 0}); // prints nothing
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList());
    QCOMPARE(lines.all(), closingLine);
}

void TestTaskList::duringAnalyzeNoClosingLineIsSent()
{
    const TaskMachine machine;
    print(machine, listOfDocuments({{u"\\A"_s}}));
    WorkThread worker;
    worker.analyzeRunning = 1;
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(pathsOf(worker.tasks), QStringList{u"A"_s});
    QCOMPARE(lines.all(), QStringList());
}

void TestTaskList::duringOptimizeAndRestoreTheClosingLineIsSent()
{
    const TaskMachine machine;
    print(machine, listOfDocuments({{u"\\A"_s}}));
    WorkThread worker;
    worker.optimizeRunning = 1;
    worker.restoreRunning = 1;
    JobLines lines(worker);
    worker.TaskMakeList();
    QCOMPARE(lines.all(), closingLine);
}

void TestTaskList::nothingIsLoggedOfAListingThatWorked()
{
    TaskMachine machine;
    machine.logErrors();
    print(machine, listOfDocuments({{u"\\A"_s}}));
    WorkThread worker;
    worker.TaskMakeList();
    QCOMPARE(machine.errorLog(), QStringList());
}

KESTRUNE_SUITE(TestTaskList)
#include "tst_tasklist.moc"
