// SPDX-License-Identifier: GPL-3.0-or-later
// The System information page: the lines of its job, and the report that is made of the job's texts.

#include "support/suite.h"
#include "support/windowdriver.h"
#include "work/settings.h"

#include <QApplication>
#include <QComboBox>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** Every text of the report, by the member that holds it and the label it stands after. */
struct Text
{
    QString WorkThread::*member;
    const char *text;
    const char *line; ///< the whole line of the report
};

// clang-format off
constexpr Text texts[] = {
    {&WorkThread::winName,              "Windows 11 Pro",          "Windows 11 Pro"},
    {&WorkThread::winEdition,           "Enterprise",              "Edition:   Enterprise"},
    {&WorkThread::winBuild,             "26100",                   "Build:   26100"},
    {&WorkThread::winVersion,           "24H2",                    "Display version:   24H2"},
    {&WorkThread::winOnSsd,             "Yes",                     "Installed on SSD:   Yes"},
    {&WorkThread::mbManufacturer,       "Northgate Computer",      "Northgate Computer"},
    {&WorkThread::mbModel,              "NX-650",                  "Model:   NX-650"},
    {&WorkThread::mbBiosVersion,        "F12",                     "Bios version:   F12"},
    {&WorkThread::mbBiosDate,           "06/13/2023",              "Bios date:   06/13/2023"},
    {&WorkThread::cpuName,              "Intel Core i5-12400",     "Intel Core i5-12400"},
    {&WorkThread::cpuFreq,              "2496",                    "Default frequency:   2496 MHz"},
    {&WorkThread::cpuCore,              "6",                       "Cores / Threads:   6  / 12"},
    {&WorkThread::cpuThread,            "12",                      "Cores / Threads:   6  / 12"},
    {&WorkThread::cpuL2Size,            "7 Mo",                    "L2 cache size:   7 Mo"},
    {&WorkThread::cpuL3Size,            "18 Mo",                   "L3 cache size:   18 Mo"},
    {&WorkThread::cpuSocket,            "LGA1700",                 "Socket:   LGA1700"},
    {&WorkThread::cpuHt,                "enabled",                 "HyperThreading:   enabled"},
    {&WorkThread::cpuV,                 "disabled",                "Virtualization:   disabled"},
    {&WorkThread::memTotal,             "16 Go",                   "Capacity:   16 Go"},
    {&WorkThread::memFree,              "9.31 Go",                 "Free:   9.31 Go"},
    {&WorkThread::memFreq,              "3200",                    "Frequency:   3200 MHz"},
    {&WorkThread::memFormFactor,        "DIMM",                    "Form Factor:   DIMM"},
    {&WorkThread::memVSize,             "2432 Mo ",                "Virtual Memory:   2432 Mo on drive C:\\"},
    {&WorkThread::memVSizeDrive,        "c:\\",                    "Virtual Memory:   2432 Mo on drive C:\\"},
    {&WorkThread::gpuName,              "Radeon RX 6600",          "Radeon RX 6600"},
    {&WorkThread::gpuDriverVersion,     "24.3.1 (RADEON)",         "Driver version:   24.3.1 (RADEON)"},
    {&WorkThread::gpuDriverDate,        "2023/06/13",              "Driver date:   2023/06/13"},
    {&WorkThread::gpuDesktopSize,       "1920 x 1080",             "Resolution:   1920 x 1080"},
    {&WorkThread::gpuDesktopMaxSize,    "2560 x 1440",             "Resolution max:   2560 x 1440"},
    {&WorkThread::gpuRefreshRate,       "60 Hz",                   "Refresh rate:   60 Hz"},
    {&WorkThread::screenMaxRefreshRate, "144 Hz",                  "Refresh rate max:   144 Hz"},
    {&WorkThread::screenHdr,            "enabled",                 "HDR:   enabled"},
    {&WorkThread::diskInfo,             "Name:   A<br>Capacity:   1 Go<br>Interface type: IDE<br><br>Name:   B",
                                                                   "Capacity:   1 Go"},
};
// clang-format on

