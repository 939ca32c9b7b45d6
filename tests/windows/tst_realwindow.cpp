// SPDX-License-Identifier: GPL-3.0-or-later
// The window on a real registry, on which stand-ins of the stock tools act: every page and theme, and the services.

#include "platform/platform.h"
#include "support/boxes.h"
#include "support/menus.h"
#include "support/suite.h"
#include "support/windowdriver.h"
#include "windows/standin/standinkeys.h"
#include "windows/trialpc.h"

#include <QApplication>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString services = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_s;
const QString records = u"HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale\\SVC"_s;

QVariant startModeOf(const QString &service)
{
    return platform().openKey(services + service)->value(u"Start"_s);
}

bool isRecorded(const QString &service)
{
    return platform().openKey(records)->contains(service);
}

bool isRunning(const QString &service)
{
    return platform().openKey(standInStates)->value(service, 0).toInt() != 0;
}

} // namespace

class TestRealWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void showsEveryPage_data();
    void showsEveryPage();
    void listsTheServicesOfTheRegistry();
    void disablesAndRestoresAService();
    void leavesOneServiceDisabled();
    void backsTheStartModesUp();
    void showsEveryTheme_data();
    void showsEveryTheme();
    void speaksFrench_data();
    void speaksFrench();

private:
    std::unique_ptr<TrialPc> pc_;
    std::unique_ptr<WindowDriver> driver_;
};

void TestRealWindow::initTestCase()
{
    pc_ = std::make_unique<TrialPc>();
    pc_->startServices();
    // By its manifest: what the clicks do needs the right to do it.
    QVERIFY(platform().isElevated());
    driver_ = std::make_unique<WindowDriver>();
    QVERIFY(QTest::qWaitForWindowExposed(&driver_->window()));
}

void TestRealWindow::cleanupTestCase()
{
    driver_.reset();
    pc_.reset();
}

void TestRealWindow::showsEveryPage_data()
{
    addColumns<QString, QString, QString>("button", "choice", "tab");
    QTest::addColumn<QString>("summary"); // how the status begins after the listing; empty without one
    // clang-format off
    QTest::newRow("0-optimizer") << u"btnMenuHome"_s << QString() << u"tabAutomatizer"_s << QString();
    QTest::newRow("1-services") << u"btnMenuService"_s << QString() << u"tabService"_s << u"Services:"_s;
    QTest::newRow("3-autorun") << u"btnMenuPackage"_s << u"Automatically started programs"_s << u"tabAutorun"_s << QString();
    QTest::newRow("4-packages") << u"btnMenuPackage"_s << u"Windows packages installed"_s << u"tabPackage"_s << u"Packages installed:"_s;
    QTest::newRow("5-features") << u"btnMenuTweak"_s << QString() << u"tabTweak"_s << QString();
    QTest::newRow("6-information") << u"btnMenuInfo"_s << QString() << u"tabInfo"_s << QString();
    QTest::newRow("7-options") << u"btnMenuOptions"_s << QString() << u"tabOptions"_s << QString();
    QTest::newRow("8-about") << u"btnMenuAbout"_s << QString() << u"tabAbout"_s << QString();
    QTest::newRow("2-tasks") << u"btnMenuTask"_s << QString() << u"tabTask"_s << u"Tasks:"_s;
    // clang-format on
}

void TestRealWindow::showsEveryPage()
{
    QFETCH(const QString, button);
    QFETCH(const QString, choice);
    QFETCH(const QString, tab);
    QFETCH(const QString, summary);
    Menus menus;
    if (!choice.isEmpty())
        menus.choose(choice);
    driver_->click(button);
    // So that no later wait takes this listing for its own
    if (!summary.isEmpty())
        QVERIFY(driver_->waitForList(summary));
    QTRY_VERIFY_WITH_TIMEOUT(!driver_->worker().isRunning() && !driver_->winSxsWorker().isRunning(), patience);
    QCOMPARE(driver_->get<QTabWidget>(u"tabWidget"_s)->currentWidget()->objectName(), tab);
    takePicture(QString::fromLatin1(QTest::currentDataTag()));
}

void TestRealWindow::listsTheServicesOfTheRegistry()
{
    QVERIFY(driver_->openServices());
    for (const QString &service : {u"DiagTrack"_s, u"SysMain"_s, u"WSearch"_s})
        QVERIFY2(driver_->cell(service) != nullptr, qPrintable(service));
    QVERIFY(driver_->listed().size() > 50);
}

