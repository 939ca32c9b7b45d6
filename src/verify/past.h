// SPDX-License-Identifier: GPL-3.0-or-later
// What the journal of a machine knows of its past.

#pragma once

#include "journal/item.h"
#include "machine/compare/diffrow.h"

#include <QHash>

#include <functional>

class Machine;

class Past
{
public:
    /** Reads the machine's journal, and changes nothing in it. Throws MachineError. */
    explicit Past(const Machine &machine);

    /** False on a captured PC, and where nothing was ever changed with the rights of an administrator. */
    bool isKnown() const { return isKnown_; }
    /** The last session that put the item into such a state, in words; empty where none did. */
    QString changeOf(const Item &item, const std::function<bool(const ItemState &)> &isSuch) const;
    /** The last one that put what the row is about into the state after which it asks. */
    QString changeOf(const DiffRow &row) const;

private:
    bool isKnown_ = false;
    struct Change
    {
        ItemState to{};
        QString session{};
    };
    QMultiHash<QString, Change> changes_; ///< by folded item, the last one first
};