/** What a device may call itself, so that another computer is asked for a picture. */
const QString markup = u"a & <img src=\"file://host/share/x.png\"> b"_s;

void fillTexts(const WindowDriver &driver)
{
    for (const Text &text : texts)
        driver.worker().*text.member = QString::fromLatin1(text.text);
    driver.window().screenName = u"DISPLAY1"_s;
}

void send(const WindowDriver &driver, const QString &line)
{
    driver.worker().job = JobGetSystemInfo;
    driver.window().onWorkThreadValueChanged(line);
}

void finish(const WindowDriver &driver)
{
    send(driver, u"pgr:value:7"_s);
}

QTextBrowser *report(const WindowDriver &driver)
{
    return driver.get<QTextBrowser>(u"txtInfo"_s);
}

/** The report's lines with their blanks; a line break within a paragraph parts lines too. */
QStringList lines(const WindowDriver &driver)
{
    QString text = report(driver)->toPlainText();
    return text.replace(QChar(0x00a0), u' ').split(u'\n');
}

QString lineWith(const WindowDriver &driver, const QString &label)
{
    for (const QString &line : lines(driver)) {
        if (line.startsWith(label))
            return line;
    }
    return u"none"_s;
}

QWidget *page(const WindowDriver &driver)
{
    return driver.get<QWidget>(u"wgtInfo"_s);
}

QString linkColor()
{
    return QGuiApplication::palette().color(QPalette::Link).name();
}

} // namespace

class TestInfoPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { systemPalette_ = QGuiApplication::palette(); }
    void init() { QApplication::setPalette(systemPalette_); }

    void showingThePageHidesTheReportAndStartsTheJob();
    void reportIsBuiltByTheLastStepAlone();
    void statusTellsTheStep_data();
    void statusTellsTheStep();
    void maximumLineSetsTheBarAlone();
    void otherLinesAreHeldBack();
    void numberThatDoesNotParseSetsTheBarToNothing();
    void everyTextStandsAfterItsLabel_data();
    void everyTextStandsAfterItsLabel();
    void noMarkIsLeft();
    void emptyTextsLeaveEmptyPlaces();
    void screenIsTheWindowsOwn();
    void breaksPartTheDisks();
    void textsOfTheSystemAreNoMarkup_data();
    void textsOfTheSystemAreNoMarkup();
    void nameOfTheScreenIsNoMarkup();
    void secondReportStartsFromTheTemplate();
    void changedTemplateTextDoesNotReachLaterReports();
    void datesByLanguage_data();
    void datesByLanguage();
    void secondFrenchShowingShowsTheSameDates();
    void headingsHaveTheLinkColourOfEachTheme_data();
    void headingsHaveTheLinkColourOfEachTheme();
    void headingsFollowAChangeOfThemeBetweenTwoReports_data();
    void headingsFollowAChangeOfThemeBetweenTwoReports();
    void headingsFollowTwoChangesOfThemeBetweenTwoReports_data();
    void headingsFollowTwoChangesOfThemeBetweenTwoReports();
    void changeOfLanguageAfterAReportLeavesDisksAndScreenLoading();

private:
    QPalette systemPalette_; ///< before any theme
};

void TestInfoPage::showingThePageHidesTheReportAndStartsTheJob()
{
    const WindowOnPc driver;
    page(driver)->show();
    int starts = 0;
    connect(
        &driver.worker(), &QThread::started, &driver.worker(), [&starts] { ++starts; }, Qt::DirectConnection);
    driver.window().showPage(6);
    QVERIFY(page(driver)->isHidden());
    QCOMPARE(driver.window().currentPage(), 6);
    QCOMPARE(driver.worker().job, int(JobGetSystemInfo));
    QVERIFY(driver.worker().wait(patience));
    QCOMPARE(starts, 1);
    // The page after it is left as it is.
    QVERIFY(driver.get<QTextBrowser>(u"txtAbout"_s)->toPlainText().contains(u"%version"_s));
    QVERIFY(driver.button(u"btnMenuInfo"_s)->font().bold());
    QVERIFY(driver.button(u"btnMenuInfo"_s)->styleSheet().contains(u"margin-left: 12px; color: "_s + linkColor()));
}

