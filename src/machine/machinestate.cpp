// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine: what it keeps in its database beside the registry.

#include "machine.h"

#include "database.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

/** A fault's key: one blank between its words, and no ".exe" after the first. */
QString faultKey(const QString &command)
{
    QString key = foldName(command.simplified());
    const qsizetype end = key.indexOf(u' ') < 0 ? key.size() : key.indexOf(u' ');
    if (key.first(end).endsWith(u".EXE"))
        key.remove(end - 4, 4);
    return key;
}

} // namespace

QString Machine::name() const
{
    auto query = database_->query("SELECT value FROM meta WHERE name = 'name'");
    return query.next() ? query.text(0) : QString();
}

void Machine::setName(const QString &name)
{
    database_->query("INSERT OR REPLACE INTO meta VALUES ('name', ?)").bind(name).run();
}

bool Machine::hasReplacedNames() const
{
    return database_->query("SELECT 1 FROM meta WHERE name = 'replacedNames'").next();
}

void Machine::setReplacedNames()
{
    database_->query("INSERT OR REPLACE INTO meta VALUES ('replacedNames', 1)").run();
}

QMap<QString, QString> Machine::environment() const
{
    QMap<QString, QString> variables;
    auto query = database_->query("SELECT name, value FROM environment");
    while (query.next())
        variables.insert(query.text(0), query.text(1));
    return variables;
}

void Machine::setEnvironment(const QMap<QString, QString> &variables)
{
    Database::Transaction transaction(*database_);
    database_->execute("DELETE FROM environment");
    for (auto each = variables.cbegin(); each != variables.cend(); ++each)
        database_->query("INSERT INTO environment VALUES (?, ?)").bind(each.key()).bind(each.value()).run();
    transaction.commit();
}

std::optional<bool> Machine::isRunning(const QString &service) const
{
    auto query = database_->query("SELECT running FROM runstate WHERE fold = ?");
    if (!query.bind(foldName(service)).next())
        return {};
    return query.integer(0) != 0;
}

void Machine::setRunning(const QString &service, bool running)
{
    database_
        ->query("INSERT INTO runstate (fold, service, running) VALUES (?, ?, ?) "
                "ON CONFLICT (fold) DO UPDATE SET running = excluded.running")
        .bind(foldName(service))
        .bind(service)
        .bind(running ? 1 : 0)
        .run();
}

QMap<QString, bool> Machine::runStates() const
{
    QMap<QString, bool> states;
    auto query = database_->query("SELECT service, running FROM runstate");
    while (query.next())
        states.insert(query.text(0), query.integer(1) != 0);
    return states;
}

QStringList Machine::processes() const
{
    QStringList names;
    auto query = database_->query("SELECT name FROM process ORDER BY id");
    while (query.next())
        names << query.text(0);
    return names;
}

void Machine::setProcesses(const QStringList &names)
{
    Database::Transaction transaction(*database_);
    database_->execute("DELETE FROM process");
    for (const QString &each : names)
        database_->query("INSERT INTO process (name) VALUES (?)").bind(each).run();
    transaction.commit();
}

QList<ScheduledTask> Machine::tasks() const
{
    QList<ScheduledTask> result;
    auto query = database_->query("SELECT path, document FROM task ORDER BY id");
    while (query.next())
        result.append({query.text(0), query.text(1)});
    return result;
}

QStringList Machine::taskPaths() const
{
    QStringList paths;
    auto query = database_->query("SELECT path FROM task ORDER BY id");
    while (query.next())
        paths.append(query.text(0));
    return paths;
}

std::optional<ScheduledTask> Machine::task(const QString &path) const
{
    auto query = database_->query("SELECT path, document FROM task WHERE fold = ?");
    if (!query.bind(foldName(path)).next())
        return {};
    return ScheduledTask{query.text(0), query.text(1)};
}

void Machine::setTask(const ScheduledTask &task)
{
    database_
        ->query("INSERT INTO task (fold, path, document) VALUES (?, ?, ?) "
                "ON CONFLICT (fold) DO UPDATE SET document = excluded.document")
        .bind(foldName(task.path))
        .bind(task.path)
        .bind(task.document)
        .run();
}

void Machine::removeTask(const QString &path)
{
    database_->query("DELETE FROM task WHERE fold = ?").bind(foldName(path)).run();
}

std::optional<std::optional<QString>> Machine::dllString(const QString &windowsPath, uint id) const
{
    const QString key = pathKey(windowsPath);
    auto query = database_->query("SELECT text FROM dll LEFT JOIN dllstring "
                                  "ON dllstring.fold = dll.fold AND dllstring.id = ? WHERE dll.fold = ?");
    if (!query.bind(id).bind(key).next())
        return {};
    return query.isNull(0) ? std::optional<QString>() : query.text(0);
}

