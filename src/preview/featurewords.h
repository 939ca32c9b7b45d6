// SPDX-License-Identifier: GPL-3.0-or-later
// Which system option a changed value, file or boot option belongs to.

#pragma once

#include <QString>

struct DiffRow;

struct FeatureWords
{
    QString option; ///< its text on the Features page, shortened to its first sentence
    QString about;  ///< what that is good for, or costs
};

/** The option's box on the Features page ("chkSsd1"); empty where the row is of none. */
QString featureOf(const DiffRow &row);
/** Empty for a name that no box has. */
FeatureWords featureWords(const QString &box);
