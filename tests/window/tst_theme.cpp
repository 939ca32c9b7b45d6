// SPDX-License-Identifier: GPL-3.0-or-later
// The themes: which one is chosen, the cells of its palette, and what each kind of widget wears.

#include "platform/forwardingplatform.h"
#include "support/suite.h"
#include "support/windowdriver.h"
#include "window/contrast.h"
#include "window/themestyles.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QProxyStyle>
#include <QScopeGuard>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QTest>
#include <QTextBrowser>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Windows = TestMachine::Windows;

const QString themeLink = u"#ed6e56"_s;
const QString hint = u"possible values: 'light' or 'dark' or 'system'"_s;

struct Cell
{
    QPalette::ColorRole role;
    const char *dark, *darkDisabled;
    const char *light, *lightDisabled;
};

// clang-format off
constexpr Cell cells[] = {
    // role                     dark       disabled   light      disabled
    {QPalette::Window,          "#232323", "#232323", "#e6e6e6", "#e6e6e6"},
    {QPalette::WindowText,      "#ffffff", "#808080", "#000000", "#a0a0a4"},
    {QPalette::Base,            "#2d2d2d", "#2d2d2d", "#fafafa", "#fafafa"},
    {QPalette::AlternateBase,   "#373737", "#373737", "#dcdcdc", "#dcdcdc"},
    {QPalette::ToolTipBase,     "#414141", "#414141", "#e6e6e6", "#e6e6e6"},
    {QPalette::ToolTipText,     "#ffffff", "#808080", "#000000", "#a0a0a4"},
    {QPalette::Text,            "#ffffff", "#808080", "#000000", "#a0a0a4"},
    {QPalette::Button,          "#323232", "#323232", "#fafafa", "#dcdcdc"},
    {QPalette::ButtonText,      "#ffffff", "#808080", "#000000", "#808080"},
    {QPalette::BrightText,      "#ff0000", "#808080", "#ff0000", "#ff0000"},
    {QPalette::Highlight,       "#ed6e56", "#ed6e56", "#ed6e56", "#ed6e56"},
    {QPalette::HighlightedText, "#ffffff", "#808080", "#000000", "#a0a0a4"},
    {QPalette::Link,            "#ed6e56", "#ed6e56", "#ed6e56", "#ed6e56"},
    {QPalette::LinkVisited,     "#ed6e50", "#ed6e56", "#ed6e50", "#ed6e56"},
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    {QPalette::Accent,          "#ed6e56", "#ed6e56", "#ed6e56", "#ed6e56"},
#endif
    {QPalette::Shadow,          "#121212", "#121212", "#1e1e1e", "#1e1e1e"},
    {QPalette::Dark,            "#232323", "#232323", "#c8c8c8", "#c8c8c8"},
    {QPalette::Light,           "#414141", "#414141", "#f0f0f0", "#f0f0f0"},
    {QPalette::Mid,             "#2d2d2d", "#2d2d2d", "#dcdcdc", "#dcdcdc"},
    {QPalette::Midlight,        "#323232", "#323232", "#e6e6e6", "#e6e6e6"},
};
// clang-format on