void Machine::setDllStrings(const QString &windowsPath, const QMap<uint, QString> &strings)
{
    const QString key = pathKey(windowsPath);
    Database::Transaction transaction(*database_);
    database_->query("INSERT OR IGNORE INTO dll VALUES (?)").bind(key).run();
    database_->query("DELETE FROM dllstring WHERE fold = ?").bind(key).run();
    for (auto each = strings.cbegin(); each != strings.cend(); ++each) {
        database_->query("INSERT INTO dllstring VALUES (?, ?, ?)").bind(key).bind(each.key()).bind(each.value()).run();
    }
    transaction.commit();
}

QList<QJsonObject> Machine::wmiInstances(const QString &className) const
{
    QList<QJsonObject> instances;
    auto query = database_->query("SELECT properties FROM wmi WHERE fold = ? ORDER BY id");
    query.bind(foldName(className));
    while (query.next())
        instances << QJsonDocument::fromJson(query.text(0).toUtf8()).object();
    return instances;
}

bool Machine::hasWmiClass(const QString &className) const
{
    return database_->query("SELECT 1 FROM wmiclass WHERE fold = ?").bind(foldName(className)).next();
}

void Machine::setWmiInstances(const QString &className, const QList<QJsonObject> &instances)
{
    const QString key = foldName(className);
    Database::Transaction transaction(*database_);
    database_->query("INSERT OR IGNORE INTO wmiclass VALUES (?, ?)").bind(key).bind(className).run();
    database_->query("DELETE FROM wmi WHERE fold = ?").bind(key).run();
    for (const QJsonObject &each : instances) {
        const QString properties = QString::fromUtf8(QJsonDocument(each).toJson(QJsonDocument::Compact));
        database_->query("INSERT INTO wmi (fold, properties) VALUES (?, ?)").bind(key).bind(properties).run();
    }
    transaction.commit();
}

QJsonObject Machine::hardware() const
{
    auto query = database_->query("SELECT value FROM meta WHERE name = 'hardware'");
    return query.next() ? QJsonDocument::fromJson(query.text(0).toUtf8()).object() : QJsonObject();
}

void Machine::setHardware(const QJsonObject &parts)
{
    Database::Transaction transaction(*database_);
    QJsonObject all = hardware();
    for (auto each = parts.begin(); each != parts.end(); ++each)
        all.insert(each.key(), each.value());
    const QString text = QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact));
    database_->query("INSERT OR REPLACE INTO meta VALUES ('hardware', ?)").bind(text).run();
    transaction.commit();
}

std::optional<ToolFault> Machine::fault(const QString &tool, const QStringList &arguments) const
{
    // The fault that names the most arguments counts.
    for (qsizetype count = arguments.size(); count >= 0; --count) {
        const QString key = faultKey((QStringList(tool) + arguments.first(count)).join(u' '));
        auto query = database_->query("SELECT missing, hang, exitcode, output, repeat FROM fault WHERE fold = ?");
        if (!query.bind(key).next())
            continue;
        ToolFault found;
        found.missing = query.integer(0) != 0;
        found.hang = query.integer(1) != 0;
        if (!query.isNull(2))
            found.exitCode = int(query.integer(2));
        if (!query.isNull(3))
            found.output = query.text(3);
        found.repeat = int(query.integer(4));
        return found;
    }
    return {};
}

void Machine::setFault(const QString &command, const ToolFault &fault)
{
    database_->query("INSERT OR REPLACE INTO fault VALUES (?, ?, ?, ?, ?, ?)")
        .bind(faultKey(command))
        .bind(fault.missing ? 1 : 0)
        .bind(fault.hang ? 1 : 0)
        .bind(fault.exitCode ? QVariant(*fault.exitCode) : QVariant())
        .bind(fault.output ? QVariant(*fault.output) : QVariant())
        .bind(fault.repeat)
        .run();
}

void Machine::clearFault(const QString &command)
{
    database_->query("DELETE FROM fault WHERE fold = ?").bind(faultKey(command)).run();
}

void Machine::leaveExitCode(qint64 processId, int code)
{
    database_->query("INSERT OR REPLACE INTO exitcode VALUES (?, ?)").bind(processId).bind(code).run();
}

void Machine::dropExitCode(qint64 processId)
{
    database_->query("DELETE FROM exitcode WHERE process = ?").bind(processId).run();
}

std::optional<int> Machine::takeExitCode(qint64 processId)
{
    auto query = database_->query("DELETE FROM exitcode WHERE process = ? RETURNING code");
    if (!query.bind(processId).next())
        return {};
    const int code = int(query.integer(0));
    query.run(); // to its end, or the row would stay
    return code;
}
