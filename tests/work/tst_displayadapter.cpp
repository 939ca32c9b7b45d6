// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of which graphics card counts.

#include "support/suite.h"
#include "support/testmachine.h"
#include "work/wmi.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestDisplayAdapter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstAdapterCounts_data();
    void firstAdapterCounts();
    void withoutAdaptersThereIsNone();
};

void TestDisplayAdapter::firstAdapterCounts_data()
{
    addColumns<QStringList, QString>("captions", "first");
    QTest::newRow("one") << QStringList{u"AMD Radeon RX 7600"_s} << u"AMD Radeon RX 7600"_s;
    QTest::newRow("two") << QStringList{u"Intel(R) UHD Graphics"_s, u"AMD Radeon"_s} << u"Intel(R) UHD Graphics"_s;
    QTest::newRow("no name") << QStringList{QString()} << QString();
    QTest::newRow("no name, then one") << QStringList{QString(), u"AMD Radeon"_s} << QString();
    QTest::newRow("like the property") << QStringList{u"caption=Caption=AMD"_s} << u"caption=Caption=AMD"_s;
}

void TestDisplayAdapter::firstAdapterCounts()
{
    QFETCH(const QStringList, captions);
    TestMachine machine;
    QList<QJsonObject> adapters;
    for (const QString &caption : captions)
        adapters.append({{u"Caption"_s, caption}, {u"DriverVersion"_s, u"1.0"_s}});
    machine.machine().setWmiInstances(u"Win32_VideoController"_s, adapters);
    const auto found = firstDisplayAdapter();
    QVERIFY(found);
    QTEST(*found, "first");
}

void TestDisplayAdapter::withoutAdaptersThereIsNone()
{
    TestMachine machine;
    QVERIFY(!firstDisplayAdapter()); // no such class
    machine.machine().setWmiInstances(u"Win32_VideoController"_s, {});
    QVERIFY(!firstDisplayAdapter());
}

KESTRUNE_SUITE(TestDisplayAdapter)
#include "tst_displayadapter.moc"
