// SPDX-License-Identifier: GPL-3.0-or-later
// The window's form against its tables: every widget, its place, its settings and its texts.

#include "formtables.h"
#include "support/suite.h"
#include "ui_kestrune.h"

#include <QApplication>
#include <QMetaProperty>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTest>
#include <QTextBlock>
#include <QTextTable>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using namespace form;

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/** Metrics that no style has, so that what the form leaves to the style is told apart from what it sets. */
class OddStyle : public QProxyStyle
{
public:
    static constexpr int left = 31, top = 32, right = 33, bottom = 34, horizontal = 35, vertical = 36;

    OddStyle()
        : QProxyStyle(u"Fusion"_s)
    {
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutLeftMargin:
            return left;
        case PM_LayoutTopMargin:
            return top;
        case PM_LayoutRightMargin:
            return right;
        case PM_LayoutBottomMargin:
            return bottom;
        case PM_LayoutHorizontalSpacing:
            return horizontal;
        case PM_LayoutVerticalSpacing:
            return vertical;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

/** A window that the form's by-name binding finds slots in. */
class FormWindow : public QMainWindow
{
    Q_OBJECT

public:
    FormWindow() { ui.setupUi(this); }

    Ui::KestruneClass ui;
    QStringList calls;

public Q_SLOTS:
    void on_btnMenuHome_clicked() { calls << u"btnMenuHome"_s; }
    void on_btnSvcDisable_clicked() { calls << u"btnSvcDisable"_s; }
    void on_btnAutomatizerRestore_clicked() { calls << u"btnAutomatizerRestore"_s; }
    void on_btnTweakApply_clicked() { calls << u"btnTweakApply"_s; }
    void on_chkSsd7_clicked() { calls << u"chkSsd7"_s; }
};

/** Marks what is translated in the form's context. */
class Marker : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "KestruneClass") == 0 ? u"§"_s + str(text) : QString();
    }
};

QStringList names(const char *objects)
{
    return str(objects).split(u' ');
}

/** A new widget of a class, as the toolkit makes it. */
std::unique_ptr<QWidget> newWidget(const QString &className)
{
    if (className == "QLabel"_L1)
        return std::make_unique<QLabel>();
    if (className == "QPushButton"_L1)
        return std::make_unique<QPushButton>();
    if (className == "QCheckBox"_L1)
        return std::make_unique<QCheckBox>();
    if (className == "QComboBox"_L1)
        return std::make_unique<QComboBox>();
    if (className == "QTextBrowser"_L1)
        return std::make_unique<QTextBrowser>();
    if (className == "QTableWidget"_L1)
        return std::make_unique<QTableWidget>();
    if (className == "QTabWidget"_L1)
        return std::make_unique<QTabWidget>();
    if (className == "QProgressBar"_L1)
        return std::make_unique<QProgressBar>();
    if (className == "QScrollArea"_L1)
        return std::make_unique<QScrollArea>();
    if (className == "QFrame"_L1)
        return std::make_unique<QFrame>();
    return std::make_unique<QWidget>();
}

QString policyText(const QSizePolicy &policy)
{
    const auto key = [](QSizePolicy::Policy value) {
        return str(QMetaEnum::fromType<QSizePolicy::Policy>().valueToKey(value));
    };
    QString text = key(policy.horizontalPolicy()) + u' ' + key(policy.verticalPolicy());
    if (policy.horizontalStretch() != 0 || policy.verticalStretch() != 0)
        text += u" stretch %1 %2"_s.arg(policy.horizontalStretch()).arg(policy.verticalStretch());
    return text;
}

/** A property's value as the tables write it; none if the widget has no such property. */
std::optional<QString> settingText(const QWidget &widget, const char *name)
{
    const int index = widget.metaObject()->indexOfProperty(name);
    if (index < 0)
        return std::nullopt;
    const QMetaProperty property = widget.metaObject()->property(index);
    const QVariant value = property.read(&widget);
    if (property.isFlagType())
        return str(property.enumerator().valueToKeys(value.toInt()).constData());
    if (property.isEnumType())
        return str(property.enumerator().valueToKey(value.toInt()));
    if (value.typeId() == QMetaType::QSize)
        return u"%1 x %2"_s.arg(value.toSize().width()).arg(value.toSize().height());
    if (value.typeId() == QMetaType::QSizePolicy)
        return policyText(value.value<QSizePolicy>());
    return value.toString();
}

