// SPDX-License-Identifier: GPL-3.0-or-later
// The component store: the folder WinSxS.

#pragma once

#include <QString>

/**
 * Removes the folders of components of which a higher version is there: those named
 * <architecture>_<name>_<token>_<version>_<language>_<hash> that differ in nothing but version and hash.
 * @return how many were removed
 */
int removeSupersededComponents(const QString &storeFolder);
