// SPDX-License-Identifier: GPL-3.0-or-later
// The language at the start and its changes, on a computer whose system speaks Austrian German.

#include "support/suite.h"
#include "support/windowdriver.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QApplication>
#include <QComboBox>
#include <QLocale>
#include <QTest>
#include <QTextBrowser>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

enum { English, French, Auto };

/** A folder of resources with these of the program's languages, and nothing else. */
class Languages
{
public:
    explicit Languages(const QStringList &tags)
    {
        QDir(folder_.path()).mkdir(u"Translations"_s);
        QFile::link(QCoreApplication::applicationDirPath() + u"/img"_s, folder_.path() + u"/img"_s);
        for (const QString &tag : tags)
            QFile::copy(QCoreApplication::applicationDirPath() + file(tag), folder_.path() + file(tag));
    }
    /** A file that is no translation. */
    void spoil(const QString &tag) const
    {
        QFile spoilt(folder_.path() + file(tag));
        QVERIFY(spoilt.open(QIODevice::WriteOnly));
        spoilt.write("no translation");
    }
    MachineOptions options() const
    {
        MachineOptions options;
        options.resourceFolder = folder_.path();
        return options;
    }

private:
    static QString file(const QString &tag) { return u"/Translations/lang_"_s + tag + u".qm"_s; }

    QTemporaryDir folder_;
};

class LanguageDriver : public WindowDriver
{
public:
    /** Calls the slot of the language, as its combo box does. */
    void choose(int index) const
    {
        QVERIFY(QMetaObject::invokeMethod(&window(), "onCbOptionsLangSelectionChanged", Q_ARG(int, index)));
    }
    QComboBox *languages() const { return get<QComboBox>(u"cbOptionsLang"_s); }
    QString tasksButton() const { return button(u"btnMenuTask"_s)->text(); }
    QString toolTip(const QString &box) const { return get<QWidget>(box)->toolTip(); }
    bool isIdle() const { return !worker().isRunning(); }
};

const QString englishTasks = u"Tasks"_s;
const QString frenchTasks = u"Tâches"_s;
const QString germanTasks = u"Aufgaben"_s;

} // namespace

class TestLanguage : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("LC_ALL", "de_AT.UTF-8"); }

private Q_SLOTS:
    void init();

    void systemSpeaksAustrianGerman();

    // The start
    void firstStartSpeaksTheSystemsLanguage_data();
    void firstStartSpeaksTheSystemsLanguage();
    void storedLanguageIsSpoken_data();
    void storedLanguageIsSpoken();
    void withoutAFileForTheSystemsLanguageThereIsEnglish();

    // Changes
    void choiceIsSpokenAndStored_data();
    void choiceIsSpokenAndStored();
    void languageChangesOnEveryPage_data();
    void languageChangesOnEveryPage();
    void textsSetByAPageComeBackWhenItIsShown();
    void optionsExplainThemselvesInTheNewLanguage();
    void keepListSpeaksTheNewLanguageWithItsStates();
    void buildDateIsWrittenInTheLanguage();

    // Files that aren't there, and damaged ones
    void missingFileOfANamedLanguageChangesNothing_data();
    void missingFileOfANamedLanguageChangesNothing();
    void spoiltFileLeavesEnglishAndStoresNothing();
    void autoWithoutAFileLeavesEnglishAndStoresNothing();
    void choiceThatFailedIsTakenBackOnTheOptionsPage();
    void languageStoredByAnotherInstanceIsSpokenWhenTheOptionsAreShown();

    void aWorkersTextsAreWholeWhileTheLanguageChanges();
};

/** The translator is the process's: a window that finds no file leaves none behind. */
void TestLanguage::init()
{
    const Languages none({});
    const TestMachine pc(TestMachine::Windows::Eleven, none.options());
    const LanguageDriver driver;
    QCOMPARE(driver.tasksButton(), englishTasks);
}

void TestLanguage::systemSpeaksAustrianGerman()
{
    QCOMPARE(QLocale::system().name(), u"de_AT"_s);
}

