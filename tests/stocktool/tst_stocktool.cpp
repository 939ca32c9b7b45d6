// SPDX-License-Identifier: GPL-3.0-or-later
// The stock tools, run as the processes they are.

#include "support/suite.h"
#include "support/toolrun.h"

#include "machine/source/regfile.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

const QString servicesKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services"_s;

std::optional<quint32> number(SmallMachine &machine, const QString &service, const QString &name)
{
    const auto key = machine->registry().find(servicesKey + u'\\' + service);
    const auto value = key ? machine->registry().value(*key, name) : std::nullopt;
    return value && value->type == RegistryType::DWord
               ? std::optional(qFromLittleEndian<quint32>(value->data.constData()))
               : std::nullopt;
}

QStringList namesIn(const QByteArray &report)
{
    QStringList names;
    for (const QByteArray &line : report.split('\n')) {
        if (line.startsWith("SERVICE_NAME: "))
            names.append(QString::fromUtf8(line.mid(14)).trimmed());
    }
    return names;
}

bool hasEnded(qint64 processId)
{
    const QByteArray status = readFile(u"/proc/%1/stat"_s.arg(processId));
    return status.isEmpty() || status.contains(") Z ");
}

} // namespace

class TestStockTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void failuresHaveTheirCodeAndTextAndChangeNothing_data();
    void failuresHaveTheirCodeAndTextAndChangeNothing();
    void processExitCodeIsCutToWhatTheSystemCarries();
    void listIsPrintedByteForByte();
    void listNamesWin32ServicesInOrder();
    void listByState_data();
    void listByState();
    void queryOfOneServiceHasABlankAfterItsName();
    void queryNeedsNoElevation();
    void typesAreTold_data();
    void typesAreTold();
    void startStartsWhatTheServiceDependsOn();
    void stopWaitsForDependents();
    void aServiceThatRanHasNoExitCode1077();
    void configWritesTheStartMode_data();
    void configWritesTheStartMode();
    void configAutoEndsTheDelay();
    void configurationIsTold();
    void faultsReplaceTheTool_data();
    void faultsReplaceTheTool();
    void faultOfAnArgumentLeavesTheOthers();
    void faultyOutputOfTenMegabytes();
    void hangingToolIsThereUntilItIsEnded();
    void hangingToolEndsWithItsStarter();
    void unknownToolIsNotFound();
    void aMachineAndAToolMustBeNamed();
    void unreadableMachineIsReported();
    void runsAreLoggedWithTheirWholeCode();
    void processesAtOnceLoseNothing();
    void cleanUpNeedsElevation();
    void cleanUpKeepsTheHighestVersion_data();
    void cleanUpKeepsTheHighestVersion();
    void otherCommandsAreNotRecognized();
};

