// SPDX-License-Identifier: GPL-3.0-or-later
// A value as the registry holds it, and one opened key.

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

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

/**
 * A key of the registry and what lies below it, with the operations and the manners of QSettings' native format.
 *
 * - Look-ups ignore case; a name keeps the case it was first written with.
 * - In a name "/" separates levels, and a backslash is an ordinary character, which the registry stores as "/".
 * - The last component "Default" or "." means the unnamed value; listings show it as ".".
 * - The key is made at the first use if it is missing. Without the right to write, and on a path that doesn't begin
 * with a hive's name, reads give their defaults and writes and removals do nothing, silently.
 */
class RegistryKey
{
public:
    RegistryKey() = default;
    virtual ~RegistryKey() = default;
    Q_DISABLE_COPY_MOVE(RegistryKey)

    /**
     * The value of that name: texts for REG_SZ and REG_EXPAND_SZ (not expanded), a signed int for REG_DWORD, a 64-bit
     * integer for REG_QWORD, a list of texts for REG_MULTI_SZ, a text of size/2 code units for REG_BINARY. A missing
     * value gives @p fallback, the empty name an invalid variant.
     */
    virtual QVariant value(const QString &name, const QVariant &fallback = {}) const = 0;
    /** Writes int and uint as REG_DWORD, 64-bit integers as REG_QWORD, lists of texts as REG_MULTI_SZ, all else REG_SZ.
     */
    virtual void setValue(const QString &name, const QVariant &value) = 0;
    /**
     * Removes the value of that name and the whole subkey of that name; an absent name is silent. A name of nothing but
     * "/", or of nothing at all, would mean the key itself, with all that is in it: it removes nothing.
     */
    virtual void remove(const QString &name) = 0;
    virtual bool contains(const QString &name) const = 0;

    /**
     * The key's own value of just that name, as childKeys() lists it: "/" in it separates nothing, and "Default" is a
     * name like any other. An invalid variant where there is none. The unnamed value has no such name.
     */
    virtual QVariant ownValue(const QString &name) const = 0;
    /** Writes a text as REG_SZ to the value that is named likewise. */
    virtual void setOwnValue(const QString &name, const QString &text) = 0;
    /** Removes the value that is named likewise, and nothing else. */
    virtual void removeOwnValue(const QString &name) = 0;

    /** All values at and below the key, "/" between levels, sorted by UTF-16 code unit. */
    virtual QStringList allKeys() const = 0;
    /** The key's own values, sorted by UTF-16 code unit. */
    virtual QStringList childKeys() const = 0;
    /** The direct subkeys, also those without values, sorted by UTF-16 code unit. */
    virtual QStringList childGroups() const = 0;

    /**
     * Returns when what was written is on the disk, so that a power cut can't take it back; failures are silent. A key
     * whose writes are safe from the end of this process needn't do more.
     */
    virtual void flush() {}

    /** Goes down to a subkey; names are relative to it until endGroup(). */
    virtual void beginGroup(const QString &name) = 0;
    virtual void endGroup() = 0;
};

// Between texts or numbers and the data of values.

QByteArray registryText(const QString &text);
QByteArray registryTexts(const QStringList &texts);
QString textOf(const QByteArray &data);
QStringList textsOf(const QByteArray &data);
QByteArray registryDWord(quint32 number);
QByteArray registryQWord(quint64 number);
