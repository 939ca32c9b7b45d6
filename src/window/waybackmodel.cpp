// SPDX-License-Identifier: GPL-3.0-or-later

#include "waybackmodel.h"

#include "journal/takeback.h"
#include "kestrune.h"
#include "rowtext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool canBeTaken(const TakenItem &item)
{
    return item.verdict == WayBack::Open || item.verdict == WayBack::Changed;
}

QString cellText(const TakenItem &item, int column)
{
    switch (column) {
    case WayBackModel::Change:
        return itemTitle(item.item);
    case WayBackModel::Before:
        return stateText(item.item, item.before);
    case WayBackModel::Now:
        return stateText(item.item, item.now);
    default:
        return item.why.isEmpty() ? verdictText(item.verdict) : verdictText(item.verdict) + u": "_s + whyText(item);
    }
}

} // namespace

void WayBackModel::setItems(const QList<TakenItem> &items)
{
    beginResetModel();
    items_ = items;
    items_.removeIf([](const TakenItem &item) { return item.own; });
    // What there is to be taken back stands above the rest, as long as the list is shown.
    std::stable_partition(items_.begin(), items_.end(), canBeTaken);
    checked_.clear();
    for (const TakenItem &item : std::as_const(items_)) {
        if (item.verdict == WayBack::Open)
            checked_.insert(item.id);
    }
    endResetModel();
    Q_EMIT checksChanged();
}

void WayBackModel::update(const QList<TakenItem> &items)
{
    QHash<qint64, TakenItem> byId;
    for (const TakenItem &item : items)
        byId.insert(item.id, item);
    for (TakenItem &item : items_)
        item = byId.value(item.id, item);
    checked_.clear();
    if (!items_.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    Q_EMIT checksChanged();
}

void WayBackModel::check(int row, bool on)
{
    setData(index(row, Change), on ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

Selection WayBackModel::checkedOf(Selection selection) const
{
    bool isAll = true;
    for (const TakenItem &item : items_) {
        if (isChecked(item)) {
            selection.items.append(item.id);
            selection.evenChanged = selection.evenChanged || item.verdict == WayBack::Changed;
        }
    }
    for (const TakenItem &item : items_)
        isAll = isAll && (isChecked(item) || item.verdict != WayBack::Open)
                && (isChecked(item) || item.verdict != WayBack::Changed || !selection.evenChanged);
    if (isAll) // the records of the program go with all changes of a session
        selection.items.clear();
    return selection;
}

int WayBackModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

int WayBackModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant WayBackModel::data(const QModelIndex &index, int role) const
{
    const TakenItem &item = items_.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return cellText(item, index.column());
    case Qt::AccessibleTextRole:
        return spokenText(cellText(item, index.column()),
                          headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    case Qt::ToolTipRole:
        return plainToolTip(cellText(item, index.column()));
    case Qt::CheckStateRole:
        if (index.column() == Change && canBeTaken(item))
            return isChecked(item) ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

bool WayBackModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    const qint64 id = items_.at(index.row()).id;
    if (value.toInt() == Qt::Checked)
        checked_.insert(id);
    else
        checked_.remove(id);
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    Q_EMIT checksChanged();
    return true;
}

Qt::ItemFlags WayBackModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    const bool hasBox = index.isValid() && index.column() == Change && canBeTaken(items_.at(index.row()));
    return hasBox ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant WayBackModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Change:
        return Kestrune::tr("Change");
    case Before:
        return Kestrune::tr("Before");
    case Now:
        return Kestrune::tr("Now");
    default:
        return Kestrune::tr("State");
    }
}
