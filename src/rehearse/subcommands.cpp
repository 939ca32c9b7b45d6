// SPDX-License-Identifier: GPL-3.0-or-later
// What the subcommands share.

#include "subcommands.h"

#include "machine/machine.h"
#include "machine/workfolder.h"
#include "platform/processground.h"
#include "wayback/waybackscript.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr const Subcommand *subcommands[] = {
    &newSubcommand,     &captureSubcommand, &listSubcommand, &runSubcommand,    &undoSubcommand,
    &previewSubcommand, &verifySubcommand,  &diffSubcommand, &guiSubcommand,    &tourSubcommand,
    &exportSubcommand,  &importSubcommand,  &packSubcommand, &unpackSubcommand,
};

} // namespace

std::span<const Subcommand *const> allSubcommands()
{
    return subcommands;
}

std::unique_ptr<Machine> openMachine(const QString &folder)
{
    const QString place = absoluteFolder(folder);
    removeLeftovers(QFileInfo(place).path());
    try {
        return Machine::open(place);
    } catch (const MachineError &error) {
        throw Failure{ExitMachineUnreadable, error.message};
    }
}

std::unique_ptr<Machine> openMachineToChange(const QString &folder)
{
    const QString place = absoluteFolder(folder);
    const QFileInfo database(place + u"/machine.sqlite"_s);
    if (database.exists() && !(database.isWritable() && QFileInfo(place).isWritable()))
        throw Failure{ExitJobFailed, u"%1: the machine is read-only"_s.arg(QDir::toNativeSeparators(place))};
    return openMachine(folder);
}

qint64 requireKey(const RegistryStore &store, const QString &path)
{
    if (!RegistryStore::isHivePath(path))
        throw Failure{
            ExitBadArguments,
            u"'%1' has no root: a key begins with HKLM, HKCU, HKCR or HKU, such as HKCU\\Software"_s.arg(path)};
    const std::optional<qint64> key = store.find(path);
    if (!key)
        throw Failure{ExitBadArguments, u"there is no key '%1'"_s.arg(path)};
    return *key;
}

void writePage(const Arguments &arguments, const QString &page)
{
    const QString file = arguments.value("html"_L1);
    writeReportFile(file, page.toUtf8());
    if (file != "-"_L1 && arguments.value("json"_L1) != "-"_L1)
        print(absolutePath(file) + u'\n');
}

void printWritten(const WrittenWayBack &wayBack)
{
    for (const QString &file : wayBack.files)
        print(file + u'\n');
    for (const QString &what : wayBack.leftOut)
        print(u"left out: %1\n"_s.arg(what));
}
