// SPDX-License-Identifier: GPL-3.0-or-later
// The list of changes in the dialog of the way back.

#pragma once

#include "journal/takeback.h"

#include <QAbstractTableModel>
#include <QSet>

/**
 * A row for each change that can be seen. What can be taken back has a check box, which is checked at first but for
 * what something else has changed since.
 */
class WayBackModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Change, Before, Now, Verdict, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setItems(const QList<TakenItem> &items);
    /** Brings rows up to date, by their ids; none of what was taken back keeps its check. */
    void update(const QList<TakenItem> &items);

    const QList<TakenItem> &items() const { return items_; }
    bool isChecked(const TakenItem &item) const { return checked_.contains(item.id); }
    bool isAnyChecked() const { return !checked_.isEmpty(); }
    /** Checks or unchecks a row that has a check box. */
    void check(int row, bool on);
    /** The narrowest that takes back what is checked, of the sessions of this selection. */
    Selection checkedOf(Selection selection) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void checksChanged();

private:
    QList<TakenItem> items_;
    QSet<qint64> checked_;
};
