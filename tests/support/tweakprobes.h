// SPDX-License-Identifier: GPL-3.0-or-later
// One trace of each tweak of the Features page, by which a test sees which of them ran, and in which form.

#pragma once

#include "testmachine.h"

/** A value in the registry that a tweak leaves behind; an invalid one is gone. */
struct ValueProbe
{
    QString box;
    QString key;
    QString name;
    QVariant applied;
    QVariant reset;
};

/** A command that a tweak runs: program and arguments with blanks between them. */
struct CommandProbe
{
    QString box;
    QString applied;
    QString reset;
};

/** The probes of a machine: laid once, read after each Apply. The walk of chkSsd8 has none. */
class TweakProbes
{
public:
    /** Lays every probe, with what the tweaks need to find: memory, a network, a search program. */
    explicit TweakProbes(TestMachine &machine, bool windows11 = true);

    /** Lays every probe anew and forgets what ran so far. */
    void lay();
    /** The boxes whose tweaks ran since, each with "on" or "off" after it, in the order of their names. */
    QStringList ran() const;

private:
    TestMachine &machine_;
    QList<ValueProbe> values_;
    QList<CommandProbe> commands_;
    qsizetype seenCommands_ = 0;
};
