// SPDX-License-Identifier: GPL-3.0-or-later
// What a person does on the Features page.

#pragma once

#include "windowdriver.h"

#include <QCheckBox>
#include <QScrollArea>
#include <QTest>

/** Clicks a box with the mouse, wherever it stands on the page. */
inline void clickBox(const WindowDriver &driver, const QString &name)
{
    auto *box = driver.get<QCheckBox>(name);
    driver.get<QScrollArea>(QStringLiteral("scrollArea"))->ensureWidgetVisible(box);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

inline void apply(const WindowDriver &driver)
{
    const QString button = QStringLiteral("btnTweakApply");
    driver.get<QScrollArea>(QStringLiteral("scrollArea"))->ensureWidgetVisible(driver.button(button));
    driver.click(button);
}
