// SPDX-License-Identifier: GPL-3.0-or-later
// The Services page: what its table, its status, its two views and its context menu show.

#include "support/boxes.h"
#include "support/menus.h"
#include "support/suite.h"
#include "support/windowdriver.h"
#include "window/rowtext.h"
#include "work/services/services.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString recordsKey = settingsKey + u"\\SVC"_s;

const QString criticalHint = u"Grayed out services are considered necessary or critical"_s;
const QString outsideHint = u"Grayed out services refer to those disabled outside this tab"_s;

ServiceRow service(const QString &name, bool running = true, const QString &start = u"3"_s)
{
    ServiceRow row;
    row.name = name;
    row.displayName = name + u" service"_s;
    row.description = u"What "_s + name + u" is for"_s;
    row.type = u"32"_s;
    row.start = start;
    row.running = running;
    return row;
}

QString hint(const WindowDriver &driver)
{
    return driver.get<QLabel>(u"label_3"_s)->text();
}

QString viewText(const WindowDriver &driver)
{
    return driver.button(u"btnSvcViewDisabled"_s)->text();
}

QString actionText(const WindowDriver &driver)
{
    return driver.button(u"btnSvcDisable"_s)->text();
}

bool isGreyed(const QTableWidgetItem *item)
{
    return !item->flags().testFlag(Qt::ItemIsEnabled);
}

} // namespace

class TestServicesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Rows
    void runningServicesAloneHaveRows();
    void stoppedServiceThatIsNotDisabledCountsAsStopped();
    void statusTellsTheCounts();
    void emptyListGivesZeros();
    void listingReplacesTheRows();
    void rowShowsNameModeAndDescription();
    void nameStandsInForAMissingDisplayName();
    void startModeHasItsWord_data();
    void startModeHasItsWord();
    void toolTipOfEveryCellHoldsNameAndDescription();
    void toolTipIsNoMarkup_data();
    void toolTipIsNoMarkup();
    void descriptionOfMoreThanHundredCharactersIsWrapped_data();
    void descriptionOfMoreThanHundredCharactersIsWrapped();
    void noCellCanBeEditedAndNoRowIsChecked();
    void rowsAreSortedByNameUpwards();
    void clickOnAHeaderSortsByIt();

    // Greyed rows
    void criticalServiceIsGreyed_data();
    void criticalServiceIsGreyed();
    void userCannotCheckAGreyedRow_data();
    void userCannotCheckAGreyedRow();
    void userChecksAnOrdinaryRow();

    // Showing the page
    void menuButtonListsTheMachinesServices();
    void showingThePagePutsBothButtonsRight();
    void failedListingLeavesThePageEmpty();
    void failedListingLeavesNoRowsOfAnEarlierView();

    // The view of disabled services
    void viewOfDisabledServicesHasItsTexts();
    void viewOfDisabledServicesTakesTheProgramsOwnAndGreysTheOthers();
    void recordIsReadAsANumber_data();
    void recordIsReadAsANumber();
    void runningServiceOnRecordStandsInTheViewOfDisabledServices();
    void criticalServiceOnRecordIsGreyedInTheViewOfDisabledServices();
    void viewOfDisabledServicesIsEmptyBeforeAnyListing();
    void viewOfDisabledServicesComesFromTheLastListing();
    void viewOfDisabledServicesIsSortedUpwardsWhateverWasSortedBefore();
    void headersSignalsAreBlockedWhileTheViewFillsAndNotLater();
    void secondClickGoesBackToTheStartedServices();
    void comingBackByTheMenuKeepsTheOtherViewsHint();

    // Context menu
    void contextMenuHasThePagesActions_data();
    void contextMenuHasThePagesActions();
    void contextMenuIsStyledByThePaletteSetting_data();
    void contextMenuIsStyledByThePaletteSetting();
    void rightClickOnTheTableOpensTheMenu();
    void refreshListsAgain();

    // Check all, uncheck all
    void checkAllChecksTheListOfThePage_data();
    void checkAllChecksTheListOfThePage();
    void checkAllAndUncheckAllDoNothingOnOtherPages();
    void checkAllOnFeaturesDependsOnWindows_data();
    void checkAllOnFeaturesDependsOnWindows();
    void uncheckAllOnFeaturesTakesEveryCheck();
};

