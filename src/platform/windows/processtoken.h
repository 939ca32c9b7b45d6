// SPDX-License-Identifier: GPL-3.0-or-later
// Who this process is, by its token.

#pragma once

#include <QStringList>

/** False where the token can't be read. */
bool isElevatedProcess();

/** An account as names of it are shown: "DOMAIN\user" without the backslash between them. */
struct Account
{
    QString domain;
    QString name;
};

/** The user of this process; empty where the system doesn't know. */
Account userOfProcess();

/** The SID of the user of this process, as text; empty where the system doesn't know. */
QString sidOfUser();

/** Whether the user of this process is the one who is signed in at its session; true where the system doesn't know. */
bool isUserOfSession();

/** The full name of the user of this process, and the address of his account in a directory; those that there are. */
QStringList shownNamesOfUser();
