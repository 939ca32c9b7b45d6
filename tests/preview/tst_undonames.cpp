// SPDX-License-Identifier: GPL-3.0-or-later
// The way back on a machine whose names try to say something else in a registry script or at a command prompt.

#include "support/registryvalues.h"
#include "support/rehearsing.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include "console/printable.h"
#include "platform/windowsfacts.h"
#include "preview/preview.h"

#include <QDir>
#include <QStringDecoder>
#include <QTest>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"HKEY_CURRENT_USER\\Software\\Undo"_s;
const QString foreign = u"a]\r\n[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft"_s;

using Change = std::function<void(Machine &)>;

struct Pair
{
    WayBackScript wayBack() { return undoOf(*before, *after, u"undo-files"_s); }

    SmallMachine before;
    SmallMachine after;
};

void writeFileOf(Machine &machine, const QString &windowsPath, const QByteArray &content)
{
    const QString path = machine.hostPath(windowsPath);
    QDir().mkpath(QFileInfo(path).path());
    writeFile(path, content);
}

/** The edits of the script, read as the registry editor reads it. */
QList<RegistryEdit> editsOf(const QString &file)
{
    return parseRegistryScript(readFile(file), file);
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestUndoNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noForeignSectionIsWritten_data();
    void noForeignSectionIsWritten();
    void noForeignCommandIsWritten_data();
    void noForeignCommandIsWritten();
    void whatIsLeftOutIsPrinted();
};

void TestUndoNames::noForeignSectionIsWritten_data()
{
    addColumns<Change, Change, QString>("before", "after", "leftOut");
    const Change nothing = [](Machine &) {};
    const auto value = [](const QString &path, const QString &name) -> Change {
        return [path, name](Machine &machine) { setNumber(machine, path, name, 1); };
    };
    const QString shown = u"HKEY_CURRENT_USER\\Software\\Undo\\a]\\r\\n[-HKEY_LOCAL_MACHINE"_s;
    QTest::newRow("a key that is gone") << value(key + u'\\' + foreign, u"x"_s) << nothing << shown;
    QTest::newRow("a key that has come") << nothing << value(key + u'\\' + foreign, u"x"_s) << shown;
    QTest::newRow("a value that is gone")
        << value(key, u"x\n[-HKEY_LOCAL_MACHINE]\n"_s) << nothing << u"\\Undo: x\\n[-HKEY_LOCAL_MACHINE]\\n"_s;
    QTest::newRow("a value that has come")
        << nothing << value(key, u"x\r[-HKEY_LOCAL_MACHINE]"_s) << u"\\Undo: x\\r[-HKEY_LOCAL_MACHINE]"_s;
    QTest::newRow("another control character") << value(key, u"a\x1b[2Jb"_s) << nothing << u"\\Undo: a\\x1b[2Jb"_s;
}

void TestUndoNames::noForeignSectionIsWritten()
{
    QFETCH(Change, before);
    QFETCH(Change, after);
    QFETCH(QString, leftOut);
    Pair pair;
    setNumber(*pair.before, key, u"good"_s, 1);
    setNumber(*pair.after, key, u"good"_s, 2);
    before(*pair.before);
    after(*pair.after);

    const QString file = pair.before.beside(u"undo.reg"_s);
    const WrittenWayBack written = writeUndo(*pair.before, *pair.after, file);

    const QString text = QStringDecoder(QStringConverter::Utf16)(readFile(file));
    QVERIFY2(!text.contains(u"\n[-HKEY_LOCAL_MACHINE"_s) && !text.contains(u"\r[-HKEY_LOCAL_MACHINE"_s),
             qPrintable(text));
    // What has an honest name comes back all the same.
    const QList<RegistryEdit> edits = editsOf(file);
    QVERIFY(std::all_of(edits.begin(), edits.end(), [](const RegistryEdit &edit) { return edit.key == key; }));
    QVERIFY(std::any_of(edits.begin(), edits.end(), [](const RegistryEdit &edit) {
        return edit.value.name == u"good"_s && edit.value.data == registryDWord(1);
    }));
    QVERIFY2(written.leftOut.join(u'\n').contains(leftOut), qPrintable(written.leftOut.join(u'\n')));
    QVERIFY(std::none_of(written.leftOut.begin(), written.leftOut.end(),
                         [](const QString &line) { return line.contains(u'\n') || line.contains(u'\r'); }));
}

