// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse undo: what it lists, what it takes back, and what it refuses.

#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "support/registryvalues.h"
#include "support/rehearsing.h"
#include "support/smallmachine.h"
#include "support/suite.h"
#include "support/undoing.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList linesOf(const Ended &ended)
{
    return QString::fromUtf8(ended.output).split(u'\n', Qt::SkipEmptyParts);
}

/** What isn't as on the copy; the program's own records and files are left out. */
QStringList differences(Machine &before, const QString &folder)
{
    QStringList texts;
    for (const DiffRow &row : compareMachines(before, *Machine::open(folder))) {
        const bool isOwn = row.path.startsWith("HKEY_CURRENT_USER\\Software\\Kestrune"_L1)
                           || row.path.startsWith("program\\"_L1) || row.path.endsWith("\\Temp\\tasks.xml"_L1);
        if (!isOwn)
            texts.append(kindName(row.kind) + u' ' + row.path + u' ' + row.name);
    }
    return texts;
}

/** A machine on which two jobs have run, beside a copy of what it was. */
class Changed
{
public:
    Changed()
    {
        copyMachine(*machine_, machine_.beside(u"before"_s));
        before_ = Machine::open(machine_.beside(u"before"_s));
        for (const QStringList &job :
             {QStringList{u"svc-disable"_s, u"DiagTrack"_s}, QStringList{u"tweak"_s, u"ssd"_s, u"1"_s, u"on"_s}}) {
            const Ended ended = rehearse(QStringList{u"run"_s, folder()} + job);
            if (ended.exitCode != done)
                qFatal("%s can't be run: %s", qPrintable(job.first()), ended.errors.constData());
        }
    }

    QString folder() const { return machine_.folder(); }
    QString beside(const QString &name) const { return machine_.beside(name); }
    QStringList differences() { return ::differences(*before_, folder()); }

private:
    SmallMachine machine_;
    std::unique_ptr<Machine> before_;
};

} // namespace

class TestRehearseUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsSessions();
    void listsTheChangesOfASession();
    void takesEverythingBack();
    void takesOneSessionBack();
    void takesOneItemBack();
    void takesBackSinceAMoment();
    void aClockThatWasSetBackHidesNothing();
    void writesJson();
    void namesOfNeighboursAreShownAsTheyAreAndComeBack();
    void filesBringEverythingBack_data();
    void filesBringEverythingBack();
    void keepsTheFilesOfTheLastSessions();
    void keysThatOthersUseStay();
    void unelevatedRunsKeepNoJournal();
    void aRunThatCannotNoteSaysSo();
    void refusals_data();
    void refusals();
};

void TestRehearseUndo::listsSessions()
{
    Changed machine;
    const Ended ended = rehearse({u"undo"_s, machine.folder(), u"--list"_s});
    QCOMPARE(ended.exitCode, done);
    QStringList sessions;
    for (const QString &line : linesOf(ended))
        sessions.append(line.section(u'\t', 2, 3));
    QCOMPARE(sessions.filter(u"Disable services"_s), QStringList(u"Disable services\tfinished"_s));
    QCOMPARE(sessions.filter(u"Tweaks"_s), QStringList(u"Tweaks\tfinished"_s));
    QVERIFY(!machine.differences().isEmpty());
}

void TestRehearseUndo::listsTheChangesOfASession()
{
    Changed machine;
    const QString session = linesOf(rehearse({u"undo"_s, machine.folder(), u"--list"_s}))
                                .filter(u"Disable services"_s)
                                .first()
                                .section(u'\t', 0, 0);
    const Ended ended = rehearse({u"undo"_s, machine.folder(), u"--list"_s, u"--session"_s, session});
    QCOMPARE(ended.exitCode, done);
    QStringList changes;
    for (const QString &line : linesOf(ended))
        changes.append(line.section(u'\t', 1));
    QVERIFY2(changes.contains(u"changed\tService DiagTrack: start mode\tautomatic\tdisabled"_s),
             qPrintable(changes.join(u'\n')));
    QVERIFY2(changes.contains(u"changed\tService DiagTrack: run state\trunning\tstopped"_s),
             qPrintable(changes.join(u'\n')));
}

