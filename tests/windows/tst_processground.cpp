// SPDX-License-Identifier: GPL-3.0-or-later
// What a process of ours, and what it starts, goes by: once with the rights of the user, and in a program of its own
// once with those of an administrator.

#include "platform/windows/processtoken.h"
#include "platform/windows/windowsplatform.h"
#include "support/suite.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

/** What ground.exe wrote; without operands it prepares nothing, and tells what it was given. */
struct Ground
{
    QStringList operands;
    QString planted;
    QString folder;
    QMap<QString, QString> variables; ///< by their names in upper case
};

Ground groundOf(const QStringList &operands, const QString &folder, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + u"/ground.exe"_s, operands);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("ground.exe: %s", qPrintable(process.errorString()));
    QStringList lines =
        QString::fromUtf8(process.readAllStandardOutput()).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    Ground ground;
    for (qsizetype i = 0; i < operands.size(); ++i)
        ground.operands.append(lines.takeFirst());
    if (!operands.isEmpty())
        ground.planted = lines.takeFirst();
    ground.folder = lines.takeFirst();
    for (const QString &line : std::as_const(lines))
        ground.variables.insert(line.section(u'=', 0, 0).toUpper(), line.section(u'=', 1));
    return ground;
}

QString lower(const QString &path)
{
    return QDir::toNativeSeparators(path).toLower();
}

} // namespace

class TestProcessGround : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void currentFolderIsTheSystems();
    void operandsMeanTheFolderOfTheStart_data();
    void operandsMeanTheFolderOfTheStart();
    void variables_data();
    void variables();
    void allOthersStay();
    void dllsComeFromTheSystemAlone();
    void rightsAreGivenUp();

private:
    const QTemporaryDir folder_;
};

void TestProcessGround::initTestCase()
{
#ifdef KESTRUNE_ELEVATED_TESTS
    QVERIFY(isElevatedProcess());
#endif
}

void TestProcessGround::currentFolderIsTheSystems()
{
    const Ground ground = groundOf({u"x"_s}, folder_.path(), QProcessEnvironment::systemEnvironment());
    QCOMPARE(lower(ground.folder), u"c:\\windows\\system32"_s);
}

void TestProcessGround::operandsMeanTheFolderOfTheStart_data()
{
    QTest::addColumn<QString>("operand");
    QTest::addColumn<QString>("meant");
    const QString start = lower(folder_.path());
    QTest::newRow("name") << u"pc"_s << start + u"\\pc"_s;
    QTest::newRow("path") << u"sub\\pc"_s << start + u"\\sub\\pc"_s;
    QTest::newRow("slash") << u"sub/pc"_s << start + u"\\sub\\pc"_s;
    QTest::newRow("full path") << u"C:\\other\\pc"_s << u"c:\\other\\pc"_s;
    QTest::newRow("other drive") << u"Z:\\other\\pc"_s << u"z:\\other\\pc"_s;
    QTest::newRow("other computer") << u"\\\\server\\share\\pc"_s << u"\\\\server\\share\\pc"_s;
    QTest::newRow("in the folder of the drive") << start.first(2) + u"pc"_s << start + u"\\pc"_s;
    QTest::newRow("on the drive") << u"\\other\\pc"_s << start.first(2) + u"\\other\\pc"_s;
    QTest::newRow("other letters") << u"Überprüfung 服务"_s << start + u"\\überprüfung 服务"_s;
}

void TestProcessGround::operandsMeanTheFolderOfTheStart()
{
    QFETCH(const QString, operand);
    QFETCH(const QString, meant);
    const Ground ground = groundOf({operand}, folder_.path(), QProcessEnvironment::systemEnvironment());
    QCOMPARE(ground.operands.constFirst().toLower(), meant);
}

