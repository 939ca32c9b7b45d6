// SPDX-License-Identifier: GPL-3.0-or-later
// Which theme is stored, and the look of those that are the program's own: palettes and style sheets.

#pragma once

#include <QPalette>
#include <QString>

/** The stored theme; "dark" where none is stored. */
QString storedTheme();

/** Whether a stored text asks for the dark theme: the word itself, or the hint that early versions stored. */
bool meansDark(const QString &stored);

QPalette darkPalette();
QPalette lightPalette();

/** Colours of the buttons below a page's list. */
struct ButtonColors
{
    QColor background;
    QColor hover;
    QColor text;
    QColor link;
};

/** The flat buttons that switch a page's view. */
QString viewButtonStyle(const ButtonColors &colors);
/** All other buttons of the pages. */
QString actionButtonStyle(const ButtonColors &colors);

/** What a combo box wears on Windows 10 at the moment in which the light theme is chosen. */
QString plainLightComboBoxStyle(const QString &resourceFolder);
QString lightComboBoxStyle(const QString &resourceFolder, const QColor &link);
QString lightCheckBoxStyle(bool onWindows10, const QColor &link);
/** The log's scroll bar in the light theme, where it would take over the log's frame. */
QString lightScrollBarStyle();
QString tableSelectionStyle(const QString &background);

/** Colours of a popup menu. */
struct MenuColors
{
    QColor background;
    QColor border;
    QColor hover;
};
QString menuStyle(const MenuColors &colors);

/** Which of the two popup menus; in the light theme they differ. */
enum class PopupMenu { Programs, Context };
/** The style of a popup menu by the theme that is stored; empty for the system's own. */
QString popupMenuStyle(PopupMenu menu);