/** Of the share that one channel has in a colour's light. */
double lightOf(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double lightOf(const QColor &color)
{
    const auto light = [](float channel) { return lightOf(static_cast<double>(channel)); };
    return 0.2126 * light(color.redF()) + 0.7152 * light(color.greenF()) + 0.0722 * light(color.blueF());
}

/** From 1 to 21, as the guidelines for accessible content have it. */
double contrastOf(const QColor &color, const QColor &background)
{
    const double one = lightOf(color) + 0.05;
    const double other = lightOf(background) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

/** What each kind of widget wears in a theme. */
struct Styles
{
    QString viewButton;
    QString button;
    QString comboBox;
    QString checkBox;
    QString log;
    QString table;
};

QString viewButton(const char *background, const char *text, const char *hover)
{
    return u"QPushButton { background-repeat: no-repeat; background-position: center; border-radius: 6px; text-align: "
           "center; background-color: %1; color: %2; }QPushButton:hover { background-color: %3; color: "
           "#ed6e56;}QPushButton:selected { color: #ed6e56; }"_s.arg(QLatin1StringView(background),
                                                                     QLatin1StringView(text), QLatin1StringView(hover));
}

QString actionButton(const char *background, const char *hover)
{
    return u"QPushButton { background-color: %1; border-radius: 6px; }QPushButton:hover  { background-color: %2; "
           "border-radius: 6px; }QPushButton:selected  { background-color: %2; border-radius: 6px; }"_s.arg(
               QLatin1StringView(background), QLatin1StringView(hover));
}

Styles lightStyles(Windows windows)
{
    Styles styles;
    styles.viewButton = viewButton("#fafafa", "#000000", "#dcdcdc");
    styles.button = actionButton("#fafafa", "#dcdcdc");
    styles.comboBox =
        u"QComboBox { border-radius: 6px; padding-left: 12px; background: white; color: black; }QComboBox::drop-down  "
        "{ border: 0px; background: transparent; padding-right: 6px; }QComboBox::down-arrow  { "
        "image:url(%1/img/dropdown.png); }QListView { background-color: #f8f8f8; border-radius: 6px; border: 1px solid "
        "#e0e0e0; }QListView::item { padding: 2px; background: transparent; }QListView::item:hover { background-color: "
        "#e6e6e6; border-radius: 6px; border: none; }QListView::item:selected { border-radius: 6px; "
        "}QListView::indicator:unchecked { border-radius: 4px; border: 1px solid #c8c8c8; "
        "}QListView::indicator:checked { border-radius: 4px; border: 1px solid #c8c8c8; background-color:#ed6e56; }"_s
            .arg(QCoreApplication::applicationDirPath());
    styles.checkBox = u"QCheckBox::indicator:unchecked { border-radius: 4px; border: 1px solid #c8c8c8; }"_s;
    if (windows == Windows::Ten)
        styles.checkBox += u"QCheckBox::indicator:checked { border-radius: 4px; border: 1px solid #c8c8c8; "
                           "background-color:#ed6e56; }"_s;
    styles.log = u"border-radius: 6px; border: 1px solid #dcdcdc;"_s;
    styles.table = u"QTableView::item:selected { background-color: lightGray; selection-color: #000000; }"_s;
    return styles;
}

Styles darkStyles()
{
    return {viewButton("#323232", "#ffffff", "#383838"),
            actionButton("#323232", "#383838"),
            {},
            {},
            {},
            u"QTableView::item:selected { background-color: #232323; selection-color: #000000; }"_s};
}

Styles stylesOf(const QString &theme, Windows windows)
{
    if (theme == u"system"_s)
        return {};
    return theme == u"light"_s ? lightStyles(windows) : darkStyles();
}

template<typename Widget>
QList<Widget *> ofPages(const WindowDriver &driver)
{
    return driver.get<QWidget>(u"wgtMain"_s)->findChildren<Widget *>();
}

bool isViewButton(const QPushButton *button)
{
    return button->objectName().endsWith(u"ViewDisabled"_s);
}

/** All that a theme says of the window, a line for each thing. */
QStringList lookOf(const WindowDriver &driver)
{
    QStringList lines;
    for (const QPushButton *button : driver.window().findChildren<QPushButton *>())
        lines.append(button->objectName() + (button->isFlat() ? u" flat"_s : QString()));
    for (const QWidget *widget : driver.window().findChildren<QWidget *>()) {
        // What Qt adds by itself has no name.
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"_s))
            lines.append(widget->objectName() + u": "_s + widget->styleSheet());
    }
    lines.append(u"scroll bar: "_s + driver.get<QTextBrowser>(u"txtAutomatizer"_s)->verticalScrollBar()->styleSheet());
    for (const QComboBox *box : ofPages<QComboBox>(driver))
        lines.append(u"list of "_s + box->objectName() + u": "_s + box->view()->styleSheet());
    for (const char *name : {"About", "Info", "Gaming011", "Gaming11", "Gaming12", "Ssd8"})
        lines.append(driver.get<QTextBrowser>(u"txt"_s + QLatin1StringView(name))->toHtml());
    const QPalette palette = QGuiApplication::palette();
    for (const Cell &cell : cells) {
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            lines.append(u"color "_s + palette.color(group, cell.role).name());
    }
    return lines;
}

void setContrastTheme(TestMachine &machine, bool on)
{
    machine.write(u"HKEY_CURRENT_USER\\Control Panel\\Accessibility\\HighContrast"_s, u"Flags"_s,
                  on ? u"127"_s : u"126"_s);
}

/** A system whose colours can be changed, as a user does in its settings. */
class ChangingStyle : public QProxyStyle
{
public:
    using QProxyStyle::polish;
    using QProxyStyle::QProxyStyle;
    void polish(QPalette &palette) override { palette = systemPalette; }

    QPalette systemPalette;
};

/** One that stays as long as the object lives. */
class ChangingSystem
{
public:
    ChangingSystem()
        : style_(new ChangingStyle(QApplication::style()->name()))
    {
        style_->systemPalette = lightPalette();
        QApplication::setStyle(style_);
    }
    ~ChangingSystem() { QApplication::setStyle(style_->baseStyle()->name()); }
    Q_DISABLE_COPY_MOVE(ChangingSystem)

    /** The system tells its windows when it has changed. */
    void change(const WindowDriver &driver, const QPalette &palette)
    {
        style_->systemPalette = palette;
        tell(driver);
    }
    static void tell(const WindowDriver &driver)
    {
        QEvent changed(QEvent::ThemeChange);
        QCoreApplication::sendEvent(&driver.window(), &changed);
    }

private:
    ChangingStyle *style_;
};

/** Notes how title bars are to be drawn. */
class TitleBarPlatform final : public ForwardingPlatform
{
public:
    using ForwardingPlatform::ForwardingPlatform;
    void setTitleBarDark(quintptr window, bool dark) const override { asked.insert(window, dark); }

    mutable QMap<quintptr, bool> asked;
};

QPalette palette(const QColor &ground, const QColor &text)
{
    QPalette colors(text, ground, ground.lighter(), ground.darker(), ground, text, ground);
    colors.setColor(QPalette::Link, Qt::yellow);
    return colors;
}

} // namespace

class TestTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { systemPalette_ = QGuiApplication::palette(); }
    void init() { QApplication::setPalette(systemPalette_); }

    void storedTextChoosesTheTheme_data();
    void storedTextChoosesTheTheme();
    void cellsOfThePalettes_data();
    void cellsOfThePalettes();
    void widgetsWearTheirTheme_data();
    void widgetsWearTheirTheme();
    void boxesStandOutWithoutWindows_data();
    void boxesStandOutWithoutWindows();
    void selectedCellCanBeRead_data();
    void selectedCellCanBeRead();
    void headingsAndTextsFollowThePalette_data();
    void headingsAndTextsFollowThePalette();
    void noThemeLeavesAllAsItIs_data();
    void noThemeLeavesAllAsItIs();
    void themeInForceIsPutOnAgainUnchanged();
    void changedThemeLooksAsOnAFreshStart_data();
    void changedThemeLooksAsOnAFreshStart();

    void contrastThemeWearsTheSystemsLook_data();
    void contrastThemeWearsTheSystemsLook();
    void storedThemeComesBackAfterContrast_data();
    void storedThemeComesBackAfterContrast();
    void contrastThemesHaveImagesThatCanBeSeen_data();
    void contrastThemesHaveImagesThatCanBeSeen();
    void choiceDuringContrastIsForLater();
    void titleBarsAreAsDarkAsTheTheme_data();
    void titleBarsAreAsDarkAsTheTheme();
    void systemThemeFollowsTheSystem();
    void otherThemesKeepTheSystemsChangeForLater();
    void changeOfTheSystemLeavesAJobsBarAlone();

private:
    QPalette systemPalette_; ///< before any theme
};

