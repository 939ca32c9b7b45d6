// SPDX-License-Identifier: GPL-3.0-or-later
// What previews call the tweaks of the Features page against what the page itself calls them.

#include "preview/previewwords.h"
#include "support/suite.h"
#include "ui_kestrune.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** Boxes that are called by other words, and what the form says there. */
const QMap<QString, QString> exceptions{
    // The box stands before a choice of its own.
    {u"chkGaming11"_s, u"Win32PrioritySeparation:   Processor time allocated to applications."_s},
    // The program has another name on each Windows.
    {u"chkWindows10"_s, u"Disable SearchHost.exe  "_s},
};

} // namespace

class TestTweakWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formBeginsWithTheWords_data();
    void formBeginsWithTheWords();
    void otherNamesHaveNoWords();
};

void TestTweakWords::formBeginsWithTheWords_data()
{
    QTest::addColumn<QString>("box");
    for (const TweakBox &box : tweakBoxes())
        QTest::addRow("%s", box.name.data()) << QString(box.name);
}

void TestTweakWords::formBeginsWithTheWords()
{
    QFETCH(QString, box);
    QMainWindow window;
    Ui::KestruneClass ui;
    ui.setupUi(&window);
    const auto *checkBox = window.findChild<QCheckBox *>(box);
    QVERIFY(checkBox != nullptr);
    const TweakWords words = tweakWords(box);
    QVERIFY(!words.title.isEmpty());
    QVERIFY(!words.about.isEmpty());

    const QString begin = exceptions.value(box, words.title);
    QVERIFY2(checkBox->text().startsWith(begin), qPrintable(checkBox->text()));
    // No word is cut in two, and nothing of a first sentence is left out.
    const QString rest = checkBox->text().sliced(begin.size()).trimmed();
    QVERIFY2(rest.isEmpty() || rest.startsWith(u'(') || exceptions.contains(box), qPrintable(rest));
}

void TestTweakWords::otherNamesHaveNoWords()
{
    for (const QString &name : {u"chkSsd"_s, u"chkSsd10"_s, u"chkWindows11"_s, QString()})
        QVERIFY2(tweakWords(name).title.isEmpty(), qPrintable(name));
}

KESTRUNE_WINDOW_SUITE(TestTweakWords)
#include "tst_tweakwords.moc"
