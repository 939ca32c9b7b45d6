// SPDX-License-Identifier: GPL-3.0-or-later
// The journal: what it notes, before what, and what it lets happen.

#include "journaling.h"
#include "machine/database.h"
#include "support/files.h"
#include "support/suite.h"
#include "work/command.h"
#include "work/settings.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Vendor"_s;

const RegistryValue binary{u"Some"_s, RegistryType::Binary, QByteArray("\1\0\2", 3)};

/** Takes back what the selection tells, and gives the verdict on a value of the key. */
WayBack takenValue(const Journaled &journaled, const QString &name, const Selection &selection = {})
{
    for (const TakenItem &each : takeBack(journaled.journal(), selection)) {
        if (each.item == Item{ItemKind::Value, key, name})
            return each.verdict;
    }
    return WayBack::Impossible;
}

void change(const QString &name, const QVariant &value, const QString &what = u"Test"_s)
{
    const ChangeSession session(what);
    platform().openKey(key)->setValue(name, value);
}

/** As a walk does that sets a bit of all files below a folder. */
void addBit(const QString &folder)
{
    platform().walk(folder, [](const WalkEntry &entry) {
        platform().setFileAttributes(entry.path, platform().fileAttributes(entry.path) | 0x2000);
        return true;
    });
}

} // namespace

class TestJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aValueComesBackWithTypeAndBytes();
    void keysThatWereMadeGoAgain();
    void aKeyThatHoldsWhatHasComeSinceStays();
    void aRemovedKeyComesBackWithAllBelowIt();
    void whatSomethingElseHasChangedIsLeftAlone();
    void aSessionAloneIsTakenBack();
    void whatALaterSessionHasChangedIsLeftAlone();
    void theFirstNoteOfASessionCounts();
    void changesWithinChangesAreOneSession();
    void sessionsTellWhatTheyWere();
    void whatWasBrokenOffIsKnown();
    void aRecordGoesWithTheChangeItIsOf();
    void settingsAreNotNoted();
    void whatCannotBeNotedIsNotChanged();
    void filesThatHaveTheBitGetNoNote();
    void wordsOfManyFilesAreNotesOfTheirOwn();
    void wordsThatAreDamagedAreNotTakenForNotes();
    void aRenamedFileComesBackWithItsAttributes();
    void aForeignJournalLeadsNowhere();
    void takingBackCanBeTakenBack();
    void unknownProgramsAreNotHeldUp();
};

void TestJournal::aValueComesBackWithTypeAndBytes()
{
    TestMachine pc;
    const auto made = pc.machine().registry().make(key);
    pc.machine().registry().setValue(*made, binary);
    const Journaled journaled(pc);
    change(u"Some"_s, u"other"_s);
    change(u"Some"_s, 7);
    QCOMPARE(takenValue(journaled, u"Some"_s), WayBack::AsItWas);
    QCOMPARE(journaled.machine().registry().value(key, u"Some"_s), std::optional(binary));
    QCOMPARE(journaled.differences(), QStringList());
}

void TestJournal::keysThatWereMadeGoAgain()
{
    TestMachine pc;
    const Journaled journaled(pc);
    // To look at a value makes the key.
    QCOMPARE(platform().openKey(key + u"\\One\\Two"_s)->value(u"none"_s), QVariant());
    change(u"Three/Value"_s, 1);
    QCOMPARE(journaled.differences().size(), 2);
    takeBack(journaled.journal(), {});
    QCOMPARE(journaled.differences(), QStringList());
}

void TestJournal::aKeyThatHoldsWhatHasComeSinceStays()
{
    TestMachine pc;
    const Journaled journaled(pc);
    change(u"Mine"_s, 1);
    journaled.machine().registry().setValue(*journaled.machine().registry().find(key), binary);
    takeBack(journaled.journal(), {});
    QCOMPARE(journaled.machine().registry().values(*journaled.machine().registry().find(key)),
             QList<RegistryValue>{binary});
}

void TestJournal::aRemovedKeyComesBackWithAllBelowIt()
{
    TestMachine pc;
    for (const QString &name : {u"\\Sub"_s, u"\\Sub\\Deep"_s, u"\\Sub\\Empty"_s})
        pc.machine().registry().setValue(*pc.machine().registry().make(key + name), binary);
    pc.machine().registry().removeValue(*pc.machine().registry().find(key + u"\\Sub\\Empty"_s), binary.name);
    pc.write(key + u"\\Sub"_s, u"."_s, u"unnamed"_s);
    const Journaled journaled(pc);
    {
        const ChangeSession session(u"Test"_s);
        platform().openKey(key)->remove(u"Sub"_s);
    }
    QVERIFY(!journaled.machine().registry().find(key + u"\\Sub"_s));
    takeBack(journaled.journal(), {});
    QCOMPARE(journaled.differences(), QStringList());
}

