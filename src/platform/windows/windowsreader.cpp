// SPDX-License-Identifier: GPL-3.0-or-later
// The real registry and the service manager, opened for reading alone.

#include "windowsplatform.h"

#include "nativekey.h"
#include "processtoken.h"

#include <span>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct ServiceManagerCloser
{
    void operator()(SC_HANDLE manager) const { CloseServiceHandle(manager); }
};
using ServiceManager = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, ServiceManagerCloser>;

struct Sizes
{
    DWORD longestSubkey = 0;
    DWORD longestName = 0;
    DWORD largestData = 0;
};

std::optional<Sizes> sizesOf(HKEY key)
{
    Sizes sizes;
    const LSTATUS status = RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, &sizes.longestSubkey, nullptr,
                                            nullptr, &sizes.longestName, &sizes.largestData, nullptr, nullptr);
    return status == ERROR_SUCCESS ? std::optional(sizes) : std::nullopt;
}

QStringList subkeysOf(HKEY key, const Sizes &sizes)
{
    std::vector<wchar_t> name(sizes.longestSubkey + 1);
    QStringList names;
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        const LSTATUS status = RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA) // a name that has come since
            return names;
        if (status == ERROR_SUCCESS)
            names.append(QString::fromWCharArray(name.data(), static_cast<qsizetype>(length)));
    }
}

QList<RegistryValue> valuesOf(HKEY key, const Sizes &sizes)
{
    std::vector<wchar_t> name(sizes.longestName + 1);
    QByteArray data(static_cast<qsizetype>(sizes.largestData), Qt::Uninitialized);
    QList<RegistryValue> values;
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        auto size = static_cast<DWORD>(data.size());
        DWORD type = 0;
        const LSTATUS status = RegEnumValueW(key, index, name.data(), &length, nullptr, &type,
                                             reinterpret_cast<BYTE *>(data.data()), &size);
        if (status == ERROR_MORE_DATA) { // it has grown since
            data.resize(std::max<qsizetype>(2 * data.size(), static_cast<qsizetype>(size)) + 1);
            name.resize(2 * name.size());
            --index;
        } else if (status != ERROR_SUCCESS) {
            return values;
        } else {
            values.append({QString::fromWCharArray(name.data(), static_cast<qsizetype>(length)),
                           static_cast<RegistryType>(type), data.first(static_cast<qsizetype>(size))});
        }
    }
}

/** All services that are no drivers; the buffer holds the records, and their names after them. */
std::optional<std::span<const ENUM_SERVICE_STATUS_PROCESSW>> listServices(SC_HANDLE manager, std::vector<BYTE> &buffer)
{
    constexpr int tries = 5; // services may come meanwhile

    for (int i = 0; i < tries; ++i) {
        DWORD missing = 0;
        DWORD count = 0;
        DWORD resume = 0;
        if (EnumServicesStatusExW(manager, SC_ENUM_PROCESS_INFO, SERVICE_WIN32, SERVICE_STATE_ALL, buffer.data(),
                                  static_cast<DWORD>(buffer.size()), &missing, &count, &resume, nullptr)) {
            const auto *records = reinterpret_cast<const ENUM_SERVICE_STATUS_PROCESSW *>(buffer.data());
            return std::span(records, count);
        }
        if (GetLastError() != ERROR_MORE_DATA)
            break;
        buffer.resize(buffer.size() + missing);
    }
    return std::nullopt;
}

} // namespace

KeyContent WindowsReader::key(const QString &path) const
{
    const auto [key, status] = openExisting(path, KEY_READ);
    if (!key)
        return {status == ERROR_ACCESS_DENIED, status == ERROR_ACCESS_DENIED};
    const std::optional<Sizes> sizes = sizesOf(key.get());
    if (!sizes)
        return {true, true};
    return {true, false, valuesOf(key.get(), *sizes), subkeysOf(key.get(), *sizes)};
}

std::optional<QList<ServiceReport>> WindowsReader::serviceReports() const
{
    const ServiceManager manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_ENUMERATE_SERVICE));
    std::vector<BYTE> buffer;
    const auto records = manager ? listServices(manager.get(), buffer) : std::nullopt;
    if (!records)
        return std::nullopt;
    QList<ServiceReport> services;
    for (const ENUM_SERVICE_STATUS_PROCESSW &record : *records) {
        const SERVICE_STATUS_PROCESS &status = record.ServiceStatusProcess;
        const bool running = status.dwCurrentState != SERVICE_STOPPED && status.dwCurrentState != SERVICE_STOP_PENDING;
        services.append({QString::fromWCharArray(record.lpServiceName), running,
                         running || status.dwWin32ExitCode != ERROR_SERVICE_NEVER_STARTED});
    }
    return services;
}

QStringList WindowsReader::namesOfUser() const
{
    return shownNamesOfUser();
}
