// SPDX-License-Identifier: GPL-3.0-or-later
// What lies in a journal's place, a journal that can't be opened, and keys that others know by another name.

#include "journal/machinejournal.h"
#include "journaling.h"
#include "machine/database.h"
#include "machine/machineerror.h"
#include "support/files.h"
#include "support/suite.h"
#include "work/command.h"
#include "work/settings.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Vendor"_s;

/** A folder for a journal, which need not be there. */
struct Place
{
    QTemporaryDir above{};
    QString folder = above.filePath(u"Kestrune"_s);
    QString file = folder + u"/changes.sqlite"_s;
    QStringList told{};

    std::unique_ptr<JournalStore> open(ForeignRule isForeign = nullptr)
    {
        return openStore(file, Durability::ProcessEnd, isForeign, told);
    }
    QStringList names(const QString &where) const
    {
        return QDir(where).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }
};

void addSession(JournalStore &store)
{
    store.endSession(store.beginSession({.what = u"Test"_s}), SessionState::Finished);
}

/** One sentence alone, with the new name in it. */
bool isTold(const QStringList &told, const QString &newName)
{
    return told.size() == 1 && told.first().contains(newName);
}

} // namespace

class TestJournalPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSoundOneStays();
    void aDamagedOneIsKeptAside_data();
    void aDamagedOneIsKeptAside();
    void damageOnALaterPageIsFound();
    void aNewerOneStaysAndIsNotUsed();
    void whatIsNoJournalIsPutAside_data();
    void whatIsNoJournalIsPutAside();
    void aForeignFileGoesWithItsCompanions();
    void aFolderThatIsALinkIsPutAside();
    void freeNamesAreTaken();
    void aMachineTellsWhatWasPutAside();
    void aShutJournalLetsNothingBeChanged();
    void policiesOfTwoNamesAreNotedByOne();
    void usersKeysAreNotedByTheNameThatOthersKnow();
    void recordsAreKnownByThatNameToo();
    void aRecordGoesWithItsSingleChange();
};

void TestJournalPlace::aSoundOneStays()
{
    Place place;
    addSession(*place.open());
    QCOMPARE(place.open()->sessions().size(), 1);
    QCOMPARE(place.told, QStringList());
    QCOMPARE(place.names(place.above.path()), QStringList(u"Kestrune"_s));
}

void TestJournalPlace::aDamagedOneIsKeptAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text")
        << QByteArray("this was never a database, and is long enough to be looked at as one\n").repeated(100);
    Place place;
    addSession(*place.open());
    QTest::newRow("cut off") << readFile(place.file).first(5000);
    Place other;
    addSession(*other.open());
    Database(other.file).execute("DROP TABLE note");
    QTest::newRow("without a table") << readFile(other.file);
}

void TestJournalPlace::aDamagedOneIsKeptAside()
{
    QFETCH(const QByteArray, content);
    Place place;
    QVERIFY(QDir().mkpath(place.folder));
    writeFile(place.file, content);
    addSession(*place.open());
    QCOMPARE(readFile(place.file + u".damaged-1"_s), content);
    QVERIFY2(isTold(place.told, u"changes.sqlite.damaged-1"_s), qPrintable(place.told.join(u'\n')));
    QCOMPARE(place.open()->sessions().size(), 1);
    QCOMPARE(place.told.size(), 1);
}

void TestJournalPlace::damageOnALaterPageIsFound()
{
    Place place;
    {
        const auto store = place.open();
        const qint64 session = store->beginSession({.what = u"Test"_s});
        QList<Note> notes;
        for (int i = 0; i < 2000; ++i) {
            Note note;
            note.item = {ItemKind::Value, key, QString::number(i)};
            notes.append(note);
        }
        store->add(session, notes);
    }
    QFile file(place.file);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.size() > 65536);
    QVERIFY(file.seek(file.size() / 2 / 4096 * 4096));
    QCOMPARE(file.write(QByteArray(8192, 'x')), 8192);
    file.close();
    QCOMPARE(place.open()->sessions().size(), 0);
    QVERIFY2(isTold(place.told, u"changes.sqlite.damaged-1"_s), qPrintable(place.told.join(u'\n')));
}

void TestJournalPlace::aNewerOneStaysAndIsNotUsed()
{
    Place place;
    addSession(*place.open());
    Database(place.file).execute("PRAGMA user_version = 1000");
    QVERIFY_THROWS_EXCEPTION(MachineError, place.open());
    QCOMPARE(place.told, QStringList());
    QVERIFY(QFileInfo::exists(place.file));
}

void TestJournalPlace::whatIsNoJournalIsPutAside_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("folder") << 0;
    QTest::newRow("link to a file") << 1;
    QTest::newRow("link to nothing") << 2;
    QTest::newRow("link beside it") << 3;
}