void TestRehearseUndo::takesEverythingBack()
{
    Changed machine;
    const Ended ended = rehearse({u"undo"_s, machine.folder()});
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(machine.differences(), QStringList());
    for (const QString &line : linesOf(ended))
        QCOMPARE(line.section(u'\t', 1, 1), u"as it was"_s);
    // And back again: taking back is a session like any other.
    const QStringList sessions = linesOf(rehearse({u"undo"_s, machine.folder(), u"--list"_s}));
    const QString last = sessions.last().section(u'\t', 0, 0);
    QCOMPARE(sessions.last().section(u'\t', 2, 2), u"Take back"_s);
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--session"_s, last}).exitCode, done);
    QVERIFY(machine.differences().contains(
        u"registry HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\DiagTrack Start"_s));
}

void TestRehearseUndo::takesOneSessionBack()
{
    Changed machine;
    const QString session =
        linesOf(rehearse({u"undo"_s, machine.folder(), u"--list"_s})).filter(u"Tweaks"_s).first().section(u'\t', 0, 0);
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--session"_s, session}).exitCode, done);
    QVERIFY(machine.differences().filter(u"DisableWriteCacheFlush"_s).isEmpty());
    QVERIFY(!machine.differences().filter(u"DiagTrack"_s).isEmpty());
}

void TestRehearseUndo::takesOneItemBack()
{
    Changed machine;
    const QStringList changes =
        linesOf(rehearse({u"undo"_s, machine.folder(), u"--list"_s, u"--since"_s, u"2000-01-01"_s}));
    const QString item = changes.filter(u"DiagTrack: run state"_s).first().section(u'\t', 0, 0);
    // A disabled service runs again, and stays disabled.
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--item"_s, item}).exitCode, done);
    QVERIFY(!machine.differences().contains(u"service DiagTrack "_s));
    QVERIFY(machine.differences().contains(
        u"registry HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\DiagTrack Start"_s));
}

void TestRehearseUndo::takesBackSinceAMoment()
{
    Changed machine;
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--since"_s, u"2100-01-01 00:00"_s}).output, QByteArray());
    QVERIFY(!machine.differences().isEmpty());
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--since"_s, u"2000-01-01T00:00"_s}).exitCode, done);
    QCOMPARE(machine.differences(), QStringList());
}

void TestRehearseUndo::aClockThatWasSetBackHidesNothing()
{
    Changed machine;
    const QStringList inOrder = linesOf(rehearse({u"undo"_s, machine.folder(), u"--list"_s}));
    QVERIFY(inOrder.size() >= 2);
    // The clock was ahead by years at the first session, and was put right before the second one.
    Database(machine.folder() + u"/journal/changes.sqlite"_s)
        .query("UPDATE session SET begun = ? WHERE id = (SELECT min(id) FROM session)")
        .bind(QDateTime(QDate(2100, 1, 1), QTime(12, 0)).toMSecsSinceEpoch())
        .run();
    const auto idOf = [](const QString &line) { return line.simplified().section(u' ', 0, 0); };
    QStringList ids, idsBefore;
    for (const QString &line : linesOf(rehearse({u"undo"_s, machine.folder(), u"--list"_s})))
        ids.append(idOf(line));
    for (const QString &line : inOrder)
        idsBefore.append(idOf(line));
    QCOMPARE(ids, idsBefore);
    // What came after that is meant, too, though its clock says otherwise.
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--since"_s, u"2099-01-01T00:00"_s}).exitCode, done);
    QCOMPARE(machine.differences(), QStringList());
}

void TestRehearseUndo::writesJson()
{
    Changed machine;
    const QString file = machine.beside(u"undo.json"_s);
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--list"_s, u"--json"_s, file}).output, QByteArray());
    const QJsonArray sessions = QJsonDocument::fromJson(readFile(file))[u"sessions"_s].toArray();
    QVERIFY(!sessions.isEmpty());
    QCOMPARE(sessions.last()[u"what"_s].toString(), u"Tweaks"_s);
    QCOMPARE(sessions.last()[u"page"_s].toString(), u"Features"_s);
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--json"_s, file}).exitCode, done);
    const QJsonArray items = QJsonDocument::fromJson(readFile(file))[u"items"_s].toArray();
    QVERIFY(!items.isEmpty());
    for (const QJsonValue item : items)
        QCOMPARE(item[u"verdict"_s].toString(), u"as it was"_s);
}

void TestRehearseUndo::filesBringEverythingBack_data()
{
    addColumns<QString>("machine");
    QTest::newRow("Windows 10") << u"windows10"_s;
    QTest::newRow("Windows 11") << u"windows11"_s;
}

