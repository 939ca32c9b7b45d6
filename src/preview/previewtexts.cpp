// SPDX-License-Identifier: GPL-3.0-or-later

#include "previewtexts.h"

#include "previewwords.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// clang-format off
/** Those of Optimize and Restore, then as many of apply and undo. */
constexpr RestorabilityTexts restorabilityRows[] = {
    {Restorability::Exactly,   "exactly"_L1,
     "comes back exactly"_L1, "come back exactly"_L1,
     "After Restore they are as they were, to the last value."_L1},
    {Restorability::Otherwise, "otherwise"_L1,
     "comes back differently"_L1, "come back differently"_L1,
     "Restore undoes these changes, but sets a fixed value, not the one you had."_L1},
    {Restorability::NotAtAll,  "not-at-all"_L1,
     "doesn't come back"_L1, "don't come back"_L1,
     "Restore leaves these changes, or some of them, as Optimize made them."_L1},
    {Restorability::Unasked,   "unasked"_L1,
     "changed by Restore only"_L1, "are changed by Restore only"_L1,
     "Optimize doesn't touch these, but Restore sets them to a default anyway."_L1},
    {Restorability::Exactly,   "exactly"_L1,
     "comes back exactly"_L1, "come back exactly"_L1,
     "After Undo they are as they were, to the last value."_L1},
    {Restorability::Otherwise, "otherwise"_L1,
     "comes back differently"_L1, "come back differently"_L1,
     "Undo changes these, but not to what they were."_L1},
    {Restorability::NotAtAll,  "not-at-all"_L1,
     "doesn't come back"_L1, "don't come back"_L1,
     "Undo leaves these changes, or some of them, as Apply made them."_L1},
    {Restorability::Unasked,   "unasked"_L1,
     "changed by Undo only"_L1, "are changed by Undo only"_L1,
     "Apply doesn't touch these, but Undo changes them."_L1},
};

constexpr GroupTexts groupRows[] = {
    {PreviewGroup::Services, "services"_L1, "Services"_L1,
     "Programs that work in the background."_L1,
     "%1 stops and disables those that a home PC can do without, and sets some others to start only when something "
     "needs them."_L1},
    {PreviewGroup::Tasks,    "tasks"_L1,    "Scheduled tasks"_L1,
     "What Windows or a program does at set times."_L1,
     "%1 disables them; they are not removed."_L1},
    {PreviewGroup::Packages, "packages"_L1, "Windows applications"_L1,
     "Applications that came with Windows or from its store."_L1,
     "%1 uninstalls them. What they have stored (accounts, settings, their own documents) isn't part of this preview "
     "and may be lost."_L1},
    {PreviewGroup::Autorun,  "autorun"_L1,  "Programs started at logon"_L1,
     "What starts when you sign in."_L1,
     "%1 takes it off the list; the program itself stays."_L1},
    {PreviewGroup::Tweaks,   "options"_L1,  "System options"_L1,
     "Settings of Windows, by their names on the Features page, with all values that belong to them."_L1, {}},
    {PreviewGroup::Files,    "files"_L1,    "Files"_L1,
     "Files and folders that come, go or change."_L1, {}},
    {PreviewGroup::Registry, "registry"_L1, "Other registry values"_L1,
     "Registry values not covered above, by their names in the registry, where Windows keeps its settings."_L1, {}},
    {PreviewGroup::Records,  "records"_L1,  "Kestrune's own records"_L1,
     "What Kestrune writes for itself: the records that Restore works from, its log and its backups. They change "
     "nothing in Windows and aren't counted above."_L1, {}},
};

