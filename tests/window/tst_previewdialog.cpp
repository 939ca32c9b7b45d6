// SPDX-License-Identifier: GPL-3.0-or-later
// The preview of Optimize in the window: what its dialog shows, and how it ends.

#include "machine/source/regfile.h"
#include "preview/previewtexts.h"
#include "support/accessibletree.h"
#include "support/boxes.h"
#include "support/files.h"
#include "support/suite.h"
#include "support/windowdriver.h"
#include "window/previewdialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int optionsPage = 7;

/** What the next click on the button is given. */
PreviewPlace nextPlace;

PreviewPlace placeOf(const TestMachine &machine)
{
    return {.program = QCoreApplication::applicationDirPath() + u"/kestrune-rehearse"_s, .machine = machine.folder()};
}

/** A machine with a service that Optimize disables, and one that it leaves alone. */
class PreviewedPc : public TestMachine
{
public:
    PreviewedPc()
    {
        add({.name = u"FontCache"_s, .start = StartAutomatic, .running = true, .displayName = u"Fonts of this PC"_s});
        add({.name = u"Other"_s, .start = StartAutomatic, .running = true});
    }
};

/** The dialog, driven by the names of its widgets. */
class Preview
{
public:
    Preview(const WindowDriver &driver, const PreviewPlace &place)
    {
        nextPlace = place;
        driver.window().previewPlace = [] { return nextPlace; };
        driver.window().showPage(optionsPage);
        driver.click(u"btnOptionsPreview"_s);
        nextPlace.hold.reset();
        dialog_ = driver.window().findChild<PreviewDialog *>();
    }

    bool isOpen() const { return dialog_ != nullptr && dialog_->isVisible(); }
    PreviewDialog &operator*() const { return *dialog_; }
    /** Waits until it has ended in one way or another. */
    bool isIdle() const
    {
        return QTest::qWaitFor([this] { return dialog_ == nullptr || get<QProgressBar>(u"pgrPreview"_s)->isHidden(); },
                               patience);
    }
    template<typename Widget>
    Widget *get(const QString &name) const
    {
        auto *widget = dialog_->findChild<Widget *>(name);
        if (widget == nullptr)
            qFatal("the dialog has no %s", qUtf8Printable(name));
        return widget;
    }
    QString text(const QString &label) const { return get<QLabel>(label)->text(); }
    QTreeWidget *items() const { return get<QTreeWidget>(u"lstPreview"_s); }
    void close() const { QTest::mouseClick(get<QPushButton>(u"btnClose"_s), Qt::LeftButton); }

    QStringList groups() const
    {
        QStringList titles;
        for (int i = 0; i < items()->topLevelItemCount(); ++i)
            titles.append(items()->topLevelItem(i)->text(0));
        return titles;
    }
    /** The row of that text; null where there is none. */
    QTreeWidgetItem *row(const QString &text) const
    {
        return items()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

private:
    QPointer<PreviewDialog> dialog_;
};

/** All columns. */
QStringList textsOf(const QTreeWidgetItem *row)
{
    QStringList texts;
    for (int column = 0; row != nullptr && column < row->columnCount(); ++column)
        texts.append(row->text(column));
    return texts;
}

/** All rows of a tree, those below others too. */
QList<QTreeWidgetItem *> allRows(const QTreeWidget *tree)
{
    QList<QTreeWidgetItem *> rows;
    for (QTreeWidgetItemIterator row(const_cast<QTreeWidget *>(tree)); *row != nullptr; ++row)
        rows.append(*row);
    return rows;
}

/** The English texts that are others in a language. */
QSet<QString> translatedSources(const QString &language)
{
    QSet<QString> sources;
    QXmlStreamReader reader(readFile(QStringLiteral(KESTRUNE_TRANSLATIONS "/%1.ts").arg(language)));
    QString source;
    while (!reader.atEnd()) {
        if (!reader.readNextStartElement())
            continue;
        if (reader.name() == "source"_L1) {
            source = reader.readElementText(QXmlStreamReader::SkipChildElements);
        } else if (reader.name() == "translation"_L1) {
            if (reader.readElementText(QXmlStreamReader::SkipChildElements) != source)
                sources.insert(source);
        }
    }
    return sources;
}

QString registryOf(const TestMachine &machine)
{
    return writeRegistryScript(machine.machine().registry(), u"HKEY_CURRENT_USER"_s)
           + writeRegistryScript(machine.machine().registry(), u"HKEY_LOCAL_MACHINE"_s);
}

} // namespace

class TestPreviewDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatAPreviewIsMadeOfIsTranslated();
    void changesAreListedAndNothingIsChanged();
    void everythingHasAName();
    void everyTextHasItsRoom();
    void whatWasLookedAtWithoutRightsIsTold();
    void noWordOfItStaysEnglish();
    void searchShowsWhatHasTheText();
    void whatTheAutomatizerLeavesOutIsLeftOut();
    void cancelEndsIt();
    void theEndOfTheDialogEndsIt();
    void failuresAreTold_data();
    void failuresAreTold();
    void whatStandsAgainstItIsTold();
    void aCaptureComesFirst();
#ifndef Q_OS_WIN
    void theCopyIsTriedWhenItIsThere();
#endif
    void theFolderIsHeldUntilTheDialogIsClosed();
};

/** The dialog knows the groups of a preview by their titles. */
void TestPreviewDialog::whatAPreviewIsMadeOfIsTranslated()
{
    const QString texts = QString::fromUtf8(readFile(QStringLiteral(KESTRUNE_TRANSLATIONS "/de.ts")));
    for (const GroupTexts &group : allGroups())
        QVERIFY2(texts.contains(u"<source>%1</source>"_s.arg(group.title)), group.title.data());
}

void TestPreviewDialog::changesAreListedAndNothingIsChanged()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    driver.window().showPage(optionsPage);
    const QString before = registryOf(machine);
    const Preview preview(driver, placeOf(machine));
    QVERIFY(preview.isOpen());
    QCOMPARE(preview.text(u"lblPreview"_s), u"Trying it on a copy…"_s);
    QVERIFY(preview.isIdle());
    QCOMPARE(preview.text(u"lblPreview"_s),
             u"“Way back…” brings back more than Restore: what was noted before each change."_s);
    QCOMPARE((*preview).windowTitle(), u"Preview of Optimize"_s);
    QCOMPARE(preview.get<QProgressBar>(u"pgrPreview"_s)->accessibleName(), u"Trying it on a copy…"_s);
    QVERIFY(preview.groups().contains(u"Services"_s));
    for (int i = 0; i < preview.items()->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *group = preview.items()->topLevelItem(i);
        QCOMPARE(group->text(1), QString::number(group->childCount()));
        QVERIFY(group->isExpanded());
    }
    const QTreeWidgetItem *fonts = preview.row(u"Fonts of this PC"_s);
    QVERIFY(fonts != nullptr);
    QCOMPARE(textsOf(fonts), (QStringList{u"Fonts of this PC"_s, u"automatic, running"_s, u"disabled, stopped"_s,
                                          u"automatic, running"_s, u"exactly"_s}));
    QVERIFY(fonts->childCount() > 0);
    QVERIFY(preview.row(u"Other"_s) == nullptr);
    preview.items()->setCurrentItem(preview.row(u"Fonts of this PC"_s));
    QVERIFY2(preview.text(u"lblExplanation"_s).startsWith(u"FontCache\nWithout it: Programs may start"_s),
             qPrintable(preview.text(u"lblExplanation"_s)));
    static const QRegularExpression counts(
        u"\\A[^\n]+\n[1-9]\\d* come back exactly, \\d+ as a fixed value, \\d+ not at all, \\d+ are "
        "changed by Restore only\\.\\z"_s);
    QVERIFY2(counts.match(preview.text(u"lblCounts"_s)).hasMatch(), qPrintable(preview.text(u"lblCounts"_s)));
    QCOMPARE(registryOf(machine), before);
    QVERIFY(machine.commands().isEmpty());
    preview.close();
    QVERIFY(!preview.isOpen());
}

