// SPDX-License-Identifier: GPL-3.0-or-later
// The report's part on the mother-board.

#include "platform/platform.h"
#include "reportsteps.h"

using namespace Qt::StringLiterals;

void collectMotherboard(WorkThread &worker)
{
    const auto key = platform().openKey(u"HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\BIOS"_s);
    worker.mbManufacturer =
        textOrUnknown(*key, u"BaseBoardManufacturer"_s).remove(u"Co., Ltd."_s, Qt::CaseInsensitive).left(longestName);
    worker.mbModel = textOrUnknown(*key, u"BaseBoardProduct"_s).left(longestName);
    worker.mbBiosVersion = textOrUnknown(*key, u"BIOSVersion"_s);
    worker.mbBiosDate = textOrUnknown(*key, u"BIOSReleaseDate"_s);
}
