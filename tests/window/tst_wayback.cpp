// SPDX-License-Identifier: GPL-3.0-or-later
// The way back in the window: what its dialog lists and takes back, and the button that leads there after a break.

#include "journal/journaling.h"
#include "machine/database.h"
#include "platform/windowsfacts.h"
#include "support/accessibletree.h"
#include "support/boxes.h"
#include "support/featuresview.h"
#include "support/registryvalues.h"
#include "support/suite.h"
#include "window/waybackdialog.h"
#include "work/settings.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>
#include <QTreeView>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int optionsPage = 7;
const QString alphaStart = u"Service Alpha: start mode"_s;
const QString alphaRun = u"Service Alpha: run state"_s;
const QString betaStart = u"Service Beta: start mode"_s;

/** A machine with services to switch off. */
class ServicesPc : public TestMachine
{
public:
    ServicesPc()
    {
        for (const QString &name : {u"Alpha"_s, u"Beta"_s})
            add({.name = name, .start = StartAutomatic, .running = true});
    }
};

bool settle(const WindowDriver &driver)
{
    return QTest::qWaitFor([&driver] { return !driver.worker().isRunning(); }, patience);
}

/** Switches services off, as a person does. */
bool disable(const WindowDriver &driver, const QStringList &names)
{
    if (!driver.openServices())
        return false;
    for (const QString &name : names)
        driver.clickCheckBox(name);
    driver.click(u"btnSvcDisable"_s);
    return driver.waitForList();
}

/** The dialog, driven by the names of its widgets. */
class Dialog
{
public:
    /** Clicks the button that opens it; the first look at the changes is over then. */
    Dialog(const WindowDriver &driver, const QString &button = u"btnOptionsWayBack"_s)
    {
        if (button == "btnOptionsWayBack"_L1)
            driver.window().showPage(optionsPage);
        driver.click(button);
        dialog_ = driver.window().findChild<WayBackDialog *>();
        if (dialog_ == nullptr || !isIdle())
            qFatal("the dialog doesn't come");
    }

    WayBackDialog &operator*() const { return *dialog_; }
    bool isOpen() const { return dialog_ != nullptr && dialog_->isVisible(); }

    template<typename Widget>
    Widget *get(const QString &name) const
    {
        auto *widget = dialog_->findChild<Widget *>(name);
        if (widget == nullptr)
            qFatal("the dialog has no %s", qUtf8Printable(name));
        return widget;
    }
    void click(const QString &name) const { QTest::mouseClick(get<QPushButton>(name), Qt::LeftButton); }
    QPushButton *takeButton() const { return get<QPushButton>(u"btnTakeBack"_s); }
    QString status() const { return get<QLabel>(u"lblWayBack"_s)->text(); }
    QTreeWidget *sessions() const { return get<QTreeWidget>(u"lstSessions"_s); }
    QTreeView *changes() const { return get<QTreeView>(u"lstChanges"_s); }

    /** Waits until nothing is looked at or taken back any more. */
    bool isIdle() const
    {
        return QTest::qWaitFor(
            [this] {
                return get<QProgressBar>(u"pgrWayBack"_s)->isHidden() && !work()->isRunning()
                       && !status().endsWith(u'…');
            },
            patience);
    }
    WayBackWork *work() const { return dialog_->findChild<WayBackWork *>(); }

    /** What the sessions are called, from top to bottom, and what became of them. */
    QStringList listedSessions() const
    {
        QStringList lines;
        for (int row = 0; row < sessions()->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *item = sessions()->topLevelItem(row);
            if (item->text(1) != "Looking around"_L1)
                lines.append(item->text(1) + u": "_s + item->text(3));
        }
        return lines;
    }
    void choose(const QString &session) const
    {
        const QList<QTreeWidgetItem *> found = sessions()->findItems(session, Qt::MatchExactly, 1);
        if (found.isEmpty())
            qFatal("there is no session %s", qUtf8Printable(session));
        sessions()->setCurrentItem(found.first());
        if (!isIdle())
            qFatal("the changes aren't listed");
    }

