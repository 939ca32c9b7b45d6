// SPDX-License-Identifier: GPL-3.0-or-later
// The Keep list: what its rows say, what is stored, and what the workers are told.

#include "support/markingtranslator.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include "window/kestrune.h"
#include "work/keepfeatures.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QStandardItemModel>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

struct Feature
{
    QString text;
    QString toolTip;
    std::atomic<int> WorkThread::*member;
};

// clang-format off
const QList<Feature> features{
    {u"Printer"_s,
     u"If you don't have any printers, you can uncheck this"_s,
     &WorkThread::keepPrinter},
    {u"Bluetooth audio"_s,
     u"If you do not have a headset or audio equipment connected via Bluetooth, you can uncheck this"_s,
     &WorkThread::keepBluetoothAudio},
    {u"Files sharing"_s,
     u"Windows sharing functionality on a local network (SMB protocol) "
       "(eg: connect hard drives, printers on a local network)\r\n"
       "(by default it is not used but activated!)"_s,
     &WorkThread::keepFilesSharing},
    {u"Xbox App"_s,
     u"Application to play PC games if you have a Gamepass account (paid)"_s,
     &WorkThread::keepXboxApp},
    {u"UPnP network services"_s,
     u"Other protocol dedicated to local network "
       "(eg: some video players use it to connect to network hard drives)\r\n"
       "(by default it is not used but activated!)"_s,
     &WorkThread::keepUpnp},
    {u"Proxy and VPN"_s,
     u"Proxy or VPN functionality to improve the security of your network traffic\r\n"
       "(by default it is not used but activated!)"_s,
     &WorkThread::keepProxyVpn},
    {u"NFC"_s,
     u"Quick setup of some bluetooth headsets\r\n(by default it is not used but activated!)"_s,
     &WorkThread::keepNfc},
    {u"Xbox game bar"_s,
     u"XBOX Game Bar that appears at the top of the screen, above a game. "
       "If you don't use it, uncheck this box"_s,
     &WorkThread::keepXboxGameBar},
    {u"Microsoft Codecs extensions"_s,
     u"Microsoft codecs for video encoding/decoding. "
       "If you are not using Windows internal features for streaming,encoding or playing videos, uncheck this box"_s,
     &WorkThread::keepCodecs},
};
// clang-format on

QString setting(int row)
{
    return u"Keep_"_s + QString::number(row);
}

QVariant stored(const TestMachine &machine, int row)
{
    return machine.read(settingsKey, setting(row));
}

int member(const WindowDriver &driver, int row)
{
    return driver.worker().*features.at(row - 1).member;
}

QComboBox *servicesBox(const WindowDriver &driver)
{
    return driver.get<QComboBox>(u"cbSvcFeatures"_s);
}

QComboBox *homeBox(const WindowDriver &driver)
{
    return driver.get<QComboBox>(u"cbAutorunFeatures"_s);
}

/** Checks or unchecks a row as a combo box's own list does it. */
bool setCheck(QComboBox *box, int row, Qt::CheckState state)
{
    return box->model()->setData(box->model()->index(row, 0), state, Qt::CheckStateRole);
}

/** Clicks a row in the list that a combo box opens, so far from its left end, and tells whether the list stays open. */
bool clickInPopup(QComboBox *box, int row, int left, Qt::MouseButton button = Qt::LeftButton)
{
    box->showPopup();
    QAbstractItemView *view = box->view();
    const QRect area = view->visualRect(box->model()->index(row, 0));
    const QPoint place(area.left() + left, area.center().y());
    QTest::mouseMove(view->viewport(), place);
    QTest::mouseClick(view->viewport(), button, {}, place);
    const bool open = view->isVisible();
    box->hidePopup();
    return open;
}

/** A row as the list draws it in that state. */
QImage drawnRow(const QComboBox *box, int row, QStyle::State state)
{
    QImage image(200, 24, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.initFrom(box->view());
    option.widget = box->view();
    option.rect = image.rect();
    option.state = QStyle::State_Enabled | state;
    box->itemDelegate()->paint(&painter, option, box->model()->index(row, 0));
    return image;
}

void addRows()
{
    QTest::addColumn<int>("row");
    for (int row = 1; row <= features.size(); ++row)
        QTest::newRow(qPrintable(features.at(row - 1).text)) << row;
}

} // namespace

