// SPDX-License-Identifier: GPL-3.0-or-later
// The state of the real PC, for its way back.

#pragma once

#include "platform/systemstate.h"
#include "windowsplatform.h"

/**
 * Whether the policies of 32-bit programs, HKEY_LOCAL_MACHINE\SOFTWARE\Wow6432Node\Policies, are another name of those
 * of all, as Windows has it since version 7; false where that can't be asked.
 */
bool arePoliciesShared();

/**
 * What only an administrator may read or put back is unknown or refused without the rights of one. Owner and rights
 * come as a security descriptor in the form of SDDL.
 */
class WindowsSystem final : public SystemState
{
public:
    KeyContent key(const QString &path) const override { return reader_.key(path); }
    std::optional<QList<ServiceReport>> serviceReports() const override { return reader_.serviceReports(); }
    QStringList namesOfUser() const override { return reader_.namesOfUser(); }
    bool hasKey(const QString &path) const override;
    std::optional<RegistryValue> value(const QString &key, const QString &name) const override;
    std::optional<bool> isTaskEnabled(const QString &path) const override;
    std::optional<QMap<QString, QString>> bootOptions() const override;
    std::optional<QByteArray> fileSecurity(const QString &windowsPath) const override;
    SecurityWords securityWords(const QByteArray &security) const override;
    QString windowsPath(const QString &hostPath) const override;

    bool setValue(const QString &key, const RegistryValue &value) override;
    bool removeValue(const QString &key, const QString &name) override;
    bool makeKey(const QString &path) override;
    bool removeEmptyKey(const QString &path) override;
    bool setFileSecurity(const QString &windowsPath, const QByteArray &security) override;

private:
    WindowsReader reader_;
};

/**
 * The options that bcdedit lists of one entry, by their lower-case names, with their values as it words them; nothing
 * where the text is no such list.
 */
std::optional<QMap<QString, QString>> bootOptionsIn(const QString &listing);
