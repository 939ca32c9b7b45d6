// SPDX-License-Identifier: GPL-3.0-or-later

#include "themestyles.h"

#include "theme.h"

using namespace Qt::StringLiterals;

QString viewButtonStyle(const ButtonColors &colors)
{
    return u"QPushButton { background-repeat: no-repeat; background-position: center; border-radius: 6px; text-align: "
           "center; background-color: "_s
           + colors.background.name() + u"; color: "_s + colors.text.name()
           + u"; }QPushButton:hover { background-color: "_s + colors.hover.name() + u"; color: "_s + colors.link.name()
           + u";}QPushButton:selected { color: "_s + colors.link.name() + u"; }"_s;
}

QString actionButtonStyle(const ButtonColors &colors)
{
    return u"QPushButton { background-color: "_s + colors.background.name()
           + u"; border-radius: 6px; }QPushButton:hover  { background-color: "_s + colors.hover.name()
           + u"; border-radius: 6px; }QPushButton:selected  { background-color: "_s + colors.hover.name()
           + u"; border-radius: 6px; }"_s;
}

QString plainLightComboBoxStyle(const QString &resourceFolder)
{
    return u"QComboBox { border-radius: 6px; padding-left: 12px; background: white; color: black; "
           "}QComboBox::drop-down  { border: 0px; background: transparent; padding-right: 6px; "
           "}QComboBox::down-arrow  { image:url("_s
           + resourceFolder + u"/img/dropdown.png); }"_s;
}

QString lightComboBoxStyle(const QString &resourceFolder, const QColor &link)
{
    return plainLightComboBoxStyle(resourceFolder) + u"QListView { background-color: "_s + QColor(248, 248, 248).name()
           + u"; border-radius: 6px; border: 1px solid "_s + QColor(224, 224, 224).name()
           + u"; }QListView::item { padding: 2px; background: transparent; }QListView::item:hover { "
             "background-color: "_s
           + QColor(230, 230, 230).name()
           + u"; border-radius: 6px; border: none; }QListView::item:selected { border-radius: 6px; "
             "}QListView::indicator:unchecked { border-radius: 4px; border: 1px solid "_s
           + QColor(200, 200, 200).name()
           + u"; }QListView::indicator:checked { border-radius: 4px; border: 1px solid "_s
           + QColor(200, 200, 200).name() + u"; background-color:"_s + link.name() + u"; }"_s;
}

QString lightCheckBoxStyle(bool onWindows10, const QColor &link)
{
    const QString border = QColor(200, 200, 200).name();
    QString style = u"QCheckBox::indicator:unchecked { border-radius: 4px; border: 1px solid "_s + border + u"; }"_s;
    // Windows 11 draws its own checked boxes well.
    if (onWindows10) {
        style += u"QCheckBox::indicator:checked { border-radius: 4px; border: 1px solid "_s + border
                 + u"; background-color:"_s + link.name() + u"; }"_s;
    }
    return style;
}

QString lightScrollBarStyle()
{
    return u"QScrollBar { border: none; background: transparent; width: 12px; }QScrollBar::handle { background-color: "_s
           + QColor(200, 200, 200).name()
           + u"; border-radius: 4px; min-height: 24px; margin: 2px; }QScrollBar::add-line, QScrollBar::sub-line { "
             "height: 0px; }QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }"_s;
}

QString tableSelectionStyle(const QString &background)
{
    return u"QTableView::item:selected { background-color: "_s + background + u"; selection-color: #000000; }"_s;
}

QString menuStyle(const MenuColors &colors)
{
    const QString hover = colors.hover.name();
    return u"QMenu { background-color: "_s + colors.background.name() + u"; border-radius: 6px; border: 1px solid "_s
           + colors.border.name()
           + u"; }QMenu::item { padding: 6px; background: transparent; }QMenu:item:hover  { background-color: "_s
           + hover + u"; border-radius: 6px; }QMenu:item:selected  { background-color: "_s + hover
           + u"; border-radius: 6px; }"_s;
}

QString popupMenuStyle(PopupMenu menu)
{
    const QString stored = storedTheme();
    if (meansDark(stored))
        return menuStyle({{50, 50, 50}, {70, 70, 70}, {60, 60, 60}});
    if (stored != "light"_L1)
        return {};
    if (menu == PopupMenu::Programs)
        return menuStyle({{248, 248, 248}, {224, 224, 224}, {230, 230, 230}});
    return menuStyle({{240, 240, 240}, {70, 70, 70}, {230, 230, 230}});
}