void TestPreviewDialog::everythingHasAName()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    const Preview preview(driver, placeOf(machine));
    QCOMPARE(unnamedIn(&*preview).join(u'\n'), QString());
    QVERIFY(preview.isIdle());
    preview.items()->expandAll();
    QCOMPARE(unnamedIn(&*preview).join(u'\n'), QString());
    preview.get<QLineEdit>(u"edtSearch"_s)->setText(u"Fonts"_s);
    QCOMPARE(unnamedIn(&*preview).join(u'\n'), QString());
}

void TestPreviewDialog::everyTextHasItsRoom()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    const Preview preview(driver, placeOf(machine));
    for (const QString &label : {u"lblCounts"_s, u"lblExplanation"_s, u"lblPreview"_s})
        QVERIFY(preview.get<QLabel>(label)->wordWrap());
    // The list stays where it is when the counts come, and when a row is explained.
    const int line = (*preview).fontMetrics().lineSpacing();
    QCOMPARE(preview.get<QLabel>(u"lblCounts"_s)->minimumHeight(), 2 * line);
    QCOMPARE(preview.get<QLabel>(u"lblExplanation"_s)->minimumHeight(), 4 * line);
    QCOMPARE(preview.items()->accessibleName(), u"Changes"_s);
    QCOMPARE(textsOf(preview.items()->headerItem()),
             (QStringList{u"What"_s, u"Now"_s, u"After Optimize"_s, u"After Restore"_s, u"Comes back"_s}));
    const QHeaderView *header = preview.items()->header();
    for (const auto &[column, width] : {std::pair(0, 300), std::pair(1, 190), std::pair(2, 170), std::pair(3, 190)})
        QCOMPARE(header->sectionSize(column), std::max(width, header->sectionSizeHint(column)));
}

void TestPreviewDialog::whatWasLookedAtWithoutRightsIsTold()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    PreviewPlace place = placeOf(machine);
    place.isWhole = false;
    const Preview preview(driver, place);
    QVERIFY(preview.isIdle());
    QCOMPARE(preview.text(u"lblPreview"_s),
             u"“Way back…” brings back more than Restore: what was noted before each change. "
             "This PC was looked at without Admin rights: what needs them is missing here."_s);
}

/** What the preview says of a thing in words of its own is looked up one by one. */
void TestPreviewDialog::noWordOfItStaysEnglish()
{
    PreviewedPc machine;
    const QString packages = u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\"
                             "CurrentVersion\\AppModel\\Repository\\Packages\\"_s;
    machine.write(packages + u"Microsoft.BingNews_1.0_x64__8wekyb3d8bbwe"_s, u"DisplayName"_s, u"News"_s);
    machine.write(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s, u"Tool"_s,
                  u"\"C:\\Tools\\tool.exe\" -x"_s);
    machine.addFile(u"C:\\Windows\\System32\\WindowsPowerShell\\v1.0\\powershell.exe"_s);
    machine.write(settingsKey, u"lang"_s, u"fr"_s);
    const WindowDriver driver;
    const Preview preview(driver, placeOf(machine));
    QVERIFY(preview.isIdle());
    QSet<QString> english = translatedSources(u"fr"_s);
    // Single words with a capital are the data of values, too.
    erase_if(english, [](const QString &text) { return text.front().isUpper() && !text.contains(u' '); });
    QVERIFY(english.contains(u"an empty key"_s) && english.contains(u"Restore doesn't touch this value."_s));
    static const QRegularExpression count(u"\\A\\d+ (values|changed|as before|otherwise|stay changed)\\z"_s);
    QSet<QString> said;
    int explained = 0;
    for (const QTreeWidgetItem *row : allRows(preview.items())) {
        for (const QString &text : textsOf(row)) {
            QStringList words = text.split(u", "_s);
            words.append(text);
            for (const QString &word : std::as_const(words)) {
                QVERIFY2(!english.contains(word) && !count.match(word).hasMatch(), qPrintable(text));
                said.insert(word);
            }
        }
        for (const QString &line : row->data(0, Qt::UserRole).toString().split(u'\n')) {
            for (const QString &sentence : english)
                QVERIFY2(!sentence.endsWith(u'.') || !line.contains(sentence), qPrintable(line));
            explained += line.contains(u"La restauration"_s) ? 1 : 0;
        }
    }
    QVERIFY(explained > 0);
    // A service, a package, a program and options, with their details
    for (const QString &word : {u"une clé vide"_s, u"mode de démarrage"_s, u"Désactiver Prefetcher"_s, u"automatique"_s,
                                u"désactivé"_s, u"arrêté"_s, u"installé"_s, u"démarre"_s})
        QVERIFY2(said.contains(word), qPrintable(QStringList(said.cbegin(), said.cend()).join(u'|')));
}

