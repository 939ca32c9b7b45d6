// SPDX-License-Identifier: GPL-3.0-or-later

#include "registryundo.h"

#include "machine/compare/machinediff.h"

QList<RegistryEdit> registryUndo(const RegistryStore &before, const RegistryStore &after)
{
    QList<RegistryEdit> edits;
    QString removed; // a new key; what it holds goes with it
    eachRegistryDifference(before, after, [&](const RegistryDifference &difference) {
        if (!removed.isEmpty() && (difference.key == removed || difference.key.startsWith(removed + u'\\')))
            return;
        using Kind = RegistryEdit::Kind;
        if (difference.ofKey && !difference.keyWasThere)
            removed = difference.key;
        if (difference.ofKey)
            edits.append({difference.keyWasThere ? Kind::MakeKey : Kind::RemoveKey, difference.key, {}});
        else if (difference.before)
            edits.append({Kind::SetValue, difference.key, *difference.before});
        else
            edits.append({Kind::RemoveValue, difference.key, *difference.after});
    });
    return edits;
}