class TestKeepList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFeatureIsCheckedOnAFirstRun();
    void rowsHaveTheirTextsAndToolTips();
    void theyAreTheFeaturesOfTheCommandLine();
    void titleRowIsDisabledAndBelongsToNoMember();
    void featuresCanBeCheckedAndNothingElse();
    void bothBoxesShareOneModelAndShowItsTitle();

    void uncheckingTakesEffectAtOnce_data() { addRows(); }
    void uncheckingTakesEffectAtOnce();
    void featureIsUncheckedInBothBoxes();
    void checkingAgainStoresTwoAndGivesTheMemberTwo_data() { addRows(); }
    void checkingAgainStoresTwoAndGivesTheMemberTwo();
    void uncheckedFeatureIsGivenUpAtTheNextStart_data() { addRows(); }
    void uncheckedFeatureIsGivenUpAtTheNextStart();
    void clickAnywhereInARowTogglesItsFeature_data();
    void clickAnywhereInARowTogglesItsFeature();
    void otherMouseButtonsToggleNothing();
    void titleRowCannotBeCheckedByAClick();
    void titleRowIsDrawnAsNoChoice();
    void wheelAndKeysLeaveTheTitle_data();
    void wheelAndKeysLeaveTheTitle();
    void changeOfTheTitleRowStoresItsStateAndTouchesNoMember();
    void changeOfSeveralRowsStoresEach();

    void oddStoredValueLeavesNoCheckStateAndTheMemberAlone_data();
    void oddStoredValueLeavesNoCheckStateAndTheMemberAlone();

    void builtAgainItShowsTheStoredStates();
    void builtAgainItDoesNotRaiseAMember();
    void builtAgainItStoresNothingItself();
    void builtAgainItStillHearsOfChanges();
    void builtInAnotherLanguageItShowsThatLanguageAndTheStoredStates();
    void secondWindowTakesTheListOver();
};

void TestKeepList::everyFeatureIsCheckedOnAFirstRun()
{
    TestMachine machine;
    const WindowDriver driver;
    for (int row = 1; row <= 9; ++row) {
        QCOMPARE(keepModel->item(row)->checkState(), Qt::Checked);
        QCOMPARE(member(driver, row), 2);
        QVERIFY(!stored(machine, row).isValid());
    }
}

void TestKeepList::rowsHaveTheirTextsAndToolTips()
{
    const WindowOnPc driver;
    QCOMPARE(keepModel->rowCount(), 10);
    QCOMPARE(keepModel->columnCount(), 1);
    QCOMPARE(keepModel->item(0)->text(), u"Keep features"_s);
    QCOMPARE(keepModel->item(0)->toolTip(), QString());
    for (int row = 1; row <= 9; ++row) {
        QCOMPARE(keepModel->item(row)->text(), features.at(row - 1).text);
        QCOMPARE(keepModel->item(row)->toolTip(), features.at(row - 1).toolTip);
    }
    for (int row = 0; row <= 9; ++row)
        QCOMPARE(keepModel->item(row)->textAlignment(), Qt::AlignCenter);
}

void TestKeepList::theyAreTheFeaturesOfTheCommandLine()
{
    const char *const names[] = {"printer", "bluetooth-audio", "files-sharing", "xbox-app", "upnp", "proxy-vpn",
                                 "nfc",     "xbox-game-bar",   "codecs"};
    for (std::size_t i = 0; i < keepFeatures.size(); ++i) {
        QCOMPARE(keepFeatures.at(i).name, QLatin1String(names[i]));
        QCOMPARE(keepFeatures.at(i).keep, features.at(qsizetype(i)).member);
    }
}

void TestKeepList::titleRowIsDisabledAndBelongsToNoMember()
{
    TestMachine machine;
    machine.write(settingsKey, u"Keep_0"_s, 0);
    const WindowDriver driver;
    const QStandardItem *title = keepModel->item(0);
    QVERIFY(!title->isEnabled());
    QVERIFY(!title->isCheckable());
    QVERIFY(!title->data(Qt::CheckStateRole).isValid());
    for (int row = 1; row <= 9; ++row)
        QCOMPARE(member(driver, row), 2);
}