QTextTable *onlyTable(const QTextBrowser &browser)
{
    const QList<QTextFrame *> frames = browser.document()->rootFrame()->childFrames();
    return frames.size() == 1 ? qobject_cast<QTextTable *>(frames.first()) : nullptr;
}

QStringList cellLines(const QTextTableCell &cell)
{
    QStringList lines;
    for (auto place = cell.begin(); !place.atEnd(); ++place)
        lines << place.currentBlock().text().replace(QChar::Nbsp, u' ');
    return lines;
}

QStringList comboTexts(const QComboBox &box)
{
    QStringList texts;
    for (int index = 0; index < box.count(); ++index)
        texts << box.itemText(index);
    return texts;
}

QStringList headerTexts(const QTableWidget &table)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts << table.horizontalHeaderItem(column)->text();
    return texts;
}

/** The lines of a list in a table row; an empty text has none. */
QStringList rowTexts(const char *texts)
{
    return *texts == '\0' ? QStringList() : str(texts).split(u'\n');
}

/** The place of an item in a grid, with its span. */
struct Place
{
    int row = -1, column = -1, rows = 0, columns = 0;
    bool operator==(const Place &) const = default;
};

Place placeOf(QGridLayout &grid, int index)
{
    Place place;
    grid.getItemPosition(index, &place.row, &place.column, &place.rows, &place.columns);
    return place;
}

QString text(const Place &place)
{
    return u"row %1, column %2, span %3 x %4"_s.arg(place.row).arg(place.column).arg(place.rows).arg(place.columns);
}

/** The name of what lies in a layout item; a spacer has none. */
QString itemName(const QLayoutItem &item)
{
    auto &anItem = const_cast<QLayoutItem &>(item); // layout items have no const access to what they hold
    if (const QWidget *widget = anItem.widget())
        return widget->objectName();
    if (const QLayout *layout = anItem.layout())
        return layout->objectName();
    return {};
}

} // namespace

class FormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void windowHasItsSettings();
    void windowKeepsAnObjectNameOfItsOwn();

    void widgetStandsInItsParent_data();
    void widgetStandsInItsParent();
    void noWidgetBeyondTheTable();
    void pagesAreInOrder();

    void layoutHasItsMarginsAndSpacing_data();
    void layoutHasItsMarginsAndSpacing();
    void noLayoutBeyondTheTable();
    void optionsPageHasNoLayout();
    void widgetLiesInItsCell_data();
    void widgetLiesInItsCell();
    void spacerLiesInItsCell_data();
    void spacerLiesInItsCell();
    void gridHoldsNothingElse();
    void boxHoldsItsWidgetsInOrder_data();
    void boxHoldsItsWidgetsInOrder();
    void rectangleIsFixed_data();
    void rectangleIsFixed();

    void widgetHasItsSettings_data();
    void widgetHasItsSettings();
    void fontIsSet_data();
    void fontIsSet();
    void centralFontPrefersAntialiasing();

    void textIsAsTold_data();
    void textIsAsTold();
    void noTextBeyondTheTable();
    void comboHasItsItems_data();
    void comboHasItsItems();
    void tableHasItsHeader_data();
    void tableHasItsHeader();
    void onlyTheServicesHaveASortIndicatorOnTheRows();
    void richTextHasItsLines_data();
    void richTextHasItsLines();
    void richTextSpanIsStyled_data();
    void richTextSpanIsStyled();
    void themedColourIsWrittenInFull_data();
    void themedColourIsWrittenInFull();
    void reportIsATable();
    void reportCellHasItsLines_data();
    void reportCellHasItsLines();
    void reportSurvivesBeingPutBack();

    void runTimeTextGivesWayToTheFormText_data();
    void runTimeTextGivesWayToTheFormText();
    void retranslationBringsEveryTextBack();
    void everyTextIsTranslatedInTheFormsContext();
    void retranslationKeepsSelectionsAndSorting();
    void retranslationLeavesTheKeepListsAlone();

    void slotsAreBoundByName();

private:
    template<class T>
    T *find(const char *object, const QWidget *window = nullptr) const
    {
        return (window != nullptr ? window : &form)->findChild<T *>(str(object));
    }

    QStringList namedWidgets() const;
    static QStringList textDifferences(const QWidget &window, const QString &prefix);

    struct StyleFirst
    {
        StyleFirst() { QApplication::setStyle(new OddStyle); }
    } styleFirst;
    FormWindow form; ///< only looked at; a test that changes something makes its own
};

/** Names of the form's own widgets; the toolkit's inner ones have none, or one that starts with "qt_", or are a tab
 * bar's. */
