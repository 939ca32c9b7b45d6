// SPDX-License-Identifier: GPL-3.0-or-later
// The program as somebody uses it who can't see it: found, read and told what to do by the accessibility bus alone, on
// a display that nobody sees. What the toolkit makes of the names within the process, on each page and in each
// language, stands in tst_accessibility.

#include "support/processes.h"
#include "support/screenreader.h"
#include "support/suite.h"
#include "support/testmachine.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // milliseconds

// As X11 has them
constexpr int space = 0x20;
constexpr int down = 0xff54;
constexpr int f6 = 0xffc3;

/** Someone at the screen reader, who waits for what is to come. */
class Listener
{
public:
    explicit Listener(const ScreenReader &reader)
        : reader_(reader)
    {
    }

    bool hears(const QString &role, const QString &name) const
    {
        return until([&] { return reader_.find(role, name).has_value(); });
    }
    bool hearsNoMore(const QString &role, const QString &name) const
    {
        return until([&] { return !reader_.find(role, name).has_value(); });
    }
    bool hearsChecked(const QString &cell) const
    {
        return until([&] {
            const auto found = reader_.find(u"cell"_s, cell);
            return found && found->is(Shown::Checked);
        });
    }
    bool presses(const QString &button) const
    {
        return until([&] { return reader_.press(u"push button"_s, button); });
    }
    /** The keyboard belongs to a window of this name, which keys can be struck in. */
    bool hasActive(const QString &window) const
    {
        return until([&] {
            const auto frame = reader_.find(u"frame"_s, window);
            return frame && frame->is(Shown::Active);
        });
    }
    /** Goes down the list, to its end at most, until its row is read out. */
    bool goesTo(const QString &cell) const
    {
        std::optional<Shown> at = reader_.focused();
        if (!at && !strikes(f6, at))
            return false;
        while (at->name != cell) {
            if (!strikes(down, at))
                return false;
        }
        return true;
    }
    void strikes(int key) const { reader_.strike(key); }

private:
    template<typename Condition>
    static bool until(Condition condition)
    {
        return QTest::qWaitFor(condition, patience);
    }

    /** Strikes a key that takes the keyboard elsewhere, and says where. */
    bool strikes(int key, std::optional<Shown> &at) const
    {
        const QString before = at ? at->path : QString();
        reader_.strike(key);
        return until([&] {
            at = reader_.focused();
            return at && at->path != before;
        });
    }

    const ScreenReader &reader_;
};

} // namespace

class TestScreenReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void servicesByTheBusAlone();

private:
    ScreenReader reader_;
};

void TestScreenReader::initTestCase()
{
    const QString problem = reader_.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

/** Has a service found, checked, disabled, looked for and brought back. */
void TestScreenReader::servicesByTheBusAlone()
{
    TestMachine pc;
    pc.write(settingsKey, u"lang"_s, u"en"_s);
    pc.add({.name = u"Alpha"_s, .start = 2, .running = true, .displayName = u"First"_s});
    pc.add({.name = u"DcomLaunch"_s, .start = 2, .running = true, .displayName = u"Launcher"_s});
    pc.add({.name = u"DiagTrack"_s, .start = 2, .running = true, .displayName = u"Telemetry"_s});
    const auto start = [&pc](const QString &service) {
        return pc.read(servicesKey + u'\\' + service, u"Start"_s).toInt();
    };
    QProcess window;
    QProcessEnvironment environment = reader_.environment();
    environment.insert(u"KESTRUNE_MACHINE"_s, pc.folder());
    environment.insert(u"KESTRUNE_ELEVATED"_s, u"1"_s);
    window.setProcessEnvironment(environment);
    window.start(builtProgram(u"kestrune"_s), {});
    const Listener listener(reader_);

    QVERIFY(listener.hasActive(u"Kestrune"_s));
    QVERIFY(listener.presses(u"Services"_s));
    QVERIFY(listener.hears(u"table"_s, u"Services  (Experienced users)"_s));
    QVERIFY(listener.hears(u"label"_s, u"Services: 3  |  started: 3  |  stopped: 0  |  disabled: 0  "_s));
    QVERIFY(listener.hears(u"cell"_s, u"Launcher"_s));

    QVERIFY(listener.goesTo(u"Telemetry"_s));
    listener.strikes(space);
    QVERIFY(listener.hearsChecked(u"Telemetry"_s));
    QVERIFY(listener.presses(u"DISABLE checked services"_s));
    QVERIFY(listener.hearsNoMore(u"cell"_s, u"Telemetry"_s));
    QVERIFY(listener.hears(u"label"_s, u"Services: 3  |  started: 2  |  stopped: 1  |  disabled: 1  "_s));
    QCOMPARE(start(u"DiagTrack"_s), 4);
    QCOMPARE(start(u"Alpha"_s), 2);

    QVERIFY(listener.presses(u"View disabled services"_s));
    QVERIFY(listener.hears(u"cell"_s, u"Telemetry"_s));
    QVERIFY(listener.hearsNoMore(u"cell"_s, u"First"_s));
    QVERIFY(listener.presses(u"View started services"_s));
    QVERIFY(listener.hears(u"cell"_s, u"First"_s));

    QVERIFY(listener.presses(u"RESTORE disabled services"_s));
    QVERIFY(listener.hears(u"label"_s, u"Backup file exists"_s));
    QVERIFY(listener.presses(u"No"_s));
    QVERIFY(listener.hears(u"cell"_s, u"Telemetry"_s));
    QVERIFY(listener.hears(u"label"_s, u"Services: 3  |  started: 3  |  stopped: 0  |  disabled: 0  "_s));
    QCOMPARE(start(u"DiagTrack"_s), 2);
    window.kill();
    QVERIFY(window.waitForFinished(patience));
}

KESTRUNE_SUITE(TestScreenReader)
#include "tst_screenreader.moc"
