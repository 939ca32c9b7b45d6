// SPDX-License-Identifier: GPL-3.0-or-later
// Inputs that take a reader's time: twice as much of one takes twice the steps, or it is refused. Steps are counted by
// the memory that is asked for on the way.

#include "support/allocations.h"
#include "support/suite.h"

#include "cli/profile.h"
#include "machine/source/regfile.h"
#include "machine/source/toolreport.h"
#include "platform/registrykey.h"
#include "platform/taskdocument.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype some = 2000; // parts of an input

QByteArray lettersOf(qsizetype count)
{
    return registryTexts(QStringList(count, u"a"_s));
}

QByteArray taskWithComment(qsizetype endTags)
{
    return "<Task>\n<!-- " + QByteArray("</Task>").repeated(endTags) + " -->\n<URI>\\a</URI></Task>";
}

QByteArray taskWithTasks(qsizetype count)
{
    return "<Task><RegistrationInfo><URI>\\a</URI></RegistrationInfo>" + QByteArray("<Task></Task>").repeated(count)
           + "</Task>";
}

QByteArray listOfTasks(qsizetype count)
{
    return QByteArray("<!-- \\a -->\n<Task></Task>\n").repeated(count);
}

QByteArray taskWithAttributes(int count)
{
    QByteArray tag = "<Task";
    for (int i = 0; i < count; ++i)
        tag += " a" + QByteArray::number(i) + "=\"\"";
    return "<!-- \\a -->\n" + tag + "></Task>";
}

QByteArray nestedTask(qsizetype levels)
{
    return "<!-- \\a -->\n<Task><Settings>" + QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels)
           + "</Settings></Task>";
}

QByteArray scriptOfKeys(qsizetype count)
{
    return "Windows Registry Editor Version 5.00\n" + QByteArray("[HKEY_CURRENT_USER\\a\\b\\c]\n").repeated(count);
}

QByteArray profileOfValues(qsizetype count)
{
    return "{\"$comment\": [" + QByteArray("1,").repeated(count) + "1]}";
}

QByteArray nestedProfile(qsizetype levels)
{
    return "{\"$comment\": " + QByteArray("{\"a\":").repeated(levels) + '1' + QByteArray(levels, '}') + '}';
}

qsizetype mistakesIn(const QByteArray &profile)
{
    ProfileMistakes mistakes;
    parseProfile(profile, u"f"_s, mistakes);
    return mistakes.size();
}

} // namespace

class TestLargeInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twiceTheInputTakesTwiceTheSteps_data();
    void twiceTheInputTakesTwiceTheSteps();
    void manyAttributesAreRefused();
    void deepTasksAreRefused();
    void deepTaskOfAMachineSaysNothing();
    void longNamesOfKeysAreRefused();
};

using Read = std::function<void(qsizetype parts)>;

void TestLargeInputs::twiceTheInputTakesTwiceTheSteps_data()
{
    addColumns<Read>("read");

    // clang-format off
    QTest::newRow("list of texts")         << Read([](qsizetype n) { QCOMPARE(textsOf(lettersOf(n)).size(), n); });
    QTest::newRow("end tags in a comment") << Read([](qsizetype n) { QCOMPARE(parseTaskExport("<!-- \\a -->" + taskWithComment(n), u"f"_s).size(), 1); });
    QTest::newRow("tasks within a task")   << Read([](qsizetype n) { QCOMPARE(parseTaskExport(taskWithTasks(n), u"f"_s).size(), 1); });
    QTest::newRow("list of tasks")         << Read([](qsizetype n) { QCOMPARE(parseTaskExport(listOfTasks(n), u"f"_s).size(), n); });
    QTest::newRow("keys of a script")      << Read([](qsizetype n) { QCOMPARE(parseRegistryScript(scriptOfKeys(n), u"f"_s).size(), n); });
    QTest::newRow("values of a profile")   << Read([](qsizetype n) { QCOMPARE(mistakesIn(profileOfValues(n)), 2); });
    QTest::newRow("levels of a profile")   << Read([](qsizetype n) { QCOMPARE(mistakesIn(nestedProfile(n / 4)), 2); });
    // clang-format on
}

void TestLargeInputs::twiceTheInputTakesTwiceTheSteps()
{
    QFETCH(Read, read);

    const auto steps = [&](qsizetype parts) {
        const std::size_t before = bytesAllocated();
        read(parts);
        return bytesAllocated() - before;
    };
    read(some); // what is made once and kept
    const std::size_t once = steps(some);
    const std::size_t twice = steps(2 * some);
    QVERIFY2(twice < once * 5 / 2, qUtf8Printable(u"%1 bytes became %2"_s.arg(once).arg(twice)));
}

void TestLargeInputs::manyAttributesAreRefused()
{
    QCOMPARE(parseTaskExport(taskWithAttributes(100), u"f"_s).size(), 1);
    try {
        parseTaskExport(taskWithAttributes(100000), u"f"_s);
        QFAIL("It was read.");
    } catch (const MachineError &error) {
        QCOMPARE(error.message, u"f:2: a tag of more than 4096 characters"_s);
    }
}

void TestLargeInputs::deepTasksAreRefused()
{
    QCOMPARE(parseTaskExport(nestedTask(62), u"f"_s).size(), 1);
    try {
        parseTaskExport(nestedTask(200000), u"f"_s);
        QFAIL("It was read.");
    } catch (const MachineError &error) {
        QCOMPARE(error.message, u"f:2: elements of more than 64 levels"_s);
    }
}

void TestLargeInputs::deepTaskOfAMachineSaysNothing()
{
    const QString deep = u"<Task><Settings><Enabled>"_s + u"<a>"_s.repeated(200000);
    QVERIFY(taskFacts(deep).enabled);
    QCOMPARE(withTaskEnabled(deep, false), deep);
}

void TestLargeInputs::longNamesOfKeysAreRefused()
{
    const QByteArray script = "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\";
    QCOMPARE(parseRegistryScript(script + QByteArray(255, 'a') + "\\b]\n", u"f"_s).size(), 1);
    try {
        parseRegistryScript(script + QByteArray(256, 'a') + "\\b]\n", u"f"_s);
        QFAIL("It was read.");
    } catch (const MachineError &error) {
        QCOMPARE(error.message, u"f:3: a key's name has at most 255 characters"_s);
    }
}

KESTRUNE_SUITE(TestLargeInputs)
#include "tst_largeinputs.moc"