void TestTheme::storedTextChoosesTheTheme_data()
{
    addColumns<Windows, QString, QString>("windows", "stored", "then");
    QTest::newRow("10, first start") << Windows::Ten << QString() << u"light"_s;
    QTest::newRow("10, light") << Windows::Ten << u"light"_s << u"light"_s;
    QTest::newRow("10, system") << Windows::Ten << u"system"_s << u"system"_s;
    QTest::newRow("11, first start") << Windows::Eleven << QString() << u"dark"_s;
    QTest::newRow("11, dark") << Windows::Eleven << u"dark"_s << u"dark"_s;
    QTest::newRow("11, hint") << Windows::Eleven << hint << u"dark"_s;
    QTest::newRow("11, light") << Windows::Eleven << u"light"_s << u"light"_s;
    QTest::newRow("11, system") << Windows::Eleven << u"system"_s << u"system"_s;
}

void TestTheme::storedTextChoosesTheTheme()
{
    QFETCH(const Windows, windows);
    QFETCH(const QString, stored);
    QFETCH(const QString, then);
    TestMachine machine(windows);
    if (!stored.isNull())
        machine.write(settingsKey, u"palette"_s, stored);
    const WindowDriver driver;
    QCOMPARE(machine.read(settingsKey, u"palette"_s).toString(), then);
    const QColor systemWindow = systemPalette_.color(QPalette::Window);
    const QColor window = then == u"dark"_s    ? QColor(35, 35, 35)
                          : then == u"light"_s ? QColor(230, 230, 230)
                                               : systemWindow;
    QCOMPARE(QGuiApplication::palette().color(QPalette::Window), window);
    // White images are for the dark theme alone.
    QCOMPARE(driver.button(u"btnMenuTask"_s)->styleSheet().contains(u"tasks-w.png"_s), then == u"dark"_s);
}