void TestLanguage::firstStartSpeaksTheSystemsLanguage_data()
{
    QTest::addColumn<QString>("machine");
    QTest::newRow("Windows 11") << u"windows11"_s;
    QTest::newRow("Windows 10") << u"windows10"_s;
}

void TestLanguage::firstStartSpeaksTheSystemsLanguage()
{
    QFETCH(QString, machine);
    const TestMachine pc(machine);
    const LanguageDriver driver;
    QCOMPARE(driver.tasksButton(), germanTasks);
    QCOMPARE(driver.languages()->currentIndex(), int(Auto));
    QCOMPARE(pc.read(settingsKey, u"lang"_s).toString(), u"auto"_s);
}

void TestLanguage::storedLanguageIsSpoken_data()
{
    addColumns<QString, int, QString>("stored", "index", "tasks");
    QTest::newRow("English") << u"en"_s << int(English) << englishTasks;
    QTest::newRow("French") << u"fr"_s << int(French) << frenchTasks;
    QTest::newRow("Auto") << u"auto"_s << int(Auto) << germanTasks;
    QTest::newRow("one that is never stored") << u"de"_s << 0 << englishTasks;
}

void TestLanguage::storedLanguageIsSpoken()
{
    QFETCH(QString, stored);
    TestMachine pc;
    pc.write(settingsKey, u"lang"_s, stored);
    const LanguageDriver driver;
    QTEST(driver.languages()->currentIndex(), "index");
    QTEST(driver.tasksButton(), "tasks");
    QCOMPARE(pc.read(settingsKey, u"lang"_s).toString(), stored);
}

void TestLanguage::withoutAFileForTheSystemsLanguageThereIsEnglish()
{
    const Languages languages({u"fr_FR"_s});
    const TestMachine pc(TestMachine::Windows::Eleven, languages.options());
    const LanguageDriver driver;
    QCOMPARE(driver.tasksButton(), englishTasks);
    QVERIFY(!pc.read(settingsKey, u"lang"_s).isValid());
}

void TestLanguage::choiceIsSpokenAndStored_data()
{
    addColumns<int, QString, QString>("index", "stored", "tasks");
    QTest::newRow("English") << int(English) << u"en"_s << englishTasks;
    QTest::newRow("French") << int(French) << u"fr"_s << frenchTasks;
    QTest::newRow("Auto") << int(Auto) << u"auto"_s << germanTasks;
}

void TestLanguage::choiceIsSpokenAndStored()
{
    QFETCH(int, index);
    TestMachine pc;
    // Whatever was spoken before
    for (const QString &before : {u"en"_s, u"fr"_s, u"auto"_s}) {
        pc.write(settingsKey, u"lang"_s, before);
        const LanguageDriver driver;
        driver.window().showPage(7);
        driver.languages()->setCurrentIndex(index);
        QTEST(driver.tasksButton(), "tasks");
        QTEST(pc.read(settingsKey, u"lang"_s).toString(), "stored");
        QCOMPARE(driver.languages()->currentIndex(), index);
        QCOMPARE(driver.status(), QString());
    }
}

void TestLanguage::languageChangesOnEveryPage_data()
{
    addColumns<int, QString, QString, QString>("page", "label", "english", "french");
    QTest::newRow("Optimizer") << 0 << u"lblHomeTop"_s << u"Optimizer"_s << u"Optimiseur"_s;
    QTest::newRow("Services") << 1 << u"lblSvcTop"_s << u"Services  (Experienced users)"_s
                              << u"Services  (utilisateurs expérimentés)"_s;
    QTest::newRow("Tasks") << 2 << u"lblTaskTop"_s << u"Scheduled tasks"_s << u"Tâches planifiées"_s;
    QTest::newRow("Autorun") << 3 << u"lblAutorunTop"_s << u"Programs started automatically"_s
                             << u"Programmes démarrés automatiquement"_s;
    QTest::newRow("Packages") << 4 << u"label_7"_s << u"List of Windows packages can be uninstalled without problems."_s
                              << u"Liste des packages Windows pouvant être désinstallés sans problème."_s;
    QTest::newRow("Features") << 5 << u"lblTweakTop"_s << u"Features"_s << u"Fonctions"_s;
    QTest::newRow("Information") << 6 << u"lblInfoTop"_s << u"System Information"_s << u"Informations système"_s;
    QTest::newRow("Options") << 7 << u"label_11"_s << u"Theme:"_s << u"Thème\u00a0:"_s;
    QTest::newRow("About") << 8 << u"lblAboutTop"_s << u"About"_s << u"À propos"_s;
}

