// SPDX-License-Identifier: GPL-3.0-or-later
// sc: the service manager's own tool.

#include "servicedatabase.h"
#include "tools.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// What sc prints.

enum class ScState : int { Stopped = 1, StartPending = 2, StopPending = 3, Running = 4 };
/** A list names each service's display name, an answer about one service doesn't. */
enum class ScRecordHead { WithDisplayName, NameAlone };

struct NumberedText
{
    quint32 number;
    QLatin1StringView text;
};

// clang-format off
constexpr NumberedText typeTexts[] = {
    {0x01,  "KERNEL_DRIVER  "_L1},
    {0x02,  "FILE_SYSTEM_DRIVER  "_L1},
    {0x10,  "WIN32_OWN_PROCESS  "_L1},
    {0x20,  "WIN32_SHARE_PROCESS  "_L1},
    {0x30,  "WIN32  "_L1},
    {0x50,  "USER_OWN_PROCESS TEMPLATE  "_L1},
    {0x60,  "USER_SHARE_PROCESS TEMPLATE  "_L1},
    {0xd0,  "USER_OWN_PROCESS INSTANCE  "_L1},
    {0xe0,  "USER_SHARE_PROCESS INSTANCE  "_L1},
    {0x110, "WIN32_OWN_PROCESS (interactive)"_L1},
    {0x120, "WIN32_SHARE_PROCESS (interactive)"_L1},
};

constexpr NumberedText stateTexts[] = {
    {1, "STOPPED "_L1},
    {2, "START_PENDING "_L1},
    {3, "STOP_PENDING "_L1},
    {4, "RUNNING "_L1},
};

constexpr NumberedText startTexts[] = {
    {0, "BOOT_START"_L1},
    {1, "SYSTEM_START"_L1},
    {2, "AUTO_START"_L1},
    {3, "DEMAND_START"_L1},
    {4, "DISABLED"_L1},
};

constexpr NumberedText errorControlTexts[] = {
    {0, "IGNORE"_L1},
    {1, "NORMAL"_L1},
    {2, "SEVERE"_L1},
    {3, "CRITICAL"_L1},
};

constexpr NumberedText messages[] = {
    {AccessDenied,             "Access is denied."_L1},
    {InvalidParameter,         "The parameter is incorrect."_L1},
    {DependentServicesRunning, "A stop control has been sent to a service that other running services are dependent on."_L1},
    {AlreadyRunning,           "An instance of the service is already running."_L1},
    {ServiceDisabled,          "The service cannot be started, either because it is disabled or because it has no enabled "
                               "devices associated with it."_L1},
    {CircularDependency,       "Circular service dependency was specified."_L1},
    {NoSuchService,            "The specified service does not exist as an installed service."_L1},
    {NotStarted,               "The service has not been started."_L1},
    {DependencyFailed,         "The dependency service or group failed to start."_L1},
};
// clang-format on

template<std::size_t size>
QLatin1StringView find(const NumberedText (&rows)[size], quint32 number, QLatin1StringView fallback = {})
{
    for (const NumberedText &row : rows) {
        if (row.number == number)
            return row.text;
    }
    return fallback;
}

/** "        LABEL              : value" */
QString field(QLatin1StringView label, const QString &value)
{
    return u"        "_s + QString(label).leftJustified(19) + u": "_s + value + u"\r\n"_s;
}

QString typeField(quint32 type)
{
    return field("TYPE"_L1, QString::number(type, 16) + u"  "_s + find(typeTexts, type, "ERROR  "_L1));
}

QString stateFields(ScState state)
{
    const auto number = static_cast<quint32>(state);
    QString text = field("STATE"_L1, QString::number(number) + u"  "_s + find(stateTexts, number));
    const QString indent(32, u' ');
    if (state == ScState::Running)
        text += indent + u"(STOPPABLE, NOT_PAUSABLE, IGNORES_SHUTDOWN)\r\n"_s;
    else if (state != ScState::Stopped)
        text += indent + u"(NOT_STOPPABLE, NOT_PAUSABLE, IGNORES_SHUTDOWN)\r\n"_s;
    return text;
}

ScState scStateOf(const ServiceDatabase &services, const Service &service)
{
    return services.isRunning(service) ? ScState::Running : ScState::Stopped;
}

/** The record of a service, after an empty line. */
QByteArray scRecord(const ServiceDatabase &services, const Service &service, ScRecordHead head, ScState state)
{
    QString text = u"\r\nSERVICE_NAME: "_s + service.name;
    // The blank after a lone name is real.
    text += head == ScRecordHead::NameAlone ? u" \r\n"_s
                                            : u"\r\nDISPLAY_NAME: "_s + services.displayName(service) + u"\r\n"_s;
    text += typeField(service.type) + stateFields(state);
    const int exitCode = services.everRan(service) ? NoError : NeverStarted;
    text += field("WIN32_EXIT_CODE"_L1, u"%1  (0x%2)"_s.arg(exitCode).arg(exitCode, 0, 16));
    text += field("SERVICE_EXIT_CODE"_L1, u"0  (0x0)"_s);
    text += field("CHECKPOINT"_L1, u"0x0"_s);
    text += field("WAIT_HINT"_L1, u"0x0"_s);
    return text.toUtf8();
}

