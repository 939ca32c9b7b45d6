// SPDX-License-Identifier: GPL-3.0-or-later
// The contract of RegistryKey, sentence by sentence. It asks platform() alone, so that every platform can be held to
// it.

#include "contractplatform.h"
#include "support/suite.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString software = u"HKEY_CURRENT_USER\\Software"_s;
const QString scratch = software + u"\\KestruneContract"_s;

QByteArray utf16(const QString &text)
{
    return registryText(text).chopped(2);
}

} // namespace

class TestRegistryKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opensByFullAndShortHiveNames();
    void otherStartsReadDefaultsAndLoseWrites_data();
    void otherStartsReadDefaultsAndLoseWrites();
    void madeAtTheFirstUseAndNotBefore();
    void aWriteMakesEveryKeyOnTheWay();

    void slashSeparatesLevels();
    void needlessSlashesDontCount();
    void aBackslashIsAnOrdinaryCharacter();
    void aBackslashInAGroupsNameIsOrdinaryToo();
    void defaultAndDotMeanTheUnnamedValue();
    void defaultIsWrittenWithItsCase();
    void theUnnamedValueOfASubkey();
    void lookUpsIgnoreCase_data();
    void lookUpsIgnoreCase();
    void theFirstSpellingOfANameStays();

    void listsAreSortedByCodeUnit();
    void allKeysListsValuesAlone();
    void childGroupsListsEmptySubkeys();
    void groupsAreRelative();
    void endGroupUndoesOneBeginGroup();
    void anEmptyGroupIsNoLevel();

    void valuesAsTheyAreHaveTheirTypesAndNames();
    void valuesAsTheyAreMakeNoKey();
    void readsEveryType_data();
    void readsEveryType();
    void aMissingValueGivesTheDefault();
    void theEmptyNameGivesNothing();
    void containsTellsValuesFromSubkeys();

    void writesTypes_data();
    void writesTypes();
    void theFormerTypeIsntKept();
    void comesBackAsWritten_data();
    void comesBackAsWritten();

    void removesTheValueAndTheSubkeyOfOneName();
    void removesInSubkeys();
    void removingWhatIsAbsentIsSilent();
    void removingNoNameRemovesNothing_data();
    void removingNoNameRemovesNothing();
    void removingTheUnnamedValueLeavesTheOthers();
    void anObjectSeesWhatAnotherWrites();

    void ownValueIsTheOneOfThatVeryName_data();
    void ownValueIsTheOneOfThatVeryName();
    void ownValueHasItsType();
    void ownValueOfAGroup();
    void unnamedValueIsNoOwnValue();

private:
    std::unique_ptr<RegistryKey> open(const QString &below = {}) const { return platform().openKey(scratch + below); }

    std::unique_ptr<ContractPlatform> contract_ = std::make_unique<ContractPlatform>();
};

void TestRegistryKey::init()
{
    platform().openKey(software)->remove(u"KestruneContract"_s);
}

void TestRegistryKey::cleanup()
{
    platform().openKey(software)->remove(u"KestruneContract"_s);
    QVERIFY(!contract_->hasKey(scratch));
}

void TestRegistryKey::opensByFullAndShortHiveNames()
{
    open()->setValue(u"a"_s, 5);
    QCOMPARE(platform().openKey(u"HKCU\\Software\\KestruneContract"_s)->value(u"a"_s), QVariant(5));
    for (const QString &hive : {u"HKEY_LOCAL_MACHINE"_s, u"HKLM"_s})
        QVERIFY(platform().openKey(hive)->childGroups().contains(u"Software"_s, Qt::CaseInsensitive)
                || !contract_->hasKey(u"HKEY_LOCAL_MACHINE\\Software"_s));
    // The file types of the machine are shown as a hive of their own.
    const QString classes = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.kestrunecontract"_s;
    platform().openKey(classes)->setValue(u"."_s, u"type"_s);
    QCOMPARE(platform().openKey(u"HKEY_CLASSES_ROOT\\.kestrunecontract"_s)->value(u"."_s), QVariant(u"type"_s));
    QCOMPARE(platform().openKey(u"HKCR\\.kestrunecontract"_s)->value(u"."_s), QVariant(u"type"_s));
    platform().openKey(u"HKEY_CLASSES_ROOT"_s)->remove(u".kestrunecontract"_s);
    QVERIFY(!contract_->hasKey(classes));
}

