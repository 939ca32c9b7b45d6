// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine: owners and rights of files, boot options, and what hibernation leaves to remember.

#include "machine.h"

#include "database.h"

#include <QJsonArray>
#include <QJsonDocument>

FileSecurity Machine::security(const QString &windowsPath) const
{
    auto query = database_->query("SELECT owner, rights FROM filesecurity WHERE fold = ?");
    if (!query.bind(pathKey(windowsPath)).next())
        return {};
    return {query.text(0), query.text(1)};
}

void Machine::setSecurity(const QString &windowsPath, const FileSecurity &security)
{
    const QString key = pathKey(windowsPath);
    if (security == FileSecurity()) {
        database_->query("DELETE FROM filesecurity WHERE fold = ?").bind(key).run();
        return;
    }
    database_
        ->query("INSERT INTO filesecurity (fold, path, owner, rights) VALUES (?, ?, ?, ?) "
                "ON CONFLICT (fold) DO UPDATE SET owner = excluded.owner, rights = excluded.rights")
        .bind(key)
        .bind(this->windowsPath(windowsPath))
        .bind(security.owner)
        .bind(security.rights)
        .run();
}

QMap<QString, FileSecurity> Machine::changedSecurity() const
{
    QMap<QString, FileSecurity> files;
    auto query = database_->query("SELECT path, owner, rights FROM filesecurity");
    while (query.next())
        files.insert(query.text(0), {query.text(1), query.text(2)});
    return files;
}

/** By the keys of their paths. */
QStringList Machine::unsignedPrograms() const
{
    auto query = database_->query("SELECT value FROM meta WHERE name = 'unsigned'");
    if (!query.next())
        return {};
    QStringList keys;
    for (const QJsonValue key : QJsonDocument::fromJson(query.text(0).toUtf8()).array())
        keys.append(key.toString());
    return keys;
}

bool Machine::isUnsigned(const QString &windowsPath) const
{
    return unsignedPrograms().contains(pathKey(windowsPath));
}

void Machine::setUnsigned(const QString &windowsPath, bool isUnsigned)
{
    Database::Transaction transaction(*database_);
    QStringList programs = unsignedPrograms();
    programs.removeAll(pathKey(windowsPath));
    if (isUnsigned)
        programs.append(pathKey(windowsPath));
    const QByteArray text = QJsonDocument(QJsonArray::fromStringList(programs)).toJson(QJsonDocument::Compact);
    database_->query("INSERT OR REPLACE INTO meta VALUES ('unsigned', ?)").bind(QString::fromUtf8(text)).run();
    transaction.commit();
}

QMap<QString, QString> Machine::bootOptions() const
{
    QMap<QString, QString> options;
    auto query = database_->query("SELECT name, value FROM bootoption");
    while (query.next())
        options.insert(query.text(0), query.text(1));
    return options;
}

void Machine::setBootOption(const QString &name, const std::optional<QString> &value)
{
    if (value)
        database_->query("INSERT OR REPLACE INTO bootoption VALUES (?, ?)").bind(name.toLower()).bind(*value).run();
    else
        database_->query("DELETE FROM bootoption WHERE name = ?").bind(name.toLower()).run();
}

std::optional<qint64> Machine::formerHiberfileSize() const
{
    auto query = database_->query("SELECT value FROM meta WHERE name = 'hiberfile'");
    return query.next() ? std::optional(query.integer(0)) : std::nullopt;
}

void Machine::setFormerHiberfileSize(qint64 size)
{
    database_->query("INSERT OR REPLACE INTO meta VALUES ('hiberfile', ?)").bind(size).run();
}
