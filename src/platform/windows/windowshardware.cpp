// SPDX-License-Identifier: GPL-3.0-or-later
// The real Windows behind the seam: its hardware, and how busy it is.

#include "comobjects.h"
#include "windowsplatform.h"

#include <QStorageInfo>

#include <dxgi1_6.h>
#include <psapi.h>
#include <tlhelp32.h>
#include <winioctl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr DWORD longestVolumeName = 260; // wide characters

/** The volume that a path lies on, by the name that CreateFile takes; empty where there is none. */
QString volumeOf(const QString &windowsPath)
{
    wchar_t mountPoint[longestVolumeName];
    wchar_t name[longestVolumeName];
    if (!GetVolumePathNameW(wide(windowsPath), mountPoint, longestVolumeName)
        || !GetVolumeNameForVolumeMountPointW(mountPoint, name, longestVolumeName))
        return {};
    // With its backslash the name would mean the volume's root folder.
    QString volume = QString::fromWCharArray(name);
    if (volume.endsWith(u'\\'))
        volume.chop(1);
    return volume;
}

quint64 fileTime(const FILETIME &time)
{
    return quint64(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

} // namespace

std::optional<bool> WindowsPlatform::seekPenalty(const QString &windowsPath) const
{
    const QString volume = volumeOf(windowsPath);
    if (volume.isEmpty())
        return {};
    // Without access rights, so that it needs no elevation.
    const Handle device =
        validHandle(CreateFileW(wide(volume), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!device)
        return {};
    STORAGE_PROPERTY_QUERY query{};
    query.PropertyId = StorageDeviceSeekPenaltyProperty;
    query.QueryType = PropertyStandardQuery;
    DEVICE_SEEK_PENALTY_DESCRIPTOR answer{};
    DWORD size = 0;
    if (!DeviceIoControl(device.get(), IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof(query), &answer, sizeof(answer),
                         &size, nullptr))
        return {};
    return answer.IncursSeekPenalty != 0;
}

std::optional<int> WindowsPlatform::colorSpace() const
{
    ComPointer<IDXGIFactory1> factory;
    ComPointer<IDXGIAdapter1> adapter;
    ComPointer<IDXGIOutput> output;
    ComPointer<IDXGIOutput6> output6;
    DXGI_OUTPUT_DESC1 description{};
    const bool known =
        SUCCEEDED(CreateDXGIFactory1(__uuidof(IDXGIFactory1), reinterpret_cast<void **>(factory.receive())))
        && SUCCEEDED(factory->EnumAdapters1(0, adapter.receive()))
        && SUCCEEDED(adapter->EnumOutputs(0, output.receive()))
        && SUCCEEDED(output->QueryInterface(__uuidof(IDXGIOutput6), reinterpret_cast<void **>(output6.receive())))
        && SUCCEEDED(output6->GetDesc1(&description));
    return known ? std::optional(static_cast<int>(description.ColorSpace)) : std::nullopt;
}

QSize WindowsPlatform::screenSize() const
{
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

bool WindowsPlatform::hasContrastTheme() const
{
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof(contrast);
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0)
           && (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

void WindowsPlatform::setTitleBarDark(quintptr window, bool dark) const
{
    using SetAttribute = HRESULT(WINAPI *)(HWND, DWORD, LPCVOID, DWORD);
    constexpr DWORD darkMode = 20; // DWMWA_USE_IMMERSIVE_DARK_MODE, since version 2004 of Windows 10

    // Never given back: the window manager works with the library as long as there are windows.
    static const HMODULE library = LoadLibraryExW(L"dwmapi.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    static const auto setAttribute =
        library != nullptr
            ? reinterpret_cast<SetAttribute>(reinterpret_cast<void *>(GetProcAddress(library, "DwmSetWindowAttribute")))
            : nullptr;
    const BOOL value = dark ? TRUE : FALSE;
    if (setAttribute != nullptr)
        setAttribute(reinterpret_cast<HWND>(window), darkMode, &value, sizeof(value));
}

ProcessorTimes WindowsPlatform::processorTimes() const
{
    FILETIME idle{};
    FILETIME kernel{};
    FILETIME user{};
    if (!GetSystemTimes(&idle, &kernel, &user))
        return {};
    return {fileTime(idle), fileTime(kernel), fileTime(user)};
}

QList<quint32> WindowsPlatform::processIds() const
{
    DWORD ids[1024];
    DWORD bytes = 0;
    if (!K32EnumProcesses(ids, sizeof(ids), &bytes))
        return {};
    return {ids, ids + bytes / sizeof(ids[0])};
}

int WindowsPlatform::threadCount() const
{
    const Handle snapshot = validHandle(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
    THREADENTRY32 entry{};
    entry.dwSize = sizeof(entry);
    int count = 0;
    for (bool any = snapshot && Thread32First(snapshot.get(), &entry); any;
         any = Thread32Next(snapshot.get(), &entry) != FALSE)
        ++count;
    return count;
}

quint64 WindowsPlatform::freeMemory() const
{
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof(status);
    return GlobalMemoryStatusEx(&status) ? status.ullAvailPhys : 0;
}

RootDrive WindowsPlatform::rootDrive() const
{
    // Which Qt may keep from an earlier question, so it is read anew.
    QStorageInfo drive = QStorageInfo::root();
    drive.refresh();
    return {drive.rootPath(), static_cast<quint64>(qMax<qint64>(drive.bytesFree(), 0))};
}
