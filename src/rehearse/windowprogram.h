// SPDX-License-Identifier: GPL-3.0-or-later
// The program with the window, which opens on a machine.

#pragma once

#include <QProcessEnvironment>

/** Its path; a Failure where it is missing beside this program. */
QString windowProgram();
/** The environment that lets it open on a machine, given by its folder. */
QProcessEnvironment windowEnvironment(const QString &machine, bool elevated);
