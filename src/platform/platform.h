// SPDX-License-Identifier: GPL-3.0-or-later
// The seam: what the logic needs of an operating system.

#pragma once

#include "registrykey.h"

#include <QList>
#include <QSize>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

/** A string of a DLL's string table, or why there is none. */
struct DllString
{
    bool loaded = false;         ///< the DLL could be opened
    std::optional<QString> text; ///< the string; empty where the table has none of that number
    quint32 error = 0;           ///< the system's error code of a failed opening
};

/** The steps of a WMI query that can fail. */
enum class WmiStep { InitializeCom, CreateLocator, Connect, SetBlanket, Query };

struct WmiFailure
{
    WmiStep step = WmiStep::Query;
    qint32 code = 0; ///< the HRESULT as a signed number
};

/** What a WMI query gave: for each instance, in order, the texts of the properties asked for, in the order asked. */
struct WmiAnswer
{
    QList<QStringList> instances;
    QList<WmiFailure> failures;
};

/** One file, folder or link that a walk meets. */
struct WalkEntry
{
    QString path;    ///< host path
    qint64 size = 0; ///< bytes; 0 for a folder
};

/** What the attribute word of a file reads as that can't be read: INVALID_FILE_ATTRIBUTES. */
constexpr quint32 invalidAttributes = 0xffffffff;

/** How the shell is asked to start a program. */
struct ShellStart
{
    QString verb;       ///< "open", or "runas" for an elevated start
    QString file;       ///< host path of this program's own file, or a Windows path
    QString parameters; ///< one text, as the shell takes it; may be empty
};

/** What all processors together have done since the start, in units of 100 ns. */
struct ProcessorTimes
{
    quint64 idle = 0;
    quint64 kernel = 0; ///< contains the idle time
    quint64 user = 0;
};

/** The drive that the system started from. */
struct RootDrive
{
    QString path;          ///< "C:/"
    quint64 freeBytes = 0; ///< 0 also where it is unknown
};

/** A file and the attribute word that it is to have. */
struct FileAttributes
{
    QString file; ///< host path
    quint32 word = 0;
};

/** What a program that has ended gave. */
struct ProgramAnswer
{
    int exitCode = 0; ///< of 32 bits
    QByteArray output{};
};

/** A program that this process may start. */
struct AdmittedProgram
{
    QString file;                 ///< what to start: where it lies, whatever links led there
    std::shared_ptr<void> hold{}; ///< nobody changes the file as long as this is there: keep it until the program ends
    QStringList leading{};        ///< arguments that it gets before those that it is to be started with
    std::function<ProgramAnswer()> within{}; ///< where it is there, this is called in place of a start
};

/** What becomes of a file that is there already where one is to be written. */
enum class IfThere {
    Replace,  ///< it goes first; a link of that name goes, and not what it leads to
    Exchange, ///< it goes likewise, but only when the new one is whole, which has its rights then
    Keep,     ///< it stays, whatever it is
};

/** The least and the most that Platform::textScale() gives. */
constexpr int usualTextScale = 100;
constexpr int largestTextScale = 225;

class Platform
{
public:
    Platform() = default;
    virtual ~Platform() = default;
    Q_DISABLE_COPY_MOVE(Platform)

    /** Opens a key by its full path, hive name first. Never null. Any thread; the object belongs to one thread. */
    virtual std::unique_ptr<RegistryKey> openKey(const QString &path) const = 0;

    /** The values of a key as the registry holds them, in its own order. None where there is no such key: it isn't
     * made. */
    virtual QList<RegistryValue> registryValues(const QString &keyPath) const = 0;