    /** The row of a change; without one, an invalid index. */
    QModelIndex row(const QString &change) const
    {
        const QAbstractItemModel &model = *changes()->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 0).data() == change)
                return model.index(row, 0);
        }
        return {};
    }
    QString cell(const QString &change, int column) const
    {
        return row(change).siblingAtColumn(column).data().toString();
    }
    QString state(const QString &change) const { return cell(change, WayBackModel::Verdict); }
    QVariant isChecked(const QString &change) const { return row(change).data(Qt::CheckStateRole); }
    int rowCount() const { return changes()->model()->rowCount(); }

    bool take() const
    {
        QTest::mouseClick(takeButton(), Qt::LeftButton);
        return isIdle();
    }

private:
    QPointer<WayBackDialog> dialog_;
};

int startOf(const Journaled &pc, const QString &service)
{
    return pc.machine().registry().value(servicesKey + u'\\' + service, u"Start"_s)->data.at(0);
}

/** Ends the window as a loss of power does: the job's session has no end. */
void breakOff(const Journaled &pc, const QString &what)
{
    for (const Session &session : pc.journal().store().sessions()) {
        if (session.what == what)
            pc.journal().store().endSession(session.id, SessionState::BrokenOff);
    }
}

/** Another program sets how a service starts. */
void setStartElsewhere(const Journaled &pc, const QString &service)
{
    pc.journal().system().setValue(servicesKey + u'\\' + service,
                                   {u"Start"_s, RegistryType::DWord, QByteArray("\3\0\0\0", 4)});
}

QStringList languages()
{
    const QDir folder(QCoreApplication::applicationDirPath() + u"/Translations"_s);
    QStringList files;
    for (const QString &file : folder.entryList({u"lang_*.qm"_s}))
        files.append(folder.filePath(file));
    return files;
}

/** The letters that lead to widgets. */
QStringList mnemonics(const QWidget &dialog)
{
    QStringList letters;
    const auto add = [&letters](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            letters.append(key.toString());
    };
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        add(label->buddy() != nullptr ? label->text() : QString());
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
        add(button->text());
    return letters;
}

} // namespace

class TestWayBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTweakIsListedAndTakenBack();
    void aSingleChangeIsTakenBack();
    void whatSomethingElseHasChangedIsLeftAlone();
    void whatSomethingElseHasChangedIsTakenWhereItIsChecked();
    void programsSwitchedByHandAreSessions();
    void longNamesLeaveRoomForTheChanges();
    void laterSessionsAreTakenWithIt();
    void theSearchHidesTheOthers();
    void takingBackCanBeBrokenOff();
    void theFilesAreWrittenWhereOneSays();
    void aBoxShowsTwentyThingsThatFilesCannotBringBack_data();
    void aBoxShowsTwentyThingsThatFilesCannotBringBack();
    void nothingIsTakenBackBesideAnotherInstance();
    void withoutChangesItSaysSo();
    void allOfItCanBeAskedFor();
    void aNewerWindowsIsTold();
    void withoutRightsTheyAreOffered_data();
    void withoutRightsTheyAreOffered();
    void withoutAJournalItSaysSo();
    void whatCannotBeNotedIsToldOnce();
    void aBrokenOffSessionHasAButtonUntilItWasSeen();
    void lookingAroundIsNoBrokenOffJob();
    void sessionsOfOthersSayWhose();
    void theKeyboardReachesEverything();
    void everythingHasAName();
    void everyLanguageHasLettersOfItsOwn_data();
    void everyLanguageHasLettersOfItsOwn();
};

