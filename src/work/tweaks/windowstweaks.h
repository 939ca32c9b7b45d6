// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the Windows group that are more than values.

#pragma once

#include <QString>

/** Brings the context menu of Windows 10 back, or the new one. */
void setClassicMenuTweak(bool apply);
/** Takes the search program out of action by renaming it, or brings it back. */
void setSearchTweak(bool apply, const QString &winName);

/**
 * The user's own instance of the cloud backup service, with the name of the last of its values behind it unless that is
 * Type; "null" where there is none.
 */
QString findCloudBackupService();
/** Disables the service and its scheduled tasks, or enables them. A name that isn't the service's does nothing. */
void setCloudBackupTweak(bool apply, const QString &service);
