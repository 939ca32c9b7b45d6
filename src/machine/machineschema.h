// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of machine.sqlite. "fold" is always a name as look-ups compare it.

#pragma once

inline constexpr const char *machineSchema = R"(
CREATE TABLE meta (name TEXT PRIMARY KEY, value) WITHOUT ROWID;

-- AUTOINCREMENT: an id that was removed never comes back, so that a key held open isn't taken for a later one.
CREATE TABLE key (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    parent INTEGER NOT NULL,
    name TEXT NOT NULL,
    fold TEXT NOT NULL,
    UNIQUE (parent, fold));
CREATE TABLE value (
    key INTEGER NOT NULL,
    fold TEXT NOT NULL,
    name TEXT NOT NULL,
    type INTEGER NOT NULL,
    data BLOB NOT NULL,
    PRIMARY KEY (key, fold)) WITHOUT ROWID;
INSERT INTO key (parent, name, fold) VALUES
    (0, 'HKEY_LOCAL_MACHINE', 'HKEY_LOCAL_MACHINE'),
    (0, 'HKEY_CURRENT_USER', 'HKEY_CURRENT_USER'),
    (0, 'HKEY_USERS', 'HKEY_USERS');

CREATE TABLE environment (name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE runstate (fold TEXT PRIMARY KEY, service TEXT NOT NULL, running INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE process (id INTEGER PRIMARY KEY, name TEXT NOT NULL);
-- In the order in which they came; the document is the <Task> element alone, with LF line ends.
CREATE TABLE task (id INTEGER PRIMARY KEY, fold TEXT NOT NULL UNIQUE, path TEXT NOT NULL, document TEXT NOT NULL);
CREATE TABLE dll (fold TEXT PRIMARY KEY) WITHOUT ROWID;
CREATE TABLE dllstring (fold TEXT, id INTEGER, text TEXT NOT NULL, PRIMARY KEY (fold, id)) WITHOUT ROWID;
CREATE TABLE wmiclass (fold TEXT PRIMARY KEY, name TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE wmi (id INTEGER PRIMARY KEY, fold TEXT NOT NULL, properties TEXT NOT NULL);
CREATE TABLE attribute (fold TEXT PRIMARY KEY, path TEXT NOT NULL, word INTEGER NOT NULL) WITHOUT ROWID;
-- What the boot configuration has beyond its defaults.
CREATE TABLE bootoption (name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID;
-- Files whose owner or rights were changed.
CREATE TABLE filesecurity (fold TEXT PRIMARY KEY, path TEXT NOT NULL, owner TEXT NOT NULL, rights TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE fault (
    fold TEXT PRIMARY KEY,
    missing INTEGER NOT NULL,
    hang INTEGER NOT NULL,
    exitcode INTEGER,
    output TEXT,
    repeat INTEGER NOT NULL) WITHOUT ROWID;
CREATE TABLE exitcode (process INTEGER PRIMARY KEY, code INTEGER NOT NULL);
)";