void TestWayBack::aTweakIsListedAndTakenBack()
{
    const TestMachine machine;
    platform().openKey(settingsKey)->setValue(u"GetWinSxsSize"_s, 0);
    const Journaled pc(machine);
    const WindowDriver driver;
    driver.window().showPage(5);
    const QStringList before = pc.differences();
    clickBox(driver, u"chkSsd1"_s);
    apply(driver);
    QVERIFY(settle(driver));
    QVERIFY(pc.differences() != before);

    const Dialog dialog(driver);
    QCOMPARE((*dialog).windowTitle(), u"Way back"_s);
    QStringList buttons;
    for (const char *name : {"btnCheckAll", "btnUncheckAll", "btnTakeBack", "btnSaveFiles", "btnClose"})
        buttons.append(dialog.get<QPushButton>(QString::fromLatin1(name))->text());
    QCOMPARE(buttons,
             (QStringList{u"Check all"_s, u"Uncheck all"_s, u"&Take back"_s, u"Sa&ve as files…"_s, u"Close"_s}));
    // Enter in the search is none of theirs.
    for (const QPushButton *button : (*dialog).findChildren<QPushButton *>())
        QVERIFY(!button->autoDefault());
    QCOMPARE(dialog.get<QCheckBox>(u"chkLater"_s)->text(), u"With all &later changes"_s);
    const QHeaderView *header = dialog.changes()->header();
    for (const auto &[column, width] : {std::pair(0, 250), std::pair(1, 100), std::pair(2, 100)})
        QCOMPARE(header->sectionSize(column), std::max(width, header->sectionSizeHint(column)));
    dialog.choose(u"Apply features"_s);
    QVERIFY(dialog.rowCount() > 0);
    QVERIFY(dialog.takeButton()->isEnabled());
    const QSignalSpy changed(dialog.changes()->model(), &QAbstractItemModel::dataChanged);
    QVERIFY(dialog.take());
    QCOMPARE(changed.last().at(0).toModelIndex(), dialog.changes()->model()->index(0, 0));
    QCOMPARE(changed.last().at(1).toModelIndex(),
             dialog.changes()->model()->index(dialog.rowCount() - 1, WayBackModel::ColumnCount - 1));
    for (int row = 0; row < dialog.rowCount(); ++row) {
        const QModelIndex first = dialog.changes()->model()->index(row, 0);
        QCOMPARE(first.siblingAtColumn(WayBackModel::Verdict).data().toString(), u"as it was"_s);
        QCOMPARE(first.siblingAtColumn(WayBackModel::Before).data(), first.siblingAtColumn(WayBackModel::Now).data());
        QVERIFY(!first.data(Qt::CheckStateRole).isValid());
    }
    QVERIFY(!dialog.takeButton()->isEnabled());
    QCOMPARE(dialog.listedSessions(), QStringList({u"Take back: finished"_s, u"Apply features: finished"_s}));
    QCOMPARE(pc.differences(), before);
}

void TestWayBack::aSingleChangeIsTakenBack()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s, u"Beta"_s}));
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    QCOMPARE(dialog.state(alphaStart), u"changed"_s);
    QCOMPARE(dialog.cell(alphaStart, WayBackModel::Before), u"automatic"_s);
    QCOMPARE(dialog.cell(alphaStart, WayBackModel::Now), u"disabled"_s);
    dialog.click(u"btnUncheckAll"_s);
    QVERIFY(!dialog.takeButton()->isEnabled());
    QVERIFY(dialog.changes()->model()->setData(dialog.row(alphaStart), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(dialog.take());
    QCOMPARE(dialog.state(alphaStart), u"as it was"_s);
    QCOMPARE(dialog.cell(alphaStart, WayBackModel::Now), u"automatic"_s);
    QCOMPARE(dialog.state(alphaRun), u"changed"_s);
    QCOMPARE(dialog.state(betaStart), u"changed"_s);
    QCOMPARE(startOf(pc, u"Alpha"_s), int(StartAutomatic));
    QCOMPARE(startOf(pc, u"Beta"_s), int(StartDisabled));
    QCOMPARE(recordedNames(u"SVC"_s), QStringList(u"Beta"_s)); // a record goes with what it is of
}

void TestWayBack::whatSomethingElseHasChangedIsLeftAlone()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s, u"Beta"_s}));
    setStartElsewhere(pc, u"Alpha"_s);
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    QCOMPARE(dialog.state(alphaStart), u"changed again: something else has changed it since"_s);
    QCOMPARE(dialog.isChecked(alphaStart).toInt(), int(Qt::Unchecked));
    QCOMPARE(dialog.isChecked(betaStart).toInt(), int(Qt::Checked));
    QVERIFY(dialog.take());
    QCOMPARE(startOf(pc, u"Alpha"_s), int(StartOnDemand));
    QCOMPARE(startOf(pc, u"Beta"_s), int(StartAutomatic));
}

