// SPDX-License-Identifier: GPL-3.0-or-later
// The lines by which jobs tell of their progress and their end, for those who send them and those who read them. They
// are compared as they are sent, whatever the language.

#pragma once

#include <QString>

#include <optional>

namespace StatusLine {

// What is ready, or over, when the line comes. During the jobs that list something any line means that.
inline constexpr QLatin1StringView servicesListed("WorkThread::SvcMakeList");
inline constexpr QLatin1StringView tasksListed("WorkThread::TaskMakeList");
inline constexpr QLatin1StringView packagesListed("WorkThread::PackageGetList");
inline constexpr QLatin1StringView servicesChanged("pgr:SvcStopOrStart=finished");
inline constexpr QLatin1StringView tasksChanged("pgr:TaskSetState=finished");
inline constexpr QLatin1StringView attributesSet("WorkThread::TweakSSD::RemoveIndexedAttrib");

// On the Automatizer's signal.
inline constexpr QLatin1StringView analyzed("AutomatizerAnalyze:finished");
inline constexpr QLatin1StringView optimizedWithoutTweaks("automatizerEnd");
inline constexpr QLatin1StringView restoredWithoutTweaks("AutomatizerRestore:finished");
inline constexpr QLatin1StringView tweaksDone("tweaksDone"); ///< of Optimize and of Restore
inline constexpr QLatin1StringView attributesSetByOptimize("RemoveIndexedAttrib_end");

// Progress: how many steps there are, which of them is reached, and the head of a phase of the Automatizer.
inline constexpr QLatin1StringView progressPrefix("pgr:");
inline constexpr QLatin1StringView maximumPrefix("pgr:max:");
inline constexpr QLatin1StringView stepPrefix("pgr:value:");

inline QString maximum(qsizetype steps)
{
    return maximumPrefix + QString::number(steps);
}
inline QString step(qsizetype reached)
{
    return stepPrefix + QString::number(reached);
}
/** The blank before the name is shown, too. */
inline QString phase(const QString &name)
{
    return progressPrefix + QStringLiteral(" ") + name;
}

inline bool isProgress(const QString &line)
{
    return line.startsWith(progressPrefix);
}
/** Whether a line of progress closes its job. */
inline bool isEnd(const QString &line)
{
    return isProgress(line) && line.endsWith(QLatin1StringView("finished"));
}
/** The number in a line of that kind, as its text, which may be none; nothing in other lines. */
inline std::optional<QString> maximumOf(const QString &line)
{
    return line.startsWith(maximumPrefix) ? std::optional(line.sliced(maximumPrefix.size())) : std::nullopt;
}
inline std::optional<QString> stepOf(const QString &line)
{
    return line.startsWith(stepPrefix) ? std::optional(line.sliced(stepPrefix.size())) : std::nullopt;
}
/** What a line of progress says that is neither. */
inline QString phaseOf(const QString &line)
{
    return line.sliced(progressPrefix.size());
}

} // namespace StatusLine
