// SPDX-License-Identifier: GPL-3.0-or-later

#include "scoutput.h"

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

ScState scStateOf(const ServiceDatabase &services, const Service &service)
{
    return services.isRunning(service) ? ScState::Running : ScState::Stopped;
}

QByteArray scRecord(const ServiceDatabase &services, const Service &service, ScRecordHead head, ScState state)
{
    QString text = u"\r\nSERVICE_NAME: "_s + service.name;
    // The blank behind a lone name is real.
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

QByteArray scFailure(ServiceError error, QLatin1StringView step)
{
    return u"[SC] %1 FAILED %2:\r\n\r\n%3\r\n\r\n"_s.arg(step)
        .arg(static_cast<int>(error))
        .arg(find(messages, error))
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