void TestWayBack::whatSomethingElseHasChangedIsTakenWhereItIsChecked()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s, u"Beta"_s}));
    setStartElsewhere(pc, u"Alpha"_s);
    setStartElsewhere(pc, u"Beta"_s);
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    QVERIFY(dialog.changes()->model()->setData(dialog.row(alphaStart), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(dialog.take());
    QCOMPARE(startOf(pc, u"Alpha"_s), int(StartAutomatic));
    QCOMPARE(startOf(pc, u"Beta"_s), int(StartOnDemand));
}

void TestWayBack::programsSwitchedByHandAreSessions()
{
    TestMachine machine;
    machine.write(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s, u"Tool"_s,
                  u"\"C:\\Tools\\tool.exe\""_s);
    machine.addFile(u"C:\\Tools\\tool.exe"_s);
    const Journaled pc(machine);
    const WindowDriver driver;
    driver.window().showPage(3);
    driver.click(u"btnAutorun"_s);
    driver.click(u"btnAutorunViewDisabled"_s);
    driver.table(u"tblAutorun"_s)->item(0, 0)->setCheckState(Qt::Checked);
    driver.click(u"btnAutorun"_s);
    QCOMPARE(Dialog(driver).listedSessions(),
             QStringList({u"Enable programs: finished"_s, u"Disable programs: finished"_s}));
}

void TestWayBack::longNamesLeaveRoomForTheChanges()
{
    const TestMachine machine;
    const Journaled pc(machine);
    JournalStore &store = pc.journal().store();
    const qint64 session = store.beginSession({.what = QString(500, u'm')});
    Note note;
    note.item = {ItemKind::Key, u"HKEY_CURRENT_USER\\Software\\Made"_s};
    store.add(session, {note});
    store.endSession(session, SessionState::Finished);
    const WindowDriver driver;
    QCOMPARE(Dialog(driver).sessions()->minimumWidth(), 480);
}

void TestWayBack::laterSessionsAreTakenWithIt()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s}));
    QVERIFY(disable(driver, {u"Beta"_s}));
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    QVERIFY(dialog.row(betaStart).isValid());
    QVERIFY(!dialog.row(alphaStart).isValid());
    dialog.sessions()->setCurrentItem(dialog.sessions()->topLevelItem(dialog.sessions()->topLevelItemCount() - 1));
    dialog.get<QCheckBox>(u"chkLater"_s)->click();
    QVERIFY(dialog.isIdle());
    QVERIFY(dialog.row(betaStart).isValid());
    QVERIFY(dialog.row(alphaStart).isValid());
    QVERIFY(dialog.take());
    QCOMPARE(pc.differences(), QStringList());
}

void TestWayBack::theSearchHidesTheOthers()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s, u"Beta"_s}));
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    QVERIFY(dialog.get<QLineEdit>(u"edtSearch"_s)->isClearButtonEnabled());
    QTest::keyClicks(dialog.get<QLineEdit>(u"edtSearch"_s), u"beta"_s);
    QVERIFY(dialog.row(betaStart).isValid());
    QVERIFY(!dialog.row(alphaStart).isValid());
    dialog.click(u"btnUncheckAll"_s); // of what is seen
    dialog.get<QLineEdit>(u"edtSearch"_s)->clear();
    QCOMPARE(dialog.isChecked(alphaStart).toInt(), int(Qt::Checked));
    QCOMPARE(dialog.isChecked(betaStart).toInt(), int(Qt::Unchecked));
}