void TestStockTool::failuresHaveTheirCodeAndTextAndChangeNothing_data()
{
    addColumns<QString, bool, int, QByteArray>("arguments", "isElevated", "exitCode", "output");

    const QByteArray denied = "\r\n\r\nAccess is denied.\r\n\r\n";
    const QByteArray missing = "\r\n\r\nThe specified service does not exist as an installed service.\r\n\r\n";
    const QByteArray disabled = "\r\n\r\nThe service cannot be started, either because it is disabled or because it "
                                "has no enabled devices associated with it.\r\n\r\n";
    // clang-format off
    QTest::newRow("query missing")      << "query|Nope" << true << 1060 << "[SC] EnumQueryServicesStatus:OpenService FAILED 1060:" + missing;
    QTest::newRow("stop missing")       << "stop|Nope" << true << 1060 << "[SC] OpenService FAILED 1060:" + missing;
    QTest::newRow("start missing")      << "start|Nope" << true << 1060 << "[SC] StartService: OpenService FAILED 1060:" + missing;
    QTest::newRow("config missing")     << "config|Nope|start=auto" << true << 1060 << "[SC] OpenService FAILED 1060:" + missing;
    QTest::newRow("qc missing")         << "qc|Nope" << true << 1060 << "[SC] OpenService FAILED 1060:" + missing;
    QTest::newRow("missing comes before denied") << "stop|Nope" << false << 1060 << "[SC] OpenService FAILED 1060:" + missing;
    QTest::newRow("key without type")   << "start|NoType" << true << 1060 << "[SC] StartService: OpenService FAILED 1060:" + missing;
    QTest::newRow("type as text")       << "start|TextType" << true << 1060 << "[SC] StartService: OpenService FAILED 1060:" + missing;
    QTest::newRow("stop denied")        << "stop|RpcSs" << false << 5 << "[SC] OpenService FAILED 5:" + denied;
    QTest::newRow("start denied")       << "start|Appinfo" << false << 5 << "[SC] StartService: OpenService FAILED 5:" + denied;
    QTest::newRow("config denied")      << "config|Appinfo|start=disabled" << false << 5 << "[SC] OpenService FAILED 5:" + denied;
    QTest::newRow("already running")    << "start|RpcSs" << true << 1056 << QByteArray("[SC] StartService FAILED 1056:\r\n\r\nAn instance of the service is already running.\r\n\r\n");
    QTest::newRow("disabled")           << "start|Off" << true << 1058 << "[SC] StartService FAILED 1058:" + disabled;
    QTest::newRow("not started")        << "stop|Appinfo" << true << 1062 << QByteArray("[SC] ControlService FAILED 1062:\r\n\r\nThe service has not been started.\r\n\r\n");
    QTest::newRow("dependents run")     << "stop|rpcss" << true << 1051 << QByteArray("[SC] ControlService FAILED 1051:\r\n\r\nA stop control has been sent to a service that other running services are dependent on.\r\n\r\n");
    QTest::newRow("dependency disabled") << "start|Broken Needs" << true << 1068 << QByteArray("[SC] StartService FAILED 1068:\r\n\r\nThe dependency service or group failed to start.\r\n\r\n");
    QTest::newRow("drivers' start mode") << "config|Appinfo|start=|boot" << true << 87 << QByteArray("[SC] ChangeServiceConfig FAILED 87:\r\n\r\nThe parameter is incorrect.\r\n\r\n");
    // clang-format on
    for (const char *usage : {"", "frobnicate", "start", "stop", "config|Appinfo", "config|Appinfo|start=",
                              "config|Appinfo|start=never", "config|Appinfo|auto", "query|state=|odd", "query|a|b"})
        QTest::newRow(qPrintable(u"usage: "_s + QLatin1StringView(usage)))
            << QString(QLatin1StringView(usage)) << true << 1639 << QByteArray();
}

void TestStockTool::failuresHaveTheirCodeAndTextAndChangeNothing()
{
    QFETCH(QString, arguments);
    QFETCH(bool, isElevated);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, output);

    SmallMachine machine;
    const QString services = writeRegistryScript(machine->registry(), servicesKey);
    const QMap<QString, bool> states = machine->runStates();

    const Ended ended =
        runTool(machine, u"sc"_s, arguments.split(u'|', Qt::SkipEmptyParts), isElevated ? elevated : notElevated);
    QCOMPARE(ended.exitCode, exitCode);
    if (!output.isEmpty())
        QCOMPARE(ended.output, output);
    else
        QVERIFY(ended.output.contains("\r\nUSAGE:\r\n"));
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(writeRegistryScript(machine->registry(), servicesKey), services);
    QCOMPARE(machine->runStates(), states);
}

void TestStockTool::processExitCodeIsCutToWhatTheSystemCarries()
{
    SmallMachine machine;
    const Ended ended = runProgram(stockTool(), {machine.folder(), u"sc"_s, u"start"_s, u"RpcSs"_s}, elevated);
#ifdef Q_OS_WIN
    QCOMPARE(ended.exitCode, 1056);
#else
    QCOMPARE(ended.exitCode, 1056 & 0xff);
#endif
    QCOMPARE(machine->takeExitCode(ended.processId), std::optional(1056));
}