void TestTheme::cellsOfThePalettes_data()
{
    QTest::addColumn<QString>("theme");
    QTest::newRow("dark") << u"dark"_s;
    QTest::newRow("light") << u"light"_s;
}

void TestTheme::cellsOfThePalettes()
{
    QFETCH(const QString, theme);
    TestMachine machine;
    machine.write(settingsKey, u"palette"_s, theme);
    const WindowDriver driver;
    const QPalette palette = QGuiApplication::palette();
    for (const Cell &cell : cells) {
        const bool dark = theme == u"dark"_s;
        const QString all = QString::fromLatin1(dark ? cell.dark : cell.light);
        QCOMPARE(palette.color(QPalette::Active, cell.role).name(), all);
        QCOMPARE(palette.color(QPalette::Inactive, cell.role).name(), all);
        QCOMPARE(palette.color(QPalette::Disabled, cell.role).name(),
                 QString::fromLatin1(dark ? cell.darkDisabled : cell.lightDisabled));
    }
}

void TestTheme::widgetsWearTheirTheme_data()
{
    addColumns<Windows, QString>("windows", "theme");
    QTest::newRow("light, 10") << Windows::Ten << u"light"_s;
    QTest::newRow("system, 10") << Windows::Ten << u"system"_s;
    QTest::newRow("dark, 11") << Windows::Eleven << u"dark"_s;
    QTest::newRow("light, 11") << Windows::Eleven << u"light"_s;
    QTest::newRow("system, 11") << Windows::Eleven << u"system"_s;
}

void TestTheme::widgetsWearTheirTheme()
{
    QFETCH(const Windows, windows);
    QFETCH(const QString, theme);
    TestMachine machine(windows);
    machine.write(settingsKey, u"palette"_s, theme);
    const WindowDriver driver;
    const Styles styles = stylesOf(theme, windows);
    int viewButtons = 0;
    for (const QPushButton *button : ofPages<QPushButton>(driver)) {
        viewButtons += isViewButton(button) ? 1 : 0;
        QCOMPARE(button->styleSheet(), isViewButton(button) ? styles.viewButton : styles.button);
        QCOMPARE(button->isFlat(), isViewButton(button) || theme != u"system"_s);
    }
    QCOMPARE(viewButtons, 3);
    for (const QComboBox *box : ofPages<QComboBox>(driver))
        QCOMPARE(box->styleSheet(), styles.comboBox);
    for (const QCheckBox *box : ofPages<QCheckBox>(driver))
        QCOMPARE(box->styleSheet(), styles.checkBox);
    for (const QTableWidget *table : ofPages<QTableWidget>(driver))
        QCOMPARE(table->styleSheet(), styles.table);
    QCOMPARE(driver.get<QWidget>(u"txtAutomatizer"_s)->styleSheet(), styles.log);
}

void TestTheme::boxesStandOutWithoutWindows_data()
{
    addColumns<QPalette, Qt::CheckState>("palette", "state");
    for (const auto state : {Qt::Unchecked, Qt::Checked}) {
        const char *name = state == Qt::Checked ? "checked" : "unchecked";
        QTest::addRow("dark, %s", name) << darkPalette() << state;
        QTest::addRow("light, %s", name) << lightPalette() << state;
    }
}

void TestTheme::boxesStandOutWithoutWindows()
{
    QFETCH(const QPalette, palette);
    QFETCH(const Qt::CheckState, state);
    OutlineStyle style;
    QCheckBox box;
    box.setStyle(&style);
    box.setPalette(palette);
    box.setCheckState(state);
    box.resize(box.sizeHint());
    QStyleOptionButton option;
    option.initFrom(&box);
    const QRect place = style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    const QImage image = box.grab().toImage();
    const QColor window = palette.color(QPalette::Window);
    for (const QPoint &edge : {QPoint(place.left(), place.center().y()), QPoint(place.center().x(), place.top()),
                               QPoint(place.right(), place.center().y()), QPoint(place.center().x(), place.bottom())}) {
        const double contrast = contrastOf(image.pixelColor(edge), window);
        QVERIFY2(contrast >= 3, qPrintable(QString::number(contrast)));
    }
}

