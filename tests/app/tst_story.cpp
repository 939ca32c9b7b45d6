// SPDX-License-Identifier: GPL-3.0-or-later
// A person's way through the Services page, on the built-in PCs: from the first listing to everything restored.

#include "support/boxes.h"
#include "support/files.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

const QString recordsKey = settingsKey + u"\\SVC"_s;

using StartModes = QMap<QString, int>;

StartModes startModes(const TestMachine &machine)
{
    StartModes modes;
    const auto services = machine.platform().openKey(servicesKey);
    for (const QString &name : services->childGroups())
        modes.insert(name, services->value(name + u"/Start"_s, -1).toInt());
    return modes;
}

StartModes changed(StartModes modes, const QStringList &services, int mode)
{
    for (const QString &service : services)
        modes.insert(service, mode);
    return modes;
}

QMap<QString, bool> switched(QMap<QString, bool> states, const QStringList &services, bool running)
{
    for (const QString &service : services)
        states.insert(service, running);
    return states;
}

QStringList sorted(QStringList names, Qt::CaseSensitivity sensitivity = Qt::CaseSensitive)
{
    names.sort(sensitivity);
    return names;
}

/** What a user reads who lets the mouse rest on a service. */
QString textUnderTheMouse(const WindowDriver &driver, const QString &service)
{
    QTableWidget *table = driver.services();
    table->scrollToItem(driver.cell(service));
    const QPoint position = table->visualItemRect(driver.cell(service)).center();
    QHelpEvent event(QEvent::ToolTip, position, table->viewport()->mapToGlobal(position));
    QCoreApplication::sendEvent(table->viewport(), &event);
    const QString text = QToolTip::text();
    QToolTip::hideText();
    return text;
}

/** What sc was asked besides the listings. */
QStringList scRuns(const TestMachine &machine)
{
    QStringList runs;
    for (const LoggedCommand &command : machine.commands()) {
        if (command.program == "sc"_L1 && command.arguments.value(0) != "query"_L1)
            runs.append(command.arguments.join(u' '));
    }
    return runs;
}

} // namespace

class TestStory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void needlessServicesGoAndComeBack_data();
    void needlessServicesGoAndComeBack();
};

void TestStory::needlessServicesGoAndComeBack_data()
{
    addColumns<QString, bool>("builtIn", "stopsServices");
    QTest::newRow("Windows 11") << u"windows11"_s << true;
    QTest::newRow("Windows 10") << u"windows10"_s << false;
}

void TestStory::needlessServicesGoAndComeBack()
{
    QFETCH(const QString, builtIn);
    QFETCH(const bool, stopsServices);
    TestMachine machine(builtIn);
    const StartModes firstModes = startModes(machine);
    const auto firstStates = machine.machine().runStates();
    const QString backup = machine.platform().programFolder() + u"/backup_svc/StartMode.reg"_s;
    QVERIFY(!QFile::exists(backup));

    // The list, with its descriptions.
    const ServicesPage driver;
    const int started = driver.services()->rowCount();
    QVERIFY(started > 80);
    QCOMPARE(driver.cell(u"DiagTrack"_s)->text(), u"Connected User Experiences and Telemetry"_s);
    const QString description = driver.cell(u"DiagTrack"_s, 2)->text();
    QVERIFY(description.size() > 20);
    QVERIFY(description != "no description"_L1);
    const QString shown = textUnderTheMouse(driver, u"DiagTrack"_s);
    QVERIFY2(shown.startsWith("DiagTrack:<br><br>"_L1) && shown.contains(description), qPrintable(shown));
    const QByteArray firstBackup = readFile(backup);
    QVERIFY(firstBackup.contains("Services\\SysMain]"));

    // The assistant checks what nobody needs, and asks.
    QStringList needless;
    const QStringList listed = driver.listed();
    for (const QString &service : listed) {
        if (driver.worker().nonVitalServices.contains(service, Qt::CaseInsensitive))
            needless.append(service);
    }
    QVERIFY(needless.size() > 8);
    QVERIFY(needless.contains(u"DiagTrack"_s) && needless.contains(u"TrkWks"_s) && needless.contains(u"lfsvc"_s));
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.checked(), needless);
    QVERIFY(driver.waitForList());

    QCOMPARE(sorted(machine.names(recordsKey)), sorted(needless));
    QCOMPARE(startModes(machine), changed(firstModes, needless, 4));
    QCOMPARE(machine.machine().runStates(), stopsServices ? switched(firstStates, needless, false) : firstStates);
    QCOMPARE(driver.services()->rowCount(), stopsServices ? started - needless.size() : started);
    QStringList runs;
    for (const QString &service : sorted(needless, Qt::CaseInsensitive)) {
        if (stopsServices)
            runs.append(u"stop "_s + service);
        if (stopsServices || service == "TrkWks"_L1)
            runs.append(u"config "_s + service + u" start=disabled"_s);
    }
    QCOMPARE(scRuns(machine), runs);

    // Seen among the disabled ones; one of them is wanted back.
    driver.click(u"btnSvcViewDisabled"_s);
    for (const QString &service : needless) {
        QVERIFY(driver.cell(service) != nullptr);
        QCOMPARE(driver.cell(service, 1)->text(), u"Disabled"_s);
    }
    QVERIFY(!driver.cell(u"tzautoupdate"_s)->flags().testFlag(Qt::ItemIsEnabled));
    driver.clickCheckBox(u"SysMain"_s);
    QCOMPARE(driver.checked(), QStringList(u"SysMain"_s));
    driver.click(u"btnSvcDisable"_s);
    QVERIFY(driver.waitForList());
    QStringList stillDisabled = needless;
    stillDisabled.removeAll(u"SysMain"_s);
    QCOMPARE(sorted(machine.names(recordsKey)), sorted(stillDisabled));
    QCOMPARE(startModes(machine), changed(changed(firstModes, stillDisabled, 4), {u"SysMain"_s}, 2));
    QCOMPARE(machine.machine().isRunning(u"SysMain"_s), std::optional(true));
    QVERIFY(driver.listed().contains(u"SysMain"_s));

    // Everything else back, too.
    boxes.answer(QMessageBox::No);
    driver.click(u"btnSvcRestore"_s);
    QCOMPARE(boxes.shown().constLast().text, u"Backup file exists"_s);
    QVERIFY(driver.waitForList());
    QCOMPARE(machine.names(recordsKey), QStringList());
    // Enabled services start with Windows, those too that once were started by hand.
    QCOMPARE(startModes(machine), changed(firstModes, needless, 2));
    QCOMPARE(machine.machine().runStates(), firstStates);
    QCOMPARE(driver.services()->rowCount(), started);
    QCOMPARE(readFile(backup), firstBackup);
    QVERIFY(machine.shellStarts().isEmpty());
}

KESTRUNE_WINDOW_SUITE(TestStory)
#include "tst_story.moc"