void TestStockTool::listIsPrintedByteForByte()
{
    SmallMachine machine;
    const Ended ended = runTool(machine, u"sc"_s, {u"query"_s, u"state="_s, u"all"_s});
    QCOMPARE(ended.exitCode, 0);
    QVERIFY(ended.output.startsWith("\r\n"
                                    "SERVICE_NAME: Appinfo\r\n"
                                    "DISPLAY_NAME: Application Information\r\n"
                                    "        TYPE               : 30  WIN32  \r\n"
                                    "        STATE              : 1  STOPPED \r\n"
                                    "        WIN32_EXIT_CODE    : 1077  (0x435)\r\n"
                                    "        SERVICE_EXIT_CODE  : 0  (0x0)\r\n"
                                    "        CHECKPOINT         : 0x0\r\n"
                                    "        WAIT_HINT          : 0x0\r\n"
                                    "\r\nSERVICE_NAME: Broken Needs\r\n"));
    QVERIFY(ended.output.endsWith("\r\n"
                                  "SERVICE_NAME: RpcSs\r\n"
                                  "DISPLAY_NAME: Remote Procedure Call (RPC)\r\n"
                                  "        TYPE               : 20  WIN32_SHARE_PROCESS  \r\n"
                                  "        STATE              : 4  RUNNING \r\n"
                                  "                                (STOPPABLE, NOT_PAUSABLE, IGNORES_SHUTDOWN)\r\n"
                                  "        WIN32_EXIT_CODE    : 0  (0x0)\r\n"
                                  "        SERVICE_EXIT_CODE  : 0  (0x0)\r\n"
                                  "        CHECKPOINT         : 0x0\r\n"
                                  "        WAIT_HINT          : 0x0\r\n"));
    QCOMPARE(ended.output.count('\n'), ended.output.count("\r\n"));
}

void TestStockTool::listNamesWin32ServicesInOrder()
{
    SmallMachine machine;
    const Ended ended = runTool(machine, u"sc"_s, {u"query"_s, u"state=all"_s});
    QCOMPARE(namesIn(ended.output), QStringList({u"Appinfo"_s, u"Broken Needs"_s, u"cbdhsvc"_s, u"cbdhsvc_5cbba"_s,
                                                 u"DiagTrack"_s, u"Off"_s, u"RpcSs"_s}));
    // One that can't be resolved is shown as it is, one that is missing as the service's name.
    QVERIFY(ended.output.contains("DISPLAY_NAME: @missing.dll,-7\r\n"));
    QVERIFY(ended.output.contains("DISPLAY_NAME: Off\r\n"));
}

void TestStockTool::listByState_data()
{
    addColumns<QStringList, QStringList>("arguments", "names");
    const QStringList running{u"cbdhsvc_5cbba"_s, u"DiagTrack"_s, u"RpcSs"_s};
    QTest::newRow("by default what runs") << QStringList{u"query"_s} << running;
    QTest::newRow("active") << QStringList{u"query"_s, u"state="_s, u"active"_s} << running;
    QTest::newRow("inactive") << QStringList{u"query"_s, u"type="_s, u"service"_s, u"state="_s, u"inactive"_s}
                              << QStringList{u"Appinfo"_s, u"Broken Needs"_s, u"cbdhsvc"_s, u"Off"_s};
}

void TestStockTool::listByState()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, names);
    SmallMachine machine;
    QCOMPARE(namesIn(runTool(machine, u"sc"_s, arguments).output), names);
}

void TestStockTool::queryOfOneServiceHasABlankAfterItsName()
{
    SmallMachine machine;
    const Ended ended = runTool(machine, u"sc"_s, {u"query"_s, u"diagtrack"_s});
    QCOMPARE(ended.exitCode, 0);
    QVERIFY(ended.output.startsWith("\r\nSERVICE_NAME: DiagTrack \r\n"
                                    "        TYPE               : 10  WIN32_OWN_PROCESS  \r\n"));
}