void TestWayBack::takingBackCanBeBrokenOff()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s}));
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    ToolFault hanging;
    hanging.hang = true;
    pc.machine().setFault(u"sc"_s, hanging);
    QTest::mouseClick(dialog.takeButton(), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(pc.journal().store().sessions().last().what, u"Take back"_s, patience);
    QVERIFY(dialog.work()->isRunning());
    QVERIFY(!dialog.takeButton()->isEnabled());
    QVERIFY(!dialog.sessions()->isEnabled());
    QVERIFY(!pc.journal().lockOthersOut());
    QTest::keyClick(&*dialog, Qt::Key_Escape);
    QVERIFY(dialog.isIdle());
    QVERIFY(dialog.isOpen());
    QVERIFY(pc.journal().lockOthersOut());
    QCOMPARE(dialog.listedSessions().first(), u"Take back: broken off"_s);
    pc.machine().clearFault(u"sc"_s);
    QCOMPARE(dialog.state(alphaStart), u"changed"_s);
    QVERIFY(dialog.take());
    QCOMPARE(dialog.state(alphaStart), u"as it was"_s);
    QTest::keyClick(&*dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isOpen());
}

/** Chooses this folder in the dialog for one as soon as that stands on the screen. */
class FolderChoice
{
public:
    explicit FolderChoice(const QString &folder)
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, folder] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            timer_.stop();
            dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(folder);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        timer_.start(5);
    }

private:
    QTimer timer_;
};

void TestWayBack::theFilesAreWrittenWhereOneSays()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s, u"Beta"_s}));
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    QVERIFY(dialog.changes()->model()->setData(dialog.row(betaStart), Qt::Unchecked, Qt::CheckStateRole));
    const QTemporaryDir folder;
    {
        const FolderChoice choice(folder.path());
        Boxes boxes({QMessageBox::NoButton});
        dialog.click(u"btnSaveFiles"_s);
        QTRY_COMPARE_WITH_TIMEOUT(boxes.shown().size(), 1, patience);
        QCOMPARE(boxes.shown().first().text,
                 u"Written: "_s + QDir::toNativeSeparators(folder.path() + u"/way-back.reg"_s));
    }
    QVERIFY(dialog.isIdle());
    QVERIFY(dialog.takeButton()->isEnabled());
    QFile script(folder.filePath(u"way-back.reg"_s));
    QVERIFY(script.open(QIODevice::ReadOnly));
    const QByteArray bytes = script.readAll();
    const QString text = QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData()), bytes.size() / 2);
    QVERIFY(text.contains(u"Services\\Alpha]"_s));
    QVERIFY(!text.contains(u"Services\\Beta]"_s));
    QCOMPARE(startOf(pc, u"Alpha"_s), int(StartDisabled)); // nothing is taken back
}

void TestWayBack::aBoxShowsTwentyThingsThatFilesCannotBringBack_data()
{
    QTest::addColumn<int>("things");
    QTest::newRow("20") << 20;
    QTest::newRow("21") << 21;
}

void TestWayBack::aBoxShowsTwentyThingsThatFilesCannotBringBack()
{
    QFETCH(const int, things);
    const TestMachine machine;
    const Journaled pc(machine);
    JournalStore &store = pc.journal().store();
    const qint64 session = store.beginSession({.what = u"Disable services"_s});
    QList<Note> notes;
    for (int i = 0; i < things; ++i) {
        Note note;
        note.item = {ItemKind::Key, u"HKEY_CURRENT_USER\\Software\\two\nlines %1"_s.arg(i)};
        note.before.there = true;
        note.after = ItemState();
        notes.append(note);
    }
    store.add(session, notes);
    store.endSession(session, SessionState::Finished);
    const WindowDriver driver;
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    const QTemporaryDir folder;
    const FolderChoice choice(folder.path());
    Boxes boxes({QMessageBox::NoButton});
    dialog.click(u"btnSaveFiles"_s);
    QTRY_COMPARE_WITH_TIMEOUT(boxes.shown().size(), 1, patience);
    const QStringList lines = boxes.shown().first().text.split(u'\n');
    QCOMPARE(lines.mid(0, 2), QStringList({u"The files can't bring back:"_s, QString()}));
    QCOMPARE(lines.filter(u"two"_s).size(), 20);
    QCOMPARE(lines.last() == u"…"_s, things > 20);
    QCOMPARE(lines.size(), things > 20 ? 23 : 22);
}

