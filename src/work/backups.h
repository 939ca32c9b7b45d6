// SPDX-License-Identifier: GPL-3.0-or-later
// The copies of what was there before the program's changes, in folders beside log.txt.

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

enum class BackupState {
    Missing,
    CutOff,   ///< whoever wrote it was ended before its end
    Complete, ///< or it can't be looked into
};

BackupState backupState(const QString &file, bool (*isComplete)(const QString &text));

/** Renames a backup that was cut off: "StartMode-cut.reg" for "StartMode.reg", with a number where that is taken. */
bool setAside(const QString &file);

/** What a file's bytes say, in UTF-8 or as their byte order mark tells. */
QString textOfFile(const QByteArray &bytes);

/** What a backup says. Nothing where it can't be read. */
std::optional<QString> readBackup(const QString &file);

/** A registry script with its head, whose last line has an end. */
bool isCompleteScript(const QString &text);
