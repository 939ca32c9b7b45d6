// SPDX-License-Identifier: GPL-3.0-or-later
// The manual page and the help of kestrune-rehearse: they tell the same, and what they show to try can be tried.

#include "support/processes.h"
#include "support/suite.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString help(const QStringList &command = {})
{
    return QString::fromUtf8(
        runProgram(builtProgram(u"kestrune-rehearse"_s), command + QStringList{u"--help"_s}).output);
}

/** All that a pattern with one group catches. */
QStringList caught(const QString &text, const QString &pattern)
{
    QStringList found;
    static const auto options = QRegularExpression::MultilineOption;
    for (const QRegularExpressionMatch &match : QRegularExpression(pattern, options).globalMatch(text))
        found.append(match.captured(1));
    return found;
}

QStringList commandsOfHelp()
{
    return caught(help().section(u"Commands:\n"_s, 1).section(u"\n\n"_s, 0, 0), u"^  ([a-z]+) +[a-z]"_s);
}

/** The manual as plain text with its requests: fonts are gone, and dashes are dashes. */
QString manual()
{
    QString text = QString::fromUtf8(readFile(QStringLiteral(KESTRUNE_MANUAL)));
    text.replace(u"\\-"_s, u"-"_s).replace(u"\\(dq"_s, u"\""_s).remove(QRegularExpression(u"\\\\f[A-Z]"_s));
    return text;
}

/** What the manual says of a command. */
QString sectionOf(const QString &command)
{
    const QString after = manual().section(QRegularExpression(u"\\n\\.SS %1 "_s.arg(command)), 1);
    return after.section(QRegularExpression(u"\\n\\.S[SH] "_s), 0, 0);
}

/** The command lines that a text shows after blanks. */
QStringList commandLines(const QString &text)
{
    return caught(text, u"^ +(kestrune-rehearse .*)$"_s);
}

/** Lines that open a window, take long, or read this computer have tests of their own. */
bool canBeTriedHere(const QString &line)
{
    static const QStringList others{u"gui"_s, u"tour"_s, u"capture"_s};
    return !others.contains(line.section(u' ', 1, 1));
}

/** Runs lines in one folder, as a person would who copies them; the first that fails, or an empty text. */
QString firstThatFails(const QStringList &lines)
{
    const QTemporaryDir folder;
    for (const QString &line : lines) {
        QProcess shell;
        shell.setWorkingDirectory(folder.path());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, QCoreApplication::applicationDirPath() + u':' + environment.value(u"PATH"_s));
        shell.setProcessEnvironment(environment);
        shell.start(u"/bin/sh"_s, {u"-c"_s, line});
        // It tells by 1 that what the lines before have taken back isn't in force.
        const int worst = line.contains(u" verify "_s) ? 1 : 0;
        if (!shell.waitForFinished(120000) || shell.exitStatus() != QProcess::NormalExit || shell.exitCode() > worst)
            return line + u'\n' + QString::fromUtf8(shell.readAllStandardError());
    }
    return {};
}

} // namespace

class TestManual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaksPlainly_data();
    void speaksPlainly();
    void theManualHasEachCommandOfTheHelpAndNoOther();
    void optionsAreThoseOfTheHelp_data();
    void optionsAreThoseOfTheHelp();
    void jobsAreThoseOfTheHelp();
    void featuresToKeepAreThoseOfTheHelp();
    void theVersionIsTheProgramsOwn();
    void whatItSharesWithTheHelpIsThatOfTheTables();
    void examplesOfTheHelpCanBeTried();
    void examplesOfTheManualCanBeTried();
    void eachCommandHasAnExample();
};

void TestManual::theManualHasEachCommandOfTheHelpAndNoOther()
{
    QVERIFY(commandsOfHelp().contains(u"preview"_s));
    QCOMPARE(caught(manual(), u"^\\.SS ([a-z]+) "_s), commandsOfHelp());
}

void TestManual::optionsAreThoseOfTheHelp_data()
{
    QTest::addColumn<QString>("command");
    for (const QString &command : commandsOfHelp())
        QTest::newRow(qPrintable(command)) << command;
}

