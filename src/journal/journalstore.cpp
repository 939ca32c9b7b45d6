// SPDX-License-Identifier: GPL-3.0-or-later

#include "journalstore.h"

#include "machine/database.h"
#include "machine/machineerror.h"
#include "machine/registrystore.h"
#include "machine/workfolder.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int formatVersion = 1;

/** Beside the kinds of items: a row that holds the words of many files. */
constexpr int kindOfWords = 100;

// "fold" names the item as foldedItem() does; a move has none, since it is a step, and one that comes again is another.
// AUTOINCREMENT: a session that was removed never lends its number to another. Where it is unknown what became of the
// item, the columns "after" are null. Words of attributes come in hundreds of thousands, so one row holds thousands of
// them: its "type" is their number, "data" is what packed() makes of them, and its id is the last one of as many.
constexpr const char *schema = R"(
CREATE TABLE session (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    begun INTEGER NOT NULL,
    ended INTEGER,
    what TEXT NOT NULL,
    user TEXT NOT NULL,
    version TEXT NOT NULL,
    windows TEXT NOT NULL,
    state INTEGER NOT NULL,
    settled INTEGER NOT NULL DEFAULT 0);
CREATE TABLE note (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    session INTEGER NOT NULL REFERENCES session (id),
    fold TEXT,
    kind INTEGER NOT NULL,
    subject TEXT NOT NULL,
    name TEXT NOT NULL,
    own INTEGER NOT NULL,
    there INTEGER NOT NULL,
    type INTEGER NOT NULL,
    data BLOB NOT NULL,
    thereAfter INTEGER,
    typeAfter INTEGER,
    dataAfter BLOB,
    UNIQUE (session, fold));
)";

/** A column's empty bytes mustn't be taken for null. */
QByteArray asBlob(const QByteArray &data)
{
    return data.isNull() ? QByteArray("", 0) : data;
}

qint64 now()
{
    return QDateTime::currentMSecsSinceEpoch();
}

/** Whether it has the columns, and SQLite finds nothing wrong with it. */
bool isSound(Database &database, qint64 size)
{
    constexpr qint64 mostToLookThrough = qint64(16) << 20; // what is larger would hold up each start

    auto columns = database.query("SELECT (SELECT count(*) FROM pragma_table_info('session')), "
                                  "(SELECT count(*) FROM pragma_table_info('note'))");
    if (!columns.next() || columns.integer(0) != 9 || columns.integer(1) != 13)
        return false;
    if (size > mostToLookThrough)
        return true;
    auto check = database.query("PRAGMA quick_check(1)");
    return check.next() && check.text(0) == "ok"_L1;
}

/** Of each path only what isn't as in the one before it: files of a folder come one after another. */
QByteArray packed(const QList<WordNote> &words)
{
    QByteArray bytes;
    bytes.reserve(words.size() * 40);
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    QByteArray last;
    for (const WordNote &word : words) {
        const QByteArray file = word.file.toUtf8();
        const auto differs = std::mismatch(file.cbegin(), file.cend(), last.cbegin(), last.cend());
        const auto common = static_cast<quint32>(differs.first - file.cbegin());
        stream << common << file.sliced(common) << word.before << word.after;
        last = file;
    }
    return bytes;
}

/** The notes of a row that packed() has made, each with an id of its own. */
QList<Note> unpacked(const Database::Query &row)
{
    const QByteArray bytes = row.bytes(8);
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_0);
    const qint64 count = row.integer(7);
    QList<Note> notes;
    QByteArray file;
    while (stream.status() == QDataStream::Ok && !stream.atEnd()) {
        quint32 common = 0;
        QByteArray rest;
        quint32 before = 0;
        quint32 after = 0;
        stream >> common >> rest >> before >> after;
        file = file.first(std::min<qsizetype>(common, file.size())) + rest;
        Note note;
        note.id = row.integer(0) - count + notes.size() + 1;
        note.session = row.integer(1);
        note.item = {ItemKind::Attributes, QString::fromUtf8(file)};
        note.before = {true, before};
        note.after = ItemState{true, after};
        notes.append(note);
    }
    if (stream.status() != QDataStream::Ok || notes.size() != count)
        throw MachineError{u"the journal's note %1 is damaged"_s.arg(row.integer(0)), true};
    return notes;
}

