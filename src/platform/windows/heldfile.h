// SPDX-License-Identifier: GPL-3.0-or-later
// Files that stay as they are while they are looked at and used, and who vouches for them.

#pragma once

#include "systemobjects.h"

#include <QByteArray>

#include <optional>

/**
 * The place of a file by its own name, whatever links led there: "C:\folder\file". Empty where there is no such file,
 * or it isn't on a drive of this PC.
 */
QString placeOfFile(const QString &file);

/** A file that nobody writes to, moves or deletes while the object lives. */
class HeldFile
{
public:
    explicit HeldFile(const QString &file);

    /** As placeOfFile() says; empty where the file can't be held. */
    const QString &place() const { return place_; }
    HANDLE handle() const { return handle_.get(); }
    /** Nothing where it can't be read, or has more bytes than @p most. */
    std::optional<QByteArray> read(DWORD most) const;

private:
    Handle handle_;
    QString place_;
};

/**
 * Whether the file carries a valid signature of Microsoft's own, down to a root that is Microsoft's: a certificate with
 * that name alone anyone can make, and any program of the user can have his PC trust its maker.
 */
bool isSignedByMicrosoft(const HeldFile &file);