void TestTheme::selectedCellCanBeRead_data()
{
    addColumns<QString>("theme");
    QTest::newRow("dark") << u"dark"_s;
    QTest::newRow("light") << u"light"_s;
}

void TestTheme::selectedCellCanBeRead()
{
    QFETCH(const QString, theme);
    TestMachine machine;
    machine.write(settingsKey, u"palette"_s, theme);
    const WindowDriver driver;
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(1);
    QTableWidget *table = driver.services();
    table->setRowCount(1);
    auto *cell = new QTableWidgetItem(u"IIIIIIII"_s);
    table->setItem(0, 0, cell);
    cell->setSelected(true);
    const QImage image = table->viewport()->grab(table->visualItemRect(cell)).toImage();
    const QColor background = image.pixelColor(image.width() - 3, image.height() / 2);
    QCOMPARE(background, theme == "dark"_L1 ? QColor(35, 35, 35) : QColor(u"lightgray"_s));
    double best = 1;
    for (int x = 0; x < image.width(); ++x)
        best = std::max(best, contrastOf(image.pixelColor(x, image.height() / 2), background));
    QVERIFY2(best >= 4.5, qPrintable(QString::number(best)));
}

void TestTheme::headingsAndTextsFollowThePalette_data()
{
    QTest::addColumn<QString>("theme");
    for (const char *theme : {"dark", "light", "system"})
        QTest::newRow(theme) << QString::fromLatin1(theme);
}

void TestTheme::headingsAndTextsFollowThePalette()
{
    QFETCH(const QString, theme);
    TestMachine machine;
    machine.write(settingsKey, u"palette"_s, theme);
    const WindowDriver driver;
    const QString link = QGuiApplication::palette().color(QPalette::Link).name();
    QCOMPARE(link == themeLink, theme != u"system"_s);
    for (const char *name : {"Svc", "Task", "Package", "Autorun", "Tweak", "Home", "About", "Info", "Options"})
        QCOMPARE(driver.get<QLabel>(u"lbl%1Top"_s.arg(QLatin1StringView(name)))->styleSheet(), u"color: "_s + link);
    const QString window = QGuiApplication::palette().color(QPalette::Window).name();
    for (const char *name : {"About", "Info", "Gaming011", "Gaming11", "Gaming12", "Ssd8"}) {
        const auto *text = driver.get<QTextBrowser>(u"txt"_s + QLatin1StringView(name));
        QCOMPARE(text->styleSheet(), u"background-color: "_s + window);
        QVERIFY2(text->toHtml().contains(u"color:"_s + link), name);
        QVERIFY2(!text->toHtml().contains(u"color:#000000"_s), name);
    }
}

void TestTheme::noThemeLeavesAllAsItIs_data()
{
    addColumns<Windows, QString>("windows", "stored");
    QTest::newRow("dark on 10") << Windows::Ten << u"dark"_s;
    QTest::newRow("hint on 10") << Windows::Ten << hint;
    QTest::newRow("unknown on 10") << Windows::Ten << u"blue"_s;
    QTest::newRow("unknown on 11") << Windows::Eleven << u"blue"_s;
    QTest::newRow("empty on 11") << Windows::Eleven << u""_s;
    QTest::newRow("other case on 11") << Windows::Eleven << u"Dark"_s;
}

void TestTheme::noThemeLeavesAllAsItIs()
{
    QFETCH(const Windows, windows);
    QFETCH(const QString, stored);
    TestMachine machine(windows);
    machine.write(settingsKey, u"palette"_s, u"light"_s);
    const WindowDriver driver;
    machine.write(settingsKey, u"palette"_s, stored);
    driver.get<QLabel>(u"lblSvcTop"_s)->setStyleSheet(QString());
    driver.window().applyPalette();
    QCOMPARE(machine.read(settingsKey, u"palette"_s).toString(), stored);
    QCOMPARE(QGuiApplication::palette().color(QPalette::Window), QColor(230, 230, 230));
    QCOMPARE(driver.get<QTableWidget>(u"tblTasks"_s)->styleSheet(), lightStyles(windows).table);
    // What is common to all themes is done all the same.
    QCOMPARE(driver.get<QLabel>(u"lblSvcTop"_s)->styleSheet(), u"color: "_s + themeLink);
}