void TestServicesPage::runningServicesAloneHaveRows()
{
    const WindowOnPc driver;
    driver.list({service(u"Alpha"_s), service(u"Beta"_s, false), service(u"Gamma"_s, false, u"4"_s),
                 service(u"Delta"_s, true, u"4"_s)});
    QCOMPARE(driver.listed(), QStringList({u"Alpha"_s, u"Delta"_s}));
}

void TestServicesPage::stoppedServiceThatIsNotDisabledCountsAsStopped()
{
    const WindowOnPc driver;
    driver.list({service(u"Alpha"_s, false, u"3"_s)});
    QCOMPARE(driver.services()->rowCount(), 0);
    QCOMPARE(driver.status(), u"Services: 1  |  started: 0  |  stopped: 1  |  disabled: 0  "_s);
}

void TestServicesPage::statusTellsTheCounts()
{
    const WindowOnPc driver;
    driver.list({service(u"A"_s), service(u"B"_s), service(u"C"_s, true, u"4"_s), service(u"D"_s, false),
                 service(u"E"_s, false, u"4"_s), service(u"F"_s, false, u"4"_s), service(u"G"_s, false, u"2"_s)});
    // A running service that won't start again counts twice.
    QCOMPARE(driver.status(), u"Services: 7  |  started: 3  |  stopped: 4  |  disabled: 3  "_s);
}

void TestServicesPage::emptyListGivesZeros()
{
    const WindowOnPc driver;
    driver.list({});
    QCOMPARE(driver.services()->rowCount(), 0);
    QCOMPARE(driver.status(), u"Services: 0  |  started: 0  |  stopped: 0  |  disabled: 0  "_s);
}

void TestServicesPage::listingReplacesTheRows()
{
    const WindowOnPc driver;
    driver.list({service(u"Alpha"_s), service(u"Beta"_s)});
    driver.list({service(u"Beta"_s), service(u"Gamma"_s)});
    QCOMPARE(driver.listed(), QStringList({u"Beta"_s, u"Gamma"_s}));
    QCOMPARE(driver.status(), u"Services: 2  |  started: 2  |  stopped: 0  |  disabled: 0  "_s);
}

void TestServicesPage::rowShowsNameModeAndDescription()
{
    const WindowOnPc driver;
    driver.list({service(u"Alpha"_s, true, u"2"_s)});
    QCOMPARE(driver.cell(u"Alpha"_s, 0)->text(), u"Alpha service"_s);
    QCOMPARE(driver.cell(u"Alpha"_s, 1)->text(), u"Auto"_s);
    QCOMPARE(driver.cell(u"Alpha"_s, 2)->text(), u"What Alpha is for"_s);
}

void TestServicesPage::nameStandsInForAMissingDisplayName()
{
    const WindowOnPc driver;
    ServiceRow row = service(u"Alpha"_s);
    row.displayName.clear();
    driver.list({row});
    QCOMPARE(driver.cell(u"Alpha"_s)->text(), u"Alpha"_s);
}

void TestServicesPage::startModeHasItsWord_data()
{
    addColumns<QString, QString>("start", "word");
    QTest::newRow("2") << u"2"_s << u"Auto"_s;
    QTest::newRow("3") << u"3"_s << u"Manual"_s;
    QTest::newRow("4") << u"4"_s << u"Disabled"_s;
    QTest::newRow("0") << u"0"_s << QString();
    QTest::newRow("1") << u"1"_s << QString();
    QTest::newRow("5") << u"5"_s << QString();
    QTest::newRow("missing") << QString() << QString();
    QTest::newRow("two digits") << u"22"_s << QString();
}

void TestServicesPage::startModeHasItsWord()
{
    QFETCH(const QString, start);
    const WindowOnPc driver;
    driver.list({service(u"Alpha"_s, true, start)});
    QTEST(driver.cell(u"Alpha"_s, 1)->text(), "word");
}

void TestServicesPage::toolTipOfEveryCellHoldsNameAndDescription()
{
    const WindowOnPc driver;
    driver.list({service(u"Alpha"_s)});
    for (int column = 0; column < 3; ++column)
        QCOMPARE(driver.cell(u"Alpha"_s, column)->toolTip(), u"Alpha:<br><br>What Alpha is for"_s);
}

