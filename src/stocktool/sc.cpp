// SPDX-License-Identifier: GPL-3.0-or-later
// sc: the service manager's own tool.

#include "scoutput.h"
#include "servicedatabase.h"
#include "tools.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/** "name= value" or "name=value" among the arguments behind the service's name. */
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
