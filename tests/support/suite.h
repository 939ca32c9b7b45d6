// SPDX-License-Identifier: GPL-3.0-or-later
// Several suites of tests in one program, of which a run takes one: `tests_work tst_command [Qt Test's arguments]`.

#pragma once

#include <QCoreApplication>
#include <QTest>

#include <optional>

/** A suite that main() knows by the name of the file it stands in. */
class Suite
{
public:
    using Run = int (*)(int argc, char **argv);
    /** @param file its source, of which the name without folder and ending is the suite's */
    Suite(const char *file, Run run);
};

/**
 * What a suite does when it starts its own program as somebody else's: it looks at the arguments and the environment,
 * and gives an exit code where it is meant.
 */
class SuiteHelper
{
public:
    using Run = std::optional<int> (*)(int argc, char **argv);
    explicit SuiteHelper(Run run);
};

/** Runs the tests of a class under an application object of the given class. */
template<typename Application, typename Test>
int runSuite(int argc, char **argv)
{
    QTest::Internal::callInitMain<Test>();
    Application application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

template<typename>
using ColumnName = const char *;

/** Adds the columns of a table of cases, in order. */
template<typename... Types>
void addColumns(ColumnName<Types>... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/** A suite that needs no display. */
#define KESTRUNE_SUITE(Test) static const Suite thisSuite(__FILE__, runSuite<QCoreApplication, Test>);
/** A suite that opens windows; its file includes QApplication. */
#define KESTRUNE_WINDOW_SUITE(Test) static const Suite thisSuite(__FILE__, runSuite<QApplication, Test>);