void TestServicesPage::toolTipIsNoMarkup_data()
{
    addColumns<QString, QString, QString>("name", "description", "toolTip");
    const auto row = [](const char *title, const QString &name, const QString &description, const QString &toolTip) {
        QTest::newRow(title) << name << description << toolTip;
    };
    row("description", u"Alpha"_s, u"a <img src=\"x\"> & b"_s, u"Alpha:<br><br>a &lt;img src=\"x\"> & b"_s);
    row("entities of a description", u"Alpha"_s, u"a &lt;b&gt; &amp; c"_s, u"Alpha:<br><br>a &lt;b&gt; &amp; c"_s);
    row("long description", u"Alpha"_s, u'<' + QString(100, u'd'),
        u"Alpha:<br><br><span>&lt;"_s + QString(100, u'd') + u"</span>"_s);
    row("name", u"A & <img src=x>"_s, u"d"_s, u"<span>A &amp; &lt;img src=x&gt;</span>:<br><br>d"_s);
    row("name with an entity alone", u"A&lt;B & C"_s, u"d"_s, u"A&lt;B & C:<br><br>d"_s);
    row("name with both", u"A&lt;<B"_s, u"d"_s, u"<span>A&amp;lt;&lt;B</span>:<br><br>d"_s);
    row("name with quotes", u"A <\"B\">"_s, u"d"_s, u"<span>A &lt;&quot;B&quot;&gt;</span>:<br><br>d"_s);
}

void TestServicesPage::toolTipIsNoMarkup()
{
    QFETCH(const QString, name);
    QFETCH(const QString, description);
    QFETCH(const QString, toolTip);
    const WindowOnPc driver;
    ServiceRow row = service(name);
    row.description = description;
    driver.list({row});
    for (int column = 0; column < 3; ++column)
        QCOMPARE(driver.services()->item(0, column)->toolTip(), toolTip);
    QCOMPARE(driver.services()->item(0, 0)->text(), row.displayName);
    QCOMPARE(nameFromToolTip(toolTip), name);
}

void TestServicesPage::descriptionOfMoreThanHundredCharactersIsWrapped_data()
{
    addColumns<int, bool>("length", "wrapped");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("99") << 99 << false;
    QTest::newRow("100") << 100 << false;
    QTest::newRow("101") << 101 << true;
    QTest::newRow("5000") << 5000 << true;
}

void TestServicesPage::descriptionOfMoreThanHundredCharactersIsWrapped()
{
    QFETCH(const int, length);
    QFETCH(const bool, wrapped);
    const WindowOnPc driver;
    ServiceRow row = service(u"Alpha"_s);
    row.description = QString(length, u'd');
    driver.list({row});
    const QString text = wrapped ? u"<span>"_s + row.description + u"</span>"_s : row.description;
    for (int column = 0; column < 3; ++column)
        QCOMPARE(driver.cell(u"Alpha"_s, column)->toolTip(), u"Alpha:<br><br>"_s + text);
    QCOMPARE(driver.cell(u"Alpha"_s, 2)->text(), row.description);
}

void TestServicesPage::noCellCanBeEditedAndNoRowIsChecked()
{
    const WindowOnPc driver;
    driver.list({service(u"Alpha"_s)});
    // A new item can be all this, but for being edited.
    const Qt::ItemFlags flags = QTableWidgetItem().flags() & ~Qt::ItemIsEditable;
    for (int column = 0; column < 3; ++column)
        QCOMPARE(driver.cell(u"Alpha"_s, column)->flags(), flags);
    QCOMPARE(driver.cell(u"Alpha"_s, 0)->data(Qt::CheckStateRole), QVariant(int(Qt::Unchecked)));
    QVERIFY(!driver.cell(u"Alpha"_s, 1)->data(Qt::CheckStateRole).isValid());
    QVERIFY(!driver.cell(u"Alpha"_s, 2)->data(Qt::CheckStateRole).isValid());
}

