// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of a capture.

#pragma once

#include "capture.h"

#include <functional>

// The registry: what of it the program reads or writes.

/** How much of a key is taken. */
enum class Reach {
    Named,          ///< some of its own values
    Own,            ///< all of its own values
    Tree,           ///< all of it
    NamedOfSubkeys, ///< some values of each direct subkey
};

struct CaptureKey
{
    QString path;
    Reach reach = Reach::Named;
    QStringList values{}; ///< of the named reaches
};

/** All keys but those of network interfaces and display adapters, which go by rules of their own. */
QList<CaptureKey> captureKeys();

struct CapturedRegistry
{
    QList<RegistryEdit> edits;
    QStringList serviceTexts; ///< names and descriptions of services, which may be references into DLLs
    QStringList commands;     ///< of programs that start at logon, or did
    QStringList refused;      ///< keys that may not be read
};

/** @param withNames leaves addresses and networks' names as they are */
CapturedRegistry captureRegistry(const SystemReader &system, bool withNames);

/** A text of the registry; empty where there is none. */
QString registryTextOf(const SystemReader &system, const QString &key, const QString &name);

// What only the system's own tools tell.

/** Scheduled tasks as schtasks prints them, without who made them and what they are given: it isn't needed. */
QList<ScheduledTask> captureTasks(QList<NotRead> &notRead);
/** The options of the boot configuration that the program changes. */
QMap<QString, QString> captureBootOptions(QList<NotRead> &notRead);

// What the PC is made of, and how busy it is.

/** The parts of machine.json's "hardware". Takes half a second. */
QJsonObject captureHardware();
/** The answers to all that the program asks of WMI. */
QMap<QString, QList<QJsonObject>> captureWmi(QList<NotRead> &notRead);
/** The variables that the program reads. */
QMap<QString, QString> captureEnvironment();

// The files that the program looks at.

/** The paths that the program names itself, and those that the registry's texts name. */
QStringList filesOfProgram(const SystemReader &system, const QStringList &commands);
/**
 * What is there of these files: size, attributes, and the content of the one file that the program reads. Paths that
 * aren't whole are passed over; none comes twice.
 */
QList<FileDescription> captureFiles(const QStringList &windowsPaths);
/**
 * The folder for passing files, and one file that is as large as all of the component store.
 * @param goOn called now and then, since that store has a hundred thousand files
 */
QList<FileDescription> captureFolders(const std::function<void()> &goOn);