void TestJournal::whatSomethingElseHasChangedIsLeftAlone()
{
    TestMachine pc;
    pc.write(key, u"Value"_s, 1);
    const Journaled journaled(pc);
    change(u"Value"_s, 2);
    const auto store = journaled.machine().registry().find(key);
    journaled.machine().registry().setValue(*store, {u"Value"_s, RegistryType::DWord, registryDWord(3)});
    QCOMPARE(takenValue(journaled, u"Value"_s), WayBack::Changed);
    QCOMPARE(platform().openKey(key)->value(u"Value"_s).toInt(), 3);
    Selection even;
    even.evenChanged = true;
    QCOMPARE(takenValue(journaled, u"Value"_s, even), WayBack::AsItWas);
    QCOMPARE(platform().openKey(key)->value(u"Value"_s).toInt(), 1);
}

void TestJournal::aSessionAloneIsTakenBack()
{
    TestMachine pc;
    pc.write(key, u"One"_s, 1);
    pc.write(key, u"Two"_s, 1);
    const Journaled journaled(pc);
    change(u"One"_s, 2);
    change(u"Two"_s, 2);
    const qint64 first = journaled.journal().store().sessions().first().id;
    takeBack(journaled.journal(), {.firstSession = first, .lastSession = first});
    QCOMPARE(platform().openKey(key)->value(u"One"_s).toInt(), 1);
    QCOMPARE(platform().openKey(key)->value(u"Two"_s).toInt(), 2);
}

void TestJournal::whatALaterSessionHasChangedIsLeftAlone()
{
    TestMachine pc;
    pc.write(key, u"Value"_s, 1);
    const Journaled journaled(pc);
    change(u"Value"_s, 2);
    change(u"Value"_s, 3);
    const qint64 first = journaled.journal().store().sessions().first().id;
    QCOMPARE(takenValue(journaled, u"Value"_s, {.firstSession = first, .lastSession = first}), WayBack::Changed);
    QCOMPARE(platform().openKey(key)->value(u"Value"_s).toInt(), 3);
}

void TestJournal::theFirstNoteOfASessionCounts()
{
    TestMachine pc;
    pc.write(key, u"Value"_s, 1);
    const Journaled journaled(pc);
    {
        const ChangeSession session(u"Test"_s);
        for (const int value : {2, 3, 4})
            platform().openKey(key)->setValue(u"VALUE"_s, value);
    }
    const QList<Session> sessions = journaled.journal().store().sessions();
    QCOMPARE(sessions.size(), 1);
    const QList<Note> notes = journaled.journal().store().notes(sessions.first().id);
    QCOMPARE(notes.size(), 1);
    QCOMPARE(notes.first().before, (ItemState{true, 4, registryDWord(1)}));
    QCOMPARE(notes.first().after, std::optional(ItemState{true, 4, registryDWord(4)}));
}

void TestJournal::changesWithinChangesAreOneSession()
{
    TestMachine pc;
    const Journaled journaled(pc);
    {
        const ChangeSession session(u"Outer"_s);
        change(u"One"_s, 1, u"Inner"_s);
        change(u"Two"_s, 1, u"Inner"_s);
    }
    const QList<Session> sessions = journaled.journal().store().sessions();
    QCOMPARE(sessions.size(), 1);
    QCOMPARE(sessions.first().what, u"Outer"_s);
    QCOMPARE(sessions.first().changes, 3); // the key, too
}

void TestJournal::sessionsTellWhatTheyWere()
{
    TestMachine pc;
    const QDateTime before = QDateTime::currentDateTime();
    Journaled journaled(pc);
    change(u"One"_s, 1, u"Services"_s);
    {
        const ChangeSession nothing(u"Nothing"_s);
    }
    journaled.open(); // what was noted is still known
    const QList<Session> sessions = journaled.journal().store().sessions();
    QCOMPARE(sessions.size(), 1);
    const Session &session = sessions.first();
    QCOMPARE(session.what, u"Services"_s);
    QCOMPARE(session.state, SessionState::Finished);
    QVERIFY(session.begun >= before.addMSecs(-1) && session.ended >= session.begun);
}

void TestJournal::whatWasBrokenOffIsKnown()
{
    TestMachine pc;
    const Journaled journaled(pc);
    try {
        const ChangeSession session(u"Test"_s);
        platform().openKey(key)->setValue(u"Value"_s, 1);
        throw 1;
    } catch (int) {
    }
    QCOMPARE(journaled.journal().store().sessions().first().state, SessionState::BrokenOff);
}

