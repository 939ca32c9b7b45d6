// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/programinterruption.h"
#include "machine/compare/machinediff.h"
#include "machine/machine.h"
#include "past.h"
#include "preview/previewwords.h"
#include "verify.h"
#include "work/settings.h"
#include "work/tweaks/tweakcatalogue.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Place = std::tuple<DiffKind, QString, QString>;

Place placeOf(const DiffRow &row)
{
    return {row.kind, foldName(row.path), foldName(row.name)};
}

QString shownPlace(const DiffRow &row)
{
    return row.name.isEmpty() ? row.path : row.path + u'\\' + row.name;
}

bool isRecorded(Machine &machine, const QString &box)
{
    const auto value = machine.registry().value(recordKey(u"Tweak"_s), box);
    return value && textOf(value->data) == "true"_L1;
}

/** Removing a value from a key that isn't there makes the key, which changes nothing. */
bool isEmptyKey(const DiffRow &row)
{
    return row.kind == DiffKind::Registry && row.name.isEmpty();
}

/** Whether a run is the one that writes what the row names. */
bool writes(const ToolRun &run, const DiffRow &row)
{
    if (row.kind == DiffKind::BootOption)
        return run.program == "bcdedit"_L1 && run.arguments.contains(row.path, Qt::CaseInsensitive);
    if (row.kind == DiffKind::Task)
        return run.program == "schtasks"_L1 && run.arguments.contains(row.path, Qt::CaseInsensitive);
    return row.path.endsWith("\\hiberfil.sys"_L1, Qt::CaseInsensitive) && run.program == "powercfg"_L1
           && run.arguments.contains("-h"_L1);
}

/** Whether Optimize records the tweak also where it leaves it out. */
bool isRecordedWithoutARun(const TweakBox &box)
{
    return box.optimize != When::Always && (box.record == When::Always || box.inOptimize != nullptr);
}

/** The exit code of the last run that was to write it, where there was one and it failed. */
std::optional<ToolRun> refusal(const QList<ToolRun> &runs, const DiffRow &row)
{
    const auto last =
        std::find_if(runs.crbegin(), runs.crend(), [&row](const ToolRun &run) { return writes(run, row); });
    return last == runs.crend() || last->exitCode == 0 ? std::nullopt : std::optional(*last);
}

/** The verdict on a tweak, by those of its rows that aren't in force. */
class TweakJudgement
{
public:
    TweakJudgement(const QMap<Place, DiffRow> &sinceBefore, const QList<ToolRun> &runs, const Past &past)
        : sinceBefore_(sinceBefore)
        , runs_(runs)
        , past_(past)
    {
    }

    void judge(VerifiedItem &item, const DiffRow &row) const
    {
        // Where nothing has happened since, the machine before has what the machine now has.
        const auto change = sinceBefore_.find(placeOf(row));
        const bool asBefore = change == sinceBefore_.end();
        item.details.append({shownPlace(row), asBefore ? row.before : change->before, row.before, row.after});
        if (const std::optional<ToolRun> refused = refusal(runs_, row)) {
            item.verdict = Verdict::Refused;
            item.why = u"%1 ended with %2"_s.arg(refused->program).arg(refused->exitCode);
        } else if (item.verdict != Verdict::Refused && !asBefore) {
            item.verdict = Verdict::ChangedBack;
        } else if (const QString session = past_.changeOf(row);
                   item.verdict != Verdict::Refused && !session.isEmpty()) {
            item.verdict = Verdict::ChangedBack;
            item.why = u"it was in force after "_s + session;
        } else if (item.verdict == Verdict::InForce) {
            item.verdict = Verdict::AsBefore;
            if (past_.isKnown())
                item.why = u"the journal knows of no change"_s;
        }
    }

private:
    const QMap<Place, DiffRow> &sinceBefore_;
    const QList<ToolRun> &runs_;
    const Past &past_;
};

QMap<Place, DiffRow> byPlace(const QList<DiffRow> &rows)
{
    QMap<Place, DiffRow> map;
    for (const DiffRow &row : rows)
        map.insert(placeOf(row), row);
    return map;
}

} // namespace

QList<VerifiedItem> verifyTweaks(Machine &before, Machine &now, Machine &again)
{
    const QMap<Place, DiffRow> sinceBefore = byPlace(compareMachines(before, now));
    QMap<QString, QList<DiffRow>> rowsOf; // by box
    for (const DiffRow &row : compareMachines(now, again)) {
        if (!isEmptyKey(row))
            rowsOf[tweakBoxOf(row)].append(row);
    }
    const QList<ToolRun> runs = readToolLog(now);
    const Past past(now);
    const TweakJudgement judgement(sinceBefore, runs, past);

    QList<VerifiedItem> items;
    for (const TweakBox &box : tweakBoxes()) {
        stopIfInterrupted();
        if (!isRecorded(now, box.name))
            continue;
        VerifiedItem item{PreviewGroup::Tweaks, box.name, tweakWords(box.name).title};
        for (const DiffRow &row : rowsOf.value(box.name))
            judgement.judge(item, row);
        if (item.verdict == Verdict::AsBefore && isRecordedWithoutARun(box))
            item.why = u"recorded by Optimize, which doesn't apply it on this PC"_s;
        items.append(item);
    }
    return items;
}
