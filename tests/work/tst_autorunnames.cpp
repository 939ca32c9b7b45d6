// SPDX-License-Identifier: GPL-3.0-or-later
// Programs started at logon whose names hold what parts the names of keys: each is switched off, recorded and brought
// back by the name that the registry has.

#include "platform/contractplatform.h"
#include "support/suite.h"
#include "work/automatizer/records.h"
#include "work/autorun/autorun.h"
#include "work/settings.h"

#include "platform/windowsfacts.h"

#include <QDir>
#include <QFileInfo>
#include <QStringDecoder>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString records = recordKey(u"Autorun"_s);
/** A command that can come back: in double quotes, with a program that is there. */
#ifdef KESTRUNE_REAL_MACHINE
const QString program = u"C:\\Windows\\explorer.exe"_s;
#else
const QString program = u"C:\\Tools\\app.exe"_s;
#endif
const QString command = u'"' + program + u"\" --quiet"_s;

RegistryValue text(const QString &name, const QString &content)
{
    return {name, RegistryType::String, registryText(content)};
}

/** The entry that is listed for a Run value; one without a path where there is none. */
AutorunEntry listedEntry(const QString &path)
{
    for (const AutorunRow &row : autorunRows()) {
        if (row.startsWith(path + u'='))
            return autorunEntry(row);
    }
    return {};
}

} // namespace

class TestAutorunNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void valueGoesAndComesBackByItsOwnName_data();
    void valueGoesAndComesBackByItsOwnName();
    void slashAloneLeavesTheOtherValues_data();
    void slashAloneLeavesTheOtherValues();
    void unnamedValueIsNeitherListedNorTouched();
    void valueOfASubkeyIsAnotherOne();

private:
    QString rawText(const QString &key, const QString &name) const
    {
        const auto value = contract_.readRaw(key, name);
        return value ? textOf(value->data) : u"none"_s;
    }

    ContractPlatform contract_;
};

void TestAutorunNames::init()
{
    const QString file = platform().hostPath(program);
    QDir().mkpath(QFileInfo(file).path());
    if (!QFileInfo::exists(file))
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    contract_.writeRaw(WindowsKey::userRun, text(u"KestruneTestOther"_s, command));
    contract_.writeRaw(WindowsKey::userRun, text(QString(), u"unnamed.exe"_s));
}

void TestAutorunNames::cleanup()
{
    for (const QString &path : {WindowsKey::userRun, records}) {
        const auto key = platform().openKey(path);
        for (const QString &name : key->childKeys())
            key->removeOwnValue(name);
        key->remove(u"."_s);
        for (const QString &name : key->childGroups())
            key->remove(name);
    }
}

void TestAutorunNames::valueGoesAndComesBackByItsOwnName_data()
{
    addColumns<QString, QString, QString>("exact", "listed", "shown");
    const auto row = [](const char *title, const QString &exact, const QString &listed, const QString &shown) {
        QTest::newRow(title) << exact << listed << shown;
    };
    row("slash", u"ATI/AMD Tray"_s, u"ATI\\AMD Tray"_s, u"AMD Tray"_s);
    row("backslash", u"a\\b"_s, u"a/b"_s, u"a/b"_s);
    row("both", u"a/b\\c"_s, u"a\\b/c"_s, u"b/c"_s);
    row("a slash alone", u"/"_s, u"\\"_s, QString());
    row("a backslash alone", u"\\"_s, u"/"_s, u"/"_s);
    row("several", u"//\\\\"_s, u"\\\\//"_s, u"//"_s);
    row("a task's name after a slash", u"x/StartTerminalOnLoginTask"_s, u"x\\StartTerminalOnLoginTask"_s,
        u"StartTerminalOnLoginTask"_s);
    row("a task's name before one", u"Xbox.App.Tasks.FullTrustComponent/x"_s, u"Xbox.App.Tasks.FullTrustComponent\\x"_s,
        u"x"_s);
    row("the word for the unnamed value", u"Default"_s, u"Default"_s, u"Default"_s);
    row("plain", u"My app"_s, u"My app"_s, u"My app"_s);
}

