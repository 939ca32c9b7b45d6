// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs.h"

#include "preview/previewwords.h"
#include "subcommands.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct GroupRow
{
    QLatin1StringView name;
    QLatin1StringView boxes; ///< their names on the Features page, but for their numbers
    void (WorkThread::*run)(quint8 apply, quint32 id);
    quint32 lastId;
    quint32 noId; ///< a number that was never given to a tweak
};

// clang-format off
constexpr GroupRow groups[] = {
    {"ssd"_L1,     "chkSsd"_L1,     &WorkThread::TweakSSD,      9,  0},
    {"gaming"_L1,  "chkGaming"_L1,  &WorkThread::TweakGaming,  14,  0},
    {"windows"_L1, "chkWindows"_L1, &WorkThread::TweakWindows, 12, 11},
};
// clang-format on

} // namespace

std::optional<int> TweakRequest::job() const
{
    constexpr quint32 indexingId = 8;

    if (group != "ssd"_L1 || id != indexingId)
        return std::nullopt;
    return apply ? JobTweakApply : JobTweakReset;
}

TweakRequest parseTweak(const QStringList &operands)
{
    const auto group = std::find_if(std::begin(groups), std::end(groups),
                                    [&operands](const GroupRow &row) { return row.name == operands.at(0); });
    if (group == std::end(groups))
        throw UsageError{u"unknown group of tweaks '%1'"_s.arg(operands.at(0))
                         + choicesText(operands.at(0), u"Groups"_s, {u"ssd"_s, u"gaming"_s, u"windows"_s})};
    const quint32 id = operands.at(1).toUInt();
    if (id == 0 || id > group->lastId || id == group->noId)
        throw UsageError{
            u"there is no tweak '%1' in %2; 'run --help' lists them"_s.arg(operands.at(1), operands.at(0))};
    const QString state = operands.at(2);
    if (state != "on"_L1 && state != "off"_L1)
        throw UsageError{u"'%1' is neither on nor off"_s.arg(state)};
    return {group->run, group->name, id, state == "on"_L1};
}

QString tweaksInWords()
{
    QString text;
    for (const GroupRow &group : groups) {
        for (quint32 id = 1; id <= group.lastId; ++id) {
            if (id == group.noId)
                continue;
            const QString operands = QString(group.name) + u' ' + QString::number(id);
            text += u"  "_s + operands.leftJustified(28) + tweakWords(group.boxes + QString::number(id)).title + u'\n';
        }
    }
    return text;
}