Note noteOf(const Database::Query &row)
{
    Note note;
    note.id = row.integer(0);
    note.session = row.integer(1);
    note.item = {static_cast<ItemKind>(row.integer(2)), row.text(3), row.text(4)};
    note.own = row.integer(5) != 0;
    note.before = {row.integer(6) != 0, static_cast<quint32>(row.integer(7)), row.bytes(8)};
    if (!row.isNull(9))
        note.after = ItemState{row.integer(9) != 0, static_cast<quint32>(row.integer(10)), row.bytes(11)};
    return note;
}

QList<Session> sessionsIn(Database &database)
{
    QList<Session> sessions;
    auto rows = database.query("SELECT id, begun, ended, what, user, version, state, (SELECT "
                               "ifnull(sum(CASE WHEN kind = 100 THEN type ELSE 1 END), 0) FROM note "
                               "WHERE session = session.id AND own = 0), settled, windows FROM session ORDER BY id");
    while (rows.next()) {
        Session session;
        session.id = rows.integer(0);
        session.begun = QDateTime::fromMSecsSinceEpoch(rows.integer(1));
        if (!rows.isNull(2))
            session.ended = QDateTime::fromMSecsSinceEpoch(rows.integer(2));
        session.what = rows.text(3);
        session.user = rows.text(4);
        session.version = rows.text(5);
        session.state = static_cast<SessionState>(rows.integer(6));
        session.changes = static_cast<int>(rows.integer(7));
        session.settled = rows.integer(8) != 0;
        session.windows = rows.text(9);
        sessions.append(session);
    }
    return sessions;
}

constexpr char notesOfSession[] = "SELECT id, session, kind, subject, name, own, there, type, data, thereAfter, "
                                  "typeAfter, dataAfter FROM note WHERE session = ? ORDER BY id";
constexpr char notesSinceSession[] = "SELECT id, session, kind, subject, name, own, there, type, data, thereAfter, "
                                     "typeAfter, dataAfter FROM note WHERE session >= ? ORDER BY id";

QList<Note> notesIn(Database &database, const char *query, qint64 session)
{
    QList<Note> notes;
    auto rows = database.query(query);
    rows.bind(session);
    while (rows.next()) {
        if (rows.integer(2) == kindOfWords)
            notes.append(unpacked(rows));
        else
            notes.append(noteOf(rows));
    }
    return notes;
}

} // namespace

QString foldedItem(const Item &item)
{
    return QString::number(static_cast<int>(item.kind)) + u'|' + foldName(item.subject) + u'|' + foldName(item.name);
}

JournalStore::JournalStore(const QString &file, Durability durability)
    : file_(file)
    , alone_(file + u".lock"_s)
{
    const QString folder = QFileInfo(file).path();
    if (!QDir().mkpath(folder))
        throw MachineError{u"%1: the folder can't be made"_s.arg(QDir::toNativeSeparators(folder))};
    database_ = std::make_unique<Database>(file);
    database_->execute("PRAGMA journal_mode = WAL");
    database_->execute(durability == Durability::PowerCut ? "PRAGMA synchronous = FULL" : "PRAGMA synchronous = OFF");
    Database::Transaction opening(*database_);
    auto version = database_->query("PRAGMA user_version");
    version.next();
    const qint64 found = version.integer(0);
    if (found > formatVersion)
        throw MachineError{u"%1: was written by a newer version"_s.arg(QDir::toNativeSeparators(file))};
    if (found == 0) {
        database_->execute(schema);
        database_->execute("PRAGMA user_version = 1");
    }
    if (!isSound(*database_, QFileInfo(file).size()))
        throw MachineError{u"%1: is damaged"_s.arg(QDir::toNativeSeparators(file)), true};
    // Whoever has the lock is alone with the file: a session that is still under way has lost its program.
    alone_.setStaleLockTime(0);
    if (alone_.tryLock(0))
        database_->execute("UPDATE session SET state = 2 WHERE state = 0");
    opening.commit();
}

JournalStore::~JournalStore() = default;