void TestAutorunNames::valueGoesAndComesBackByItsOwnName()
{
    QFETCH(const QString, exact);
    QFETCH(const QString, listed);
    QFETCH(const QString, shown);
    const QString path = WindowsKey::userRun + u'\\' + listed;
    contract_.writeRaw(WindowsKey::userRun, text(exact, command));
    const AutorunEntry entry = listedEntry(path);
    QCOMPARE(entry.name, shown);
    QCOMPARE(entry.path, path);
    QCOMPARE(entry.command, command);

    disableAutorun(entry);
    QVERIFY(!contract_.readRaw(WindowsKey::userRun, exact));
    const QString quoted = u'"' + QString(exact).replace(u"\\"_s, u"\\\\"_s) + u"\"="_s;
    QFile copies(runBackupFile());
    QVERIFY(copies.open(QIODevice::ReadOnly));
    const QString script = QStringDecoder(QStringConverter::Utf16LE)(copies.readAll());
    QVERIFY2(script.contains(u'\n' + quoted), qPrintable(script));
    QCOMPARE(rawText(records, exact), command + u'=' + path);
    QCOMPARE(trustedAutoruns(), QStringList(listed));
    QCOMPARE(distrustedRecords(), QStringList());
    QCOMPARE(rawText(WindowsKey::userRun, u"KestruneTestOther"_s), command);
    QCOMPARE(rawText(WindowsKey::userRun, QString()), u"unnamed.exe"_s);
    QCOMPARE(platform().openKey(WindowsKey::userRun)->childGroups(), QStringList());

    enableAutorun({shown, path, command});
    QCOMPARE(rawText(WindowsKey::userRun, exact), command);
    QCOMPARE(platform().openKey(WindowsKey::userRun)->childGroups(), QStringList());
    QCOMPARE(rawText(WindowsKey::userRun, QString()), u"unnamed.exe"_s);
}

void TestAutorunNames::slashAloneLeavesTheOtherValues_data()
{
    QTest::addColumn<QString>("exact");
    for (const char *name : {"/", "\\", "//", "\\\\", "a/", "a\\"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestAutorunNames::slashAloneLeavesTheOtherValues()
{
    QFETCH(const QString, exact);
    contract_.writeRaw(WindowsKey::userRun, text(exact, command));
    contract_.writeRaw(WindowsKey::userRun, text(u"a"_s, u"a.exe"_s));
    for (const AutorunRow &row : autorunRows()) {
        if (row.startsWith(WindowsKey::userRun) && !row.endsWith(u"a.exe"_s) && !row.contains(u"KestruneTestOther"_s))
            disableAutorun(autorunEntry(row));
    }
    QVERIFY(!contract_.readRaw(WindowsKey::userRun, exact));
    QVERIFY(contract_.readRaw(records, exact));
    QCOMPARE(platform().openKey(WindowsKey::userRun)->childKeys(),
             (QStringList{u"."_s, u"KestruneTestOther"_s, u"a"_s}));
}

void TestAutorunNames::unnamedValueIsNeitherListedNorTouched()
{
    for (const AutorunRow &row : autorunRows())
        QVERIFY2(!row.contains(u"unnamed.exe"_s), qPrintable(row));
    // A name that was cut to nothing
    disableAutorun({QString(), WindowsKey::userRun + u'\\', u"unnamed.exe"_s});
    enableAutorun({QString(), WindowsKey::userRun + u'\\', command});
    QCOMPARE(rawText(WindowsKey::userRun, QString()), u"unnamed.exe"_s);
    QCOMPARE(rawText(WindowsKey::userRun, u"KestruneTestOther"_s), command);
}

void TestAutorunNames::valueOfASubkeyIsAnotherOne()
{
    contract_.writeRaw(WindowsKey::userRun + u"\\a"_s, text(u"b"_s, u"below.exe"_s));
    contract_.writeRaw(WindowsKey::userRun, text(u"a\\b"_s, command));
    disableAutorun(listedEntry(WindowsKey::userRun + u"\\a/b"_s));
    QVERIFY(!contract_.readRaw(WindowsKey::userRun, u"a\\b"_s));
    QCOMPARE(rawText(WindowsKey::userRun + u"\\a"_s, u"b"_s), u"below.exe"_s);
    // A value of the subkey's name goes without the subkey.
    contract_.writeRaw(WindowsKey::userRun, text(u"a"_s, command));
    disableAutorun(listedEntry(WindowsKey::userRun + u"\\a"_s));
    QCOMPARE(rawText(WindowsKey::userRun + u"\\a"_s, u"b"_s), u"below.exe"_s);
}

KESTRUNE_SUITE(TestAutorunNames)
#include "tst_autorunnames.moc"
