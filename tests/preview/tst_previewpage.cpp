// SPDX-License-Identifier: GPL-3.0-or-later
// The page of a preview in a real browser: opened from disk, searched, filtered, in light and dark, narrow and printed.

#include "support/smallmachine.h"
#include "support/suite.h"
#include "support/webdriver.h"

#include "preview/preview.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString servicesKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_s;

/** What the page shows at the moment: titles of items by their group. */
const QString shownTitles = uR"(
    return [...document.querySelectorAll('details')].filter(item => item.offsetHeight > 0)
        .map(item => item.querySelector('.title b').textContent);)"_s;

/** Texts whose contrast to what lies behind them is below 4.5, with the figure. */
const QString faintTexts = uR"(
    const parse = text => text.match(/[\d.]+/g).map(Number);
    const light = ([r, g, b]) => [r, g, b].map(c => c / 255)
        .map(c => c <= 0.04045 ? c / 12.92 : ((c + 0.055) / 1.055) ** 2.4)
        .reduce((sum, c, i) => sum + c * [0.2126, 0.7152, 0.0722][i], 0);
    const behind = element => {
        for (let at = element; at; at = at.parentElement) {
            const colour = parse(getComputedStyle(at).backgroundColor);
            if (colour.length < 4 || colour[3] > 0)
                return colour;
        }
        return [255, 255, 255];
    };
    const faint = new Set();
    for (const element of document.querySelectorAll('body *')) {
        const own = [...element.childNodes].some(node => node.nodeType === 3 && node.data.trim());
        if ((!own && element.localName !== 'input') || element.offsetHeight === 0)
            continue;
        const colours = [getComputedStyle(element).color];
        if (element.localName === 'input')
            colours.push(getComputedStyle(element, '::placeholder').color);
        for (const colour of colours) {
            const [a, b] = [light(parse(colour)), light(behind(element))].sort((x, y) => y - x);
            const contrast = (a + 0.05) / (b + 0.05);
            if (contrast < 4.5)
                faint.add(element.localName + '.' + element.className + ' ' + contrast.toFixed(2));
        }
    }
    return [...faint];)"_s;

QStringList texts(const QJsonValue &array)
{
    QStringList result;
    for (const QJsonValue value : array.toArray())
        result.append(value.toString());
    return result;
}

} // namespace

class TestPreviewPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void countsAreThoseOfTheReport();
    void asksForNothingAndComplainsOfNothing();
    void searchNarrowsToWhatHasAllWords();
    void searchThatFindsNothingSaysSo();
    void filtersByVerdictAndGroup();
    void worksByKeyboard();
    void itemOpensToItsValues();
    void readableInLightAndDark();
    void fitsNarrowAndWide_data();
    void fitsNarrowAndWide();
    void printsTheOverview();
    void marksInNamesAreText();
    void thousandsOfItemsAreSearched();

private:
    void openFile(const QString &path);
    void setMedia(const QString &media, const QString &scheme);
    void setWidth(int width);
    void keep(const QString &name, bool whole = false);
    QStringList titles() { return texts(browser_.run(shownTitles)); }

    QTemporaryDir folder_;
    WebDriver browser_;
    QJsonObject report_;
};

void TestPreviewPage::initTestCase()
{
    const QString problem = browser_.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));

    const QString machine = folder_.filePath(u"pc"_s);
    makeMachine(machine, QCoreApplication::applicationDirPath() + u"/machines/windows11"_s, Existing::Keep);
    const Ended ended = runProgram(builtProgram(u"kestrune-rehearse"_s),
                                   {u"preview"_s, machine, u"--html"_s, folder_.filePath(u"preview.html"_s),
                                    u"--json"_s, folder_.filePath(u"preview.json"_s)});
    QVERIFY2(ended.exitCode == 0, ended.errors.constData());
    QCOMPARE(QString::fromUtf8(ended.output).trimmed(), folder_.filePath(u"preview.html"_s));
    report_ = QJsonDocument::fromJson(readFile(folder_.filePath(u"preview.json"_s))).object();
    QVERIFY(report_[u"items"_s].toArray().size() > 100);
}

void TestPreviewPage::cleanupTestCase()
{
    QVERIFY2(browser_.stop(), "a process of the browser is left");
}

void TestPreviewPage::init()
{
    setWidth(1280);
    setMedia(QString(), u"light"_s);
    openFile(folder_.filePath(u"preview.html"_s));
}

void TestPreviewPage::openFile(const QString &path)
{
    browser_.open(QUrl::fromLocalFile(path));
}