/** The answer of "sc qc". */
QByteArray scConfiguration(const ServiceDatabase &services, const Service &service)
{
    const auto number = [](quint32 value, QLatin1StringView text) { return QString::number(value) + u"   "_s + text; };
    const auto start = static_cast<quint32>(service.start);
    const bool delayed = service.start == StartAutomatic && services.number(service, u"DelayedAutostart"_s) != 0;
    const quint32 errorControl = services.number(service, u"ErrorControl"_s);
    const QStringList dependencies = services.dependencies(service);

    QString text = u"[SC] QueryServiceConfig SUCCESS\r\n\r\nSERVICE_NAME: "_s + service.name + u"\r\n"_s;
    text += typeField(service.type);
    text += field("START_TYPE"_L1, number(start, find(startTexts, start)) + (delayed ? u"  (DELAYED)"_s : QString()));
    text += field("ERROR_CONTROL"_L1, number(errorControl, find(errorControlTexts, errorControl)));
    text += field("BINARY_PATH_NAME"_L1, services.text(service, u"ImagePath"_s));
    text += field("LOAD_ORDER_GROUP"_L1, services.text(service, u"Group"_s));
    text += field("TAG"_L1, QString::number(services.number(service, u"Tag"_s)));
    text += field("DISPLAY_NAME"_L1, services.displayName(service));
    text += field("DEPENDENCIES"_L1, dependencies.value(0));
    for (qsizetype i = 1; i < dependencies.size(); ++i)
        text += field({}, dependencies.at(i));
    text += field("SERVICE_START_NAME"_L1, services.text(service, u"ObjectName"_s));
    return text.toUtf8();
}

/** "[SC] StartService FAILED 1058:", an empty line and the system's message. */
QByteArray scFailure(ServiceError error, QLatin1StringView step)
{
    return u"[SC] %1 FAILED %2:\r\n\r\n%3\r\n\r\n"_s.arg(step)
        .arg(static_cast<int>(error))
        .arg(find(messages, static_cast<quint32>(error)))
        .toUtf8();
}

QByteArray scUsage()
{
    return "DESCRIPTION:\r\n"
           "        Talks to the service manager.\r\n"
           "USAGE:\r\n"
           "        sc query [service name]\r\n"
           "        sc query [state= active|inactive|all] [type= service]\r\n"
           "        sc qc [service name]\r\n"
           "        sc start [service name]\r\n"
           "        sc stop [service name]\r\n"
           "        sc config [service name] start= boot|system|auto|demand|disabled|delayed-auto\r\n";
}

// What it does.

/** "name= value" or "name=value" among the arguments after the service's name. */
struct Option
{
    QString name;
    QString value;
};

/** Empty where an argument is no option or the last one lacks its value. */
std::optional<QList<Option>> parseOptions(const QStringList &arguments)
{
    QList<Option> options;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const qsizetype equals = arguments.at(i).indexOf(u'=');
        if (equals <= 0)
            return std::nullopt;
        Option option{arguments.at(i).left(equals).toLower(), arguments.at(i).mid(equals + 1)};
        if (option.value.isEmpty()) {
            if (++i == arguments.size())
                return std::nullopt;
            option.value = arguments.at(i);
        }
        options.append(option);
    }
    return options;
}

ToolResult failed(ServiceError error, QLatin1StringView step)
{
    return {error, scFailure(error, step)};
}

ToolResult badUsage()
{
    return {InvalidCommandLine, scUsage()};
}

/** Finds the service, and asks for the right to change it. What @p act gives is the result. */
ToolResult withService(ToolHost &host, const QString &name, QLatin1StringView openStep,
                       const std::function<ToolResult(ServiceDatabase &, const Service &)> &act)
{
    ServiceDatabase services(host);
    const std::optional<Service> service = services.find(name);
    if (!service)
        return failed(NoSuchService, openStep);
    if (!host.isElevated())
        return failed(AccessDenied, openStep);
    return act(services, *service);
}

ToolResult queryOne(ToolHost &host, const QString &name)
{
    const ServiceDatabase services(host);
    const std::optional<Service> service = services.find(name);
    if (!service)
        return failed(NoSuchService, "EnumQueryServicesStatus:OpenService"_L1);
    return {NoError, scRecord(services, *service, ScRecordHead::NameAlone, scStateOf(services, *service))};
}

