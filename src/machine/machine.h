// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine: the folder that holds a whole Windows.

#pragma once

#include "machineerror.h"
#include "registrystore.h"

#include <QFileInfo>
#include <QHash>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

#include <memory>
#include <optional>

class Database;

/** A scheduled task. */
struct ScheduledTask
{
    QString path;     ///< with its leading backslash: "\Microsoft\Windows\Defrag\ScheduledDefrag"
    QString document; ///< its XML from "<Task" to "</Task>", lines ended by LF

    friend bool operator==(const ScheduledTask &, const ScheduledTask &) = default;
};

/** Who owns the files of Windows; a file of that owner is as it was installed. */
inline constexpr QLatin1StringView installationOwner("NT SERVICE\\TrustedInstaller");

/** Who owns a file and whom rights were granted, as far as it was changed. */
struct FileSecurity
{
    QString owner{};  ///< "DOMAIN\user"; empty: as it was installed
    QString rights{}; ///< "DOMAIN\user:F", several with blanks between them; empty: inherited

    friend bool operator==(const FileSecurity &, const FileSecurity &) = default;
};

/** What a tool of a machine is told to do instead of its work. */
struct ToolFault
{
    bool missing = false;            ///< there is no such program
    bool hang = false;               ///< runs until it is ended, or the fault is taken back
    std::optional<int> exitCode{};   ///< ends with this code, having changed nothing
    std::optional<QString> output{}; ///< prints this instead of its own text
    int repeat = 1;                  ///< how often it prints it

    static constexpr qint64 mostPrinted = qint64{256} * 1024 * 1024; ///< in bytes, with each repetition
};

/** Who has made a machine, as far as is known. */
enum class Origin {
    Anybody, ///< it is looked through as a whole
    Checked  ///< it was, by this process before it was copied, or by the one that has started this one to work on it
};

/**
 * The machine's folder:
 *
 *     machine.sqlite   registry, run states, processes, tasks, attributes, owners, boot options, WMI, hardware,
 *                      DLL strings, environment, faults
 *     drive_c/         the files the program can see; the database has the size of those that nobody reads
 *     program/         the program folder: log.txt, backup_svc, backup_tasks, backup_autorun
 *     commands.log     one JSON line for each tool run: program, arguments, exitCode
 *
 * Several processes may hold one machine open at a time, and several threads one object.
 */
class Machine
{
public:
    static constexpr int formatVersion = 1;
    static constexpr qint64 largestFile = qint64{1} << 40; ///< in bytes

    /** Makes an empty machine. Throws MachineError where the folder holds something or can't be written. */
    static std::unique_ptr<Machine> create(const QString &folder);
    /**
     * Opens a machine. Throws MachineError where there is none, or it is damaged or of a newer version: its database
     * sound, of just the tables that this program makes, its keys in their hives and no deeper than those of Windows,
     * and nothing in it larger than this program takes.
     */
    static std::unique_ptr<Machine> open(const QString &folder, Origin origin = Origin::Anybody);
    ~Machine();

    QString folder() const { return folder_; }
    QString driveFolder() const { return folder_ + QStringLiteral("/drive_c"); }
    QString programFolder() const { return folder_ + QStringLiteral("/program"); }

    Database &database() const { return *database_; }
    RegistryStore &registry() { return registry_; }

    /** A text of one line that names the machine. */
    QString name() const;
    void setName(const QString &name);
    /** Whether it was captured from a PC whose names were replaced, so that what it holds isn't what the PC has. */
    bool hasReplacedNames() const;
    void setReplacedNames();

    /** Environment variables by the name they were given with. */
    QMap<QString, QString> environment() const;
    void setEnvironment(const QMap<QString, QString> &variables);

    /** Run states of services, by name without regard to case. A service that never ran has none. */
    std::optional<bool> isRunning(const QString &service) const;
    void setRunning(const QString &service, bool running);
    QMap<QString, bool> runStates() const;

    QStringList processes() const;
    void setProcesses(const QStringList &names);

    /** Scheduled tasks in the order in which they came. A path is found without regard to case. */
    QList<ScheduledTask> tasks() const;
    /** Their paths alone, in the same order. */
    QStringList taskPaths() const;
    std::optional<ScheduledTask> task(const QString &path) const;
    /** Registers a task or changes the document of one; that one keeps its place and the case of its path. */
    void setTask(const ScheduledTask &task);
    void removeTask(const QString &path);

    /** A string of a DLL; null text where the DLL has no such string, null altogether where the file is no DLL. */
    std::optional<std::optional<QString>> dllString(const QString &windowsPath, uint id) const;
    void setDllStrings(const QString &windowsPath, const QMap<uint, QString> &strings);

    /** Instances of a WMI class, by name without regard to case, each a JSON object of its properties. */
    QList<QJsonObject> wmiInstances(const QString &className) const;
    /** Whether the machine has the class, if only without instances. */
    bool hasWmiClass(const QString &className) const;
    void setWmiInstances(const QString &className, const QList<QJsonObject> &instances);