/** An empty medium is the one that there is: the screen, or paper while it prints. */
void TestPreviewPage::setMedia(const QString &media, const QString &scheme)
{
    const QJsonObject feature{{u"name"_s, u"prefers-color-scheme"_s}, {u"value"_s, scheme}};
    browser_.command(u"Emulation.setEmulatedMedia"_s, {{u"media"_s, media}, {u"features"_s, QJsonArray{feature}}});
}

void TestPreviewPage::setWidth(int width)
{
    browser_.command(u"Emulation.setDeviceMetricsOverride"_s,
                     {{u"width"_s, width}, {u"height"_s, 1000}, {u"deviceScaleFactor"_s, 1}, {u"mobile"_s, false}});
}

/** Saves a picture, for people, into the build folder. */
void TestPreviewPage::keep(const QString &name, bool whole)
{
    const QDir pictures(QCoreApplication::applicationDirPath() + u"/../pictures/preview"_s);
    QVERIFY(pictures.mkpath(u"."_s));
    writeFile(pictures.filePath(name + u".png"_s), browser_.screenshot(whole));
}

void TestPreviewPage::countsAreThoseOfTheReport()
{
    const QJsonObject shown = browser_
                                  .run(uR"(
        return Object.fromEntries([...document.querySelectorAll('[data-count]')]
            .map(count => [count.dataset.count, Number(count.textContent)]));)"_s)
                                  .toObject();
    QCOMPARE(shown, report_[u"counts"_s].toObject());
    QVERIFY(shown[u"exactly"_s].toInt() > 0);
    const int items = static_cast<int>(report_[u"items"_s].toArray().size());
    QCOMPARE(titles().size(), items);
    int counted = 0;
    for (const QString &verdict : shown.keys())
        counted += shown.value(verdict).toInt();
    // What the counts leave out is said where both can be compared.
    const QString found = u"return document.getElementById('found').textContent"_s;
    const QString said =
        u"%1 items: %2 changes, and %3 of Kestrune's own records, which the counts above leave out"_s.arg(items)
            .arg(counted)
            .arg(items - counted);
    QVERIFY(items > counted);
    QCOMPARE(browser_.run(found).toString(), said);
    browser_.type(u"#search"_s, u"trkwks distributed"_s);
    QCOMPARE(browser_.run(found).toString(), u"1 of %1 items"_s.arg(items));
    browser_.type(u"#search"_s, u" "_s);
    QCOMPARE(browser_.run(found).toString(), said);
    keep(u"light"_s);
}

void TestPreviewPage::asksForNothingAndComplainsOfNothing()
{
    QCOMPARE(browser_.run(u"return performance.getEntriesByType('resource').length"_s).toInt(-1), 0);
    QCOMPARE(browser_.console(), QStringList());
    // Its policy: even a script that got in couldn't send anything.
    browser_.run(uR"(
        const picture = document.createElement('img');
        picture.src = 'file:///etc/hostname';
        document.body.append(picture);
        const script = document.createElement('script');
        script.textContent = 'document.title = "taken"';
        document.body.append(script);)"_s);
    QVERIFY(browser_.run(u"return document.title"_s).toString() != "taken"_L1);
    QVERIFY(browser_.console().join(u'\n').contains(u"Content Security Policy"_s));
}

void TestPreviewPage::searchNarrowsToWhatHasAllWords()
{
    browser_.type(u"#search"_s, u"DISTRIBUTED  trkwks"_s);
    QCOMPARE(titles(), QStringList(u"Distributed Link Tracking Client"_s));
    QVERIFY(browser_.run(u"return document.getElementById('found').textContent"_s).toString().startsWith(u"1 of "_s));
    keep(u"searched"_s);

    // What only stands in a closed item's values is found too.
    browser_.type(u"#search"_s, u"SvcHostSplitThresholdInKB"_s);
    QVERIFY(titles().contains(u"Disable SvcHost splitting"_s));
    browser_.type(u"#search"_s, u" "_s);
    QCOMPARE(titles().size(), report_[u"items"_s].toArray().size());
}

void TestPreviewPage::searchThatFindsNothingSaysSo()
{
    const QString hidden = u"return document.getElementById('nothing').offsetHeight === 0"_s;
    QVERIFY(browser_.run(hidden).toBool());
    browser_.type(u"#search"_s, u"no such thing"_s);
    QCOMPARE(titles(), QStringList());
    QVERIFY(!browser_.run(hidden).toBool());
    QVERIFY(browser_.run(u"return document.body.innerText"_s).toString().contains(u"Nothing found."_s));
    browser_.click(u"#again"_s);
    QVERIFY(browser_.run(hidden).toBool());
    QCOMPARE(titles().size(), report_[u"items"_s].toArray().size());
}

