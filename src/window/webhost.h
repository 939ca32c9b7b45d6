// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own place in the web.

#pragma once

#include <QString>

/** Name of the program's web host; the build chooses it. */
QString webHost();

/** The form's texts, in every language, name a reserved host. Gives the text with the real one in its place. */
QString withWebHost(QString text, const QString &host = webHost());