void TestRegistryKey::otherStartsReadDefaultsAndLoseWrites_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("lower case") << u"hkey_current_user\\Software\\KestruneContract"_s;
    QTest::newRow("lower case, short") << u"hkcu\\Software\\KestruneContract"_s;
    QTest::newRow("mixed case") << u"HKEY_Current_User\\Software\\KestruneContract"_s;
    QTest::newRow("no hive") << u"Software\\KestruneContract"_s;
    QTest::newRow("slash after the hive") << u"HKEY_CURRENT_USER/Software/KestruneContract"_s;
    QTest::newRow("longer name") << u"HKEY_CURRENT_USERS\\Software\\KestruneContract"_s;
    QTest::newRow("nothing") << QString();
}

void TestRegistryKey::otherStartsReadDefaultsAndLoseWrites()
{
    QFETCH(const QString, path);
    open()->setValue(u"a"_s, 5);
    const auto key = platform().openKey(path);
    QCOMPARE(key->value(u"a"_s, 7), QVariant(7));
    QVERIFY(!key->contains(u"a"_s));
    QVERIFY(key->allKeys().isEmpty() && key->childKeys().isEmpty() && key->childGroups().isEmpty());
    key->setValue(u"a"_s, 9);
    key->remove(u"a"_s);
    QCOMPARE(key->value(u"a"_s), QVariant());
    QCOMPARE(open()->value(u"a"_s), QVariant(5));
}

void TestRegistryKey::madeAtTheFirstUseAndNotBefore()
{
    const auto key = open(u"\\deep\\er"_s);
    QVERIFY(!contract_->hasKey(scratch + u"\\deep"_s));
    QVERIFY(!key->contains(u"a"_s));
    QVERIFY(contract_->hasKey(scratch + u"\\deep\\er"_s));
}

void TestRegistryKey::valuesAsTheyAreHaveTheirTypesAndNames()
{
    const QList<RegistryValue> values{{u"A/b"_s, RegistryType::ExpandString, registryText(u"%x%"_s)},
                                      {u"C\\d"_s, RegistryType::String, utf16(u"no end"_s)},
                                      {u"e"_s, RegistryType::None, QByteArray()}};
    for (const RegistryValue &value : values)
        contract_->writeRaw(scratch, value);
    QList<RegistryValue> read = platform().registryValues(scratch);
    std::sort(read.begin(), read.end(), [](const auto &left, const auto &right) { return left.name < right.name; });
    QCOMPARE(read, values);
}

void TestRegistryKey::valuesAsTheyAreMakeNoKey()
{
    QCOMPARE(platform().registryValues(scratch + u"\\deep"_s), QList<RegistryValue>());
    QVERIFY(!contract_->hasKey(scratch));
}

void TestRegistryKey::aWriteMakesEveryKeyOnTheWay()
{
    open()->setValue(u"x/y/z/name"_s, 1);
    QCOMPARE(contract_->readRaw(scratch + u"\\x\\y\\z"_s, u"name"_s)->data, registryDWord(1));
    QCOMPARE(open()->childGroups(), QStringList{u"x"_s});
    QVERIFY(!open()->contains(u"x/y/absent/name"_s)); // reading makes none
    QVERIFY(!contract_->hasKey(scratch + u"\\x\\y\\absent"_s));
}

void TestRegistryKey::slashSeparatesLevels()
{
    open()->setValue(u"sub/name"_s, u"text"_s);
    QCOMPARE(open(u"\\sub"_s)->value(u"name"_s), QVariant(u"text"_s));
    QCOMPARE(open()->value(u"sub/name"_s), QVariant(u"text"_s));
    QVERIFY(!open()->contains(u"name"_s));
}

void TestRegistryKey::needlessSlashesDontCount()
{
    open()->setValue(u"//sub///name/"_s, 3);
    QCOMPARE(open()->allKeys(), QStringList{u"sub/name"_s});
    QCOMPARE(open()->value(u"/sub/name"_s), QVariant(3));
}