void TestJournal::aRecordGoesWithTheChangeItIsOf()
{
    TestMachine pc;
    pc.write(key, u"Value"_s, 1);
    const Journaled journaled(pc);
    change(u"Value"_s, 2);
    record(u"SVC"_s, u"Some"_s, 1); // right after the job
    const QList<Session> sessions = journaled.journal().store().sessions();
    QCOMPARE(sessions.size(), 1);
    QCOMPARE(sessions.first().changes, 1);
    takeBack(journaled.journal(), {});
    QCOMPARE(recordedNames(u"SVC"_s), QStringList());
}

void TestJournal::settingsAreNotNoted()
{
    TestMachine pc;
    const Journaled journaled(pc);
    openSettings()->setValue(u"lang"_s, u"de"_s);
    QCOMPARE(journaled.journal().store().sessions().size(), 0);
    takeBack(journaled.journal(), {});
    QCOMPARE(openSettings()->value(u"lang"_s).toString(), u"de"_s);
}

void TestJournal::whatCannotBeNotedIsNotChanged()
{
    TestMachine pc;
    pc.add({.name = u"Spooler"_s, .start = 2, .running = true});
    pc.write(key, u"Value"_s, 1);
    const QString file = pc.addFile(u"C:\\some.txt"_s);
    const Journaled journaled(pc);
    {
        Database database(journalOptions(pc.folder()).file);
        database.execute("DROP TABLE note");
    }
    change(u"Value"_s, 2);
    QCOMPARE(platform().openKey(key)->value(u"Value"_s).toInt(), 1);
    const QString failure = journaled.journal().takeFailure();
    QVERIFY2(failure.contains(u"note"_s), qPrintable(failure));
    QCOMPARE(journaled.journal().takeFailure(), QString());

    {
        const ChangeSession session(u"Test"_s);
        platform().openKey(key)->remove(u"Value"_s);
        platform().openKey(key + u"\\New"_s)->value(u"none"_s);
        QCOMPARE(runTool(u"sc"_s, {u"stop"_s, u"Spooler"_s}), Command::accessDenied);
        QVERIFY(!platform().renameFile(file, file + u"2"_s));
        QVERIFY(!platform().removeFile(file));
        QVERIFY(!platform().writeFile(QFileInfo(file).path(), QFileInfo(file).fileName(), "other", IfThere::Exchange));
        platform().setFileAttributes(file, 0x2000);
        addBit(u"C:\\"_s);
    }
    QVERIFY(!journaled.journal().takeFailure().isEmpty());
    QCOMPARE(journaled.differences(), QStringList());
}

void TestJournal::filesThatHaveTheBitGetNoNote()
{
    TestMachine pc;
    const QString with = pc.addFile(u"C:\\with.txt"_s);
    const QString without = pc.addFile(u"C:\\without.txt"_s);
    pc.machine().setAttributes(u"C:\\with.txt"_s, 0x2020);
    const Journaled journaled(pc);
    {
        const ChangeSession session(u"Test"_s);
        addBit(u"C:\\"_s);
    }
    QStringList noted;
    for (const Note &note : journaled.journal().store().notesSince(1))
        noted.append(note.item.subject);
    QVERIFY(!noted.contains(u"C:\\with.txt"_s));
    QVERIFY(noted.contains(u"C:\\without.txt"_s));
    QCOMPARE(journaled.machine().attributes(u"C:\\without.txt"_s), 0x2020u);
    takeBack(journaled.journal(), {});
    QCOMPARE(journaled.differences(), QStringList());
}

void TestJournal::wordsOfManyFilesAreNotesOfTheirOwn()
{
    TestMachine pc;
    for (int file = 0; file < 7; ++file)
        pc.addFile(u"C:\\Folder\\ä%1.txt"_s.arg(file));
    const Journaled journaled(pc);
    const JournalStore &store = journaled.journal().store();
    {
        const ChangeSession session(u"Test"_s);
        platform().openKey(key)->setValue(u"Value"_s, 1);
        addBit(u"C:\\Folder"_s);
        platform().openKey(key)->setValue(u"Other"_s, 1);
    }
    const QList<Note> notes = store.notesSince(1);
    QSet<qint64> ids;
    int words = 0;
    for (const Note &note : notes) {
        ids.insert(note.id);
        words += note.item.kind == ItemKind::Attributes ? 1 : 0;
    }
    QVERIFY2(words >= 7, qPrintable(QString::number(words)));
    QCOMPARE(ids.size(), notes.size());
    QCOMPARE(qint64(store.sessions().constFirst().changes), notes.size());

    const auto last = std::find_if(notes.cbegin(), notes.cend(),
                                   [](const Note &note) { return note.item.subject == u"C:\\Folder\\ä6.txt"_s; });
    QVERIFY(last != notes.cend());
    QCOMPARE(last->before, (ItemState{true, 0x20}));
    QCOMPARE(last->after, std::optional(ItemState{true, 0x2020}));
    takeBack(journaled.journal(), {.items = {last->id}});
    QCOMPARE(journaled.machine().attributes(u"C:\\Folder\\ä6.txt"_s), 0x20u);
    QCOMPARE(journaled.machine().attributes(u"C:\\Folder\\ä5.txt"_s), 0x2020u);
    takeBack(journaled.journal(), {});
    QCOMPARE(journaled.differences(), QStringList());
}

