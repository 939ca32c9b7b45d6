// SPDX-License-Identifier: GPL-3.0-or-later
// The attribute that excludes files from content indexing.

#include "platform/platform.h"
#include "ssdtweaks.h"
#include "work/interruption.h"

namespace {

constexpr quint32 systemBit = 0x4;
constexpr quint32 notIndexedBit = 0x2000;

bool isSystemEntry(quint32 word)
{
    return word != invalidAttributes && (word & systemBit) != 0;
}

} // namespace

void RemoveIndexedAttrib(const QString &path, bool clear)
{
    // A walk names a folder right before what is in it, so one beginning is enough to know what to leave out.
    QString leftOut;
    walkFolder(path, [&](const WalkEntry &entry) {
        if (entry.path.isEmpty() || (!leftOut.isEmpty() && entry.path.startsWith(leftOut)))
            return;
        const quint32 word = platform().fileAttributes(entry.path);
        if (isSystemEntry(word)) {
            leftOut = entry.path + u'/';
            return;
        }
        // The invalid word of a file that can't be read is handed on, too: the system refuses it.
        platform().setFileAttributes(entry.path, clear ? word & ~notIndexedBit : word | notIndexedBit);
    });
}
