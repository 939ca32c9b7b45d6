// SPDX-License-Identifier: GPL-3.0-or-later

#include "undo.h"

#include "console/printable.h"
#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "machine/machine.h"
#include "machine/registrydisplay.h"
#include "platform/windowsfacts.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringEncoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString packagesPart = WindowsKey::packagesPart + u'\\';

// Where the programs of the commands are, whatever lies in the folder in which they are given. The prompt's own
// commands are given to one that runs nothing of the user's first.
const QString system32 = u"%SystemRoot%\\System32\\"_s;
const QString prompt = u"cmd.exe /d /c "_s;

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

/** Whether a command has it as one text in quotation marks, and as nothing else than it is. */
bool canBeQuoted(const QString &text)
{
    return printable(text) == text && !text.contains(u'"') && !text.contains(u'%') && !text.endsWith(u'\\');
}

/** Whether a command has it as one word without quotation marks that is no switch. */
bool isWord(const QString &text)
{
    static const QRegularExpression word(QRegularExpression::anchoredPattern(u"[A-Za-z0-9{][A-Za-z0-9._{}-]*"_s));
    return word.match(text).hasMatch();
}

/** Whether Windows can have a file of that path: what is a pattern, a stream or a step up means other files. */
bool isFilePath(const QString &path)
{
    static const QRegularExpression form(uR"(^[A-Za-z]:(\\[^\\/:*?"<>|]+)+$)"_s);
    const QStringList names = path.split(u'\\');
    return form.match(path).hasMatch() && !names.contains(u"."_s) && !names.contains(u".."_s);
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
        eachOfFiles(DiffKind::Attribute, [this](const DiffRow &row) { setAttributes(row); });
        eachOfFiles(DiffKind::Security, [this](const DiffRow &row) { setSecurity(row); });
        each(DiffKind::BootOption, [this](const DiffRow &row) { setBootOption(row); });
        each(DiffKind::Task, [this](const DiffRow &row) { switchTask(row); });
        each(DiffKind::Service, [this](const DiffRow &row) { switchService(row); });
    }

    QStringList commands() const { return commands_; }
    QStringList leftOut() const { return leftOut_; }
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

    /**
     * Adds a command whose program is of System32, with texts in quotation marks at its places %1 and %2.
     * @param what is brought back by it, and left out where the command can't say it
     */
    void give(const QString &what, QString command, const QStringList &texts)
    {
        if (!std::all_of(texts.begin(), texts.end(), canBeQuoted)) {
            leaveOut(what);
            return;
        }
        for (const QString &text : texts)
            command = command.arg(quoted(text));
        commands_.append(system32 + command);
    }

    void leaveOut(const QString &what)
    {
        if (!leftOut_.contains(printable(what)))
            leftOut_.append(printable(what));
    }

    static QString named(const DiffRow &row) { return kindName(row.kind) + u' ' + row.path; }

    /** The rows of files and their rights and attributes that are about a file which Windows can have. */
    template<typename Visit>
    void eachOfFiles(DiffKind kind, Visit visit)
    {
        each(kind, [&](const DiffRow &row) {
            if (isFilePath(row.path))
                visit(row);
            else
                leaveOut(named(row));
        });
    }

    void bringFilesBack()
    {
        QList<DiffRow> gone;
        QList<DiffRow> come;
        eachOfFiles(DiffKind::File, [&](const DiffRow &row) {
            if (row.path.endsWith("\\hiberfil.sys"_L1, Qt::CaseInsensitive))
                give(named(row), row.before.isEmpty() ? u"powercfg.exe -h off"_s : u"powercfg.exe -h on"_s, {});
            else if (row.after.isEmpty())
                gone.append(row);
            else if (row.before.isEmpty())
                come.append(row);
            else
                putContentBack(row);
        });
        for (const DiffRow &row : std::as_const(gone))
            renameBack(row, come);
        for (const DiffRow &row : std::as_const(come))
            give(named(row), prompt + (row.after == "folder"_L1 ? u"rd %1"_s : u"del /f %1"_s), {row.path});
    }

    /** A file of the same folder and size that has come since is what it was renamed to. */
    void renameBack(const DiffRow &gone, QList<DiffRow> &come)
    {
        const auto folder = [](const QString &path) { return path.section(u'\\', 0, -2); };
        const auto renamed = std::find_if(come.begin(), come.end(), [&](const DiffRow &row) {
            return folder(row.path) == folder(gone.path) && row.after == gone.before;
        });
        if (renamed != come.end()) {
            give(named(gone), prompt + u"ren %1 %2"_s, {renamed->path, gone.path.section(u'\\', -1)});
            come.erase(renamed);
        } else if (gone.before == "folder"_L1) {
            give(named(gone), prompt + u"md %1"_s, {gone.path});
        } else if (!isOfOneDrive(gone.path)) {
            putContentBack(gone);
        }
    }

    /** These come back with its set-up. */
    static bool isOfOneDrive(const QString &path)
    {
        return path.contains("\\Microsoft\\OneDrive\\"_L1, Qt::CaseInsensitive);
    }

    void putContentBack(const DiffRow &row)
    {
        const QString name = QString::number(files_.size() + 1) + u'-' + row.path.section(u'\\', -1);
        const QString place = filesFolder_ + u'\\' + name;
        if (!canBeQuoted(place) || !canBeQuoted(row.path)) {
            leaveOut(named(row));
            return;
        }
        QFile file(before_.hostPath(row.path));
        if (!file.open(QIODevice::ReadOnly))
            throw MachineError{u"%1: %2"_s.arg(row.path, file.errorString())};
        files_.append({name, file.readAll()});
        give(named(row), prompt + u"copy /y %1 %2"_s, {place, row.path});
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
            // PowerShell would take any other sign for one of its own.
            if (isWord(family))
                commands_.append(
                    system32 + u"WindowsPowerShell\\v1.0\\powershell.exe -Command Get-AppxPackage -allusers "_s + family
                    + u" \" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register "
                      "\\\"$($_.InstallLocation)\\AppXManifest.xml\\\"}\""_s);
            else
                leaveOut(u"package "_s + family);
        }
        const bool oneDrive = std::any_of(rows_.begin(), rows_.end(), [](const DiffRow &row) {
            return row.kind == DiffKind::File && row.after.isEmpty() && isOfOneDrive(row.path);
        });
        if (oneDrive)
            commands_.append(u"%SystemRoot%\\SysWOW64\\OneDriveSetup.exe /silent"_s);
    }

    void setAttributes(const DiffRow &row)
    {
        static const std::pair<quint32, QLatin1StringView> letters[] = {{AttributeReadOnly, "r"_L1},
                                                                        {AttributeHidden, "h"_L1},
                                                                        {AttributeSystem, "s"_L1},
                                                                        {AttributeArchive, "a"_L1},
                                                                        {AttributeNotIndexed, "i"_L1}};
        const quint32 word = before_.attributes(row.path);
        QString command = u"attrib.exe"_s;
        for (const auto &[bit, letter] : letters)
            command += ((word & bit) != 0 ? u" +"_s : u" -"_s) + letter;
        give(named(row), command + u" %1"_s, {row.path});
    }

    void setSecurity(const DiffRow &row)
    {
        const FileSecurity security = before_.security(row.path);
        if (security.rights.isEmpty())
            give(named(row), u"icacls.exe %1 /reset"_s, {row.path});
        else
            give(named(row), u"icacls.exe %1 /grant:r %2"_s, {row.path, security.rights});
        give(named(row), u"icacls.exe %1 /setowner %2"_s,
             {row.path, security.owner.isEmpty() ? QString(installationOwner) : security.owner});
    }

    void setBootOption(const DiffRow &row)
    {
        if (!isWord(row.path) || (!row.before.isEmpty() && !isWord(row.before)))
            leaveOut(named(row));
        else if (row.before.isEmpty())
            give(named(row), u"bcdedit.exe /deletevalue "_s + row.path, {});
        else
            give(named(row), u"bcdedit.exe /set "_s + row.path + u' ' + row.before, {});
    }

    void switchTask(const DiffRow &row)
    {
        const bool enabled = row.before.startsWith("enabled"_L1);
        give(named(row), u"schtasks.exe /CHANGE /TN %1"_s + (enabled ? u" /ENABLE"_s : u" /DISABLE"_s), {row.path});
    }

    void switchService(const DiffRow &row)
    {
        give(named(row), row.before == "running"_L1 ? u"sc.exe start %1"_s : u"sc.exe stop %1"_s, {row.path});
    }

    Machine &before_;
    QList<DiffRow> rows_;
    QString filesFolder_;
    QStringList commands_;
    QStringList leftOut_;
    QList<UndoFile> files_;
};

/** "registry KEY", or "registry KEY: NAME" of a value, printable */
QString namedEdit(const RegistryEdit &edit)
{
    using Kind = RegistryEdit::Kind;
    const bool ofKey = edit.kind == Kind::MakeKey || edit.kind == Kind::RemoveKey;
    return printable(kindName(DiffKind::Registry) + u' ' + edit.key
                     + (ofKey ? QString() : u": "_s + valueName(edit.value)));
}

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
    for (const RegistryEdit &edit : edits) {
        if (isOfPackage(edit.key))
            continue;
        if (fitsScript(edit))
            undo.registry.append(edit);
        else
            undo.leftOut.append(namedEdit(edit));
    }
    const UndoCommands commands(before, after, edits, filesFolder);
    undo.leftOut += commands.leftOut();
    undo.commands = commands.commands();
    undo.files = commands.files();
    return undo;
}

WrittenUndo writeUndo(Machine &before, Machine &after, const QString &file)
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
    return {written, undo.leftOut};
}