/** With nothing but the system's own tools. */
void TestRehearseUndo::filesBringEverythingBack()
{
    QFETCH(QString, machine);
    const QTemporaryDir temporary;
    const QString folder = temporary.filePath(u"machine"_s);
    QCOMPARE(rehearse({u"new"_s, folder, u"--from"_s, machine}).exitCode, done);
    copyMachine(*Machine::open(folder), temporary.filePath(u"before"_s));
    const auto before = Machine::open(temporary.filePath(u"before"_s));
    QCOMPARE(rehearse({u"run"_s, folder, u"optimize"_s}).exitCode, done);
    QVERIFY(differences(*before, folder).size() > 100);

    const Ended ended = rehearse({u"undo"_s, folder, u"--files"_s, temporary.filePath(u"files"_s)});
    QCOMPARE(ended.errors, QByteArray());
    QVERIFY2(!ended.output.contains("left out"), ended.output);
    QCOMPARE(ended.exitCode, done);
    QVERIFY(linesOf(ended).contains(temporary.filePath(u"files/way-back.reg"_s)));
    QVERIFY(differences(*before, folder).size() > 100);

    const QString refused = undo(*Machine::open(folder), temporary.filePath(u"files/way-back.reg"_s));
    QVERIFY2(refused.isEmpty(), qPrintable(refused));
    QCOMPARE(differences(*before, folder).join(u'\n'), QString());
}

void TestRehearseUndo::keepsTheFilesOfTheLastSessions()
{
    Changed machine;
    const QDir files(machine.folder() + u"/journal/files"_s);
    QStringList kept = files.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QCOMPARE(kept.size(), 2);
    QCOMPARE(kept.first().section(u'-', 1), u"Disable-services"_s);
    QVERIFY(readFile(files.filePath(u"how-to-go-back.txt"_s)).contains("way-back-commands.txt"));
    // The last one first, as one goes back.
    QCOMPARE(undo(*Machine::open(machine.folder()), files.filePath(kept.last() + u"/way-back.reg"_s)), QString());
    QCOMPARE(undo(*Machine::open(machine.folder()), files.filePath(kept.first() + u"/way-back.reg"_s)), QString());
    QCOMPARE(machine.differences(), QStringList());

    for (int i = 0; i < 6; ++i) {
        for (const QString &state : {u"on"_s, u"off"_s})
            QCOMPARE(rehearse({u"run"_s, machine.folder(), u"tweak"_s, u"gaming"_s, u"4"_s, state}).exitCode, done);
    }
    kept = files.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QCOMPARE(kept.size(), 10);
    QVERIFY(!kept.first().startsWith(u"000001"_s));
}

/** A script removes a key with all that it holds. */
void TestRehearseUndo::keysThatOthersUseStay()
{
    Changed machine;
    const QString script = machine.beside(u"files/way-back.reg"_s);
    const auto removedKeys = [&] {
        QStringList keys;
        for (const RegistryEdit &edit : parseRegistryScript(readFile(script), script)) {
            if (edit.kind == RegistryEdit::Kind::RemoveKey)
                keys.append(edit.key);
        }
        return keys;
    };
    QCOMPARE(rehearse({u"undo"_s, machine.folder(), u"--files"_s, machine.beside(u"files"_s)}).exitCode, done);
    const QStringList removed = removedKeys();
    QVERIFY(!removed.isEmpty());
    setNumber(*Machine::open(machine.folder()), removed.first(), u"Somebody else's"_s, 1);

    const Ended ended = rehearse({u"undo"_s, machine.folder(), u"--files"_s, machine.beside(u"files"_s)});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY2(QString::fromUtf8(ended.output).contains(u"left out: "_s)
                 && QString::fromUtf8(ended.output).contains(removed.first()),
             ended.output);
    QVERIFY(!removedKeys().contains(removed.first()));
}

void TestRehearseUndo::unelevatedRunsKeepNoJournal()
{
    SmallMachine machine;
    QVERIFY(rehearse({u"run"_s, machine.folder(), u"analyze"_s, u"--not-elevated"_s}).exitCode != machineUnreadable);
    QVERIFY(!QFileInfo::exists(machine.folder() + u"/journal"_s));
}

