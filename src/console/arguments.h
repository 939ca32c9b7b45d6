// SPDX-License-Identifier: GPL-3.0-or-later
// Command lines as GNU tools take them.

#pragma once

#include <QHash>
#include <QStringList>

#include <span>

struct OptionRow
{
    QLatin1StringView name;  ///< without its two dashes
    QLatin1StringView value; ///< what its value is called; empty for an option without one
    QLatin1StringView help;
    QLatin1StringView manual{}; ///< in the markup of the manual page, where that says more
};

/** A mistake in the command line, in the words that follow the program's name. */
struct UsageError
{
    QString message;
};

/**
 * What may follow the complaint about a word that is none of the names: lines with the one that was probably meant, and
 * with all of them after @p all, such as "Commands".
 */
QString choicesText(const QString &word, const QString &all, const QStringList &names);

/** The operands and options after a subcommand's name. */
class Arguments
{
public:
    /** Options may stand anywhere, as "--name value" or "--name=value"; "--" ends them. Throws UsageError. */
    Arguments(const QStringList &words, std::span<const OptionRow> options, qsizetype fewest, qsizetype most);

    const QStringList &operands() const { return operands_; }
    QString operand(qsizetype index) const { return operands_.value(index); }
    bool has(QLatin1StringView option) const { return options_.contains(option); }
    QString value(QLatin1StringView option) const { return options_.value(option); }

private:
    QStringList operands_;
    QHash<QString, QString> options_;
};
