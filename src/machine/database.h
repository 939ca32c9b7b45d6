// SPDX-License-Identifier: GPL-3.0-or-later
// SQLite, wrapped just enough to be safe.

#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <mutex>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

/** An open database. Statements are prepared once; any thread may use it, one at a time. Throws MachineError. */
class Database
{
    struct Statement
    {
        sqlite3_stmt *handle = nullptr;
        bool inUse = false;
    };

    /**
     * Keeps other threads out, and keeps this thread from being cancelled meanwhile: a worker that is ended by force
     * inside SQLite would leave the connection locked or half done.
     */
    class Hold
    {
    public:
        explicit Hold(std::recursive_mutex &lock);
        ~Hold();
        Q_DISABLE_COPY_MOVE(Hold)

    private:
        std::recursive_mutex &lock_;
        [[maybe_unused]] int cancelState_ = 0; // of threads that can be cancelled, as Unix has them
    };

public:
    /**
     * Opens the file, or makes an empty one. Changes nothing in a file that is there, which may be one to read only,
     * and of which nothing is run, whoever made it: no trigger, no view, no function of its schema. A long query ends
     * when the program or its thread is asked to end, and one that doesn't end by itself ends all the same, by a
     * MachineError.
     */
    explicit Database(const QString &file);
    ~Database();
    Q_DISABLE_COPY_MOVE(Database)

    /** Runs statements that give no rows and take no parameters. */
    void execute(const char *statements);

    /** One run of a prepared statement; holds the database until it goes. */
    class Query
    {
    public:
        ~Query();
        Q_DISABLE_COPY_MOVE(Query)

        Query &bind(const QVariant &parameter); ///< the next parameter: integer, text, bytes or null
        bool next();                            ///< steps to the next row; false after the last
        void run();                             ///< runs a statement that gives no rows
        bool isNull(int column) const;
        qint64 integer(int column) const;
        QString text(int column) const;
        QByteArray bytes(int column) const;
        /** Whether two queries stand at rows that are stored alike, with the same types and contents. */
        bool hasRowOf(const Query &other) const;

    private:
        friend class Database;
        Query(Database &database, const char *sql);
        Hold hold_;
        Database &database_;
        Statement *shared_ = nullptr; ///< null where the statement is this query's own
        sqlite3_stmt *statement_ = nullptr;
        int bound_ = 0;
    };
    /** @p sql must be a literal: its address is the name of the prepared statement. */
    Query query(const char *sql);

    /**
     * Many readings that see one state, whatever other processes write meanwhile. They needn't lock the file each for
     * itself, so they are several times faster. Nothing is written meanwhile.
     */
    class Snapshot
    {
    public:
        explicit Snapshot(Database &database);
        ~Snapshot();
        Q_DISABLE_COPY_MOVE(Snapshot)

    private:
        Hold hold_;
        Database &database_;
    };

    /** Changes that happen together or not at all; undone unless commit() was called. May be nested. */
    class Transaction
    {
    public:
        explicit Transaction(Database &database);
        ~Transaction();
        Q_DISABLE_COPY_MOVE(Transaction)
        void commit();

    private:
        Hold hold_;
        Database &database_;
        bool open_ = true;
    };

private:
    void trustNothing();
    static int heed(void *database);
    bool takesTooLong() const;
    [[noreturn]] void fail(const char *what) const;
    QString causeOfDiskError() const;
    sqlite3_stmt *prepare(const char *sql);

    QString file_;
    sqlite3 *handle_ = nullptr;
    std::unordered_map<const char *, Statement> statements_;
    std::recursive_mutex lock_;
    int depth_ = 0;
    int looks_ = 0; ///< of heed() at the query that was begun last
};
