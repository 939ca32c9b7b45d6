// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine: making and opening one.

#include "machine.h"

#include "console/printable.h"
#include "database.h"
#include "folderlock.h"
#include "machineschema.h"
#include "platform/processground.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 smallestDatabase = 512; // bytes; the least page there is
const char *const stateFolders[] = {"drive_c", "program"};

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw MachineError{u"%1: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

QString databaseFile(const QString &folder)
{
    return folder + u"/machine.sqlite"_s;
}

QString cleanFolder(const QString &folder)
{
    return QDir::cleanPath(absolutePath(folder));
}

void makeFolders(const QString &folder)
{
    for (const char *name : stateFolders) {
        if (!QDir(folder).mkpath(QString::fromLatin1(name)))
            fail(folder, u"can't be written"_s);
    }
}

/** Looks before SQLite does, which takes an empty file for a new database. */
/**
 * Looks at the file without opening it: closing it would take from this process what SQLite has locked of it for
 * another machine of the same folder, and other processes would then take away what that one has still to read.
 */
void checkFile(const QString &path)
{
    const QFileInfo file(path);
    if (!QFileInfo::exists(file.path()))
        fail(file.path(), u"there is no such folder"_s);
    if (!file.exists())
        fail(file.path(), u"not a rehearsal machine"_s);
    if (!file.isFile() || file.size() < smallestDatabase)
        fail(path, u"damaged"_s);
}

void checkVersion(Database &database, const QString &path)
{
    auto table = database.query("SELECT 1 FROM sqlite_schema WHERE name = 'meta'");
    if (!table.next())
        fail(path, u"not a rehearsal machine"_s);
    auto query = database.query("SELECT value FROM meta WHERE name = 'version'");
    if (!query.next())
        fail(path, u"not a rehearsal machine"_s);
    const qint64 version = query.integer(0);
    if (version > Machine::formatVersion) {
        fail(path, u"version %1, and this program knows those up to %2"_s.arg(version).arg(Machine::formatVersion));
    }
    if (version < 1)
        fail(path, u"damaged"_s);
}

/** What the machine has of its own is no link, which could lead out of it. */
void checkOwnFiles(const QString &folder)
{
    constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

    QFileInfoList entries = QDir(folder).entryInfoList(everything);
    for (const QString &own : {u"/program"_s, u"/journal"_s}) {
        QDirIterator files(folder + own, everything, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            files.next();
            entries.append(files.fileInfo());
        }
    }
    for (const QFileInfo &entry : std::as_const(entries)) {
        if (entry.isSymbolicLink() || entry.isJunction())
            fail(entry.filePath(), u"a link, where a machine has none"_s);
    }
}

[[noreturn]] void failAsDamaged(const QString &path, const QString &reason)
{
    throw MachineError{u"%1: damaged: %2"_s.arg(QDir::toNativeSeparators(path), printable(reason)), true};
}

/** What a schema is made of. */
struct SchemaPart
{
    QString type; ///< "table", "index", "view" or "trigger"
    QString sql;  ///< the statement that made it; empty for what comes with a table

    friend bool operator==(const SchemaPart &, const SchemaPart &) = default;
};

QMap<QString, SchemaPart> schemaOf(Database &database)
{
    QMap<QString, SchemaPart> parts;
    auto query = database.query("SELECT name, type, sql FROM sqlite_schema");
    while (query.next())
        parts.insert(query.text(0), {query.text(1), query.text(2)});
    return parts;
}

QStringList columnsOf(Database &database, const QString &table)
{
    QStringList names;
    auto query = database.query("SELECT name FROM pragma_table_info(?)");
    query.bind(table);
    while (query.next())
        names.append(query.text(0));
    return names;
}

/**
 * The schema is the one that this program makes. Another could lack what is found out only by who needs it, after long
 * work, or have SQLite do at each step whatever somebody has thought up.
 */
void checkSchema(Database &database, const QString &path)
{
    Database model(u":memory:"_s);
    model.execute(machineSchema);
    const QMap<QString, SchemaPart> wanted = schemaOf(model);
    const QMap<QString, SchemaPart> found = schemaOf(database);
    for (auto each = wanted.cbegin(); each != wanted.cend(); ++each) {
        if (!found.contains(each.key()))
            failAsDamaged(path, u"it has no %1 '%2'"_s.arg(each->type, each.key()));
        if (found.value(each.key()) == *each)
            continue;
        const QStringList columns = columnsOf(database, each.key());
        for (const QString &column : columnsOf(model, each.key())) {
            if (!columns.contains(column))
                failAsDamaged(path, u"its table '%1' has no column '%2'"_s.arg(each.key(), column));
        }
        failAsDamaged(path, u"its table '%1' is another"_s.arg(each.key()));
    }
    for (auto each = found.cbegin(); each != found.cend(); ++each) {
        if (!wanted.contains(each.key()))
            failAsDamaged(path, u"a machine has no %1 '%2'"_s.arg(each->type, each.key()));
    }
}

/** What SQLite finds wrong with the file's pages. */
void checkPages(Database &database, const QString &path)
{
    auto query = database.query("PRAGMA quick_check(1)");
    if (!query.next() || query.text(0) != "ok"_L1)
        failAsDamaged(path, u"malformed: "_s + query.text(0));
}

/** Each key lies in a hive, at a depth that a walk over all of them can take. */
void checkKeys(Database &database, const QString &path)
{
    constexpr int most = RegistryStore::mostLevels;

    if (database.query("SELECT 1 FROM key WHERE id <= 0").next())
        failAsDamaged(path, u"its registry has a key above the hives"_s);
    auto reached =
        database.query("WITH RECURSIVE below (id, level) AS (SELECT id, 1 FROM key WHERE parent = 0 UNION ALL "
                       "SELECT key.id, level + 1 FROM key JOIN below ON key.parent = below.id "
                       "WHERE level <= ?) SELECT count(*), max(level) FROM below");
    reached.bind(most).next();
    if (reached.integer(1) > most)
        failAsDamaged(path, u"its registry has more than %1 levels of keys"_s.arg(most));
    auto all = database.query("SELECT count(*) FROM key");
    all.next();
    if (all.integer(0) != reached.integer(0))
        failAsDamaged(path, u"its registry has keys in no hive"_s);
    if (database.query("SELECT 1 FROM key WHERE length(name) > ?").bind(RegistryStore::longestName).next())
        failAsDamaged(
            path, u"its registry has a key with a name of more than %1 characters"_s.arg(RegistryStore::longestName));
}

/** Nothing would fill the disk, or take for ever. */
void checkSizes(Database &database, const QString &path)
{
    auto fault = database.query("SELECT fold FROM fault WHERE repeat > ?1 OR "
                                "length(CAST(output AS BLOB)) * repeat > ?1");
    if (fault.bind(ToolFault::mostPrinted).next())
        failAsDamaged(path, u"the fault '%1' prints more than 256 MB"_s.arg(fault.text(0)));
    auto hiberfile = database.query("SELECT 1 FROM meta WHERE name = 'hiberfile' AND value > ?");
    if (hiberfile.bind(Machine::largestFile).next())
        failAsDamaged(path, u"its hiberfil.sys had more than 1 TB"_s);
    auto file = database.query("SELECT name FROM meta WHERE name GLOB 'size *' AND value NOT BETWEEN 1 AND ?");
    if (file.bind(Machine::largestFile).next())
        failAsDamaged(path, u"a file of it has no size that can be: "_s + file.text(0));
}

/** Looks through a database that may be anybody's. */
void checkDatabase(Database &database, const QString &path)
{
    checkSchema(database, path);
    checkPages(database, path);
    checkKeys(database, path);
    checkSizes(database, path);
}

/** A JSON text without the brackets that a document needs around it. */
QByteArray jsonText(const QString &text)
{
    return QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact).sliced(1).chopped(1);
}

} // namespace

