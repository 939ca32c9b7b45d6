// SPDX-License-Identifier: GPL-3.0-or-later

#include "reporttexts.h"

using namespace Qt::StringLiterals;

namespace {

struct TextRow
{
    QLatin1StringView name;
    QString WorkThread::*text;
};

// clang-format off
constexpr TextRow rows[] = {
    {"winName"_L1,              &WorkThread::winName},
    {"winBuild"_L1,             &WorkThread::winBuild},
    {"winVersion"_L1,           &WorkThread::winVersion},
    {"winEdition"_L1,           &WorkThread::winEdition},
    {"winOnSsd"_L1,             &WorkThread::winOnSsd},
    {"cpuName"_L1,              &WorkThread::cpuName},
    {"cpuFreq"_L1,              &WorkThread::cpuFreq},
    {"cpuCore"_L1,              &WorkThread::cpuCore},
    {"cpuThread"_L1,            &WorkThread::cpuThread},
    {"cpuL2Size"_L1,            &WorkThread::cpuL2Size},
    {"cpuL3Size"_L1,            &WorkThread::cpuL3Size},
    {"cpuSocket"_L1,            &WorkThread::cpuSocket},
    {"cpuV"_L1,                 &WorkThread::cpuV},
    {"cpuHt"_L1,                &WorkThread::cpuHt},
    {"memTotal"_L1,             &WorkThread::memTotal},
    {"memFree"_L1,              &WorkThread::memFree},
    {"memFreq"_L1,              &WorkThread::memFreq},
    {"memFormFactor"_L1,        &WorkThread::memFormFactor},
    {"memVSize"_L1,             &WorkThread::memVSize},
    {"memVSizeDrive"_L1,        &WorkThread::memVSizeDrive},
    {"mbManufacturer"_L1,       &WorkThread::mbManufacturer},
    {"mbModel"_L1,              &WorkThread::mbModel},
    {"mbBiosVersion"_L1,        &WorkThread::mbBiosVersion},
    {"mbBiosDate"_L1,           &WorkThread::mbBiosDate},
    {"gpuName"_L1,              &WorkThread::gpuName},
    {"gpuDriverVersion"_L1,     &WorkThread::gpuDriverVersion},
    {"gpuDriverDate"_L1,        &WorkThread::gpuDriverDate},
    {"gpuRefreshRate"_L1,       &WorkThread::gpuRefreshRate},
    {"gpuDesktopSize"_L1,       &WorkThread::gpuDesktopSize},
    {"gpuDesktopMaxSize"_L1,    &WorkThread::gpuDesktopMaxSize},
    {"screenMaxRefreshRate"_L1, &WorkThread::screenMaxRefreshRate},
    {"screenHdr"_L1,            &WorkThread::screenHdr},
    {"diskInfo"_L1,             &WorkThread::diskInfo},
};
// clang-format on

} // namespace

JobResults reportTexts(const WorkThread &worker)
{
    JobResults results;
    for (const TextRow &row : rows)
        results.append({row.name, worker.*(row.text)});
    return results;
}
