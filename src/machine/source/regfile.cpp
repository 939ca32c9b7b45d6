// SPDX-License-Identifier: GPL-3.0-or-later
// Registry scripts: carrying them out and writing them.

#include "regfile.h"

#include "machine/database.h"
#include "machine/machineerror.h"
#include "platform/registryscript.h"

using namespace Qt::StringLiterals;

namespace {

/** A script of a key and all below it that it can name; the rest is listed. */
class ScriptWriter
{
public:
    explicit ScriptWriter(const RegistryStore &store)
        : store_(store)
    {
    }

    void writeKey(RegistryStore::KeyId key, const QString &path)
    {
        script += u"\n["_s + path + u"]\n"_s;
        for (const RegistryValue &value : store_.values(key)) {
            if (fitsRegistryScript(value.name))
                script += registryScriptValue(value) + u'\n';
            else
                leftOut.append(path + u": "_s + value.name);
        }
        for (const QString &name : store_.subkeys(key)) {
            const QString below = path + u'\\' + name;
            if (!fitsRegistryScript(name))
                leftOut.append(below);
            else if (const std::optional<RegistryStore::KeyId> subkey = store_.find(key, name))
                writeKey(*subkey, below);
        }
    }

    QString script = registryScriptHead + u'\n';
    QStringList leftOut{};

private:
    const RegistryStore &store_;
};

} // namespace

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

bool fitsScript(const RegistryEdit &edit)
{
    return fitsRegistryScript(edit.key + edit.value.name);
}

QString writeRegistryEdits(const QList<RegistryEdit> &edits)
{
    using Kind = RegistryEdit::Kind;

    QString script = registryScriptHead + u'\n';
    QString section; // the key whose values are being written
    for (const RegistryEdit &edit : edits) {
        if (edit.kind == Kind::RemoveKey) {
            script += u"\n[-"_s + edit.key + u"]\n"_s;
            section.clear();
            continue;
        }
        if (edit.key != section)
            script += u"\n["_s + edit.key + u"]\n"_s;
        section = edit.key;
        if (edit.kind == Kind::SetValue)
            script += registryScriptValue(edit.value) + u'\n';
        else if (edit.kind == Kind::RemoveValue)
            script += registryScriptName(edit.value) + u"-\n"_s;
    }
    return script;
}

QString writeRegistryScript(const RegistryStore &store, const QString &keyPath, QStringList *leftOut)
{
    ScriptWriter writer(store);
    if (const std::optional<RegistryStore::KeyId> key = store.find(keyPath))
        writer.writeKey(*key, store.path(*key));
    if (leftOut != nullptr)
        *leftOut = writer.leftOut;
    return writer.script;
}
