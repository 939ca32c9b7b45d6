// SPDX-License-Identifier: GPL-3.0-or-later
// The video encoder that comes with the overlay program RivaTuner Statistics Server: found by Analyze, switched off by
// Optimize.

#include "automatizer.h"
#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "work/command.h"
#include "work/settings.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

std::atomic<int> encoderServerFound = 0;

namespace {

/** Host path of the file in which the encoder is switched. */
QString configFile()
{
    return platform().hostPath(qEnvironmentVariable("ProgramFiles(x86)")
                               + u"\\RivaTuner Statistics Server\\Profiles\\config"_s);
}

bool isEncoder(const QString &process)
{
    return process == "EncoderServer.exe"_L1 || process == "EncoderServer64.exe"_L1;
}

/** A file with the attribute readonly can't. */
bool canBeChanged(const QString &file)
{
    return QFile::exists(file) && (platform().fileAttributes(file) & AttributeReadOnly) == 0;
}

/** Handled as bytes, since the file's code page is unknown. */
QByteArray withEncoderOff(QByteArray config)
{
    // A switch that has another case or another value stays.
    if (config.toLower().contains("enableencoderserver"))
        return config.replace("EnableEncoderServer=1", "EnableEncoderServer=0");
    return config + "EnableEncoderServer=0";
}

} // namespace

std::optional<bool> isEncoderOff()
{
    const QStringList processes = platform().processNames();
    QFile file(configFile());
    if (std::none_of(processes.cbegin(), processes.cend(), isEncoder) || !file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray config = file.readAll();
    return withEncoderOff(config) == config;
}

void Automatizer::analyzeProcesses()
{
    encoderServerFound = 0;
    for (const QString &process : platform().processNames()) {
        if (!isEncoder(process) || !QFile::exists(configFile()))
            continue;
        encoderServerFound = 1;
        reportFinding(
            worker_.analyzeProcessCount,
            WorkThread::tr(
                "Process: can be disable: %1 from Riva Tuner Statistic Server app!\r\nThis process only allows "
                "screen video capture.Does not affect the monitoring display in any way")
                .replace(u"%1"_s, process));
        reportBreak();
    }
}

void Automatizer::optimizeEncoder()
{
    QFile file(configFile());
    if (!canBeChanged(file.fileName()) || !file.open(QIODevice::ReadWrite))
        return;
    runTool(u"taskkill"_s, {u"/im"_s, u"RTSS.exe"_s, u"/f"_s, u"/t"_s});

    const QByteArray config = withEncoderOff(file.readAll());
    file.close();
    const QFileInfo place(file.fileName());
    if (!platform().writeFile(place.path(), place.fileName(), config, IfThere::Exchange))
        LogError(u"optimizeEncoder: "_s + file.fileName() + u" can't be written"_s);
    report(WorkThread::tr("Process: disable EncoderServer done"));
    reportBreak();
}
