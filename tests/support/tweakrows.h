// SPDX-License-Identifier: GPL-3.0-or-later
// The values that the tweaks of the Features page write, as a test expects them.

#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

/** A value in either form of a tweak: invalid where it is deleted, nothing where it is left as it was. */
struct TweakRow
{
    QString box;
    QString key;
    QString name;
    std::optional<QVariant> applied;
    std::optional<QVariant> reset;
};

/** All plain values, in the order in which they are written. Some keys end in a quote, on purpose. */
QList<TweakRow> tweakRows();
