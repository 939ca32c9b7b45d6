// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs.h"

#include "console/arguments.h"
#include "platform/platform.h"
#include "work/keepfeatures.h"
#include "work/settings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

KeepChoice parseEntry(const QString &entry)
{
    const QString name = entry.section(u'=', 0, 0);
    const QString state = entry.section(u'=', 1);
    const auto feature = std::find_if(keepFeatures.begin(), keepFeatures.end(),
                                      [&name](const KeepFeature &each) { return each.name == name; });
    if (feature == keepFeatures.end())
        throw UsageError{u"unknown feature '%1' for '--keep'"_s.arg(name)
                         + choicesText(name, u"Features"_s, keepNames().split(u", "_s))};
    if (state != "0"_L1 && state != "2"_L1)
        throw UsageError{u"invalid state '%1' of '%2' for '--keep': 2 keeps it, 0 gives it up"_s.arg(state, name)};
    return {feature->keep, state.toInt()};
}

} // namespace

QList<KeepChoice> parseKeep(const QString &text)
{
    QList<KeepChoice> choices;
    for (const QString &entry : text.split(u',', Qt::SkipEmptyParts))
        choices.append(parseEntry(entry));
    return choices;
}

void applyKeep(WorkThread &worker, const QList<KeepChoice> &choices)
{
    // Opened above the program's key: opening that would make it, and it counts as a change of the machine.
    const QString root = u"HKEY_CURRENT_USER\\Software"_s;
    const QString settings = programKey.sliced(root.size() + 1).replace(u'\\', u'/') + u'/';
    const auto software = platform().openKey(root);
    qsizetype row = 0;
    for (const KeepFeature &feature : keepFeatures) {
        // Any other stored value keeps the feature.
        const QVariant stored = software->value(settings + keepSetting(++row), Qt::Checked);
        if (stored.toInt() == Qt::Unchecked)
            worker.*feature.keep = Qt::Unchecked;
    }
    for (const KeepChoice &choice : choices)
        worker.*choice.feature = choice.state;
}

QString keepNames()
{
    QStringList names;
    for (const KeepFeature &feature : keepFeatures)
        names.append(feature.name);
    return names.join(", "_L1);
}
