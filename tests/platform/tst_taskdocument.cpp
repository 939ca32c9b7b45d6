// SPDX-License-Identifier: GPL-3.0-or-later
// What a scheduled task's XML says, and its switch.

#include "platform/taskdocument.h"
#include "support/suite.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestTaskDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switchComesAndGoes_data();
    void switchComesAndGoes();
    void switchIsSetWhereItStands_data();
    void switchIsSetWhereItStands();
    void whatItSays_data();
    void whatItSays();
    void descriptionAndUri();
    void malformedTextIsLeftAlone();
};

void TestTaskDocument::switchComesAndGoes_data()
{
    addColumns<QString, QString>("on", "off");

    // clang-format off
    QTest::newRow("after the battery rules")
        << u"<Task>\n  <Settings>\n    <DisallowStartIfOnBatteries>false</DisallowStartIfOnBatteries>\n"
           "    <StopIfGoingOnBatteries>true</StopIfGoingOnBatteries>\n    <Hidden>true</Hidden>\n  </Settings>\n</Task>"_s
        << u"<Task>\n  <Settings>\n    <DisallowStartIfOnBatteries>false</DisallowStartIfOnBatteries>\n"
           "    <StopIfGoingOnBatteries>true</StopIfGoingOnBatteries>\n    <Enabled>false</Enabled>\n    <Hidden>true</Hidden>\n  </Settings>\n</Task>"_s;
    QTest::newRow("first, without battery rules")
        << u"<Task>\n  <Settings>\n    <Hidden>true</Hidden>\n  </Settings>\n</Task>"_s
        << u"<Task>\n  <Settings>\n    <Enabled>false</Enabled>\n    <Hidden>true</Hidden>\n  </Settings>\n</Task>"_s;
    QTest::newRow("a trigger's switch stays")
        << u"<Task>\n  <Settings>\n    <Hidden>true</Hidden>\n  </Settings>\n  <Triggers>\n    <BootTrigger>\n      <Enabled>false</Enabled>\n    </BootTrigger>\n  </Triggers>\n</Task>"_s
        << u"<Task>\n  <Settings>\n    <Enabled>false</Enabled>\n    <Hidden>true</Hidden>\n  </Settings>\n  <Triggers>\n    <BootTrigger>\n      <Enabled>false</Enabled>\n    </BootTrigger>\n  </Triggers>\n</Task>"_s;
    QTest::newRow("texts with tags in comments")
        << u"<Task>\n  <Description>&amp;😀ü</Description>\n  <!-- <Settings><Enabled>true</Enabled> -->\n  <Settings>\n    <!-- <Enabled> -->\n    <Hidden>&lt;Enabled&gt;ä</Hidden>\n  </Settings>\n</Task>"_s
        << u"<Task>\n  <Description>&amp;😀ü</Description>\n  <!-- <Settings><Enabled>true</Enabled> -->\n  <Settings>\n    <Enabled>false</Enabled>\n    <!-- <Enabled> -->\n    <Hidden>&lt;Enabled&gt;ä</Hidden>\n  </Settings>\n</Task>"_s;
    // clang-format on
}

void TestTaskDocument::switchComesAndGoes()
{
    QFETCH(QString, on);
    QFETCH(QString, off);
    QCOMPARE(withTaskEnabled(on, false), off);
    QCOMPARE(withTaskEnabled(off, true), on);
    QCOMPARE(withTaskEnabled(on, true), on);
    QCOMPARE(withTaskEnabled(off, false), off);
    QVERIFY(taskFacts(on).enabled);
    QVERIFY(!taskFacts(off).enabled);
}