void TestStockTool::queryNeedsNoElevation()
{
    SmallMachine machine;
    QCOMPARE(runTool(machine, u"sc"_s, {u"query"_s, u"RpcSs"_s}, notElevated).exitCode, 0);
    QCOMPARE(namesIn(runTool(machine, u"sc"_s, {u"query"_s, u"state="_s, u"all"_s}, notElevated).output).size(), 7);
}

void TestStockTool::typesAreTold_data()
{
    addColumns<QString, QByteArray>("service", "line");
    QTest::newRow("template") << "cbdhsvc" << QByteArray("60  USER_SHARE_PROCESS TEMPLATE  \r\n");
    QTest::newRow("instance") << "cbdhsvc_5cbba" << QByteArray("e0  USER_SHARE_PROCESS INSTANCE  \r\n");
    QTest::newRow("interactive") << "Off" << QByteArray("110  WIN32_OWN_PROCESS (interactive)\r\n");
    QTest::newRow("driver") << "Http" << QByteArray("1  KERNEL_DRIVER  \r\n");
}

void TestStockTool::typesAreTold()
{
    QFETCH(QString, service);
    QFETCH(QByteArray, line);
    SmallMachine machine;
    const QByteArray output = runTool(machine, u"sc"_s, {u"query"_s, service}).output;
    QVERIFY2(output.contains("TYPE               : " + line), output.constData());
}

void TestStockTool::startStartsWhatTheServiceDependsOn()
{
    SmallMachine machine;
    machine->setRunning(u"RpcSs"_s, false);
    const Ended ended = runTool(machine, u"sc"_s, {u"start"_s, u"Appinfo"_s});
    QCOMPARE(ended.exitCode, 0);
    QVERIFY(ended.output.startsWith("\r\nSERVICE_NAME: Appinfo \r\n"));
    QVERIFY(
        ended.output.contains("STATE              : 2  START_PENDING \r\n"
                              "                                (NOT_STOPPABLE, NOT_PAUSABLE, IGNORES_SHUTDOWN)\r\n"));
    QCOMPARE(machine->isRunning(u"Appinfo"_s), std::optional(true));
    QCOMPARE(machine->isRunning(u"RpcSs"_s), std::optional(true));
    // A driver is taken to run as it is.
    QCOMPARE(machine->isRunning(u"Http"_s), std::nullopt);
}

void TestStockTool::stopWaitsForDependents()
{
    SmallMachine machine;
    QCOMPARE(runTool(machine, u"sc"_s, {u"stop"_s, u"RpcSs"_s}).exitCode, 1051);
    const Ended ended = runTool(machine, u"sc"_s, {u"stop"_s, u"DiagTrack"_s});
    QCOMPARE(ended.exitCode, 0);
    QVERIFY(ended.output.contains("STATE              : 3  STOP_PENDING \r\n"));
    QCOMPARE(runTool(machine, u"sc"_s, {u"stop"_s, u"RpcSs"_s}).exitCode, 0);
    QCOMPARE(machine->isRunning(u"RpcSs"_s), std::optional(false));
}

void TestStockTool::aServiceThatRanHasNoExitCode1077()
{
    SmallMachine machine;
    runTool(machine, u"sc"_s, {u"stop"_s, u"DiagTrack"_s});
    const QByteArray output = runTool(machine, u"sc"_s, {u"query"_s, u"DiagTrack"_s}).output;
    QVERIFY(output.contains("1  STOPPED \r\n        WIN32_EXIT_CODE    : 0  (0x0)\r\n"));
}

void TestStockTool::configWritesTheStartMode_data()
{
    addColumns<QStringList, int>("arguments", "start");
    QTest::newRow("in one word") << QStringList{u"start=disabled"_s} << 4;
    QTest::newRow("in two words") << QStringList{u"start="_s, u"demand"_s} << 3;
    QTest::newRow("in capitals") << QStringList{u"START="_s, u"AUTO"_s} << 2;
    QTest::newRow("delayed") << QStringList{u"start="_s, u"delayed-auto"_s} << 2;
}

