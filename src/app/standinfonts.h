// SPDX-License-Identifier: GPL-3.0-or-later
// Fonts for a window that isn't on Windows.

#pragma once

#include <QApplication>
#include <QFont>

/** Gives the fonts of Windows stand-ins of much the same width. Needs the application object. */
inline void useStandInFonts()
{
    QFont::insertSubstitution(QStringLiteral("Segoe UI"), QStringLiteral("Open Sans"));
    QFont::insertSubstitution(QStringLiteral("Lucida Console"), QStringLiteral("DejaVu Sans Mono"));
    QApplication::setFont(QFont(QStringLiteral("Segoe UI"), 9));
}
