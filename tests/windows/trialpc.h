// SPDX-License-Identifier: GPL-3.0-or-later
// A real Windows that is made to look like a built-in PC, whose registry was imported before: what the clicks in a real
// window go over. The environment says by KESTRUNE_TRIAL_MACHINE which PC, and by KESTRUNE_TRIAL_PICTURES where the
// pictures go. Nothing here is done to a Windows that anybody uses: see scripts/windows/trial.sh.

#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

class Journal;

/** The process works on the real Windows, with stand-ins of the stock tools, while this object lives. */
class TrialPc
{
public:
    TrialPc();
    ~TrialPc();
    Q_DISABLE_COPY_MOVE(TrialPc)

    /** The journal that the process works through; it has administrator rights. */
    const Journal &journal() const { return *journal_; }

    /**
     * Lets the services, the processes and the scheduled tasks of the built-in PC be known to the stand-ins, and no
     * others; where names or paths are given, of these alone.
     */
    void startServices(const QStringList &only = {}) const;
    void startProcesses() const;
    void registerTasks(const QStringList &only = {}) const;

private:
    QJsonObject description_; ///< the PC's machine.json
    const Journal *journal_ = nullptr;
};

bool isWindows11Pc();
/** Makes an empty file with the folders on the way, as of an installed program. */
void layFile(const QString &path);
/** Puts a stand-in of the stock tools there. */
void layStandIn(const QString &path);

// What prepares the PC and looks at it goes past the journal.

/** Takes all out of a key of the registry, given by its full path. */
void emptyKey(const QString &path);

/**
 * The commands of a tool since forgetCommands(), in order, each as its arguments; without those by which the journal
 * looks.
 */
QList<QStringList> commandsOf(const QString &tool);
void forgetCommands();

/** Saves the whole screen: what a user would see, frames and boxes too. */
void takePicture(const QString &name);
