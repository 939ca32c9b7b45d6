// SPDX-License-Identifier: GPL-3.0-or-later
// The journal of a real registry, and the folder that it lies in.

#include "journal/realjournal.h"
#include "journal/takeback.h"
#include "machine/machineerror.h"
#include "platform/windows/adminfolder.h"
#include "platform/windows/processtoken.h"
#include "platform/windows/windowssystem.h"
#include "support/files.h"
#include "support/suite.h"
#include "work/tweaks/tweakvalues.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <span>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString testKey = u"HKEY_CURRENT_USER\\Software\\KestruneJournalTest"_s;

QString testFolder()
{
    return programDataFolder() + u"\\KestruneJournalTest"_s;
}

QStringList foldersOfTests()
{
    const QDir programData(programDataFolder());
    QStringList paths;
    for (const QString &name : programData.entryList({u"KestruneJournalTest*"_s}, QDir::AllEntries | QDir::System))
        paths.append(programData.filePath(name));
    return paths;
}

/** Everything at and below a key, as text. */
QStringList contentOf(const QString &key)
{
    const KeyContent content = WindowsReader().key(key);
    QStringList lines;
    for (const RegistryValue &value : content.values)
        lines.append(key + u'|' + value.name + u'|' + QString::number(static_cast<quint32>(value.type)) + u'|'
                     + QString::fromLatin1(value.data.toHex()));
    for (const QString &subkey : content.subkeys)
        lines += key + u'\\' + subkey;
    for (const QString &subkey : content.subkeys)
        lines += contentOf(key + u'\\' + subkey);
    lines.sort();
    return lines;
}

/** The rows of a table below the key of the tests; they refer to the keys. */
std::vector<TweakValue> movedRows(std::span<const TweakValue> original, std::vector<QByteArray> &keys)
{
    keys.reserve(original.size());
    std::vector<TweakValue> rows;
    for (const TweakValue &row : original) {
        keys.push_back((testKey + u"\\Tweaks\\"_s + row.key).toLatin1());
        TweakValue moved = row;
        moved.key = QLatin1StringView(keys.back());
        rows.push_back(moved);
    }
    return rows;
}

/** The journal of the tests, in force while the object lives. */
class Opened
{
public:
    Opened()
    {
        auto journal = openRealJournal(testFolder());
        journal_ = journal.get();
        setPlatform(std::move(journal));
    }
    ~Opened() { setPlatform(nullptr); }
    Q_DISABLE_COPY_MOVE(Opened)

    const Journal *operator->() const { return journal_; }
    const Journal &operator*() const { return *journal_; }

private:
    Journal *journal_ = nullptr;
};

void change(const QString &name, const QVariant &value)
{
    const ChangeSession session(u"Test"_s);
    platform().openKey(testKey)->setValue(name, value);
}

} // namespace

class TestRealJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(isElevatedProcess()); }
    void init();
    void cleanup();

    void everyTweakComesBack_data();
    void everyTweakComesBack();
    void notesAreOfTheUserByNumber();
    void whatAnotherProgramHasChangedIsLeftAlone();
    void attributesComeBack();
    void theFolderIsHeldAndStays();
    void aFileInPlaceOfTheFolderIsPutAside();
    void aFileWithTwoNamesIsForeign();
    void aDamagedJournalIsKept();
    void withoutItsFolderNothingIsChanged();
};

void TestRealJournal::init()
{
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\KestruneJournalTest");
    for (const QString &path : foldersOfTests()) {
        if (QFileInfo(path).isDir())
            QDir(path).removeRecursively();
        QFile::remove(path);
    }
    QCOMPARE(foldersOfTests(), QStringList());
}

void TestRealJournal::cleanup()
{
    setPlatform(nullptr);
    init();
}

void TestRealJournal::everyTweakComesBack_data()
{
    addColumns<int, bool>("group", "apply");
    for (int group = 0; group < 4; ++group) {
        for (const bool apply : {true, false})
            QTest::addRow("table %d %s", group, apply ? "applied" : "reset") << group << apply;
    }
}

void TestRealJournal::everyTweakComesBack()
{
    QFETCH(const int, group);
    QFETCH(const bool, apply);
    const std::span<const TweakValue> tables[] = {ssdValues(), gamingValues(), windowsValues(), telemetryValues()};
    std::vector<QByteArray> keys;
    const std::vector<TweakValue> rows = movedRows(tables[group], keys);
    WindowsSystem system;
    // Some are there, in forms that no tool writes; the keys of the others have still to be made.
    for (std::size_t i = 0; i < rows.size(); i += 2)
        QVERIFY(system.setValue(QString(rows.at(i).key),
                                {QString(rows.at(i).name), static_cast<RegistryType>(i % 12), QByteArray("a\0b", 3)}));
    const QStringList before = contentOf(testKey);
    {
        const Opened journal;
        {
            const ChangeSession session(u"Tweaks"_s);
            for (quint32 id = 1; id <= 14; ++id)
                writeTweakValues(rows, id, apply);
        }
        QVERIFY(contentOf(testKey) != before);
        QCOMPARE(journal->store().sessions().size(), 1);
    }
    // As after the next start of the program
    const Opened journal;
    for (const TakenItem &item : takeBack(*journal, {}))
        QVERIFY2(item.verdict == WayBack::AsItWas, qPrintable(item.item.subject + u'|' + item.item.name + item.why));
    QCOMPARE(contentOf(testKey), before);
    QCOMPARE(journal->takeFailure(), QString());
}

void TestRealJournal::notesAreOfTheUserByNumber()
{
    const Opened journal;
    change(u"Value"_s, 1);
    const Session session = journal->store().sessions().constFirst();
    QCOMPARE(session.user, sidOfUser());
    QCOMPARE(session.state, SessionState::Finished);
    for (const Note &note : journal->store().notes(session.id))
        QVERIFY2(note.item.subject.startsWith(u"HKEY_USERS\\"_s + sidOfUser() + u'\\'), qPrintable(note.item.subject));
}