QStringList FormTest::namedWidgets() const
{
    QStringList found;
    const QList<QWidget *> widgets = form.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const bool isInner = qobject_cast<const QTabBar *>(widget->parentWidget()) != nullptr
                             || widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"_L1);
        if (!isInner)
            found << widget->objectName();
    }
    found.sort();
    return found;
}

void FormTest::initTestCase()
{
    // Were the metrics of the odd style not in force, a margin could be set and still look like the style's own.
    QCOMPARE(form.style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, &form), int(OddStyle::left));
    QCOMPARE(form.style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, &form), int(OddStyle::vertical));
}

void FormTest::windowHasItsSettings()
{
    QCOMPARE(form.objectName(), u"KestruneClass"_s);
    QCOMPARE(form.size(), QSize(800, 640));
    QCOMPARE(form.minimumSize(), QSize(800, 640));
    QCOMPARE(form.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(policyText(form.sizePolicy()), u"Expanding Expanding"_s);
    QCOMPARE(form.acceptDrops(), false);
    QCOMPARE(form.locale(), QLocale(QLocale::English, QLocale::UnitedStates));
    QVERIFY(form.testAttribute(Qt::WA_SetLocale));
    QCOMPARE(form.iconSize(), QSize(32, 32));
    QCOMPARE(form.isAnimated(), false);
    QCOMPARE(form.windowTitle(), u"Kestrune"_s);
    QVERIFY(!form.testAttribute(Qt::WA_SetFont));
    QCOMPARE(form.centralWidget(), form.ui.centralWidget);
}

void FormTest::windowKeepsAnObjectNameOfItsOwn()
{
    QMainWindow window;
    window.setObjectName(u"other"_s);
    Ui::KestruneClass ui;
    ui.setupUi(&window);
    QCOMPARE(window.objectName(), u"other"_s);
}

void FormTest::widgetStandsInItsParent_data()
{
    addColumns<QString, QString>("className", "parent");
    for (const WidgetRow &row : widgetRows)
        QTest::newRow(row.object) << str(row.className) << str(row.parent);
}

void FormTest::widgetStandsInItsParent()
{
    QFETCH(const QString, className);
    QFETCH(const QString, parent);
    const auto *widget = find<QWidget>(QTest::currentDataTag());
    QVERIFY(widget != nullptr);
    QCOMPARE(str(widget->metaObject()->className()), className);
    QCOMPARE(widget->parentWidget()->objectName(), parent);
}

void FormTest::noWidgetBeyondTheTable()
{
    QStringList told;
    for (const WidgetRow &row : widgetRows)
        told << str(row.object);
    told.sort();
    QCOMPARE(namedWidgets(), told);
}

void FormTest::pagesAreInOrder()
{
    const QTabWidget &pages = *form.ui.tabWidget;
    QCOMPARE(pages.count(), int(std::size(pageRows)));
    for (int index = 0; index < pages.count(); ++index) {
        QCOMPARE(pages.widget(index)->objectName(), str(pageRows[index]));
        QCOMPARE(pages.tabText(index), QString());
        QVERIFY(pages.tabIcon(index).isNull());
        QCOMPARE(pages.tabToolTip(index), QString());
    }
    QCOMPARE(pages.currentIndex(), 0);
    QVERIFY2(!pages.tabBar()->isHidden(), "the window hides the tab bar, not the form");
}

void FormTest::layoutHasItsMarginsAndSpacing_data()
{
    QTest::addColumn<const LayoutRow *>("row");
    for (const LayoutRow &row : layoutRows)
        QTest::newRow(row.object) << &row;
}

void FormTest::layoutHasItsMarginsAndSpacing()
{
    QFETCH(const LayoutRow *, row);
    auto *layout = find<QLayout>(row->object);
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->metaObject()->className(), row->className);
    QCOMPARE(layout->parent()->objectName(), str(row->parent));

    const auto orStyle = [](int told, int styles) { return told == unset ? styles : told; };
    QCOMPARE(layout->contentsMargins(),
             QMargins(orStyle(row->left, OddStyle::left), orStyle(row->top, OddStyle::top),
                      orStyle(row->right, OddStyle::right), orStyle(row->bottom, OddStyle::bottom)));
    if (const auto *grid = qobject_cast<QGridLayout *>(layout)) {
        QCOMPARE(grid->horizontalSpacing(), orStyle(row->horizontal, OddStyle::horizontal));
        QCOMPARE(grid->verticalSpacing(), orStyle(row->vertical, OddStyle::vertical));
        for (int column = 0; column < grid->columnCount(); ++column)
            QCOMPARE(grid->columnStretch(column), 0);
        for (int line = 0; line < grid->rowCount(); ++line)
            QCOMPARE(grid->rowStretch(line), 0);
    } else {
        const bool vertical = qobject_cast<QVBoxLayout *>(layout) != nullptr;
        QCOMPARE(layout->spacing(), orStyle(row->vertical, vertical ? OddStyle::vertical : OddStyle::horizontal));
    }
}