void TestPreviewPage::filtersByVerdictAndGroup()
{
    const auto expected = [this](const QString &verdict, const QString &group) {
        QStringList list;
        for (const QJsonValue item : report_[u"items"_s].toArray()) {
            const bool ofVerdict = verdict.isEmpty() || item[u"comesBack"_s].toString() == verdict;
            if (ofVerdict && (group.isEmpty() || item[u"group"_s].toString() == group))
                list.append(item[u"title"_s].toString());
        }
        return list;
    };
    browser_.click(u"button[data-value=services]"_s);
    QCOMPARE(titles(), expected({}, u"Services"_s));
    browser_.click(u"button[data-value=not-at-all]"_s);
    QCOMPARE(titles(), expected(u"not-at-all"_s, u"Services"_s));
    QVERIFY(!titles().isEmpty());
    QCOMPARE(browser_.run(u"return document.querySelectorAll('[aria-pressed=true]').length"_s).toInt(), 2);
    keep(u"filtered"_s);
    // The same buttons again take the filters away.
    browser_.click(u"button[data-value=not-at-all]"_s);
    browser_.click(u"button[data-value=services]"_s);
    QCOMPARE(titles(), expected({}, {}));
}

void TestPreviewPage::worksByKeyboard()
{
    browser_.run(u"document.querySelector('details summary').focus()"_s);
    browser_.command(
        u"Input.dispatchKeyEvent"_s,
        {{u"type"_s, u"keyDown"_s}, {u"key"_s, u"Enter"_s}, {u"text"_s, u"\r"_s}, {u"windowsVirtualKeyCode"_s, 13}});
    browser_.command(u"Input.dispatchKeyEvent"_s, {{u"type"_s, u"keyUp"_s}, {u"key"_s, u"Enter"_s}});
    QVERIFY(browser_.run(u"return document.querySelector('details').open"_s).toBool());
    // Everything that can be used has a name, also for who can't see it.
    QCOMPARE(browser_
                 .run(uR"(
        return [...document.querySelectorAll('button, input, summary')]
            .filter(e => !(e.textContent.trim() || e.labels?.length)).length)"_s)
                 .toInt(-1),
             0);
    QCOMPARE(browser_.run(u"return document.documentElement.lang"_s).toString(), u"en"_s);
}

void TestPreviewPage::itemOpensToItsValues()
{
    browser_.type(u"#search"_s, u"MapsBroker"_s);
    const QString table = u"return document.querySelector('details:not([hidden]) table').innerText"_s;
    browser_.click(u"details:not([hidden]) summary"_s);
    const QString text = browser_.run(table).toString();
    QVERIFY2(text.contains(servicesKey + u"MapsBroker\\Start"_s), qPrintable(text));
    QVERIFY2(text.contains(u"automatic"_s) && text.contains(u"manual"_s), qPrintable(text));
    const QString page = browser_.run(u"return document.body.innerText"_s).toString();
    QVERIFY(page.contains(u"Optimize does not record services that it sets to manual"_s));
    keep(u"opened"_s);

    browser_.click(u"#again, #open"_s);
    QCOMPARE(browser_.run(u"return document.querySelectorAll('details:not([hidden])[open]').length"_s).toInt(), 0);
}

void TestPreviewPage::readableInLightAndDark()
{
    QStringList backgrounds;
    for (const QString &scheme : {u"light"_s, u"dark"_s}) {
        setMedia(QString(), scheme);
        browser_.run(u"for (const item of document.querySelectorAll('details')) item.open = true;"
                     "document.querySelector('[data-value=services]').setAttribute('aria-pressed', 'true')"_s);
        backgrounds.append(browser_.run(u"return getComputedStyle(document.body).backgroundColor"_s).toString());
        QCOMPARE(texts(browser_.run(faintTexts)), QStringList());
        keep(u"opened-"_s + scheme);
    }
    QVERIFY(backgrounds.first() != backgrounds.last());
    setMedia(QString(), u"dark"_s);
    openFile(folder_.filePath(u"preview.html"_s));
    keep(u"dark"_s);
}

void TestPreviewPage::fitsNarrowAndWide_data()
{
    QTest::addColumn<int>("width");
    for (const int width : {360, 700, 1280})
        QTest::addRow("%d", width) << width;
}

void TestPreviewPage::fitsNarrowAndWide()
{
    QFETCH(int, width);
    setWidth(width);
    keep(u"width-%1"_s.arg(width));
    const QString tooWide = u"return document.documentElement.scrollWidth"_s;
    QCOMPARE(browser_.run(tooWide).toInt(), width);
    browser_.run(u"for (const item of document.querySelectorAll('details')) item.open = true"_s);
    QCOMPARE(browser_.run(tooWide).toInt(), width);
    browser_.run(u"document.querySelector('details').scrollIntoView()"_s);
    keep(u"width-%1-opened"_s.arg(width));
}

