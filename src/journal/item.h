// SPDX-License-Identifier: GPL-3.0-or-later
// What a change can be about, and what such a thing is like at a moment.

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class SystemState;

/** Kinds of things; the numbers are those of the journal's file. */
enum class ItemKind : int {
    Value = 1,       ///< a value of the registry: subject is its key, name its name
    Key = 2,         ///< a key itself, with nothing of what it holds
    RunState = 3,    ///< whether a service runs
    Task = 4,        ///< whether a scheduled task, by its path with its backslash, is enabled
    Package = 5,     ///< whether a packaged application is there for this user
    BootOption = 6,  ///< an option of the boot entry, by its lower-case name
    Hibernation = 7, ///< whether there is hibernation; without a subject
    Security = 8,    ///< owner and rights of a file, by its Windows path
    Attributes = 9,  ///< the attribute word of a file, by its Windows path
    Content = 10,    ///< what a file, by its Windows path, holds
    Move = 11,       ///< a file that got another path: subject is the former Windows path, name the new one
    OneWay = 12,     ///< what can't be taken back, by its name
};

struct Item
{
    ItemKind kind = ItemKind::Value;
    QString subject{};
    QString name{};

    friend bool operator==(const Item &, const Item &) = default;
};

/** The same for two items that are one, whatever the case of their names. */
QString foldedItem(const Item &item);

/** What an item is like. Of a switch "there" means on: running, enabled, installed. A note's data of a package is its
   full name. */
struct ItemState
{
    bool there = false;
    quint32 type = 0; ///< of a value; the word of attributes
    QByteArray data{};

    friend bool operator==(const ItemState &, const ItemState &) = default;
};

/** Whether the key is a service's own, and which one it is. */
std::optional<QString> serviceOfKey(const QString &key);

/**
 * The items that a command may change, and that come back by themselves or by a command; empty for one that changes
 * nothing, and for taskkill: no program that ran is started anew.
 * @param program as it is given to Platform::programFile()
 */
QList<Item> subjectsOf(const QString &program, const QStringList &arguments, const SystemState &system);