void TestRegistryKey::aBackslashIsAnOrdinaryCharacter()
{
    const QString task = u"Microsoft\\Windows\\Shell\\Family"_s;
    open()->setValue(task, u"Ready"_s);
    QCOMPARE(open()->childKeys(), QStringList{task});
    QCOMPARE(open()->allKeys(), QStringList{task});
    QVERIFY(open()->childGroups().isEmpty());
    QCOMPARE(open()->value(task), QVariant(u"Ready"_s));
    QCOMPARE(contract_->readRaw(scratch, u"Microsoft/Windows/Shell/Family"_s)->data, registryText(u"Ready"_s));
    open()->remove(task);
    QVERIFY(open()->allKeys().isEmpty());
}

void TestRegistryKey::aBackslashInAGroupsNameIsOrdinaryToo()
{
    const auto key = open();
    key->beginGroup(u"a\\b"_s);
    key->setValue(u"name"_s, 1);
    key->endGroup();
    QCOMPARE(key->childGroups(), QStringList{u"a\\b"_s});
    QCOMPARE(key->allKeys(), QStringList{u"a\\b/name"_s});
    QVERIFY(contract_->hasKey(scratch + u"\\a/b"_s));
    QVERIFY(!contract_->hasKey(scratch + u"\\a"_s));
}

void TestRegistryKey::defaultAndDotMeanTheUnnamedValue()
{
    QVERIFY(!open()->contains(u"."_s));
    open()->setValue(u"named"_s, 1);
    QCOMPARE(open()->childKeys(), QStringList{u"named"_s}); // not shown while it isn't set
    open()->setValue(u"Default"_s, u"first"_s);
    QCOMPARE(open()->value(u"."_s), QVariant(u"first"_s));
    open()->setValue(u"."_s, u"second"_s);
    QCOMPARE(open()->value(u"Default"_s), QVariant(u"second"_s));
    QCOMPARE(open()->childKeys(), (QStringList{u"."_s, u"named"_s}));
    QCOMPARE(open()->allKeys(), (QStringList{u"."_s, u"named"_s}));
    QCOMPARE(contract_->readRaw(scratch, QString())->data, registryText(u"second"_s));
}

void TestRegistryKey::defaultIsWrittenWithItsCase()
{
    open()->setValue(u"default"_s, 1);
    QCOMPARE(open()->childKeys(), QStringList{u"default"_s});
    QVERIFY(!open()->contains(u"."_s));
}

void TestRegistryKey::theUnnamedValueOfASubkey()
{
    open()->setValue(u"sub/Default"_s, 4);
    QCOMPARE(open()->allKeys(), QStringList{u"sub/."_s});
    QCOMPARE(open(u"\\sub"_s)->value(u"."_s), QVariant(4));
    QCOMPARE(contract_->readRaw(scratch + u"\\sub"_s, QString())->data, registryDWord(4));
}

void TestRegistryKey::lookUpsIgnoreCase_data()
{
    addColumns<QString, QString>("written", "read");
    QTest::newRow("letters") << u"DisplayName"_s << u"dISPLAYnAME"_s;
    QTest::newRow("umlauts") << u"Größe Ä"_s << u"gRÖßE ä"_s;
    QTest::newRow("Cyrillic") << u"Служба"_s << u"СЛУЖБА"_s;
    QTest::newRow("subkey") << u"Sub/Key/Name"_s << u"sUB/kEY/nAME"_s;
    QTest::newRow("group alone") << u"GROUP/x"_s << u"group/x"_s;
}

void TestRegistryKey::lookUpsIgnoreCase()
{
    QFETCH(const QString, written);
    QFETCH(const QString, read);
    open()->setValue(written, 11);
    QVERIFY(open()->contains(read));
    QCOMPARE(open()->value(read), QVariant(11));
    QCOMPARE(platform().openKey(scratch.toUpper())->allKeys(), QStringList{written});
    open()->remove(read);
    QVERIFY(!open()->contains(written));
}