void TestStockTool::configWritesTheStartMode()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, start);
    SmallMachine machine;
    const Ended ended = runTool(machine, u"sc"_s, QStringList{u"config"_s, u"appinfo"_s} + arguments);
    QCOMPARE(ended.exitCode, 0);
    QCOMPARE(ended.output, QByteArray("[SC] ChangeServiceConfig SUCCESS\r\n"));
    QCOMPARE(number(machine, u"Appinfo"_s, u"Start"_s), std::optional<quint32>(start));
    const bool delayed = arguments.last() == "delayed-auto"_L1;
    QCOMPARE(number(machine, u"Appinfo"_s, u"DelayedAutostart"_s), delayed ? std::optional<quint32>(1) : std::nullopt);
}

void TestStockTool::configAutoEndsTheDelay()
{
    SmallMachine machine;
    runTool(machine, u"sc"_s, {u"config"_s, u"DiagTrack"_s, u"start=disabled"_s});
    QCOMPARE(number(machine, u"DiagTrack"_s, u"DelayedAutostart"_s), std::optional<quint32>(1));
    runTool(machine, u"sc"_s, {u"config"_s, u"DiagTrack"_s, u"start=auto"_s});
    QCOMPARE(number(machine, u"DiagTrack"_s, u"DelayedAutostart"_s), std::optional<quint32>(0));
}

void TestStockTool::configurationIsTold()
{
    SmallMachine machine;
    QCOMPARE(runTool(machine, u"sc"_s, {u"qc"_s, u"Appinfo"_s}).output,
             QByteArray("[SC] QueryServiceConfig SUCCESS\r\n\r\n"
                        "SERVICE_NAME: Appinfo\r\n"
                        "        TYPE               : 30  WIN32  \r\n"
                        "        START_TYPE         : 3   DEMAND_START\r\n"
                        "        ERROR_CONTROL      : 1   NORMAL\r\n"
                        "        BINARY_PATH_NAME   : %SystemRoot%\\svc.exe\r\n"
                        "        LOAD_ORDER_GROUP   : \r\n"
                        "        TAG                : 0\r\n"
                        "        DISPLAY_NAME       : Application Information\r\n"
                        "        DEPENDENCIES       : RpcSs\r\n"
                        "                           : Http\r\n"
                        "        SERVICE_START_NAME : LocalSystem\r\n"));
    QVERIFY(runTool(machine, u"sc"_s, {u"qc"_s, u"DiagTrack"_s}).output.contains(": 2   AUTO_START  (DELAYED)\r\n"));
}

void TestStockTool::faultsReplaceTheTool_data()
{
    addColumns<ToolFault, int, QByteArray>("fault", "exitCode", "output");

    ToolFault failing;
    failing.exitCode = 1072;
    QTest::newRow("fails with a code") << failing << 1072 << QByteArray();
    ToolFault garbage;
    garbage.output = u"garbage \u00e4\n"_s;
    garbage.repeat = 3;
    QTest::newRow("prints garbage") << garbage << 0 << QByteArray("garbage \xc3\xa4\n").repeated(3);
    ToolFault silent;
    silent.output = QString();
    QTest::newRow("prints nothing") << silent << 0 << QByteArray();
    ToolFault missing;
    missing.missing = true;
    QTest::newRow("is missing") << missing << 9009 << QByteArray();
    ToolFault negative;
    negative.exitCode = -1073741515;
    QTest::newRow("crashes") << negative << -1073741515 << QByteArray();
}

void TestStockTool::faultsReplaceTheTool()
{
    QFETCH(ToolFault, fault);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, output);
    SmallMachine machine;
    machine->setFault(u"sc"_s, fault);
    const Ended ended = runTool(machine, u"sc"_s, {u"stop"_s, u"DiagTrack"_s});
    QCOMPARE(ended.exitCode, exitCode);
    QCOMPARE(ended.output, output);
    QCOMPARE(machine->isRunning(u"DiagTrack"_s), std::optional(true));
}

