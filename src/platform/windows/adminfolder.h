// SPDX-License-Identifier: GPL-3.0-or-later
// Folders and files that nobody has made but administrators, and a folder that only they may open.

#pragma once

#include "systemobjects.h"

#include <accctrl.h>

/** Whether an open object is owned by the administrators or the system: nobody else can make one that is. */
bool isOfAdministrators(HANDLE object, SE_OBJECT_TYPE type);

/**
 * Whether a file or folder that is there may be somebody else's: it is a link in any form, or its owner is neither the
 * administrators nor the system, or can't be read. The owner counts for nothing where the folder above is the user's
 * own, who can put there what he likes.
 */
bool isForeign(const QString &path);

/**
 * Makes a folder whose owner are the administrators, and in which nobody has any right but them and the system; one
 * that is there and not foreign gets these rights again.
 * @param reader the SID of somebody who may read what is in it; empty: nobody
 * @return while there is it, nobody moves the folder; null where it is foreign or can't be made
 */
std::shared_ptr<void> holdAdminFolder(const QString &path, const QString &reader = {});

/**
 * Whether nobody but administrators and the system can change a program, or put another one in its place: no other
 * account has a right to write to it or to the folder that it is in, and none owns or may rename a folder above. False
 * where that is unknown.
 */
bool isForAdministratorsAlone(const QString &program);

/** "C:\ProgramData", by the system's own answer; empty where there is none. */
QString programDataFolder();
