// SPDX-License-Identifier: GPL-3.0-or-later
// The processor time that programs in the foreground get.

#include "gamingtweaks.h"
#include "platform/platform.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/** By the place of the choice; the choices begin with these numbers. */
constexpr std::array quanta{22, 21, 20, 38, 37, 36, 24, 40};

} // namespace

void setQuantumTweak(bool apply, int index)
{
    const QString name = u"Win32PrioritySeparation"_s;
    const auto key = platform().openKey(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\PriorityControl"_s);
    if (!apply)
        key->remove(name);
    else if (index >= 0 && index < static_cast<int>(quanta.size()))
        key->setValue(name, quanta[static_cast<std::size_t>(index)]);
}