void TestInfoPage::reportIsBuiltByTheLastStepAlone()
{
    const WindowOnPc driver;
    page(driver)->hide();
    fillTexts(driver);
    for (int step = 1; step < 7; ++step) {
        send(driver, u"pgr:value:%1"_s.arg(step));
        QVERIFY(page(driver)->isHidden());
        QVERIFY(report(driver)->toPlainText().contains(u"%winBuild"_s));
    }
    finish(driver);
    QVERIFY(!page(driver)->isHidden());
    QVERIFY(!report(driver)->toPlainText().contains(u"%winBuild"_s));
}

void TestInfoPage::statusTellsTheStep_data()
{
    QTest::addColumn<QString>("status");
    QTest::newRow("1") << u"Get system info: Windows"_s;
    QTest::newRow("2") << u"Get system info: MotherBoard"_s;
    QTest::newRow("3") << u"Get system info: GPU"_s;
    QTest::newRow("4") << u"Get system info: DISK"_s;
    QTest::newRow("5") << u"Get system info: MEM"_s;
    QTest::newRow("6") << u"Load system info: CPU"_s;
    QTest::newRow("7") << u"Load system info: finished"_s;
    QTest::newRow("8") << u"before"_s;
    QTest::newRow("0") << u"before"_s;
    QTest::newRow("07") << u"before"_s;
}

void TestInfoPage::statusTellsTheStep()
{
    QFETCH(const QString, status);
    const WindowOnPc driver;
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    const QString rest = QString::fromLatin1(QTest::currentDataTag());
    send(driver, u"pgr:max:20"_s);
    send(driver, u"pgr:value:"_s + rest);
    QCOMPARE(driver.status(), status);
    QCOMPARE(driver.bar()->value(), rest.toInt());
    QVERIFY(!driver.bar()->isHidden());
}

void TestInfoPage::maximumLineSetsTheBarAlone()
{
    const WindowOnPc driver;
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    const int value = driver.bar()->value();
    send(driver, u"pgr:max:77"_s);
    QCOMPARE(driver.bar()->maximum(), 77);
    QCOMPARE(driver.bar()->value(), value);
    QCOMPARE(driver.status(), u"before"_s);
    QVERIFY(!driver.bar()->isHidden());
}

void TestInfoPage::otherLinesAreHeldBack()
{
    const WindowOnPc driver;
    page(driver)->hide();
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    for (const QString &line : {u"7"_s, u"value:7"_s, QString(), u" pgr:value:7"_s})
        send(driver, line);
    QVERIFY(driver.bar()->isHidden());
    send(driver, u"pgr:something"_s);
    QVERIFY(!driver.bar()->isHidden());
    QVERIFY(page(driver)->isHidden());
    QCOMPARE(driver.status(), u"before"_s);
}

void TestInfoPage::numberThatDoesNotParseSetsTheBarToNothing()
{
    const WindowOnPc driver;
    send(driver, u"pgr:max:7"_s);
    send(driver, u"pgr:value:3"_s);
    QCOMPARE(driver.bar()->value(), 3);
    send(driver, u"pgr:value:many"_s);
    QCOMPARE(driver.bar()->value(), 0);
    send(driver, u"pgr:max:many"_s);
    QCOMPARE(driver.bar()->maximum(), 0);
}