void TestRegistryKey::theFirstSpellingOfANameStays()
{
    open()->setValue(u"First/Name"_s, 1);
    open()->setValue(u"FIRST/NAME"_s, 2);
    open()->setValue(u"first/other"_s, 3);
    QCOMPARE(open()->allKeys(), (QStringList{u"First/Name"_s, u"First/other"_s}));
    QCOMPARE(open()->value(u"first/name"_s), QVariant(2));
}

void TestRegistryKey::listsAreSortedByCodeUnit()
{
    // U+FF21 comes after the halves of U+1F600 by code unit, and before it by character.
    const QStringList sorted{u"10"_s,     u"9"_s, u"Alpha"_s,      u"Zulu"_s, u"_x"_s,
                             u"alpha2"_s, u"É"_s, u"\U0001F600"_s, u"Ａ"_s};
    for (auto name = sorted.crbegin(); name != sorted.crend(); ++name) {
        open()->setValue(*name, 1);
        open(u"\\"_s + *name)->setValue(u"v"_s, 1);
    }
    QCOMPARE(open()->childKeys(), sorted);
    QCOMPARE(open()->childGroups(), sorted);
    QStringList all = sorted;
    for (const QString &name : sorted)
        all << name + u"/v"_s;
    std::sort(all.begin(), all.end());
    QCOMPARE(open()->allKeys(), all);
}

void TestRegistryKey::allKeysListsValuesAlone()
{
    open()->setValue(u"own"_s, 1);
    open()->setValue(u"a/b/c"_s, 1);
    open(u"\\empty\\below"_s)->contains(u"x"_s);
    QCOMPARE(open()->allKeys(), (QStringList{u"a/b/c"_s, u"own"_s}));
    QCOMPARE(open()->childKeys(), QStringList{u"own"_s});
    QCOMPARE(open(u"\\a"_s)->allKeys(), QStringList{u"b/c"_s});
    QVERIFY(open(u"\\empty"_s)->allKeys().isEmpty());
}

void TestRegistryKey::childGroupsListsEmptySubkeys()
{
    open(u"\\with\\value"_s)->setValue(u"x"_s, 1);
    open(u"\\without"_s)->contains(u"x"_s);
    QCOMPARE(open()->childGroups(), (QStringList{u"with"_s, u"without"_s}));
}

void TestRegistryKey::groupsAreRelative()
{
    const auto key = open();
    key->beginGroup(u"/one/two/"_s);
    key->setValue(u"name"_s, 1);
    key->setValue(u"three/name"_s, 2);
    QCOMPARE(key->allKeys(), (QStringList{u"name"_s, u"three/name"_s}));
    QCOMPARE(key->childKeys(), QStringList{u"name"_s});
    QCOMPARE(key->childGroups(), QStringList{u"three"_s});
    QCOMPARE(key->value(u"three/name"_s), QVariant(2));
    key->remove(u"three"_s);
    QCOMPARE(key->allKeys(), QStringList{u"name"_s});
    key->endGroup();
    QCOMPARE(key->allKeys(), QStringList{u"one/two/name"_s});
}

void TestRegistryKey::endGroupUndoesOneBeginGroup()
{
    const auto key = open();
    key->beginGroup(u"a/b"_s);
    key->beginGroup(u"c"_s);
    key->setValue(u"x"_s, 1);
    key->endGroup();
    key->setValue(u"x"_s, 2);
    key->endGroup();
    key->setValue(u"x"_s, 3);
    key->endGroup(); // one too many is silent
    key->setValue(u"y"_s, 4);
    QCOMPARE(open()->allKeys(), (QStringList{u"a/b/c/x"_s, u"a/b/x"_s, u"x"_s, u"y"_s}));
}

void TestRegistryKey::anEmptyGroupIsNoLevel()
{
    const auto key = open();
    key->beginGroup(u"g"_s);
    key->beginGroup(QString());
    key->setValue(u"x"_s, 1);
    key->endGroup();
    key->setValue(u"y"_s, 1);
    key->endGroup();
    QCOMPARE(key->allKeys(), (QStringList{u"g/x"_s, u"g/y"_s}));
}