void TestTheme::themeInForceIsPutOnAgainUnchanged()
{
    const WindowOnPc driver;
    const QString about = driver.get<QTextBrowser>(u"txtAbout"_s)->toHtml();
    driver.window().applyPalette();
    QCOMPARE(driver.get<QTextBrowser>(u"txtAbout"_s)->toHtml(), about);
    QCOMPARE(driver.button(u"btnSvcDisable"_s)->styleSheet(), darkStyles().button);
}

void TestTheme::changedThemeLooksAsOnAFreshStart_data()
{
    addColumns<Windows, QStringList>("windows", "themes");
    const QStringList order{u"dark"_s, u"light"_s, u"system"_s};
    for (const QString &from : order) {
        for (const QString &to : order) {
            if (from == to)
                continue;
            QTest::newRow(qPrintable(u"11, %1 to %2"_s.arg(from, to))) << Windows::Eleven << QStringList{from, to};
            if (from != u"dark"_s && to != u"dark"_s)
                QTest::newRow(qPrintable(u"10, %1 to %2"_s.arg(from, to))) << Windows::Ten << QStringList{from, to};
        }
    }
    QTest::newRow("11, all ways") << Windows::Eleven << QStringList{u"dark"_s,  u"light"_s,  u"dark"_s, u"system"_s,
                                                                    u"light"_s, u"system"_s, u"dark"_s};
    QTest::newRow("10, all ways") << Windows::Ten << QStringList{u"light"_s, u"system"_s, u"light"_s, u"system"_s};
}

void TestTheme::changedThemeLooksAsOnAFreshStart()
{
    QFETCH(const Windows, windows);
    QFETCH(const QStringList, themes);
    const auto freshLook = [&](const QString &theme) {
        QApplication::setPalette(systemPalette_);
        TestMachine machine(windows);
        machine.write(settingsKey, u"palette"_s, theme);
        const WindowDriver driver;
        driver.window().showPage(7);
        return lookOf(driver);
    };
    QMap<QString, QStringList> fresh;
    for (const QString &theme : themes)
        fresh.insert(theme, freshLook(theme));
    QApplication::setPalette(systemPalette_);
    TestMachine machine(windows);
    machine.write(settingsKey, u"palette"_s, themes.first());
    const WindowDriver driver;
    driver.window().showPage(7);
    for (const QString &theme : themes.mid(1)) {
        driver.get<QComboBox>(u"cbOptionsTheme"_s)
            ->setCurrentIndex(int(QStringList{u"dark"_s, u"light"_s, u"system"_s}.indexOf(theme)));
        QStringList expected = fresh.value(theme);
        // The lists are whitened by the change to the light theme on Windows 10, and by that alone.
        if (windows == Windows::Ten && theme == u"light"_s) {
            for (QString &line : expected) {
                if (line.startsWith(u"list of "_s))
                    line += u"background-color: #FFFFFF; color: black; "_s;
            }
        }
        QCOMPARE(lookOf(driver), expected);
    }
}

void TestTheme::contrastThemeWearsTheSystemsLook_data()
{
    addColumns<Windows, QString>("windows", "stored");
    for (const QString &stored : {QString(), u"light"_s, u"dark"_s, u"system"_s, u"blue"_s}) {
        QTest::addRow("11, %s", qPrintable(stored)) << Windows::Eleven << stored;
        QTest::addRow("10, %s", qPrintable(stored)) << Windows::Ten << stored;
    }
}

void TestTheme::contrastThemeWearsTheSystemsLook()
{
    QFETCH(const Windows, windows);
    QFETCH(const QString, stored);
    TestMachine machine(windows);
    if (!stored.isNull())
        machine.write(settingsKey, u"palette"_s, stored);
    setContrastTheme(machine, true);
    const WindowDriver driver;
    QCOMPARE(machine.names(settingsKey).contains(u"palette"_s), !stored.isNull());
    QCOMPARE(machine.read(settingsKey, u"palette"_s).toString(), stored);
    QCOMPARE(QGuiApplication::palette().color(QPalette::Window), systemPalette_.color(QPalette::Window));
    QCOMPARE(QGuiApplication::palette().color(QPalette::Highlight), systemPalette_.color(QPalette::Highlight));
    for (const QPushButton *button : ofPages<QPushButton>(driver)) {
        QCOMPARE(button->styleSheet(), QString());
        QCOMPARE(button->isFlat(), isViewButton(button));
    }
    for (const QComboBox *box : ofPages<QComboBox>(driver)) {
        QCOMPARE(box->styleSheet(), QString());
        QCOMPARE(box->view()->styleSheet(), QString());
    }
    for (const QCheckBox *box : ofPages<QCheckBox>(driver))
        QCOMPARE(box->styleSheet(), QString());
    for (const QTableWidget *table : ofPages<QTableWidget>(driver))
        QCOMPARE(table->styleSheet(), QString());
    QCOMPARE(driver.get<QWidget>(u"txtAutomatizer"_s)->styleSheet(), QString());
    QCOMPARE(popupMenuStyle(PopupMenu::Programs), QString());
    QCOMPARE(popupMenuStyle(PopupMenu::Context), QString());
    const QString link = systemPalette_.color(QPalette::Link).name();
    QCOMPARE(driver.get<QLabel>(u"lblSvcTop"_s)->styleSheet(), u"color: "_s + link);
    QVERIFY(driver.get<QTextBrowser>(u"txtAbout"_s)->toHtml().contains(u"color:"_s + link));
}