void TestServicesPage::rowsAreSortedByNameUpwards()
{
    TestMachine machine;
    machine.add({.name = u"1"_s, .running = true, .displayName = u"Gamma"_s});
    machine.add({.name = u"2"_s, .running = true, .displayName = u"Alpha"_s});
    machine.add({.name = u"3"_s, .running = true, .displayName = u"Beta"_s});
    const ServicesPage driver;
    QVERIFY(driver.services()->isSortingEnabled());
    QCOMPARE(driver.listed(), QStringList({u"2"_s, u"3"_s, u"1"_s}));
    QCOMPARE(driver.services()->horizontalHeader()->sortIndicatorSection(), 0);
    QCOMPARE(driver.services()->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    // Each row is still of one piece.
    QCOMPARE(driver.cell(u"1"_s, 0)->text(), u"Gamma"_s);
    QCOMPARE(driver.cell(u"1"_s, 2)->toolTip(), driver.cell(u"1"_s, 0)->toolTip());
}

void TestServicesPage::clickOnAHeaderSortsByIt()
{
    const WindowOnPc driver;
    driver.window().showPage(1);
    QVERIFY(driver.waitForList());
    driver.list(
        {service(u"Alpha"_s, true, u"3"_s), service(u"Beta"_s, true, u"4"_s), service(u"Gamma"_s, true, u"2"_s)});
    QHeaderView *header = driver.services()->horizontalHeader();
    const auto click = [header](int column) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 20, header->height() / 2));
    };
    click(1);
    QCOMPARE(driver.listed(), QStringList({u"Gamma"_s, u"Beta"_s, u"Alpha"_s}));
    click(0);
    click(0);
    QCOMPARE(driver.listed(), QStringList({u"Gamma"_s, u"Beta"_s, u"Alpha"_s}));
    QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);
}

void TestServicesPage::criticalServiceIsGreyed_data()
{
    addColumns<QString, QString, bool>("name", "type", "greyed");
    QTest::newRow("critical") << u"EventLog"_s << u"32"_s << true;
    QTest::newRow("critical, own process") << u"WinDefend"_s << u"16"_s << true;
    QTest::newRow("in another case") << u"eventlog"_s << u"32"_s << false;
    QTest::newRow("instance of a per-user service") << u"Alpha_5cbba"_s << u"224"_s << true;
    QTest::newRow("template of a per-user service") << u"Alpha"_s << u"96"_s << false;
    QTest::newRow("own process with windows") << u"Alpha"_s << u"272"_s << false;
    QTest::newRow("ordinary") << u"DiagTrack"_s << u"16"_s << false;
}

void TestServicesPage::criticalServiceIsGreyed()
{
    QFETCH(const QString, name);
    QFETCH(const QString, type);
    const WindowOnPc driver;
    ServiceRow row = service(name);
    row.type = type;
    driver.list({row});
    for (int column = 0; column < 3; ++column) {
        QTEST(isGreyed(driver.cell(name, column)), "greyed");
        QVERIFY(!driver.cell(name, column)->flags().testFlag(Qt::ItemIsEditable));
    }
}

void TestServicesPage::userCannotCheckAGreyedRow_data()
{
    addColumns<QString, int>("name", "type");
    QTest::newRow("critical") << u"Winmgmt"_s << 32;
    QTest::newRow("instance of a per-user service") << u"Alpha_5cbba"_s << 224;
}

void TestServicesPage::userCannotCheckAGreyedRow()
{
    QFETCH(const QString, name);
    QFETCH(const int, type);
    TestMachine machine;
    machine.add({.name = name, .type = type, .running = true});
    const ServicesPage driver;
    QCOMPARE(driver.listed(), QStringList(name));
    driver.clickCheckBox(name);
    QCOMPARE(driver.checked(), QStringList());
}

void TestServicesPage::userChecksAnOrdinaryRow()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    machine.add({.name = u"Beta"_s, .running = true});
    const ServicesPage driver;
    driver.clickCheckBox(u"Beta"_s);
    QCOMPARE(driver.checked(), QStringList(u"Beta"_s));
    driver.clickCheckBox(u"Beta"_s);
    QCOMPARE(driver.checked(), QStringList());
}