void TestStockTool::faultOfAnArgumentLeavesTheOthers()
{
    SmallMachine machine;
    ToolFault failing;
    failing.exitCode = 5;
    machine->setFault(u"sc config"_s, failing);
    QCOMPARE(runTool(machine, u"sc"_s, {u"config"_s, u"DiagTrack"_s, u"start=disabled"_s}).exitCode, 5);
    QCOMPARE(number(machine, u"DiagTrack"_s, u"Start"_s), std::optional<quint32>(2));
    QCOMPARE(runTool(machine, u"sc"_s, {u"stop"_s, u"DiagTrack"_s}).exitCode, 0);
}

void TestStockTool::faultyOutputOfTenMegabytes()
{
    SmallMachine machine;
    ToolFault flood;
    flood.output = QString(1024, u'x');
    flood.repeat = 10 * 1024;
    machine->setFault(u"sc"_s, flood);
    QCOMPARE(runTool(machine, u"sc"_s, {u"query"_s}).output.size(), 10 * 1024 * 1024);
}

void TestStockTool::hangingToolIsThereUntilItIsEnded()
{
    SmallMachine machine;
    ToolFault hanging;
    hanging.hang = true;
    hanging.output = u"half a record"_s;
    machine->setFault(u"sc"_s, hanging);
    QProcess process;
    process.start(stockTool(), {machine.folder(), u"sc"_s, u"query"_s});
    QVERIFY(process.waitForReadyRead());
    QCOMPARE(process.readAll(), QByteArray("half a record"));
    QVERIFY(!process.waitForFinished(300));
    process.kill();
    QVERIFY(process.waitForFinished());
}

void TestStockTool::hangingToolEndsWithItsStarter()
{
#ifdef Q_OS_WIN
    QSKIP("a program can't tell there that its starter has gone");
#endif
    SmallMachine machine;
    ToolFault hanging;
    hanging.hang = true;
    machine->setFault(u"sc"_s, hanging);
    QProcess starter;
    // The shell stays long enough to be known as the starter.
    starter.start(u"/bin/sh"_s,
                  {u"-c"_s, u"\"$0\" \"$1\" sc query >&- 2>&- & echo $!; sleep 0.5"_s, stockTool(), machine.folder()});
    QVERIFY(starter.waitForReadyRead());
    const qint64 processId = starter.readLine().trimmed().toLongLong();
    QVERIFY(processId > 0);
    QVERIFY(!hasEnded(processId));
    QVERIFY(starter.waitForFinished());
    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(processId), 60000);
}

void TestStockTool::unknownToolIsNotFound()
{
    SmallMachine machine;
    const Ended ended = runTool(machine, u"frobnicate"_s, {u"a"_s});
    QCOMPARE(ended.exitCode, 9009);
    QCOMPARE(ended.output, QByteArray());
}

void TestStockTool::aMachineAndAToolMustBeNamed()
{
    SmallMachine machine;
    for (const QStringList &words : {QStringList(), {machine.folder()}}) {
        const Ended ended = runProgram(stockTool(), words, {{u"KESTRUNE_MACHINE"_s, machine.folder()}});
        QCOMPARE(ended.exitCode, 2);
        QCOMPARE(ended.output, QByteArray());
        QVERIFY(ended.errors.startsWith("kestrune-stocktool: give it a rehearsal machine"));
    }
    QVERIFY(!QFileInfo::exists(machine.folder() + u"/commands.log"_s));
}

void TestStockTool::unreadableMachineIsReported()
{
    SmallMachine machine;
    const Ended ended = runProgram(stockTool(), {machine.beside(u"none"_s), u"sc"_s, u"query"_s});
    QCOMPARE(ended.exitCode, 3);
    QCOMPARE(ended.output, QByteArray());
    QVERIFY(ended.errors.startsWith("sc: "));
    QVERIFY(!QFileInfo::exists(machine.beside(u"none"_s)));
}

