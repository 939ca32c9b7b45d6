// SPDX-License-Identifier: GPL-3.0-or-later
// Progress of long steps, for somebody at a terminal.

#pragma once

#include "console/progresscallback.h"

/**
 * One line on standard error that is written over and over and is gone in the end; nothing where that is no terminal.
 * For a program that steers this one, each step is a line of its own: "DONE<Tab>TOTAL<Tab>STEP".
 */
class Progress
{
public:
    explicit Progress(bool steered = false);
    ~Progress();
    Q_DISABLE_COPY_MOVE(Progress)

    /** Also where the program stops if it is broken off: throws Interrupted. */
    void show(const QString &step, int done, int total);
    /** The same and never throws, for what is called from an event loop. */
    void say(const QString &step, int done, int total);
    /** Takes the line away, for other output to come. */
    void clear();
    ProgressCallback callback();

private:
    void write(const QString &step, int done, int total);

    bool steered_;
    bool terminal_;
    bool shown_ = false;
    qint64 lastShown_ = 0;
};
