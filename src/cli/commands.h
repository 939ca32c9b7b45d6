// SPDX-License-Identifier: GPL-3.0-or-later
// The subcommands of kestrune-cli, and what they print and write of what is asked for.

#pragma once

#include "aims.h"

extern const Subcommand statusSubcommand;
extern const Subcommand planSubcommand;
extern const Subcommand applySubcommand;
extern const Subcommand verifyPcSubcommand;
extern const Subcommand undoPcSubcommand;
extern const Subcommand profileSubcommand;
extern const Subcommand whySubcommand;
extern const Subcommand dscSubcommand;

// What they share.

inline constexpr OptionRow profileOption{QLatin1StringView("profile"), QLatin1StringView("FILE"),
                                         QLatin1StringView("what is asked for (default: what Optimize does)")};
inline constexpr OptionRow jsonOption{QLatin1StringView("json"), QLatin1StringView("FILE"),
                                      QLatin1StringView("write JSON; \"-\" is standard output")};

/** The profile of --profile, or one that asks for what Optimize does. A Failure that names every mistake. */
Profile profileOf(const Arguments &arguments, const Pc &pc);
/**
 * Reads a profile. A Failure that names every mistake.
 * @param system of the PC whose names are known, too; may be null
 */
Profile readProfile(const QString &name, SystemState *system);
/** The same of one that is at hand. */
Profile checkedProfile(const QByteArray &json, const QString &name, SystemState *system);
/** What was named in --profile; empty without one. */
QString profileFile(const Arguments &arguments);

/** The document that --json asks for: "formatVersion", "command", "profile", "counts" and "items". */
QByteArray aimsDocument(const QString &command, const QString &profile, const QList<Aim> &aims, QJsonObject more = {});
/** Prints the lines, or nothing where JSON goes to standard output, and writes what --json asks for. */
void reportAims(const QString &command, const Arguments &arguments, const QList<Aim> &aims, bool all,
                const QJsonObject &more = {});

/** What an apply has done. */
struct Applied
{
    QList<Aim> aims{};         ///< how each thing is now
    qint64 session = 0;        ///< of the journal; 0 where nothing was changed
    QString folder{};          ///< of the session, with its plan, result and log; empty where nothing was changed
    bool wantsRestart = false; ///< some of it is in force after a restart
    QByteArray log{};          ///< what the jobs said
    QString failure{};         ///< why not everything could be done; mostly empty
};

/**
 * Carries a profile out by the window's own jobs, and reads everything again.
 * @param profileName for the reports in the session's folder
 * @param mayWalk whether an option that walks over all files is agreed to; else a UsageError where one is asked for
 */
Applied applyTo(const Pc &pc, const Profile &profile, const QString &profileName, bool mayWalk);