void TestRegistryKey::readsEveryType_data()
{
    using Type = RegistryType;
    addColumns<RegistryType, QByteArray, QVariant>("type", "data", "expected");
    const QByteArray none;
    QTest::newRow("text") << Type::String << registryText(u"a b"_s) << QVariant(u"a b"_s);
    QTest::newRow("empty text") << Type::String << registryText(QString()) << QVariant(QString());
    QTest::newRow("text without data") << Type::String << none << QVariant(QString());
    QTest::newRow("text without its zero") << Type::String << utf16(u"abc"_s) << QVariant(u"abc"_s);
    QTest::newRow("text with a zero inside") << Type::String << registryText(u"ab\0cd"_s) << QVariant(u"ab"_s);
    QTest::newRow("text not expanded") << Type::ExpandString << registryText(u"%windir%\\x"_s)
                                       << QVariant(u"%windir%\\x"_s);
    QTest::newRow("texts") << Type::MultiString << registryTexts({u"a"_s, u"b c"_s})
                           << QVariant(QStringList{u"a"_s, u"b c"_s});
    QTest::newRow("one text") << Type::MultiString << registryTexts({u"RpcSs"_s}) << QVariant(QStringList{u"RpcSs"_s});
    QTest::newRow("no texts") << Type::MultiString << registryTexts({}) << QVariant(QStringList());
    QTest::newRow("texts without their zeros")
        << Type::MultiString << utf16(u"a\0b"_s) << QVariant(QStringList{u"a"_s, u"b"_s});
    QTest::newRow("number") << Type::DWord << registryDWord(42) << QVariant(42);
    QTest::newRow("greatest number") << Type::DWord << registryDWord(0xFFFFFFFFU) << QVariant(-1);
    QTest::newRow("sign bit") << Type::DWord << registryDWord(0x80000000U) << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("64 bits") << Type::QWord << registryQWord(0x1122334455667788U)
                             << QVariant(qlonglong(0x1122334455667788));
    QTest::newRow("64 bits, negative") << Type::QWord << registryQWord(quint64(-5)) << QVariant(qlonglong(-5));
    QTest::newRow("bytes") << Type::Binary << QByteArray::fromHex("61006200e4") << QVariant(u"ab"_s);
    QTest::newRow("bytes with zeros") << Type::Binary << QByteArray::fromHex("020000000100") << QVariant(u"\2\0\1"_s);
    QTest::newRow("no bytes") << Type::Binary << none << QVariant(QString());
    QTest::newRow("no type") << Type::None << utf16(u"xy"_s) << QVariant(u"xy"_s);
    QTest::newRow("doubled at sign") << Type::String << registryText(u"@@tzres.dll"_s) << QVariant(u"@tzres.dll"_s);
    QTest::newRow("single at sign") << Type::String << registryText(u"@%SystemRoot%\\x.dll,-1"_s)
                                    << QVariant(u"@%SystemRoot%\\x.dll,-1"_s);
}

void TestRegistryKey::readsEveryType()
{
    QFETCH(const RegistryType, type);
    QFETCH(const QByteArray, data);
    QFETCH(const QVariant, expected);
    contract_->writeRaw(scratch, {u"v"_s, type, data});
    QVERIFY(open()->contains(u"v"_s));
    const QVariant read = open()->value(u"v"_s, u"default"_s);
    QCOMPARE(read.typeId(), expected.typeId());
    QCOMPARE(read, expected);
    QCOMPARE(contract_->readRaw(scratch, u"v"_s)->data, data); // reading changes nothing
}

void TestRegistryKey::aMissingValueGivesTheDefault()
{
    QCOMPARE(open()->value(u"absent"_s), QVariant());
    QCOMPARE(open()->value(u"absent"_s, u"d"_s), QVariant(u"d"_s));
    QCOMPARE(open()->value(u"no/such/key"_s, 3), QVariant(3));
    QVERIFY(!open()->contains(u"absent"_s));
}

void TestRegistryKey::theEmptyNameGivesNothing()
{
    open()->setValue(u"."_s, u"unnamed"_s);
    QVERIFY(!open()->value(QString()).isValid());
    QVERIFY(!open()->value(QString(), 5).isValid());
    open()->setValue(QString(), 6);
    QCOMPARE(open()->value(u"."_s), QVariant(u"unnamed"_s));
}