void TestTaskDocument::switchIsSetWhereItStands_data()
{
    addColumns<QString, QString, QString>("document", "off", "on");

    // clang-format off
    QTest::newRow("said to be on")    << u"<Task><Settings><Enabled>true</Enabled></Settings></Task>"_s
                                      << u"<Task><Settings><Enabled>false</Enabled></Settings></Task>"_s
                                      << u"<Task><Settings></Settings></Task>"_s;
    QTest::newRow("empty Settings")   << u"<Task>\n  <Settings />\n</Task>"_s
                                      << u"<Task>\n  <Settings>\n    <Enabled>false</Enabled>\n  </Settings>\n</Task>"_s
                                      << u"<Task>\n  <Settings />\n</Task>"_s;
    QTest::newRow("no Settings")      << u"<Task>\n  <Triggers />\n</Task>"_s
                                      << u"<Task>\n  <Triggers />\n  <Settings>\n    <Enabled>false</Enabled>\n  </Settings>\n</Task>"_s
                                      << u"<Task>\n  <Triggers />\n</Task>"_s;
    QTest::newRow("empty switch")     << u"<Task><Settings><Enabled/><Hidden/></Settings></Task>"_s
                                      << u"<Task><Settings><Enabled>false</Enabled><Hidden/></Settings></Task>"_s
                                      << u"<Task><Settings><Hidden/></Settings></Task>"_s;
    // clang-format on
}

void TestTaskDocument::switchIsSetWhereItStands()
{
    QFETCH(QString, document);
    QFETCH(QString, off);
    QFETCH(QString, on);
    QCOMPARE(withTaskEnabled(document, false), off);
    QCOMPARE(withTaskEnabled(document, true), on);
}

void TestTaskDocument::whatItSays_data()
{
    addColumns<QString, bool, bool>("body", "enabled", "forAdministrators");

    const auto principal = [](const char *body) {
        return u"<Principals><Principal id=\"x\">%1</Principal></Principals>"_s.arg(QLatin1StringView(body));
    };
    // clang-format off
    QTest::newRow("nothing")              << u""_s << true << false;
    QTest::newRow("off")                  << u"<Settings><Enabled> false </Enabled></Settings>"_s << false << false;
    QTest::newRow("off as a number")      << u"<Settings><Enabled>0</Enabled></Settings>"_s << false << false;
    QTest::newRow("on")                   << u"<Settings><Enabled>true</Enabled></Settings>"_s << true << false;
    QTest::newRow("in a trigger only")    << u"<Triggers><BootTrigger><Enabled>false</Enabled></BootTrigger></Triggers>"_s << true << false;
    QTest::newRow("deeper in Settings")   << u"<Settings><IdleSettings><Enabled>false</Enabled></IdleSettings></Settings>"_s << true << false;
    QTest::newRow("the system by number") << principal("<UserId>S-1-5-18</UserId>") << true << true;
    QTest::newRow("the system by name")   << principal("<UserId>system</UserId>") << true << true;
    QTest::newRow("highest rights")       << principal("<GroupId>S-1-5-32-545</GroupId><RunLevel>HighestAvailable</RunLevel>") << true << true;
    QTest::newRow("least rights")         << principal("<UserId>S-1-5-19</UserId><RunLevel>LeastPrivilege</RunLevel>") << true << false;
    // clang-format on
}

void TestTaskDocument::whatItSays()
{
    QFETCH(QString, body);
    const TaskFacts facts = taskFacts(u"<Task version=\"1.2\" xmlns=\"http://x\">"_s + body + u"</Task>"_s);
    QTEST(facts.enabled, "enabled");
    QTEST(facts.forAdministrators, "forAdministrators");
}

void TestTaskDocument::descriptionAndUri()
{
    const TaskFacts facts = taskFacts(u"<Task><RegistrationInfo><Author>a</Author><Description>b &amp; ü</Description>"
                                      "<URI>\\x\\y</URI></RegistrationInfo></Task>"_s);
    QCOMPARE(facts.description, u"b & ü"_s);
    QCOMPARE(facts.uri, u"\\x\\y"_s);
}

void TestTaskDocument::malformedTextIsLeftAlone()
{
    for (const QString &document : {u""_s, u"no task"_s, u"<Task><Settings><Enabled>"_s, u"<Task></Settings></Task>"_s,
                                    u"<tasks/></Task>"_s, u"<Task></Task></Task>"_s}) {
        QVERIFY(taskFacts(document).enabled);
        QCOMPARE(withTaskEnabled(document, true), document);
        QCOMPARE(withTaskEnabled(document, false), document);
    }
}

KESTRUNE_SUITE(TestTaskDocument)
#include "tst_taskdocument.moc"
