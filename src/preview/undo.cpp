// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview.h"

#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "machine/machine.h"
#include "platform/windowsfacts.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString packagesPart = WindowsKey::packagesPart + u'\\';

bool isOfPackage(const QString &key)
{
    return key.contains(packagesPart, Qt::CaseInsensitive);
}

bool isOfProgram(const DiffRow &row)
{
    return row.path.startsWith("program\\"_L1);
}

/** These come back with its set-up. */
bool isOfOneDrive(const QString &path)
{
    return path.contains("\\Microsoft\\OneDrive\\"_L1, Qt::CaseInsensitive);
}

/** Adds what isn't in the registry to a way back. */
class UndoCommands
{
public:
    UndoCommands(Machine &before, Machine &after, const QList<RegistryEdit> &registry, WayBackScript &script)
        : before_(before)
        , rows_(compareBesidesRegistry(before, after))
        , script_(script)
    {
        bringFilesBack();
        bringPackagesBack(registry);
        eachOfFiles(DiffKind::Attribute,
                    [this](const DiffRow &row) { script_.setAttributes(row.path, before_.attributes(row.path)); });
        eachOfFiles(DiffKind::Security, [this](const DiffRow &row) { setSecurity(row); });
        each(DiffKind::BootOption, [this](const DiffRow &row) {
            script_.setBootOption(row.path, row.before.isEmpty() ? std::nullopt : std::optional(row.before));
        });
        each(DiffKind::Task,
             [this](const DiffRow &row) { script_.enableTask(row.path, row.before.startsWith("enabled"_L1)); });
        each(DiffKind::Service,
             [this](const DiffRow &row) { script_.startService(row.path, row.before == "running"_L1); });
    }

private:
    template<typename Visit>
    void each(DiffKind kind, Visit visit) const
    {
        for (const DiffRow &row : rows_) {
            if (row.kind == kind && !isOfProgram(row))
                visit(row);
        }
    }

    /** The rows of files and their rights and attributes that are about a file which Windows can have. */
    template<typename Visit>
    void eachOfFiles(DiffKind kind, Visit visit)
    {
        each(kind, [&](const DiffRow &row) {
            if (script_.takesFile(kind, row.path))
                visit(row);
        });
    }

    void bringFilesBack()
    {
        QList<DiffRow> gone;
        QList<DiffRow> come;
        eachOfFiles(DiffKind::File, [&](const DiffRow &row) {
            if (row.path.endsWith("\\hiberfil.sys"_L1, Qt::CaseInsensitive))
                script_.switchHibernation(!row.before.isEmpty());
            else if (row.after.isEmpty())
                gone.append(row);
            else if (row.before.isEmpty())
                come.append(row);
            else
                putContentBack(row);
        });
        for (const DiffRow &row : std::as_const(gone))
            renameBack(row, come);
        for (const DiffRow &row : std::as_const(come)) {
            if (row.after == "folder"_L1)
                script_.removeFolder(row.path);
            else
                script_.removeFile(row.path);
        }
    }

    /** A file of the same folder and size that has come since is what it was renamed to. */
    void renameBack(const DiffRow &gone, QList<DiffRow> &come)
    {
        const auto folder = [](const QString &path) { return path.section(u'\\', 0, -2); };
        const auto renamed = std::find_if(come.begin(), come.end(), [&](const DiffRow &row) {
            return folder(row.path) == folder(gone.path) && row.after == gone.before;
        });
        if (renamed != come.end()) {
            script_.renameFile(renamed->path, gone.path.section(u'\\', -1));
            come.erase(renamed);
        } else if (gone.before == "folder"_L1) {
            script_.makeFolder(gone.path);
        } else if (!isOfOneDrive(gone.path)) {
            putContentBack(gone);
        }
    }

    void putContentBack(const DiffRow &row)
    {
        QFile file(before_.hostPath(row.path));
        if (!file.open(QIODevice::ReadOnly))
            throw MachineError{u"%1: %2"_s.arg(row.path, file.errorString())};
        script_.putContent(row.path, file.readAll());
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
        for (const QString &family : std::as_const(families))
            script_.installPackage(family);
        const bool oneDrive = std::any_of(rows_.begin(), rows_.end(), [](const DiffRow &row) {
            return row.kind == DiffKind::File && row.after.isEmpty() && isOfOneDrive(row.path);
        });
        if (oneDrive)
            script_.installOneDrive(oneDriveSetup(
                [this](const QString &path) { return QFileInfo::exists(before_.hostPath(u"C:\\Windows"_s + path)); }));
    }

    void setSecurity(const DiffRow &row)
    {
        const FileSecurity security = before_.security(row.path);
        script_.setRights(row.path, security.rights);
        script_.setOwner(row.path, security.owner.isEmpty() ? QString(installationOwner) : security.owner);
    }

    Machine &before_;
    QList<DiffRow> rows_;
    WayBackScript &script_;
};

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

WayBackScript undoOf(Machine &before, Machine &after, const QString &filesFolder)
{
    const Database::Snapshot stillBefore(before.database());
    const Database::Snapshot stillAfter(after.database());
    const QList<RegistryEdit> edits = registryUndo(before.registry(), after.registry());
    WayBackScript script(filesFolder);
    for (const RegistryEdit &edit : edits) {
        if (!isOfPackage(edit.key))
            script.edit(edit);
    }
    UndoCommands(before, after, edits, script);
    return script;
}

WrittenWayBack writeUndo(Machine &before, Machine &after, const QString &file)
{
    return undoOf(before, after, QFileInfo(file).completeBaseName() + u"-files"_s)
        .write(file, u"The way back to the PC as it was before Optimize."_s);
}
