// SPDX-License-Identifier: GPL-3.0-or-later
// What the way back needs of a system: its state, read without a change and put back exactly.

#pragma once

#include "systemreader.h"

#include <QMap>

/** Owner and rights of a file, as icacls takes them. */
struct SecurityWords
{
    QString owner;
    QString rights;     ///< to be granted; empty: those that the folder hands down
    QString descriptor; ///< in place of rights, in the words of a security descriptor ("D:PAI(A;;FA;;;SY)"); or empty
};

/** What no stock tool puts back to the last byte is put back here, and refused where this process lacks the rights. */
class SystemState : public SystemReader
{
public:
    virtual bool hasKey(const QString &path) const = 0;
    /** With type and bytes; nothing where the key or the value is missing. */
    virtual std::optional<RegistryValue> value(const QString &key, const QString &name) const = 0;
    /** Whether a scheduled task, by its path with its leading backslash, is enabled; nothing where there is none. */
    virtual std::optional<bool> isTaskEnabled(const QString &path) const = 0;
    /** The options of the running system's boot entry by their lower-case names; nothing where they can't be read. */
    virtual std::optional<QMap<QString, QString>> bootOptions() const = 0;
    /** Owner and rights of a file, in a form that only setFileSecurity() has to understand; nothing without the file.
     */
    virtual std::optional<QByteArray> fileSecurity(const QString &windowsPath) const = 0;

    /** What fileSecurity() has told, in words. */
    virtual SecurityWords securityWords(const QByteArray &security) const = 0;

    /** The Windows path of a file, given by its host path. */
    virtual QString windowsPath(const QString &hostPath) const = 0;

    // Each says whether it was done.

    /** Makes the key where it is missing. */
    virtual bool setValue(const QString &key, const RegistryValue &value) = 0;
    virtual bool removeValue(const QString &key, const QString &name) = 0;
    virtual bool makeKey(const QString &path) = 0;
    /** Removes a key that holds neither values nor keys; one that does stays. */
    virtual bool removeEmptyKey(const QString &path) = 0;
    virtual bool setFileSecurity(const QString &windowsPath, const QByteArray &security) = 0;
};
