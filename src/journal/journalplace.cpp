// SPDX-License-Identifier: GPL-3.0-or-later

#include "journalstore.h"

#include "machine/machineerror.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

// What SQLite keeps beside a database that is open, or was when its program ended; the file itself first.
const QStringList companions{u""_s, u"-wal"_s, u"-shm"_s};

/** What lies at a path, and not what it leads to. */
std::filesystem::file_type kindOf(const QString &path)
{
    std::error_code error;
    return std::filesystem::symlink_status(QFileInfo(path).filesystemFilePath(), error).type();
}

bool isThere(const QString &path)
{
    return kindOf(path) != std::filesystem::file_type::not_found;
}

bool isFree(const QString &path)
{
    return std::none_of(companions.cbegin(), companions.cend(),
                        [&path](const QString &each) { return isThere(path + each); });
}

bool rename(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    return !error;
}

bool isOurs(const QString &path, std::filesystem::file_type kind, ForeignRule isForeign)
{
    return !isThere(path) || (kindOf(path) == kind && (isForeign == nullptr || !isForeign(path)));
}

} // namespace

QString putAside(const QString &path, const QString &word)
{
    constexpr int mostTries = 10000;

    if (isFree(path))
        throw MachineError{u"%1: can't be made"_s.arg(QDir::toNativeSeparators(path))};
    QString aside;
    for (int number = 1; number <= mostTries && (aside.isEmpty() || !isFree(aside)); ++number)
        aside = u"%1.%2-%3"_s.arg(path, word).arg(number);
    for (const QString &each : companions) {
        if (isThere(path + each) && !rename(path + each, aside + each))
            throw MachineError{u"%1: can't be renamed"_s.arg(QDir::toNativeSeparators(path + each))};
    }
    return aside;
}

QString foreignText(const QString &path, const QString &newPath)
{
    return u"%1 wasn't made by this program. It has another name now: %2"_s.arg(QDir::toNativeSeparators(path),
                                                                                QDir::toNativeSeparators(newPath));
}

std::unique_ptr<JournalStore> openStore(const QString &file, Durability durability, ForeignRule isForeign,
                                        QStringList &told)
{
    using enum std::filesystem::file_type;

    const QString folder = QFileInfo(file).path();
    if (!isOurs(folder, directory, isForeign))
        told.append(foreignText(folder, putAside(folder, u"foreign"_s)));
    if (std::any_of(companions.cbegin(), companions.cend(),
                    [&](const QString &each) { return !isOurs(file + each, regular, isForeign); }))
        told.append(foreignText(file, putAside(file, u"foreign"_s)));
    try {
        return std::make_unique<JournalStore>(file, durability);
    } catch (const MachineError &error) {
        if (!error.damaged)
            throw;
    }
    told.append(u"The journal was damaged, and a new one has begun. The damaged one is kept: %1"_s.arg(
        QDir::toNativeSeparators(putAside(file, u"damaged"_s))));
    return std::make_unique<JournalStore>(file, durability);
}
