// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the programs under test as processes.

#pragma once

#include "files.h"

#include <QCoreApplication>
#include <QProcess>

/** What a process left behind. */
struct Ended
{
    qint64 processId = 0;
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

using Variables = QMap<QString, QString>;

inline Ended runProgram(const QString &program, const QStringList &arguments, const Variables &variables = {},
                        const QByteArray &input = {})
{
    constexpr int patience = 250000; // milliseconds
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto it = variables.begin(); it != variables.end(); ++it)
        environment.insert(it.key(), it.value());
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    Ended ended;
    if (process.waitForStarted())
        ended.processId = process.processId();
    if (!input.isEmpty()) {
        process.write(input);
        process.closeWriteChannel();
    }
    if (process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit)
        ended.exitCode = process.exitCode();
    ended.output = process.readAllStandardOutput();
    ended.errors = process.readAllStandardError();
    return ended;
}

#ifdef Q_OS_WIN
inline const QString programSuffix = QStringLiteral(".exe");
#else
inline const QString programSuffix;
#endif

/** A program of the project, all of which lie beside the test. */
inline QString builtProgram(const QString &name)
{
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

/** The one program that stands for all tools of a machine. */
inline QString stockTool()
{
    return builtProgram(QStringLiteral("kestrune-stocktool"));
}

/** Copies a program of the project; gives the copy's path. */
inline QString copyProgram(const QString &name, const QString &place)
{
    if (!QFile::copy(builtProgram(name) + programSuffix, place + programSuffix))
        qFatal("%s can't be copied", qPrintable(name));
    return place + programSuffix;
}
