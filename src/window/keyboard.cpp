// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard, and what screen readers say: no control takes the keyboard by itself or by a click, so that shortcuts
// of the window lead it there.

#include "kestrune.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum PageNumber { Optimizer = 0, Services = 1, Tasks = 2, Autorun = 3, Packages = 4, Features = 5, About = 8 };

/** The names of a page that belong together: whose they are, of which label, and the label that explains it. */
struct Title
{
    QWidget *control;
    QLabel *label;
    const QLabel *explanation = nullptr;
};

template<typename Action>
void addShortcut(QWidget *window, const QList<QKeySequence> &keys, Action action)
{
    auto *shortcut = new QShortcut(window);
    shortcut->setKeys(keys);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, window, action);
}

template<typename... Widgets>
bool isOneOf(QWidget *widget)
{
    return (... || (qobject_cast<Widgets *>(widget) != nullptr));
}

bool isTable(const QWidget *widget)
{
    return qobject_cast<const QTableWidget *>(widget) != nullptr;
}

} // namespace

QList<QKeySequence> Kestrune::pageKeys(int page)
{
    QList<QKeySequence> keys{QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + page))};
    if (page == About)
        keys.append(QKeySequence(Qt::Key_F1));
    return keys;
}

void Kestrune::makeShortcuts()
{
    for (int page = 0; page < ui.tabWidget->count(); ++page)
        addShortcut(this, pageKeys(page), [this, page] { showPage(page); });
    addShortcut(this, {Qt::Key_F5}, [this] { refreshPage(); });
    addShortcut(this, {Qt::Key_F6}, [this] { moveKeyboard(1); });
    addShortcut(this, {Qt::SHIFT | Qt::Key_F6}, [this] { moveKeyboard(-1); });
    addShortcut(this, {Qt::CTRL | Qt::Key_F}, [this] {
        if (QTableWidget *table = pageTable())
            giveKeyboardTo(table);
    });
    addShortcut(this, {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter}, [this] { clickMainButton(); });
}

QTableWidget *Kestrune::pageTable() const
{
    switch (currentPage()) {
    case Services:
        return ui.tblSvc;
    case Tasks:
        return ui.tblTasks;
    case Autorun:
        return ui.tblAutorun;
    case Packages:
        return ui.tblPackages;
    default:
        return nullptr;
    }
}

QList<QWidget *> Kestrune::pageControls() const
{
    QList<QWidget *> controls = ui.tabWidget->currentWidget()->findChildren<QWidget *>();
    controls.append(ui.btnBrokenOff);
    controls.removeIf([](QWidget *widget) {
        return !widget->isVisible() || !widget->isEnabled()
               || !isOneOf<QTableWidget, QPushButton, QCheckBox, QComboBox, QTextBrowser>(widget);
    });
    std::stable_partition(controls.begin(), controls.end(), isTable);
    return controls;
}

void Kestrune::giveKeyboardTo(QWidget *control)
{
    if (auto *table = qobject_cast<QTableWidget *>(control); table != nullptr && !table->currentIndex().isValid())
        beginAtFirstRow(table);
    // The page itself scrolls, too, where the screen is smaller than the form.
    for (QWidget *above = control->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(above))
            area->ensureWidgetVisible(control);
    }
    control->setFocus(Qt::ShortcutFocusReason);
}

void Kestrune::moveKeyboard(int step)
{
    const QList<QWidget *> controls = pageControls();
    if (controls.isEmpty())
        return;
    const qsizetype at = controls.indexOf(focusWidget());
    const qsizetype next = at < 0 && step < 0 ? -1 : at + step;
    giveKeyboardTo(controls.at((next + controls.size()) % controls.size()));
}

bool Kestrune::beginAtFirstRow(QTableWidget *table)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        QTableWidgetItem *cell = table->item(row, 0);
        if (cell == nullptr || !cell->flags().testFlag(Qt::ItemIsEnabled))
            continue;
        table->setCurrentItem(cell, QItemSelectionModel::NoUpdate);
        return true;
    }
    return false;
}

void Kestrune::keyPressEvent(QKeyEvent *event)
{
    // What has the keyboard had no use for the key.
    if (event->key() == Qt::Key_Escape && focusWidget() != nullptr)
        focusWidget()->clearFocus();
    else
        QMainWindow::keyPressEvent(event);
}

void Kestrune::clickMainButton()
{
    // On the pages of programs it would act without asking, on rows that are checked from the beginning.
    switch (currentPage()) {
    case Optimizer:
        (hasFindings() ? ui.btnAutomatize : ui.btnAutomatizerAnalyze)->click();
        break;
    case Services:
        ui.btnSvcDisable->click();
        break;
    case Tasks:
        ui.btnTaskDisable->click();
        break;
    case Features:
        ui.btnTweakApply->click();
        break;
    default:
        break;
    }
}

void Kestrune::nameControls()
{
    const Title titles[] = {
        {ui.txtAutomatizer, ui.lblHomeTop, ui.label_4},
        {ui.tblSvc, ui.lblSvcTop, ui.label_5},
        {ui.tblTasks, ui.lblTaskTop, ui.label_2},
        {ui.tblAutorun, ui.lblAutorunTop, ui.label_10},
        {ui.tblPackages, ui.lblPackageTop, ui.label_7},
        {ui.scrollArea, ui.lblTweakTop, ui.label_8},
        {ui.txtInfo, ui.lblInfoTop},
        {ui.txtAbout, ui.lblAboutTop},
        {ui.cbOptionsLang, ui.label_6},
        {ui.cbOptionsTheme, ui.label_11},
        {ui.cbOptionsMonitorInterval, ui.label_9},
    };
    for (const auto &[control, label, explanation] : titles) {
        label->setBuddy(control);
        control->setAccessibleName(label->text());
        if (explanation != nullptr)
            control->setAccessibleDescription(explanation->text());
    }
    for (QComboBox *box : {ui.cbAutorunFeatures, ui.cbSvcFeatures})
        box->setAccessibleName(tr("Keep features"));
    for (QWidget *control :
         {static_cast<QWidget *>(ui.cbWin32PrioritySeparation), static_cast<QWidget *>(ui.txtGaming11)})
        control->setAccessibleName(ui.chkGaming11->text());
    ui.txtGaming12->setAccessibleName(ui.lblTweakTop->text());
    ui.txtSsd8->setAccessibleName(ui.lblSsdTop->text());
    ui.txtGaming011->setAccessibleName(ui.lblGamingTop->text());
    ui.pgrBar->setAccessibleName(tr("Progress"));
}
