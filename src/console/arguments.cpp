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

} // namespace

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