void TestJournalPlace::whatIsNoJournalIsPutAside()
{
    QFETCH(const int, kind);
#ifdef Q_OS_WIN
    if (kind != 0)
        QSKIP("a user needs a right for links there, and Wine makes none");
#endif
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(u"target"_s);
    Place place;
    QVERIFY(QDir().mkpath(place.folder));
    if (kind == 0)
        QVERIFY(QDir().mkpath(place.file + u"/below"_s));
    if (kind == 1 || kind == 3)
        writeFile(target, "mine");
    if (kind != 0)
        QVERIFY(QFile::link(target, kind == 3 ? place.file + u"-wal"_s : place.file));
    addSession(*place.open());
    QVERIFY(isTold(place.told, u"changes.sqlite.foreign-1"_s));
    QCOMPARE(place.open()->sessions().size(), 1);
    if (kind == 1 || kind == 3)
        QCOMPARE(readFile(target), "mine");
    else
        QVERIFY(!QFileInfo::exists(target));
}

void TestJournalPlace::aForeignFileGoesWithItsCompanions()
{
    Place place;
    addSession(*place.open());
    writeFile(place.file + u"-wal"_s, "planted");
    addSession(*place.open([](const QString &path) { return path.endsWith("-wal"_L1); }));
    QVERIFY(isTold(place.told, u"changes.sqlite.foreign-1"_s));
    QCOMPARE(readFile(place.file + u".foreign-1-wal"_s), "planted");
    QVERIFY(QFileInfo::exists(place.file + u".foreign-1"_s));
    QCOMPARE(place.open()->sessions().size(), 1);
}

void TestJournalPlace::aFolderThatIsALinkIsPutAside()
{
#ifdef Q_OS_WIN
    QSKIP("a user needs a right for links there, and Wine makes none");
#endif
    const QTemporaryDir elsewhere;
    Place place;
    QVERIFY(QFile::link(elsewhere.path(), place.folder));
    addSession(*place.open());
    QVERIFY(isTold(place.told, u"Kestrune.foreign-1"_s));
    QVERIFY(QFileInfo(place.folder + u".foreign-1"_s).isSymLink());
    QCOMPARE(place.names(elsewhere.path()), QStringList());
}

void TestJournalPlace::freeNamesAreTaken()
{
    Place place;
    QVERIFY(QDir().mkpath(place.folder));
    for (const char *content : {"first", "second", "third"}) {
        writeFile(place.file, content);
        addSession(*place.open());
    }
    QCOMPARE(place.told.size(), 3);
    QCOMPARE(readFile(place.file + u".damaged-1"_s), "first");
    QCOMPARE(readFile(place.file + u".damaged-3"_s), "third");
    QVERIFY_THROWS_EXCEPTION(MachineError, putAside(place.folder + u"/none"_s, u"foreign"_s));
}

void TestJournalPlace::aMachineTellsWhatWasPutAside()
{
    const TestMachine pc;
    setPlatform(nullptr);
    const QString file = journalFile(pc.folder());
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    writeFile(file, "no journal");
    const auto journal = openMachineJournal(pc.folder());
    QVERIFY(isTold(journal->putAside(), u"changes.sqlite.damaged-1"_s));
    QCOMPARE(journal->takeFailure(), QString());
    QCOMPARE(journal->store().sessions().size(), 0);
}

void TestJournalPlace::aShutJournalLetsNothingBeChanged()
{
    TestMachine pc;
    pc.add({.name = u"Spooler"_s, .start = 2, .running = true});
    pc.write(key, u"Value"_s, 1);
    const QString file = pc.addFile(u"C:\\some.txt"_s);
    const Journaled journaled(pc);
    auto onMachine = std::make_unique<MachinePlatform>(pc.folder(), MachineOptions());
    Machine &machine = onMachine->machine();
    JournalOptions options = journalOptions(pc.folder());
    options.shut = u"the disk is gone"_s;
    setPlatform(std::make_unique<Journal>(std::move(onMachine), std::make_unique<MachineSystem>(machine), options));
    QCOMPARE(platform().takeFailure(), u"the disk is gone"_s);
    QCOMPARE(platform().takeFailure(), QString());
    QVERIFY_THROWS_EXCEPTION(MachineError, static_cast<Journal &>(platform()).store());
    {
        const ChangeSession session(u"Test"_s);
        platform().openKey(key)->setValue(u"Value"_s, 2);
        platform().openKey(key + u"\\New"_s)->value(u"none"_s);
        QCOMPARE(runTool(u"sc"_s, {u"stop"_s, u"Spooler"_s}), Command::accessDenied);
        QVERIFY(!platform().removeFile(file));
        platform().setFileAttributes(file, 0x2000);
    }
    QCOMPARE(platform().takeFailure(), u"the disk is gone"_s);
    QCOMPARE(platform().openKey(key)->value(u"Value"_s).toInt(), 1);
    QVERIFY(QFileInfo::exists(file));
    QCOMPARE(platform().fileAttributes(file) & 0x2000, 0U);
    QVERIFY(!machine.registry().find(key + u"\\New"_s));
    QVERIFY(machine.runStates().value(u"Spooler"_s));
    // What the user chooses for the program is no change of the PC.
    platform().openKey(settingsKey)->setValue(u"lang"_s, u"de"_s);
    QCOMPARE(platform().openKey(settingsKey)->value(u"lang"_s).toString(), u"de"_s);
}