    /**
     * The file on this computer that a Windows path stands for, with "\" or "/" between its parts. On Windows the same
     * text; on a rehearsal machine a path below its drive, found without regard to case. A path without a drive, and a
     * bare drive
     * ("C:"), mean the drive's root. A file that isn't there gives the path where it would be.
     */
    virtual QString hostPath(const QString &windowsPath) const = 0;
    /**
     * Whether a Windows path that begins with a drive's letter and a separator names something that is there, on a
     * fixed drive and with no link on the way. Nothing else is looked at, so that no other computer is ever asked.
     */
    virtual bool isOnFixedDrive(const QString &windowsPath) const = 0;
    /** Host path of the folder that log.txt and the backups are written to, without a slash at its end. */
    virtual QString programFolder() const = 0;
    /** Host path of the folder that holds img and Translations, without a slash at its end. */
    virtual QString resourceFolder() const = 0;

    /**
     * Writes a file below a folder, which lies where it lies, whatever links lead there. Below it nothing is a link
     * that is followed: whoever else can write there could have a file of the system written by this process. Folders
     * on the way are made; one that is a link is a failure, and so is a folder in place of the file.
     * @param folder host path
     * @param name of the file, with "/" after the folders on the way
     * @return false where the file isn't there as it was to be written
     */
    virtual bool writeFile(const QString &folder, const QString &name, const QByteArray &content,
                           IfThere ifThere) const = 0;
    /** Adds a line, with the system's own line end, to a file that is named likewise and is no link under any name. */
    virtual bool appendLine(const QString &folder, const QString &name, const QString &line) const = 0;

    /**
     * Visits everything below a folder, given as a Windows path, as QDirIterator does on Windows with its default
     * filters: hidden entries are left out and not entered, links are named but not followed, "." and ".." don't come.
     * An unreadable or missing folder gives nothing. The walk ends where @p visit returns false.
     */
    virtual void walk(const QString &windowsPath, const std::function<bool(const WalkEntry &)> &visit) const = 0;

    /**
     * A file's or folder's attribute word as Windows has it (0x2 hidden, 0x4 system, 0x10 folder, 0x20 archive ...), of
     * a link its own; invalidAttributes where it can't be read.
     * @param file host path
     */
    virtual quint32 fileAttributes(const QString &file) const = 0;
    /**
     * Changes a file's or folder's attribute word, of a link its own. A refusal is silent. What is set during a walk
     * lasts at the latest when the walk is over.
     */
    virtual void setFileAttributes(const QString &file, quint32 word) const = 0;
    /** Changes those of many files together, where that is quicker. */
    virtual void setAllFileAttributes(const QList<FileAttributes> &files) const;

    /** A file's size in bytes, by its host path; what of it can be read may be less. 0 where there is no such file. */
    virtual qint64 fileSize(const QString &file) const;

    // What is changed of files that aren't the program's own, by their host paths. False where it wasn't done.

    /** Gives a file another path, at which nothing may be. */
    virtual bool renameFile(const QString &from, const QString &to) const;
    virtual bool removeFile(const QString &file) const;

