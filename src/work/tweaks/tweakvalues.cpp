// SPDX-License-Identifier: GPL-3.0-or-later

#include "tweakvalues.h"

#include "platform/platform.h"

namespace {

void writeValue(RegistryKey &key, const QString &name, const TweakData &data)
{
    if (const int *number = std::get_if<int>(&data))
        key.setValue(name, *number);
    else if (const auto *text = std::get_if<QLatin1StringView>(&data))
        key.setValue(name, QString(*text));
    else
        key.remove(name);
}

} // namespace

void writeTweakValues(std::span<const TweakValue> rows, quint32 id, bool apply)
{
    std::unique_ptr<RegistryKey> key;
    QLatin1StringView opened;
    for (const TweakValue &row : rows) {
        const TweakData &data = apply ? row.apply : row.reset;
        if (row.id != id || std::holds_alternative<NotTouched>(data))
            continue;
        if (!key || opened != row.key) {
            key = platform().openKey(row.key);
            opened = row.key;
        }
        writeValue(*key, row.name, data);
    }
}