/** Lists services: those that run, unless another state is asked for. */
ToolResult query(ToolHost &host, const QStringList &arguments)
{
    if (arguments.size() == 1 && !arguments.at(0).contains(u'='))
        return queryOne(host, arguments.at(0));
    const std::optional<QList<Option>> options = parseOptions(arguments);
    if (!options)
        return badUsage();
    QString state = u"active"_s;
    for (const Option &option : *options) {
        if (option.name == "state"_L1)
            state = option.value.toLower();
        else if (option.name != "type"_L1 || option.value.compare("service"_L1, Qt::CaseInsensitive) != 0)
            return badUsage();
    }
    if (state != "all"_L1 && state != "active"_L1 && state != "inactive"_L1)
        return badUsage();

    const ServiceDatabase services(host);
    ToolResult result;
    for (const Service &service : services.all()) {
        const bool asked = state == "all"_L1 || (state == "active"_L1) == services.isRunning(service);
        if (service.isWin32() && asked)
            result.output += scRecord(services, service, ScRecordHead::WithDisplayName, scStateOf(services, service));
    }
    return result;
}

ToolResult start(ToolHost &host, const QStringList &arguments)
{
    if (arguments.isEmpty())
        return badUsage();
    return withService(host, arguments.at(0), "StartService: OpenService"_L1, [](auto &services, const auto &service) {
        if (const ServiceError error = services.start(service); error != NoError)
            return failed(error, "StartService"_L1);
        return ToolResult{NoError, scRecord(services, service, ScRecordHead::NameAlone, ScState::StartPending)};
    });
}

ToolResult stop(ToolHost &host, const QStringList &arguments)
{
    if (arguments.isEmpty())
        return badUsage();
    return withService(host, arguments.at(0), "OpenService"_L1, [](auto &services, const auto &service) {
        if (const ServiceError error = services.stop(service); error != NoError)
            return failed(error, "ControlService"_L1);
        return ToolResult{NoError, scRecord(services, service, ScRecordHead::NameAlone, ScState::StopPending)};
    });
}

struct StartModeWord
{
    QLatin1StringView word;
    StartMode mode;
    bool delayed = false;
};

// clang-format off
constexpr StartModeWord startModeWords[] = {
    {"boot"_L1,         StartAtBoot},
    {"system"_L1,       StartBySystem},
    {"auto"_L1,         StartAutomatic},
    {"demand"_L1,       StartOnDemand},
    {"disabled"_L1,     StartDisabled},
    {"delayed-auto"_L1, StartAutomatic, true},
};
// clang-format on

const StartModeWord *findStartMode(const QString &word)
{
    for (const StartModeWord &row : startModeWords) {
        if (word.compare(row.word, Qt::CaseInsensitive) == 0)
            return &row;
    }
    return nullptr;
}

ToolResult config(ToolHost &host, const QStringList &arguments)
{
    if (arguments.size() < 2)
        return badUsage();
    const std::optional<QList<Option>> options = parseOptions(arguments.mid(1));
    if (!options || options->size() != 1 || options->at(0).name != "start"_L1)
        return badUsage();
    const StartModeWord *mode = findStartMode(options->at(0).value);
    if (mode == nullptr)
        return badUsage();
    return withService(host, arguments.at(0), "OpenService"_L1, [mode](auto &services, const auto &service) {
        const ServiceError error = services.setStartMode(service, mode->mode, mode->delayed);
        if (error != NoError)
            return failed(error, "ChangeServiceConfig"_L1);
        return ToolResult{NoError, "[SC] ChangeServiceConfig SUCCESS\r\n"};
    });
}

ToolResult queryConfig(ToolHost &host, const QStringList &arguments)
{
    if (arguments.isEmpty())
        return badUsage();
    const ServiceDatabase services(host);
    const std::optional<Service> service = services.find(arguments.at(0));
    if (!service)
        return failed(NoSuchService, "OpenService"_L1);
    return {NoError, scConfiguration(services, *service)};
}

struct Verb
{
    QLatin1StringView name;
    ToolResult (*run)(ToolHost &host, const QStringList &arguments);
};

// clang-format off
constexpr Verb verbs[] = {
    {"query"_L1,  query},
    {"start"_L1,  start},
    {"stop"_L1,   stop},
    {"config"_L1, config},
    {"qc"_L1,     queryConfig},
};
// clang-format on

} // namespace

ToolResult runSc(ToolHost &host, const QStringList &arguments)
{
    if (arguments.isEmpty())
        return badUsage();
    for (const Verb &verb : verbs) {
        if (arguments.at(0).compare(verb.name, Qt::CaseInsensitive) == 0)
            return verb.run(host, arguments.mid(1));
    }
    return badUsage();
}