void TestUndoNames::noForeignCommandIsWritten_data()
{
    addColumns<Change, Change, QString>("common", "change", "leftOut");
    const Change nothing = [](Machine &) {};
    const QString explorer = u"C:\\Windows\\explorer.exe"_s;
    for (const QString &name :
         {u"evil\" & x & \""_s, u"evil\nx"_s, u"evil\rx"_s, u"%evil%"_s, u"evil\x1b[2j"_s, u"evil\tx"_s}) {
        const QString path = u"C:\\Windows\\"_s + name;
        const QString shown = printable(name);
        const auto row = [&](const char *kind, const QString &leftOut, const Change &change, const Change &common) {
            QTest::addRow("%s %s", kind, qPrintable(shown)) << common << change << leftOut;
        };
        row(
            "service", u"service "_s + shown, [name](Machine &machine) { machine.setRunning(name, true); }, nothing);
        row(
            "task", u"task \\"_s + shown,
            [name](Machine &machine) {
                machine.setTask({u'\\' + name, u"<Task><Settings><Enabled>false</Enabled></Settings></Task>"_s});
            },
            nothing);
        row(
            "owner", u"rights "_s + explorer, [=](Machine &machine) { machine.setSecurity(explorer, {.owner = name}); },
            nothing);
        row(
            "rights", u"rights "_s + explorer,
            [=](Machine &machine) { machine.setSecurity(explorer, {.rights = name}); }, nothing);
        row(
            "file", u"file "_s + printable(path), [path](Machine &machine) { writeFileOf(machine, path, "x"); },
            nothing);
        row(
            "folder", u"file "_s + printable(path), [path](Machine &machine) { QDir().mkpath(machine.hostPath(path)); },
            nothing);
        row(
            "attributes", u"attribute "_s + printable(path),
            [path](Machine &machine) { machine.setAttributes(path, AttributeHidden); },
            [path](Machine &machine) { writeFileOf(machine, path, "x"); });
        row(
            "boot option", u"boot "_s + shown, [name](Machine &machine) { machine.setBootOption(name, u"yes"_s); },
            nothing);
        row(
            "boot value", u"boot x"_s, [name](Machine &machine) { machine.setBootOption(u"x"_s, name); }, nothing);
    }
    // These stand without quotes.
    QTest::newRow("boot value of two words")
        << nothing << Change([](Machine &machine) { machine.setBootOption(u"x"_s, u"yes & evil"_s); }) << u"boot x"_s;
    QTest::newRow("boot option that is a switch")
        << nothing << Change([](Machine &machine) { machine.setBootOption(u"/evil"_s, u"yes"_s); }) << u"boot /evil"_s;
    QTest::newRow("package") << nothing << Change([](Machine &machine) {
        setText(machine, WindowsKey::userPackages + u"\\x; Start-Process evil; #_1.0_x64__abc"_s, u"PackageID"_s,
                u"x"_s);
    }) << u"package x; Start-Process evil; #"_s;
    // No file of Windows can be named so, and the command would take away more than it.
    QTest::newRow("file that is a pattern")
        << nothing << Change([](Machine &machine) { writeFileOf(machine, u"C:\\Windows\\evil*"_s, "x"); })
        << u"file C:\\Windows\\evil*"_s;
}

void TestUndoNames::noForeignCommandIsWritten()
{
    QFETCH(Change, common);
    QFETCH(Change, change);
    QFETCH(QString, leftOut);
    for (const bool come : {false, true}) {
        Pair pair;
        common(*pair.before);
        common(*pair.after);
        change(come ? *pair.after : *pair.before);
        pair.before->setRunning(u"DiagTrack"_s, true);
        pair.after->setRunning(u"DiagTrack"_s, false);

        const WayBackScript undo = pair.wayBack();

        const QString commands = undo.commands().join(u'\n');
        QVERIFY2(!commands.contains(u"evil"_s), qPrintable(commands));
        QVERIFY2(commands.contains(u"DiagTrack"_s), qPrintable(commands));
        QVERIFY(undo.files().isEmpty());
        // What has come is sometimes taken away by a command that doesn't name it.
        QVERIFY2(come || undo.leftOut().contains(leftOut), qPrintable(undo.leftOut().join(u'\n')));
    }
}

/** A task that Optimize disables, by a name that a command prompt would take for a variable's. */
void TestUndoNames::whatIsLeftOutIsPrinted()
{
    SmallMachine machine;
    machine->setTask({u"\\OneDrive Standalone Update Task-%TEMP%"_s,
                      u"<Task><RegistrationInfo><URI>\\OneDrive Standalone Update Task-%TEMP%</URI></RegistrationInfo>"
                      "<Settings></Settings></Task>"_s});
    const Ended ended = rehearse({u"preview"_s, machine.folder(), u"--undo"_s, machine.beside(u"undo.reg"_s)});
    QVERIFY2(ended.exitCode == done, ended.errors.constData());
    QVERIFY2(ended.output.contains("left out: task \\OneDrive Standalone Update Task-%TEMP%\n"),
             ended.output.constData());
}

KESTRUNE_SUITE(TestUndoNames)
#include "tst_undonames.moc"