    /**
     * What the machine has of hardware beside WMI and the registry, by the parts that machine.json names there:
     * volumes, screen, freeMemory, threads, processorTimes. A part that is missing is unknown.
     */
    QJsonObject hardware() const;
    /** Sets the parts that @p parts names; the rest stays. */
    void setHardware(const QJsonObject &parts);

    /** A file's attribute word as Windows has it (0x2 hidden, 0x4 system, 0x10 folder, 0x20 archive ...). */
    quint32 attributes(const QString &windowsPath) const;
    void setAttributes(const QString &windowsPath, quint32 word);
    /** The same of a file by its host path, in no time; nothing where there is no such file. */
    std::optional<quint32> attributesOfFile(const QString &hostPath) const;
    /**
     * A file's size in bytes. What nobody reads of a file isn't on the disk: such a file is shorter there, mostly
     * empty, and the database has its size, so that a machine's folder is small however it is copied.
     */
    qint64 fileSize(const QString &path) const;
    /** Sets the size of a file that is in place; what is beyond its content isn't there to be read. */
    void setFileSize(const QString &path, qint64 size);
    /** What a file was given stays with it under a new name; both are host paths. */
    void copyFileSize(const QString &from, const QString &to);
    /** The sizes that the database has, by the key of a file's path; for a walk over many. */
    QHash<QString, qint64> givenSizes() const;
    /** One text for each file, whichever way its path is written. */
    QString pathKey(const QString &path) const;

    /** Owners and rights of files by their Windows path, where they aren't those of the installation. */
    FileSecurity security(const QString &windowsPath) const;
    void setSecurity(const QString &windowsPath, const FileSecurity &security);
    QMap<QString, FileSecurity> changedSecurity() const;

    /** Whether a program lacks a valid signature of Microsoft's, which all have of which nothing else is said. */
    bool isUnsigned(const QString &windowsPath) const;
    void setUnsigned(const QString &windowsPath, bool isUnsigned);

    /** Options of the boot configuration by their lower-case name ("useplatformclock"); those with a value. */
    QMap<QString, QString> bootOptions() const;
    /** Nothing: takes the option out of the configuration. */
    void setBootOption(const QString &name, const std::optional<QString> &value);

    /** The size, in bytes, that hiberfil.sys had when it was removed, if it ever was. */
    std::optional<qint64> formerHiberfileSize() const;
    void setFormerHiberfileSize(qint64 size);

    /** Host paths of all files and folders with all of the given attribute bits, for walks. */
    QStringList pathsWithAttribute(quint32 bits) const;

    /** Whether a fault is set for a tool with these arguments: its key is the tool, or the tool and its first
     * arguments. */
    std::optional<ToolFault> fault(const QString &tool, const QStringList &arguments = {}) const;
    void setFault(const QString &command, const ToolFault &fault);
    void clearFault(const QString &command);

    /** 32-bit exit codes of tools, left by the tool for the process that started it. */
    void leaveExitCode(qint64 processId, int code);
    void dropExitCode(qint64 processId);
    std::optional<int> takeExitCode(qint64 processId);

    /** Appends a line to commands.log. */
    void logCommand(const QString &program, const QStringList &arguments, int exitCode) const;

    /**
     * The file behind a Windows path, see Platform::hostPath. Always in the machine's folder: what a link out of it
     * would lead to gives a path at which nothing is and nothing can be made.
     */
    QString hostPath(const QString &windowsPath) const;
    /** The Windows path of a file below drive_c, with backslashes and its drive; others stay as they are. */
    QString windowsPath(const QString &hostPath) const;

    /** Whether a link, or a link on the way to a file, leads out of the machine, given by its host path. */
    bool leadsOut(const QString &hostPath) const;
    /** The links on the way to a file of the machine, and itself where it is one; by its host path. */
    QFileInfoList linksOnTheWay(const QString &hostPath) const;

private:
    /** A file by its folder in the machine ("drive_c") and the names below it. */
    struct Location
    {
        QString top;
        QStringList names;
    };

    Machine(const QString &folder, std::unique_ptr<Database> database);
    Location locate(const QString &path) const;
    QString placeOf(const QString &windowsPath) const;
    QStringList unsignedPrograms() const;
    QStringView belowDriveC(const QString &hostPath) const;
    quint32 attributeWord(const QString &path, bool isFolder) const;

    QString folder_;
    std::shared_ptr<void> held_; ///< says that the folder is in use
    std::unique_ptr<Database> database_;
    RegistryStore registry_;
};

/**
 * Copies a machine as it is at this moment into a folder that isn't there yet; other processes may go on working on it.
 * Its log of commands is not copied. Changes nothing in the source. Throws MachineError and Interrupted, with a part
 * of the copy left.
 */
void copyMachine(const Machine &source, const QString &folder);