void TestJournal::wordsThatAreDamagedAreNotTakenForNotes()
{
    TestMachine pc;
    pc.addFile(u"C:\\some.txt"_s);
    const Journaled journaled(pc);
    {
        const ChangeSession session(u"Test"_s);
        addBit(u"C:\\"_s);
    }
    const JournalStore &store = journaled.journal().store();
    QVERIFY(!store.notesSince(1).isEmpty());
    for (const char *damage : {"UPDATE note SET data = substr(data, 1, length(data) - 1)",
                               "UPDATE note SET data = x'7fffffff' || data", "UPDATE note SET type = type + 1"}) {
        {
            Database database(journalOptions(pc.folder()).file);
            database.execute(damage);
        }
        QVERIFY_THROWS_EXCEPTION(MachineError, store.notesSince(1));
    }
}

void TestJournal::aRenamedFileComesBackWithItsAttributes()
{
    TestMachine pc;
    const QString file = pc.addFile(u"C:\\some.exe"_s, "content");
    const QString former = pc.addFile(u"C:\\former.exe"_s, "former");
    const Journaled journaled(pc);
    {
        const ChangeSession session(u"Test"_s);
        platform().setFileAttributes(file, platform().fileAttributes(file) | 0x2000);
    }
    {
        const ChangeSession session(u"Test"_s);
        QVERIFY(platform().removeFile(former));
        QVERIFY(platform().renameFile(file, former));
    }
    takeBack(journaled.journal(), {});
    QCOMPARE(journaled.differences(), QStringList());
}

void TestJournal::aForeignJournalLeadsNowhere()
{
    const QTemporaryDir elsewhere;
    const QString host = elsewhere.filePath(u"host.txt"_s);
    writeFile(host, "mine");
    TestMachine pc;
    const Journaled journaled(pc);
    JournalStore &store = journaled.journal().store();
    const qint64 session = store.beginSession({.what = u"Foreign"_s});
    QList<Note> notes;
    for (const QString &path : {host, u"..\\..\\..\\.."_s + host, u"C:\\..\\..\\.."_s + host}) {
        Note note;
        note.item = {ItemKind::Content, path};
        note.before = {true, 0, "owned"};
        notes.append(note);
        note.item = {ItemKind::Move, host + u"2"_s, path};
        notes.append(note);
    }
    store.add(session, notes);
    takeBack(journaled.journal(), {});
    QCOMPARE(readFile(host), "mine");
    QVERIFY(!QFileInfo::exists(host + u"2"_s));
}

void TestJournal::takingBackCanBeTakenBack()
{
    TestMachine pc;
    pc.write(key, u"Value"_s, 1);
    const Journaled journaled(pc);
    change(u"Value"_s, 2);
    takeBack(journaled.journal(), {});
    const QList<Session> sessions = journaled.journal().store().sessions();
    QCOMPARE(sessions.last().what, u"Take back"_s);
    QCOMPARE(takenValue(journaled, u"Value"_s, {.firstSession = sessions.last().id, .lastSession = sessions.last().id}),
             WayBack::AsItWas);
    QCOMPARE(platform().openKey(key)->value(u"Value"_s).toInt(), 2);
}

void TestJournal::unknownProgramsAreNotHeldUp()
{
    TestMachine pc;
    const Journaled journaled(pc);
    const ChangeSession session(u"Test"_s);
    QVERIFY(platform().admitProgram(u"taskkill"_s, {u"/im"_s, u"some.exe"_s}));
    QVERIFY(platform().admitProgram(u"sc"_s, {u"query"_s}));
    QCOMPARE(journaled.journal().store().sessions().size(), 0);
}

KESTRUNE_SUITE(TestJournal)
#include "tst_journal.moc"
