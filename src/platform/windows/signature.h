// SPDX-License-Identifier: GPL-3.0-or-later
// Who vouches for a program.

#pragma once

class HeldFile;

/**
 * Whether the file carries a valid signature of Microsoft's own, down to a root that is Microsoft's: a certificate with
 * that name alone anyone can make, and any program of the user can have his PC trust its maker.
 */
bool isSignedByMicrosoft(const HeldFile &file);
