// SPDX-License-Identifier: GPL-3.0-or-later
// What a person's way through the pages of tasks, packages and autoruns needs, whatever PC it goes over.

#pragma once

#include "windowdriver.h"

#include <QTest>

inline QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

/** Waits until packages were removed or brought back. */
inline bool waitForPackageJob(const WindowDriver &driver)
{
    const auto hasEnded = [&driver] {
        return !driver.worker().isRunning() && driver.status().contains(QStringLiteral("packages finished"));
    };
    return QTest::qWaitFor(hasEnded, patience);
}

/** Checks the rows of these names, and no others. */
inline void keepOnlyChecked(const WindowDriver &driver, const QString &table, const QStringList &names)
{
    QTableWidget *rows = driver.table(table);
    for (int row = 0; row < rows->rowCount(); ++row)
        rows->item(row, 0)->setCheckState(names.contains(rows->item(row, 0)->text()) ? Qt::Checked : Qt::Unchecked);
}
