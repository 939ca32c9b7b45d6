// SPDX-License-Identifier: GPL-3.0-or-later

#include "undo.h"

#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "machine/machine.h"
#include "platform/windowsfacts.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringEncoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString packagesPart = WindowsKey::packagesPart + u'\\';

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

bool isOfPackage(const QString &key)
{
    return key.contains(packagesPart, Qt::CaseInsensitive);
}

bool isOfProgram(const DiffRow &row)
{
    return row.path.startsWith("program\\"_L1);
}

/** The commands of one comparison, and the files they need. */
class UndoCommands
{
public:
    UndoCommands(Machine &before, Machine &after, const QList<RegistryEdit> &registry, const QString &filesFolder)
        : before_(before)
        , rows_(compareBesidesRegistry(before, after))
        , filesFolder_(filesFolder)
    {
        bringFilesBack();
        bringPackagesBack(registry);
        each(DiffKind::Attribute, [this](const DiffRow &row) { setAttributes(row.path); });
        each(DiffKind::Security, [this](const DiffRow &row) { setSecurity(row.path); });
        each(DiffKind::BootOption, [this](const DiffRow &row) { setBootOption(row); });
        each(DiffKind::Task, [this](const DiffRow &row) { switchTask(row); });
        each(DiffKind::Service, [this](const DiffRow &row) { switchService(row); });
    }

    QStringList commands() const { return commands_; }
    QList<UndoFile> files() const { return files_; }

private:
    template<typename Visit>
    void each(DiffKind kind, Visit visit) const
    {
        for (const DiffRow &row : rows_) {
            if (row.kind == kind && !isOfProgram(row))
                visit(row);
        }
    }

    void bringFilesBack()
    {
        QList<DiffRow> gone;
        QList<DiffRow> come;
        each(DiffKind::File, [&](const DiffRow &row) {
            if (row.path.endsWith("\\hiberfil.sys"_L1, Qt::CaseInsensitive))
                commands_.append(row.before.isEmpty() ? u"powercfg -h off"_s : u"powercfg -h on"_s);
            else if (row.after.isEmpty())
                gone.append(row);
            else if (row.before.isEmpty())
                come.append(row);
            else
                putContentBack(row.path);
        });
        for (const DiffRow &row : std::as_const(gone))
            renameBack(row, come);
        for (const DiffRow &row : std::as_const(come))
            commands_.append((row.after == "folder"_L1 ? u"rd "_s : u"del /f "_s) + quoted(row.path));
    }

    /** A file of the same folder and size that has come since is what it was renamed to. */
    void renameBack(const DiffRow &gone, QList<DiffRow> &come)
    {
        const auto folder = [](const QString &path) { return path.section(u'\\', 0, -2); };
        const auto renamed = std::find_if(come.begin(), come.end(), [&](const DiffRow &row) {
            return folder(row.path) == folder(gone.path) && row.after == gone.before;
        });
        if (renamed != come.end()) {
            commands_.append(u"ren "_s + quoted(renamed->path) + u' ' + quoted(gone.path.section(u'\\', -1)));
            come.erase(renamed);
        } else if (gone.before == "folder"_L1) {
            commands_.append(u"md "_s + quoted(gone.path));
        } else if (!isOfOneDrive(gone.path)) {
            putContentBack(gone.path);
        }
    }

    /** These come back with its set-up. */
    static bool isOfOneDrive(const QString &path)
    {
        return path.contains("\\Microsoft\\OneDrive\\"_L1, Qt::CaseInsensitive);
    }

    void putContentBack(const QString &path)
    {
        QFile file(before_.hostPath(path));
        if (!file.open(QIODevice::ReadOnly))
            throw MachineError{u"%1: %2"_s.arg(path, file.errorString())};
        const QString name = QString::number(files_.size() + 1) + u'-' + path.section(u'\\', -1);
        files_.append({name, file.readAll()});
        commands_.append(u"copy /y "_s + quoted(filesFolder_ + u'\\' + name) + u' ' + quoted(path));
    }

    void bringPackagesBack(const QList<RegistryEdit> &registry)
    {
        QStringList families;
        for (const RegistryEdit &edit : registry) {
            if (edit.kind != RegistryEdit::Kind::MakeKey || !isOfPackage(edit.key))
                continue;
            const qsizetype start = edit.key.indexOf(packagesPart, 0, Qt::CaseInsensitive) + packagesPart.size();
            families.append(packageNameOf(edit.key.mid(start).section(u'\\', 0, 0)));
        }
        families.removeDuplicates();
        for (const QString &family : std::as_const(families)) {
            commands_.append(u"powershell -Command Get-AppxPackage -allusers "_s + family
                             + u" \" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register "
                               "\\\"$($_.InstallLocation)\\AppXManifest.xml\\\"}\""_s);
        }
        const bool oneDrive = std::any_of(rows_.begin(), rows_.end(), [](const DiffRow &row) {
            return row.kind == DiffKind::File && row.after.isEmpty() && isOfOneDrive(row.path);
        });
        if (oneDrive)
            commands_.append(u"\"%WINDIR%\\SysWOW64\\OneDriveSetup.exe\" /silent"_s);
    }

