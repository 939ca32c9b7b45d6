// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse diff

#include "machine/compare/machinediff.h"
#include "machine/machine.h"
#include "platform/processground.h"
#include "progress.h"
#include "subcommands.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** The patterns of a file: one in each line that has anything, and is no comment. */
QList<QRegularExpression> patternsIn(const QString &path)
{
    QFile file(absolutePath(path));
    if (!file.open(QIODevice::ReadOnly))
        throw Failure{ExitBadArguments, u"%1: %2"_s.arg(path, file.errorString())};
    QList<QRegularExpression> patterns;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QString text = line.trimmed();
        if (text.isEmpty() || text.startsWith(u'#'))
            continue;
        QString expression = QRegularExpression::escape(text);
        expression.replace(u"\\*"_s, u".*"_s);
        patterns.append(QRegularExpression(QRegularExpression::anchoredPattern(expression),
                                           QRegularExpression::CaseInsensitiveOption
                                               | QRegularExpression::DotMatchesEverythingOption));
    }
    return patterns;
}

bool isExpected(const DiffRow &row, const QList<QRegularExpression> &patterns)
{
    const QString place = kindName(row.kind) + u' ' + row.path;
    const QString value = place + u'\\' + row.name;
    return std::any_of(patterns.cbegin(), patterns.cend(), [&](const QRegularExpression &pattern) {
        return pattern.match(place).hasMatch() || pattern.match(value).hasMatch();
    });
}

int runDiff(const Arguments &arguments)
{
    if (arguments.has("json"_L1) && arguments.has("html"_L1))
        throw UsageError{u"--json and --html can't be given together"_s};
    if (arguments.has("html"_L1))
        checkReportFile(arguments.value("html"_L1));
    const QList<QRegularExpression> expected =
        arguments.has("expect"_L1) ? patternsIn(arguments.value("expect"_L1)) : QList<QRegularExpression>();
    const std::unique_ptr<Machine> before = openMachine(arguments.operand(0));
    const std::unique_ptr<Machine> after = openMachine(arguments.operand(1));
    Progress progress;
    QList<DiffRow> rows = compareMachines(*before, *after, progress.callback());
    progress.clear();
    rows.removeIf([&expected](const DiffRow &row) { return isExpected(row, expected); });
    if (arguments.has("html"_L1))
        writeReportFile(arguments.value("html"_L1), diffHtml(rows, before->folder(), after->folder()).toUtf8());
    else if (arguments.has("json"_L1))
        print(diffJson(rows));
    else
        print(diffText(rows));
    return arguments.has("expect"_L1) && !rows.isEmpty() ? ExitJobFailed : ExitDone;
}

// clang-format off
constexpr OptionRow options[] = {
    {"json"_L1,   {},        "print JSON"_L1},
    {"html"_L1,   "FILE"_L1, "write a web page"_L1},
    {"expect"_L1, "FILE"_L1, "leave out what the file expects to differ; exit with 1 if anything else does"_L1,
     "Leaves out what the file expects to differ, and exits with 1 if anything else does: for a script.\n"
     "Each line of it is a kind and a path, and after a backslash the name of a value;\n.B *\n"
     "stands for any text, and a line that begins with\n.B #\nis a comment:\n"
     ".B registry HKEY_CURRENT_USER\\\\Software\\\\Kestrune\\\\*"_L1},
};
// clang-format on

} // namespace

const Subcommand diffSubcommand{
    "diff"_L1, "A B"_L1, "show what differs between two machines"_L1, options, 2, 2, runDiff,
};
