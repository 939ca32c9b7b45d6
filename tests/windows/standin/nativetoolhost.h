// SPDX-License-Identifier: GPL-3.0-or-later
// The Windows that this program runs on, for stand-ins of the stock tools.

#pragma once

#include "rehearsal/stocktool/toolhost.h"

/** Acts on the real registry. Which services run is kept in a key of the tests: no service is started or stopped. */
class NativeToolHost final : public ToolHost
{
public:
    bool isElevated() const override { return true; }
    std::unique_ptr<RegistryKey> openKey(const QString &path) const override;
    QString resolveText(const QString &text) const override { return text; }
    QString hostPath(const QString &windowsPath) const override { return windowsPath; }
    std::optional<bool> isRunning(const QString &service) const override;
    void setRunning(const QString &service, bool running) override;
    QStringList runningServices() const override;

private:
    std::unique_ptr<RegistryKey> states() const;
};