struct WhyRow
{
    PreviewGroup group;
    Restorability value;
    QLatin1StringView why;
};
constexpr WhyRow whyRows[] = {
    {PreviewGroup::Services, Restorability::Otherwise,
     "Restore starts every service that Optimize has disabled and sets it to automatic: a service that used to start on "
     "demand or with a delay now starts automatically."_L1},
    {PreviewGroup::Services, Restorability::NotAtAll,
     "Optimize does not record services that it sets to manual, so Restore doesn't know of them."_L1},
    {PreviewGroup::Tasks,    Restorability::NotAtAll,
     "Restore enables only the tasks that Optimize has recorded."_L1},
    {PreviewGroup::Packages, Restorability::Exactly,
     "Restore re-registers the app from its files, as Windows itself does for a new user."_L1},
    {PreviewGroup::Packages, Restorability::Otherwise,
     "The app comes back as newly installed, without what it had stored."_L1},
    {PreviewGroup::Packages, Restorability::NotAtAll,
     "Restore re-registers an app from its files, which could not be found."_L1},
    {PreviewGroup::Autorun,  Restorability::Otherwise,
     "The saved command is cut at its first \"=\", so the program starts without the rest of its arguments."_L1},
    {PreviewGroup::Autorun,  Restorability::NotAtAll,
     "Restore brings back only a command whose program is in quotation marks and exists on the disk."_L1},
    {PreviewGroup::Tweaks,   Restorability::Otherwise,
     "Restore doesn't know what you had: it writes a fixed value, mostly Windows' default, or deletes it."_L1},
    {PreviewGroup::Tweaks,   Restorability::NotAtAll,
     "Restore doesn't reset this option, or not all of its values."_L1},
    {PreviewGroup::Tweaks,   Restorability::Unasked,
     "The option was already as Optimize wants it, or isn't one that Optimize uses; Restore resets it anyway."_L1},
    {PreviewGroup::Files,    Restorability::NotAtAll,
     "Restore doesn't touch this file."_L1},
    {PreviewGroup::Registry, Restorability::NotAtAll,
     "Restore doesn't touch this value."_L1},
};
// clang-format on

QString joined(const QStringList &parts)
{
    QStringList said = parts;
    said.removeAll(QString());
    return said.join(u", "_s);
}

QString joinedWords(const QString &sentence, const QString &more)
{
    return sentence.isEmpty() || more.isEmpty() ? sentence + more : sentence + u' ' + more;
}

/** One side of all details, by a pointer to the member that holds it. */
using Side = QString PreviewDetail::*;

/** "automatic (delayed), running" */
QString serviceSide(const PreviewItem &item, Side side)
{
    QString start;
    QString state;
    bool delayed = false;
    QStringList others;
    for (const PreviewDetail &detail : item.details) {
        if (detail.what == startModeDetail)
            start = shownSide(detail.*side);
        else if (detail.what == delayedStartDetail)
            delayed = detail.*side == "yes"_L1;
        else if (detail.what == runStateDetail)
            state = detail.*side;
        else
            others.append(detail.what + u": "_s + shownSide(detail.*side));
    }
    // Windows looks at the delay of an automatic start only.
    if (delayed && start == "automatic"_L1)
        start += u" (delayed)"_s;
    return joined(QStringList{start, state} + others);
}

bool isAnyThere(const PreviewItem &item, Side side)
{
    return std::any_of(item.details.begin(), item.details.end(),
                       [side](const PreviewDetail &detail) { return !(detail.*side).isEmpty(); });
}

QString packageSide(const PreviewItem &item, Side side)
{
    return isAnyThere(item, side) ? u"installed"_s : u"not installed"_s;
}

/** An entry is there or not; the start of a packaged application has a number for its state, odd or 0 for off. */
QString autorunSide(const PreviewItem &item, Side side)
{
    const QString &value = item.details.first().*side;
    const bool off = value.isEmpty() || value == "dword 0"_L1 || value == "dword 1"_L1 || value == "dword 3"_L1;
    return off ? u"doesn't start"_s : u"starts"_s;
}

qsizetype countOf(const PreviewItem &item, Restorability value)
{
    return std::count_if(item.details.begin(), item.details.end(),
                         [value](const PreviewDetail &detail) { return detail.comesBack == value; });
}

QString counted(qsizetype count, const QString &text)
{
    return count == 0 ? QString() : QString::number(count) + u' ' + text;
}

/** What a few words can't say is counted. */
PreviewSides countedSides(const PreviewItem &item)
{
    const qsizetype unasked = countOf(item, Restorability::Unasked);
    const qsizetype all = item.details.size();
    return {u"%1 values"_s.arg(all), unasked == all ? u"none changed"_s : u"%1 changed"_s.arg(all - unasked),
            joined({counted(countOf(item, Restorability::Exactly), u"as before"_s),
                    counted(countOf(item, Restorability::Otherwise) + unasked, u"otherwise"_s),
                    counted(countOf(item, Restorability::NotAtAll), u"stay changed"_s)})};
}

/** The values of a tweak are for those who look them up; in short it is applied or not. */
PreviewSides tweakSides(const PreviewItem &item, PreviewWay way)
{
    const bool untouched = countOf(item, Restorability::Unasked) == item.details.size();
    PreviewSides sides{u"your setting"_s, untouched ? u"your setting"_s : u"applied"_s,
                       way == PreviewWay::OptimizeAndRestore ? u"a fixed value"_s : u"another setting"_s};
    if (item.comesBack() == Restorability::Exactly)
        sides.restored = sides.before;
    else if (item.comesBack() == Restorability::NotAtAll)
        sides.restored =
            countOf(item, Restorability::NotAtAll) == item.details.size() ? u"applied"_s : u"applied in part"_s;
    return sides;
}

