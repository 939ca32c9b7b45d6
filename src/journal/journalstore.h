// SPDX-License-Identifier: GPL-3.0-or-later
// The journal's file: sessions, and what was there before each of their changes.

#pragma once

#include "item.h"

#include <QDateTime>
#include <QList>
#include <QLockFile>
#include <QStringList>

#include <memory>

class Database;

/** How long a note must last from the moment it is made. */
enum class Durability {
    ProcessEnd, ///< whatever ends this process; enough for a rehearsal
    PowerCut,
};

enum class SessionState : int { UnderWay = 0, Finished = 1, BrokenOff = 2 };

/** The session of keys and values that the program makes by looking at them, which no job is about. */
inline const QString lookingAround = QStringLiteral("Looking around");

/** A stretch of changes that belong together: a job, or one click of a button that changes something. */
struct Session
{
    qint64 id = 0;
    QDateTime begun{};
    QDateTime ended{}; ///< null while it is under way, and of one that was broken off
    QString what{};    ///< "Optimize", "Disable services"
    QString user{};    ///< who ran it: a SID on Windows
    QString version{}; ///< of the program
    QString windows{}; ///< the build number of Windows, "26100"; empty where that was unknown
    SessionState state = SessionState::UnderWay;
    bool settled = false; ///< of one that was broken off: what it had left undone was looked after
    int changes = 0;      ///< notes that aren't of the program's own records
};

/** What was there before the first change that a session made to an item. */
struct Note
{
    qint64 id = 0;
    qint64 session = 0;
    Item item{};
    ItemState before{};
    std::optional<ItemState> after{}; ///< as the session left it; nothing where it was broken off
    bool own = false;                 ///< of the program's own records, which go with the change they are of
};

/** The attribute word of a file, by its Windows path, before and after a change. */
struct WordNote
{
    QString file{};
    quint32 before = 0;
    quint32 after = 0;
};

/** One open journal. Any thread. All functions throw MachineError. */
class JournalStore
{
public:
    /**
     * Opens the file, or makes it with the folder above it. Sessions of programs that have ended without a word are
     * broken off from then on.
     */
    JournalStore(const QString &file, Durability durability);
    ~JournalStore();
    Q_DISABLE_COPY_MOVE(JournalStore)

    /** The host path of the file. */
    QString file() const { return file_; }

    /** Begins one that is under way, now; of @p session what, user, version and windows count. */
    qint64 beginSession(const Session &session);
    void endSession(qint64 session, SessionState state);
    void setSettled(qint64 session);
    /** Removes the sessions that are older, with their notes. @param days 0: none */
    void keepDays(int days);

    /** Notes items of one session together; on the disk when this returns. An item that it has already stays as it is.
     */
    void add(qint64 session, const QList<Note> &notes);
    /**
     * Notes the words of many files together, each of which is read as a note of its own. What became of them is what
     * they are to be: a walk over a disk isn't made twice to see which file has refused.
     */
    void addWords(qint64 session, const QList<WordNote> &words);
    /** What became of items, by notes without that. */
    void setAfter(const QList<Note> &notes);

    /** In the order of their begin. */
    QList<Session> sessions() const;
    /** The notes of a session in the order in which they were made. */
    QList<Note> notes(qint64 session) const;
    /** Those of all sessions from that one on. */
    QList<Note> notesSince(qint64 firstSession) const;

private:
    QString file_;
    QLockFile alone_; ///< held while the file is open, by the first who opens it
    std::unique_ptr<Database> database_;
};

/** All that a journal holds. */
struct JournalContent
{
    QList<Session> sessions; ///< in the order of their begin
    QList<Note> notes;       ///< in the order in which they were made
};

/** Reads a journal that is there, without a change to it. Throws MachineError. */
JournalContent readJournal(const QString &file);

// Where a journal lies, and what becomes of something else that lies there.

/** Whether a file that is there may be another's; see isForeign() of Windows. */
using ForeignRule = bool (*)(const QString &file);

/**
 * Gives a file or folder, or a link itself, another name: the first free one with a word and a number after it. The
 * files that SQLite keeps beside a database go along.
 * @return its new path; throws MachineError where it stays, or nothing is there
 */
QString putAside(const QString &path, const QString &word);

/**
 * Opens a journal, or makes it. A folder or file that is a link, or something else than it should be, or foreign, and a
 * file that is damaged are put aside before, and nothing is lost. Throws MachineError.
 * @param isForeign may be null
 * @param told gets a sentence in English for each that was put aside
 */
std::unique_ptr<JournalStore> openStore(const QString &file, Durability durability, ForeignRule isForeign,
                                        QStringList &told);

/** The sentence for what wasn't the program's own. */
QString foreignText(const QString &path, const QString &newPath);