void TestProcessGround::variables_data()
{
    QTest::addColumn<QString>("own"); // in an elevated process; "-" where it is gone
    const QString windows = u"c:\\windows"_s;
    const QString system = windows + u"\\system32"_s;
    const QString powerShell = system + u"\\windowspowershell\\v1.0"_s;
    const QString user = qEnvironmentVariable("USERNAME").toLower();
    QTest::newRow("windir") << windows;
    QTest::newRow("SystemRoot") << windows;
    QTest::newRow("SystemDrive") << u"c:"_s;
    QTest::newRow("ComSpec") << system + u"\\cmd.exe"_s;
    QTest::newRow("PATH") << QStringList{system, windows, system + u"\\wbem"_s, powerShell}.join(u';');
    QTest::newRow("PATHEXT") << u".com;.exe;.bat;.cmd;.test"_s;
    QTest::newRow("ProgramFiles") << u"c:\\program files"_s;
    QTest::newRow("ProgramFiles(x86)") << u"c:\\program files (x86)"_s;
    QTest::newRow("PSModulePath") << u"c:\\program files\\modules;"_s + windows + u"\\modules"_s;
    QTest::newRow("PSExecutionPolicyPreference") << u"restricted"_s;
    QTest::newRow("USERNAME") << user;
    for (const char *name :
         {"QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "QT_QPA_GENERIC_PLUGINS", "QT_LOGGING_CONF",
          "COR_PROFILER_PATH", "cor_enable_profiling", "COMPlus_InstallRoot", "DOTNET_STARTUP_HOOKS"})
        QTest::newRow(name) << u"-"_s;
}

/** As any program of the user can set them for all processes to come. */
void TestProcessGround::variables()
{
    QFETCH(const QString, own);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QString key = u"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment"_s;
    // The machine's own, which Wine lacks
    const auto machine = WindowsPlatform().openKey(u"HKEY_LOCAL_MACHINE\\"_s + key);
    machine->setValue(u"PATHEXT"_s, u".COM;.EXE;.BAT;.CMD;.TEST"_s);
    constexpr wchar_t modules[] = L"%ProgramFiles%\\Modules;%SystemRoot%\\Modules";
    QCOMPARE(RegSetKeyValueW(HKEY_LOCAL_MACHINE, reinterpret_cast<const wchar_t *>(key.utf16()), L"PSModulePath",
                             REG_EXPAND_SZ, modules, sizeof(modules)),
             ERROR_SUCCESS);

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(name, u"C:\\Planted"_s);
    // Wine sets some of them anew for each process.
    const QString given = groundOf({}, folder_.path(), environment).variables.value(name.toUpper()).toLower();
    const Ground ground = groundOf({u"x"_s}, folder_.path(), environment);
    const QString seen = ground.variables.value(name.toUpper(), u"-"_s).toLower();
    QCOMPARE(seen, isElevatedProcess() ? own : given);
}

void TestProcessGround::allOthersStay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"KESTRUNE_MACHINE"_s, u"C:\\pc"_s);
    environment.insert(u"TEMP"_s, u"C:\\Temp"_s);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"windows"_s);
    environment.insert(u"CORE"_s, u"1"_s);
    const Ground ground = groundOf({u"x"_s}, folder_.path(), environment);
    QCOMPARE(ground.variables.value(u"KESTRUNE_MACHINE"_s), u"C:\\pc"_s);
    QCOMPARE(ground.variables.value(u"TEMP"_s), u"C:\\Temp"_s);
    QCOMPARE(ground.variables.value(u"QT_QPA_PLATFORM"_s), u"windows"_s);
    QCOMPARE(ground.variables.value(u"CORE"_s), u"1"_s);
    QCOMPARE(ground.variables.value(u"LOCALAPPDATA"_s), QDir::toNativeSeparators(qEnvironmentVariable("LOCALAPPDATA")));
}

/** A DLL that Windows would find in the current folder, and before it in the program's own. */
void TestProcessGround::dllsComeFromTheSystemAlone()
{
    const QString programs = QCoreApplication::applicationDirPath();
    for (const QString &place : {folder_.path(), programs}) {
        const QString planted = place + u"/planted.dll"_s;
        QVERIFY(QFile::copy(programs + u"/exitwith.exe"_s, planted));
        const Ground ground = groundOf({u"x"_s}, folder_.path(), QProcessEnvironment::systemEnvironment());
        QVERIFY(QFile::remove(planted));
        QCOMPARE(ground.planted, u"not loaded"_s);
    }
}

/** Once more as the user, with the same streams and the same end; who has no rights goes on itself. */
void TestProcessGround::rightsAreGivenUp()
{
    constexpr int asked = 42;

    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + u"/ground.exe"_s, {u"--without-rights"_s});
    process.write("what came in\n");
    process.closeWriteChannel();
    QVERIFY2(process.waitForFinished(), qPrintable(process.errorString()));
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(process.exitCode() == asked, errors.constData());
    QCOMPARE(process.readAllStandardOutput().replace("\r", ""), "user\nwhat came in\n");
}

KESTRUNE_SUITE(TestProcessGround)
#include "tst_processground.moc"
