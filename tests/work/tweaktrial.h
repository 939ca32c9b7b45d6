// SPDX-License-Identifier: GPL-3.0-or-later
// Tweaks tried on a fresh machine, with all that they changed on it.

#pragma once

#include "joblines.h"
#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "support/testmachine.h"
#include "support/tweakrows.h"
#include "work/workthread.h"

#include <QTest>

/** What the tests do with a tweak. */
using Forms = QList<quint8>;
inline const Forms applyAlone{1};
inline const Forms resetAlone{0};
inline const Forms applyThenReset{1, 0};

/** What is to be seen after a trial. */
struct Outcome
{
    QStringList changes{}; ///< see changeLine()
    QStringList commands{};
    QList<int> pauses{};
    int needReboot = 0;
    QStringList lines{};

    friend bool operator==(const Outcome &, const Outcome &) = default;
};

/** Keys are one whatever their case, and so are the two names of the current control set. */
inline QString changeLine(const QString &kind, const QString &path, const QString &before, const QString &after)
{
    const QString folded =
        path.toUpper().replace(QStringLiteral("\\CONTROLSET001\\"), QStringLiteral("\\CURRENTCONTROLSET\\"));
    return kind + u' ' + folded + QStringLiteral(": ") + before + QStringLiteral(" -> ") + after;
}

inline QString registryLine(const QString &key, const QString &name, const QString &before, const QString &after)
{
    return changeLine(QStringLiteral("registry"), key + u'|' + name, before, after);
}

/** What every value of the rows reads before a trial: neither what is applied nor what is reset. */
inline QString valueBefore()
{
    return QStringLiteral("\"before\"");
}

/** A value as comparisons show it; empty where it is gone. */
inline QString shownValue(const QVariant &value)
{
    if (!value.isValid())
        return {};
    return value.typeId() == QMetaType::Int ? QStringLiteral("dword ") + value.toString()
                                            : u'"' + value.toString() + u'"';
}

/** The changes that the forms of a box's tweak make in its plain values, one after another. */
inline QStringList valueChanges(const QString &box, const Forms &forms)
{
    QMap<QString, QString> last;
    for (const quint8 form : forms) {
        for (const TweakRow &row : tweakRows()) {
            const std::optional<QVariant> &value = form == 1 ? row.applied : row.reset;
            if (row.box == box && value)
                last.insert(registryLine(row.key, row.name, {}, {}), shownValue(*value));
        }
    }
    QStringList changes;
    for (auto it = last.cbegin(); it != last.cend(); ++it)
        changes.append(QString(it.key()).chopped(4) + valueBefore() + QStringLiteral(" -> ") + it.value());
    return changes;
}

class TweakTrial
{
public:
    using Tweak = void (WorkThread::*)(quint8 apply, quint32 id);
    using Windows = TestMachine::Windows;

    /** @p group begins the names of the boxes whose values are there before; empty: none */
    explicit TweakTrial(Windows windows, const QString &group = {}, MachineOptions options = {})
        : machine(windows, options)
        , lines_(worker)
    {
        worker.winName =
            windows == Windows::Eleven ? QStringLiteral("Windows 11 Home") : QStringLiteral("Windows 10 Home");
        Database::Transaction together(machine.machine().database());
        for (const TweakRow &row : tweakRows()) {
            if (!group.isEmpty() && row.box.startsWith(group))
                machine.write(row.key, row.name, QStringLiteral("before"));
        }
        together.commit();
    }

    /** From here on changes count. */
    void begin()
    {
        // Never by reading its file here, which would let go of the locks that this process has on it.
        const QString former = former_.filePath(QStringLiteral("machine"));
        copyMachine(machine.machine(), former);
        before_ = Machine::open(former);
        machine.platform().takePauses();
    }

    void run(Tweak tweak, quint32 id, const Forms &forms)
    {
        for (const quint8 form : forms)
            (worker.*tweak)(form, id);
    }

    Outcome outcome()
    {
        Outcome result;
        for (const DiffRow &row : compareMachines(*before_, machine.machine())) {
            const QString path = row.kind == DiffKind::Registry ? row.path + u'|' + row.name : row.path;
            result.changes.append(changeLine(kindName(row.kind), path, row.before, row.after));
        }
        result.changes.sort();
        for (const LoggedCommand &command : machine.commands())
            result.commands.append(command.program + u' ' + command.arguments.join(u' '));
        result.pauses = machine.platform().takePauses();
        result.needReboot = worker.needReboot;
        result.lines = lines_.all();
        return result;
    }

    TestMachine machine;
    WorkThread worker;

private:
    JobLines lines_;
    QTemporaryDir former_;
    std::unique_ptr<Machine> before_;
};

/** Compares part by part, so that a failure tells which. */
#define COMPARE_OUTCOMES(actual, expected)                                                                             \
    do {                                                                                                               \
        const Outcome seen = (actual);                                                                                 \
        Outcome wanted = (expected);                                                                                   \
        wanted.changes.sort();                                                                                         \
        QCOMPARE(seen.changes, wanted.changes);                                                                        \
        QCOMPARE(seen.commands, wanted.commands);                                                                      \
        QCOMPARE(seen.pauses, wanted.pauses);                                                                          \
        QCOMPARE(seen.needReboot, wanted.needReboot);                                                                  \
        QCOMPARE(seen.lines, wanted.lines);                                                                            \
    } while (false)

/** Data rows: each id up to @p lastId and one beyond, each form, on both generations of Windows. */
inline void eachTweak(quint32 lastId)
{
    addColumns<TestMachine::Windows, quint32, Forms>("windows", "id", "forms");
    for (const auto windows : {TestMachine::Windows::Eleven, TestMachine::Windows::Ten}) {
        for (quint32 id = 0; id <= lastId + 1; ++id) {
            for (const auto &[name, forms] : {std::pair("apply", applyAlone), std::pair("reset", resetAlone),
                                              std::pair("apply then reset", applyThenReset)}) {
                QTest::addRow("%u %s on Windows %d", id, name, windows == TestMachine::Windows::Eleven ? 11 : 10)
                    << windows << id << forms;
            }
        }
    }
}
