// SPDX-License-Identifier: GPL-3.0-or-later
// The menu on the left and the pages that it opens.

#include "kestrune.h"

#include "contrast.h"
#include "platform/platform.h"
#include "rowtext.h"
#include "themestyles.h"
#include "webhost.h"

#include <QCursor>
#include <QEvent>
#include <QHeaderView>
#include <QMenu>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Page
{
    QLatin1StringView menuButton;
    QLatin1StringView image; ///< name of the image file without its ending
};

// clang-format off
constexpr Page pages[] = {
    {"btnMenuHome"_L1,    "optimizer"_L1},
    {"btnMenuService"_L1, "services"_L1},
    {"btnMenuTask"_L1,    "tasks"_L1},
    {"btnMenuPackage"_L1, "programs"_L1},
    {"btnMenuPackage"_L1, "programs"_L1},
    {"btnMenuTweak"_L1,   "features"_L1},
    {"btnMenuInfo"_L1,    "info"_L1},
    {"btnMenuOptions"_L1, "options"_L1},
    {"btnMenuAbout"_L1,   "about"_L1},
};
// clang-format on
constexpr int pageCount = std::size(pages);
constexpr int lastRefreshablePage = 3;

bool isFrom(const QWidget *widget, const QWidget *ancestor)
{
    return widget != nullptr && ancestor->isAncestorOf(widget);
}

QString imageFile(QLatin1StringView image, bool dark)
{
    return image + (dark ? u"-w.png"_s : u".png"_s);
}

/** Idle and active buttons share all but the text's place and colour. */
QString menuButtonStyle(const QString &image, const QString &alignment, QPalette::ColorRole textRole)
{
    const QPalette palette = QGuiApplication::palette();
    const QString text = palette.color(textRole).name();
    const QString mid = palette.color(QPalette::Mid).name();
    const QString link = palette.color(QPalette::Link).name();
    return u"QPushButton { background-image:url("_s + platform().resourceFolder() + u"/img/"_s + image
           + u"); background-repeat: no-repeat; background-position: left; border-radius: 6px; "_s + alignment
           + u"margin-left: 12px; color: "_s + text + u"; }QPushButton:hover { background-color: "_s + mid
           + u"; color: "_s + link + u";}QPushButton:pressed { color: "_s + link
           + u"; }QPushButton:flat { border: none; }"_s;
}

} // namespace

void Kestrune::showPage(int page)
{
    if (workThread->optimizeRunning == 1 || workThread->analyzeRunning == 1 || workThread->isRunning())
        return;
    ui.lblStatus->clear();
    ui.pgrBar->hide();
    // Nobody waits any more for the size that the Features page asked for.
    endWinSxsCount();
    if (page < 0 || page >= pageCount)
        return;

    openPage(page);
}

void Kestrune::openPage(int page)
{
    selectMenuButton(pageButton(page));
    // Else the next control that takes it, whatever it is, would get the keyboard.
    if (page != currentPage() && isFrom(focusWidget(), ui.tabWidget))
        focusWidget()->clearFocus();
    ui.tabWidget->setCurrentIndex(page);
    switch (page) {
    case 1:
        showServicesPage();
        break;
    case 2:
        showTasksPage();
        break;
    case 3:
        showAutorunPage();
        break;
    case 4:
        showPackagesPage();
        break;
    case 5:
        showFeaturesPage();
        break;
    case 6:
        showInfoPage();
        break;
    case 8:
        showAboutPage();
        break;
    default:
        break;
    }
    // Last: a page may have a question first.
    markActiveMenuButton(page);
    // A language that is put back while the page is loaded shows the page once more by itself.
    if (page == 7)
        showOptionsPage();
}

QString Kestrune::pageButton(int page)
{
    return pages[page].menuButton;
}

void Kestrune::markActiveMenuButton(int page)
{
    applyActiveMenuStyle(ui.wgtLeftMenu->findChild<QPushButton *>(pageButton(page)),
                         imageFile(pages[page].image, hasWhiteImages()));
}

bool Kestrune::hasWhiteImages() const
{
    return hasContrastTheme_ ? isDark(QGuiApplication::palette()) : currentTheme == DarkTheme;
}