void TestStockTool::runsAreLoggedWithTheirWholeCode()
{
    SmallMachine machine;
    runTool(machine, u"sc"_s, {u"start"_s, u"a \"b\" \u00e4:c"_s});
    const QJsonObject line = QJsonDocument::fromJson(readFile(machine.folder() + u"/commands.log"_s)).object();
    QCOMPARE(line.value("program"_L1).toString(), u"sc"_s);
    QCOMPARE(line.value("arguments"_L1).toVariant().toStringList(), QStringList({u"start"_s, u"a \"b\" \u00e4:c"_s}));
    QCOMPARE(line.value("exitCode"_L1).toInt(), 1060);
}

void TestStockTool::processesAtOnceLoseNothing()
{
    constexpr int count = 12;

    SmallMachine machine;
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < count; ++i) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start(stockTool(), {machine.folder(), u"sc"_s, u"config"_s, i % 2 ? u"Off"_s : u"Appinfo"_s,
                                              u"start="_s, u"auto"_s});
    }
    for (const auto &process : processes) {
        QVERIFY(process->waitForFinished());
        QCOMPARE(process->exitCode(), 0);
    }
    QCOMPARE(readFile(machine.folder() + u"/commands.log"_s).count("\"exitCode\":0}\n"), count);
    QCOMPARE(number(machine, u"Off"_s, u"Start"_s), std::optional<quint32>(2));
    QCOMPARE(number(machine, u"Appinfo"_s, u"Start"_s), std::optional<quint32>(2));
}

void TestStockTool::cleanUpNeedsElevation()
{
    SmallMachine machine;
    const QDir store(machine->hostPath(u"C:\\Windows\\WinSxS"_s));
    const Ended ended =
        runTool(machine, u"cmd"_s, {u"/k"_s, u"dism /online /Cleanup-Image /StartComponentCleanup"_s}, notElevated);
    QCOMPARE(ended.exitCode, 740);
    QVERIFY(ended.output.contains("\r\nError: 740\r\n"));
    QCOMPARE(store.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 4);
}

void TestStockTool::cleanUpKeepsTheHighestVersion_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("in one word") << QStringList{u"/k"_s, u"dism /online /Cleanup-Image /StartComponentCleanup"_s};
    QTest::newRow("word by word") << QStringList{u"/K"_s, u"dism"_s, u"/online"_s, u"/Cleanup-Image"_s,
                                                 u"/StartComponentCleanup"_s};
}

void TestStockTool::cleanUpKeepsTheHighestVersion()
{
    QFETCH(QStringList, arguments);
    SmallMachine machine;
    const Ended ended = runTool(machine, u"cmd"_s, arguments);
    QCOMPARE(ended.exitCode, 0);
    QVERIFY(ended.output.endsWith("100.0%" + QByteArray(26, '=') + "] \r\nThe operation completed successfully.\r\n"));
    const QStringList left =
        QDir(machine->hostPath(u"C:\\Windows\\WinSxS"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    // 200 is higher than 30, whatever the letters say; another language is another component.
    QCOMPARE(left,
             QStringList({u"Backup"_s, u"amd64_example-one_31bf3856ad364e35_10.0.26100.200_none_fedcba9876543210"_s,
                          u"amd64_example-one_31bf3856ad364e35_10.0.26100.30_de-de_fedcba9876543210"_s}));
}

void TestStockTool::otherCommandsAreNotRecognized()
{
    SmallMachine machine;
    const Ended ended = runTool(machine, u"cmd"_s, {u"/c"_s, u"format c:"_s});
    QCOMPARE(ended.exitCode, 9009);
    QCOMPARE(ended.output, QByteArray("'format' is not recognized as an internal or external command,\r\n"
                                      "operable program or batch file.\r\n"));
}

KESTRUNE_SUITE(TestStockTool)
#include "tst_stocktool.moc"
