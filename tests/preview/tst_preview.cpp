// SPDX-License-Identifier: GPL-3.0-or-later
// Previews: items from three machines, and their reports.

#include "support/registryvalues.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include "platform/windowsfacts.h"
#include "preview/preview.h"
#include "preview/previewtexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString servicesKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_s;
const QString runKey = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
const QString otherKey = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Other"_s;

/** A machine, what an optimization made of it, and what a restoration made of that. */
struct Three
{
    SmallMachine before;
    SmallMachine optimized;
    SmallMachine restored;

    template<typename Change>
    void everywhere(Change change)
    {
        for (SmallMachine *machine : {&before, &optimized, &restored})
            change(**machine);
    }
    QList<PreviewItem> items() { return previewItems(*before, *optimized, *restored); }
};

PreviewItem onlyItem(const QList<PreviewItem> &items)
{
    return items.size() == 1 ? items.first() : PreviewItem();
}

} // namespace

class TestPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingChanges();
    void whatComesBack_data();
    void whatComesBack();
    void worstOfTheDetailsIsTheItems();
    void serviceIsOneItemWithItsDisplayName();
    void serviceAsAWholeInAFewWords();
    void taskTellsWhatItIsFor();
    void packageAsAWholeIsInstalledOrNot();
    void optionAsAWholeIsAppliedOrNot_data();
    void optionAsAWholeIsAppliedOrNot();
    void manyValuesAreCounted();
    void programAtLogonIsCalledByItsValue();
    void keyThatListingMakesStartsNothing_data();
    void keyThatListingMakesStartsNothing();
    void startWithoutAStateIsOff();
    void ownRecordsStandApartAndDoNotCount();
    void sortedByGroupAndTitle();
    void textTellsCountsAndSides();
    void jsonHoldsEverything();
    void reportsTellWhatStopsWorking();
    void undoIsToldOfWhereItIsOfUse();
    void pageIsEscapedAndNeedsNothingElse();
};

void TestPreview::nothingChanges()
{
    Three three;
    QVERIFY(three.items().isEmpty());
    QVERIFY(previewHtml({}, u"pc"_s).contains(u"Nothing would change."_s));
}

void TestPreview::whatComesBack_data()
{
    addColumns<int, int, int, Restorability>("before", "optimized", "restored", "expected");

    constexpr int absent = -1;
    QTest::newRow("as it was") << 1 << 2 << 1 << Restorability::Exactly;
    QTest::newRow("gone again") << absent << 2 << absent << Restorability::Exactly;
    QTest::newRow("a default") << 1 << 2 << 3 << Restorability::Otherwise;
    QTest::newRow("a default where nothing was") << absent << 2 << 3 << Restorability::Otherwise;
    QTest::newRow("deleted where something was") << 1 << 2 << absent << Restorability::Otherwise;
    QTest::newRow("stays changed") << 1 << 2 << 2 << Restorability::NotAtAll;
    QTest::newRow("stays away") << 1 << absent << absent << Restorability::NotAtAll;
    QTest::newRow("only restored") << 1 << 1 << 3 << Restorability::Unasked;
    QTest::newRow("only restored where nothing was") << absent << absent << 3 << Restorability::Unasked;
}

void TestPreview::whatComesBack()
{
    QFETCH(int, before);
    QFETCH(int, optimized);
    QFETCH(int, restored);
    QFETCH(Restorability, expected);
    Three three;
    const auto set = [](Machine &machine, int value) {
        machine.registry().make(otherKey);
        if (value >= 0)
            setNumber(machine, otherKey, u"value"_s, static_cast<quint32>(value));
    };
    set(*three.before, before);
    set(*three.optimized, optimized);
    set(*three.restored, restored);

    const QList<PreviewItem> items = three.items();
    QCOMPARE(items.size(), 1);
    QCOMPARE(items.first().details.size(), 1);
    QCOMPARE(items.first().comesBack(), expected);
    const auto text = [](int value) { return value < 0 ? QString() : u"dword %1"_s.arg(value); };
    QCOMPARE(items.first().details.first().before, text(before));
    QCOMPARE(items.first().details.first().optimized, text(optimized));
    QCOMPARE(items.first().details.first().restored, text(restored));
}