void TestLanguage::languageChangesOnEveryPage()
{
    QFETCH(int, page);
    QFETCH(QString, label);
    TestMachine pc;
    pc.write(settingsKey, u"lang"_s, u"en"_s);
    const LanguageDriver driver;
    driver.window().showPage(page);
    QTRY_VERIFY_WITH_TIMEOUT(driver.isIdle(), patience);
    const auto firstLine = [&] { return driver.get<QLabel>(label)->text().section(u'\n', 0, 0); };
    QTEST(firstLine(), "english");
    driver.choose(French);
    QTRY_VERIFY_WITH_TIMEOUT(driver.isIdle(), patience);
    QTEST(firstLine(), "french");
    QCOMPARE(driver.window().currentPage(), page);
    driver.choose(English);
    QTRY_VERIFY_WITH_TIMEOUT(driver.isIdle(), patience);
    QTEST(firstLine(), "english");
    QCOMPARE(driver.window().currentPage(), page);
}

void TestLanguage::textsSetByAPageComeBackWhenItIsShown()
{
    const TestMachine pc;
    const LanguageDriver driver;
    driver.window().showPage(4);
    QTRY_VERIFY_WITH_TIMEOUT(driver.isIdle(), patience);
    driver.choose(French);
    QCOMPARE(driver.button(u"btnPackagesUninst"_s)->text(), u"Désinstaller"_s);
    driver.window().showPage(4);
    QTRY_VERIFY_WITH_TIMEOUT(driver.isIdle(), patience);
    QCOMPARE(driver.button(u"btnPackagesUninst"_s)->text(), u"Désinstaller les packages"_s);
}

void TestLanguage::optionsExplainThemselvesInTheNewLanguage()
{
    const TestMachine pc(TestMachine::Windows::Eleven);
    const LanguageDriver driver;
    driver.choose(English);
    driver.window().showPage(5);
    QCOMPARE(driver.toolTip(u"chkSsd9"_s), u"No known effect since Windows XP."_s);
    driver.choose(French);
    QCOMPARE(driver.toolTip(u"chkSsd9"_s), u"Sans effet connu depuis Windows XP."_s);
    // A long one wraps; in some scripts 50 letters are long.
    for (const TweakBox &box : tweakBoxes()) {
        const QString tip = driver.toolTip(box.name);
        QVERIFY2(tip.startsWith(u"<span>"_s) == (tip.size() > 50), qPrintable(tip));
    }
    driver.choose(Auto);
    QCOMPARE(driver.toolTip(u"chkSsd9"_s), u"Seit Windows XP keine bekannte Wirkung."_s);
}