void TestInfoPage::everyTextStandsAfterItsLabel_data()
{
    QTest::addColumn<QString>("line");
    int number = 0;
    for (const Text &text : texts)
        QTest::addRow("%d %s", ++number, text.text) << QString::fromLatin1(text.line);
}

void TestInfoPage::everyTextStandsAfterItsLabel()
{
    QFETCH(const QString, line);
    const WindowOnPc driver;
    fillTexts(driver);
    finish(driver);
    QVERIFY2(lines(driver).contains(line), qPrintable(lines(driver).join(u'\n')));
}

void TestInfoPage::noMarkIsLeft()
{
    const WindowOnPc driver;
    fillTexts(driver);
    QVERIFY(report(driver)->toPlainText().contains(u'%'));
    finish(driver);
    QVERIFY2(!report(driver)->toPlainText().contains(u'%'), qPrintable(report(driver)->toPlainText()));
    QVERIFY(!report(driver)->toPlainText().contains(u"loading"_s));
}

void TestInfoPage::emptyTextsLeaveEmptyPlaces()
{
    const WindowOnPc driver;
    driver.worker().winBuild.clear();
    finish(driver);
    QVERIFY(!report(driver)->toPlainText().contains(u'%'));
    QCOMPARE(lineWith(driver, u"Build:"_s).trimmed(), u"Build:"_s);
    QCOMPARE(lineWith(driver, u"Virtual Memory:"_s).simplified(), u"Virtual Memory: on drive"_s);
}

void TestInfoPage::screenIsTheWindowsOwn()
{
    const WindowOnPc driver;
    fillTexts(driver);
    finish(driver);
    QCOMPARE(lineWith(driver, u"Screen:"_s), u"Screen:   DISPLAY1"_s);
}

void TestInfoPage::breaksPartTheDisks()
{
    const WindowOnPc driver;
    fillTexts(driver);
    finish(driver);
    const QStringList all = lines(driver);
    const qsizetype first = all.indexOf(u"Name:   A"_s);
    QVERIFY(first >= 0);
    QCOMPARE(all.sliced(first, 5),
             (QStringList{u"Name:   A"_s, u"Capacity:   1 Go"_s, u"Interface type: IDE"_s, QString(), u"Name:   B"_s}));
}

void TestInfoPage::textsOfTheSystemAreNoMarkup_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < static_cast<int>(std::size(texts)); ++index)
        QTest::addRow("%d: %s", index, texts[index].line) << index;
}

void TestInfoPage::textsOfTheSystemAreNoMarkup()
{
    QFETCH(const int, index);
    const WindowOnPc driver;
    fillTexts(driver);
    driver.worker().*texts[index].member = markup;
    finish(driver);
    // The drive of the page file is shown in capitals.
    QVERIFY2(report(driver)->toPlainText().contains(markup, Qt::CaseInsensitive), qPrintable(lines(driver).join(u'|')));
    QVERIFY(!report(driver)->toHtml().contains("<img"_L1, Qt::CaseInsensitive));
}

void TestInfoPage::nameOfTheScreenIsNoMarkup()
{
    const WindowOnPc driver;
    fillTexts(driver);
    driver.window().screenName = markup;
    finish(driver);
    QCOMPARE(lineWith(driver, u"Screen:"_s), u"Screen:   "_s + markup);
    QVERIFY(!report(driver)->toHtml().contains("<img"_L1));
}

void TestInfoPage::secondReportStartsFromTheTemplate()
{
    const WindowOnPc driver;
    fillTexts(driver);
    finish(driver);
    const QStringList first = lines(driver);
    finish(driver);
    QCOMPARE(lines(driver), first);
    driver.worker().winBuild = u"19045"_s;
    driver.worker().diskInfo = u"Name:   C"_s;
    finish(driver);
    QCOMPARE(lineWith(driver, u"Build:"_s), u"Build:   19045"_s);
    QVERIFY(lines(driver).contains(u"Name:   C"_s));
    QVERIFY(!lines(driver).contains(u"Name:   A"_s));
}

