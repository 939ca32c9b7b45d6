// SPDX-License-Identifier: GPL-3.0-or-later
// A value as the registry holds it.

#pragma once

#include <QByteArray>
#include <QString>

/** Types of registry values, numbered as the registry does. */
enum class RegistryType : quint32 {
    None = 0,
    String = 1,
    ExpandString = 2,
    Binary = 3,
    DWord = 4,
    DWordBigEndian = 5,
    Link = 6,
    MultiString = 7,
    ResourceList = 8,
    FullResourceDescriptor = 9,
    ResourceRequirementsList = 10,
    QWord = 11,
};

/** One value as the registry holds it: texts are UTF-16LE with their closing zero, numbers little-endian. */
struct RegistryValue
{
    QString name; ///< empty for the unnamed value
    RegistryType type = RegistryType::String;
    QByteArray data;

    friend bool operator==(const RegistryValue &, const RegistryValue &) = default;
};