void TestPreviewPage::printsTheOverview()
{
    const auto print = [this] {
        return QByteArray::fromBase64(
            browser_.command(u"Page.printToPDF"_s, {{u"printBackground"_s, false}})[u"data"_s].toString().toLatin1());
    };
    const QByteArray whole = print();
    QVERIFY(whole.startsWith("%PDF"));
    // A page that was searched, and on which an item is open, is printed the same.
    browser_.type(u"#search"_s, u"trkwks distributed"_s);
    browser_.run(u"document.querySelector('details:not([hidden])').open = true"_s);
    const QByteArray searched = print();
    QCOMPARE(searched.count("/Type /Page\n"), whole.count("/Type /Page\n"));
    writeFile(QCoreApplication::applicationDirPath() + u"/../pictures/preview/printed.pdf"_s, searched);
    QCOMPARE(titles(), QStringList(u"Distributed Link Tracking Client"_s));

    setMedia(u"print"_s, u"dark"_s);
    QCOMPARE(titles().size(), report_[u"items"_s].toArray().size());
    QCOMPARE(browser_
                 .run(uR"(
        return [...document.querySelectorAll('details')].filter(e => e.querySelector('.body').offsetHeight > 0).length)"_s)
                 .toInt(-1),
             0);
    // The head of a table with this display stands on each page that the table goes over.
    QCOMPARE(browser_
                 .run(uR"(
        return [...document.querySelectorAll('section')].filter(section =>
            getComputedStyle(section.querySelector('thead')).display !== 'table-header-group'
            || section.querySelector('thead .columns').offsetHeight === 0).length)"_s)
                 .toInt(-1),
             0);
    QCOMPARE(browser_.run(u"return getComputedStyle(document.body).backgroundColor"_s).toString(),
             u"rgb(255, 255, 255)"_s);
    QCOMPARE(texts(browser_.run(faintTexts)), QStringList());
}

void TestPreviewPage::marksInNamesAreText()
{
    const QString name = u"<script>document.title='taken'</script>&amp;\"'>"_s;
    SmallMachine before;
    SmallMachine optimized;
    SmallMachine restored;
    for (SmallMachine *machine : {&before, &optimized, &restored}) {
        RegistryStore &registry = (*machine)->registry();
        const auto key = *registry.make(servicesKey + name);
        const quint32 start = machine == &optimized ? 4 : 2;
        registry.setValue(key, {u"Start"_s, RegistryType::DWord, registryDWord(start)});
        registry.setValue(key, {u"DisplayName"_s, RegistryType::String, registryText(u"<b>bold</b> & <img src=x>"_s)});
        registry.setValue(key, {u"Description"_s, RegistryType::String, registryText(u"%1 %2 </details>"_s)});
    }
    const QString file = folder_.filePath(u"marks.html"_s);
    writeFile(file, previewHtml(previewItems(*before, *optimized, *restored), u"<i>pc</i>"_s).toUtf8());
    openFile(file);

    QCOMPARE(titles(), QStringList(u"<b>bold</b> & <img src=x>"_s));
    const QString text = browser_.run(u"return document.body.innerText"_s).toString();
    QVERIFY2(text.contains(name) && text.contains(u"%1 %2 </details>"_s) && text.contains(u"<i>pc</i>"_s),
             qPrintable(text));
    QVERIFY(browser_.run(u"return document.title"_s).toString() != "taken"_L1);
    QCOMPARE(browser_.run(u"return document.querySelectorAll('details img, details script').length"_s).toInt(-1), 0);
    QCOMPARE(browser_.console(), QStringList());
}

void TestPreviewPage::thousandsOfItemsAreSearched()
{
    constexpr int count = 5000;
    QList<PreviewItem> items;
    for (int i = 0; i < count; ++i) {
        PreviewItem item{PreviewGroup::Services, u"Service %1"_s.arg(i), u"Does something"_s, u"svc%1"_s.arg(i), {}};
        for (const QString &what : {u"start mode"_s, u"state"_s, u"delayed start"_s})
            item.details.append({what, servicesKey + item.name, u"a"_s, u"b"_s, u"a"_s, Restorability::Exactly});
        items.append(item);
    }
    const QString file = folder_.filePath(u"many.html"_s);
    writeFile(file, previewHtml(items, u"pc"_s).toUtf8());
    openFile(file);
    browser_.type(u"#search"_s, u"svc4711"_s);
    QCOMPARE(titles(), QStringList(u"Service 4711"_s));
}

KESTRUNE_SUITE(TestPreviewPage)
#include "tst_previewpage.moc"
