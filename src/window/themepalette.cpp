// SPDX-License-Identifier: GPL-3.0-or-later

#include "themepalette.h"

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

QPalette darkPalette()
{
    return paletteOf(&RoleColors::dark, &RoleColors::darkDisabled);
}

QPalette lightPalette()
{
    return paletteOf(&RoleColors::light, &RoleColors::lightDisabled);
}
