// SPDX-License-Identifier: GPL-3.0-or-later
// Whether each text fits its widget at the window's minimum size, on every page in every language.
//
// The fonts are those that stand in for Windows' own, which are narrower. None of them has ideographs: each is measured
// as a dash as wide as an ideograph.

#include "app/standinfonts.h"
#include "journal/journaling.h"
#include "support/suite.h"
#include "support/windowdriver.h"
#include "window/rowtext.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolTip>
#include <QTranslator>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int pageCount = 9;

/** A language with a dash for each ideograph. */
class WideTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *comment, int number) const override
    {
        const QString text = QTranslator::translate(context, source, comment, number);
        if (text.isNull())
            return text;
        QString wide;
        for (const QChar character : text) {
            if (character >= QChar(0x2e80))
                wide += dash;
            else
                wide += character;
        }
        return wide;
    }
    bool isEmpty() const override { return false; }

private:
    /** After an ideograph a line may end, and after a dash it may not but for the blank without width. */
    const QString dash = u"\u2014\u200b"_s;
};

QString named(const QWidget *widget, const QString &text)
{
    return widget->objectName() + u": "_s + text;
}

int widthOfLines(const QWidget *widget, const QString &text)
{
    int width = 0;
    for (const QString &line : text.split(u'\n'))
        width = std::max(width, widget->fontMetrics().horizontalAdvance(line));
    return width;
}

bool fits(QSize size, const QWidget *widget)
{
    return size.width() <= widget->width() && size.height() <= widget->height();
}

/** Looks at all texts of the window as it stands, and keeps those that don't fit. */
class Look
{
public:
    explicit Look(const WindowDriver &driver)
        : driver_(driver)
    {
        each<QLabel>([](const QLabel *label) { return labelFits(label); });
        each<QCheckBox>([](const QCheckBox *box) { return fits(box->sizeHint(), box); });
        each<QPushButton>([](const QPushButton *button) { return buttonFits(button); });
        each<QComboBox>([](const QComboBox *box) { return boxFits(box); });
        each<QTextBrowser>([](const QTextBrowser *browser) { return browserFits(browser); });
        each<QHeaderView>([](const QHeaderView *header) { return headerFits(header); });
        each<QScrollArea>([](const QScrollArea *area) { return area->horizontalScrollBar()->maximum() == 0; });
        const QWidget *page = driver.get<QTabWidget>(u"tabWidget"_s)->currentWidget();
        if (!fits(page->minimumSizeHint(), page))
            misfits.append(named(page, u"is larger than the window"_s));
    }

    QStringList misfits;

private:
    template<typename Widget, typename Test>
    void each(Test test)
    {
        for (const Widget *widget : driver_.window().findChildren<Widget *>()) {
            // In a dialog the layouts give each as much as it asks for, where there is room.
            const bool inDialog = qobject_cast<const QDialog *>(widget->window()) != nullptr;
            const bool asks =
                inDialog && (qobject_cast<const QLabel *>(widget) || qobject_cast<const QPushButton *>(widget));
            if (widget->isVisible() && !(asks ? fits(widget->sizeHint(), widget) : test(widget)))
                misfits.append(named(widget, textOf(widget)));
        }
    }

    template<typename Widget>
    static QString textOf(const Widget *widget)
    {
        if constexpr (requires { widget->text(); })
            return widget->text();
        else
            return {};
    }

    static bool labelFits(const QLabel *label)
    {
        if (label->wordWrap())
            return label->heightForWidth(label->width()) <= label->height();
        const auto lines = label->text().count(u'\n') + 1;
        return widthOfLines(label, label->text()) <= label->width()
               && lines * label->fontMetrics().height() <= label->height() && !runsIntoNeighbour(label);
    }

    /** Labels without a layout reach behind what stands beside them. */
    static bool runsIntoNeighbour(const QLabel *label)
    {
        const QRect text(label->pos(), QSize(widthOfLines(label, label->text()), label->height()));
        for (const QWidget *neighbour : label->parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            if (neighbour != label && neighbour->isVisible() && neighbour->geometry().intersects(text))
                return true;
        }
        return false;
    }

    /** The menu's buttons have their margin and their image on the left, and the text in the middle of the rest. */
    static bool buttonFits(const QPushButton *button)
    {
        constexpr int margin = 12;
        constexpr int image = 32;
        constexpr int rim = 6;
        const int text = widthOfLines(button, button->text());
        const bool inMenu = button->objectName().startsWith("btnMenu"_L1);
        const int room = inMenu ? button->width() - margin - 2 * image : button->width() - 2 * rim;
        const int lines = int(button->text().count(u'\n')) + 1;
        return text <= room && lines * button->fontMetrics().height() <= button->height();
    }

