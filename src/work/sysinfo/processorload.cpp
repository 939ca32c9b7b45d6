// SPDX-License-Identifier: GPL-3.0-or-later

#include "processorload.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// In 32 bits throughout, since a finer measure would show other numbers.
float processorLoad(const ProcessorTimes &before, const ProcessorTimes &after)
{
    const auto idle = static_cast<float>(after.idle - before.idle);
    const auto kernel = static_cast<float>(after.kernel - before.kernel);
    const auto user = static_cast<float>(after.user - before.user);
    return (1.0F - idle / (kernel + user)) * 100.0F;
}

QString loadText(float load)
{
    constexpr float idleUpTo = 1.001F;
    constexpr float leastBusy = 2.0F;
    constexpr float most = 100.0F;

    if (load > idleUpTo)
        load = std::max(load, leastBusy);
    if (load > leastBusy && load < most)
        load += 1.0F;
    const QString text = QString::number(static_cast<double>(load), 'g', 6).section(u'.', 0, 0);
    return text == u'0' ? u"1"_s : text;
}