void TestInfoPage::changedTemplateTextDoesNotReachLaterReports()
{
    const WindowOnPc driver;
    fillTexts(driver);
    finish(driver);
    report(driver)->setHtml(u"<p>Ausgabe: %winBuild</p>"_s);
    finish(driver);
    QCOMPARE(lineWith(driver, u"Build:"_s), u"Build:   26100"_s);
    QVERIFY(!report(driver)->toPlainText().contains(u"Ausgabe"_s));
}

void TestInfoPage::datesByLanguage_data()
{
    addColumns<QString, QStringList, QStringList>("language", "given", "shown");
    const QStringList usual{u"06/13/2023"_s, u"2023/06/13"_s};
    const QStringList turned{u"13/06/2023"_s, u"13/06/2023"_s};
    QTest::newRow("English as given") << u"en"_s << usual << usual;
    QTest::newRow("chosen English as given") << u"en_US"_s << usual << usual;
    QTest::newRow("German as given") << u"de_DE"_s << usual << usual;
    QTest::newRow("French turned") << u"fr_FR"_s << usual << turned;
    QTest::newRow("Canadian French turned") << u"fr_CA"_s << usual << turned;
    const QStringList whole{u"20230613"_s, u"20230613000000.000000-000"_s};
    QTest::newRow("French without slash as given") << u"fr_FR"_s << whole << whole;
    const QStringList unknown{u"unknown"_s, QString()};
    QTest::newRow("French unknown as given") << u"fr_FR"_s << unknown << unknown;
    QTest::newRow("French with a piece missing")
        << u"fr_FR"_s << QStringList{u"06/2023"_s, u"2023/06"_s} << QStringList{u"2023/06/"_s, u"/06/2023"_s};
}

void TestInfoPage::datesByLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const QStringList, given);
    QFETCH(const QStringList, shown);
    const WindowOnPc driver;
    driver.window().currentLang = language;
    driver.worker().mbBiosDate = given.at(0);
    driver.worker().gpuDriverDate = given.at(1);
    finish(driver);
    QCOMPARE(lineWith(driver, u"Bios date:"_s).mid(10).trimmed(), shown.at(0));
    QCOMPARE(lineWith(driver, u"Driver date:"_s).mid(12).trimmed(), shown.at(1));
    QCOMPARE(driver.worker().mbBiosDate, shown.at(0));
    QCOMPARE(driver.worker().gpuDriverDate, shown.at(1));
}

void TestInfoPage::secondFrenchShowingShowsTheSameDates()
{
    const WindowOnPc driver;
    driver.window().currentLang = u"fr_FR"_s;
    for (int showing = 0; showing < 2; ++showing) {
        fillTexts(driver); // as the job does before each report
        finish(driver);
        QCOMPARE(lineWith(driver, u"Bios date:"_s), u"Bios date:   13/06/2023"_s);
        QCOMPARE(lineWith(driver, u"Driver date:"_s), u"Driver date:   13/06/2023"_s);
    }
}

void TestInfoPage::headingsHaveTheLinkColourOfEachTheme_data()
{
    QTest::addColumn<int>("showings");
    for (const char *theme : {"dark", "light", "system"}) {
        QTest::addRow("%s", theme) << 1;
        QTest::addRow("%s twice", theme) << 2;
    }
}

void TestInfoPage::headingsHaveTheLinkColourOfEachTheme()
{
    QFETCH(const int, showings);
    TestMachine machine;
    openSettings()->setValue(u"palette"_s, QString::fromLatin1(QTest::currentDataTag()).section(u' ', 0, 0));
    const WindowDriver driver;
    fillTexts(driver);
    for (int showing = 0; showing < showings; ++showing)
        finish(driver);
    const QString html = report(driver)->toHtml();
    QCOMPARE(html.count(u"color:"_s + linkColor()), 6);
    QCOMPARE(html.count(u"color:#000000"_s), 0);
}

