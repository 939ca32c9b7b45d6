// SPDX-License-Identifier: GPL-3.0-or-later
// The report's part on Windows itself.

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "reportsteps.h"
#include "work/windowsname.h"

using namespace Qt::StringLiterals;

namespace {

/** Other threads may be reading the text, and then it must not be written with the same. */
void setIfOther(QString &text, const QString &other)
{
    if (text != other)
        text = other;
}

} // namespace

void collectWindows(WorkThread &worker)
{
    const WindowsName windows = readWindowsName();
    setIfOther(worker.winName, windows.product);
    setIfOther(worker.winBuild, windows.build);
    const auto key = platform().openKey(WindowsKey::currentVersion);
    worker.winEdition = textOrUnknown(*key, u"CompositionEditionID"_s);
    worker.winVersion = textOrUnknown(*key, u"DisplayVersion"_s);

    const bool seeks = platform().seekPenalty(qEnvironmentVariable("windir")).value_or(true);
    worker.winOnSsd = seeks ? WorkThread::tr("No") : WorkThread::tr("Yes");
}
