// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the WMI query and of the text that it gives.

#include "fakeplatform.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/wmi.h"

#include <QTest>
#include <QThread>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

/** WMI that fails as a test wishes, and remembers what it was asked. */
class FakeWmi : public FakePlatform
{
public:
    WmiAnswer queryWmi(const QString &className, const QStringList &properties) const override
    {
        askedClass = className;
        askedProperties = properties;
        return answer;
    }

    WmiAnswer answer;
    mutable QString askedClass;
    mutable QStringList askedProperties;
};

} // namespace

Q_DECLARE_METATYPE(WmiStep)

class TestWmi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachPropertyOfEachInstanceIsAnEntry();
    void propertiesComeInTheOrderAsked();
    void aClassWithoutInstancesGivesTheEmptyText();
    void aValueReadsAsItsText_data();
    void aValueReadsAsItsText();
    void aPropertyThatIsMissingReadsAsANumber();
    void theNameStandsAsItWasAsked();
    void anUnknownClassIsAFailedQuery();
    void nothingIsLoggedOfAQueryThatWorked();
    void classNameAndPropertiesArePassedOnAsTheyStand();
    void eachFailedStepIsLoggedInItsOwnWords_data();
    void eachFailedStepIsLoggedInItsOwnWords();
    void aFailedStartOfComDoesNotEndTheQuery();
    void severalFailuresAreLoggedInOrder();
    void twoThreadsMayAskAtOnce();
};

void TestWmi::eachPropertyOfEachInstanceIsAnEntry()
{
    const TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_VideoController"_s,
                                      {{{u"Caption"_s, u"Adapter A"_s}, {u"DriverVersion"_s, u"31.0.1"_s}},
                                       {{u"Caption"_s, u"Adapter B"_s}, {u"DriverVersion"_s, u"32.0.2"_s}}});
    QCOMPARE(WmiQuery(u"Win32_VideoController"_s, {u"Caption"_s, u"DriverVersion"_s}),
             u"\r\nCaption=Adapter A\r\nDriverVersion=31.0.1\r\nCaption=Adapter B\r\nDriverVersion=32.0.2"_s);
}

void TestWmi::propertiesComeInTheOrderAsked()
{
    const TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_Test"_s, {{{u"A"_s, u"a"_s}, {u"B"_s, u"b"_s}, {u"C"_s, u"c"_s}}});
    QCOMPARE(WmiQuery(u"Win32_Test"_s, {u"C"_s, u"A"_s, u"C"_s}), u"\r\nC=c\r\nA=a\r\nC=c"_s);
}