void TestKeepList::featuresCanBeCheckedAndNothingElse()
{
    const WindowOnPc driver;
    for (int row = 1; row <= 9; ++row)
        QCOMPARE(keepModel->item(row)->flags(), Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
}

void TestKeepList::bothBoxesShareOneModelAndShowItsTitle()
{
    const WindowOnPc driver;
    for (const QComboBox *box : {servicesBox(driver), homeBox(driver)}) {
        QCOMPARE(box->model(), keepModel);
        QCOMPARE(box->currentText(), u"Keep features"_s);
        QCOMPARE(box->currentIndex(), 0);
    }
}

void TestKeepList::uncheckingTakesEffectAtOnce()
{
    QFETCH(const int, row);
    TestMachine machine;
    const WindowDriver driver;
    QVERIFY(setCheck(servicesBox(driver), row, Qt::Unchecked));
    QCOMPARE(stored(machine, row), QVariant(0));
    QCOMPARE(stored(machine, row).typeId(), int(QMetaType::Int));
    for (int other = 1; other <= 9; ++other) {
        QCOMPARE(member(driver, other), other == row ? 0 : 2);
        QCOMPARE(stored(machine, other).isValid(), other == row);
    }
}

void TestKeepList::featureIsUncheckedInBothBoxes()
{
    const WindowOnPc driver;
    setCheck(homeBox(driver), 6, Qt::Unchecked);
    QCOMPARE(servicesBox(driver)->itemData(6, Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    setCheck(servicesBox(driver), 6, Qt::Checked);
    QCOMPARE(homeBox(driver)->itemData(6, Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

void TestKeepList::checkingAgainStoresTwoAndGivesTheMemberTwo()
{
    QFETCH(const int, row);
    TestMachine machine;
    machine.write(settingsKey, setting(row), 0);
    const WindowDriver driver;
    QCOMPARE(member(driver, row), 0);
    setCheck(homeBox(driver), row, Qt::Checked);
    QCOMPARE(member(driver, row), 2);
    QCOMPARE(stored(machine, row), QVariant(2));
}

void TestKeepList::uncheckedFeatureIsGivenUpAtTheNextStart()
{
    QFETCH(const int, row);
    TestMachine machine;
    {
        const WindowDriver driver;
        setCheck(servicesBox(driver), row, Qt::Unchecked);
    }
    const WindowDriver driver;
    for (int other = 1; other <= 9; ++other) {
        QCOMPARE(member(driver, other), other == row ? 0 : 2);
        QCOMPARE(keepModel->item(other)->checkState(), other == row ? Qt::Unchecked : Qt::Checked);
    }
}

void TestKeepList::clickAnywhereInARowTogglesItsFeature_data()
{
    addColumns<bool, int>("home", "left");
    QTest::newRow("check box, Optimizer") << true << 10;
    QTest::newRow("text, Optimizer") << true << 100;
    QTest::newRow("check box, Services") << false << 10;
    QTest::newRow("text, Services") << false << 100;
}

void TestKeepList::clickAnywhereInARowTogglesItsFeature()
{
    QFETCH(const bool, home);
    QFETCH(const int, left);
    TestMachine machine;
    const WindowDriver driver;
    if (!home)
        QVERIFY(driver.openServices());
    QComboBox *box = home ? homeBox(driver) : servicesBox(driver);
    for (const int state : {0, 2, 0}) {
        QVERIFY(clickInPopup(box, 7, left));
        QCOMPARE(keepModel->item(7)->checkState(), static_cast<Qt::CheckState>(state));
        QCOMPARE(driver.worker().keepNfc.load(), state);
        QCOMPARE(stored(machine, 7), QVariant(state));
    }
    QCOMPARE(box->currentText(), u"Keep features"_s);
}

void TestKeepList::otherMouseButtonsToggleNothing()
{
    TestMachine machine;
    const WindowDriver driver;
    clickInPopup(homeBox(driver), 7, 10, Qt::RightButton);
    QCOMPARE(keepModel->item(7)->checkState(), Qt::Checked);
    QVERIFY(!stored(machine, 7).isValid());
}

void TestKeepList::titleRowCannotBeCheckedByAClick()
{
    TestMachine machine;
    const WindowDriver driver;
    driver.window().showPage(1);
    QVERIFY(driver.waitForList());
    clickInPopup(servicesBox(driver), 0, 10);
    clickInPopup(servicesBox(driver), 0, 100);
    QVERIFY(!keepModel->item(0)->data(Qt::CheckStateRole).isValid());
    QVERIFY(!stored(machine, 0).isValid());
    QCOMPARE(servicesBox(driver)->currentText(), u"Keep features"_s);
}

/** It is the list's current row all the time. */
void TestKeepList::titleRowIsDrawnAsNoChoice()
{
    const WindowOnPc driver;
    for (const QComboBox *box : {servicesBox(driver), homeBox(driver)}) {
        QCOMPARE(drawnRow(box, 0, QStyle::State_Selected | QStyle::State_HasFocus), drawnRow(box, 0, {}));
        QVERIFY(drawnRow(box, 1, QStyle::State_Selected) != drawnRow(box, 1, {}));
    }
}

void TestKeepList::wheelAndKeysLeaveTheTitle_data()
{
    QTest::addColumn<bool>("rebuilt");
    QTest::newRow("at the start") << false;
    QTest::newRow("after a change of theme") << true;
}

void TestKeepList::wheelAndKeysLeaveTheTitle()
{
    QFETCH(const bool, rebuilt);
    const WindowOnPc driver;
    if (rebuilt)
        driver.window().applyPalette();
    for (QComboBox *box : {servicesBox(driver), homeBox(driver)}) {
        for (const int turn : {-120, 120, -1200}) {
            const QPointF place = box->rect().center();
            QWheelEvent wheel(place, box->mapToGlobal(place), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(box, &wheel);
            QCOMPARE(box->currentText(), u"Keep features"_s);
        }
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown, Qt::Key_P}) {
            QTest::keyClick(box, key);
            QCOMPARE(box->currentText(), u"Keep features"_s);
        }
    }
    for (int row = 1; row <= 9; ++row)
        QCOMPARE(keepModel->item(row)->checkState(), Qt::Checked);
}

void TestKeepList::changeOfTheTitleRowStoresItsStateAndTouchesNoMember()
{
    TestMachine machine;
    const WindowDriver driver;
    keepModel->item(0)->setToolTip(u"changed"_s);
    QCOMPARE(stored(machine, 0), QVariant(0));
    for (int row = 1; row <= 9; ++row) {
        QCOMPARE(member(driver, row), 2);
        QVERIFY(!stored(machine, row).isValid());
    }
}

void TestKeepList::changeOfSeveralRowsStoresEach()
{
    TestMachine machine;
    const WindowDriver driver;
    {
        const QSignalBlocker blocker(keepModel);
        keepModel->item(4)->setCheckState(Qt::Unchecked);
    }
    Q_EMIT keepModel->dataChanged(keepModel->index(3, 0), keepModel->index(5, 0));
    for (int row = 1; row <= 9; ++row) {
        const bool changed = row >= 3 && row <= 5;
        QCOMPARE(stored(machine, row), changed ? QVariant(row == 4 ? 0 : 2) : QVariant());
        QCOMPARE(member(driver, row), row == 4 ? 0 : 2);
    }
}

void TestKeepList::oddStoredValueLeavesNoCheckStateAndTheMemberAlone_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("1") << 1;
    QTest::newRow("3") << 3;
    QTest::newRow("-1") << -1;
}

void TestKeepList::oddStoredValueLeavesNoCheckStateAndTheMemberAlone()
{
    QFETCH(const int, value);
    TestMachine machine;
    machine.write(settingsKey, u"Keep_5"_s, value);
    const WindowDriver driver;
    QVERIFY(!keepModel->item(5)->data(Qt::CheckStateRole).isValid());
    QCOMPARE(keepModel->item(5)->flags(), Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
    QCOMPARE(keepModel->item(5)->toolTip(), features.at(4).toolTip);
    QCOMPARE(member(driver, 5), 2);
    QCOMPARE(stored(machine, 5), QVariant(value));
    QCOMPARE(keepModel->item(4)->checkState(), Qt::Checked);
    QCOMPARE(keepModel->item(6)->checkState(), Qt::Checked);
}

void TestKeepList::builtAgainItShowsTheStoredStates()
{
    TestMachine machine;
    const WindowDriver driver;
    setCheck(servicesBox(driver), 2, Qt::Unchecked);
    driver.window().buildKeepList();
    QCOMPARE(keepModel->rowCount(), 10);
    for (int row = 1; row <= 9; ++row) {
        QCOMPARE(keepModel->item(row)->text(), features.at(row - 1).text);
        QCOMPARE(keepModel->item(row)->checkState(), row == 2 ? Qt::Unchecked : Qt::Checked);
    }
    for (const QComboBox *box : {servicesBox(driver), homeBox(driver)}) {
        QCOMPARE(box->count(), 10);
        QCOMPARE(box->currentText(), u"Keep features"_s);
    }
    // The keys stay those of the first building.
    QStringList keys = machine.names(settingsKey).filter(u"Keep_"_s);
    QCOMPARE(keys, QStringList(u"Keep_2"_s));
}

void TestKeepList::builtAgainItDoesNotRaiseAMember()
{
    TestMachine machine;
    const WindowDriver driver;
    driver.worker().keepUpnp = 0;
    driver.window().buildKeepList();
    QCOMPARE(driver.worker().keepUpnp.load(), 0);
    QCOMPARE(keepModel->item(5)->checkState(), Qt::Checked);

    machine.write(settingsKey, u"Keep_6"_s, 0);
    driver.window().buildKeepList();
    QCOMPARE(driver.worker().keepProxyVpn.load(), 0);
}

void TestKeepList::builtAgainItStoresNothingItself()
{
    TestMachine machine;
    const WindowDriver driver;
    driver.window().buildKeepList();
    driver.window().applyPalette();
    QCOMPARE(machine.names(settingsKey).filter(u"Keep_"_s), QStringList());
}

void TestKeepList::builtAgainItStillHearsOfChanges()
{
    TestMachine machine;
    const WindowDriver driver;
    for (int i = 0; i < 3; ++i)
        driver.window().buildKeepList();
    setCheck(homeBox(driver), 9, Qt::Unchecked);
    QCOMPARE(driver.worker().keepCodecs.load(), 0);
    QCOMPARE(stored(machine, 9), QVariant(0));
    setCheck(homeBox(driver), 9, Qt::Checked);
    QCOMPARE(driver.worker().keepCodecs.load(), 2);
    QCOMPARE(stored(machine, 9), QVariant(2));
}

void TestKeepList::builtInAnotherLanguageItShowsThatLanguageAndTheStoredStates()
{
    TestMachine machine;
    const WindowDriver driver;
    setCheck(homeBox(driver), 3, Qt::Unchecked);
    const MarkingTranslator language("Kestrune");
    driver.window().applyPalette();
    QCOMPARE(keepModel->rowCount(), 10);
    for (int row = 1; row <= 9; ++row) {
        QCOMPARE(keepModel->item(row)->text(), u'«' + features.at(row - 1).text + u'»');
        QCOMPARE(keepModel->item(row)->toolTip(), u'«' + features.at(row - 1).toolTip + u'»');
        QCOMPARE(keepModel->item(row)->checkState(), row == 3 ? Qt::Unchecked : Qt::Checked);
    }
    for (const QComboBox *box : {servicesBox(driver), homeBox(driver)})
        QCOMPARE(box->currentText(), u"«Keep features»"_s);
    setCheck(homeBox(driver), 9, Qt::Unchecked);
    QCOMPARE(machine.names(settingsKey).filter(u"Keep_"_s), (QStringList{u"Keep_3"_s, u"Keep_9"_s}));
}

void TestKeepList::secondWindowTakesTheListOver()
{
    TestMachine machine;
    {
        const WindowDriver first;
    }
    const WindowDriver second;
    QCOMPARE(keepModel->rowCount(), 10);
    setCheck(servicesBox(second), 1, Qt::Unchecked);
    QCOMPARE(second.worker().keepPrinter.load(), 0);
    QCOMPARE(stored(machine, 1), QVariant(0));
}

KESTRUNE_WINDOW_SUITE(TestKeepList)
#include "tst_keeplist.moc"
