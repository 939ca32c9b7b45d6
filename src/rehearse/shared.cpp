// SPDX-License-Identifier: GPL-3.0-or-later

#include "machine/machine.h"
#include "subcommands.h"

#include <QDir>

#include <cstdio>

std::unique_ptr<Machine> openMachine(const QString &folder)
{
    try {
        return Machine::open(absoluteFolder(folder));
    } catch (const MachineError &error) {
        throw Failure{ExitMachineUnreadable, error.message};
    }
}

QString absoluteFolder(const QString &folder)
{
    return QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
}

void print(const QString &text)
{
    print(text.toUtf8());
}

void print(const QByteArray &utf8)
{
    std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stdout);
}