void TestTheme::storedThemeComesBackAfterContrast_data()
{
    addColumns<Windows, QString>("windows", "stored");
    for (const QString &stored : {u"light"_s, u"system"_s, u"dark"_s}) {
        QTest::addRow("11, %s", qPrintable(stored)) << Windows::Eleven << stored;
        QTest::addRow("10, %s", qPrintable(stored)) << Windows::Ten << stored;
    }
}

void TestTheme::storedThemeComesBackAfterContrast()
{
    QFETCH(const Windows, windows);
    QFETCH(const QString, stored);
    const ChangingSystem system;
    const auto newMachine = [&] {
        QApplication::setPalette(QPalette());
        auto machine = std::make_unique<TestMachine>(windows);
        machine->write(settingsKey, u"palette"_s, stored);
        return machine;
    };
    QStringList fresh;
    {
        const auto machine = newMachine();
        const WindowDriver driver;
        fresh = lookOf(driver);
    }
    const auto machine = newMachine();
    const WindowDriver driver;
    QCOMPARE(lookOf(driver), fresh);
    for (int round = 0; round < 2; ++round) {
        setContrastTheme(*machine, true);
        ChangingSystem::tell(driver);
        QCOMPARE(driver.table(u"tblSvc"_s)->styleSheet(), QString());
        QCOMPARE(driver.button(u"btnSvcDisable"_s)->styleSheet(), QString());
        QCOMPARE(machine->read(settingsKey, u"palette"_s).toString(), stored);
        setContrastTheme(*machine, false);
        ChangingSystem::tell(driver);
        QStringList look = lookOf(driver);
        // No theme is what Windows 10 makes of dark: a form without style sheets, whose buttons a theme has made flat.
        if (windows == Windows::Ten && stored == "dark"_L1) {
            look.removeIf([](const QString &line) { return line.startsWith("btn"_L1); });
            fresh.removeIf([](const QString &line) { return line.startsWith("btn"_L1); });
        }
        QCOMPARE(look, fresh);
        QCOMPARE(machine->read(settingsKey, u"palette"_s).toString(), stored);
    }
}

void TestTheme::contrastThemesHaveImagesThatCanBeSeen_data()
{
    addColumns<QColor, QColor, bool>("ground", "text", "white");
    QTest::newRow("white on black") << QColor(Qt::black) << QColor(Qt::white) << true;
    QTest::newRow("black on white") << QColor(Qt::white) << QColor(Qt::black) << false;
}

void TestTheme::contrastThemesHaveImagesThatCanBeSeen()
{
    QFETCH(const QColor, ground);
    QFETCH(const QColor, text);
    QFETCH(const bool, white);
    for (const QString &stored : {u"light"_s, u"dark"_s}) {
        ChangingSystem system;
        TestMachine machine;
        machine.write(settingsKey, u"palette"_s, stored);
        const WindowDriver driver;
        setContrastTheme(machine, true);
        system.change(driver, palette(ground, text));
        QCOMPARE(QGuiApplication::palette().color(QPalette::Window), ground);
        // The page's own button, and one of another page
        for (const QString &name : {u"btnMenuHome"_s, u"btnMenuTask"_s}) {
            QCOMPARE(driver.button(name)->styleSheet().contains(u"-w.png"_s), white);
            QVERIFY(!driver.button(name)->styleSheet().contains(themeLink));
        }
        QVERIFY(driver.button(u"btnMenuTask"_s)->styleSheet().contains(u" color: "_s + text.name()));
    }
}

