// SPDX-License-Identifier: GPL-3.0-or-later

#include "nativecontract.h"

#include <windows.h>

namespace {

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

struct KeyCloser
{
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

/** Splits a path after its hive. */
std::pair<HKEY, QString> hiveOf(const QString &path)
{
    const QString hive = path.section(u'\\', 0, 0);
    const QString below = path.section(u'\\', 1);
    if (hive == QLatin1StringView("HKEY_CURRENT_USER"))
        return {HKEY_CURRENT_USER, below};
    if (hive == QLatin1StringView("HKEY_LOCAL_MACHINE"))
        return {HKEY_LOCAL_MACHINE, below};
    qFatal("no hive of the contract tests: %s", qUtf8Printable(hive));
}

Key openKey(const QString &path)
{
    const auto [hive, below] = hiveOf(path);
    HKEY key = nullptr;
    return Key(RegOpenKeyExW(hive, wide(below), 0, KEY_READ, &key) == ERROR_SUCCESS ? key : nullptr);
}

} // namespace

void ContractPlatform::writeRaw(const QString &keyPath, const RegistryValue &value) const
{
    const auto [hive, below] = hiveOf(keyPath);
    HKEY made = nullptr;
    if (RegCreateKeyExW(hive, wide(below), 0, nullptr, 0, KEY_WRITE, nullptr, &made, nullptr) != ERROR_SUCCESS)
        qFatal("can't make %s", qUtf8Printable(keyPath));
    const Key key(made);
    // A zero that happens to follow a text would be taken for its end, and be written too.
    const QByteArray guarded = value.data + QByteArray(2, 1);
    const LSTATUS status =
        RegSetValueExW(key.get(), wide(value.name), 0, static_cast<DWORD>(value.type),
                       reinterpret_cast<const BYTE *>(guarded.constData()), static_cast<DWORD>(value.data.size()));
    if (status != ERROR_SUCCESS)
        qFatal("can't write %s", qUtf8Printable(value.name));
}

std::optional<RegistryValue> ContractPlatform::readRaw(const QString &keyPath, const QString &name) const
{
    const Key key = openKey(keyPath);
    DWORD type = 0;
    DWORD size = 0;
    if (!key || RegQueryValueExW(key.get(), wide(name), nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    QByteArray data(static_cast<qsizetype>(size), 0);
    if (RegQueryValueExW(key.get(), wide(name), nullptr, &type, reinterpret_cast<BYTE *>(data.data()), &size)
        != ERROR_SUCCESS)
        return std::nullopt;
    return RegistryValue{name, static_cast<RegistryType>(type), data};
}

bool ContractPlatform::hasKey(const QString &keyPath) const
{
    return openKey(keyPath) != nullptr;
}