void Kestrune::refreshPage()
{
    if (currentPage() <= lastRefreshablePage)
        showPage(currentPage());
}

void Kestrune::selectMenuButton(const QString &objectName)
{
    for (QPushButton *button : ui.wgtLeftMenu->findChildren<QPushButton *>()) {
        styleMenuButton(button->objectName());
        button->setFont(QFont(u"Segoe UI"_s, grown(11), button->objectName() == objectName ? 700 : 400, false));
    }
}

void Kestrune::styleMenuButton(const QString &objectName)
{
    for (const Page &page : pages) {
        if (page.menuButton != objectName)
            continue;
        ui.wgtLeftMenu->findChild<QPushButton *>(objectName)
            ->setStyleSheet(
                menuButtonStyle(imageFile(page.image, hasWhiteImages()), u"text-align: center; "_s, QPalette::Text));
        return;
    }
}

void Kestrune::applyActiveMenuStyle(QPushButton *button, const QString &imageName)
{
    button->setStyleSheet(menuButtonStyle(imageName, QString(), QPalette::Link));
}

QList<Kestrune::Columns> Kestrune::listColumns() const
{
    return {
        {ui.tblSvc, {240, 100, 1400}, 2},
        {ui.tblTasks, {400, 400, 0}, 1},
        {ui.tblPackages, {200, 200, 400}, 0},
        {ui.tblAutorun, {200, 460}, 1},
    };
}

void Kestrune::growColumns()
{
    for (const auto &[table, widths, growing] : listColumns()) {
        const int others = table->horizontalHeader()->length() - table->columnWidth(growing);
        table->setColumnWidth(growing, std::max(grown(widths.at(growing)), table->viewport()->width() - others));
    }
}

bool Kestrune::event(QEvent *event)
{
    if (event->type() == QEvent::ThemeChange)
        followSystem();
    return QMainWindow::event(event);
}

bool Kestrune::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) // of a list
        growColumns();
    auto *table = qobject_cast<QTableWidget *>(watched);
    if (event->type() == QEvent::KeyPress && table != nullptr && !table->currentIndex().isValid())
        return beginAtFirstRow(table);
    return QMainWindow::eventFilter(watched, event);
}

void Kestrune::explainButtons()
{
    explain(ui.btnAutomatize,
            tr("Changes all that Analyze has found, which takes a while. If you close the window meanwhile, it "
               "stops there: what is changed by then stays changed."));
    explain(ui.btnPackagesUninst,
            tr("Acts on all checked packages at once, without asking. The list stays as it is until the page "
               "is shown again."));
    for (QPushButton *button : ui.wgtLeftMenu->findChildren<QPushButton *>()) {
        QList<QKeySequence> keys;
        for (int page = 0; page < pageCount; ++page) {
            if (pages[page].menuButton == button->objectName())
                keys += pageKeys(page);
        }
        button->setToolTip(QKeySequence::listToString(keys, QKeySequence::NativeText));
    }
}

void Kestrune::prepareForm()
{
    ui.tabWidget->tabBar()->hide();
    ui.pgrBar->hide();
    showBrokenOff();
    nameHost();
    explainButtons();
    for (const Columns &columns : listColumns()) {
        for (int column = 0; column < columns.widths.size(); ++column)
            columns.table->setColumnWidth(column, grown(columns.widths.at(column)));
    }
    growColumns();
    nameControls();
    const QList<QWidget *> lists{ui.tblSvc, ui.tblTasks, ui.tblPackages, ui.tblAutorun, ui.scrollArea};
    for (QWidget *list : lists) {
        list->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(list, &QWidget::customContextMenuRequested, this, &Kestrune::showContextMenu, Qt::UniqueConnection);
    }
}

void Kestrune::nameHost()
{
    for (QTextBrowser *browser : {ui.txtAbout, ui.txtGaming12})
        browser->setHtml(withWebHost(browser->toHtml()));
}

void Kestrune::on_btnMenuPackage_clicked()
{
    QMenu menu;
    menu.setStyleSheet(popupMenuStyle(PopupMenu::Programs));
    menu.addAction(tr("Automatically started programs"), this, [this] { showPage(3); });
    menu.addAction(tr("Windows packages installed"), this, [this] { showPage(4); });
    menu.exec(QCursor::pos());
}