void TestRealJournal::whatAnotherProgramHasChangedIsLeftAlone()
{
    WindowsSystem system;
    system.setValue(testKey, {u"Value"_s, RegistryType::Binary, QByteArray("\1\2\3")});
    system.setValue(testKey, {u"Other"_s, RegistryType::Binary, QByteArray("\1\2\3")});
    const Opened journal;
    change(u"Value"_s, 1);
    change(u"Other"_s, 1);
    // Of the same bytes, but of another type
    system.setValue(testKey, {u"Value"_s, RegistryType::Binary, registryDWord(1)});
    QList<TakenItem> taken = takeBack(*journal, {});
    QCOMPARE(taken.size(), 2);
    const bool isFirst = taken.constFirst().item.name == "Value"_L1;
    QCOMPARE(taken.at(isFirst ? 0 : 1).verdict, WayBack::Changed);
    QCOMPARE(taken.at(isFirst ? 1 : 0).verdict, WayBack::AsItWas);
    QCOMPARE(system.value(testKey, u"Value"_s)->data, registryDWord(1));
    QCOMPARE(system.value(testKey, u"Other"_s)->data, QByteArray("\1\2\3"));
    Selection even;
    even.evenChanged = true;
    takeBack(*journal, even);
    QCOMPARE(system.value(testKey, u"Value"_s)->data, QByteArray("\1\2\3"));
}

void TestRealJournal::attributesComeBack()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"file.txt"_s);
    writeFile(file, "x");
    const Opened journal;
    const quint32 before = platform().fileAttributes(file);
    {
        const ChangeSession session(u"Test"_s);
        platform().walk(folder.path(), [](const WalkEntry &entry) {
            platform().setFileAttributes(entry.path, platform().fileAttributes(entry.path) | FILE_ATTRIBUTE_READONLY);
            return true;
        });
    }
    QVERIFY((platform().fileAttributes(file) & FILE_ATTRIBUTE_READONLY) != 0);
    takeBack(*journal, {});
    QCOMPARE(platform().fileAttributes(file), before);
}

void TestRealJournal::theFolderIsHeldAndStays()
{
    {
        const Opened journal;
        change(u"Value"_s, 1);
        QCOMPARE(journal->putAside(), QStringList());
        QVERIFY(!isForeign(testFolder()));
        QVERIFY(QFileInfo(testFolder() + u"\\changes.sqlite"_s).isFile());
        QVERIFY(!MoveFileExW(wide(testFolder()), wide(testFolder() + u".moved"_s), 0));
    }
    const Opened journal;
    QCOMPARE(journal->putAside(), QStringList());
    QCOMPARE(journal->store().sessions().size(), 1);
    QCOMPARE(foldersOfTests().size(), 1);
}

void TestRealJournal::aFileInPlaceOfTheFolderIsPutAside()
{
    writeFile(testFolder(), "planted");
    const Opened journal;
    QCOMPARE(journal->putAside().size(), 1);
    QVERIFY(journal->putAside().constFirst().contains("KestruneJournalTest.foreign-1"_L1));
    QCOMPARE(readFile(testFolder() + u".foreign-1"_s), "planted");
    change(u"Value"_s, 1);
    QCOMPARE(journal->store().sessions().size(), 1);
}

void TestRealJournal::aFileWithTwoNamesIsForeign()
{
    const QString file = testFolder() + u"\\changes.sqlite"_s;
    {
        const Opened journal;
        change(u"Value"_s, 1);
    }
    QVERIFY(!isForeign(file));
    QVERIFY(CreateHardLinkW(wide(testFolder() + u"\\other name"_s), wide(file), nullptr));
    QVERIFY(isForeign(file));
    const Opened journal;
    QCOMPARE(journal->putAside().size(), 1);
    QCOMPARE(journal->store().sessions().size(), 0);
    QVERIFY(QFileInfo::exists(file + u".foreign-1"_s));
    QVERIFY(isForeign(testFolder() + u"\\none"_s));
}

void TestRealJournal::aDamagedJournalIsKept()
{
    QVERIFY(holdAdminFolder(testFolder()));
    writeFile(testFolder() + u"\\changes.sqlite"_s, "no journal");
    const Opened journal;
    QCOMPARE(journal->putAside().size(), 1);
    QCOMPARE(readFile(testFolder() + u"\\changes.sqlite.damaged-1"_s), "no journal");
    change(u"Value"_s, 1);
    QCOMPARE(journal->store().sessions().size(), 1);
}

void TestRealJournal::withoutItsFolderNothingIsChanged()
{
    WindowsSystem system;
    system.setValue(testKey, {u"Value"_s, RegistryType::DWord, registryDWord(1)});
    writeFile(testFolder(), "planted");
    // By somebody who lets nobody rename it
    const Handle handle =
        validHandle(CreateFileW(wide(testFolder()), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    QVERIFY(handle);
    const Opened journal;
    const QString why = journal->takeFailure();
    QVERIFY2(why.contains("KestruneJournalTest"_L1), qPrintable(why));
    QCOMPARE(journal->takeFailure(), QString());
    change(u"Value"_s, 2);
    change(u"New"_s, 2);
    QCOMPARE(platform().openKey(testKey)->value(u"Value"_s).toInt(), 1);
    QVERIFY(!system.value(testKey, u"New"_s));
    QCOMPARE(journal->takeFailure(), why);
    QVERIFY_THROWS_EXCEPTION(MachineError, journal->store());
}

KESTRUNE_SUITE(TestRealJournal)
#include "tst_realjournal.moc"
