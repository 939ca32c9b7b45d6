// SPDX-License-Identifier: GPL-3.0-or-later
// Prints the manual page of kestrune-rehearse with what it shares with the help as the program's own tables have it:
// the version, the commands and their operands, the options, the jobs and the features to keep. All else stays as it
// is.

#include "console/console.h"
#include "rehearse/jobs.h"
#include "rehearse/subcommands.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QString inMarkup(const QString &text)
{
    return QString(text).replace(u'-', u"\\-"_s);
}

/** The help's words as a sentence: "disable and stop services" becomes "Disables and stops services." */
QString sentenceOf(const QString &help)
{
    static const QRegularExpression verbs(u"^(\\w+)( and \\w+)?"_s);
    const QRegularExpressionMatch match = verbs.match(help);
    QString sentence = match.captured(1) + u's';
    if (match.hasCaptured(2))
        sentence += match.captured(2) + u's';
    sentence[0] = sentence.at(0).toUpper();
    return sentence + help.sliced(match.capturedLength()) + u'.';
}

/** An option or a job, with its value or operands, and what is said of it. */
QString entryOf(const QString &name, const QString &value, const QString &help, const QString &manual)
{
    QString head = u".B "_s + inMarkup(name);
    if (!value.isEmpty()) {
        // "GROUP ID on|off", "FEATURE=STATE,...": what stands for something, and the rest.
        static const QRegularExpression parts(u"^([A-Z=]+(?: [A-Z=]+)*)(.*)$"_s);
        const QRegularExpressionMatch match = parts.match(value);
        const QString rest = match.captured(2).replace(u' ', u"\\ "_s);
        head = u".BI %1 \" %2\" %3"_s.arg(inMarkup(name), match.captured(1), rest).trimmed();
    }
    return u".TP\n"_s + head + u'\n' + (manual.isEmpty() ? sentenceOf(help) : manual) + u'\n';
}

QString optionEntries(const Subcommand &subcommand)
{
    QString entries;
    for (const OptionRow &option : subcommand.options)
        entries += entryOf(u"--"_s + option.name, option.value, option.help, option.manual);
    return entries;
}

QString jobEntries()
{
    QString entries;
    for (const JobRow &job : jobRows())
        entries += entryOf(job.name, job.operands, job.help, job.manual);
    return entries;
}

QString headOf(const Subcommand &subcommand)
{
    static const QRegularExpression option(u" --[a-z]+ [A-Z]+"_s); // it is among the options
    static const QRegularExpression variable(u"([A-Z_]+(?: [A-Z_]+)*)"_s);
    QString operands = QString(subcommand.operands).remove(option);
    operands.replace(variable, u"\\fI\\1\\fR"_s);
    return u".SS %1 %2\n"_s.arg(subcommand.name, operands);
}

QString featureLines()
{
    QStringList names = inMarkup(keepNames()).split(u", "_s);
    const QString last = names.takeLast();
    const QString lastButOne = names.takeLast();
    QString lines;
    for (const QString &name : std::as_const(names))
        lines += u".BR %1 ,\n"_s.arg(name);
    return lines + u".B %1\nand\n.BR %2 .\n"_s.arg(lastButOne, last);
}

/** Puts entries in place of the section's next ones from an offset on, or at its end; the offset after them. */
qsizetype putEntries(QString &section, qsizetype from, const QString &entries)
{
    static const QRegularExpression present(u"^\\.TP\\n(?:(?!\\.PP\\n|\\.\\\\\").*\\n)+"_s,
                                            QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = present.match(section, from);
    const qsizetype end = section.indexOf(u".\\\" ---"_s, from);
    const qsizetype start = match.hasMatch() ? match.capturedStart() : std::max(end, from);
    section.replace(start, match.capturedLength(), entries);
    return start + entries.size();
}

QString writtenSection(const QString &section, const Subcommand &subcommand)
{
    QString written = headOf(subcommand) + section.section(u'\n', 1);
    const qsizetype end = putEntries(written, 0, optionEntries(subcommand));
    if (&subcommand == &runSubcommand)
        putEntries(written, end, jobEntries());
    return written;
}

QString writtenPage(const QString &page)
{
    static const QRegularExpression version(u"\"Kestrune [0-9.]+\""_s);
    static const QRegularExpression sectionStart(u"^(?=\\.S[SH] )"_s, QRegularExpression::MultilineOption);

    const QString features = u"They are\n"_s;
    std::span<const Subcommand *const> left = allSubcommands();
    QString written;
    for (const QString &section : page.split(sectionStart)) {
        if (section.startsWith(".SS "_L1)) {
            if (left.empty() || left.front()->name != section.section(u' ', 1, 1))
                qFatal("The sections of the commands aren't those of the help in its order");
            written += writtenSection(section, *left.front());
            left = left.subspan(1);
        } else if (section.startsWith(".SH FEATURES TO KEEP"_L1)) {
            written += section.section(features, 0, 0) + features + featureLines();
        } else {
            written += section;
        }
    }
    if (!left.empty())
        qFatal("There is no section of the command %s", left.front()->name.data());
    return written.replace(version, u"\"Kestrune %1\""_s.arg(QLatin1StringView(KESTRUNE_VERSION)));
}

} // namespace

int main(int argc, char *argv[])
{
    useBinaryOutput();
    if (argc != 2)
        qFatal("Usage: manualwriter PAGE");
    QFile file(QFile::decodeName(argv[1]));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", argv[1], qUtf8Printable(file.errorString()));
    print(writtenPage(QString::fromUtf8(file.readAll())));
    return 0;
}