void TestRegistryKey::containsTellsValuesFromSubkeys()
{
    open()->setValue(u"sub/name"_s, 1);
    QVERIFY(open()->contains(u"sub/name"_s));
    QVERIFY(!open()->contains(u"sub"_s));
}

void TestRegistryKey::writesTypes_data()
{
    using Type = RegistryType;
    addColumns<QVariant, RegistryType, QByteArray>("value", "type", "data");
    QTest::newRow("int") << QVariant(4) << Type::DWord << registryDWord(4);
    QTest::newRow("negative int") << QVariant(-1) << Type::DWord << registryDWord(0xFFFFFFFFU);
    QTest::newRow("uint") << QVariant(0xFFFFFFFEU) << Type::DWord << registryDWord(0xFFFFFFFEU);
    QTest::newRow("64 bits") << QVariant(qlonglong(-2)) << Type::QWord << registryQWord(quint64(-2));
    QTest::newRow("64 bits, unsigned") << QVariant(qulonglong(~0ULL)) << Type::QWord << registryQWord(~0ULL);
    QTest::newRow("true") << QVariant(true) << Type::String << registryText(u"true"_s);
    QTest::newRow("false") << QVariant(false) << Type::String << registryText(u"false"_s);
    QTest::newRow("text") << QVariant(u"a\\b \"c\" ä"_s) << Type::String << registryText(u"a\\b \"c\" ä"_s);
    QTest::newRow("empty text") << QVariant(u""_s) << Type::String << registryText(QString());
    QTest::newRow("line break") << QVariant(u"a\r\nb"_s) << Type::String << registryText(u"a\r\nb"_s);
    QTest::newRow("number as text") << QVariant(u"1"_s) << Type::String << registryText(u"1"_s);
    QTest::newRow("real number") << QVariant(2.5) << Type::String << registryText(u"2.5"_s);
    QTest::newRow("at sign") << QVariant(u"@x.dll,-1"_s) << Type::String << registryText(u"@@x.dll,-1"_s);
    QTest::newRow("texts") << QVariant(QStringList{u"a"_s, u"b"_s}) << Type::MultiString
                           << registryTexts({u"a"_s, u"b"_s});
    QTest::newRow("no texts") << QVariant(QStringList()) << Type::MultiString << registryTexts({});
    QTest::newRow("texts with an at sign")
        << QVariant(QStringList{u"@a"_s, u"b"_s}) << Type::MultiString << registryTexts({u"@@a"_s, u"b"_s});
}

void TestRegistryKey::writesTypes()
{
    QFETCH(const QVariant, value);
    QFETCH(const RegistryType, type);
    QFETCH(const QByteArray, data);
    open()->setValue(u"v"_s, value);
    const auto raw = contract_->readRaw(scratch, u"v"_s);
    QVERIFY(raw);
    QCOMPARE(raw->type, type);
    QCOMPARE(raw->data, data);
}

void TestRegistryKey::theFormerTypeIsntKept()
{
    contract_->writeRaw(scratch, {u"v"_s, RegistryType::ExpandString, registryText(u"%windir%"_s)});
    open()->setValue(u"v"_s, u"text"_s);
    QCOMPARE(contract_->readRaw(scratch, u"v"_s)->type, RegistryType::String);
    open()->setValue(u"v"_s, 1);
    QCOMPARE(contract_->readRaw(scratch, u"v"_s)->type, RegistryType::DWord);
    open()->setValue(u"v"_s, QStringList{u"x"_s});
    QCOMPARE(contract_->readRaw(scratch, u"v"_s)->type, RegistryType::MultiString);
}

void TestRegistryKey::comesBackAsWritten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text with a zero") << QVariant(u"a\0b"_s);
    QTest::newRow("at sign") << QVariant(u"@shell32.dll"_s);
    QTest::newRow("two at signs") << QVariant(u"@@shell32.dll"_s);
    QTest::newRow("bytes") << QVariant(QByteArray("\0\1\xFFz", 4));
    QTest::newRow("texts with an at sign") << QVariant(QStringList{u"@a"_s, u"@@b"_s, u"c"_s});
    QTest::newRow("texts with an empty one") << QVariant(QStringList{u"a"_s, QString(), u"c"_s});
    QTest::newRow("beyond the first plane") << QVariant(u"\U0001F600"_s);
    QTest::newRow("long text") << QVariant(QString(100000, u'x'));
}

