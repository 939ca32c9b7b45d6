// SPDX-License-Identifier: GPL-3.0-or-later

#include "windowprogram.h"

#include "subcommands.h"

#include <QCoreApplication>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString windowProgram()
{
    // On Windows a program of its own, for kestrune itself works on the real PC there.
    const QString name = QStringLiteral(KESTRUNE_WINDOW_PROGRAM);
    const QString program = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    if (program.isEmpty())
        throw Failure{ExitJobFailed, u"the program %1 is missing beside this one"_s.arg(name)};
    return program;
}

QProcessEnvironment windowEnvironment(const QString &machine, bool elevated)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"KESTRUNE_MACHINE"_s, machine);
    environment.insert(u"KESTRUNE_ELEVATED"_s, elevated ? u"1"_s : u"0"_s);
    // A program without a console would tell its errors nobody.
    environment.insert(u"QT_FORCE_STDERR_LOGGING"_s, u"1"_s);
    return environment;
}