void TestPreviewDialog::searchShowsWhatHasTheText()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    const Preview preview(driver, placeOf(machine));
    QVERIFY(preview.isIdle());
    auto *search = preview.get<QLineEdit>(u"edtSearch"_s);
    QTreeWidgetItem *services = preview.items()->findItems(u"Services"_s, Qt::MatchExactly).value(0);
    QTreeWidgetItem *options = preview.items()->findItems(u"System options"_s, Qt::MatchExactly).value(0);
    QVERIFY(services != nullptr && options != nullptr);
    QTest::keyClicks(search, u"fONTS of"_s);
    QVERIFY(!services->isHidden());
    QVERIFY(!preview.row(u"Fonts of this PC"_s)->isHidden());
    // What belongs to it is there to be opened.
    QVERIFY(!preview.row(u"Fonts of this PC"_s)->child(0)->isHidden());
    QVERIFY(options->isHidden());
    search->clear();
    QVERIFY(!options->isHidden());
}

void TestPreviewDialog::whatTheAutomatizerLeavesOutIsLeftOut()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    const auto optimizedOptions = [&](bool wanted) {
        driver.get<QCheckBox>(u"chkAutomatizerTweak"_s)->setChecked(wanted);
        const Preview preview(driver, placeOf(machine));
        if (!preview.isIdle() || !preview.groups().contains(u"Services"_s))
            qFatal("there is no preview");
        const QTreeWidgetItem *options = preview.items()->findItems(u"System options"_s, Qt::MatchExactly).value(0);
        int count = 0;
        for (int i = 0; options != nullptr && i < options->childCount(); ++i)
            count += options->child(i)->text(1) == options->child(i)->text(2) ? 0 : 1;
        delete &*preview;
        return count;
    };
    const int with = optimizedOptions(true);
    const int without = optimizedOptions(false);
    QVERIFY2(without < with, qPrintable(u"%1, %2"_s.arg(without).arg(with)));
}

/** Whoever cancels sees the dialog go when nothing runs any more. */
void TestPreviewDialog::cancelEndsIt()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    const Preview preview(driver, placeOf(machine));
    QTRY_VERIFY_WITH_TIMEOUT(preview.get<QProgressBar>(u"pgrPreview"_s)->maximum() > 0, patience); // it has begun
    const auto *process = (*preview).findChild<PreviewRun *>();
    QSignalSpy ended(process, &PreviewRun::finished);
    preview.close();
    QVERIFY(ended.count() == 1 || ended.wait(patience));
    QTRY_VERIFY(!preview.isOpen());
}