void FormTest::noLayoutBeyondTheTable()
{
    QStringList told;
    for (const LayoutRow &row : layoutRows)
        told << str(row.object);
    QStringList found;
    const QList<QLayout *> layouts = form.findChildren<QLayout *>();
    for (const QLayout *layout : layouts) {
        const QString owner = layout->parent()->objectName();
        if (layout->parent() != &form && !owner.isEmpty() && !owner.startsWith("qt_"_L1))
            found << layout->objectName();
    }
    told.sort();
    found.sort();
    QCOMPARE(found, told);
}

void FormTest::optionsPageHasNoLayout()
{
    QVERIFY(form.ui.wgtOptions->layout() == nullptr);
    QVERIFY(form.ui.frame->layout() == nullptr);
}

void FormTest::widgetLiesInItsCell_data()
{
    QTest::addColumn<const CellRow *>("row");
    for (const CellRow &row : cellRows)
        QTest::newRow(row.object) << &row;
}

void FormTest::widgetLiesInItsCell()
{
    QFETCH(const CellRow *, row);
    auto *grid = find<QGridLayout>(row->layout);
    QVERIFY(grid != nullptr);
    QStringList places;
    for (int index = 0; index < grid->count(); ++index) {
        if (itemName(*grid->itemAt(index)) == str(row->object)) {
            places << text(placeOf(*grid, index));
            QCOMPARE(grid->itemAt(index)->alignment(), Qt::Alignment());
        }
    }
    QCOMPARE(places.join(u"; "_s), text(Place{row->row, row->column, 1, row->columns}));
}

void FormTest::spacerLiesInItsCell_data()
{
    QTest::addColumn<const SpacerRow *>("row");
    for (const SpacerRow &row : spacerRows)
        QTest::addRow("%s, row %d", row.layout, row.row) << &row;
}

void FormTest::spacerLiesInItsCell()
{
    QFETCH(const SpacerRow *, row);
    auto *grid = find<QGridLayout>(row->layout);
    QVERIFY(grid != nullptr);
    QLayoutItem *item = grid->itemAtPosition(row->row, row->column);
    QVERIFY(item != nullptr);
    const QSpacerItem *spacer = item->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(text(placeOf(*grid, grid->indexOf(item))), text(Place{row->row, row->column, 1, 1}));
    QCOMPARE(spacer->sizeHint(), QSize(row->width, row->height));
    QCOMPARE(policyText(spacer->sizePolicy()), u"Minimum Fixed"_s);
}

void FormTest::gridHoldsNothingElse()
{
    QMap<QString, int> told;
    for (const CellRow &row : cellRows)
        ++told[str(row.layout)];
    for (const SpacerRow &row : spacerRows)
        ++told[str(row.layout)];
    QMap<QString, int> found;
    for (const LayoutRow &row : layoutRows) {
        if (const auto *grid = find<QGridLayout>(row.object))
            found[str(row.object)] = grid->count();
    }
    QCOMPARE(found, told);
}

void FormTest::boxHoldsItsWidgetsInOrder_data()
{
    QTest::addColumn<QString>("objects");
    for (const BoxRow &row : boxRows)
        QTest::newRow(row.layout) << str(row.objects);
}

void FormTest::boxHoldsItsWidgetsInOrder()
{
    QFETCH(const QString, objects);
    const auto *box = find<QBoxLayout>(QTest::currentDataTag());
    QVERIFY(box != nullptr);
    QStringList found;
    for (int index = 0; index < box->count(); ++index) {
        found << itemName(*box->itemAt(index));
        QCOMPARE(box->stretch(index), 0);
    }
    QCOMPARE(found.join(u' '), objects);
}

void FormTest::rectangleIsFixed_data()
{
    QTest::addColumn<QRect>("rectangle");
    for (const RectangleRow &row : rectangleRows)
        QTest::newRow(row.object) << QRect(row.x, row.y, row.width, row.height);
}

void FormTest::rectangleIsFixed()
{
    QFETCH(const QRect, rectangle);
    QCOMPARE(find<QWidget>(QTest::currentDataTag())->geometry(), rectangle);
}

