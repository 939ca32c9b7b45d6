// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/** Kinds of things that can differ between two machines, in the order in which they are listed. */
enum class DiffKind { Service, Task, Registry, File, Attribute, Security, BootOption };

/** One thing that differs. Its text is empty on a side that doesn't have it, and never empty elsewhere. */
struct DiffRow
{
    DiffKind kind = DiffKind::Service;
    QString path; ///< service, task, key, file or boot option
    QString name; ///< of a value
    QString before;
    QString after;

    friend bool operator==(const DiffRow &, const DiffRow &) = default;
};
