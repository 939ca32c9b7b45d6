// SPDX-License-Identifier: GPL-3.0-or-later
// Registry scripts: carrying them out.

#include "regfile.h"

#include "machine/database.h"
#include "machine/machineerror.h"

using namespace Qt::StringLiterals;

void applyRegistryScript(Database &database, RegistryStore &store, const QList<RegistryEdit> &edits, void (*eachStep)())
{
    Database::Transaction transaction(database);
    RegistryStore::KeyId key = 0;
    QString keyPath; // of the key, which many edits in a row share
    for (const RegistryEdit &edit : edits) {
        if (eachStep != nullptr)
            eachStep();
        if (edit.kind == RegistryEdit::Kind::RemoveKey) {
            if (const std::optional<RegistryStore::KeyId> removed = store.find(edit.key))
                store.removeKey(*removed);
            keyPath.clear(); // it may be the one, or lie below it
            continue;
        }
        if (edit.key != keyPath || keyPath.isEmpty()) {
            const std::optional<RegistryStore::KeyId> made = store.make(edit.key);
            if (!made)
                throw MachineError{edit.key + u": the key is in none of the registry's hives"_s};
            key = *made;
            keyPath = edit.key;
        }
        if (edit.kind == RegistryEdit::Kind::SetValue)
            store.setValue(key, edit.value);
        else if (edit.kind == RegistryEdit::Kind::RemoveValue)
            store.removeValue(key, edit.value.name);
    }
    transaction.commit();
}
