// SPDX-License-Identifier: GPL-3.0-or-later

#include "themestyles.h"

#include "platform/platform.h"
#include "work/settings.h"

using namespace Qt::StringLiterals;

namespace {

struct RoleColors
{
    QPalette::ColorRole role;
    QColor dark, darkDisabled;
    QColor light, lightDisabled;
};

// clang-format off
const RoleColors roleColors[] = {
    // role                     dark             dark, disabled   light            light, disabled
    {QPalette::Window,          {35, 35, 35},    {35, 35, 35},    {230, 230, 230}, {230, 230, 230}},
    {QPalette::WindowText,      Qt::white,       Qt::darkGray,    Qt::black,       Qt::gray},
    {QPalette::Base,            {45, 45, 45},    {45, 45, 45},    {250, 250, 250}, {250, 250, 250}},
    {QPalette::AlternateBase,   {55, 55, 55},    {55, 55, 55},    {220, 220, 220}, {220, 220, 220}},
    {QPalette::ToolTipBase,     {65, 65, 65},    {65, 65, 65},    {230, 230, 230}, {230, 230, 230}},
    {QPalette::ToolTipText,     Qt::white,       Qt::darkGray,    Qt::black,       Qt::gray},
    {QPalette::Text,            Qt::white,       Qt::darkGray,    Qt::black,       Qt::gray},
    {QPalette::Button,          {50, 50, 50},    {50, 50, 50},    {250, 250, 250}, {220, 220, 220}},
    {QPalette::ButtonText,      Qt::white,       Qt::darkGray,    Qt::black,       Qt::darkGray},
    {QPalette::BrightText,      Qt::red,         Qt::darkGray,    Qt::red,         Qt::red},
    {QPalette::Highlight,       {237, 110, 86},  {237, 110, 86},  {237, 110, 86},  {237, 110, 86}},
    {QPalette::HighlightedText, Qt::white,       Qt::darkGray,    Qt::black,       Qt::gray},
    {QPalette::Link,            {237, 110, 86},  {237, 110, 86},  {237, 110, 86},  {237, 110, 86}},
    {QPalette::LinkVisited,     {237, 110, 80},  {237, 110, 86},  {237, 110, 80},  {237, 110, 86}},
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    {QPalette::Accent,          {237, 110, 86},  {237, 110, 86},  {237, 110, 86},  {237, 110, 86}},
#endif
    {QPalette::Shadow,          {18, 18, 18},    {18, 18, 18},    {30, 30, 30},    {30, 30, 30}},
    {QPalette::Dark,            {35, 35, 35},    {35, 35, 35},    {200, 200, 200}, {200, 200, 200}},
    {QPalette::Light,           {65, 65, 65},    {65, 65, 65},    {240, 240, 240}, {240, 240, 240}},
    {QPalette::Mid,             {45, 45, 45},    {45, 45, 45},    {220, 220, 220}, {220, 220, 220}},
    {QPalette::Midlight,        {50, 50, 50},    {50, 50, 50},    {230, 230, 230}, {230, 230, 230}},
};
// clang-format on

QPalette paletteOf(QColor RoleColors::*all, QColor RoleColors::*disabled)
{
    QPalette palette;
    for (const RoleColors &colors : roleColors)
        palette.setColor(colors.role, colors.*all);
    for (const RoleColors &colors : roleColors)
        palette.setColor(QPalette::Disabled, colors.role, colors.*disabled);
    return palette;
}

} // namespace

QString storedTheme()
{
    return openSettings()->value(u"palette"_s, u"dark"_s).toString();
}

bool meansDark(const QString &stored)
{
    return stored == "dark"_L1 || stored == "possible values: 'light' or 'dark' or 'system'"_L1;
}

QPalette darkPalette()
{
    return paletteOf(&RoleColors::dark, &RoleColors::darkDisabled);
}

QPalette lightPalette()
{
    return paletteOf(&RoleColors::light, &RoleColors::lightDisabled);
}

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
    if (platform().hasContrastTheme())
        return {};
    const QString stored = storedTheme();
    if (meansDark(stored))
        return menuStyle({{50, 50, 50}, {70, 70, 70}, {60, 60, 60}});
    if (stored != "light"_L1)
        return {};
    if (menu == PopupMenu::Programs)
        return menuStyle({{248, 248, 248}, {224, 224, 224}, {230, 230, 230}});
    return menuStyle({{240, 240, 240}, {70, 70, 70}, {230, 230, 230}});
}