void TestServicesPage::menuButtonListsTheMachinesServices()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true, .displayName = u"First"_s, .description = u"Runs"_s});
    machine.add({.name = u"Beta"_s, .start = 3});
    machine.add({.name = u"Gamma"_s, .start = 4});
    machine.add({.name = u"Driver"_s, .type = 1, .start = 0, .running = true});
    const ServicesPage driver;
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
    QCOMPARE(driver.cell(u"Alpha"_s)->text(), u"First"_s);
    QCOMPARE(driver.cell(u"Alpha"_s, 1)->text(), u"Auto"_s);
    QCOMPARE(driver.cell(u"Alpha"_s)->toolTip(), u"Alpha:<br><br>Runs"_s);
    QCOMPARE(driver.status(), u"Services: 3  |  started: 1  |  stopped: 2  |  disabled: 1  "_s);
    QCOMPARE(machine.commands().size(), 1);
    QCOMPARE(machine.commands().at(0).program, u"sc"_s);
    QCOMPARE(machine.commands().at(0).arguments, QStringList({u"query"_s, u"state="_s, u"all"_s}));
}

void TestServicesPage::showingThePagePutsBothButtonsRight()
{
    const WindowOnPc driver;
    driver.button(u"btnSvcViewDisabled"_s)->setText(u"View started services"_s);
    driver.button(u"btnSvcDisable"_s)->setText(u"ENABLE checked services"_s);
    driver.window().showPage(1);
    QCOMPARE(viewText(driver), u"View disabled services"_s);
    QCOMPARE(actionText(driver), u"DISABLE checked services"_s);
    // Not sorted while it is going to be filled.
    QVERIFY(!driver.services()->isSortingEnabled());
    QCOMPARE(driver.worker().job, int(JobSvcMakeList));
    QVERIFY(driver.waitForList());
    QVERIFY(driver.services()->isSortingEnabled());
}

void TestServicesPage::failedListingLeavesThePageEmpty()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    ToolFault missing;
    missing.missing = true;
    machine.machine().setFault(u"sc"_s, missing);
    const WindowDriver driver;
    driver.click(u"btnMenuService"_s);
    QTRY_VERIFY(!driver.worker().isRunning());
    QCoreApplication::processEvents();
    QCOMPARE(driver.window().currentPage(), 1);
    QCOMPARE(driver.services()->rowCount(), 0);
    QCOMPARE(driver.status(), QString());
}

/** The rows of the other view would stand under buttons that disable what they show as disabled. */
void TestServicesPage::failedListingLeavesNoRowsOfAnEarlierView()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    machine.add({.name = u"Beta"_s, .start = StartDisabled});
    const WindowDriver driver;
    QVERIFY(driver.openServices());
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.services()->rowCount(), 1);
    ToolFault missing;
    missing.missing = true;
    machine.machine().setFault(u"sc"_s, missing);
    driver.click(u"btnMenuHome"_s);
    driver.click(u"btnMenuService"_s);
    QTRY_VERIFY(!driver.worker().isRunning());
    QCoreApplication::processEvents();
    QCOMPARE(driver.window().currentPage(), 1);
    QCOMPARE(viewText(driver), u"View disabled services"_s);
    QCOMPARE(driver.services()->rowCount(), 0);
    QCOMPARE(driver.status(), QString());
}

void TestServicesPage::viewOfDisabledServicesHasItsTexts()
{
    const WindowOnPc driver;
    QVERIFY(driver.openServices());
    QCOMPARE(hint(driver), criticalHint);
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(viewText(driver), u"View started services"_s);
    QCOMPARE(actionText(driver), u"ENABLE checked services"_s);
    QCOMPARE(hint(driver), outsideHint);
}

void TestServicesPage::viewOfDisabledServicesTakesTheProgramsOwnAndGreysTheOthers()
{
    TestMachine machine;
    machine.add({.name = u"Running"_s, .start = 2, .running = true});
    machine.add({.name = u"Manual"_s, .start = 3});
    machine.add({.name = u"ByUs"_s, .start = 4});
    machine.add({.name = u"ByUsButManualNow"_s, .start = 3});
    machine.add({.name = u"ByOthers"_s, .start = 4});
    machine.write(recordsKey, u"ByUs"_s, 1);
    machine.write(recordsKey, u"ByUsButManualNow"_s, 1);
    machine.write(recordsKey, u"Gone"_s, 1);
    const ServicesPage driver;
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.listed(), QStringList({u"ByOthers"_s, u"ByUs"_s, u"ByUsButManualNow"_s}));
    for (int column = 0; column < 3; ++column) {
        QVERIFY(isGreyed(driver.cell(u"ByOthers"_s, column)));
        QVERIFY(!isGreyed(driver.cell(u"ByUs"_s, column)));
        QVERIFY(!isGreyed(driver.cell(u"ByUsButManualNow"_s, column)));
    }
    QCOMPARE(driver.cell(u"ByUs"_s, 1)->text(), u"Disabled"_s);
    QCOMPARE(driver.cell(u"ByUsButManualNow"_s, 1)->text(), u"Manual"_s);
    driver.clickCheckBox(u"ByUs"_s);
    driver.clickCheckBox(u"ByOthers"_s);
    QCOMPARE(driver.checked(), QStringList(u"ByUs"_s));
}