void TestTheme::choiceDuringContrastIsForLater()
{
    TestMachine machine;
    machine.write(settingsKey, u"palette"_s, u"dark"_s);
    setContrastTheme(machine, true);
    const WindowDriver driver;
    driver.window().showPage(7);
    driver.get<QComboBox>(u"cbOptionsTheme"_s)->setCurrentIndex(1);
    QCOMPARE(machine.read(settingsKey, u"palette"_s).toString(), u"light"_s);
    QCOMPARE(driver.table(u"tblSvc"_s)->styleSheet(), QString());
    setContrastTheme(machine, false);
    ChangingSystem::tell(driver);
    QCOMPARE(driver.table(u"tblSvc"_s)->styleSheet(), lightStyles(Windows::Eleven).table);
}

void TestTheme::titleBarsAreAsDarkAsTheTheme_data()
{
    addColumns<QString, bool>("theme", "dark");
    QTest::newRow("dark") << u"dark"_s << true;
    QTest::newRow("light") << u"light"_s << false;
}

/** What they look like can be seen on a real desktop only. */
void TestTheme::titleBarsAreAsDarkAsTheTheme()
{
    QFETCH(const QString, theme);
    QFETCH(const bool, dark);
    TestMachine machine;
    machine.write(settingsKey, u"palette"_s, theme);
    auto noting = std::make_unique<TitleBarPlatform>(takePlatform());
    const TitleBarPlatform &platform = *noting;
    setPlatform(std::move(noting));
    const WindowDriver driver;
    const quintptr window = driver.window().winId();
    QCOMPARE(platform.asked, (QMap<quintptr, bool>{{window, dark}}));
    QDialog dialog(&driver.window());
    dialog.show();
    QCOMPARE(platform.asked, (QMap<quintptr, bool>{{window, dark}, {dialog.winId(), dark}}));
    QLabel tip(&driver.window(), Qt::ToolTip);
    tip.show();
    QCOMPARE(platform.asked.size(), 2); // it has no title bar
    driver.window().showPage(7);
    driver.get<QComboBox>(u"cbOptionsTheme"_s)->setCurrentIndex(dark ? 1 : 0);
    QCOMPARE(platform.asked, (QMap<quintptr, bool>{{window, !dark}, {dialog.winId(), !dark}}));
}

void TestTheme::systemThemeFollowsTheSystem()
{
    ChangingSystem system;
    TestMachine machine;
    machine.write(settingsKey, u"palette"_s, u"system"_s);
    QApplication::setPalette(QPalette());
    const WindowDriver driver;
    const QPalette dark = palette(QColor(20, 20, 20), Qt::white);
    system.change(driver, dark);
    QCOMPARE(QGuiApplication::palette().color(QPalette::Window), QColor(20, 20, 20));
    QCOMPARE(driver.get<QLabel>(u"lblSvcTop"_s)->styleSheet(), u"color: #ffff00"_s);
    const QString about = driver.get<QTextBrowser>(u"txtAbout"_s)->toHtml();
    QVERIFY(about.contains(u"color:#ffff00"_s));
    QVERIFY(!about.contains(u"color:"_s + themeLink));
    system.change(driver, lightPalette());
    QCOMPARE(QGuiApplication::palette().color(QPalette::Window), QColor(230, 230, 230));
    QCOMPARE(machine.read(settingsKey, u"palette"_s).toString(), u"system"_s);
}

void TestTheme::otherThemesKeepTheSystemsChangeForLater()
{
    ChangingSystem system;
    TestMachine machine;
    machine.write(settingsKey, u"palette"_s, u"dark"_s);
    const WindowDriver driver;
    system.change(driver, palette(Qt::blue, Qt::white));
    QCOMPARE(QGuiApplication::palette().color(QPalette::Window), QColor(35, 35, 35));
    QCOMPARE(driver.button(u"btnSvcDisable"_s)->styleSheet(), darkStyles().button);
    driver.window().showPage(7);
    driver.get<QComboBox>(u"cbOptionsTheme"_s)->setCurrentIndex(2);
    QCOMPARE(QGuiApplication::palette().color(QPalette::Window), QColor(Qt::blue));
}

void TestTheme::changeOfTheSystemLeavesAJobsBarAlone()
{
    const WindowOnPc driver;
    driver.bar()->show();
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"under way"_s);
    ChangingSystem::tell(driver);
    QVERIFY(driver.bar()->isVisible());
    QCOMPARE(driver.status(), u"under way"_s);
    QCOMPARE(driver.window().currentPage(), 0);
}

KESTRUNE_WINDOW_SUITE(TestTheme)
#include "tst_theme.moc"