void TestLanguage::keepListSpeaksTheNewLanguageWithItsStates()
{
    TestMachine pc;
    pc.write(settingsKey, u"Keep_1"_s, 0);
    const LanguageDriver driver;
    driver.choose(French);
    const auto *box = driver.get<QComboBox>(u"cbSvcFeatures"_s);
    QCOMPARE(box->count(), 10);
    QCOMPARE(box->itemText(1), u"Imprimante"_s);
    QCOMPARE(box->itemData(1, Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    QCOMPARE(box->itemData(2, Qt::CheckStateRole).toInt(), int(Qt::Checked));
}

void TestLanguage::buildDateIsWrittenInTheLanguage()
{
    const TestMachine pc;
    const LanguageDriver driver;
    const auto about = [&] {
        driver.window().showPage(8);
        return driver.get<QTextBrowser>(u"txtAbout"_s)->toPlainText();
    };
    QVERIFY(about().contains(u" 03.11.2025\n"_s));
    driver.choose(French);
    QVERIFY(about().contains(u" 11.03.2025\n"_s));
    driver.choose(English);
    QVERIFY(about().contains(u" 03.11.2025\n"_s));
}

void TestLanguage::missingFileOfANamedLanguageChangesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("English") << int(English);
    QTest::newRow("French") << int(French);
}

void TestLanguage::missingFileOfANamedLanguageChangesNothing()
{
    QFETCH(int, index);
    const Languages languages({u"de"_s});
    const TestMachine pc(TestMachine::Windows::Eleven, languages.options());
    const LanguageDriver driver;
    QCOMPARE(driver.tasksButton(), germanTasks);
    driver.choose(index);
    QCOMPARE(driver.tasksButton(), germanTasks);
    QCOMPARE(pc.read(settingsKey, u"lang"_s).toString(), u"auto"_s);
}

void TestLanguage::spoiltFileLeavesEnglishAndStoresNothing()
{
    const Languages languages({u"de"_s});
    languages.spoil(u"fr_FR"_s);
    const TestMachine pc(TestMachine::Windows::Eleven, languages.options());
    const LanguageDriver driver;
    driver.choose(French);
    QCOMPARE(driver.tasksButton(), englishTasks);
    QCOMPARE(pc.read(settingsKey, u"lang"_s).toString(), u"auto"_s);
}

void TestLanguage::autoWithoutAFileLeavesEnglishAndStoresNothing()
{
    const Languages languages({u"fr_FR"_s});
    TestMachine pc(TestMachine::Windows::Eleven, languages.options());
    pc.write(settingsKey, u"lang"_s, u"fr"_s);
    const LanguageDriver driver;
    QCOMPARE(driver.tasksButton(), frenchTasks);
    driver.choose(Auto);
    QCOMPARE(driver.tasksButton(), englishTasks);
    QCOMPARE(pc.read(settingsKey, u"lang"_s).toString(), u"fr"_s);
}

void TestLanguage::choiceThatFailedIsTakenBackOnTheOptionsPage()
{
    const Languages languages({u"de"_s});
    const TestMachine pc(TestMachine::Windows::Eleven, languages.options());
    const LanguageDriver driver;
    driver.window().showPage(7);
    driver.languages()->setCurrentIndex(French);
    QCOMPARE(driver.languages()->currentIndex(), int(Auto));
    QCOMPARE(driver.tasksButton(), germanTasks);
    QCOMPARE(pc.read(settingsKey, u"lang"_s).toString(), u"auto"_s);
}

void TestLanguage::languageStoredByAnotherInstanceIsSpokenWhenTheOptionsAreShown()
{
    // Of all slots of the page that of the language alone runs while the page is loaded, on the first showing too.
    TestMachine pc;
    const LanguageDriver driver;
    pc.write(settingsKey, u"lang"_s, u"fr"_s);
    driver.window().showPage(7);
    QCOMPARE(driver.tasksButton(), frenchTasks);
    QCOMPARE(driver.languages()->currentIndex(), int(French));
    pc.write(settingsKey, u"lang"_s, u"en"_s);
    driver.window().showPage(7);
    QCOMPARE(driver.tasksButton(), englishTasks);
    QCOMPARE(driver.window().currentPage(), 7);
}

void TestLanguage::aWorkersTextsAreWholeWhileTheLanguageChanges()
{
    const TestMachine pc;
    const LanguageDriver driver;
    std::atomic<bool> over = false;
    std::atomic<int> strange = 0;
    std::thread worker([&] {
        const QStringList known{u"done"_s, u"terminé"_s, u"fertig"_s};
        while (!over) {
            if (!known.contains(WorkThread::tr("done")))
                ++strange;
        }
    });
    for (int round = 0; round < 20; ++round)
        driver.choose(round % 3);
    over = true;
    worker.join();
    QCOMPARE(strange.load(), 0);
}

KESTRUNE_WINDOW_SUITE(TestLanguage)
#include "tst_language.moc"