void TestWmi::aClassWithoutInstancesGivesTheEmptyText()
{
    LoggingMachine machine;
    machine.machine().setWmiInstances(u"Win32_DiskDrive"_s, {});
    QCOMPARE(WmiQuery(u"Win32_DiskDrive"_s, {u"Caption"_s}), QString());
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestWmi::aValueReadsAsItsText_data()
{
    addColumns<QJsonValue, QString>("value", "text");
    QTest::newRow("text") << QJsonValue(u"Adapter"_s) << u"Adapter"_s;
    QTest::newRow("empty text") << QJsonValue(QString(u""_s)) << u""_s;
    QTest::newRow("text with an equals sign") << QJsonValue(u"a=b"_s) << u"a=b"_s;
    QTest::newRow("text with a line break") << QJsonValue(u"a\r\nb"_s) << u"a\r\nb"_s;
    QTest::newRow("text that looks like a number") << QJsonValue(u"17179869184"_s) << u"17179869184"_s;
    QTest::newRow("other letters") << QJsonValue(u"Gerät 显卡"_s) << u"Gerät 显卡"_s;
    QTest::newRow("number") << QJsonValue(1920) << u"1920"_s;
    QTest::newRow("zero") << QJsonValue(0) << u"0"_s;
    QTest::newRow("negative number") << QJsonValue(-5) << u"-5"_s;
    QTest::newRow("32 bits read with a sign") << QJsonValue(4294967295LL) << u"-1"_s;
    QTest::newRow("only the first 32 bits") << QJsonValue(4294967296LL + 7) << u"7"_s;
    QTest::newRow("no") << QJsonValue(false) << u"0"_s;
}

void TestWmi::aValueReadsAsItsText()
{
    QFETCH(const QJsonValue, value);
    QFETCH(const QString, text);
    const TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_Test"_s, {{{u"P"_s, value}}});
    QCOMPARE(WmiQuery(u"Win32_Test"_s, {u"P"_s}), u"\r\nP="_s + text);
}

void TestWmi::aPropertyThatIsMissingReadsAsANumber()
{
    const TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_Test"_s, {{{u"Null"_s, QJsonValue::Null}, {u"P"_s, u"p"_s}}});
    const QString text = WmiQuery(u"Win32_Test"_s, {u"Null"_s, u"Absent"_s, u"P"_s});
    const QStringList entries = text.split(u"\r\n"_s);
    QCOMPARE(entries.size(), 4);
    for (const QString &entry : {entries.at(1), entries.at(2)}) {
        bool isNumber = false;
        entry.section(u'=', 1).toInt(&isNumber);
        QVERIFY2(isNumber, qPrintable(entry));
    }
    QCOMPARE(entries.at(1).section(u'=', 0, 0), u"Null"_s);
    QCOMPARE(entries.at(2).section(u'=', 0, 0), u"Absent"_s);
    QCOMPARE(entries.at(3), u"P=p"_s);
}

void TestWmi::theNameStandsAsItWasAsked()
{
    const TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_Process"_s, {{{u"HandleCount"_s, 12}}, {{u"HandleCount"_s, 30}}});
    // The monitor asks in lower case.
    QCOMPARE(WmiQuery(u"win32_process"_s, {u"handlecount"_s}), u"\r\nhandlecount=12\r\nhandlecount=30"_s);
}

void TestWmi::anUnknownClassIsAFailedQuery()
{
    LoggingMachine machine;
    QCOMPARE(WmiQuery(u"Win32_Nothing"_s, {u"Caption"_s}), QString());
    QCOMPARE(machine.errorLog(), QStringList{u"WmiQuery: Query failed! Error code-2147217392"_s});
}

void TestWmi::nothingIsLoggedOfAQueryThatWorked()
{
    LoggingMachine machine;
    machine.machine().setWmiInstances(u"Win32_Test"_s, {{{u"P"_s, 1}}});
    WmiQuery(u"Win32_Test"_s, {u"P"_s, u"Absent"_s});
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestWmi::classNameAndPropertiesArePassedOnAsTheyStand()
{
    const PlatformInForce<FakeWmi> wmi;
    WmiQuery(u"win32_process"_s, {u"HandleCount"_s, u"caption"_s});
    QCOMPARE(wmi->askedClass, u"win32_process"_s);
    QCOMPARE(wmi->askedProperties, (QStringList{u"HandleCount"_s, u"caption"_s}));
}

void TestWmi::eachFailedStepIsLoggedInItsOwnWords_data()
{
    addColumns<WmiStep, qint32, QString>("step", "code", "line");
    const QString prefix = u"WmiQuery: Win32_DiskDrive->Caption"_s;
    QTest::newRow("COM") << WmiStep::InitializeCom << -2147417850
                         << prefix + u" Failed to initialize COM library.Error code -2147417850"_s;
    QTest::newRow("locator") << WmiStep::CreateLocator << -2147221164
                             << prefix + u" Failed to create IWbemLocator object. Error code-2147221164"_s;
    QTest::newRow("connection") << WmiStep::Connect << -2147217394
                                << prefix + u" Could not connect. Error code-2147217394"_s;
    QTest::newRow("blanket") << WmiStep::SetBlanket << -2147024891
                             << prefix + u" Could not set proxy blanket. Error code-2147024891"_s;
    QTest::newRow("query") << WmiStep::Query << -2147217385 << u"WmiQuery: Query failed! Error code-2147217385"_s;
    QTest::newRow("query, positive") << WmiStep::Query << 1 << u"WmiQuery: Query failed! Error code1"_s;
}

void TestWmi::eachFailedStepIsLoggedInItsOwnWords()
{
    QFETCH(const WmiStep, step);
    QFETCH(const qint32, code);
    QFETCH(const QString, line);
    const PlatformInForce<FakeWmi> wmi;
    wmi->answer.failures = {{step, code}};
    QCOMPARE(WmiQuery(u"Win32_DiskDrive"_s, {u"Caption"_s, u"Size"_s}), QString());
    QCOMPARE(wmi->errorLog(), QStringList{line});
}

void TestWmi::aFailedStartOfComDoesNotEndTheQuery()
{
    const PlatformInForce<FakeWmi> wmi;
    wmi->answer.failures = {{WmiStep::InitializeCom, -2147417850}};
    wmi->answer.instances = {{u"Disk"_s}};
    QCOMPARE(WmiQuery(u"Win32_DiskDrive"_s, {u"Caption"_s}), u"\r\nCaption=Disk"_s);
    QCOMPARE(wmi->errorLog().size(), 1);
}

void TestWmi::severalFailuresAreLoggedInOrder()
{
    const PlatformInForce<FakeWmi> wmi;
    wmi->answer.failures = {{WmiStep::InitializeCom, -1}, {WmiStep::Query, -2}};
    QCOMPARE(WmiQuery(u"Win32_DiskDrive"_s, {u"Caption"_s}), QString());
    QCOMPARE(wmi->errorLog(),
             (QStringList{u"WmiQuery: Win32_DiskDrive->Caption Failed to initialize COM library.Error code -1"_s,
                          u"WmiQuery: Query failed! Error code-2"_s}));
}

void TestWmi::twoThreadsMayAskAtOnce()
{
    const TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_One"_s, {{{u"P"_s, u"one"_s}}});
    machine.machine().setWmiInstances(u"Win32_Two"_s, {{{u"P"_s, u"two"_s}}});
    const auto ask = [](const QString &className, QStringList &answers) {
        return QThread::create([className, &answers] {
            for (int i = 0; i < 50; ++i)
                answers.append(WmiQuery(className, {u"P"_s}));
        });
    };
    QStringList ones;
    QStringList twos;
    const std::unique_ptr<QThread> first(ask(u"Win32_One"_s, ones));
    const std::unique_ptr<QThread> second(ask(u"Win32_Two"_s, twos));
    first->start();
    second->start();
    QVERIFY(first->wait(30000));
    QVERIFY(second->wait(30000));
    QCOMPARE(ones, QStringList(50, u"\r\nP=one"_s));
    QCOMPARE(twos, QStringList(50, u"\r\nP=two"_s));
}

KESTRUNE_SUITE(TestWmi)
#include "tst_wmi.moc"