qint64 JournalStore::beginSession(const Session &session)
{
    Database::Transaction together(*database_);
    database_->query("INSERT INTO session (begun, what, user, version, windows, state) VALUES (?, ?, ?, ?, ?, 0)")
        .bind(now())
        .bind(session.what)
        .bind(session.user)
        .bind(session.version)
        .bind(session.windows)
        .run();
    auto last = database_->query("SELECT last_insert_rowid()");
    last.next();
    const qint64 id = last.integer(0);
    together.commit();
    return id;
}

void JournalStore::endSession(qint64 session, SessionState state)
{
    database_->query("UPDATE session SET ended = ?, state = ? WHERE id = ?")
        .bind(state == SessionState::Finished ? QVariant(now()) : QVariant())
        .bind(static_cast<int>(state))
        .bind(session)
        .run();
}

void JournalStore::setSettled(qint64 session)
{
    database_->query("UPDATE session SET settled = 1 WHERE id = ?").bind(session).run();
}

void JournalStore::keepDays(int days)
{
    if (days == 0)
        return;
    Database::Transaction together(*database_);
    const qint64 moment = QDateTime::currentDateTimeUtc().addDays(-days).toMSecsSinceEpoch();
    // One that began after a younger one isn't older than that, whatever the clock said at the time.
    auto young = database_->query("SELECT min(id) FROM session WHERE begun >= ?");
    young.bind(moment).next();
    const qint64 first = young.isNull(0) ? std::numeric_limits<qint64>::max() : young.integer(0);
    young.run(); // to its end
    database_->query("DELETE FROM note WHERE session < ?").bind(first).run();
    database_->query("DELETE FROM session WHERE id < ?").bind(first).run();
    together.commit();
}

void JournalStore::add(qint64 session, const QList<Note> &notes)
{
    Database::Transaction together(*database_);
    for (const Note &note : notes) {
        database_
            ->query("INSERT OR IGNORE INTO note (session, fold, kind, subject, name, own, there, type, data) "
                    "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)")
            .bind(session)
            .bind(note.item.kind == ItemKind::Move ? QVariant() : QVariant(foldedItem(note.item)))
            .bind(static_cast<int>(note.item.kind))
            .bind(note.item.subject)
            .bind(note.item.name)
            .bind(note.own ? 1 : 0)
            .bind(note.before.there ? 1 : 0)
            .bind(note.before.type)
            .bind(asBlob(note.before.data))
            .run();
    }
    together.commit();
}

void JournalStore::addWords(qint64 session, const QList<WordNote> &words)
{
    if (words.isEmpty())
        return;
    database_
        ->query("INSERT INTO note (id, session, kind, subject, name, own, there, type, data) VALUES "
                "(ifnull((SELECT seq FROM sqlite_sequence WHERE name = 'note'), 0) + ?, ?, ?, '', '', 0, 1, ?, ?)")
        .bind(words.size())
        .bind(session)
        .bind(kindOfWords)
        .bind(words.size())
        .bind(packed(words))
        .run();
}

void JournalStore::setAfter(const QList<Note> &notes)
{
    Database::Transaction together(*database_);
    for (const Note &note : notes) {
        database_->query("UPDATE note SET thereAfter = ?, typeAfter = ?, dataAfter = ? WHERE id = ?")
            .bind(note.after->there ? 1 : 0)
            .bind(note.after->type)
            .bind(asBlob(note.after->data))
            .bind(note.id)
            .run();
    }
    together.commit();
}

QList<Session> JournalStore::sessions() const
{
    return sessionsIn(*database_);
}

QList<Note> JournalStore::notes(qint64 session) const
{
    return notesIn(*database_, notesOfSession, session);
}

QList<Note> JournalStore::notesSince(qint64 firstSession) const
{
    return notesIn(*database_, notesSinceSession, firstSession);
}

JournalContent readJournal(const QString &file)
{
    // SQLite puts files beside one that it reads.
    const WorkFolder copies;
    const QString copy = copies.filePath(u"changes.sqlite"_s);
    if (!QFile::copy(file, copy))
        throw MachineError{u"%1: can't be read"_s.arg(QDir::toNativeSeparators(file))};
    QFile::copy(file + u"-wal"_s, copy + u"-wal"_s); // what a program that was ended has left there
    Database database(copy);
    return {sessionsIn(database), notesIn(database, notesSinceSession, 0)};
}
