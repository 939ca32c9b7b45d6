// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse new

#include "machine/source/machinejson.h"
#include "machine/source/machinesource.h"
#include "platform/processground.h"
#include "progress.h"
#include "subcommands.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString builtInFolder()
{
    return QCoreApplication::applicationDirPath() + u"/machines"_s;
}

/** The folder of sources that is meant: a built-in one by its name, or any other. */
QString sourcesFor(const QString &from)
{
    if (const QString builtIn = builtInFolder() + u'/' + from; !from.contains(u'/') && QFileInfo(builtIn).isDir())
        return builtIn;
    if (!QFileInfo(absolutePath(from)).isDir())
        throw Failure{ExitBadArguments, u"'%1' is neither a built-in machine nor a folder"_s.arg(from)};
    return from;
}

int runNew(const Arguments &arguments)
{
    const QString folder = arguments.operand(0);
    if (folder.isEmpty())
        throw UsageError{u"the folder of a machine must have a name"_s};
    QString sources;
    if (arguments.has("from"_L1))
        sources = sourcesFor(arguments.value("from"_L1));
    Progress progress;
    makeMachine(folder, sources, arguments.has("force"_L1) ? Existing::Replace : Existing::Keep, progress.callback());
    return ExitDone;
}

/** Each with its name and where its facts come from. */
QString builtInMachines()
{
    QString text;
    for (const QString &name : QDir(builtInFolder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString path = builtInFolder() + u'/' + name + u"/machine.json"_s;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const MachineDescription machine = parseMachineJson(file.readAll(), path);
        text += u"  "_s + name + u'\n';
        for (const QString &line : QStringList(machine.name.value_or(QString())) + machine.facts)
            text += u"      "_s + line + u'\n';
    }
    return text.isEmpty() ? QString() : u"Built-in machines:\n"_s + text;
}

// clang-format off
constexpr OptionRow options[] = {
    {"from"_L1,  "SOURCE"_L1, "fill it from a built-in machine, or from a folder of .reg files, tasks.xml and machine.json"_L1,
     "Fills it from a built-in machine:\n.B windows11\nand\n.B windows10\nare PCs that were upgraded,\n"
     ".B windows11\\-25h2\nis one that was installed anew, and\n.B windows11\\-pro\\-laptop\n"
     "a company's laptop, on which what Windows protects is refused.\nThe help of this command tells where their facts come from.\n"
     "Or fills it from a folder of sources: all its\n.I .reg\nfiles in the order of their names, then its\n"
     ".I tasks.xml\nand its\n.IR machine.json ."_L1},
    {"force"_L1, {},          "replace the machine that is there"_L1,
     "Replaces the machine that is there.\nOnly a rehearsal machine is ever replaced."_L1},
};
// clang-format on

} // namespace

const Subcommand newSubcommand{
    "new"_L1, "DIR"_L1,        "make a rehearsal machine, empty unless --from is given"_L1, options, 1, 1,
    runNew,   builtInMachines,
};