void FormTest::widgetHasItsSettings_data()
{
    QTest::addColumn<QString>("className");
    for (const WidgetRow &row : widgetRows)
        QTest::newRow(row.object) << str(row.className);
}

void FormTest::widgetHasItsSettings()
{
    QFETCH(const QString, className);
    const auto *widget = find<QWidget>(QTest::currentDataTag());
    QVERIFY(widget != nullptr);

    QMap<QString, QString> told;
    if (className == "QPushButton"_L1 || className == "QCheckBox"_L1)
        told[u"focusPolicy"_s] = u"NoFocus"_s;
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        told[u"count"_s] = QString::number(box->count()); // the items have a table of their own
    if (qobject_cast<const QTabWidget *>(widget) != nullptr)
        told[u"count"_s] = QString::number(std::size(pageRows));
    if (widget == form.ui.scrollAreaWidgetContents)
        told[u"autoFillBackground"_s] = u"true"_s; // a scroll area wants it so
    for (const GroupSettingRow &row : groupSettingRows) {
        if (names(row.objects).contains(widget->objectName()))
            told[str(row.property)] = str(row.value);
    }
    for (const SettingRow &row : settingRows) {
        if (str(row.object) == widget->objectName())
            told[str(row.property)] = str(row.value);
    }

    const std::unique_ptr<QWidget> plain = newWidget(className);
    QStringList differences;
    for (const char *name : checkedProperties) {
        const std::optional<QString> found = settingText(*widget, name);
        if (!found)
            continue;
        const auto row = told.constFind(str(name));
        const QString expected = row != told.constEnd() ? *row : *settingText(*plain, name);
        if (*found != expected)
            differences << u"%1 is \"%2\" in place of \"%3\""_s.arg(str(name), *found, expected);
        told.remove(str(name));
    }
    QCOMPARE(differences.join(u"; "_s), QString());
    QCOMPARE(QStringList(told.keys()).join(u' '), QString()); // rows that no check reached
}

void FormTest::fontIsSet_data()
{
    QTest::addColumn<const FontRow *>("row");
    for (const WidgetRow &widget : widgetRows) {
        const FontRow *itsRow = nullptr;
        for (const FontRow &row : fontRows) {
            if (names(row.objects).contains(str(widget.object)))
                itsRow = &row;
        }
        if (qstrcmp(widget.object, "centralWidget") != 0)
            QTest::newRow(widget.object) << itsRow;
    }
}

void FormTest::fontIsSet()
{
    QFETCH(const FontRow *, row);
    // A font with nothing usual in it, so that what is inherited shows.
    QFont expected(u"Inherited"_s, 33, QFont::Light, true);
    expected.setKerning(false);
    expected.setStyleStrategy(QFont::NoAntialias);
    FormWindow window;
    window.ui.centralWidget->setFont(expected);

    if (row != nullptr) {
        if (row->family != nullptr)
            expected.setFamilies({str(row->family)});
        if (row->points != inherited)
            expected.setPointSize(row->points);
        if (row->bold)
            expected.setBold(true);
        expected.setUnderline(row->underlined);
        expected.setKerning(row->kerning);
        expected.setStyleStrategy(QFont::PreferAntialias);
    }
    const QFont font = find<QWidget>(QTest::currentDataTag(), &window)->font();
    QCOMPARE(font.families(), expected.families());
    QCOMPARE(font.toString(), expected.toString());
    QCOMPARE(font.underline(), expected.underline());
    QCOMPARE(font.kerning(), expected.kerning());
    QCOMPARE(font.styleStrategy(), expected.styleStrategy());
}

void FormTest::centralFontPrefersAntialiasing()
{
    QCOMPARE(form.ui.centralWidget->font().styleStrategy(), QFont::PreferAntialias);
    QFont others = form.ui.centralWidget->font();
    others.setStyleStrategy(form.font().styleStrategy());
    QCOMPARE(others.toString(), form.font().toString());
}

void FormTest::textIsAsTold_data()
{
    QTest::addColumn<QString>("text");
    for (const TextRow &row : textRows)
        QTest::newRow(row.object) << str(row.text);
}

void FormTest::textIsAsTold()
{
    QFETCH(const QString, text);
    QCOMPARE(find<QWidget>(QTest::currentDataTag())->property("text").toString(), text);
}

