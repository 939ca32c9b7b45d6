// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu of Windows 10.

#include "platform/platform.h"
#include "windowstweaks.h"

using namespace Qt::StringLiterals;

void setClassicMenuTweak(bool apply)
{
    const auto key = platform().openKey(
        u"HKEY_CURRENT_USER\\Software\\Classes\\CLSID\\{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}\\InprocServer32"_s);
    // Taking it back looks for the name below the key instead of above it: the key and its empty value stay.
    if (apply)
        key->setValue(u"Default"_s, u""_s);
    else
        key->remove(u"{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}"_s);
}