    static bool boxFits(const QComboBox *box)
    {
        // What the light theme puts around the text
        constexpr int paddingAndArrow = 12 + 16;
        for (int row = 0; row < box->count(); ++row) {
            // The rows of a check list are seen in the list only, and numbers are no translation.
            bool number = false;
            box->itemText(row).toInt(&number);
            const bool shown = box->itemData(row, Qt::CheckStateRole).isNull() && !number;
            if (shown && widthOfLines(box, box->itemText(row)) > box->width() - paddingAndArrow)
                return false;
        }
        return true;
    }

    /** The report's places for values are longer than most values, so that it tells nothing yet. */
    static bool browserFits(const QTextBrowser *browser)
    {
        return browser->objectName() == "txtInfo"_L1 || browser->verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff
               || browser->document()->size().height() <= browser->viewport()->height();
    }

    static bool headerFits(const QHeaderView *header)
    {
        if (header->orientation() == Qt::Vertical)
            return true;
        for (int column = 0; column < header->count(); ++column) {
            const int width = header->sectionSize(column);
            if (width > 0 && header->sectionSizeHint(column) > width)
                return false;
        }
        return true;
    }

    const WindowDriver &driver_;
};

/** What the page says in its other view, or when it has found something. */
void showOtherTexts(const WindowDriver &driver, int page)
{
    if (page == 1)
        driver.click(u"btnSvcViewDisabled"_s);
    else if (page == 3)
        driver.click(u"btnAutorunViewDisabled"_s);
    else if (page == 4)
        driver.click(u"btnPackagesViewDisabled"_s);
    else if (page == 5) {
        driver.get<QCheckBox>(u"chkSsd7"_s)
            ->setText(Kestrune::tr("Disable hibernation mode  (gain %1 GB of storage space)").arg(u"12.7"_s));
        driver.button(u"btnSsd8"_s)
            ->setText(
                Kestrune::tr("Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)").arg(u"12.7"_s));
    }
    // The layouts come to rest.
    QTest::qWait(30);
}

/** What doesn't fit when the layouts have come to rest, which takes longer on a busy computer. */
QStringList misfitsOf(const WindowDriver &driver)
{
    constexpr int longest = 5000; // milliseconds
    QStringList misfits;
    QTest::qWait(30);
    const bool fits = QTest::qWaitFor(
        [&] {
            misfits = Look(driver).misfits;
            return misfits.isEmpty();
        },
        longest);
    return fits ? QStringList() : misfits;
}

void setTextScale(TestMachine &machine, int scale)
{
    machine.write(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Accessibility"_s, u"TextScaleFactor"_s, scale);
}

/** The toolkit's own label with a text, in another's place. */
QImage pictureOfLabel(const QLabel *place, const QString &text)
{
    QLabel label(text, place->parentWidget());
    label.setTextFormat(Qt::PlainText);
    label.setGeometry(place->geometry());
    return label.grab().toImage();
}

QString nameOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/** What a widget says where the mouse rests on it. */
QString toolTipOf(QWidget *widget)
{
    QToolTip::hideText();
    const QPoint middle = widget->rect().center();
    QHelpEvent rests(QEvent::ToolTip, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &rests);
    return QToolTip::text();
}

} // namespace

class TestFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useStandInFonts(); } // which the window lets grow
    void everyTextFits_data();
    void everyTextFits();
    void everyTextGrows_data();
    void everyTextGrows();
    void theSizeOfTextsIsThatOfTheStart();
    void statusEndsWithinTheWindow_data();
    void statusEndsWithinTheWindow();
    void statusThatFitsASmallWindowIsWhole();
    void statusThatFitsIsDrawnAsEver();
    void theWayBackFits_data() { languages(); }
    void theWayBackFits();
    void theKeepListFits_data() { languages(); }
    void theKeepListFits();

private:
    static void languages();
};

void TestFit::everyTextFits_data()
{
    addColumns<QString, int, int>("file", "page", "scale");
    const QDir folder(QCoreApplication::applicationDirPath() + u"/Translations"_s);
    for (const QString &file : folder.entryList({u"lang_*.qm"_s})) {
        for (int page = 0; page < pageCount; ++page) {
            for (const int scale : {100, 225})
                QTest::addRow("%s, page %d, %d %%", qPrintable(file), page, scale)
                    << folder.filePath(file) << page << scale;
        }
    }
}