    void setAttributes(const QString &path)
    {
        static const std::pair<quint32, QLatin1StringView> letters[] = {{AttributeReadOnly, "r"_L1},
                                                                        {AttributeHidden, "h"_L1},
                                                                        {AttributeSystem, "s"_L1},
                                                                        {AttributeArchive, "a"_L1},
                                                                        {AttributeNotIndexed, "i"_L1}};
        const quint32 word = before_.attributes(path);
        QString command = u"attrib"_s;
        for (const auto &[bit, letter] : letters)
            command += ((word & bit) != 0 ? u" +"_s : u" -"_s) + letter;
        commands_.append(command + u' ' + quoted(path));
    }

    void setSecurity(const QString &path)
    {
        const FileSecurity security = before_.security(path);
        if (security.rights.isEmpty())
            commands_.append(u"icacls "_s + quoted(path) + u" /reset"_s);
        else
            commands_.append(u"icacls "_s + quoted(path) + u" /grant:r "_s + quoted(security.rights));
        commands_.append(u"icacls "_s + quoted(path) + u" /setowner "_s
                         + quoted(security.owner.isEmpty() ? QString(installationOwner) : security.owner));
    }

    void setBootOption(const DiffRow &row)
    {
        commands_.append(row.before.isEmpty() ? u"bcdedit /deletevalue "_s + row.path
                                              : u"bcdedit /set "_s + row.path + u' ' + row.before);
    }

    void switchTask(const DiffRow &row)
    {
        const bool enabled = row.before.startsWith("enabled"_L1);
        commands_.append(u"schtasks /CHANGE /TN "_s + quoted(row.path) + (enabled ? u" /ENABLE"_s : u" /DISABLE"_s));
    }

    void switchService(const DiffRow &row)
    {
        commands_.append((row.before == "running"_L1 ? u"sc start "_s : u"sc stop "_s) + quoted(row.path));
    }

    Machine &before_;
    QList<DiffRow> rows_;
    QString filesFolder_;
    QStringList commands_;
    QList<UndoFile> files_;
};

/** The registry editor takes a script of version 5 only in UTF-16 for sure. */
QByteArray scriptBytes(const QList<RegistryEdit> &edits)
{
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    return encoder(writeRegistryEdits(edits).replace(u'\n', u"\r\n"_s));
}

QByteArray commandText(const QStringList &commands, const QString &script)
{
    QString text = u"rem The way back to the PC as it was before Optimize.\n"
                   "rem\n"
                   "rem 1. Import "_s
                   + script + u" (a double click, or: reg import \""_s + script
                   + u"\"). This can be done in Safe Mode.\n"
                     "rem 2. Restart, so that services start as they did.\n"
                     "rem 3. Give these commands in a command prompt of an administrator, in this folder.\n"
                     "rem\n"_s;
    for (const QString &command : commands)
        text += command + u'\n';
    return text.replace(u'\n', u"\r\n"_s).toUtf8();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        throw MachineError{u"%1: %2"_s.arg(QDir::toNativeSeparators(path), file.errorString())};
}

} // namespace

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

Undo undoOf(Machine &before, Machine &after, const QString &filesFolder)
{
    const Database::Snapshot stillBefore(before.database());
    const Database::Snapshot stillAfter(after.database());
    const QList<RegistryEdit> edits = registryUndo(before.registry(), after.registry());
    Undo undo;
    std::copy_if(edits.begin(), edits.end(), std::back_inserter(undo.registry),
                 [](const RegistryEdit &edit) { return !isOfPackage(edit.key); });
    const UndoCommands commands(before, after, edits, filesFolder);
    undo.commands = commands.commands();
    undo.files = commands.files();
    return undo;
}

QStringList writeUndo(Machine &before, Machine &after, const QString &file)
{
    const QFileInfo place(file);
    const QString stem = place.path() + u'/' + place.completeBaseName();
    const Undo undo = undoOf(before, after, place.completeBaseName() + u"-files"_s);
    QStringList written{file, stem + u"-commands.txt"_s};
    writeFile(written.at(0), scriptBytes(undo.registry));
    writeFile(written.at(1), commandText(undo.commands, place.fileName()));
    for (const UndoFile &content : undo.files) {
        if (!QDir().mkpath(stem + u"-files"_s))
            throw MachineError{u"%1-files: the folder can't be made"_s.arg(stem)};
        written.append(stem + u"-files/"_s + content.name);
        writeFile(written.last(), content.content);
    }
    return written;
}
