// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview.h"

#include "machine/compare/machinediff.h"
#include "machine/machine.h"
#include "previewwords.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Place = std::tuple<DiffKind, QString, QString>;

struct ThreeSides
{
    DiffRow row; ///< its sides are those of the machine and of the optimized copy
    QString restored;
    bool isOptimized = false; ///< the optimization changes it
    bool isRestored = true;   ///< after the restoration it is as before
};

Place placeOf(const DiffRow &row)
{
    return {row.kind, foldName(row.path), foldName(row.name)};
}

QMap<Place, ThreeSides> threeSides(const QList<DiffRow> &optimized, const QList<DiffRow> &restored)
{
    QMap<Place, ThreeSides> result;
    for (const DiffRow &row : optimized)
        result.insert(placeOf(row), {row, row.before, true, true});
    for (const DiffRow &row : restored) {
        ThreeSides &sides = result[placeOf(row)];
        if (!sides.isOptimized) {
            sides.row = row;
            sides.row.after = row.before;
        }
        sides.restored = row.after;
        sides.isRestored = false;
    }
    return result;
}

Restorability restorabilityOf(const ThreeSides &sides)
{
    if (!sides.isOptimized)
        return Restorability::Unasked;
    if (sides.isRestored)
        return Restorability::Exactly;
    return sides.restored == sides.row.after ? Restorability::NotAtAll : Restorability::Otherwise;
}

bool isBefore(const PreviewItem &left, const PreviewItem &right)
{
    if (left.group != right.group)
        return left.group < right.group;
    return left.title.compare(right.title, Qt::CaseInsensitive) < 0;
}

} // namespace

Restorability PreviewItem::comesBack() const
{
    const auto any = [this](Restorability value) {
        return std::any_of(details.begin(), details.end(),
                           [value](const PreviewDetail &detail) { return detail.comesBack == value; });
    };
    if (any(Restorability::NotAtAll))
        return Restorability::NotAtAll;
    // What the restoration changes besides what it was asked to bring back isn't what was there either.
    const bool isOptimized = any(Restorability::Exactly) || any(Restorability::Otherwise);
    if (any(Restorability::Unasked))
        return isOptimized ? Restorability::Otherwise : Restorability::Unasked;
    return any(Restorability::Otherwise) ? Restorability::Otherwise : Restorability::Exactly;
}

QList<PreviewItem> previewItems(Machine &before, Machine &optimized, Machine &restored,
                                const ProgressCallback &progress)
{
    const auto sides =
        threeSides(compareMachines(before, optimized, progress), compareMachines(before, restored, progress));
    QMap<QString, PreviewItem> items;
    for (const ThreeSides &three : sides) {
        const PreviewWords words = previewWords(before, optimized, three.row);
        PreviewItem &item = items[QString::number(static_cast<int>(words.group)) + words.item];
        item.group = words.group;
        item.title = words.title;
        item.about = words.about;
        item.after = words.after;
        item.store = words.store;
        item.name = words.name;
        item.without = withoutOf(words.group, words.name);
        item.details.append({words.detail, words.place, sideInWords(words, three.row.before),
                             sideInWords(words, three.row.after), sideInWords(words, three.restored),
                             restorabilityOf(three)});
    }
    QList<PreviewItem> list = items.values();
    std::stable_sort(list.begin(), list.end(), isBefore);
    return list;
}