void TestPreview::worstOfTheDetailsIsTheItems()
{
    const auto of = [](const QList<Restorability> &values) {
        PreviewItem item;
        for (const Restorability value : values)
            item.details.append(PreviewDetail{{}, {}, {}, {}, {}, value});
        return item.comesBack();
    };
    QCOMPARE(of({Restorability::Exactly}), Restorability::Exactly);
    QCOMPARE(of({Restorability::Exactly, Restorability::Otherwise}), Restorability::Otherwise);
    QCOMPARE(of({Restorability::Unasked}), Restorability::Unasked);
    QCOMPARE(of({Restorability::Exactly, Restorability::Unasked}), Restorability::Otherwise);
    QCOMPARE(of({Restorability::Unasked, Restorability::NotAtAll, Restorability::Exactly}), Restorability::NotAtAll);
}

void TestPreview::serviceIsOneItemWithItsDisplayName()
{
    Three three;
    three.everywhere([](Machine &machine) {
        setText(machine, servicesKey + u"Sample"_s, u"DisplayName"_s, u"A sample"_s);
        setNumber(machine, servicesKey + u"Sample"_s, u"Start"_s, 2);
        machine.setRunning(u"Sample"_s, true);
    });
    setNumber(*three.optimized, servicesKey + u"Sample"_s, u"Start"_s, 4);
    three.optimized->setRunning(u"Sample"_s, false);

    const PreviewItem item = onlyItem(three.items());
    QCOMPARE(item.group, PreviewGroup::Services);
    QCOMPARE(item.title, u"A sample"_s);
    QCOMPARE(item.name, u"Sample"_s);
    QCOMPARE(item.details.size(), 2);
    QCOMPARE(item.details.last().what, u"start mode"_s);
    QCOMPARE(item.details.last().place, servicesKey + u"Sample\\Start"_s);
}

void TestPreview::serviceAsAWholeInAFewWords()
{
    Three three;
    three.everywhere([](Machine &machine) {
        setText(machine, servicesKey + u"Sample"_s, u"Description"_s, u"Does  this\nand that"_s);
        setNumber(machine, servicesKey + u"Sample"_s, u"Start"_s, 2);
        setNumber(machine, servicesKey + u"Sample"_s, u"DelayedAutostart"_s, 1);
        machine.setRunning(u"Sample"_s, true);
    });
    setNumber(*three.optimized, servicesKey + u"Sample"_s, u"Start"_s, 4);
    three.optimized->setRunning(u"Sample"_s, false);
    setNumber(*three.restored, servicesKey + u"Sample"_s, u"DelayedAutostart"_s, 0);

    const PreviewItem item = onlyItem(three.items());
    QCOMPARE(item.about, u"Does this and that"_s);
    const PreviewSides sides = sidesOf(item);
    QCOMPARE(sides.before, u"automatic (delayed), running"_s);
    QCOMPARE(sides.optimized, u"disabled, stopped"_s);
    QCOMPARE(sides.restored, u"automatic, running"_s);
    QCOMPARE(item.comesBack(), Restorability::Otherwise);
    QVERIFY(whyOf(item).contains(u"with a delay"_s));
}

void TestPreview::taskTellsWhatItIsFor()
{
    const QString document = u"<Task><RegistrationInfo><Description>%1</Description></RegistrationInfo>"
                             "<Settings><Enabled>%2</Enabled></Settings></Task>"_s;
    struct Case
    {
        QString description, about;
    };
    for (const Case &task : {Case{u"Cleans up"_s, u"Cleans up"_s}, {u"$(@%SystemRoot%\\x.dll,-1)"_s, QString()}}) {
        Three three;
        three.everywhere([&](Machine &machine) {
            machine.setTask({u"\\Vendor\\Clean"_s, document.arg(task.description, u"true"_s)});
        });
        three.optimized->setTask({u"\\Vendor\\Clean"_s, document.arg(task.description, u"false"_s)});
        const PreviewItem item = onlyItem(three.items());
        QCOMPARE(item.title, u"Clean"_s);
        QCOMPARE(item.about, task.about);
        QCOMPARE(item.name, u"\\Vendor\\Clean"_s);
        QCOMPARE(sidesOf(item).optimized, u"disabled"_s);
    }
}