void TestRegistryKey::comesBackAsWritten()
{
    QFETCH(const QVariant, value);
    open()->setValue(u"v"_s, value);
    const QVariant read = open()->value(u"v"_s);
    QCOMPARE(read, value);
}

void TestRegistryKey::removesTheValueAndTheSubkeyOfOneName()
{
    open()->setValue(u"name"_s, 1);
    open()->setValue(u"name/deep/x"_s, 2);
    open()->setValue(u"named"_s, 3);
    open()->remove(u"name"_s);
    QCOMPARE(open()->allKeys(), QStringList{u"named"_s});
    QVERIFY(open()->childGroups().isEmpty());
    QVERIFY(!contract_->hasKey(scratch + u"\\name\\deep"_s));
}

void TestRegistryKey::removesInSubkeys()
{
    open()->setValue(u"a/b"_s, 1);
    open()->setValue(u"a/c/d"_s, 1);
    open()->remove(u"a/b"_s);
    QCOMPARE(open()->allKeys(), QStringList{u"a/c/d"_s});
    open()->remove(u"a/c"_s);
    QVERIFY(open()->allKeys().isEmpty());
    QCOMPARE(open()->childGroups(), QStringList{u"a"_s}); // the key above stays, though empty
}

void TestRegistryKey::removingWhatIsAbsentIsSilent()
{
    open()->setValue(u"a"_s, 1);
    open()->remove(u"b"_s);
    open()->remove(u"no/such/key"_s);
    QCOMPARE(open()->allKeys(), QStringList{u"a"_s});
    QVERIFY(open()->childGroups().isEmpty());
}

void TestRegistryKey::removingNoNameRemovesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << u""_s;
    QTest::newRow("a slash") << u"/"_s;
    QTest::newRow("slashes") << u"///"_s;
}

void TestRegistryKey::removingNoNameRemovesNothing()
{
    QFETCH(const QString, name);
    open()->setValue(u"."_s, 1);
    open()->setValue(u"a"_s, 1);
    open()->setValue(u"b/c"_s, 1);
    const QStringList all = open()->allKeys();
    const auto key = open();
    key->remove(name);
    QCOMPARE(key->allKeys(), all);
    key->beginGroup(u"b"_s);
    key->remove(name);
    key->endGroup();
    QCOMPARE(open()->allKeys(), all);
}

void TestRegistryKey::ownValueIsTheOneOfThatVeryName_data()
{
    addColumns<QString, QString>("listed", "exact");
    QTest::newRow("plain") << u"Plain name"_s << u"Plain name"_s;
    QTest::newRow("slash") << u"ATI\\AMD"_s << u"ATI/AMD"_s;
    QTest::newRow("backslash") << u"a/b"_s << u"a\\b"_s;
    QTest::newRow("a slash alone") << u"\\"_s << u"/"_s;
    QTest::newRow("a backslash alone") << u"/"_s << u"\\"_s;
    QTest::newRow("both") << u"\\/x//\\"_s << u"/\\x\\\\/"_s;
    QTest::newRow("the word for the unnamed value") << u"Default"_s << u"Default"_s;
    QTest::newRow("other letters") << u"服/务"_s << u"服\\务"_s;
}