void FormTest::noTextBeyondTheTable()
{
    QStringList told;
    for (const TextRow &row : textRows)
        told << str(row.object);
    QStringList found;
    for (const WidgetRow &row : widgetRows) {
        const auto *widget = find<QWidget>(row.object);
        if (qobject_cast<const QLabel *>(widget) != nullptr || qobject_cast<const QAbstractButton *>(widget) != nullptr)
            found << str(row.object);
    }
    told.sort();
    found.sort();
    QCOMPARE(found, told);
}

void FormTest::comboHasItsItems_data()
{
    QTest::addColumn<QStringList>("items");
    for (const ListRow &row : comboRows)
        QTest::newRow(row.object) << rowTexts(row.texts);
}

void FormTest::comboHasItsItems()
{
    QFETCH(const QStringList, items);
    QCOMPARE(comboTexts(*find<QComboBox>(QTest::currentDataTag())), items);
}

void FormTest::tableHasItsHeader_data()
{
    QTest::addColumn<QStringList>("texts");
    for (const ListRow &row : headerRows)
        QTest::newRow(row.object) << rowTexts(row.texts);
}

void FormTest::tableHasItsHeader()
{
    QFETCH(const QStringList, texts);
    const auto *table = find<QTableWidget>(QTest::currentDataTag());
    QCOMPARE(headerTexts(*table), texts);
    for (int column = 0; column < table->columnCount(); ++column)
        QCOMPARE(Qt::Alignment(table->horizontalHeaderItem(column)->textAlignment()), Qt::AlignLeft | Qt::AlignVCenter);
}

void FormTest::onlyTheServicesHaveASortIndicatorOnTheRows()
{
    QVERIFY(form.ui.tblSvc->verticalHeader()->isSortIndicatorShown());
    for (const QTableWidget *table : {form.ui.tblTasks, form.ui.tblAutorun, form.ui.tblPackages})
        QVERIFY2(!table->verticalHeader()->isSortIndicatorShown(), qUtf8Printable(table->objectName()));
}

void FormTest::richTextHasItsLines_data()
{
    QTest::addColumn<QString>("lines");
    for (const ListRow &row : richTextRows)
        QTest::newRow(row.object) << str(row.texts);
}

void FormTest::richTextHasItsLines()
{
    QFETCH(const QString, lines);
    QCOMPARE(find<QTextBrowser>(QTest::currentDataTag())->toPlainText(), lines);
}

void FormTest::richTextSpanIsStyled_data()
{
    QTest::addColumn<const SpanRow *>("row");
    for (const SpanRow &row : spanRows)
        QTest::addRow("%s: %s", row.object, row.text) << &row;
}

void FormTest::richTextSpanIsStyled()
{
    QFETCH(const SpanRow *, row);
    const auto *browser = find<QTextBrowser>(row->object);
    const QTextCursor found = browser->document()->find(str(row->text), 0, QTextDocument::FindCaseSensitively);
    QVERIFY2(!found.isNull(), "no such words");
    for (int place = found.selectionStart() + 1; place <= found.selectionEnd(); ++place) {
        QTextCursor letter(found);
        letter.setPosition(place);
        const QTextCharFormat format = letter.charFormat();
        const QFont font = format.font();
        if (row->family != nullptr)
            QCOMPARE(font.families(), QStringList(str(row->family)));
        if (row->points != 0)
            QCOMPARE(font.pointSize(), row->points);
        QCOMPARE(font.bold(), row->bold);
        QCOMPARE(font.underline(), row->underlined);
        QCOMPARE(format.hasProperty(QTextFormat::ForegroundBrush), row->themed);
        if (row->themed)
            QCOMPARE(format.foreground().color(), QColor(Qt::black));
        QCOMPARE(format.anchorHref(), row->target != nullptr ? str(row->target) : QString());
    }
}

void FormTest::themedColourIsWrittenInFull_data()
{
    QTest::addColumn<int>("places");
    QTest::newRow("txtGaming12") << 1;
    QTest::newRow("txtSsd8") << 1;
    QTest::newRow("txtGaming011") << 1;
    QTest::newRow("txtGaming11") << 1;
    QTest::newRow("txtInfo") << 6;
    QTest::newRow("txtAbout") << 4;
}

/** The theme recolours the words by replacing this text in the HTML. */
void FormTest::themedColourIsWrittenInFull()
{
    QFETCH(const int, places);
    auto *browser = find<QTextBrowser>(QTest::currentDataTag());
    QCOMPARE(browser->toHtml().count(u"color:#000000"_s), places);
}

