// SPDX-License-Identifier: GPL-3.0-or-later
// The state of a rehearsal machine, for its way back.

#pragma once

#include "platform/systemstate.h"

class Machine;

class MachineSystem final : public SystemState
{
public:
    /** @param machine the one behind the seam; must outlive the object */
    explicit MachineSystem(Machine &machine)
        : machine_(machine)
    {
    }

    const Machine &machine() const { return machine_; }

    KeyContent key(const QString &path) const override;
    std::optional<QList<ServiceReport>> serviceReports() const override;
    QStringList namesOfUser() const override { return {}; }
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
    Machine &machine_;
};