void TestRegistryKey::ownValueIsTheOneOfThatVeryName()
{
    QFETCH(const QString, listed);
    QFETCH(const QString, exact);
    const QString text = u"\"C:\\App\\app.exe\" 服务"_s;
    contract_->writeRaw(scratch, {QString(), RegistryType::String, registryText(u"unnamed"_s)});
    contract_->writeRaw(scratch, {exact, RegistryType::String, registryText(text)});
    contract_->writeRaw(scratch + u"\\a"_s, {u"b"_s, RegistryType::String, registryText(u"below"_s)});
    const auto key = open();
    QVERIFY(key->childKeys().contains(listed));
    QCOMPARE(key->ownValue(listed), QVariant(text));
    key->setOwnValue(listed, u"new"_s);
    QCOMPARE(contract_->readRaw(scratch, exact).value_or(RegistryValue()).data, registryText(u"new"_s));
    key->removeOwnValue(listed);
    QVERIFY(!contract_->readRaw(scratch, exact));
    QVERIFY(!key->ownValue(listed).isValid());
    key->removeOwnValue(listed);
    QCOMPARE(key->allKeys(), (QStringList{u"."_s, u"a/b"_s}));
    QCOMPARE(key->value(u"."_s), QVariant(u"unnamed"_s));
    key->setOwnValue(listed, u"again"_s);
    QCOMPARE(contract_->readRaw(scratch, exact).value_or(RegistryValue()).data, registryText(u"again"_s));
}

void TestRegistryKey::ownValueHasItsType()
{
    const auto key = open();
    contract_->writeRaw(scratch, {u"a\\expand"_s, RegistryType::ExpandString, registryText(u"%windir%"_s)});
    contract_->writeRaw(scratch, {u"a\\number"_s, RegistryType::DWord, registryDWord(0xfffffffe)});
    contract_->writeRaw(scratch, {u"a\\long"_s, RegistryType::QWord, registryQWord(5000000000)});
    contract_->writeRaw(scratch, {u"a\\open"_s, RegistryType::String, utf16(u"no zero"_s)});
    contract_->writeRaw(scratch, {u"a\\empty"_s, RegistryType::String, {}});
    QCOMPARE(key->ownValue(u"a/expand"_s), QVariant(u"%windir%"_s));
    QCOMPARE(key->ownValue(u"a/number"_s), QVariant(-2));
    QCOMPARE(key->ownValue(u"a/long"_s), QVariant(qint64(5000000000)));
    QCOMPARE(key->ownValue(u"a/open"_s), QVariant(u"no zero"_s));
    QCOMPARE(key->ownValue(u"a/empty"_s).toString(), QString());
}

void TestRegistryKey::ownValueOfAGroup()
{
    const auto key = open();
    key->beginGroup(u"g/h"_s);
    key->setValue(u"made"_s, 1);
    contract_->writeRaw(scratch + u"\\g\\h"_s, {u"a\\b"_s, RegistryType::String, registryText(u"there"_s)});
    QCOMPARE(key->ownValue(u"a/b"_s), QVariant(u"there"_s));
    key->setOwnValue(u"c/d"_s, u"new"_s);
    QVERIFY(contract_->readRaw(scratch + u"\\g\\h"_s, u"c\\d"_s));
    key->removeOwnValue(u"a/b"_s);
    QVERIFY(!contract_->readRaw(scratch + u"\\g\\h"_s, u"a\\b"_s));
}

void TestRegistryKey::unnamedValueIsNoOwnValue()
{
    open()->setValue(u"."_s, u"unnamed"_s);
    const auto key = open();
    for (const QString &name : {QString(), u""_s, u"."_s}) {
        QVERIFY(!key->ownValue(name).isValid());
        key->setOwnValue(name, u"new"_s);
        key->removeOwnValue(name);
        QCOMPARE(key->value(u"."_s), QVariant(u"unnamed"_s));
        QCOMPARE(key->allKeys(), QStringList(u"."_s));
    }
}

void TestRegistryKey::removingTheUnnamedValueLeavesTheOthers()
{
    open()->setValue(u"Default"_s, 1);
    open()->setValue(u"a"_s, 1);
    open()->setValue(u"s/a"_s, 1);
    open()->remove(u"."_s);
    QCOMPARE(open()->allKeys(), (QStringList{u"a"_s, u"s/a"_s}));
}

void TestRegistryKey::anObjectSeesWhatAnotherWrites()
{
    const auto one = open();
    const auto other = open();
    one->setValue(u"a"_s, 1);
    QCOMPARE(other->value(u"a"_s), QVariant(1));
    other->remove(u"a"_s);
    QVERIFY(!one->contains(u"a"_s));
}

KESTRUNE_SUITE(TestRegistryKey)
#include "tst_registrykey.moc"
