// SPDX-License-Identifier: GPL-3.0-or-later
// Registry scripts: read, written, opened by the registry editor.

#include "app/startmodescript.h"
#include "fuzztarget.h"
#include "machine/database.h"
#include "machine/machineerror.h"
#include "machine/machineschema.h"
#include "machine/source/regfile.h"
#include "platform/registryscript.h"
#include "platform/windowsfacts.h"
#include "wayback/waybackscript.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<QList<RegistryEdit>> edits(const QByteArray &script)
{
    try {
        return parseRegistryScript(script, u"input"_s);
    } catch (const MachineError &error) {
        FUZZ_VERIFY(error.message.startsWith("input:"_L1)); // with its line
        return {};
    }
}

bool areSame(const RegistryEdit &left, const RegistryEdit &right)
{
    return left.kind == right.kind && left.key == right.key && left.value.name == right.value.name
           && left.value.type == right.value.type && left.value.data == right.value.data;
}

/** Edits that a script says, without those that only make a key which another line makes. */
QList<RegistryEdit> said(const QList<RegistryEdit> &all)
{
    QList<RegistryEdit> result;
    for (const RegistryEdit &edit : all) {
        if (edit.kind != RegistryEdit::Kind::MakeKey && fitsScript(edit))
            result.append(edit);
    }
    return result;
}

/** The edits that any bytes stand for: kind, type, and how long key, name and data are; then these. */
QList<RegistryEdit> editsOf(const QByteArray &bytes)
{
    qsizetype at = 0;
    const auto number = [&] { return at < bytes.size() ? quint8(bytes.at(at++)) : quint8(0); };
    const auto take = [&](qsizetype size) {
        const QByteArray part = bytes.mid(at, size);
        at += part.size();
        return part;
    };
    // In pieces of UTF-16, which needn't be valid in the registry
    const auto takeText = [&](qsizetype units) {
        const QByteArray part = take(units * 2);
        return QString(reinterpret_cast<const QChar *>(part.constData()), part.size() / 2);
    };
    QList<RegistryEdit> all;
    while (at < bytes.size()) {
        const auto kind = RegistryEdit::Kind(number() % 4);
        const auto type = RegistryType(quint32(number() % 13));
        const qsizetype ofKey = number(), ofName = number(), ofData = number();
        const QStringList levels = takeText(ofKey).split(u'\\', Qt::SkipEmptyParts);
        RegistryEdit edit{kind, (QStringList(u"HKEY_CURRENT_USER\\a"_s) + levels).join(u'\\'), {}};
        const RegistryValue value{takeText(ofName), type, take(ofData)};
        if (kind == RegistryEdit::Kind::SetValue)
            edit.value = value;
        else if (kind == RegistryEdit::Kind::RemoveValue)
            edit.value.name = value.name;
        all.append(edit);
    }
    return all;
}

} // namespace

/** What is read can be written, and then reads the same. */
FUZZ_TARGET(registryscript)
{
    const auto read = edits(input);
    if (!read)
        return;
    for (const RegistryEdit &edit : *read)
        FUZZ_VERIFY(RegistryStore::isHivePath(edit.key));
    const QList<RegistryEdit> wanted = said(*read);
    const QString text = writeRegistryEdits(wanted);
    // As the way back is written, and as an export is printed.
    const QString utf16 = QChar(QChar::ByteOrderMark) + text;
    for (const QByteArray &bytes :
         {QByteArray(reinterpret_cast<const char *>(utf16.utf16()), utf16.size() * 2), text.toUtf8()}) {
        const bool isWhole = QString::fromUtf8(text.toUtf8()) == text;
        if (!isWhole && !bytes.startsWith("\xFF\xFE"))
            continue;
        const auto again = edits(bytes);
        FUZZ_VERIFY(again);
        const QList<RegistryEdit> got = said(*again);
        FUZZ_VERIFY(got.size() == wanted.size());
        for (qsizetype i = 0; i < got.size(); ++i)
            FUZZ_VERIFY(areSame(got.at(i), wanted.at(i)));
    }
}

/** What is imported is exported so that it can be imported again, and is then the same. */
FUZZ_TARGET(registryexport)
{
    const auto read = edits(input);
    if (!read)
        return;
    const auto exported = [](const QList<RegistryEdit> &changes) {
        Database database(u":memory:"_s);
        database.execute(machineSchema);
        RegistryStore store(database);
        applyRegistryScript(database, store, changes);
        QStringList scripts;
        for (const QString &hive : {u"HKEY_CURRENT_USER"_s, u"HKEY_LOCAL_MACHINE"_s, u"HKEY_USERS"_s})
            scripts.append(writeRegistryScript(store, hive));
        return scripts;
    };
    const QStringList once = exported(*read);
    QList<RegistryEdit> again;
    for (const QString &script : once) {
        const auto part = edits(script.toUtf8());
        FUZZ_VERIFY(part);
        again += *part;
    }
    FUZZ_VERIFY(exported(again) == once);
}

/** The way back's script does what was to be brought back, and nothing else. */
FUZZ_TARGET(wayback)
{
    WayBackScript script(u"files"_s);
    for (const RegistryEdit &edit : editsOf(input))
        script.edit(edit);
    const auto read = edits(script.registryScript());
    FUZZ_VERIFY(read);
    const QList<RegistryEdit> wanted = said(script.registry());
    const QList<RegistryEdit> got = said(*read);
    FUZZ_VERIFY(got.size() == wanted.size());
    for (qsizetype i = 0; i < got.size(); ++i)
        FUZZ_VERIFY(areSame(got.at(i), wanted.at(i)));
    // A key that is made was to be made, or to hold what is put into it.
    for (const RegistryEdit &edit : *read) {
        FUZZ_VERIFY(std::any_of(script.registry().cbegin(), script.registry().cend(),
                                [&edit](const RegistryEdit &each) { return each.key == edit.key; }));
    }
}

/** A script that is opened with the program's rights does nothing but set start modes. */
FUZZ_TARGET(openedscript)
{
    if (!setsStartModesOnly(input))
        return;
    // The editor takes either character for the end of a line.
    const QByteArray script = QByteArray(input).replace('\r', '\n');
    const auto read = edits(script);
    // It does nothing either with a name that is too long for a key.
    const QList<QByteArray> lines = script.split('\n');
    const bool isLong = std::any_of(lines.begin(), lines.end(),
                                    [](const QByteArray &line) { return line.size() > RegistryStore::longestName; });
    FUZZ_VERIFY(read || isLong);
    if (!read)
        return;
    for (const RegistryEdit &edit : *read) {
        FUZZ_VERIFY(edit.key.startsWith(WindowsKey::services + u'\\'));
        FUZZ_VERIFY(edit.kind == RegistryEdit::Kind::MakeKey || edit.value.name == "Start"_L1);
        FUZZ_VERIFY(edit.kind == RegistryEdit::Kind::MakeKey || edit.value.type == RegistryType::DWord);
    }
}
