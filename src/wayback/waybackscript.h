// SPDX-License-Identifier: GPL-3.0-or-later
// A way back as files: what a registry script and commands of the system's own tools bring back.

#pragma once

#include "machine/compare/diffrow.h"
#include "machine/source/regfile.h"

#include <functional>
#include <optional>

/** What has to be put where, because a command can't say it. */
struct WayBackFile
{
    QString name; ///< in the folder of the files
    QByteArray content;
};

struct WrittenWayBack
{
    QStringList files;
    QStringList leftOut; ///< as in WayBackScript
};

/**
 * OneDrive's installer, by its path below the folder of Windows: one of 32 bits or, alone since Windows 11 24H2, one of
 * 64.
 * @param exists whether there is a file, by its path below that folder
 */
QString oneDriveSetup(const std::function<bool(const QString &path)> &exists);

/** The steps of a way back, in the order in which they are told. Paths are Windows paths. */
class WayBackScript
{
public:
    /** @param filesFolder how the commands call the folder of the files */
    explicit WayBackScript(QString filesFolder);

    const QList<RegistryEdit> &registry() const { return registry_; }
    /** These as a file of the registry editor. */
    QByteArray registryScript() const;
    /** For the command prompt. */
    const QStringList &commands() const { return commands_; }
    const QList<WayBackFile> &files() const { return files_; }
    /** What can't be brought back so, since its name would say something else in a script or a command; printable. */
    const QStringList &leftOut() const { return leftOut_; }

    void edit(const RegistryEdit &edit);
    /** Leaves something else out. */
    void leaveOut(const QString &what);

    /** Whether Windows can have such a file, so that commands can be about it; it is left out where not. */
    bool takesFile(DiffKind kind, const QString &path);
    // The next ones are about a file that is taken.

    /** @param name in its folder */
    void renameFile(const QString &path, const QString &name);
    void makeFolder(const QString &path);
    void removeFolder(const QString &path);
    void removeFile(const QString &path);
    void putContent(const QString &path, const QByteArray &content);
    void setAttributes(const QString &path, quint32 word);
    /** @param rights as icacls grants them; empty: those that the folder hands down. */
    void setRights(const QString &path, const QString &rights);
    void setOwner(const QString &path, const QString &owner);
    /** @param descriptor as a security descriptor in words */
    void restoreRights(const QString &path, const QString &descriptor);

    void switchHibernation(bool on);
    void installPackage(const QString &name);
    void removePackage(const QString &name);
    /** @param setup by oneDriveSetup() */
    void installOneDrive(const QString &setup);
    void removeOneDrive(const QString &setup);
    /** @param value nothing: the option goes */
    void setBootOption(const QString &name, const std::optional<QString> &value);
    void enableTask(const QString &path, bool enabled);
    void startService(const QString &name, bool running);

    /**
     * Writes the registry script as @p file, as the registry editor likes it, and beside it a text of the commands and
     * a folder of the files, both named after it. Throws MachineError.
     * @param purpose the first line of the text, without its "rem"
     */
    WrittenWayBack write(const QString &file, const QString &purpose) const;

private:
    void give(const QString &what, QString command, const QStringList &texts);
    void givePackage(const QString &name, const QString &command);

    QString filesFolder_;
    QList<RegistryEdit> registry_;
    QStringList commands_;
    QStringList leftOut_;
    QList<WayBackFile> files_;
};
