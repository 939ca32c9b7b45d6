// SPDX-License-Identifier: GPL-3.0-or-later
// SQLite, wrapped just enough to be safe.

#include "database.h"

#include "console/printable.h"
#include "console/programinterruption.h"
#include "machineerror.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <QUrl>

#include <sqlite3.h>

#include <cstring>

#ifdef Q_OS_UNIX
#include <pthread.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int busyTimeout = 10000; // milliseconds

// A query is looked at each time when it has done so many steps of SQLite's machine, of which each row takes some ten.
constexpr int stepsOfALook = 10000;
constexpr int looksOfALongQuery = 100; // some hundredths of a second
constexpr int mostLooks = 25000;       // some seconds; the longest of an honest machine takes a hundredth of that

bool mayWrite(const QString &file)
{
#ifdef Q_OS_WIN
    // Qt knows of the attribute alone there. Elsewhere closing the file would set free what SQLite has locked of it.
    QFile probe(file);
    return !probe.exists() || probe.open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
#else
    return QFileInfo(file).isWritable();
#endif
}

/** Whether the file can only be read. What others have still to write into it must be in it, though. */
bool isReadOnly(const QString &file)
{
    const QFileInfo info(file);
    return info.exists() && !(mayWrite(file) && QFileInfo(info.path()).isWritable())
           && !QFileInfo::exists(file + u"-wal"_s);
}

} // namespace

Database::Hold::Hold(std::recursive_mutex &lock)
    : lock_(lock)
{
#ifdef Q_OS_UNIX
    pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &cancelState_);
#endif
    lock_.lock();
}

Database::Hold::~Hold()
{
    lock_.unlock();
#ifdef Q_OS_UNIX
    pthread_setcancelstate(cancelState_, nullptr);
#endif
}

