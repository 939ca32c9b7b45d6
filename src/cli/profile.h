// SPDX-License-Identifier: GPL-3.0-or-later
// A profile: what is to be done on one PC or a thousand, as a JSON file.

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

/** What becomes of what belongs to the current user where that isn't who is signed in. */
enum class UserRule {
    Refuse,
    Skip,
};

struct Profile
{
    UserRule user = UserRule::Refuse;
    QMap<QString, bool> keep;   ///< features of the Keep list by their names; others as in the PC's own list
    bool programs = true;       ///< packages and what starts at logon
    bool features = true;       ///< the options
    QMap<QString, bool> tweaks; ///< options by their names ("ssd1"): put in force, or left alone
    // To switch off beside what the program itself would.
    QStringList services;
    QStringList tasks; ///< paths without a backslash before them
    QStringList packages;
    QStringList startup;
    QStringList never;          ///< what is left alone; "*" stands for any letters, "?" for one
    bool leavesOutUser = false; ///< it is applied as another account, and what belongs to a user is left alone

    /** Whether something is left out that Optimize would do: then the jobs of the pages are run and not Optimize. */
    bool leavesOut() const;
    /** Whether something of that name is to be left alone. Case doesn't matter. */
    bool isLeftAlone(const QString &name) const;
};

/** One mistake, as "file:line:column: what is wrong". */
using ProfileMistakes = QStringList;

/**
 * Reads a profile and finds every mistake in it: what is no JSON, unknown keys, values of the wrong kind, names that no
 * catalogue knows, and what contradicts itself.
 * @param fileName for the mistakes
 * @param isOnPc whether this PC has something of a name that no catalogue knows, by the key of the profile that names
 *               it ("services") and the name; may be null
 */
Profile parseProfile(const QByteArray &json, const QString &fileName, ProfileMistakes &mistakes,
                     bool (*isOnPc)(const QString &key, const QString &name) = nullptr);

/** Names of options as a profile has them: "ssd1" for the box chkSsd1. */
QString tweakName(const QString &box);
/** The box of such a name; empty where there is none. */
QString boxOfTweak(const QString &name);

/** A new profile, as a file with all keys. */
QByteArray profileTemplate();
/** The JSON Schema of profiles. */
QByteArray profileSchema();