void TestWayBack::nothingIsTakenBackBesideAnotherInstance()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s}));
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    const std::shared_ptr<void> other = pc.journal().lockOthersOut();
    Boxes boxes({QMessageBox::NoButton});
    QTest::mouseClick(dialog.takeButton(), Qt::LeftButton);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(boxes.shown().first().text.startsWith(u"Another instance"_s));
    QVERIFY(!dialog.work()->isRunning());
    QCOMPARE(startOf(pc, u"Alpha"_s), int(StartDisabled));
}

void TestWayBack::withoutChangesItSaysSo()
{
    const TestMachine machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    driver.window().showPage(optionsPage);
    for (const Session &session : pc.journal().store().sessions())
        QCOMPARE(session.changes, 0);
    const Dialog dialog(driver);
    QCOMPARE(dialog.status(), u"No changes have been noted on this PC so far."_s);
    QVERIFY(!dialog.takeButton()->isEnabled());
}

/** As the uninstaller opens it. */
void TestWayBack::allOfItCanBeAskedFor()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s}));
    QVERIFY(disable(driver, {u"Beta"_s}));
    driver.window().showWayBack();
    const auto *dialog = driver.window().findChild<WayBackDialog *>();
    QVERIFY(dialog != nullptr);
    QVERIFY(dialog->findChild<QCheckBox *>(u"chkLater"_s)->isChecked());
    const QAbstractItemModel &changes = *dialog->findChild<QTreeView *>(u"lstChanges"_s)->model();
    QStringList listed;
    QTRY_VERIFY_WITH_TIMEOUT(changes.rowCount() >= 4, patience);
    for (int row = 0; row < changes.rowCount(); ++row)
        listed.append(changes.index(row, 0).data().toString());
    QVERIFY2(listed.contains(alphaStart) && listed.contains(betaStart), qPrintable(listed.join(u'\n')));
}

/** What was changed before an update of Windows may be as Windows wants it. */
void TestWayBack::aNewerWindowsIsTold()
{
    const ServicesPc machine;
    Journaled pc(machine);
    const QString build = WindowsKey::currentVersion;
    setText(pc.machine(), build, u"CurrentBuild"_s, u"26100"_s);
    {
        const WindowDriver driver;
        QVERIFY(disable(driver, {u"Alpha"_s}));
        const Dialog dialog(driver);
        QVERIFY2(!dialog.status().contains(u"26100"_s), qPrintable(dialog.status()));
    }
    pc.open();
    setText(pc.machine(), build, u"CurrentBuild"_s, u"26200"_s);
    setNumber(pc.machine(), servicesKey + u"\\Alpha"_s, u"Start"_s, StartAutomatic);
    const WindowDriver driver;
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    QVERIFY2(dialog.status().endsWith(u"Windows was updated from build 26100 to 26200 since. No longer in force: 1."_s),
             qPrintable(dialog.status()));
}

void TestWayBack::withoutRightsTheyAreOffered_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("No") << QMessageBox::No;
    QTest::newRow("Yes") << QMessageBox::Yes;
}

void TestWayBack::withoutRightsTheyAreOffered()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    const bool accepted = answer == QMessageBox::Yes;
    const TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    const WindowDriver driver;
    driver.window().showPage(optionsPage);
    Boxes boxes({answer});
    driver.click(u"btnOptionsWayBack"_s);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(boxes.shown().first().text.startsWith(u"The way back needs Admin rights"_s));
    QCOMPARE(machine.shellStarts().size(), accepted ? 1 : 0);
    QCOMPARE(machine.read(settingsKey, u"lastPage"_s), accepted ? QVariant(optionsPage) : QVariant());
    QCOMPARE(driver.window().hasLeft(), accepted);
    QVERIFY(driver.window().findChild<WayBackDialog *>() == nullptr);
}

