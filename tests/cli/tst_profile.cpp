// SPDX-License-Identifier: GPL-3.0-or-later
// Profiles: what is read of them, and every mistake with its place.

#include "cli/profile.h"

#include "support/files.h"
#include "support/suite.h"

#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Profile parsed(const QByteArray &json, ProfileMistakes &mistakes)
{
    return parseProfile(json, u"p.json"_s, mistakes, [](const QString &key, const QString &name) {
        return key == "services"_L1 && name == "OwnService"_L1;
    });
}

} // namespace

class TestProfile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEverything();
    void namesMistakes_data();
    void namesMistakes();
    void allMistakesAreTold();
    void longListsAreRefused();
    void neverTakesWildcards();
    void manyWildcardsHideNothing();
    void whatLeavesSomethingOut();
    void theTemplateHasNoMistake();
    void theSchemaKnowsTheKeysOfTheTemplate();
    void theExamplesHaveNoMistake_data();
    void theExamplesHaveNoMistake();
};

void TestProfile::readsEverything()
{
    ProfileMistakes mistakes;
    const Profile profile = parsed(R"({"formatVersion": 1, "$comment": "for the office", "user": "skip",
        "keep": {"printer": true, "nfc": false}, "programs": true, "features": true,
        "tweaks": {"ssd1": false, "gaming11": true}, "services": ["DiagTrack", "OwnService"],
        "tasks": ["\\Microsoft\\Windows\\Printing\\PrinterCleanupTask"], "packages": ["Microsoft.BingNews"],
        "startup": ["Steam"], "never": ["Xbox*"]})",
                                   mistakes);
    QCOMPARE(mistakes, ProfileMistakes());
    QCOMPARE(profile.user, UserRule::Skip);
    QCOMPARE(profile.keep, (QMap<QString, bool>{{u"printer"_s, true}, {u"nfc"_s, false}}));
    QCOMPARE(profile.tweaks, (QMap<QString, bool>{{u"ssd1"_s, false}, {u"gaming11"_s, true}}));
    QCOMPARE(profile.services, (QStringList{u"DiagTrack"_s, u"OwnService"_s}));
    QCOMPARE(profile.tasks, QStringList{u"Microsoft\\Windows\\Printing\\PrinterCleanupTask"_s});
    QCOMPARE(profile.packages, QStringList{u"Microsoft.BingNews"_s});
    QCOMPARE(profile.startup, QStringList{u"Steam"_s});
    QCOMPARE(profile.never, QStringList{u"Xbox*"_s});
}

void TestProfile::namesMistakes_data()
{
    addColumns<QByteArray, QString>("json", "mistake");
    const auto row = [](const char *name, const QByteArray &json, const QString &mistake) {
        QTest::newRow(name) << json << mistake;
    };
    row("no JSON", "{\n  \"formatVersion\": 1,,\n}", u"p.json:2:23: "_s);
    row("no object", "[1]", u"p.json:1:1: must be an object"_s);
    row("no version", "{}", u"p.json:1:1: 'formatVersion' is missing"_s);
    row("another version", "{\"formatVersion\": 2}", u"p.json:1:2: must be 1"_s);
    row("unknown key", "{\"formatVersion\": 1,\n \"serivces\": []}", u"p.json:2:2: unknown key 'serivces'"_s);
    row("key twice", "{\"formatVersion\": 1,\n \"never\": [], \"never\": []}",
        u"p.json:2:15: 'never' stands here for the second time"_s);
    row("wrong kind", "{\"formatVersion\": 1, \"programs\": \"yes\"}", u"p.json:1:22: must be true or false"_s);
    row("unknown feature", "{\"formatVersion\": 1,\n\"keep\": {\n  \"priner\": true}}",
        u"p.json:3:3: there is no feature 'priner'; there are printer, "_s);
    row("unknown option", "{\"formatVersion\": 1, \"tweaks\": {\"windows11\": true}}",
        u"p.json:1:33: there is no option 'windows11'"_s);
    row("unknown service", "{\"formatVersion\": 1, \"services\": [\"DiagTrack\",\n  \"Nobody\"]}",
        u"p.json:2:3: no catalogue knows the service 'Nobody', and this PC doesn't have it"_s);
    row("unknown task", "{\"formatVersion\": 1, \"tasks\": [\"\\\\A\\\\B\"]}",
        u"p.json:1:32: no catalogue knows the scheduled task '\\A\\B'"_s);
    row("unknown package", "{\"formatVersion\": 1, \"packages\": [\"A.B\"]}",
        u"p.json:1:35: no catalogue knows the package 'A.B'"_s);
    row("not a text", "{\"formatVersion\": 1, \"never\": [\"a\", 5]}",
        u"p.json:1:37: must be a text that isn't empty"_s);
    row("name twice", "{\"formatVersion\": 1, \"never\": [\"a\", \"A\"]}",
        u"p.json:1:37: 'A' stands here for the second time"_s);
    row("critical", "{\"formatVersion\": 1, \"services\": [\"RpcSs\"]}",
        u"p.json:1:35: Windows can't do without the service 'RpcSs'"_s);
    row("also in never", "{\"formatVersion\": 1, \"services\": [\"DiagTrack\"], \"never\": [\"diag*\"]}",
        u"p.json:1:35: 'DiagTrack' is in 'never', too"_s);
    row("option in never", "{\"formatVersion\": 1, \"tweaks\": {\"ssd1\": true}, \"never\": [\"ssd?\"]}",
        u"p.json:1:33: 'ssd1' is in 'never', too"_s);
    row("option without features", "{\"formatVersion\": 1, \"features\": false, \"tweaks\": {\"ssd1\": true}}",
        u"p.json:1:52: 'features' is false"_s);
    row("package without programs",
        "{\"formatVersion\": 1, \"programs\": false, \"packages\": [\"Microsoft.BingNews\"]}",
        u"p.json:1:41: 'programs' is false"_s);
    row("service of a kept feature",
        "{\"formatVersion\": 1, \"keep\": {\"printer\": true}, \"services\": [\"Spooler\"]}",
        u"p.json:1:62: 'Spooler' belongs to 'printer', which is kept"_s);
    row("user", "{\"formatVersion\": 1, \"user\": \"me\"}", u"p.json:1:22: must be \"refuse\" or \"skip\""_s);
    row("line break in a name", "{\"formatVersion\": 1, \"services\": [\"a\\nb\"]}",
        u"p.json:1:35: no catalogue knows the service 'a\\nb'"_s);
    row("escaped key", "{\"formatVersion\": 1, \"a\\\"b\": 1}", u"p.json:1:22: unknown key 'a\"b'"_s);
}