void TestRealWindow::disablesAndRestoresAService()
{
    const QString service = u"SysMain"_s;
    QVERIFY(driver_->openServices());
    driver_->clickCheckBox(service);
    QCOMPARE(driver_->checked(), QStringList{service});
    driver_->click(u"btnSvcDisable"_s);
    QVERIFY(driver_->waitForList());
    QCOMPARE(startModeOf(service), QVariant(4));
    QVERIFY(isRecorded(service));

    driver_->click(u"btnSvcViewDisabled"_s);
    QVERIFY(driver_->listed().contains(service));
    takePicture(u"services-disabled"_s);
    driver_->click(u"btnSvcViewDisabled"_s);
    QVERIFY(driver_->waitForList());

    Boxes boxes({QMessageBox::No});
    driver_->click(u"btnSvcRestore"_s);
    QVERIFY(driver_->waitForList());
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(startModeOf(service), QVariant(2));
    QVERIFY(!isRecorded(service));
    QVERIFY(isRunning(service));
}

void TestRealWindow::leavesOneServiceDisabled()
{
    const QString service = u"DiagTrack"_s;
    // Windows 10 changes the registry and leaves the service as it is.
    const bool stops = !driver_->worker().winName.contains("10"_L1);
    driver_->clickCheckBox(service);
    driver_->click(u"btnSvcDisable"_s);
    QVERIFY(driver_->waitForList());
    QCOMPARE(startModeOf(service), QVariant(4));
    QVERIFY(isRecorded(service));
    QCOMPARE(isRunning(service), !stops);
    takePicture(u"services-changed"_s);
}

void TestRealWindow::backsTheStartModesUp()
{
    QFile backup(platform().programFolder() + u"/backup_svc/StartMode.reg"_s);
    QVERIFY(backup.open(QIODevice::ReadOnly));
    QVERIFY(backup.readAll().contains("Services\\SysMain]"));
}

void TestRealWindow::showsEveryTheme_data()
{
    QTest::addColumn<QString>("theme");
    for (const char *theme : {"light", "dark", "system"})
        QTest::newRow(theme) << QString::fromLatin1(theme);
}

void TestRealWindow::showsEveryTheme()
{
    QFETCH(const QString, theme);
    platform().openKey(settingsKey)->setValue(u"palette"_s, theme);
    driver_ = std::make_unique<WindowDriver>();
    QVERIFY(QTest::qWaitForWindowExposed(&driver_->window()));
    QVERIFY(driver_->openServices());
    takePicture(u"theme-"_s + theme);
    platform().openKey(settingsKey)->remove(u"palette"_s);
}

void TestRealWindow::speaksFrench_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("speaker"); // a button of the page
    QTest::addColumn<QString>("text");
    // clang-format off
    QTest::newRow("0-optimizer")   << u"btnMenuHome"_s    << u"btnAutomatizerRestore"_s << u"Restaurer"_s;
    QTest::newRow("5-features")    << u"btnMenuTweak"_s   << u"btnTweakApply"_s         << u"Appliquer"_s;
    QTest::newRow("6-information") << u"btnMenuInfo"_s    << u"btnMenuInfo"_s           << u"Informations\nsystème"_s;
    QTest::newRow("7-options")     << u"btnMenuOptions"_s << u"btnMenuTweak"_s          << u"Fonctions"_s;
    QTest::newRow("8-about")       << u"btnMenuAbout"_s   << u"btnMenuAbout"_s          << u"À propos"_s;
    // clang-format on
}

void TestRealWindow::speaksFrench()
{
    QFETCH(const QString, button);
    QFETCH(const QString, speaker);
    QFETCH(const QString, text);
    // The translation is read from the folder beside the program.
    platform().openKey(settingsKey)->setValue(u"lang"_s, u"fr"_s);
    driver_ = std::make_unique<WindowDriver>();
    QVERIFY(QTest::qWaitForWindowExposed(&driver_->window()));
    driver_->click(button);
    QTRY_VERIFY_WITH_TIMEOUT(!driver_->worker().isRunning() && !driver_->winSxsWorker().isRunning(), patience);
    takePicture(u"french-"_s + QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(driver_->button(speaker)->text().trimmed(), text);
    driver_.reset();
    platform().openKey(settingsKey)->setValue(u"lang"_s, u"en"_s);
}

KESTRUNE_WINDOW_SUITE(TestRealWindow)
#include "tst_realwindow.moc"
