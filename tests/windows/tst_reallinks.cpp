// SPDX-License-Identifier: GPL-3.0-or-later
// What an elevated program's links open, and with which rights. The registry editor is one of the tests'.

#include "app/linkopener.h"
#include "platform/windows/processtoken.h"
#include "support/suite.h"
#include "windows/standin/standinkeys.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30000; // milliseconds

const QByteArray startModes = "Windows Registry Editor Version 5.00\r\r\n\r\r\n"
                              "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Example]\r\r\n"
                              "\"Start\"=dword:00000003\r\r\n";

/** What the program of that name wrote when it was started: its rights and its arguments. */
QStringList started(const QString &program)
{
    return QSettings(startedPrograms, QSettings::NativeFormat).value(program).toStringList();
}

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

class TestRealLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings(startedPrograms, QSettings::NativeFormat).remove(QString()); }

    void filesGetNoRightsOfTheProgram();
    void addressesGetNoRightsOfTheProgram();
    void startModesGoToTheRegistryEditor();
    void otherScriptsGetNoRightsOfTheProgram();

private:
    QString path(const QString &name) const { return QDir::toNativeSeparators(folder_.filePath(name)); }
    QString program() const { return QCoreApplication::applicationDirPath() + u"/started.exe"_s; }

    const QTemporaryDir folder_;
    const LinkOpener links_;
};

void TestRealLinks::initTestCase()
{
    QVERIFY(isElevatedProcess());
    QVERIFY(QDir().mkpath(folder_.filePath(u"a folder"_s)));
}

void TestRealLinks::filesGetNoRightsOfTheProgram()
{
    QVERIFY(QFile::copy(program(), path(u"opened.exe"_s)));
    QVERIFY(QDesktopServices::openUrl(QUrl::fromLocalFile(path(u"opened.exe"_s))));
    QTRY_COMPARE_WITH_TIMEOUT(started(u"opened"_s), QStringList{u"limited"_s}, patience);
}

void TestRealLinks::addressesGetNoRightsOfTheProgram()
{
    const QString address = u"http://kestrune.example/download.html?a=%20b"_s;
    QSettings browser(u"HKEY_CLASSES_ROOT\\http\\shell\\open"_s, QSettings::NativeFormat);
    browser.remove(u"ddeexec"_s);
    browser.setValue(u"command/."_s, u'"' + QDir::toNativeSeparators(program()) + u"\" \"%1\""_s);
    browser.sync();
    QVERIFY(QDesktopServices::openUrl(QUrl(address)));
    QTRY_COMPARE_WITH_TIMEOUT(started(u"started"_s), (QStringList{u"limited"_s, address}), patience);
}

void TestRealLinks::startModesGoToTheRegistryEditor()
{
    const QString script = path(u"a folder\\StartMode.reg"_s);
    QVERIFY(write(script, startModes));
    QVERIFY(QDesktopServices::openUrl(QUrl::fromLocalFile(script)));
    QTRY_COMPARE_WITH_TIMEOUT(started(u"regedit"_s), (QStringList{u"elevated"_s, script}), patience);
    // While the editor asks its user, nobody puts another script in its place.
    QVERIFY(!write(script, "REGEDIT4"));
    QVERIFY(!QFile::rename(script, script + u".away"_s));
    QTRY_VERIFY_WITH_TIMEOUT(write(script, startModes), patience);
}

void TestRealLinks::otherScriptsGetNoRightsOfTheProgram()
{
    const QString script = path(u"a folder\\Other.reg"_s);
    // As on Windows; Wine's desktop doesn't know such files.
    QSettings classes(u"HKEY_CLASSES_ROOT"_s, QSettings::NativeFormat);
    classes.setValue(u".reg/."_s, u"regfile"_s);
    classes.setValue(u"regfile/shell/open/command/."_s, u"\"C:\\windows\\regedit.exe\" \"%1\""_s);
    classes.sync();
    QVERIFY(write(script, startModes + "\"ImagePath\"=\"C:\\\\evil.exe\"\r\r\n"));
    QVERIFY(QDesktopServices::openUrl(QUrl::fromLocalFile(script)));
    QTRY_VERIFY_WITH_TIMEOUT(!started(u"regedit"_s).isEmpty(), patience);
    QCOMPARE(started(u"regedit"_s).constFirst(), u"limited"_s);
}

KESTRUNE_WINDOW_SUITE(TestRealLinks)
#include "tst_reallinks.moc"
