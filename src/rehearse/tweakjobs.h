// SPDX-License-Identifier: GPL-3.0-or-later
// Tweaks, run by kestrune-rehearse.

#pragma once

#include "work/workthread.h"

/** One tweak, in one of its two forms. */
struct TweakRequest
{
    void (WorkThread::*run)(quint8 apply, quint32 id);
    QString group;
    quint32 id;
    bool apply;

    /** The job that the window runs it by, if it is one. */
    std::optional<int> job() const;
};

/** Reads "ssd 8 on". Throws UsageError. */
TweakRequest parseTweak(const QStringList &operands);
/** The operands of every tweak and what it does, a line each. */
QString tweaksInWords();
