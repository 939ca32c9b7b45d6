// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of all languages against those of the sources, which lupdate reads out of them.

#include "support/suite.h"
#include "work/knowledge.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

struct SourceText
{
    QString context;
    QString text;
    QString comment{}; // what tells two equal texts apart
};

/** Text of an element, with the control characters that XML can't hold. */
QString readText(QXmlStreamReader &xml)
{
    QString text;
    while (xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isCharacters()) {
            text += xml.text();
        } else if (xml.isStartElement()) {
            text += QChar(xml.attributes().value("value"_L1).mid(1).toInt(nullptr, 16));
            xml.skipCurrentElement();
        }
    }
    return text;
}

QList<SourceText> readSourceTexts(QIODevice &file)
{
    QList<SourceText> texts;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name"_L1)
            context = readText(xml);
        else if (xml.name() == "source"_L1)
            texts.append({context, readText(xml)});
        else if (xml.name() == "comment"_L1)
            texts.last().comment = readText(xml);
    }
    return texts;
}

QStringList found(const QString &text, const QString &pattern)
{
    QStringList all;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        all.append(matches.next().captured());
    return all;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QString blanksAround(const QString &text)
{
    const QString inside = text.trimmed();
    const auto begin = text.indexOf(inside);
    return text.left(begin) + u'|' + text.mid(begin + inside.size());
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyTextIsTranslated_data() { addLanguages(); }
    void everyTextIsTranslated();
    void fileHoldsEachTextOfTheSourcesOnce_data() { addFiles(); }
    void fileHoldsEachTextOfTheSourcesOnce();
    void placeholdersAndBlanksAreThoseOfTheSource_data() { addLanguages(); }
    void placeholdersAndBlanksAreThoseOfTheSource();
    void markupIsThatOfTheSource_data() { addLanguages(); }
    void markupIsThatOfTheSource();
    void sameTextIsTheSameInEveryContext_data() { addLanguages(); }
    void sameTextIsTheSameInEveryContext();
    void textsThatAreToldApartStayApart_data() { addLanguages(); }
    void textsThatAreToldApartStayApart();
    void countsOfTasksAgreeWithEachOther_data();
    void countsOfTasksAgreeWithEachOther();
    void aTextNamesOnlyWhatTheWindowNames_data();
    void aTextNamesOnlyWhatTheWindowNames();
    void chineseHasItsOwnPunctuation();
    void marksThatTheCodeLooksForAreThere_data() { addLanguages(); }
    void marksThatTheCodeLooksForAreThere();
    void englishIsAFileWithoutTexts();
    void qtFindsTheFileOfEveryCountry_data();
    void qtFindsTheFileOfEveryCountry();

private:
    static QString folder() { return QCoreApplication::applicationDirPath() + u"/Translations/"_s; }
    static void addLanguages();
    static void addFiles();
    void load();
    QString translated(const SourceText &source) const
    {
        return translator_.translate(source.context.toUtf8().constData(), source.text.toUtf8().constData(),
                                     source.comment.toUtf8().constData());
    }
    QString translated(const char *text) const { return translator_.translate("Kestrune", text); }

    QList<SourceText> sources_;
    QTranslator translator_;
};

void TestTranslations::initTestCase()
{
    const QTemporaryDir temporary;
    QProcess lupdate;
    const QString result = temporary.filePath(u"sources.ts"_s);
    lupdate.start(QStringLiteral(KESTRUNE_LUPDATE),
                  {QStringLiteral(KESTRUNE_SOURCES), u"-silent"_s, u"-locations"_s, u"none"_s, u"-ts"_s, result});
    QVERIFY(lupdate.waitForFinished(60000));
    QFile file(result);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QSet<QString> ours{u"KestruneClass"_s, u"Kestrune"_s, u"WorkThread"_s};
    for (const SourceText &source : readSourceTexts(file)) {
        if (ours.contains(source.context))
            sources_.append(source);
    }
    QVERIFY(sources_.size() > 200);
    // What the tool tips of the Features page say, and the preview of the same options, stands in a table of its own.
    for (const TweakBox &box : tweakBoxes()) {
        sources_.append({u"Kestrune"_s, knowledgeOf(box.name).tip});
        sources_.append({u"Kestrune"_s, knowledgeOf(box.name).takingBack});
    }
}

void TestTranslations::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString &file : QDir(folder()).entryList({u"lang_*.qm"_s})) {
        const QString language = file.mid(5).chopped(3);
        if (language != "en_US"_L1)
            QTest::newRow(qPrintable(language)) << language;
    }
}