void TestPreview::packageAsAWholeIsInstalledOrNot()
{
    const QString packages = u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows"
                             "\\CurrentVersion\\AppModel\\Repository\\Packages\\"_s;
    Three three;
    three.everywhere([&](Machine &machine) {
        setText(machine, packages + u"Vendor.Chat_1.0_x64__a"_s, u"DisplayName"_s, u"Chat"_s);
        setText(machine, packages + u"Vendor.Chat_1.0_x64__a"_s, u"PackageRootFolder"_s, u"C:\\x"_s);
        setText(machine, packages + u"Vendor.Maps_1.0_x64__a"_s, u"DisplayName"_s, u"ms-resource:Name"_s);
    });
    for (SmallMachine *machine : {&three.optimized, &three.restored})
        (*machine)->registry().removeKey(*(*machine)->registry().find(packages + u"Vendor.Chat_1.0_x64__a"_s));
    three.optimized->registry().removeKey(*three.optimized->registry().find(packages + u"Vendor.Maps_1.0_x64__a"_s));

    const QList<PreviewItem> items = three.items();
    QCOMPARE(items.size(), 2);
    QCOMPARE(items.first().title, u"Chat"_s);
    QCOMPARE(items.first().name, u"Vendor.Chat"_s);
    QCOMPARE(sidesOf(items.first()).before, u"installed"_s);
    QCOMPARE(sidesOf(items.first()).restored, u"not installed"_s);
    QCOMPARE(items.first().comesBack(), Restorability::NotAtAll);
    QCOMPARE(items.last().title, u"Vendor.Maps"_s);
    QCOMPARE(sidesOf(items.last()).restored, u"installed"_s);
    // What is lost can be had again, and only that says so.
    const QString store = u"It is in the Store: ms-windows-store://pdp/?PFN=Vendor.Chat_a"_s;
    for (const PreviewWay way : {PreviewWay::OptimizeAndRestore, PreviewWay::ApplyAndUndo}) {
        QVERIFY2(whyOf(items.first(), way).endsWith(store), qPrintable(whyOf(items.first(), way)));
        QVERIFY(!whyOf(items.last(), way).contains(u"Store"_s));
    }
}

void TestPreview::optionAsAWholeIsAppliedOrNot_data()
{
    addColumns<quint32, quint32, QStringList>("optimized", "restored", "expected");

    const QString own = u"your setting"_s;
    QTest::newRow("back") << 1U << 0U << QStringList{own, u"applied"_s, own};
    QTest::newRow("a default") << 1U << 7U << QStringList{own, u"applied"_s, u"a fixed value"_s};
    QTest::newRow("stays") << 1U << 1U << QStringList{own, u"applied"_s, u"applied"_s};
    QTest::newRow("only restored") << 0U << 7U << QStringList{own, own, u"a fixed value"_s};
}

void TestPreview::optionAsAWholeIsAppliedOrNot()
{
    QFETCH(quint32, optimized);
    QFETCH(quint32, restored);
    QFETCH(QStringList, expected);
    const QString key = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Power"_s;
    const QString name = u"PowerThrottlingOff"_s;
    Three three;
    setNumber(*three.before, key, name, 0);
    setNumber(*three.optimized, key, name, optimized);
    setNumber(*three.restored, key, name, restored);

    const PreviewItem item = onlyItem(three.items());
    QCOMPARE(item.title, u"Disable CPU power throttling"_s);
    QCOMPARE(item.about, u"No known effect: Windows reads this setting elsewhere."_s);
    if (item.comesBack() != Restorability::Exactly)
        QVERIFY2(whyOf(item).endsWith(u"Nothing changes either."_s), qPrintable(whyOf(item)));
    QCOMPARE(item.details.first().place, key);
    const PreviewSides sides = sidesOf(item);
    QCOMPARE(QStringList({sides.before, sides.optimized, sides.restored}), expected);
}

void TestPreview::manyValuesAreCounted()
{
    Three three;
    three.everywhere([](Machine &machine) {
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            setNumber(machine, otherKey, name, 1);
    });
    for (const QString &name : {u"a"_s, u"b"_s})
        setNumber(*three.optimized, otherKey, name, 2);
    setNumber(*three.restored, otherKey, u"b"_s, 2);
    setNumber(*three.restored, otherKey, u"c"_s, 0);

    const PreviewSides sides = sidesOf(onlyItem(three.items()));
    QCOMPARE(sides.before, u"3 values"_s);
    QCOMPARE(sides.optimized, u"2 changed"_s);
    QCOMPARE(sides.restored, u"1 as before, 1 otherwise, 1 stay changed"_s);
}

