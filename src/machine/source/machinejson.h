// SPDX-License-Identifier: GPL-3.0-or-later
// machine.json: everything of a rehearsal machine that isn't registry.

#pragma once

#include "machine/machine.h"

class JsonReader;

/** A file or folder that a machine has on its drive. */
struct FileDescription
{
    QString path;               ///< Windows path with a drive, without a backslash at its end
    bool folder = false;        ///< written with a backslash at its end
    std::optional<qint64> size; ///< bytes; see Machine::setFileSize
    std::optional<QByteArray> content;
    std::optional<quint32> attributes; ///< the whole attribute word
    std::optional<FileSecurity> security{};
    std::optional<bool> isSigned{}; ///< see Machine::isUnsigned
};

/** What a machine.json says; a part that it doesn't name is empty. */
struct MachineDescription
{
    std::optional<QString> name;
    QStringList facts{};        ///< what kind of PC it is, and where what it has comes from, a sentence or two each
    bool namesReplaced = false; ///< those of the PC and its users, by whoever made this
    QMap<QString, QString> environment;
    QStringList running;
    std::optional<QStringList> processes;
    QMap<QString, QList<QJsonObject>> wmi;
    QJsonObject hardware; ///< see Machine::hardware
    QList<FileDescription> files;
    QMap<QString, QString> bootOptions;
    QMap<QString, QMap<uint, QString>> dlls;
    QMap<QString, std::optional<ToolFault>> faults; ///< nothing: an end to the fault
};

/** Reads a machine.json. Throws MachineError with "file:line: reason" or "file: key: reason". */
MachineDescription parseMachineJson(const QByteArray &bytes, const QString &fileName);
/** Checks its hardware part by part, and gives it as Machine::setHardware() takes it. Throws MachineError. */
QJsonObject readHardwareJson(const JsonReader &read, const QJsonValue &value, const QString &key);