void TestPreviewDialog::theEndOfTheDialogEndsIt()
{
    const PreviewedPc machine;
    PreviewRun *const run = new PreviewRun(placeOf(machine), nullptr);
    QSignalSpy begun(run, &PreviewRun::stepped);
    run->start({});
    QVERIFY(begun.wait(patience));
    QVERIFY(begun.first().at(0).toInt() < begun.first().at(1).toInt()); // the first step of many
    const auto *process = run->findChild<QProcess *>();
    QSignalSpy ended(process, &QProcess::finished);
    delete run;
    QCOMPARE(ended.count(), 1);
}

void TestPreviewDialog::failuresAreTold_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("machine");
    QTest::addColumn<QString>("told");
    const QString rehearse = QCoreApplication::applicationDirPath() + u"/kestrune-rehearse"_s;
    QTest::newRow("no program") << rehearse + u"-none"_s << u"/"_s << u"kestrune-rehearse-none"_s;
    QTest::newRow("no machine") << rehearse << QDir::tempPath() + u"/no such machine"_s << u"no such machine"_s;
}

void TestPreviewDialog::failuresAreTold()
{
    QFETCH(const QString, program);
    QFETCH(const QString, machine);
    QFETCH(const QString, told);
    const PreviewedPc pc;
    const WindowDriver driver;
    const Preview preview(driver, {.program = program, .machine = machine});
    QVERIFY(preview.isIdle());
    const QString status = preview.text(u"lblPreview"_s);
    QVERIFY2(status.startsWith(u"There is no preview: "_s) && status.contains(told), qPrintable(status));
    QVERIFY(preview.isOpen());
    preview.close();
    QVERIFY(!preview.isOpen());
}

void TestPreviewDialog::whatStandsAgainstItIsTold()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    Boxes boxes({QMessageBox::NoButton});
    PreviewPlace place;
    place.failure = u"There is none."_s;
    const Preview preview(driver, place);
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown().first().text, u"There is none."_s);
    QVERIFY(!preview.isOpen());
}

/** Here there is no Windows that could be captured, which is told as any failure. */
void TestPreviewDialog::aCaptureComesFirst()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    PreviewPlace place = placeOf(machine);
    place.isCaptured = true;
    const Preview preview(driver, place);
    QCOMPARE(preview.text(u"lblPreview"_s), u"Copying this PC…"_s);
    QVERIFY(preview.isIdle());
    QCOMPARE(preview.text(u"lblPreview"_s),
             u"There is no preview: capture reads the Windows that it runs on, and this is none"_s);
}

#ifndef Q_OS_WIN
void TestPreviewDialog::theCopyIsTriedWhenItIsThere()
{
    const PreviewedPc machine;
    const QTemporaryDir folder;
    // Stands in for the program: a capture that makes its folder, and a preview of what was captured.
    const QString program = folder.filePath(u"program"_s);
    writeFile(program, "#!/bin/sh\n"
                       "if [ \"$1\" = capture ]; then mkdir \"$2\"; exit; fi\n"
                       "[ -d \"$2\" ] && echo '{\"counts\":{\"exactly\":3}}'\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    const WindowDriver driver;
    const Preview preview(driver, {.program = program, .machine = folder.filePath(u"copy"_s), .isCaptured = true});
    QVERIFY(preview.isIdle());
    QVERIFY(preview.isOpen());
    QVERIFY2(preview.text(u"lblCounts"_s).contains(u"\n3 come back exactly"_s),
             qPrintable(preview.text(u"lblCounts"_s)));
}
#endif

void TestPreviewDialog::theFolderIsHeldUntilTheDialogIsClosed()
{
    const PreviewedPc machine;
    const WindowDriver driver;
    PreviewPlace place = placeOf(machine);
    place.hold = std::make_shared<int>(0);
    const std::weak_ptr<void> held = place.hold;
    const Preview preview(driver, place);
    place.hold.reset();
    QVERIFY(preview.isIdle());
    QVERIFY(!held.expired());
    preview.close();
    QTRY_VERIFY(held.expired());
}

KESTRUNE_WINDOW_SUITE(TestPreviewDialog)
#include "tst_previewdialog.moc"
