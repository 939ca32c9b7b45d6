// SPDX-License-Identifier: GPL-3.0-or-later
// Registry scripts: carrying them out and writing them.

#include "regfile.h"

#include "machine/database.h"
#include "machine/machineerror.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto scriptHead = "Windows Registry Editor Version 5.00\n"_L1;
constexpr qsizetype lineWidth = 77; // of the registry editor, before the comma and the backslash at a line's end

QString quoted(const QString &text)
{
    QString result = text;
    result.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return u'"' + result + u'"';
}

/** Whether a text comes back as the same data: one zero at its end, no line breaks, no halves of characters. */
bool isPlainText(const RegistryValue &value)
{
    const QString text = textOf(value.data);
    return value.type == RegistryType::String && registryText(text) == value.data && !text.contains(u'\n')
           && !text.contains(u'\r') && QString::fromUtf8(text.toUtf8()) == text;
}

QString bytesText(const QString &start, const QByteArray &data)
{
    QString lines;
    QString line = start;
    for (qsizetype i = 0; i < data.size(); ++i) {
        const bool last = i + 1 == data.size();
        line += QString::number(quint8(data.at(i)), 16).rightJustified(2, u'0');
        line += last ? u""_s : u","_s;
        if (!last && line.size() + 2 > lineWidth) {
            lines += line + u"\\\n"_s;
            line = u"  "_s;
        }
    }
    return lines + line;
}

/** The name and the sign after it, with which each line of a value begins. */
QString lineStart(const RegistryValue &value)
{
    return (value.name.isEmpty() ? u"@"_s : quoted(value.name)) + u'=';
}

QString valueLine(const RegistryValue &value)
{
    const QString start = lineStart(value);
    if (isPlainText(value))
        return start + quoted(textOf(value.data));
    if (value.type == RegistryType::DWord && value.data.size() == 4) {
        QByteArray digits = value.data;
        std::reverse(digits.begin(), digits.end());
        return start + u"dword:"_s + QString::fromLatin1(digits.toHex());
    }
    if (value.type == RegistryType::Binary)
        return bytesText(start + u"hex:"_s, value.data);
    return bytesText(start + u"hex(%1):"_s.arg(quint32(value.type), 0, 16), value.data);
}

void writeKey(const RegistryStore &store, RegistryStore::KeyId key, const QString &path, QString &script)
{
    script += u"\n["_s + path + u"]\n"_s;
    for (const RegistryValue &value : store.values(key))
        script += valueLine(value) + u'\n';
    for (const QString &name : store.subkeys(key)) {
        if (const std::optional<RegistryStore::KeyId> subkey = store.find(key, name))
            writeKey(store, *subkey, path + u'\\' + name, script);
    }
}

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
    const QString names = edit.key + edit.value.name;
    return std::none_of(names.begin(), names.end(), [](QChar unit) { return unit.category() == QChar::Other_Control; });
}

QString writeRegistryEdits(const QList<RegistryEdit> &edits)
{
    using Kind = RegistryEdit::Kind;

    QString script = scriptHead;
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
            script += valueLine(edit.value) + u'\n';
        else if (edit.kind == Kind::RemoveValue)
            script += lineStart(edit.value) + u"-\n"_s;
    }
    return script;
}

QString writeRegistryScript(const RegistryStore &store, const QString &keyPath)
{
    QString script = scriptHead;
    if (const std::optional<RegistryStore::KeyId> key = store.find(keyPath))
        writeKey(store, *key, store.path(*key), script);
    return script;
}
