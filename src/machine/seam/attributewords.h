// SPDX-License-Identifier: GPL-3.0-or-later
// Attribute words of the files of a rehearsal machine, quick enough for a walk over all of them.

#pragma once

#include "platform/platform.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <mutex>
#include <optional>

class Machine;

/**
 * Words that are written during a walk go into the database some thousands at a time, and the last ones when the walk
 * is over or broken off; all others at once. Any thread.
 */
class AttributeWords
{
public:
    explicit AttributeWords(Machine &machine)
        : machine_(machine)
    {
    }

    /** By host path; nothing where there is no such file. Throws MachineError. */
    std::optional<quint32> read(const QString &file);
    /**
     * Has the words of what a walk has found ready before it asks for each: one lock of the database serves them all.
     * Does nothing in a walk that hasn't asked for a word yet. Throws MachineError.
     */
    void readAhead(const QList<WalkEntry> &found);
    /** A file that isn't there is passed over. */
    void write(const QString &file, quint32 word);

    /** A walk that is under way as long as the object. */
    class Walk
    {
    public:
        explicit Walk(AttributeWords &words);
        ~Walk();
        Q_DISABLE_COPY_MOVE(Walk)

    private:
        AttributeWords &words_;
    };

private:
    std::optional<quint32> wordOf(const QString &file);
    void store();

    Machine &machine_;
    std::mutex lock_;
    QHash<QString, quint32> waiting_;
    QHash<QString, std::optional<quint32>> ahead_; ///< read and not yet asked for
    QSet<QString> present_; ///< what a walk has read and not yet written, else the file read last
    int walks_ = 0;
    bool asked_ = false; ///< whether a walk has read a word
};