Database::Database(const QString &file)
    : file_(file)
{
    // Locking is done here, so that SQLite needn't do it again. What nobody can write needs no files for locks either.
    const bool readOnly = isReadOnly(file);
    const QByteArray name =
        readOnly ? QUrl::fromLocalFile(file).toEncoded(QUrl::FullyEncoded) + "?immutable=1" : file.toUtf8();
    const int flags =
        SQLITE_OPEN_NOMUTEX
        | (readOnly ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    const int result = sqlite3_open_v2(name.constData(), &handle_, flags, nullptr);
    try {
        if (result != SQLITE_OK)
            fail("can't be opened");
        sqlite3_extended_result_codes(handle_, 1);
        trustNothing();
        sqlite3_busy_timeout(handle_, busyTimeout);
        // A rehearsal survives a crash of any program; after a power cut it is made anew.
        execute("PRAGMA synchronous = OFF");
        // Files for a time would go where the machine's own environment says.
        execute("PRAGMA temp_store = MEMORY");
    } catch (const MachineError &) {
        sqlite3_close_v2(handle_);
        throw;
    }
}

Database::~Database()
{
    for (const auto &[sql, statement] : statements_)
        sqlite3_finalize(statement.handle);
    sqlite3_close_v2(handle_);
}

void Database::trustNothing()
{
    static constexpr std::pair<int, int> settings[] = {{SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                                       {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                                       {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
                                                       {SQLITE_DBCONFIG_DEFENSIVE, 1}};
    for (const auto &[setting, value] : settings) {
        if (sqlite3_db_config(handle_, setting, value, nullptr) != SQLITE_OK)
            fail("can't be opened");
    }
    sqlite3_progress_handler(handle_, stepsOfALook, heed, this);
}

/** Whether SQLite is to break the query off. Short ones never are: what they are part of decides. */
int Database::heed(void *database)
{
    auto *self = static_cast<Database *>(database);
    ++self->looks_;
    const bool asked = isInterrupted() || QThread::currentThread()->isInterruptionRequested();
    return self->takesTooLong() || (asked && self->looks_ >= looksOfALongQuery) ? 1 : 0;
}

bool Database::takesTooLong() const
{
    return looks_ >= mostLooks;
}

void Database::fail(const char *what) const
{
    // It may tell names that whoever made the file has thought up.
    const QString reason = handle_ ? printable(QString::fromUtf8(sqlite3_errmsg(handle_))) : u"out of memory"_s;
    const int code = handle_ ? sqlite3_errcode(handle_) & 0xff : SQLITE_NOMEM; // the rest tells details
    if (code == SQLITE_INTERRUPT) {
        const QString end = takesTooLong() ? u"damaged: a query doesn't end"_s : u"interrupted"_s;
        throw MachineError{u"%1: %2"_s.arg(QDir::toNativeSeparators(file_), end), takesTooLong()};
    }
    const bool damaged = code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
    const QString cause = code == SQLITE_IOERR ? u": "_s + causeOfDiskError() : QString();
    throw MachineError{u"%1: %2: %3"_s.arg(QDir::toNativeSeparators(file_),
                                           damaged ? u"damaged"_s : QString::fromUtf8(what), reason + cause),
                       damaged};
}

/** SQLite itself says no more than that something went wrong with the disk. */
QString Database::causeOfDiskError() const
{
    // What is written when a transaction ends has lost the system's code.
    if (const int systemCode = sqlite3_system_errno(handle_); systemCode != 0)
        return qt_error_string(systemCode);
    return sqlite3_extended_errcode(handle_) == SQLITE_IOERR_READ ? u"it can't be read"_s : u"the disk may be full"_s;
}

void Database::execute(const char *statements)
{
    const Hold hold(lock_);
    looks_ = 0;
    if (sqlite3_exec(handle_, statements, nullptr, nullptr, nullptr) != SQLITE_OK)
        fail("can't be used");
}

sqlite3_stmt *Database::prepare(const char *sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v3(handle_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        fail("can't be used");
    return statement;
}

Database::Query Database::query(const char *sql)
{
    return Query(*this, sql);
}

Database::Query::Query(Database &database, const char *sql)
    : hold_(database.lock_)
    , database_(database)
{
    database_.looks_ = 0;
    Statement &shared = database_.statements_[sql];
    if (shared.inUse) { // by a query around this one, whose rows must not be disturbed
        statement_ = database_.prepare(sql);
        return;
    }
    if (!shared.handle)
        shared.handle = database_.prepare(sql);
    shared.inUse = true;
    shared_ = &shared;
    statement_ = shared.handle;
}

Database::Query::~Query()
{
    if (!shared_) {
        sqlite3_finalize(statement_);
        return;
    }
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
    shared_->inUse = false;
}

Database::Query &Database::Query::bind(const QVariant &parameter)
{
    const int index = ++bound_;
    int result = SQLITE_OK;
    switch (parameter.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        result = sqlite3_bind_null(statement_, index);
        break;
    case QMetaType::QByteArray: {
        const QByteArray bytes = parameter.toByteArray(); // never null: a null pointer would be stored as NULL
        result =
            sqlite3_bind_blob64(statement_, index, bytes.constData(), sqlite3_uint64(bytes.size()), SQLITE_TRANSIENT);
        break;
    }
    case QMetaType::QString: {
        const QByteArray text = parameter.toString().toUtf8();
        result = sqlite3_bind_text64(statement_, index, text.constData(), sqlite3_uint64(text.size()), SQLITE_TRANSIENT,
                                     SQLITE_UTF8);
        break;
    }
    default:
        Q_ASSERT_X(parameter.canConvert<qint64>(), "Database", "a parameter is integer, text, bytes or null");
        result = sqlite3_bind_int64(statement_, index, parameter.toLongLong());
    }
    if (result != SQLITE_OK)
        database_.fail("can't be used");
    return *this;
}

bool Database::Query::next()
{
    const int result = sqlite3_step(statement_);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        database_.fail("can't be used");
    return result == SQLITE_ROW;
}

void Database::Query::run()
{
    while (next()) {
    }
}

bool Database::Query::isNull(int column) const
{
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

qint64 Database::Query::integer(int column) const
{
    return sqlite3_column_int64(statement_, column);
}

QString Database::Query::text(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement_, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement_, column));
}

QByteArray Database::Query::bytes(int column) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(statement_, column));
    return QByteArray(bytes, sqlite3_column_bytes(statement_, column));
}

bool Database::Query::hasRowOf(const Query &other) const
{
    const int columns = sqlite3_data_count(statement_);
    if (columns != sqlite3_data_count(other.statement_))
        return false;
    for (int column = 0; column < columns; ++column) {
        const int type = sqlite3_column_type(statement_, column);
        if (type != sqlite3_column_type(other.statement_, column))
            return false;
        if (type == SQLITE_INTEGER) {
            if (integer(column) != other.integer(column))
                return false;
            continue;
        }
        const void *content = sqlite3_column_blob(statement_, column);
        const void *otherContent = sqlite3_column_blob(other.statement_, column);
        const int size = sqlite3_column_bytes(statement_, column);
        if (size != sqlite3_column_bytes(other.statement_, column)
            || (size > 0 && std::memcmp(content, otherContent, size_t(size)) != 0))
            return false;
    }
    return true;
}

Database::Snapshot::Snapshot(Database &database)
    : hold_(database.lock_)
    , database_(database)
{
    if (database_.depth_ == 0)
        database_.execute("BEGIN DEFERRED");
    ++database_.depth_;
}

Database::Snapshot::~Snapshot()
{
    if (--database_.depth_ == 0)
        sqlite3_exec(database_.handle_, "COMMIT", nullptr, nullptr, nullptr);
}

Database::Transaction::Transaction(Database &database)
    : hold_(database.lock_)
    , database_(database)
{
    // The outermost one takes the right to write at once: taken later it could be refused, when another process has
    // written since the first reading.
    database_.execute(database_.depth_ == 0 ? "BEGIN IMMEDIATE" : "SAVEPOINT nested");
    ++database_.depth_;
}

Database::Transaction::~Transaction()
{
    if (!open_)
        return;
    --database_.depth_;
    // A failure here means that SQLite has already undone all of it.
    const char *undo = database_.depth_ == 0 ? "ROLLBACK" : "ROLLBACK TO nested; RELEASE nested";
    sqlite3_exec(database_.handle_, undo, nullptr, nullptr, nullptr);
}

void Database::Transaction::commit()
{
    database_.execute(database_.depth_ == 1 ? "COMMIT" : "RELEASE nested");
    --database_.depth_;
    open_ = false;
}
