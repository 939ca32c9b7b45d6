// SPDX-License-Identifier: GPL-3.0-or-later
// The platform under which a PC is captured: nothing that goes through it can change the PC.

#pragma once

#include "platform/forwardingplatform.h"

#include <QMap>

/** A DLL by the path that it was first asked for with, and what was found in it. */
struct AskedDll
{
    QString path;
    QMap<uint, QString> strings;
};

/**
 * Keys read as empty and take nothing, since opening a key would make it; attributes and the shell are left alone. It
 * remembers which files and which strings of DLLs the logic asked for.
 */
class ReadingPlatform final : public ForwardingPlatform
{
public:
    using ForwardingPlatform::ForwardingPlatform;

    /** Windows paths, in the order in which they were first asked for. */
    QStringList askedFiles() const { return files_; }
    /** DLLs that could be opened, by their path in upper case. */
    const QMap<QString, AskedDll> &askedDlls() const { return dlls_; }

    std::unique_ptr<RegistryKey> openKey(const QString &path) const override;
    QString hostPath(const QString &windowsPath) const override;
    bool isOnFixedDrive(const QString &windowsPath) const override;
    bool writeFile(const QString &, const QString &, const QByteArray &, IfThere) const override { return false; }
    bool appendLine(const QString &, const QString &, const QString &) const override { return false; }
    DllString dllString(const QString &windowsPath, uint id) const override;
    void setFileAttributes(const QString &, quint32) const override {}
    void shellExecute(const ShellStart &) const override {}

private:
    mutable QStringList files_;
    mutable QMap<QString, AskedDll> dlls_;
};