void TestFit::everyTextFits()
{
    QFETCH(QString, file);
    QFETCH(int, page);
    QFETCH(int, scale);
    WideTranslator translator;
    QVERIFY(translator.load(file));
    QCoreApplication::installTranslator(&translator);
    TestMachine pc;
    // The window itself leaves the language alone.
    pc.write(settingsKey, u"lang"_s, u"en"_s);
    pc.write(settingsKey, u"palette"_s, u"light"_s);
    setTextScale(pc, scale);
    const WindowDriver driver;
    // As large as the form, whatever the screen has.
    driver.window().resize(grown(QSize(800, 640)));
    driver.window().showPage(page);
    QTRY_VERIFY_WITH_TIMEOUT(!driver.worker().isRunning(), patience);
    QStringList misfits = misfitsOf(driver);
    QCOMPARE(driver.window().size(), QSize(8 * scale, 640 * scale / 100));
    showOtherTexts(driver, page);
    misfits += misfitsOf(driver);
    QVERIFY2(misfits.isEmpty(), qPrintable(misfits.join(u'\n')));
}

/** Half a window that has grown would fit nobody. */
void TestFit::theSizeOfTextsIsThatOfTheStart()
{
    TestMachine pc;
    setTextScale(pc, 150);
    const WindowDriver driver;
    QCOMPARE(grown(100), 150);
    setTextScale(pc, 225);
    QCOMPARE(grown(100), 150);
}

void TestFit::everyTextGrows_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString &theme : {u"light"_s, u"dark"_s, u"system"_s})
        QTest::newRow(qPrintable(theme)) << theme;
}

/** A text that stays small fits as well. */
void TestFit::everyTextGrows()
{
    QFETCH(const QString, theme);
    const auto sizesAt = [&](int scale) {
        useStandInFonts();
        TestMachine pc;
        pc.write(settingsKey, u"lang"_s, u"en"_s);
        pc.write(settingsKey, u"palette"_s, theme);
        setTextScale(pc, scale);
        const WindowDriver driver;
        QMap<QString, double> sizes;
        for (int page = 0; page < pageCount; ++page) {
            driver.window().showPage(page);
            if (!QTest::qWaitFor([&] { return !driver.worker().isRunning(); }, patience))
                qFatal("the page isn't listed");
            for (const QWidget *widget : driver.window().findChildren<QWidget *>()) {
                if (widget->isVisible() && !widget->objectName().isEmpty())
                    sizes.insert(widget->objectName(), widget->font().pointSizeF());
            }
        }
        return sizes;
    };
    const QMap<QString, double> usual = sizesAt(100);
    const QMap<QString, double> large = sizesAt(200);
    QStringList small;
    int compared = 0;
    for (auto each = usual.cbegin(); each != usual.cend(); ++each) {
        if (!large.contains(each.key())) // the bar, and what waits for a job's last line
            continue;
        ++compared;
        if (std::abs(large.value(each.key()) - 2 * each.value()) > 0.5)
            small.append(u"%1: %2, %3"_s.arg(each.key()).arg(each.value()).arg(large.value(each.key())));
    }
    QCOMPARE(small.join(u'\n'), QString());
    QVERIFY(compared > 100);
}

void TestFit::statusEndsWithinTheWindow_data()
{
    addColumns<bool, bool>("isAtWork", "isBrokenOff");
    QTest::newRow("alone") << false << false;
    QTest::newRow("with the bar") << true << false;
    QTest::newRow("with the button") << false << true;
}

/** The screen is 800 pixels wide: what has no room there ends in dots, and is told as a whole. */
void TestFit::statusEndsWithinTheWindow()
{
    QFETCH(const bool, isAtWork);
    QFETCH(const bool, isBrokenOff);
    TestMachine pc;
    pc.write(settingsKey, u"lang"_s, u"en"_s);
    setTextScale(pc, 225);
    const WindowDriver driver;
    QCOMPARE(driver.window().width(), 800);
    auto *status = driver.get<QLabel>(u"lblStatus"_s);
    QWidget *const button = driver.button(u"btnBrokenOff"_s);
    const QString text = u"Task: <b>a</b> "_s + QString(200, u'x');
    status->setText(text);
    driver.bar()->setVisible(isAtWork);
    button->setVisible(isBrokenOff);
    for (QWidget *widget : {static_cast<QWidget *>(status), static_cast<QWidget *>(driver.bar()), button}) {
        const auto isInside = [&] {
            const QRect place(widget->mapTo(&driver.window(), QPoint()), widget->size());
            return !widget->isVisible() || driver.window().rect().contains(place);
        };
        QTRY_VERIFY2(isInside(), qPrintable(widget->objectName()));
    }
    const QImage picture = status->grab().toImage(); // when it has its place
    const QString elided = status->fontMetrics().elidedText(text, Qt::ElideRight, status->width());
    QVERIFY(elided.endsWith(u'\u2026'));
    QCOMPARE(picture, pictureOfLabel(status, elided));
    QCOMPARE(toolTipOf(status), plainToolTip(text));
    QCOMPARE(nameOf(status), text);
}

