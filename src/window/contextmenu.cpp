// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu that the list pages share, and its actions.

#include "kestrune.h"

#include "themestyles.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QCursor>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

enum PageNumber { Services = 1, Tasks = 2, Autorun = 3, Packages = 4, Features = 5 };

/** Sets the check of every row whose first cell has the other state. */
void setChecks(QTableWidget *table, Qt::CheckState from, Qt::CheckState to)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        QTableWidgetItem *item = table->item(row, 0);
        if (item->checkState() == from)
            item->setCheckState(to);
    }
}

} // namespace

void Kestrune::showContextMenu()
{
    const int page = currentPage();
    QMenu menu;
    menu.setStyleSheet(popupMenuStyle(PopupMenu::Context));
    if (page >= Services && page <= Packages)
        menu.addAction(tr("Refresh"), this, &Kestrune::refreshPage);
    if (page == Services) {
        menu.addAction(tr("Manual start"), this, &Kestrune::setServiceManualStart);
        menu.addAction(tr("Automatic start"), this, &Kestrune::setServiceAutomaticStart);
    }
    if (page >= Autorun && page <= Features) {
        menu.addAction(tr("Uncheck all"), this, &Kestrune::uncheckAll);
        menu.addAction(tr("Check all"), this, &Kestrune::checkAll);
    }
    menu.exec(QCursor::pos());
}

void Kestrune::uncheckAll()
{
    switch (currentPage()) {
    case Autorun:
        setChecks(ui.tblAutorun, Qt::Checked, Qt::Unchecked);
        break;
    case Packages:
        setChecks(ui.tblPackages, Qt::Checked, Qt::Unchecked);
        break;
    case Features:
        for (const TweakBox &box : tweakBoxes())
            checkBoxOf(box)->setChecked(false);
        break;
    default:
        break;
    }
}

void Kestrune::checkAll()
{
    switch (currentPage()) {
    case Autorun:
        setChecks(ui.tblAutorun, Qt::Unchecked, Qt::Checked);
        break;
    case Packages:
        setChecks(ui.tblPackages, Qt::Unchecked, Qt::Checked);
        break;
    case Features:
        for (const TweakBox &box : tweakBoxes()) {
            if (holds(box.check, *workThread))
                checkBoxOf(box)->setChecked(true);
        }
        break;
    default:
        break;
    }
}