void TestServicesPage::recordIsReadAsANumber_data()
{
    addColumns<QVariant, bool>("record", "listed");
    QTest::newRow("1") << QVariant(1) << true;
    QTest::newRow("text 1") << QVariant(u"1"_s) << true;
    QTest::newRow("0") << QVariant(0) << false;
    QTest::newRow("2") << QVariant(2) << false;
    QTest::newRow("a word") << QVariant(u"yes"_s) << false;
}

void TestServicesPage::recordIsReadAsANumber()
{
    QFETCH(const QVariant, record);
    QFETCH(const bool, listed);
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 3});
    machine.write(recordsKey, u"Alpha"_s, record);
    const ServicesPage driver;
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.listed(), listed ? QStringList(u"Alpha"_s) : QStringList());
}

void TestServicesPage::runningServiceOnRecordStandsInTheViewOfDisabledServices()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4, .running = true});
    machine.write(recordsKey, u"Alpha"_s, 1);
    const ServicesPage driver;
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
    QVERIFY(!isGreyed(driver.cell(u"Alpha"_s)));
}

void TestServicesPage::criticalServiceOnRecordIsGreyedInTheViewOfDisabledServices()
{
    TestMachine machine;
    machine.add({.name = u"BITS"_s, .start = 4});
    machine.write(recordsKey, u"BITS"_s, 1);
    const ServicesPage driver;
    driver.click(u"btnSvcViewDisabled"_s);
    QVERIFY(isGreyed(driver.cell(u"BITS"_s)));
}

void TestServicesPage::viewOfDisabledServicesIsEmptyBeforeAnyListing()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    const WindowDriver driver;
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(1);
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(viewText(driver), u"View started services"_s);
    QCOMPARE(driver.services()->rowCount(), 0);
    QVERIFY(!driver.worker().isRunning());
    QVERIFY(machine.commands().isEmpty());
}

void TestServicesPage::viewOfDisabledServicesComesFromTheLastListing()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    const ServicesPage driver;
    machine.add({.name = u"Beta"_s, .start = 4});
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
    QCOMPARE(machine.commands().size(), 1);
}

void TestServicesPage::viewOfDisabledServicesIsSortedUpwardsWhateverWasSortedBefore()
{
    TestMachine machine;
    machine.add({.name = u"1"_s, .start = 4, .displayName = u"Gamma"_s, .description = u"a"_s});
    machine.add({.name = u"2"_s, .start = 4, .displayName = u"Alpha"_s, .description = u"c"_s});
    machine.add({.name = u"3"_s, .start = 4, .displayName = u"Beta"_s, .description = u"b"_s});
    const ServicesPage driver;
    driver.services()->sortByColumn(2, Qt::DescendingOrder);
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.listed(), QStringList({u"2"_s, u"3"_s, u"1"_s}));
    QCOMPARE(driver.services()->horizontalHeader()->sortIndicatorSection(), 0);
    QCOMPARE(driver.services()->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    for (int row = 0; row < 3; ++row)
        QCOMPARE(driver.services()->item(row, 2)->toolTip(), driver.services()->item(row, 0)->toolTip());
}

void TestServicesPage::headersSignalsAreBlockedWhileTheViewFillsAndNotLater()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    const ServicesPage driver;
    driver.services()->sortByColumn(1, Qt::DescendingOrder);
    QHeaderView *header = driver.services()->horizontalHeader();
    int changes = 0;
    connect(header, &QHeaderView::sortIndicatorChanged, this, [&changes] { ++changes; });
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(changes, 0);
    QVERIFY(!header->signalsBlocked());
}