void TestRehearseUndo::aRunThatCannotNoteSaysSo()
{
    Changed machine;
    const QStringList before = machine.differences();
    {
        Database journal(machine.folder() + u"/journal/changes.sqlite"_s);
        journal.execute("ALTER TABLE note RENAME COLUMN fold TO folded");
    }
    const Ended ended = rehearse({u"run"_s, machine.folder(), u"tweak"_s, u"ssd"_s, u"2"_s, u"on"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY2(ended.errors.contains("not everything was done: ") && ended.errors.contains("no column named fold"),
             ended.errors);
    QCOMPARE(machine.differences(), before);
}

void TestRehearseUndo::refusals_data()
{
    addColumns<QStringList, QString>("arguments", "message");
    QTest::newRow("time") << QStringList{u"--since"_s, u"yesterday"_s}
                          << u"'yesterday' isn't a time, such as 2026-11-22T09:30"_s;
    QTest::newRow("number") << QStringList{u"--session"_s, u"0"_s} << u"invalid argument '0' for '--session'"_s;
    QTest::newRow("item") << QStringList{u"--item"_s, u"1,x"_s} << u"invalid argument 'x' for '--item'"_s;
    QTest::newRow("both") << QStringList{u"--since"_s, u"2000-01-01"_s, u"--session"_s, u"1"_s}
                          << u"--since and --session can't be given together"_s;
    QTest::newRow("unknown session") << QStringList{u"--session"_s, u"99"_s} << u"there is no session 99"_s;
}

void TestRehearseUndo::refusals()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, message);
    const SmallMachine machine;
    const Ended ended = rehearse(QStringList{u"undo"_s, machine.folder()} + arguments);
    QCOMPARE(ended.exitCode, badArguments);
    QVERIFY2(ended.errors.contains(message.toUtf8()), ended.errors);
}

/** Names that the registry's own functions take for others: the unnamed value, a key below, or a part of a command. */
void TestRehearseUndo::namesOfNeighboursAreShownAsTheyAreAndComeBack()
{
    const QString run = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
    const QString services = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_s;
    const QStringList names{u"."_s, u"Default"_s, u"a/b"_s, u"a\\b"_s, u"a=b"_s, u"a"_s, u"b"_s};

    SmallMachine machine;
    RegistryStore &registry = machine->registry();
    const auto key = *registry.make(run);
    for (const QString &name : names + QStringList{QString()})
        registry.setValue(key, {name, RegistryType::String, registryText(u"\"C:\\Windows\\explorer.exe\" "_s + name)});
    QStringList disable{u"run"_s, machine.folder(), u"svc-disable"_s};
    for (const QString &name : names) {
        if (name.contains(u'\\') || name.contains(u'/'))
            continue;
        const auto service = *registry.make(services + name);
        registry.setValue(service, {u"Type"_s, RegistryType::DWord, registryDWord(16)});
        registry.setValue(service, {u"Start"_s, RegistryType::DWord, registryDWord(2)});
        disable.append(name);
    }
    copyMachine(*machine, machine.beside(u"before"_s));
    const auto before = Machine::open(machine.beside(u"before"_s));

    QStringList shown;
    const QByteArray preview = rehearse({u"preview"_s, machine.folder(), u"--json"_s, u"-"_s}).output;
    for (const QJsonValue item : QJsonDocument::fromJson(preview)[u"items"_s].toArray()) {
        for (const QJsonValue detail : item[u"details"_s].toArray()) {
            if (detail[u"place"_s] == run && detail[u"optimized"_s].isNull())
                shown.append(detail[u"what"_s].toString());
        }
    }
    QCOMPARE(rehearse({u"run"_s, machine.folder(), u"optimize"_s}).exitCode, done);
    QStringList gone;
    for (const DiffRow &row : compareMachines(*before, *machine)) {
        if (row.path == run)
            gone.append(row.name);
    }
    shown.sort();
    gone.sort();
    QVERIFY(gone.size() >= 4);
    QCOMPARE(shown, gone);

    QCOMPARE(rehearse(disable).exitCode, done);
    const QString told =
        linesOf(rehearse({u"undo"_s, machine.folder(), u"--list"_s, u"--session"_s, u"2"_s})).join(u'\n');
    for (const QString &service : disable.mid(3))
        QVERIFY2(told.contains(u"Service "_s + service + u':'), qPrintable(told));
    QCOMPARE(rehearse({u"undo"_s, machine.folder()}).exitCode, done);
    // The export of tasks that Optimize leaves for the user stays.
    QCOMPARE(differences(*before, machine.folder()), QStringList(u"file C:\\tasks.xml "_s));
}

KESTRUNE_SUITE(TestRehearseUndo)
#include "tst_rehearseundo.moc"
