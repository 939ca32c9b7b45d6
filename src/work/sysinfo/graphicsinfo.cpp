// SPDX-License-Identifier: GPL-3.0-or-later
// The report's part on the graphics card and the screen.

#include "platform/platform.h"
#include "reportsteps.h"
#include "wmifield.h"
#include "work/wmi.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/** "2023/06/13" of a CIM date, "20230613000000.000000-000"; what is too short for one stays as it is. */
QString dateOf(const QString &cimDate)
{
    constexpr qsizetype shortestDate = 21;

    if (cimDate.size() < shortestDate)
        return cimDate;
    QString date = cimDate;
    date.remove(u' ');
    for (const qsizetype position : {4, 7, 10})
        date.insert(position, u'/');
    return date.split(u'/').first(3).join(u'/');
}

void collectCard(WorkThread &worker)
{
    const QString answer =
        WmiQuery(u"Win32_VideoController"_s,
                 {u"Caption"_s, u"CurrentHorizontalResolution"_s, u"CurrentRefreshRate"_s,
                  u"CurrentVerticalResolution"_s, u"DriverDate"_s, u"DriverVersion"_s, u"MaxRefreshRate"_s});
    if (const auto caption = wmiField(answer, u"Caption"_s))
        worker.gpuName = caption->left(longestName);
    if (const auto width = wmiField(answer, u"CurrentHorizontalResolution"_s))
        worker.gpuDesktopMaxSize = *width;
    if (const auto rate = wmiField(answer, u"CurrentRefreshRate"_s))
        worker.gpuRefreshRate = *rate + u" Hz"_s;
    if (const auto height = wmiField(answer, u"CurrentVerticalResolution"_s))
        worker.gpuDesktopMaxSize += u" x "_s + *height;
    if (const auto date = wmiField(answer, u"DriverDate"_s))
        worker.gpuDriverDate = dateOf(*date);
    if (const auto version = wmiField(answer, u"DriverVersion"_s))
        worker.gpuDriverVersion = *version;
    // With a second card this one is followed by all that is known of that.
    if (const auto rate = wmiField(answer, u"MaxRefreshRate"_s, FieldEnd::Text))
        worker.screenMaxRefreshRate = *rate + u" Hz"_s;
}

/** The vendor's software has a version of its own, by which people know their driver. */
void collectRadeonVersion(WorkThread &worker)
{
    const auto key = platform().openKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\ATI Technologies\\Install"_s);
    const QString installer = textOrUnknown(*key, u"InstallDir"_s) + u"\\Bin64\\AMDSoftwareInstaller.exe"_s;
    if (QFileInfo::exists(platform().hostPath(installer)))
        worker.gpuDriverVersion = key->value(u"RadeonSoftwareVersion"_s).toString() + u" (RADEON)"_s;
}

} // namespace

void collectGraphics(WorkThread &worker)
{
    constexpr int highDynamicRange = 12; // DXGI_COLOR_SPACE_RGB_FULL_G2084_NONE_P2020

    collectCard(worker);
    const QSize screen = platform().screenSize();
    worker.gpuDesktopSize = QString::number(screen.width()) + u" x "_s + QString::number(screen.height());
    collectRadeonVersion(worker);
    if (const auto space = platform().colorSpace())
        worker.screenHdr = *space == highDynamicRange ? WorkThread::tr("enabled") : WorkThread::tr("disabled");
}