void TestProfile::namesMistakes()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, mistake);
    ProfileMistakes mistakes;
    parsed(json, mistakes);
    QCOMPARE(mistakes.size(), 1);
    QVERIFY2(mistakes.constFirst().startsWith(mistake), qPrintable(mistakes.constFirst()));
}

void TestProfile::allMistakesAreTold()
{
    ProfileMistakes mistakes;
    parsed("{\"one\": 1, \"services\": [\"Nobody\", \"RpcSs\"], \"programs\": 1}", mistakes);
    QCOMPARE(mistakes.size(), 5);
}

void TestProfile::longListsAreRefused()
{
    const auto mistakesOf = [](int count) {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names.append(u"\"a%1\""_s.arg(i));
        ProfileMistakes mistakes;
        parsed("{\"formatVersion\": 1, \"startup\": [" + names.join(u',').toUtf8() + "]}", mistakes);
        return mistakes;
    };
    QCOMPARE(mistakesOf(1000), ProfileMistakes());
    QCOMPARE(mistakesOf(1001), ProfileMistakes{u"p.json:1:22: must have at most 1000 texts"_s});
}

void TestProfile::neverTakesWildcards()
{
    Profile profile;
    profile.never = {u"Xbl*"_s,           u"\\Microsoft\\Windows\\Printing\\*"_s, u"ssd?"_s, u"a.b"_s, u"*.old"_s,
                     u"one \U0001F600?"_s};
    for (const QString &name : {u"XblAuthManager"_s, u"xblgamesave"_s, u"Microsoft\\Windows\\Printing\\EduPrintProv"_s,
                                u"\\Microsoft\\Windows\\Printing\\EduPrintProv"_s, u"ssd1"_s, u"A.B"_s,
                                u"a.older.OLD"_s, u"one \U0001F600\U0001F601"_s})
        QVERIFY2(profile.isLeftAlone(name), qPrintable(name));
    for (const QString &name : {u"MyXblAuthManager"_s, u"ssd10"_s, u"ssd"_s, u"axb"_s, u"Microsoft\\Windows\\Other"_s})
        QVERIFY2(!profile.isLeftAlone(name), qPrintable(name));
}

void TestProfile::manyWildcardsHideNothing()
{
    const QString letters(40, u'a');
    Profile profile;
    profile.never = {u"*"_s + u"a*"_s.repeated(10) + u"ac*"_s};
    QVERIFY(profile.isLeftAlone(letters + u'c' + letters));
    QVERIFY(!profile.isLeftAlone(letters + letters));
}

void TestProfile::whatLeavesSomethingOut()
{
    Profile profile;
    QVERIFY(!profile.leavesOut());
    profile.tweaks.insert(u"ssd1"_s, true);
    profile.keep.insert(u"printer"_s, false);
    profile.services = {u"DiagTrack"_s};
    QVERIFY(!profile.leavesOut());
    profile.tweaks.insert(u"ssd2"_s, false);
    QVERIFY(profile.leavesOut());
    profile.tweaks.clear();
    profile.never = {u"Steam"_s};
    QVERIFY(profile.leavesOut());
}

void TestProfile::theTemplateHasNoMistake()
{
    ProfileMistakes mistakes;
    const Profile profile = parseProfile(profileTemplate(), u"new.json"_s, mistakes);
    QCOMPARE(mistakes, ProfileMistakes());
    QCOMPARE(profile.keep.size(), 9);
    QVERIFY(!profile.leavesOut());
}

void TestProfile::theSchemaKnowsTheKeysOfTheTemplate()
{
    const QJsonObject schema = QJsonDocument::fromJson(profileSchema()).object();
    const QJsonObject properties = schema.value("properties"_L1).toObject();
    for (const QString &key : QJsonDocument::fromJson(profileTemplate()).object().keys())
        QVERIFY2(properties.contains(key), qPrintable(key));
    QCOMPARE(properties.value("tweaks"_L1).toObject().value("properties"_L1).toObject().size(), 34);
    QCOMPARE(schema.value("additionalProperties"_L1), QJsonValue(false));
}

void TestProfile::theExamplesHaveNoMistake_data()
{
    QTest::addColumn<QString>("file");
    for (const char *name : {"careful", "games", "office"})
        QTest::newRow(name) << QStringLiteral(KESTRUNE_PROFILES "/%1.json").arg(QLatin1StringView(name));
}

void TestProfile::theExamplesHaveNoMistake()
{
    QFETCH(QString, file);
    const QByteArray json = readFile(file);
    QVERIFY(json.contains("$comment"));
    ProfileMistakes mistakes;
    QVERIFY(parseProfile(json, file, mistakes).leavesOut());
    QCOMPARE(mistakes, ProfileMistakes());
}

KESTRUNE_SUITE(TestProfile)
#include "tst_profile.moc"
