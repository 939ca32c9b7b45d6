// SPDX-License-Identifier: GPL-3.0-or-later
// What of a PC's registry the program reads or writes.

#pragma once

#include <QList>
#include <QStringList>

/** How much of a key is taken. */
enum class Reach {
    Named,          ///< some of its own values
    Own,            ///< all of its own values
    Tree,           ///< all of it
    NamedOfSubkeys, ///< some values of each direct subkey
};

struct CaptureKey
{
    QString path;
    Reach reach = Reach::Named;
    QStringList values{}; ///< of the named reaches
};

/** All keys but those of network interfaces and display adapters, which go by rules of their own. */
QList<CaptureKey> captureKeys();
