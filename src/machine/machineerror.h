// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/** What went wrong with a rehearsal machine, in one line for a person. */
struct MachineError
{
    QString message;
    bool damaged = false; ///< the machine's own files aren't what they were
};
