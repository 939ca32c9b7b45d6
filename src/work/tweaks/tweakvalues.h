// SPDX-License-Identifier: GPL-3.0-or-later
// Tweaks that are nothing but registry values: rows of a table.

#pragma once

#include <QLatin1StringView>

#include <span>
#include <variant>

/** The value is removed. */
struct Deleted
{
};
/** The form leaves the value alone. */
struct NotTouched
{
};
/** What a value comes to: a number is stored as REG_DWORD, a text as REG_SZ. */
using TweakData = std::variant<int, QLatin1StringView, Deleted, NotTouched>;

/** One value of one tweak, with its path, name and case exactly as they are written. */
struct TweakValue
{
    quint32 id;
    QLatin1StringView key;
    QLatin1StringView name;
    TweakData apply;
    TweakData reset;
};

/** Writes the values of one tweak, in the table's order, without a look at what was there. Refusals are silent. */
void writeTweakValues(std::span<const TweakValue> rows, quint32 id, bool apply);

/** The plain values of each group. */
std::span<const TweakValue> ssdValues();
std::span<const TweakValue> gamingValues();
std::span<const TweakValue> windowsValues();
/** The values of the telemetry tweak, all of one id. */
std::span<const TweakValue> telemetryValues();