void TestPreview::programAtLogonIsCalledByItsValue()
{
    Three three;
    three.everywhere([](Machine &machine) { setText(machine, runKey, u"Chat"_s, u"\"C:\\chat.exe\""_s); });
    three.optimized->registry().removeValue(*three.optimized->registry().find(runKey), u"Chat"_s);

    const PreviewItem item = onlyItem(three.items());
    QCOMPARE(item.group, PreviewGroup::Autorun);
    QCOMPARE(item.title, u"Chat"_s);
    QCOMPARE(item.comesBack(), Restorability::Exactly);
}

void TestPreview::keyThatListingMakesStartsNothing_data()
{
    addColumns<QString>("key");
    for (const QString &run : WindowsKey::runKeys)
        QTest::newRow(qPrintable(run)) << run;
    for (const QString &task : {WindowsKey::terminalTask, WindowsKey::xboxTask})
        QTest::newRow(qPrintable(task.section(u'\\', -1))) << task;
}

void TestPreview::keyThatListingMakesStartsNothing()
{
    QFETCH(const QString, key);
    Three three;
    three.optimized->registry().make(key);
    three.restored->registry().make(key);

    const PreviewItem item = onlyItem(three.items());
    QCOMPARE(item.group, PreviewGroup::Registry);
    QCOMPARE(item.title, key);
    QCOMPARE(item.about, QString());
    const PreviewSides sides = sidesOf(item);
    QCOMPARE(QStringList({sides.before, sides.optimized, sides.restored}),
             QStringList({u"not there"_s, u"an empty key"_s, u"an empty key"_s}));
}

void TestPreview::startWithoutAStateIsOff()
{
    Three three;
    three.everywhere([](Machine &machine) { machine.registry().make(WindowsKey::xboxTask); });
    setNumber(*three.restored, WindowsKey::xboxTask, u"State"_s, 2);

    const PreviewItem item = onlyItem(three.items());
    QCOMPARE(item.group, PreviewGroup::Autorun);
    const PreviewSides sides = sidesOf(item);
    QCOMPARE(QStringList({sides.before, sides.optimized, sides.restored}),
             QStringList({u"doesn't start"_s, u"doesn't start"_s, u"starts"_s}));
}

void TestPreview::ownRecordsStandApartAndDoNotCount()
{
    Three three;
    setNumber(*three.optimized, u"HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale"_s, u"optimized"_s, 1);

    const QList<PreviewItem> items = three.items();
    QCOMPARE(onlyItem(items).group, PreviewGroup::Records);
    QVERIFY(previewText(items).contains(u"as now -> written -> as before\n"_s));
    QVERIFY(previewText(items).startsWith(u"    0 come back exactly\n"_s));
}

void TestPreview::sortedByGroupAndTitle()
{
    Three three;
    setNumber(*three.optimized, otherKey, u"x"_s, 1);
    setNumber(*three.optimized, servicesKey + u"zeta"_s, u"Start"_s, 4);
    setNumber(*three.optimized, servicesKey + u"Alpha"_s, u"Start"_s, 4);

    QStringList titles;
    for (const PreviewItem &item : three.items())
        titles.append(item.title);
    QCOMPARE(titles, QStringList({u"Alpha"_s, u"zeta"_s, otherKey}));
}

void TestPreview::textTellsCountsAndSides()
{
    Three three;
    three.everywhere([](Machine &machine) { setNumber(machine, otherKey, u"x"_s, 1); });
    setNumber(*three.optimized, otherKey, u"x"_s, 2);
    setNumber(*three.restored, otherKey, u"x"_s, 3);

    const QString text = previewText(three.items());
    QVERIFY2(text.contains(u"    1 come back differently\n"_s), qPrintable(text));
    QVERIFY2(text.contains(u"    x: dword 1 -> dword 2 -> dword 3\n"_s), qPrintable(text));
}

void TestPreview::jsonHoldsEverything()
{
    Three three;
    setNumber(*three.optimized, otherKey, u"x"_s, 2);
    setNumber(*three.restored, otherKey, u"x"_s, 2);

    const QJsonObject json = QJsonDocument::fromJson(previewJson(three.items())).object();
    QCOMPARE(json[u"counts"_s][u"not-at-all"_s].toInt(), 1);
    const QJsonObject item = json[u"items"_s].toArray().at(0).toObject();
    QCOMPARE(item[u"comesBack"_s].toString(), u"not-at-all"_s);
    const QJsonObject detail = item[u"details"_s].toArray().at(0).toObject();
    QVERIFY(detail[u"before"_s].isNull());
    QCOMPARE(detail[u"optimized"_s].toString(), u"dword 2"_s);
}