void TestServicesPage::secondClickGoesBackToTheStartedServices()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    machine.add({.name = u"Beta"_s, .start = 4});
    const ServicesPage driver;
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.listed(), QStringList(u"Beta"_s));
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.services()->rowCount(), 0);
    QCOMPARE(viewText(driver), u"View disabled services"_s);
    QCOMPARE(actionText(driver), u"DISABLE checked services"_s);
    QCOMPARE(hint(driver), criticalHint);
    QVERIFY(driver.waitForList());
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
}

void TestServicesPage::comingBackByTheMenuKeepsTheOtherViewsHint()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    const ServicesPage driver;
    driver.click(u"btnSvcViewDisabled"_s);
    driver.click(u"btnMenuAbout"_s);
    QVERIFY(driver.openServices());
    QCOMPARE(viewText(driver), u"View disabled services"_s);
    QCOMPARE(actionText(driver), u"DISABLE checked services"_s);
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
    QCOMPARE(hint(driver), outsideHint);
}

void TestServicesPage::contextMenuHasThePagesActions_data()
{
    addColumns<int, QString, QStringList>("page", "list", "actions");
    QTest::newRow("Services") << 1 << u"tblSvc"_s << QStringList{u"Refresh"_s, u"Manual start"_s, u"Automatic start"_s};
    QTest::newRow("Tasks") << 2 << u"tblTasks"_s << QStringList{u"Refresh"_s};
    QTest::newRow("Autorun") << 3 << u"tblAutorun"_s << QStringList{u"Refresh"_s, u"Uncheck all"_s, u"Check all"_s};
    QTest::newRow("Packages") << 4 << u"tblPackages"_s << QStringList{u"Refresh"_s, u"Uncheck all"_s, u"Check all"_s};
    QTest::newRow("Features") << 5 << u"scrollArea"_s << QStringList{u"Uncheck all"_s, u"Check all"_s};
}

void TestServicesPage::contextMenuHasThePagesActions()
{
    QFETCH(const int, page);
    QFETCH(const QString, list);
    const WindowOnPc driver;
    driver.window().showPage(page);
    QTRY_VERIFY(!driver.worker().isRunning());
    Menus menus({QString()});
    Q_EMIT driver.get<QWidget>(list)->customContextMenuRequested(QPoint());
    QCOMPARE(menus.shown().size(), 1);
    QTEST(menus.shown().at(0).actions, "actions");
}

void TestServicesPage::contextMenuIsStyledByThePaletteSetting_data()
{
    addColumns<QString, QStringList>("stored", "colors");
    const QStringList dark{u"#323232"_s, u"#464646"_s, u"#3c3c3c"_s};
    QTest::newRow("dark") << u"dark"_s << dark;
    QTest::newRow("hint") << u"possible values: 'light' or 'dark' or 'system'"_s << dark;
    QTest::newRow("light") << u"light"_s << QStringList{u"#f0f0f0"_s, u"#464646"_s, u"#e6e6e6"_s};
    QTest::newRow("unknown") << u"blue"_s << QStringList();
    QTest::newRow("system") << u"system"_s << QStringList();
}

void TestServicesPage::contextMenuIsStyledByThePaletteSetting()
{
    QFETCH(const QString, stored);
    QFETCH(const QStringList, colors);
    TestMachine machine;
    const ServicesPage driver;
    // The start may have written another one.
    machine.write(settingsKey, u"palette"_s, stored);
    Menus menus({QString()});
    Q_EMIT driver.services()->customContextMenuRequested(QPoint());
    QCOMPARE(menus.shown().at(0).styleSheet, menuStyle(colors));
}

void TestServicesPage::rightClickOnTheTableOpensTheMenu()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    const ServicesPage driver;
    Menus menus({QString()});
    const QPoint position(5, 5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, driver.services()->viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(driver.services()->viewport(), &event);
    QCOMPARE(menus.shown().size(), 1);
}

void TestServicesPage::refreshListsAgain()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    const ServicesPage driver;
    machine.add({.name = u"Beta"_s, .running = true});
    Menus menus({u"Refresh"_s});
    Q_EMIT driver.services()->customContextMenuRequested(QPoint());
    QVERIFY(driver.waitForList());
    QCOMPARE(driver.listed(), QStringList({u"Alpha"_s, u"Beta"_s}));
}

