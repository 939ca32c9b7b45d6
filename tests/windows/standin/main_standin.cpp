// SPDX-License-Identifier: GPL-3.0-or-later
// Stands in for the stock tools of a real Windows, on whose registry it acts, in tests: it answers as the tool by whose
// name it is started. Nothing of this is ever packed.

#include "nativetoolhost.h"
#include "standinkeys.h"

#include "console/console.h"
#include "stocktool/tools.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcessEnvironment>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    // A guard against a copy that was left somewhere: without the tests' word it does nothing.
    if (qEnvironmentVariable("KESTRUNE_STANDIN") != "1"_L1)
        return exitNoSuchProgram;
    useBinaryOutput();
    QStringList arguments = QCoreApplication::arguments();
    const QString name = QFileInfo(arguments.takeFirst()).completeBaseName().toLower();
    NativeToolHost host;
    const ToolResult result = runTool(name, host, arguments);

    const auto commands = host.openKey(standInCommands);
    const int number = commands->value(standInCount, 0).toInt() + 1;
    commands->setValue(QString::number(number), QStringList(name) + arguments);
    commands->setValue(standInCount, number);
    const auto surroundings = host.openKey(standInSurroundings);
    surroundings->setValue(name, QProcessEnvironment::systemEnvironment().toStringList());
    surroundings->setValue(standInFolder, QDir::toNativeSeparators(QDir::currentPath()));
    std::fwrite(result.errors.constData(), 1, static_cast<std::size_t>(result.errors.size()), stderr);
    std::fwrite(result.output.constData(), 1, static_cast<std::size_t>(result.output.size()), stdout);
    return result.exitCode;
}