void TestManual::optionsAreThoseOfTheHelp()
{
    QFETCH(QString, command);
    QStringList told = caught(help({command}), u"^  (--[a-z-]+(?: [A-Z][A-Z=,.]*)?) "_s);
    told.removeAll(u"--help"_s);
    QStringList written = caught(sectionOf(command), u"^\\.TP\\n\\.BI? (--.*)$"_s);
    written.replaceInStrings(u"\" "_s, u" "_s).replaceInStrings(u"\""_s, QString()).replaceInStrings(u"  "_s, u" "_s);
    written.replaceInStrings(u" ,..."_s, u",..."_s);
    QCOMPARE(written, told);
}

void TestManual::jobsAreThoseOfTheHelp()
{
    const QStringList told =
        caught(help({u"run"_s}).section(u"Jobs:\n"_s, 1).section(u"\n\n"_s, 0, 0), u"^  ([a-z-]+) "_s);
    QVERIFY(told.contains(u"svc-disable"_s));
    QCOMPARE(caught(sectionOf(u"run"_s), u"^\\.TP\\n\\.BI? ([a-z][a-z-]*)"_s), told);
}

void TestManual::featuresToKeepAreThoseOfTheHelp()
{
    const QStringList told =
        caught(help({u"run"_s}), u"^  (printer, .*)\\.$"_s).value(0).split(u", "_s, Qt::SkipEmptyParts);
    QCOMPARE(told.size(), 9);
    const QString section = manual().section(u".SH FEATURES TO KEEP\n"_s, 1).section(u"\n.SH "_s, 0, 0);
    QCOMPARE(caught(section, u"^\\.BR? ([a-z-]+)(?: [,.])?$"_s), told);
}

void TestManual::theVersionIsTheProgramsOwn()
{
    const QString version =
        QString::fromUtf8(runProgram(builtProgram(u"kestrune-rehearse"_s), {u"--version"_s}).output).section(u' ', -1);
    QCOMPARE(caught(manual(), u"^\\.TH .* \"Kestrune ([0-9.]+)\""_s), QStringList{version.trimmed()});
}

void TestManual::whatItSharesWithTheHelpIsThatOfTheTables()
{
    const QString page = QStringLiteral(KESTRUNE_MANUAL);
    // `./dev manual` writes it.
    QCOMPARE(QString::fromUtf8(runProgram(builtProgram(u"manualwriter"_s), {page}).output),
             QString::fromUtf8(readFile(page)));
}

void TestManual::examplesOfTheHelpCanBeTried()
{
    QStringList lines = commandLines(help().section(u"To begin with:"_s, 1));
    QVERIFY(lines.size() >= 3);
    for (const QString &command : commandsOfHelp())
        lines += commandLines(help({command}).section(u"Examples:"_s, 1));
    lines.removeIf([](const QString &line) { return !canBeTriedHere(line); });
    QCOMPARE(firstThatFails(lines), QString());
}

void TestManual::examplesOfTheManualCanBeTried()
{
    QStringList lines = commandLines(manual().section(u".SH EXAMPLES"_s, 1));
    QVERIFY(lines.size() >= 3);
    lines.removeIf([](const QString &line) { return !canBeTriedHere(line); });
    QCOMPARE(firstThatFails(lines), QString());
}

void TestManual::eachCommandHasAnExample()
{
    for (const QString &command : commandsOfHelp())
        QVERIFY2(help({command}).contains(u"Examples:\n  kestrune-rehearse %1 "_s.arg(command)), qPrintable(command));
}

void TestManual::speaksPlainly_data()
{
    QTest::addColumn<QString>("text");
    const QDir root(QFileInfo(QStringLiteral(KESTRUNE_MANUAL)).path() + u"/.."_s);
    for (const char *file : {"README.md", "SECURITY.md", "CHANGELOG.md", "docs/kestrune-rehearse.1"})
        QTest::newRow(file) << QString::fromUtf8(readFile(root.filePath(QLatin1StringView(file))));
    QTest::newRow("help") << help();
    for (const QString &command : commandsOfHelp())
        QTest::newRow(qPrintable(u"help of "_s + command)) << help({command});
}

/** Words that are English and that nobody says of a program. */
void TestManual::speaksPlainly()
{
    QFETCH(QString, text);
    static const QRegularExpression odd(
        u"\\b(behind (?!the seam)|mend|mends|mended|bears?|comes to be|hold(s)? against|"
        "held against|can't be told|is told|once more|what there is|all that there is|"
        "the answer is|in the end)\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = odd.match(text.simplified());
    QVERIFY2(!match.hasMatch(), qPrintable(text.simplified().mid(match.capturedStart() - 60, 120)));
}

KESTRUNE_SUITE(TestManual)
#include "tst_manual.moc"
