// SPDX-License-Identifier: GPL-3.0-or-later
// The Keep list: the features that the Automatizer and the assistants must leave alone.

#include "kestrune.h"
#include "work/keepfeatures.h"
#include "work/settings.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

QStandardItemModel *const keepModel = new QStandardItemModel;

namespace {

struct KeepRow
{
    const char *text;
    const char *toolTip;
};

/** The title, and then the features. */
// clang-format off
constexpr KeepRow rows[] = {
    {QT_TRANSLATE_NOOP("Kestrune", "Keep features"), nullptr},
    {QT_TRANSLATE_NOOP("Kestrune", "Printer"),
     QT_TRANSLATE_NOOP("Kestrune", "If you don't have any printers, you can uncheck this")},
    {QT_TRANSLATE_NOOP("Kestrune", "Bluetooth audio"),
     QT_TRANSLATE_NOOP("Kestrune", "If you do not have a headset or audio equipment connected via Bluetooth, you "
                                   "can uncheck this")},
    {QT_TRANSLATE_NOOP("Kestrune", "Files sharing"),
     QT_TRANSLATE_NOOP("Kestrune", "Windows sharing functionality on a local network (SMB protocol) (eg: connect "
                                   "hard drives, printers on a local network)\r\n(by default it is not used but "
                                   "activated!)")},
    {QT_TRANSLATE_NOOP("Kestrune", "Xbox App"),
     QT_TRANSLATE_NOOP("Kestrune", "Application to play PC games if you have a Gamepass account (paid)")},
    {QT_TRANSLATE_NOOP("Kestrune", "UPnP network services"),
     QT_TRANSLATE_NOOP("Kestrune", "Other protocol dedicated to local network (eg: some video players use it to "
                                   "connect to network hard drives)\r\n(by default it is not used but activated!)")},
    {QT_TRANSLATE_NOOP("Kestrune", "Proxy and VPN"),
     QT_TRANSLATE_NOOP("Kestrune", "Proxy or VPN functionality to improve the security of your network "
                                   "traffic\r\n(by default it is not used but activated!)")},
    {QT_TRANSLATE_NOOP("Kestrune", "NFC"),
     QT_TRANSLATE_NOOP("Kestrune", "Quick setup of some bluetooth headsets\r\n(by default it is not used but "
                                   "activated!)")},
    {QT_TRANSLATE_NOOP("Kestrune", "Xbox game bar"),
     QT_TRANSLATE_NOOP("Kestrune", "XBOX Game Bar that appears at the top of the screen, above a game. If you "
                                   "don't use it, uncheck this box")},
    {QT_TRANSLATE_NOOP("Kestrune", "Microsoft Codecs extensions"),
     QT_TRANSLATE_NOOP("Kestrune", "Microsoft codecs for video encoding/decoding. If you are not using Windows "
                                   "internal features for streaming,encoding or playing videos, uncheck this box")},
};
// clang-format on
static_assert(std::size(rows) == 1 + keepFeatures.size());

/** The worker's member that a row stands for; the title has none. */
std::atomic<int> *keepMember(WorkThread *worker, int row)
{
    return row == 0 ? nullptr : &(worker->*keepFeatures[static_cast<std::size_t>(row - 1)].keep);
}

/**
 * Draws the rows as the theme's style sheet has them, which the lists' own way of some styles doesn't, and lets a click
 * anywhere in a row switch its feature.
 */
class KeepDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int leastHeight = 24;
        return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, leastHeight});
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // The title is the list's current row, but no choice.
        if (!index.flags().testFlag(Qt::ItemIsUserCheckable))
            option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    }

    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override
    {
        const bool isClick = event->type() == QEvent::MouseButtonRelease
                             && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
        if (!isClick || !index.flags().testFlag(Qt::ItemIsUserCheckable))
            return QStyledItemDelegate::editorEvent(event, model, option, index);
        const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }
};

} // namespace

void Kestrune::buildKeepList()
{
    ui.cbSvcFeatures->clear();
    ui.cbAutorunFeatures->clear();
    keepModel->setRowCount(0);
    keepModel->setColumnCount(1);

    const auto settings = openSettings();
    for (const KeepRow &texts : rows) {
        const int row = keepModel->rowCount();
        std::atomic<int> *const member = keepMember(workThread, row);
        // An item is finished before it is appended: earlier connections would store a half-made row.
        auto *item = new QStandardItem(tr(texts.text));
        item->setTextAlignment(Qt::AlignCenter);
        if (member == nullptr) {
            item->setEnabled(false);
        } else {
            item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
            const int stored = settings->value(keepSetting(row), Qt::Checked).toInt();
            if (stored == Qt::Checked || stored == Qt::Unchecked)
                item->setCheckState(static_cast<Qt::CheckState>(stored));
            if (stored == Qt::Unchecked)
                *member = Qt::Unchecked;
            item->setToolTip(tr(texts.toolTip));
        }
        keepModel->appendRow(item);
    }

    for (QComboBox *box : {ui.cbSvcFeatures, ui.cbAutorunFeatures}) {
        box->setModel(keepModel);
        box->setItemDelegate(new KeepDelegate(box)); // deletes the one before
        box->setCurrentText(tr("Keep features"));
        connect(box, &QComboBox::currentIndexChanged, this, &Kestrune::showKeepTitle, Qt::UniqueConnection);
    }
    connect(keepModel, &QStandardItemModel::dataChanged, this, &Kestrune::onKeepModelChanged, Qt::UniqueConnection);
}

void Kestrune::widenKeepLists()
{
    for (const QComboBox *box : {ui.cbSvcFeatures, ui.cbAutorunFeatures}) {
        QAbstractItemView *list = box->view();
        list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth());
    }
}

void Kestrune::showKeepTitle(int index)
{
    if (index <= 0) // the title, or a list that is being built
        return;
    for (QComboBox *box : {ui.cbSvcFeatures, ui.cbAutorunFeatures})
        box->setCurrentIndex(0);
}

void Kestrune::onKeepModelChanged(const QModelIndex &first, const QModelIndex &last)
{
    onKeepItemChanged(first.row(), last.row());
}

void Kestrune::onKeepItemChanged(int firstRow, int lastRow)
{
    const auto settings = openSettings();
    for (int row = firstRow; row <= lastRow; ++row) {
        const int state = keepModel->item(row)->checkState();
        if (std::atomic<int> *const member = keepMember(workThread, row); member != nullptr)
            *member = state;
        settings->setValue(keepSetting(row), state);
    }
}
