// SPDX-License-Identifier: GPL-3.0-or-later

#include "nativeregistry.h"

std::pair<Key, LSTATUS> openExisting(const QString &path, REGSAM rights)
{
    const QString below = path.section(u'\\', 1);
    HKEY key = nullptr;
    const LSTATUS status =
        RegOpenKeyExW(hiveNamed(path.section(u'\\', 0, 0)), wide(below), 0, rights | KEY_WOW64_64KEY, &key);
    return {Key(status == ERROR_SUCCESS ? key : nullptr), status};
}

std::optional<RegistryValue> storedValue(HKEY key, const QString &name)
{
    DWORD type = REG_NONE;
    DWORD size = 0;
    QByteArray data;
    LSTATUS status = RegQueryValueExW(key, wide(name), nullptr, &type, nullptr, &size);
    do { // it may grow meanwhile
        data.resize(static_cast<qsizetype>(size));
        if (status == ERROR_SUCCESS || status == ERROR_MORE_DATA)
            status = RegQueryValueExW(key, wide(name), nullptr, &type, reinterpret_cast<BYTE *>(data.data()), &size);
    } while (status == ERROR_MORE_DATA);
    if (status != ERROR_SUCCESS)
        return std::nullopt;
    return RegistryValue{name, static_cast<RegistryType>(type), data.first(static_cast<qsizetype>(size))};
}

bool storeValue(HKEY key, const RegistryValue &value)
{
    // A zero that happens to follow a text would be taken for its end, and be stored too.
    const QByteArray guarded = value.data + QByteArray(2, 1);
    return RegSetValueExW(key, wide(value.name), 0, static_cast<DWORD>(value.type),
                          reinterpret_cast<const BYTE *>(guarded.constData()), static_cast<DWORD>(value.data.size()))
           == ERROR_SUCCESS;
}
