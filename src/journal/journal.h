// SPDX-License-Identifier: GPL-3.0-or-later
// A platform around a platform: it notes what is there before it is changed, and passes the change on.

#pragma once

#include "journalstore.h"
#include "platform/forwardingplatform.h"
#include "platform/systemstate.h"

#include <QSet>

#include <mutex>

/** What a place of the registry is to the program itself. */
enum class OwnPlace {
    None,    ///< not the program's own
    Record,  ///< it goes with the change that it is a record of
    Setting, ///< what the user has chosen for the program; unnoted
};

class Journal;

struct JournalOptions
{
    QString file{}; ///< host path of the journal
    Durability durability = Durability::PowerCut;
    QString user{};              ///< who runs the program, for the list of sessions
    QString version{};           ///< of the program
    QString userKey{};           ///< what HKEY_CURRENT_USER is called where others see it too; empty: nothing else
    bool sharesPolicies = false; ///< the policies of 32-bit programs are those of all: one key by two names
    QString shut{};              ///< why there can be no journal; nothing is changed then
    ForeignRule isForeign = nullptr;
    QStringList putAside{};       ///< sentences about what was put aside already
    std::shared_ptr<void> hold{}; ///< kept as long as the journal is open
    /** Tells of a key, or of a value in it. */
    OwnPlace (*ownPlace)(const QString &key, const QString &name) = nullptr;
    int keptDays = 0; ///< how long sessions are kept; 0: for ever
    /** Is called after each session that came to its end. May throw MachineError. */
    void (*afterSession)(const Journal &journal, qint64 session) = nullptr;
};

/** The build number of Windows, "26100"; empty where that is unknown. */
QString windowsBuild(const SystemState &system);

/**
 * A note without its change is harmless; a change without its note isn't made: where the journal can't be written, the
 * registry takes nothing, no tool is admitted and no file is changed, and takeFailure() says why. Any thread.
 */
class Journal final : public ForwardingPlatform
{
public:
    /** Opens the journal, unless it is shut; then takeFailure() says so at once. Throws MachineError. */
    Journal(std::unique_ptr<Platform> inner, std::unique_ptr<SystemState> system, JournalOptions options);
    ~Journal() override;

    /** Throws MachineError where there can be none. */
    JournalStore &store() const;
    /** What was put aside to open the journal, and where it is now: sentences in English. */
    QStringList putAside() const { return options_.putAside; }
    SystemState &system() const { return *system_; }
    /** Who runs the program, as sessions have it. */
    QString user() const { return options_.user; }
    /** A noted key as the programs of this user call it. */
    QString ownPath(const QString &key) const;
    /** A key of the programs of this user as it is noted: by the name of the user's keys that others see too. */
    QString commonPath(const QString &key) const;

    /** What the item is like now. */
    ItemState stateOf(const Item &item) const;
    // To be called before a change. Each is false where the change mustn't be made, since it can't be noted.

    bool note(const QList<Item> &items) const;
    /** The same for what may not be there, which can't be removed then. */
    bool noteIfThere(const Item &item) const;
    /** Notes which keys will be made with a key. */
    bool noteMaking(const QString &key) const;
    /** Notes a key with all that it holds. */
    bool noteRemoval(const QString &key) const;

    /** Lets a session that was broken off take the notes of records, and has what it left written down. */
    void resume(qint64 session) const;

    std::unique_ptr<RegistryKey> openKey(const QString &path) const override;
    void walk(const QString &windowsPath, const std::function<bool(const WalkEntry &)> &visit) const override;
    quint32 fileAttributes(const QString &file) const override;
    void setFileAttributes(const QString &file, quint32 word) const override;
    void setAllFileAttributes(const QList<FileAttributes> &files) const override;
    bool renameFile(const QString &from, const QString &to) const override;
    bool removeFile(const QString &file) const override;
    bool writeFile(const QString &folder, const QString &name, const QByteArray &content,
                   IfThere ifThere) const override;
    void shellExecute(const ShellStart &start) const override;
    std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &arguments) const override;
    void beginChanges(const QString &what) const override;
    void endChanges(bool finished) const override;
    QString takeFailure() const override;

private:
    class Walk;

    OwnPlace placeOf(const Item &item) const;
    /** With what a note needs beyond stateOf(). */
    ItemState stateToNote(const Item &item) const;
    /** The session that a note belongs to; 0 where one has still to begin. */
    qint64 sessionFor(bool own) const;
    /** Begins one where that is so. */
    void openSession(bool own) const;
    void endSession(SessionState state) const;
    void noteOutcome() const;
    bool setWords(const QList<FileAttributes> &words, const QList<quint32> &before) const;
    void collectRemoval(const QString &key, QList<Item> &items) const;
    bool failed(const QString &reason) const;

    std::unique_ptr<SystemState> system_;
    JournalOptions options_;
    std::unique_ptr<JournalStore> store_;

    mutable std::recursive_mutex lock_;
    mutable int depth_ = 0;         ///< of begun changes
    mutable bool broken_ = false;   ///< whether some of them were broken off
    mutable QString what_;          ///< what the next session is to be called
    mutable qint64 session_ = 0;    ///< 0: none has begun
    mutable bool ended_ = true;     ///< the session takes notes of records only, which come right after a job
    mutable QSet<QString> noted_;   ///< folded items of the session
    mutable QSet<QString> present_; ///< folded keys that are known to be there
    mutable QString failure_;
};
