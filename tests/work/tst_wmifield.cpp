// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of how one property is cut out of a WMI answer, and of the size of the memory.

#include "support/suite.h"
#include "work/sysinfo/systeminfo.h"
#include "work/wmi.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestWmiField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFieldIsCutOut_data();
    void aFieldIsCutOut();
    void aTextWithoutTheNameGivesNothing_data();
    void aTextWithoutTheNameGivesNothing();
    void memoryIsCountedInWholeUnits_data();
    void memoryIsCountedInWholeUnits();
    void memoryThatIsNoNumberIsUnknown_data();
    void memoryThatIsNoNumberIsUnknown();
};

void TestWmiField::aFieldIsCutOut_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("line"); // the value to the end of its line
    QTest::addColumn<QString>("text"); // and to the end of all
    const auto row = [](const char *title, const QString &answer, const QString &line, const QString &text) {
        QTest::newRow(title) << answer << line << text;
    };
    row("with a property after it", u"\r\nSpeed=3200\r\nTag=a"_s, u"3200"_s, u"3200\r\nTag=a"_s);
    row("with one before it", u"\r\nTag=a\r\nSpeed=3200\r\nName=b"_s, u"3200"_s, u"3200\r\nName=b"_s);
    row("the last one loses a character", u"\r\nSpeed=3200"_s, u"320"_s, u"3200"_s);
    row("the last one of one character", u"\r\nSpeed=3"_s, u""_s, u"3"_s);
    row("the last one, empty", u"\r\nSpeed="_s, u""_s, u""_s);
    row("empty, with one after it", u"\r\nSpeed=\r\nTag=a"_s, u""_s, u"\r\nTag=a"_s);
    row("the first of two instances", u"\r\nSpeed=3200\r\nSpeed=2400"_s, u"3200"_s, u"3200\r\nSpeed=2400"_s);
    row("an equals sign in the value", u"\r\nSpeed=a=b=c\r\nTag=a"_s, u"a=b=c"_s, u"a=b=c\r\nTag=a"_s);
    row("a line break in the value", u"\r\nSpeed=a\r\nb\r\nTag=a"_s, u"a"_s, u"a\r\nb\r\nTag=a"_s);
    row("a lone line feed doesn't end it", u"\r\nSpeed=a\nb\r\nTag=a"_s, u"a\nb"_s, u"a\nb\r\nTag=a"_s);
    row("a longer name with it inside comes first", u"\r\nMaxSpeed=9\r\nSpeed=1\r\n"_s, u"9"_s, u"9\r\nSpeed=1\r\n"_s);
    row("cut off after the name", u"\r\nSpeed"_s, u""_s, u""_s);
    row("cut off within the line end", u"\r\nSpeed=3200\r"_s, u"3200"_s, u"3200\r"_s);
    // The name is looked for in any case, and found in one: what is cut is as long as the name.
    row("name in another case", u"\r\nSPEED=3200\r\nTag=a"_s, u"ED=3200"_s, u"ED=3200\r\nTag=a"_s);
}

void TestWmiField::aFieldIsCutOut()
{
    QFETCH(const QString, answer);
    QFETCH(const QString, line);
    QFETCH(const QString, text);
    QCOMPARE(wmiField(answer, u"Speed"_s), std::optional(line));
    QCOMPARE(wmiField(answer, u"Speed"_s, FieldEnd::Line), std::optional(line));
    QCOMPARE(wmiField(answer, u"Speed"_s, FieldEnd::Text), std::optional(text));
}

void TestWmiField::aTextWithoutTheNameGivesNothing_data()
{
    QTest::addColumn<QString>("answer");
    QTest::newRow("empty") << QString();
    QTest::newRow("another property") << u"\r\nTag=3200"_s;
    QTest::newRow("cut off within the name") << u"\r\nSpee"_s;
}

void TestWmiField::aTextWithoutTheNameGivesNothing()
{
    QFETCH(const QString, answer);
    QVERIFY(!wmiField(answer, u"Speed"_s));
    QVERIFY(!wmiField(answer, u"Speed"_s, FieldEnd::Text));
}

void TestWmiField::memoryIsCountedInWholeUnits_data()
{
    addColumns<QString, QString>("bytes", "text");
    constexpr qint64 gibibyte = 1024LL * 1024 * 1024;
    for (const int size : {4, 8, 12, 16, 32, 64})
        QTest::addRow("%d GiB", size) << QString::number(size * gibibyte) << QString::number(size) + u" Go"_s;
    QTest::newRow("256 GiB") << QString::number(256 * gibibyte) << u"257 Go"_s;
    QTest::newRow("just under 8 units") << u"8543999999"_s << u"7 Go"_s;
    QTest::newRow("8 units") << u"8544000000"_s << u"8 Go"_s;
    QTest::newRow("8500000000") << u"8500000000"_s << u"7 Go"_s;
    QTest::newRow("none") << u"0"_s << u"0 Go"_s;
    QTest::newRow("negative, towards zero") << u"-1600000000"_s << u"-1 Go"_s;
    QTest::newRow("blanks around it") << u" 17179869184 "_s << u"16 Go"_s;
    QTest::newRow("the largest number") << u"9223372036854775807"_s << u"8636116139 Go"_s;
}

void TestWmiField::memoryIsCountedInWholeUnits()
{
    QFETCH(const QString, bytes);
    QFETCH(const QString, text);
    QVERIFY(memoryUnits(bytes));
    QCOMPARE(memoryText(memoryUnits(bytes)), text);
}

void TestWmiField::memoryThatIsNoNumberIsUnknown_data()
{
    QTest::addColumn<QString>("bytes");
    QTest::newRow("empty") << QString();
    QTest::newRow("word") << u"much"_s;
    QTest::newRow("with a unit") << u"16 GB"_s;
    QTest::newRow("fraction") << u"17179869184.5"_s;
    QTest::newRow("hexadecimal") << u"0x10000000"_s;
    QTest::newRow("one too large") << u"9223372036854775808"_s;
    QTest::newRow("two instances") << u"1\r\nTotalPhysicalMemory=2"_s;
}

void TestWmiField::memoryThatIsNoNumberIsUnknown()
{
    QFETCH(const QString, bytes);
    QVERIFY(!memoryUnits(bytes));
    QCOMPARE(memoryText(memoryUnits(bytes)), u"unknown"_s);
}

KESTRUNE_SUITE(TestWmiField)
#include "tst_wmifield.moc"