void FormTest::reportIsATable()
{
    const QTextTable *table = onlyTable(*form.ui.txtInfo);
    QVERIFY(table != nullptr);
    QCOMPARE(table->rows(), 3);
    QCOMPARE(table->columns(), 2);
    QCOMPARE(table->format().cellSpacing(), 10.0);
    QCOMPARE(table->format().border(), 0.0);
}

void FormTest::reportCellHasItsLines_data()
{
    QTest::addColumn<const CellTextRow *>("row");
    for (const CellTextRow &row : reportRows)
        QTest::newRow(row.name) << &row;
}

void FormTest::reportCellHasItsLines()
{
    QFETCH(const CellTextRow *, row);
    const QTextTable *table = onlyTable(*form.ui.txtInfo);
    QVERIFY(table != nullptr);
    QCOMPARE(cellLines(table->cellAt(row->row, row->column)).join(u'\n'), str(row->lines));
}

/** The window fills the report in by taking its HTML, replacing marks, and putting it back. */
void FormTest::reportSurvivesBeingPutBack()
{
    FormWindow window;
    QTextBrowser &report = *window.ui.txtInfo;
    for (int round = 0; round < 3; ++round)
        report.setHtml(report.toHtml());
    QVERIFY(onlyTable(report) != nullptr);
    for (const CellTextRow &row : reportRows)
        QCOMPARE(cellLines(onlyTable(report)->cellAt(row.row, row.column)).join(u'\n'), str(row.lines));
    QCOMPARE(onlyTable(report)->format().cellSpacing(), 10.0);
    QCOMPARE(report.toHtml().count(u"color:#000000"_s), 6);

    report.setHtml(report.toHtml().replace(u"%winName"_s, u"Windows 11 Pro"_s));
    QVERIFY(report.toPlainText().contains(u"Windows 11 Pro"_s));
    QVERIFY(!report.toPlainText().contains(u"%winName"_s));
}

void FormTest::runTimeTextGivesWayToTheFormText_data()
{
    QTest::addColumn<QString>("runTimeText");
    for (const TextRow &row : runTimeTextRows)
        QTest::newRow(row.object) << str(row.text);
}

void FormTest::runTimeTextGivesWayToTheFormText()
{
    QFETCH(const QString, runTimeText);
    FormWindow window;
    auto *widget = find<QWidget>(QTest::currentDataTag(), &window);
    widget->setProperty("text", runTimeText);

    window.ui.retranslateUi(&window);

    const auto *row = std::find_if(std::begin(textRows), std::end(textRows), [](const TextRow &candidate) {
        return qstrcmp(candidate.object, QTest::currentDataTag()) == 0;
    });
    QVERIFY(row != std::end(textRows));
    QCOMPARE(widget->property("text").toString(), str(row->text));
}

/** Names of the widgets of a window whose texts aren't the form's texts after a prefix. */
QStringList FormTest::textDifferences(const QWidget &window, const QString &prefix)
{
    QStringList differences;
    const auto check = [&](const char *object, const QString &found, const QString &expected) {
        if (found != expected)
            differences << u"%1: \"%2\" in place of \"%3\""_s.arg(str(object), found, expected);
    };
    const auto prefixed = [&](const char *texts) {
        QStringList lines = rowTexts(texts);
        for (QString &line : lines)
            line.prepend(prefix);
        return lines.join(u'\n');
    };
    check("KestruneClass", window.windowTitle(), prefix + u"Kestrune"_s);
    for (const TextRow &row : textRows) {
        const QString found = window.findChild<QWidget *>(str(row.object))->property("text").toString();
        check(row.object, found, prefix + str(row.text));
    }
    for (const ListRow &row : comboRows) {
        const auto *box = window.findChild<QComboBox *>(str(row.object));
        check(row.object, comboTexts(*box).join(u'\n'), prefixed(row.texts));
    }
    for (const ListRow &row : headerRows) {
        const auto *table = window.findChild<QTableWidget *>(str(row.object));
        check(row.object, headerTexts(*table).join(u'\n'), prefixed(row.texts));
    }
    return differences;
}