    /** The file to start for a program name, a path, or a path in double quotes; empty where there is no such program.
     */
    virtual QString programFile(const QString &program) const = 0;
    /**
     * Whether this process may start a program, named as for programFile(), which finds it. An elevated process starts
     * what lies in the system's own folders, where only an administrator puts something, and otherwise what is signed
     * by Microsoft: what a user's registry and folders name any program of his can have put there. Nothing where it may
     * not be started. To be asked right before the start, with the arguments that it is to be started with.
     */
    virtual std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &arguments) const = 0;
    /**
     * Is told where a program that was admitted couldn't be started all the same, such as for want of memory. Whoever
     * asked for it goes on without.
     * @param reason in English
     */
    virtual void startFailed(const QString &program, const QString &reason) const;
    /**
     * The 32-bit exit code of a process of this program that has ended by itself.
     * @param reported what QProcess says of it, which some systems cut to 8 bits
     */
    virtual int exitCode(qint64 processId, int reported) const = 0;

    /** Whether this process has an elevated token; false where that is unknown. */
    virtual bool isElevated() const = 0;
    /**
     * Keeps other instances of this program from changing the same PC for as long as there is what it gives; null where
     * one of them keeps this one out. An instance that has ended, in whatever way, keeps nobody out, and nobody is kept
     * out where the system doesn't say. Any thread.
     */
    virtual std::shared_ptr<void> lockOthersOut() const = 0;
    /** Starts a program through the shell and doesn't wait. A refusal or failure is silent. */
    virtual void shellExecute(const ShellStart &start) const = 0;

    /**
     * The names of the programs of the running processes, one for each process, in the system's order and spelling. A
     * process that this one may not look into is left out, and so are all after the first 1024.
     */
    virtual QStringList processNames() const = 0;

    /** Reads a string of a DLL, given by its Windows path, without running code of the DLL. */
    virtual DllString dllString(const QString &windowsPath, uint id) const = 0;
    /** Reads properties of all instances of a class in ROOT\CIMV2. A failure ends the query with what was read by then.
     */
    virtual WmiAnswer queryWmi(const QString &className, const QStringList &properties) const = 0;

    /**
     * Whether the volume that a Windows path lies on loses time by seeking, as a disk that turns does. Nothing where
     * that is unknown.
     */
    virtual std::optional<bool> seekPenalty(const QString &windowsPath) const = 0;
    /** Number of the color space of the first output of the first display adapter; nothing where a step there fails. */
    virtual std::optional<int> colorSpace() const = 0;
    /** Width and height of the main screen in pixels; 0 and 0 where there is none. */
    virtual QSize screenSize() const = 0;

    // How the user wants windows to look, and how the system draws their frames.

    /** Whether a contrast theme is on; false where that is unknown. */
    virtual bool hasContrastTheme() const;
    /** How large the user wants texts, in per cent of their usual size: 100 to 225. 100 where that is unknown. */
    virtual int textScale() const;
    /**
     * Has the title bar of a window drawn dark or light. Nothing happens where the system can't.
     * @param window its handle, as QWidget::winId() has it
     */
    virtual void setTitleBarDark(quintptr window, bool dark) const;

    /** The present reading; zeros where it fails. Readings never go back. */
    virtual ProcessorTimes processorTimes() const = 0;
    /** Identifiers of the running processes, at most 1024; 0 is the idle process. Empty where they are unknown. */
    virtual QList<quint32> processIds() const = 0;
    /** Threads of all processes; 0 where they are unknown. */
    virtual int threadCount() const = 0;
    /** Physical memory that is free, in bytes; 0 where it is unknown. */
    virtual quint64 freeMemory() const = 0;
    /** The present figures. */
    virtual RootDrive rootDrive() const = 0;

    /**
     * Pauses the calling thread. Real in use, shortened or only recorded on a rehearsal machine. Ends early when the
     * calling QThread is asked to be interrupted.
     */
    virtual void pause(int milliseconds) const = 0;

    /**
     * Changes that belong together begin and end; @p what names them, in English, for lists of them. May be nested,
     * and then the outer one counts. For those who take notes of changes; ChangeSession calls both.
     */
    virtual void beginChanges(const QString &what) const;
    /** @param finished false where they were broken off */
    virtual void endChanges(bool finished) const;
    /**
     * Why something wasn't done since the last call that the system itself wouldn't have refused, such as a change that
     * couldn't be noted; the first reason, in English. Empty where there is none.
     */
    virtual QString takeFailure() const;
};

/** Changes that belong together, as long as the object; they count as finished where it doesn't go by an exception. */
class ChangeSession
{
public:
    explicit ChangeSession(const QString &what);
    ~ChangeSession();
    Q_DISABLE_COPY_MOVE(ChangeSession)

private:
    int exceptions_;
};

/** The platform in force. main() sets it before anything else; without one the program ends. */
Platform &platform();
void setPlatform(std::unique_ptr<Platform> newPlatform);
/** Takes the platform in force away, for one that is to stand around it. Nothing may be asked meanwhile. */
std::unique_ptr<Platform> takePlatform();

/** The number of the calling thread's last error in a call into the system, as the system counts them. */
quint32 lastSystemError();
