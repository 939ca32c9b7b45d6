// SPDX-License-Identifier: GPL-3.0-or-later

#include "readingplatform.h"

#include "machine/registrystore.h"

namespace {

class EmptyKey final : public RegistryKey
{
public:
    QVariant value(const QString &name, const QVariant &fallback) const override
    {
        return name.isEmpty() ? QVariant() : fallback;
    }
    void setValue(const QString &, const QVariant &) override {}
    void remove(const QString &) override {}
    QVariant ownValue(const QString &) const override { return {}; }
    void setOwnValue(const QString &, const QString &) override {}
    void removeOwnValue(const QString &) override {}
    bool contains(const QString &) const override { return false; }
    QStringList allKeys() const override { return {}; }
    QStringList childKeys() const override { return {}; }
    QStringList childGroups() const override { return {}; }
    void beginGroup(const QString &) override {}
    void endGroup() override {}
};

} // namespace

std::unique_ptr<RegistryKey> ReadingPlatform::openKey(const QString &) const
{
    return std::make_unique<EmptyKey>();
}

QString ReadingPlatform::hostPath(const QString &windowsPath) const
{
    if (!files_.contains(windowsPath))
        files_.append(windowsPath);
    return ForwardingPlatform::hostPath(windowsPath);
}

bool ReadingPlatform::isOnFixedDrive(const QString &windowsPath) const
{
    const bool there = ForwardingPlatform::isOnFixedDrive(windowsPath);
    if (there && !files_.contains(windowsPath))
        files_.append(windowsPath);
    return there;
}

DllString ReadingPlatform::dllString(const QString &windowsPath, uint id) const
{
    const DllString string = ForwardingPlatform::dllString(windowsPath, id);
    if (string.loaded) {
        AskedDll &dll = dlls_[foldName(windowsPath)];
        if (dll.path.isEmpty())
            dll.path = windowsPath;
        if (string.text)
            dll.strings.insert(id, *string.text);
    }
    return string;
}