void FormTest::retranslationBringsEveryTextBack()
{
    FormWindow window;
    window.setWindowTitle(u"CPU 12 %"_s);
    for (const TextRow &row : textRows)
        find<QWidget>(row.object, &window)->setProperty("text", u"changed"_s);
    for (const ListRow &row : comboRows) {
        auto *box = find<QComboBox>(row.object, &window);
        for (int index = 0; index < box->count(); ++index)
            box->setItemText(index, u"changed"_s);
    }
    for (const ListRow &row : headerRows) {
        auto *table = find<QTableWidget>(row.object, &window);
        for (int column = 0; column < table->columnCount(); ++column)
            table->horizontalHeaderItem(column)->setText(u"changed"_s);
    }
    const QList<QTextBrowser *> browsers = window.findChildren<QTextBrowser *>();
    for (QTextBrowser *browser : browsers)
        browser->setPlainText(u"changed"_s);

    window.ui.retranslateUi(&window);

    QCOMPARE(textDifferences(window, QString()).join(u'\n'), QString());
    for (const ListRow &row : richTextRows) {
        if (*row.texts != '\0')
            QCOMPARE(find<QTextBrowser>(row.object, &window)->toPlainText(), str(row.texts));
    }
    QCOMPARE(window.ui.txtInfo->toPlainText(), form.ui.txtInfo->toPlainText());
    QCOMPARE(window.ui.txtAutomatizer->toPlainText(), u"changed"_s); // the log isn't a text of the form
}

void FormTest::everyTextIsTranslatedInTheFormsContext()
{
    FormWindow window;
    Marker marker;
    QVERIFY(QCoreApplication::installTranslator(&marker));
    window.ui.retranslateUi(&window);
    QCOMPARE(textDifferences(window, u"§"_s).join(u'\n'), QString());
    for (const ListRow &row : richTextRows) {
        if (*row.texts != '\0')
            QVERIFY2(find<QTextBrowser>(row.object, &window)->toPlainText().startsWith(u'§'), row.object);
    }
    QVERIFY(window.ui.txtInfo->toPlainText().startsWith(u'§'));
    for (int index = 0; index < window.ui.tabWidget->count(); ++index)
        QCOMPARE(window.ui.tabWidget->tabText(index), QString());

    QCoreApplication::removeTranslator(&marker);
    window.ui.retranslateUi(&window);
    QCOMPARE(textDifferences(window, QString()).join(u'\n'), QString());
}

void FormTest::retranslationKeepsSelectionsAndSorting()
{
    FormWindow window;
    window.ui.tabWidget->setCurrentIndex(7);
    window.ui.cbOptionsLang->setCurrentIndex(1);
    window.ui.cbOptionsTheme->setCurrentIndex(2);
    window.ui.cbOptionsMonitorInterval->setCurrentIndex(5);
    window.ui.cbWin32PrioritySeparation->setCurrentIndex(0);
    window.ui.chkGaming3->setChecked(false);

    window.ui.retranslateUi(&window);

    QCOMPARE(window.ui.tabWidget->currentIndex(), 7);
    QCOMPARE(window.ui.cbOptionsLang->currentText(), u"Français"_s);
    QCOMPARE(window.ui.cbOptionsTheme->currentText(), u"System"_s);
    QCOMPARE(window.ui.cbOptionsMonitorInterval->currentText(), u"10"_s);
    QCOMPARE(window.ui.cbWin32PrioritySeparation->currentIndex(), 0);
    QVERIFY(!window.ui.chkGaming3->isChecked());
    QVERIFY(window.ui.tblSvc->isSortingEnabled());
    QVERIFY(window.ui.tblTasks->isSortingEnabled());
}

/** The lists are the window's: a retranslation must neither rename their rows nor tell of a change. */
void FormTest::retranslationLeavesTheKeepListsAlone()
{
    FormWindow window;
    QStandardItemModel model;
    model.appendRow(new QStandardItem(u"Keep features"_s));
    model.appendRow(new QStandardItem(u"Printer"_s));
    window.ui.cbAutorunFeatures->setModel(&model);
    window.ui.cbSvcFeatures->setModel(&model);
    const QSignalSpy changes(&model, &QStandardItemModel::dataChanged);

    window.ui.retranslateUi(&window);

    QCOMPARE(comboTexts(*window.ui.cbAutorunFeatures), QStringList({u"Keep features"_s, u"Printer"_s}));
    QCOMPARE(changes.count(), 0);
}

void FormTest::slotsAreBoundByName()
{
    FormWindow window;
    window.ui.btnMenuHome->click();
    window.ui.btnSvcDisable->click();
    window.ui.btnAutomatizerRestore->click();
    window.ui.btnTweakApply->click();
    window.ui.chkSsd7->click();
    QCOMPARE(window.calls.join(u' '), u"btnMenuHome btnSvcDisable btnAutomatizerRestore btnTweakApply chkSsd7"_s);
}

KESTRUNE_WINDOW_SUITE(FormTest)

#include "tst_form.moc"