/** What the program writes for itself is written or kept; its values are for those who look them up. */
PreviewSides recordSides(const PreviewItem &item)
{
    const bool isBack = item.comesBack() == Restorability::Exactly;
    return {u"as now"_s, u"written"_s, isBack ? u"as before"_s : u"kept"_s};
}

PreviewSides sidesBy(QString (*text)(const PreviewItem &, Side), const PreviewItem &item)
{
    PreviewSides sides{text(item, &PreviewDetail::before), text(item, &PreviewDetail::optimized),
                       text(item, &PreviewDetail::restored)};
    if (sides.restored == sides.before && item.comesBack() != Restorability::Exactly)
        sides.restored += u", but not as before"_s;
    return sides;
}

/** Where a lost application can be had again. */
QString inTheStore(const PreviewItem &item)
{
    return item.store.isEmpty() ? QString() : u"It is in the Store: "_s + item.store;
}

} // namespace

std::span<const RestorabilityTexts> allRestorabilities(PreviewWay way)
{
    const std::span rows(restorabilityRows);
    const std::size_t ofOneWay = rows.size() / 2;
    return way == PreviewWay::OptimizeAndRestore ? rows.first(ofOneWay) : rows.last(ofOneWay);
}

const RestorabilityTexts &textsOf(Restorability value, PreviewWay way)
{
    const auto rows = allRestorabilities(way);
    return *std::find_if(rows.begin(), rows.end(),
                         [value](const RestorabilityTexts &row) { return row.value == value; });
}

std::span<const GroupTexts> allGroups()
{
    return groupRows;
}

const GroupTexts &textsOf(PreviewGroup group)
{
    return *std::find_if(std::begin(groupRows), std::end(groupRows),
                         [group](const GroupTexts &row) { return row.group == group; });
}

QString aboutGroup(const GroupTexts &group, PreviewWay way)
{
    return joinedWords(group.about, QString(group.done).replace("%1"_L1, stepNames(way).change));
}

StepNames stepNames(PreviewWay way)
{
    return way == PreviewWay::OptimizeAndRestore ? StepNames{"Optimize"_L1, "Restore"_L1}
                                                 : StepNames{"Apply"_L1, "Undo"_L1};
}

QString whyOf(const PreviewItem &item, PreviewWay way)
{
    const Restorability value = item.comesBack();
    if (way == PreviewWay::ApplyAndUndo) {
        const bool isLost = item.group == PreviewGroup::Packages && value != Restorability::Exactly;
        return isLost ? joinedWords(u"The journal can register an app again from its files, and nobody else on this PC "
                                    "has these."_s,
                                    inTheStore(item))
                      : QString();
    }
    QString why;
    for (const WhyRow &row : whyRows) {
        if (row.group == item.group && row.value == value)
            why = row.why;
    }
    if (value == Restorability::NotAtAll)
        why = joinedWords(why, inTheStore(item));
    // What comes back exactly has no more to say for itself.
    return value == Restorability::Exactly ? why : joinedWords(why, item.after);
}

QString withoutText(const QString &sentence)
{
    return u"Without it: "_s + sentence;
}

bool countsAsChange(const PreviewItem &item)
{
    return item.group != PreviewGroup::Records;
}

int countOf(const QList<PreviewItem> &items, Restorability value)
{
    return static_cast<int>(std::count_if(items.begin(), items.end(), [value](const PreviewItem &item) {
        return countsAsChange(item) && item.comesBack() == value;
    }));
}

PreviewSides sidesOf(const PreviewItem &item, PreviewWay way)
{
    if (item.group == PreviewGroup::Services)
        return sidesBy(serviceSide, item);
    if (item.group == PreviewGroup::Packages)
        return sidesBy(packageSide, item);
    if (item.group == PreviewGroup::Autorun && item.details.size() == 1)
        return sidesBy(autorunSide, item);
    if (item.group == PreviewGroup::Tweaks)
        return tweakSides(item, way);
    if (item.group == PreviewGroup::Records)
        return recordSides(item);
    if (item.details.size() > 1)
        return countedSides(item);
    const PreviewDetail &detail = item.details.first();
    return {shownSide(detail.before), shownSide(detail.optimized), shownSide(detail.restored)};
}

QString shownSide(const QString &side)
{
    return side.isEmpty() ? u"not there"_s : side;
}