void TestInfoPage::headingsFollowAChangeOfThemeBetweenTwoReports_data()
{
    addColumns<QString, int>("first", "chosen");
    QTest::newRow("dark to system") << u"dark"_s << 2;
    QTest::newRow("light to system") << u"light"_s << 2;
    QTest::newRow("system to dark") << u"system"_s << 0;
    QTest::newRow("system to light") << u"system"_s << 1;
}

void TestInfoPage::headingsFollowAChangeOfThemeBetweenTwoReports()
{
    QFETCH(const QString, first);
    QFETCH(const int, chosen);
    TestMachine machine;
    openSettings()->setValue(u"palette"_s, first);
    const WindowDriver driver;
    fillTexts(driver);
    finish(driver);
    // The template that is kept from now on wears this colour.
    const QString before = linkColor();
    driver.window().showPage(7);
    driver.get<QComboBox>(u"cbOptionsTheme"_s)->setCurrentIndex(chosen);
    QVERIFY(linkColor() != before);
    finish(driver);
    const QString html = report(driver)->toHtml();
    QCOMPARE(html.count(u"color:"_s + linkColor()), 6);
    QCOMPARE(html.count(u"color:"_s + before), 0);
}

void TestInfoPage::headingsFollowTwoChangesOfThemeBetweenTwoReports_data()
{
    addColumns<QString, QList<int>>("first", "chosen");
    QTest::newRow("dark, light, system") << u"dark"_s << QList<int>{1, 2};
    QTest::newRow("light, system, dark") << u"light"_s << QList<int>{2, 0};
    QTest::newRow("system, dark, light") << u"system"_s << QList<int>{0, 1};
    QTest::newRow("there and back") << u"dark"_s << QList<int>{1, 0};
    QTest::newRow("three changes") << u"dark"_s << QList<int>{1, 2, 1};
}

void TestInfoPage::headingsFollowTwoChangesOfThemeBetweenTwoReports()
{
    QFETCH(const QString, first);
    QFETCH(const QList<int>, chosen);
    TestMachine machine;
    openSettings()->setValue(u"palette"_s, first);
    const WindowDriver driver;
    fillTexts(driver);
    finish(driver);
    driver.window().showPage(7);
    for (const int theme : chosen)
        driver.get<QComboBox>(u"cbOptionsTheme"_s)->setCurrentIndex(theme);
    finish(driver);
    const QString html = report(driver)->toHtml();
    QCOMPARE(html.count(u"color:"_s + linkColor()), 6);
    QCOMPARE(html.count(u"color:"_s), 6 + html.count(u"background-color:"_s));
}

/** The labels are those of the first report, so that the words for what is loading are, too, and aren't found. */
void TestInfoPage::changeOfLanguageAfterAReportLeavesDisksAndScreenLoading()
{
    TestMachine machine;
    machine.write(settingsKey, u"lang"_s, u"en"_s);
    const WindowDriver driver;
    fillTexts(driver);
    finish(driver);
    QCOMPARE(lineWith(driver, u"Screen:"_s), u"Screen:   DISPLAY1"_s);
    QVERIFY(QMetaObject::invokeMethod(&driver.window(), "onCbOptionsLangSelectionChanged", Q_ARG(int, 1)));
    QCOMPARE(driver.window().currentLang, u"fr_FR"_s);
    fillTexts(driver);
    finish(driver);
    QCOMPARE(lineWith(driver, u"Screen:"_s), u"Screen:   loading screen info..."_s);
    QVERIFY(lines(driver).contains(u"loading disk info..."_s));
    QVERIFY(!lines(driver).contains(u"Name:   A"_s));
    // The rest is filled in.
    QCOMPARE(lineWith(driver, u"Build:"_s), u"Build:   26100"_s);
}

KESTRUNE_WINDOW_SUITE(TestInfoPage)
#include "tst_infopage.moc"
