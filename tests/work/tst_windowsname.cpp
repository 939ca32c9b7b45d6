// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of which Windows this is.

#include "support/suite.h"
#include "support/testmachine.h"
#include "work/windowsname.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestWindowsName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameIsSetRightByTheBuild_data();
    void nameIsSetRightByTheBuild();
    void missingValuesAreUnknown();
    void aMissingNameStaysUnknownWhateverTheBuild();
    void aMissingBuildLeavesTheName();
};

namespace {

const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"_s;

/** Takes a value out of the key of the Windows name. */
void removeValue(const TestMachine &machine, const QString &name)
{
    RegistryStore &registry = machine.machine().registry();
    registry.removeValue(*registry.find(key), name);
}

} // namespace

void TestWindowsName::nameIsSetRightByTheBuild_data()
{
    addColumns<QString, QString, QString>("product", "build", "name");
    const auto row = [](const char *title, const QString &product, const QString &build, const QString &name) {
        QTest::newRow(title) << product << build << name;
    };
    row("the first build of 11", u"Windows 10 Pro"_s, u"22000"_s, u"Windows 11 Pro"_s);
    row("the last before it", u"Windows 10 Pro"_s, u"21999"_s, u"Windows 10 Pro"_s);
    row("11", u"Windows 10 Pro"_s, u"22631"_s, u"Windows 11 Pro"_s);
    row("10", u"Windows 10 Pro"_s, u"19045"_s, u"Windows 10 Pro"_s);
    row("name in another case", u"WINDOWS 10 Home"_s, u"26100"_s, u"Windows 11 Home"_s);
    row("words before the name", u"Microsoft Windows 10 Enterprise N"_s, u"26100"_s,
        u"Microsoft Windows 11 Enterprise N"_s);
    row("already right", u"Windows 11 Home"_s, u"26100"_s, u"Windows 11 Home"_s);
    row("another product", u"Windows Server 2022"_s, u"26100"_s, u"Windows Server 2022"_s);
    row("10 without the word before it", u"Ten 10"_s, u"26100"_s, u"Ten 10"_s);
    row("build that is no number", u"Windows 10 Pro"_s, u"22631x"_s, u"Windows 10 Pro"_s);
    row("empty build", u"Windows 10 Pro"_s, u""_s, u"Windows 10 Pro"_s);
    row("empty name", u""_s, u"26100"_s, u""_s);
}

void TestWindowsName::nameIsSetRightByTheBuild()
{
    QFETCH(const QString, product);
    QFETCH(const QString, build);
    QFETCH(const QString, name);
    TestMachine machine;
    machine.write(key, u"ProductName"_s, product);
    machine.write(key, u"CurrentBuild"_s, build);
    const WindowsName found = readWindowsName();
    QCOMPARE(found.product, name);
    QCOMPARE(found.build, build);
}

void TestWindowsName::missingValuesAreUnknown()
{
    const TestMachine machine;
    removeValue(machine, u"ProductName"_s);
    removeValue(machine, u"CurrentBuild"_s);
    const WindowsName found = readWindowsName();
    QCOMPARE(found.product, u"unknown"_s);
    QCOMPARE(found.build, u"unknown"_s);
}

void TestWindowsName::aMissingNameStaysUnknownWhateverTheBuild()
{
    const TestMachine machine;
    removeValue(machine, u"ProductName"_s);
    const WindowsName found = readWindowsName();
    QCOMPARE(found.product, u"unknown"_s);
    QCOMPARE(found.build, u"26100"_s);
}

void TestWindowsName::aMissingBuildLeavesTheName()
{
    const TestMachine machine;
    removeValue(machine, u"CurrentBuild"_s);
    const WindowsName found = readWindowsName();
    QCOMPARE(found.product, u"Windows 10 Home"_s);
    QCOMPARE(found.build, u"unknown"_s);
}

KESTRUNE_SUITE(TestWindowsName)
#include "tst_windowsname.moc"
