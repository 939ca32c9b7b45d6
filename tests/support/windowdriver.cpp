// SPDX-License-Identifier: GPL-3.0-or-later

#include "windowdriver.h"

#include "window/rowtext.h"

#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString nameInToolTip(const QTableWidgetItem *item)
{
    return nameFromToolTip(item->toolTip());
}

} // namespace

WindowDriver::WindowDriver()
    : window_(std::make_unique<Kestrune>())
{
    // A window that closes would leave the test's application in a state in which no box opens any more.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    window_->show();
    // Connected after the window, which has filled its table by then.
    QObject::connect(&worker(), &WorkThread::valueChanged, window_.get(), [this](const QString &line) {
        if (line.startsWith("WorkThread::"_L1) && line.endsWith("List"_L1))
            ++listings_;
    });
}

WindowDriver::~WindowDriver() = default;

QList<WorkThread *> WindowDriver::workers() const
{
    return window_->findChildren<WorkThread *>(Qt::FindDirectChildrenOnly);
}

void WindowDriver::click(const QString &name) const
{
    QPushButton *pressed = button(name);
    if (!pressed->isVisible())
        qFatal("%s isn't on the screen", qUtf8Printable(name));
    QTest::mouseClick(pressed, Qt::LeftButton);
}

void WindowDriver::call(const char *slot) const
{
    if (!QMetaObject::invokeMethod(window_.get(), slot, Qt::DirectConnection))
        qFatal("the window has no slot %s", slot);
}

bool WindowDriver::openServices() const
{
    click(u"btnMenuService"_s);
    return waitForList();
}

bool WindowDriver::openTasks() const
{
    click(u"btnMenuTask"_s);
    return waitForList(u"Tasks:"_s);
}

bool WindowDriver::openPackages() const
{
    window_->showPage(4);
    return waitForList(u"Packages installed:"_s);
}

bool WindowDriver::waitForList(const QString &summary) const
{
    const auto hasCome = [this] { return listings_ > awaited_ && !worker().isRunning(); };
    const bool came = QTest::qWaitFor(hasCome, patience);
    awaited_ = listings_;
    return came && status().startsWith(summary);
}

void WindowDriver::list(const QList<ServiceRow> &rows) const
{
    worker().services = rows;
    worker().job = JobSvcMakeList;
    window_->onWorkThreadValueChanged(u"WorkThread::SvcMakeList"_s);
}

QTableWidgetItem *WindowDriver::cell(const QString &service, int column) const
{
    for (int row = 0; row < services()->rowCount(); ++row) {
        if (nameInToolTip(services()->item(row, 0)) == service)
            return services()->item(row, column);
    }
    return nullptr;
}

QStringList WindowDriver::listed() const
{
    QStringList names;
    for (int row = 0; row < services()->rowCount(); ++row)
        names.append(nameInToolTip(services()->item(row, 0)));
    return names;
}

QStringList WindowDriver::checked() const
{
    QStringList names;
    for (int row = 0; row < services()->rowCount(); ++row) {
        if (services()->item(row, 0)->checkState() == Qt::Checked)
            names.append(nameInToolTip(services()->item(row, 0)));
    }
    return names;
}

void WindowDriver::clickCheckBox(const QString &service) const
{
    const QTableWidgetItem *item = cell(service);
    if (item == nullptr)
        qFatal("%s isn't listed", qUtf8Printable(service));
    clickCheckBox(services(), item);
}

void WindowDriver::clickCheckBox(QTableWidget *table, const QTableWidgetItem *item)
{
    table->scrollToItem(item);

    QStyleOptionViewItem option;
    option.initFrom(table);
    option.rect = table->visualItemRect(item);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = item->text();
    const QRect box = table->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, table);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, box.center());
}

QStringList WindowDriver::column(const QString &tableName, int column) const
{
    const QTableWidget *rows = table(tableName);
    QStringList texts;
    for (int row = 0; row < rows->rowCount(); ++row)
        texts.append(rows->item(row, column)->text());
    return texts;
}

QStringList WindowDriver::checkedIn(const QString &tableName) const
{
    const QTableWidget *rows = table(tableName);
    QStringList texts;
    for (int row = 0; row < rows->rowCount(); ++row) {
        if (rows->item(row, 0)->checkState() == Qt::Checked)
            texts.append(rows->item(row, 0)->text());
    }
    return texts;
}

QTableWidgetItem *WindowDriver::firstCell(const QString &tableName, const QString &text) const
{
    const QTableWidget *rows = table(tableName);
    for (int row = 0; row < rows->rowCount(); ++row) {
        if (rows->item(row, 0)->text() == text)
            return rows->item(row, 0);
    }
    return nullptr;
}
