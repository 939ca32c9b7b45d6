// SPDX-License-Identifier: GPL-3.0-or-later

#include "attributewords.h"

#include "machine/database.h"
#include "machine/machine.h"

#include <QFileInfo>

namespace {

constexpr qsizetype atOnce = 5000;
/** More than whoever gathers what a walk writes keeps back. */
constexpr qsizetype mostPresent = 2 * atOnce;
// INVALID_FILE_ATTRIBUTES, which no file takes.
constexpr quint32 noWord = 0xffffffff;

} // namespace

std::optional<quint32> AttributeWords::read(const QString &file)
{
    const std::lock_guard lock(lock_);
    asked_ = walks_ > 0;
    const std::optional<quint32> word = wordOf(file);
    if (walks_ == 0 || present_.size() >= mostPresent)
        present_.clear();
    if (word)
        present_.insert(file);
    return word;
}

std::optional<quint32> AttributeWords::wordOf(const QString &file)
{
    if (const auto ahead = ahead_.constFind(file); ahead != ahead_.cend()) {
        const std::optional<quint32> word = *ahead;
        ahead_.erase(ahead);
        return word;
    }
    if (waiting_.contains(file))
        store();
    return machine_.attributesOfFile(file);
}

void AttributeWords::readAhead(const QList<WalkEntry> &found)
{
    const std::lock_guard lock(lock_);
    ahead_.clear();
    if (!asked_)
        return;
    const Database::Snapshot together(machine_.database());
    for (const WalkEntry &entry : found) {
        if (!waiting_.contains(entry.path))
            ahead_.insert(entry.path, machine_.attributesOfFile(entry.path));
    }
}

void AttributeWords::write(const QString &file, quint32 word)
{
    const std::lock_guard lock(lock_);
    ahead_.remove(file);
    if (word == noWord || (!present_.remove(file) && !QFileInfo::exists(file)))
        return;
    waiting_.insert(file, word);
    if (walks_ == 0 || waiting_.size() >= atOnce)
        store();
}

void AttributeWords::store()
{
    if (waiting_.isEmpty())
        return;
    try {
        Database::Transaction transaction(machine_.database());
        for (auto each = waiting_.cbegin(); each != waiting_.cend(); ++each)
            machine_.setAttributes(each.key(), each.value());
        transaction.commit();
    } catch (const MachineError &error) {
        qWarning("%s", qUtf8Printable(error.message));
    }
    waiting_.clear();
}

AttributeWords::Walk::Walk(AttributeWords &words)
    : words_(words)
{
    const std::lock_guard lock(words_.lock_);
    ++words_.walks_;
}

AttributeWords::Walk::~Walk()
{
    const std::lock_guard lock(words_.lock_);
    words_.store();
    if (--words_.walks_ > 0)
        return;
    words_.asked_ = false;
    words_.ahead_.clear();
    words_.present_.clear();
}