namespace {

const QString users = u"HKEY_USERS\\S-1-5-21-1-2-3-1001"_s;

/** The subjects of all notes of values. */
QStringList notedValues(const Journal &journal, bool own)
{
    QStringList texts;
    for (const Note &note : journal.store().notesSince(1)) {
        if (note.item.kind == ItemKind::Value && note.own == own)
            texts.append(note.item.subject + u'|' + note.item.name);
    }
    return texts;
}

/** A journal of a machine, for a user whose keys others know by their number. */
Journal &openAsUser(const QString &folder, bool sharesPolicies = false)
{
    auto onMachine = std::make_unique<MachinePlatform>(folder, MachineOptions());
    Machine &machine = onMachine->machine();
    JournalOptions options = journalOptions(folder);
    options.userKey = users;
    options.sharesPolicies = sharesPolicies;
    auto journal = std::make_unique<Journal>(std::move(onMachine), std::make_unique<MachineSystem>(machine), options);
    Journal &opened = *journal;
    setPlatform(std::move(journal));
    return opened;
}

} // namespace

void TestJournalPlace::policiesOfTwoNamesAreNotedByOne()
{
    const TestMachine pc;
    setPlatform(nullptr);
    const Journal &journal = openAsUser(pc.folder(), true);
    const QString policies = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies"_s;
    const QString policiesOf32 = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Policies"_s;
    QCOMPARE(journal.commonPath(policiesOf32), policies);
    QCOMPARE(journal.commonPath(policiesOf32.toUpper() + u"\\Vendor"_s), policies + u"\\Vendor"_s);
    QCOMPARE(journal.commonPath(policiesOf32 + u"Other"_s), policiesOf32 + u"Other"_s);
    {
        const ChangeSession session(u"Tweaks"_s);
        for (const QString &each : {policiesOf32, policies})
            platform().openKey(each + u"\\Vendor"_s)->setValue(u"value"_s, 1);
    }
    int values = 0;
    for (const TakenItem &item : planWayBack(journal, {})) {
        if (item.item.kind != ItemKind::Value)
            continue;
        QCOMPARE(item.item.subject, policies + u"\\Vendor"_s);
        ++values;
    }
    QCOMPARE(values, 1);
    setPlatform(nullptr);
}

void TestJournalPlace::usersKeysAreNotedByTheNameThatOthersKnow()
{
    const TestMachine pc;
    setPlatform(nullptr);
    const Journal &journal = openAsUser(pc.folder());
    {
        const ChangeSession session(u"Test"_s);
        platform().openKey(u"HKEY_CURRENT_USER\\Software\\Vendor"_s)->setValue(u"Value"_s, 1);
        platform().openKey(u"HKCU\\Software\\Vendor"_s)->setValue(u"Sub/Other"_s, 1);
        platform().openKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\HKEY_CURRENT_USER"_s)->setValue(u"Value"_s, 1);
    }
    QCOMPARE(notedValues(journal, false),
             (QStringList{users + u"\\Software\\Vendor|Value"_s, users + u"\\Software\\Vendor\\Sub|Other"_s,
                          u"HKEY_LOCAL_MACHINE\\SOFTWARE\\HKEY_CURRENT_USER|Value"_s}));
    setPlatform(nullptr);
}

void TestJournalPlace::recordsAreKnownByThatNameToo()
{
    const TestMachine pc;
    setPlatform(nullptr);
    const Journal &journal = openAsUser(pc.folder());
    {
        const ChangeSession session(u"Test"_s);
        platform().openKey(settingsKey + u"\\SVC"_s)->setValue(u"Spooler"_s, 1);
        platform().openKey(settingsKey)->setValue(u"lang"_s, u"de"_s);
    }
    QCOMPARE(notedValues(journal, false), QStringList());
    QCOMPARE(notedValues(journal, true),
             QStringList(users + settingsKey.sliced(settingsKey.indexOf(u'\\')) + u"\\SVC|Spooler"_s));
    setPlatform(nullptr);
}

void TestJournalPlace::aRecordGoesWithItsSingleChange()
{
    TestMachine pc;
    pc.add({.name = u"Spooler"_s, .start = 2});
    setPlatform(nullptr);
    const Journal &journal = openAsUser(pc.folder());
    {
        const ChangeSession session(u"Test"_s);
        platform().openKey(servicesKey + u"\\Spooler"_s)->setValue(u"Start"_s, 4);
        platform().openKey(settingsKey + u"\\SVC"_s)->setValue(u"Spooler"_s, 1);
        platform().openKey(u"HKEY_CURRENT_USER\\Software\\Vendor"_s)->setValue(u"Value"_s, 1);
    }
    Selection selection;
    for (const Note &note : journal.store().notesSince(1)) {
        if (note.item.name == "Start"_L1)
            selection.items.append(note.id);
    }
    QCOMPARE(selection.items.size(), 1);
    const QList<TakenItem> plan = planWayBack(journal, selection);
    QCOMPARE(plan.size(), 2);
    QVERIFY(plan.at(0).own != plan.at(1).own);
    setPlatform(nullptr);
}

KESTRUNE_SUITE(TestJournalPlace)
#include "tst_journalplace.moc"