void TestTranslations::addFiles()
{
    QTest::addColumn<QString>("path");
    const QDir folder(QStringLiteral(KESTRUNE_TRANSLATIONS));
    for (const QFileInfo &file : folder.entryInfoList({u"*.ts"_s})) {
        if (file.baseName() != "en"_L1)
            QTest::newRow(qPrintable(file.baseName())) << file.filePath();
    }
}

void TestTranslations::load()
{
    QFETCH(QString, language);
    QVERIFY(translator_.load(folder() + u"lang_"_s + language + u".qm"_s));
}

void TestTranslations::everyTextIsTranslated()
{
    load();
    for (const SourceText &source : sources_)
        QVERIFY2(!translated(source).isEmpty(), qPrintable(source.context + u": "_s + source.text));
}

void TestTranslations::fileHoldsEachTextOfTheSourcesOnce()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QSet<QString> used;
    for (const SourceText &source : sources_)
        used.insert(source.text + u'|' + source.comment);
    for (const SourceText &held : readSourceTexts(file)) {
        QVERIFY2(used.remove(held.text + u'|' + held.comment),
                 qPrintable(u"superfluous, or there twice: "_s + held.text));
    }
    QVERIFY2(used.isEmpty(), qPrintable(u"missing: "_s + QStringList(used.values()).join(u'\n')));
}

void TestTranslations::placeholdersAndBlanksAreThoseOfTheSource()
{
    load();
    for (const SourceText &source : sources_) {
        const QString text = translated(source);
        for (const QString &pattern : {u"%\\w+"_s, u"\\r\\n|\\r|\\n"_s})
            QCOMPARE(sorted(found(text, pattern)), sorted(found(source.text, pattern)));
        QCOMPARE(blanksAround(text), blanksAround(source.text));
    }
}

void TestTranslations::markupIsThatOfTheSource()
{
    load();
    for (const SourceText &source : sources_) {
        if (source.text.startsWith("<html>"_L1))
            QCOMPARE(found(translated(source), u"<[^>]*>"_s), found(source.text, u"<[^>]*>"_s));
    }
}

void TestTranslations::sameTextIsTheSameInEveryContext()
{
    load();
    QHash<QString, QString> translations;
    for (const SourceText &source : sources_) {
        const QString text = translated(source);
        const QString key = source.text + u'|' + source.comment;
        QCOMPARE(text, translations.value(key, text));
        translations.insert(key, text);
    }
}

/** The window tells a page's view by the text of a button, and a job's outcome by a word. */
void TestTranslations::textsThatAreToldApartStayApart()
{
    load();
    // clang-format off
    const std::pair<const char *, const char *> pairs[] = {
        {"View programs disabled",    "View auto started programs"},
        {"Disable checked programs",  "Enable checked programs"},
        {"View uninstalled packages", "View installed packages"},
        {"Uninstall packages",        "Install packages"},
        {"View disabled services",    "View started services"},
        {"DISABLE checked services",  "ENABLE checked services"},
        {"Auto",                      "Manual"},
        {"Auto",                      "Disabled"},
        {"Yes",                       "No"},
    };
    // clang-format on
    for (const auto &[one, other] : pairs)
        QVERIFY2(translated(one) != translated(other), one);
    const QString done = translator_.translate("WorkThread", "done");
    QVERIFY(!QString(translator_.translate("WorkThread", "error")).endsWith(done));
}

void TestTranslations::countsOfTasksAgreeWithEachOther_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"es", "fr", "it", "pt"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

/** A task is feminine in these languages, and a service and a program are not. */
void TestTranslations::countsOfTasksAgreeWithEachOther()
{
    load();
    const auto ending = [](QString text) { return text.remove(QRegularExpression(u"[ \\x{a0}]*:$"_s)).last(2); };
    QCOMPARE(ending(translator_.translate("Kestrune", "disabled:", "tasks")), ending(translated("enabled:")));
    QVERIFY(ending(translated("disabled:")) != ending(translated("enabled:")));
}