void TestServicesPage::checkAllChecksTheListOfThePage_data()
{
    addColumns<int, QString>("page", "name");
    QTest::newRow("Autorun") << 3 << u"tblAutorun"_s;
    QTest::newRow("Packages") << 4 << u"tblPackages"_s;
}

void TestServicesPage::checkAllChecksTheListOfThePage()
{
    QFETCH(const int, page);
    QFETCH(const QString, name);
    const WindowOnPc driver;
    driver.window().showPage(page);
    QTRY_VERIFY(!driver.worker().isRunning());
    QCoreApplication::processEvents();
    auto *table = driver.get<QTableWidget>(name);
    table->setSortingEnabled(false);
    const QList<Qt::CheckState> states{Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
    table->setRowCount(3);
    for (int row = 0; row < 3; ++row) {
        table->setItem(row, 0, new QTableWidgetItem);
        table->item(row, 0)->setCheckState(states.at(row));
    }
    const auto state = [table](int row) { return table->item(row, 0)->checkState(); };
    driver.call("checkAll");
    QCOMPARE(state(0), Qt::Checked);
    QCOMPARE(state(1), Qt::Checked);
    QCOMPARE(state(2), Qt::PartiallyChecked);
    driver.call("uncheckAll");
    QCOMPARE(state(0), Qt::Unchecked);
    QCOMPARE(state(1), Qt::Unchecked);
    QCOMPARE(state(2), Qt::PartiallyChecked);
}

void TestServicesPage::checkAllAndUncheckAllDoNothingOnOtherPages()
{
    const WindowOnPc driver;
    driver.list({service(u"Alpha"_s), service(u"Beta"_s)});
    driver.cell(u"Beta"_s)->setCheckState(Qt::Checked);
    auto *feature = driver.get<QCheckBox>(u"chkSsd1"_s);
    auto *gameMode = driver.get<QCheckBox>(u"chkGaming3"_s);
    feature->setChecked(false);
    gameMode->setChecked(true);
    for (const int page : {0, 1, 2, 6, 7, 8}) {
        driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(page);
        driver.call("checkAll");
        driver.call("uncheckAll");
        QCOMPARE(driver.checked(), QStringList(u"Beta"_s));
        QVERIFY(!feature->isChecked());
        QVERIFY(gameMode->isChecked());
    }
}

void TestServicesPage::checkAllOnFeaturesDependsOnWindows_data()
{
    addColumns<QString, bool, bool>("winName", "before", "after");
    QTest::newRow("Windows 11") << u"Windows 11 Home"_s << false << true;
    QTest::newRow("Windows 10, unchecked") << u"Windows 10 Home"_s << false << false;
    QTest::newRow("Windows 10, checked") << u"Windows 10 Home"_s << true << true;
    QTest::newRow("unknown") << u"unknown"_s << false << false;
}

void TestServicesPage::checkAllOnFeaturesDependsOnWindows()
{
    QFETCH(const QString, winName);
    QFETCH(const bool, before);
    QFETCH(const bool, after);
    const WindowOnPc driver;
    driver.worker().winName = winName;
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(5);
    const auto boxes = driver.get<QWidget>(u"scrollArea"_s)->findChildren<QCheckBox *>();
    QVERIFY(boxes.size() > 30);
    for (QCheckBox *box : boxes)
        box->setChecked(false);
    const QStringList newer{u"chkGaming8"_s, u"chkWindows5"_s};
    for (const QString &name : newer)
        driver.get<QCheckBox>(name)->setChecked(before);
    driver.call("checkAll");
    for (const QCheckBox *box : boxes)
        QVERIFY2(box->isChecked() == (newer.contains(box->objectName()) ? after : true), qPrintable(box->objectName()));
}

void TestServicesPage::uncheckAllOnFeaturesTakesEveryCheck()
{
    const WindowOnPc driver;
    driver.worker().winName = u"Windows 10 Home"_s;
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(5);
    const auto boxes = driver.get<QWidget>(u"scrollArea"_s)->findChildren<QCheckBox *>();
    for (QCheckBox *box : boxes)
        box->setChecked(true);
    driver.call("uncheckAll");
    for (const QCheckBox *box : boxes)
        QVERIFY2(!box->isChecked(), qPrintable(box->objectName()));
}

KESTRUNE_WINDOW_SUITE(TestServicesPage)
#include "tst_servicespage.moc"