void TestWayBack::withoutAJournalItSaysSo()
{
    const WindowOnPc driver;
    driver.window().showPage(optionsPage);
    Boxes boxes({QMessageBox::NoButton});
    driver.click(u"btnOptionsWayBack"_s);
    QCOMPARE(boxes.shown().size(), 1);
    QVERIFY(driver.window().findChild<WayBackDialog *>() == nullptr);
}

/** And isn't done. */
void TestWayBack::whatCannotBeNotedIsToldOnce()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    Database(machine.folder() + u"/journal/changes.sqlite"_s).execute("ALTER TABLE note RENAME COLUMN fold TO folded");
    {
        Boxes boxes({QMessageBox::NoButton});
        QVERIFY(disable(driver, {u"Alpha"_s}));
        QTRY_COMPARE(boxes.shown().size(), 1);
        QVERIFY2(boxes.shown().first().text.startsWith(u"Not everything was done.\n\n"_s),
                 qPrintable(boxes.shown().first().text));
        QVERIFY(boxes.shown().first().text.contains(u"changes.sqlite"_s));
    }
    QCOMPARE(startOf(pc, u"Alpha"_s), int(StartAutomatic));
    const Boxes none;
    QVERIFY(disable(driver, {u"Beta"_s}));
    QCOMPARE(startOf(pc, u"Beta"_s), int(StartAutomatic));
}

void TestWayBack::aBrokenOffSessionHasAButtonUntilItWasSeen()
{
    const ServicesPc machine;
    Journaled pc(machine);
    {
        const WindowDriver driver;
        QVERIFY(disable(driver, {u"Alpha"_s}));
        QVERIFY(driver.button(u"btnBrokenOff"_s)->isHidden());
        breakOff(pc, u"Disable services"_s);
    }
    const WindowDriver driver;
    driver.window().showPage(optionsPage);
    const QPushButton *button = driver.button(u"btnBrokenOff"_s);
    QVERIFY(button->isVisible());
    QVERIFY(button->isFlat());
    QCOMPARE(button->minimumWidth(), button->fontMetrics().horizontalAdvance(button->text()) + 24);
    QCOMPARE(driver.status(), QString());
    QCOMPARE(button->mapTo(&driver.window(), QPoint(button->width(), 0)).x(),
             driver.get<QWidget>(u"wgtStatus"_s)->mapTo(&driver.window(), QPoint()).x()
                 + driver.get<QWidget>(u"wgtStatus"_s)->width());
    {
        const Dialog dialog(driver, u"btnBrokenOff"_s);
        QCOMPARE(dialog.sessions()->currentItem()->text(1), u"Disable services"_s);
        QCOMPARE(dialog.sessions()->currentItem()->text(3), u"broken off"_s);
        QCOMPARE(dialog.state(alphaStart), u"changed"_s);
        dialog.click(u"btnClose"_s);
        const QDateTime begun = pc.journal().store().sessions().first().begun;
        QCOMPARE(openSettings()->value(u"BrokenOffSeen"_s).toLongLong(), begun.toMSecsSinceEpoch());
    }
    QVERIFY(button->isHidden());
    const WindowDriver next;
    QVERIFY(next.button(u"btnBrokenOff"_s)->isHidden());
}

void TestWayBack::lookingAroundIsNoBrokenOffJob()
{
    const TestMachine machine;
    const Journaled pc(machine);
    pc.journal().store().beginSession({.what = lookingAround});
    const qint64 session = pc.journal().store().sessions().last().id;
    Note note;
    note.item = {ItemKind::Key, u"HKEY_CURRENT_USER\\Software\\Looked"_s};
    pc.journal().store().add(session, {note});
    breakOff(pc, lookingAround);
    const WindowDriver driver;
    QVERIFY(driver.button(u"btnBrokenOff"_s)->isHidden());
}