void TestTranslations::aTextNamesOnlyWhatTheWindowNames_data()
{
    addColumns<QString, QString>("language", "other");
    // One word for a thing: a row can be highlighted without being checked, and the page has one name.
    QTest::newRow("de: checked") << u"de"_s << u"[Mm]arkier"_s;
    QTest::newRow("de: features") << u"de"_s << u"[Ff]eatures"_s;
    QTest::newRow("de: done") << u"de"_s << u"(aktivieren|starten) fertig"_s;
    QTest::newRow("es: done") << u"es"_s << u"abilitar .* listo|iniciar .* listo"_s;
    QTest::newRow("es: add") << u"es"_s << u"[Aa]grega"_s;
    QTest::newRow("es: disable") << u"es"_s << u"[Dd]esactivar"_s;
    QTest::newRow("it: checked") << u"it"_s << u"[Ss]eleziona"_s;
    QTest::newRow("it: done") << u"it"_s << u"bilita .* completato"_s;
    QTest::newRow("it: disable") << u"it"_s << u"disattivare"_s;
    QTest::newRow("pt: disable") << u"pt"_s << u"desativar"_s;
    QTest::newRow("nl: done") << u"nl"_s << u"(inschakelen|uitschakelen|starten) klaar"_s;
    QTest::newRow("ja: about") << u"ja"_s << u"^情報$"_s;
    QTest::newRow("pl: about") << u"pl"_s << u"^Informacje$"_s;
    QTest::newRow("zh: done") << u"zh_CN"_s << u"用 (%1|EncoderServer) 完成"_s;
}

void TestTranslations::aTextNamesOnlyWhatTheWindowNames()
{
    load();
    QFETCH(QString, other);
    for (const SourceText &source : sources_)
        QVERIFY2(!translated(source).contains(QRegularExpression(other)), qPrintable(translated(source)));
}

/** Its marks are as wide as its words, but for the keys in a button's text and the mark that the code looks for. */
void TestTranslations::chineseHasItsOwnPunctuation()
{
    QVERIFY(translator_.load(folder() + u"lang_zh_CN.qm"_s));
    const QRegularExpression narrow(u"[\\x{3400}-\\x{9fff}]([?:]|!(?!$)| ?\\((?!&))"_s);
    for (const SourceText &source : sources_)
        QVERIFY2(!translated(source).contains(narrow), qPrintable(translated(source)));
}

void TestTranslations::marksThatTheCodeLooksForAreThere()
{
    load();
    const auto inWork = [this](const char *text) { return translator_.translate("WorkThread", text); };
    const auto inForm = [this](const char *text) { return translator_.translate("KestruneClass", text); };
    QVERIFY(inWork("Status: Getting WinSxS folder size...").endsWith(u"..."_s));
    QVERIFY(inWork("Status: Getting WinSxS folder size finished!").endsWith(u'!'));
    QVERIFY(inForm("Disable SearchHost.exe  (process for searching files. If disabled, advanced search may "
                   "malfunction)")
                .contains(u"SearchHost.exe"_s));
    // The report's template holds two texts as plain words.
    for (const SourceText &source : sources_) {
        if (!source.text.contains(u"loading disk info..."_s) || !source.text.startsWith("<html>"_L1))
            continue;
        QVERIFY(translated(source).contains(translated("loading screen info...")));
        QVERIFY(translated(source).contains(translated("loading disk info...")));
    }
}

void TestTranslations::englishIsAFileWithoutTexts()
{
    QTranslator english;
    QVERIFY(english.load(folder() + u"lang_en_US.qm"_s));
    QVERIFY(english.isEmpty());
}

void TestTranslations::qtFindsTheFileOfEveryCountry_data()
{
    addColumns<QString, QString>("locale", "yes");
    QTest::newRow("Austria") << u"de_AT"_s << u"Ja"_s;
    QTest::newRow("Mexico") << u"es_MX"_s << u"Sí"_s;
    QTest::newRow("Belgium") << u"fr_BE"_s << u"Oui"_s;
    QTest::newRow("Switzerland") << u"it_CH"_s << u"Sì"_s;
    QTest::newRow("Brazil") << u"pt_BR"_s << u"Sim"_s;
    QTest::newRow("Poland") << u"pl_PL"_s << u"Tak"_s;
    QTest::newRow("Netherlands") << u"nl_NL"_s << u"Ja"_s;
    QTest::newRow("Japan") << u"ja_JP"_s << u"はい"_s;
    QTest::newRow("China") << u"zh_CN"_s << u"是"_s;
    // Another script
    QTest::newRow("Taiwan") << u"zh_TW"_s << QString();
    QTest::newRow("Sweden") << u"sv_SE"_s << QString();
}

void TestTranslations::qtFindsTheFileOfEveryCountry()
{
    QFETCH(QString, locale);
    QFETCH(QString, yes);
    QTranslator translator;
    QCOMPARE(translator.load(folder() + u"lang_"_s + locale + u".qm"_s), !yes.isEmpty());
    QCOMPARE(translator.translate("Kestrune", "Yes"), yes);
}

KESTRUNE_SUITE(TestTranslations)
#include "tst_translations.moc"