void TestPreview::reportsTellWhatStopsWorking()
{
    const QString package = WindowsKey::userPackages + u"\\Microsoft.WindowsCamera_1_x64__8wekyb3d8bbwe"_s;
    const QString document = u"<Task><Settings><Enabled>%1</Enabled></Settings></Task>"_s;
    const QString task = u"\\Microsoft\\Windows\\Defrag\\ScheduledDefrag"_s;
    Three three;
    for (const QString &service : {u"Spooler"_s, u"Sample"_s}) {
        three.everywhere([&](Machine &machine) { setNumber(machine, servicesKey + service, u"Start"_s, 2); });
        setNumber(*three.optimized, servicesKey + service, u"Start"_s, 4);
    }
    three.everywhere([&](Machine &machine) { machine.setTask({task, document.arg(u"true"_s)}); });
    three.optimized->setTask({task, document.arg(u"false"_s)});
    setText(*three.before, package, u"DisplayName"_s, u"Camera"_s);

    const QList<PreviewItem> items = three.items();
    QMap<QString, QString> told;
    for (const QJsonValue item : QJsonDocument::fromJson(previewJson(items))[u"items"_s].toArray())
        told.insert(item[u"name"_s].toString(), item[u"without"_s].toString());
    QCOMPARE(told.size(), 4);
    QCOMPARE(told.value(u"Spooler"_s), u"No printing, not even to PDF."_s);
    QVERIFY(told.contains(u"Sample"_s) && told.value(u"Sample"_s).isEmpty());
    QVERIFY(told.value(task).contains(u"optimized"_s));
    QVERIFY(told.value(u"Microsoft.WindowsCamera"_s).contains(u"camera"_s));
    QVERIFY(previewText(items).contains(u"\n      Without it: No printing, not even to PDF.\n"_s));
    const QString page = previewHtml(items, u"pc"_s);
    QVERIFY(page.contains(u"<small class=\"without\">Without it: No printing, not even to PDF.</small>"_s));
    QCOMPARE(page.count(u"Without it"_s), 3);
}

void TestPreview::undoIsToldOfWhereItIsOfUse()
{
    const auto tells = [](Three &three, PreviewWay way, bool offersUndo) {
        return previewHtml(three.items(), u"pc"_s, way, offersUndo).contains(u"--undo"_s);
    };
    Three lost;
    setNumber(*lost.optimized, otherKey, u"x"_s, 2);
    setNumber(*lost.restored, otherKey, u"x"_s, 2);
    QVERIFY(tells(lost, PreviewWay::OptimizeAndRestore, true));
    QVERIFY(!tells(lost, PreviewWay::OptimizeAndRestore, false));
    Three back;
    setNumber(*back.optimized, otherKey, u"x"_s, 2);
    // Keys are left by looks at them, as Kestrune's own records are.
    setNumber(*back.optimized, u"HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale"_s, u"optimized"_s, 1);
    setNumber(*back.restored, u"HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale"_s, u"optimized"_s, 1);
    back.restored->registry().make(otherKey);
    back.before->registry().make(otherKey);
    QVERIFY(!tells(back, PreviewWay::OptimizeAndRestore, true));
}

void TestPreview::pageIsEscapedAndNeedsNothingElse()
{
    Three three;
    setText(*three.optimized, otherKey, u"<b>&"_s, u"<script>alert(1)</script>"_s);

    const QString page = previewHtml(three.items(), u"pc <1>"_s);
    QVERIFY(page.contains(u"&lt;script&gt;alert(1)"_s));
    QVERIFY(!page.contains(u"<script>alert"_s));
    QVERIFY(page.contains(u"pc &lt;1&gt;"_s));
    for (const QString &outside : {u"http:"_s, u"https:"_s, u"src="_s, u"@import"_s, u"<link"_s})
        QVERIFY2(!page.contains(outside), qPrintable(outside));
}

KESTRUNE_SUITE(TestPreview)
#include "tst_preview.moc"