void TestWayBack::sessionsOfOthersSayWhose()
{
    const TestMachine machine;
    platform().openKey(settingsKey)->setValue(u"GetWinSxsSize"_s, 0);
    const Journaled pc(machine);
    JournalStore &store = pc.journal().store();
    for (const QString &user : {u"S-1-5-18"_s, u"S-1-5-21-1-2-3-1002"_s, pc.journal().user(), QString()}) {
        const qint64 session = store.beginSession({.what = u"Apply a profile"_s, .user = user});
        Note note;
        note.item = {ItemKind::Value, u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Other"_s, u"value"_s};
        store.add(session, {note});
        store.endSession(session, SessionState::Finished);
    }
    const WindowDriver driver;
    const Dialog dialog(driver);
    QStringList listed = dialog.listedSessions();
    listed.removeIf([](const QString &line) { return !line.startsWith("Apply a profile"_L1); });
    QCOMPARE(listed, (QStringList{u"Apply a profile: finished"_s, u"Apply a profile: finished"_s,
                                  u"Apply a profile (by another account): finished"_s,
                                  u"Apply a profile (by the system): finished"_s}));
}

void TestWayBack::theKeyboardReachesEverything()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s}));
    const Dialog dialog(driver);
    dialog.choose(u"Disable services"_s);
    (*dialog).activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&*dialog));
    dialog.sessions()->setFocus();
    QStringList reached;
    for (int step = 0; step < 9; ++step) {
        const QWidget *focus = dialog.operator*().focusWidget();
        QVERIFY2(
            !QAccessible::queryAccessibleInterface(const_cast<QWidget *>(focus))->text(QAccessible::Name).isEmpty(),
            qPrintable(focus->objectName()));
        reached.append(focus->objectName());
        QTest::keyClick(&*dialog, Qt::Key_Tab);
    }
    QCOMPARE(reached, QStringList({u"lstSessions"_s, u"chkLater"_s, u"edtSearch"_s, u"lstChanges"_s, u"btnCheckAll"_s,
                                   u"btnUncheckAll"_s, u"btnTakeBack"_s, u"btnSaveFiles"_s, u"btnClose"_s}));
    dialog.changes()->setFocus();
    dialog.changes()->setCurrentIndex(dialog.row(alphaStart));
    QTest::keyClick(dialog.changes(), Qt::Key_Space);
    QCOMPARE(dialog.isChecked(alphaStart).toInt(), int(Qt::Unchecked));
}

void TestWayBack::everythingHasAName()
{
    const ServicesPc machine;
    const Journaled pc(machine);
    const WindowDriver driver;
    QVERIFY(disable(driver, {u"Alpha"_s}));
    const Dialog dialog(driver);
    dialog.get<QLineEdit>(u"edtSearch"_s)->setText(u"Alpha"_s);
    dialog.get<QProgressBar>(u"pgrWayBack"_s)->show();
    QVERIFY(dialog.changes()->model()->rowCount() > 0);
    QCOMPARE(unnamedIn(&*dialog).join(u'\n'), QString());
}

void TestWayBack::everyLanguageHasLettersOfItsOwn_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &file : languages())
        QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
}

void TestWayBack::everyLanguageHasLettersOfItsOwn()
{
    QFETCH(const QString, file);
    QTranslator translator;
    QVERIFY(translator.load(file));
    QCoreApplication::installTranslator(&translator);
    TestMachine machine;
    machine.write(settingsKey, u"lang"_s, u"en"_s); // the window itself leaves the language alone
    const Journaled pc(machine);
    const WindowDriver driver;
    const Dialog dialog(driver);
    QStringList letters = mnemonics(*dialog);
    QCOMPARE(letters.size(), 5);
    QCOMPARE(letters.removeDuplicates(), 0);
}

KESTRUNE_WINDOW_SUITE(TestWayBack)
#include "tst_wayback.moc"