Machine::Machine(const QString &folder, std::unique_ptr<Database> database)
    : folder_(folder)
    , held_(holdFolder(driveFolder()))
    , database_(std::move(database))
    , registry_(*database_)
{
}

Machine::~Machine() = default;

std::unique_ptr<Machine> Machine::create(const QString &folder)
{
    const QString path = cleanFolder(folder);
    if (QFileInfo::exists(path) && !QFileInfo(path).isDir())
        fail(path, u"not a folder"_s);
    if (!QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        fail(path, u"not empty"_s);
    makeFolders(path);
    auto database = std::make_unique<Database>(databaseFile(path));
    database->execute("PRAGMA journal_mode = WAL");
    Database::Transaction transaction(*database);
    database->execute(machineSchema);
    database->query("INSERT INTO meta VALUES ('version', ?)").bind(formatVersion).run();
    transaction.commit();
    return std::unique_ptr<Machine>(new Machine(path, std::move(database)));
}

std::unique_ptr<Machine> Machine::open(const QString &folder, Origin origin)
{
    const QString path = cleanFolder(folder);
    const QString file = databaseFile(path);
    checkFile(file);
    checkOwnFiles(path);
    auto database = std::make_unique<Database>(file);
    checkVersion(*database, file);
    if (origin == Origin::Anybody)
        checkDatabase(*database, file);
    makeFolders(path); // empty ones get lost in some archives
    return std::unique_ptr<Machine>(new Machine(path, std::move(database)));
}

void Machine::logCommand(const QString &program, const QStringList &arguments, int exitCode) const
{
    QByteArray line = "{\"program\":" + jsonText(program) + ",\"arguments\":";
    line += QJsonDocument(QJsonArray::fromStringList(arguments)).toJson(QJsonDocument::Compact);
    line += ",\"exitCode\":" + QByteArray::number(exitCode) + "}\n";
    // The database keeps other processes away, since appending alone isn't safe on every system.
    const Database::Transaction transaction(*database_);
    QFile log(folder_ + u"/commands.log"_s);
    if (!log.open(QIODevice::Append | QIODevice::Unbuffered) || log.write(line) != line.size())
        fail(log.fileName(), log.errorString());
}
