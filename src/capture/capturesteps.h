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

/** The part of a captured key's path, and the values of that key, that have the program's own names. */
struct CapturedPlace
{
    QString key;
    QStringList values{};
};
CapturedPlace capturedPlace(const QString &path);

struct CapturedRegistry
{
    QList<RegistryEdit> edits;
    QStringList serviceTexts; ///< names and descriptions of services, which may be references into DLLs
    QStringList commands;     ///< of programs that start at logon, or did
    QStringList refused;      ///< keys that may not be read
    QStringList replaced;     ///< addresses and networks' names that were
};

/** @param withNames leaves addresses, networks' names, and what programs are given as they are */
CapturedRegistry captureRegistry(const SystemReader &system, bool withNames);

/** Names by which a PC and those who use it are known, beside what the variables tell. */
struct PersonalNames
{
    QStringList hosts;
    QStringList persons; ///< full names and addresses
    QStringList others;  ///< folders of other users
};
PersonalNames personalNames(const SystemReader &system);

/** A text of the registry; empty where there is none. */
QString registryTextOf(const SystemReader &system, const QString &key, const QString &name);

/**
 * The command of a program that starts at logon without what the program is given, which may be anything. What the jobs
 * go by stays: a file in double quotes, and whether there is a "=", at which a record ends.
 */
QString withoutArguments(const QString &command);

// What only the system's own tools tell.

/**
 * Scheduled tasks as schtasks prints them, with those parts alone that the program and the stock tools read: who made a
 * task and what it is given may be anything.
 */
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

/** Whether a text is the path of a file, from its drive on; with what the program can look at and nothing else. */
bool isWholePath(const QString &path);
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