/** It has the strip for itself there. */
void TestFit::statusThatFitsASmallWindowIsWhole()
{
    TestMachine pc;
    pc.write(settingsKey, u"lang"_s, u"en"_s);
    setTextScale(pc, 225);
    const WindowDriver driver;
    auto *status = driver.get<QLabel>(u"lblStatus"_s);
    for (const QString &text :
         {u"Autorun: 12  |  disabled: 0  "_s, u"Autorun: 1"_s, u"Autorun: 12  |  disabled: 1  "_s}) {
        status->setText(text);
        QTRY_COMPARE(toolTipOf(status), QString());
    }
}

void TestFit::statusThatFitsIsDrawnAsEver()
{
    constexpr int width = 400;

    const WindowOnPc driver;
    auto *status = driver.get<QLabel>(u"lblStatus"_s);
    status->setFixedWidth(width);
    QString longest;
    while (status->fontMetrics().horizontalAdvance(longest + u'i') <= width)
        longest += u'i';
    for (const QString &text : {u"Services: 313  |  started: 109  "_s, longest, QString(longest + u"  "_s)}) {
        status->setText(text);
        const QImage picture = status->grab().toImage(); // when it has its place
        QCOMPARE(picture, pictureOfLabel(status, text));
        QCOMPARE(toolTipOf(status), QString());
    }
    status->setText(longest + u'i');
    QVERIFY(!toolTipOf(status).isEmpty());
}

void TestFit::languages()
{
    QTest::addColumn<QString>("file");
    const QDir folder(QCoreApplication::applicationDirPath() + u"/Translations"_s);
    for (const QString &file : folder.entryList({u"lang_*.qm"_s}))
        QTest::newRow(qPrintable(file)) << folder.filePath(file);
}

void TestFit::theWayBackFits()
{
    QFETCH(QString, file);
    WideTranslator translator;
    QVERIFY(translator.load(file));
    QCoreApplication::installTranslator(&translator);
    TestMachine machine;
    machine.write(settingsKey, u"lang"_s, u"en"_s);
    machine.write(settingsKey, u"palette"_s, u"light"_s);
    const Journaled pc(machine);
    {
        const ChangeSession session(u"Optimize"_s);
        platform().openKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Vendor"_s)->setValue(u"Name"_s, 1);
    }
    pc.journal().store().endSession(pc.journal().store().sessions().last().id, SessionState::BrokenOff);
    const WindowDriver driver;
    driver.window().resize(driver.window().minimumSize());
    driver.window().showPage(7);
    driver.bar()->show(); // as much as there can be in the status strip
    QStringList misfits = misfitsOf(driver);
    driver.click(u"btnBrokenOff"_s);
    auto *dialog = driver.window().findChild<QDialog *>();
    QVERIFY(dialog != nullptr);
    misfits += misfitsOf(driver);
    dialog->resize(dialog->minimumSizeHint());
    dialog->findChild<QProgressBar *>()->show(); // while it takes back
    dialog->findChild<QPushButton *>(u"btnClose"_s)->setText(Kestrune::tr("Cancel"));
    misfits += misfitsOf(driver);
    QVERIFY2(misfits.isEmpty(), qPrintable(misfits.join(u'\n')));
}

void TestFit::theKeepListFits()
{
    QFETCH(QString, file);
    WideTranslator translator;
    QVERIFY(translator.load(file));
    QCoreApplication::installTranslator(&translator);
    TestMachine pc;
    pc.write(settingsKey, u"lang"_s, u"en"_s);
    for (const QString &theme : {u"light"_s, u"dark"_s, u"system"_s}) {
        pc.write(settingsKey, u"palette"_s, theme);
        const WindowDriver driver;
        driver.window().resize(driver.window().minimumSize());
        for (const auto &[page, name] : {std::pair{0, u"cbAutorunFeatures"_s}, std::pair{1, u"cbSvcFeatures"_s}}) {
            driver.window().showPage(page);
            QTRY_VERIFY_WITH_TIMEOUT(!driver.worker().isRunning(), patience);
            auto *box = driver.get<QComboBox>(name);
            box->showPopup();
            QTest::qWait(30);
            QStringList misfits;
            const QAbstractItemView *list = box->view();
            QVERIFY(list->isVisible());
            for (int row = 0; row < box->count(); ++row) {
                if (list->sizeHintForIndex(box->model()->index(row, 0)).width() > list->viewport()->width())
                    misfits.append(box->itemText(row));
            }
            box->hidePopup();
            QVERIFY2(misfits.isEmpty(), qPrintable(theme + u' ' + name + u": "_s + misfits.join(u'|')));
        }
    }
}

KESTRUNE_WINDOW_SUITE(TestFit)
#include "tst_fit.moc"
