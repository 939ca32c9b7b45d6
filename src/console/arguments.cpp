// SPDX-License-Identifier: GPL-3.0-or-later

#include "arguments.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const OptionRow &findOption(std::span<const OptionRow> options, const QString &name)
{
    const auto row = std::find_if(options.begin(), options.end(), [&](const OptionRow &o) { return o.name == name; });
    if (row == options.end())
        throw UsageError{u"unrecognized option '--%1'"_s.arg(name)};
    return *row;
}

/** How many letters were left out, added, changed, or swapped with their neighbour. */
qsizetype slips(const QString &word, const QString &name)
{
    QList<QList<qsizetype>> table(word.size() + 1, QList<qsizetype>(name.size() + 1));
    for (qsizetype i = 0; i <= word.size(); ++i) {
        for (qsizetype j = 0; j <= name.size(); ++j) {
            if (i == 0 || j == 0) {
                table[i][j] = i + j;
                continue;
            }
            const qsizetype changed = word.at(i - 1) == name.at(j - 1) ? 0 : 1;
            table[i][j] = std::min({table[i - 1][j] + 1, table[i][j - 1] + 1, table[i - 1][j - 1] + changed});
            if (i > 1 && j > 1 && word.at(i - 1) == name.at(j - 2) && word.at(i - 2) == name.at(j - 1))
                table[i][j] = std::min(table[i][j], table[i - 2][j - 2] + 1);
        }
    }
    return table[word.size()][name.size()];
}

/** The name that was probably meant; empty where none is near. */
QString nearest(const QString &word, const QStringList &names)
{
    constexpr qsizetype longest = 40;

    QString found;
    qsizetype fewest = 3;
    for (const QString &name : names) {
        // Three of four letters at least are right.
        if (word.size() > longest || name.size() < 3)
            continue;
        const qsizetype count = slips(word.toLower(), name);
        if (count < fewest && count * 3 <= name.size()) {
            fewest = count;
            found = name;
        }
    }
    return found;
}

} // namespace

QString choicesText(const QString &word, const QString &all, const QStringList &names)
{
    const QString meant = nearest(word, names);
    return (meant.isEmpty() ? QString() : u"\nDid you mean '%1'?"_s.arg(meant))
           + u"\n%1: %2"_s.arg(all, names.join(", "_L1));
}

Arguments::Arguments(const QStringList &words, std::span<const OptionRow> options, qsizetype fewest, qsizetype most)
{
    bool optionsEnded = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString &word = words.at(i);
        if (optionsEnded || !word.startsWith(u'-') || word == "-"_L1) {
            operands_.append(word);
        } else if (word == "--"_L1) {
            optionsEnded = true;
        } else if (!word.startsWith("--"_L1)) {
            throw UsageError{u"invalid option -- '%1'"_s.arg(word.mid(1, 1))};
        } else {
            const qsizetype equals = word.indexOf(u'=');
            const OptionRow option = findOption(options, word.mid(2, equals < 0 ? -1 : equals - 2));
            QString value;
            if (option.value.isEmpty() && equals >= 0)
                throw UsageError{u"option '--%1' doesn't allow an argument"_s.arg(option.name)};
            if (!option.value.isEmpty()) {
                if (equals < 0 && i + 1 == words.size())
                    throw UsageError{u"option '--%1' requires an argument"_s.arg(option.name)};
                value = equals < 0 ? words.at(++i) : word.mid(equals + 1);
            }
            options_.insert(option.name, value);
        }
    }
    if (operands_.size() < fewest)
        throw UsageError{operands_.isEmpty() ? u"missing operand"_s
                                             : u"missing operand after '%1'"_s.arg(operands_.last())};
    if (most >= 0 && operands_.size() > most)
        throw UsageError{u"extra operand '%1'"_s.arg(operands_.at(most))};
}
