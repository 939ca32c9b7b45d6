// SPDX-License-Identifier: GPL-3.0-or-later
// What previews call the tweaks of the Features page against what the page itself calls them.

#include "preview/previewwords.h"
#include "support/suite.h"
#include "ui_kestrune.h"
#include "work/knowledge.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
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
    void eachOptionIsKnown();
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

/** The table has all boxes once, and says all that it must of each, in words that can be told apart. */
void TestTweakWords::eachOptionIsKnown()
{
    QFile file(QStringLiteral(KESTRUNE_KNOWLEDGE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray options = QJsonDocument::fromJson(file.readAll())[u"options"_s].toArray();
    QStringList boxes;
    for (const TweakBox &box : tweakBoxes())
        boxes.append(box.name);
    QStringList known;
    const QStringList effects{u"works"_s, u"partly"_s, u"default"_s, u"none"_s, u"unsure"_s};
    const QStringList needs{u"none"_s, u"restart"_s, u"sign-out"_s, u"explorer"_s};
    for (const QJsonValue option : options) {
        const QString box = option[u"box"_s].toString();
        known.append(box);
        for (const char *text : {"writes", "tip", "takingBack"})
            QVERIFY2(!option[QLatin1StringView(text)].toString().isEmpty(), qPrintable(box));
        QVERIFY2(effects.contains(option[u"effect"_s].toString()), qPrintable(box));
        QVERIFY2(needs.contains(option[u"needs"_s].toString()), qPrintable(box));
        QVERIFY2(!option[u"sources"_s].toArray().isEmpty(), qPrintable(box));
        // A restart that an effect needs is said where people look.
        const QString tip = option[u"tip"_s].toString();
        const bool says = tip.contains(u"restart"_s);
        const bool takesEffect = option[u"effect"_s] == "works"_L1 || option[u"effect"_s] == "partly"_L1;
        QVERIFY2(!takesEffect || says == (option[u"needs"_s] == "restart"_L1 || option[u"needs"_s] == "explorer"_L1),
                 qPrintable(box));
        QCOMPARE(knowledgeOf(box).tip, tip);
    }
    QCOMPARE(known, boxes);
}

KESTRUNE_WINDOW_SUITE(TestTweakWords)
#include "tst_tweakwords.moc"
