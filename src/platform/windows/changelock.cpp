// SPDX-License-Identifier: GPL-3.0-or-later

#include "changelock.h"

#include "adminfolder.h"
#include "systemobjects.h"

#include <sddl.h>

namespace {

// It belongs to the administrators, and nobody else may open it.
constexpr wchar_t mutexRights[] = L"O:BAG:BAD:P(A;;GA;;;BA)(A;;GA;;;SY)";

} // namespace

std::shared_ptr<void> lockChanges()
{
    // Nobody waits for the mutex or owns it: it is there as long as an instance has it open, however that one ends.
    //
    // Any program may take its name first, with an object of its own. Such a one keeps nobody from Optimize and
    // Restore, and neither does one that can't be opened, since those of administrators always can. All that is gained
    // by it is that two instances may run at the same time, if their user starts them.
    const auto nobody = std::make_shared<char>();
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(mutexRights, SDDL_REVISION_1, &descriptor, nullptr))
        return nobody;
    const LocalMemory memory(descriptor);
    SECURITY_ATTRIBUTES attributes{sizeof(attributes), descriptor, FALSE};
    SetLastError(ERROR_SUCCESS);
    Handle mutex(CreateMutexExW(&attributes, changeLockName, 0, SYNCHRONIZE | READ_CONTROL));
    const bool wasThere = GetLastError() == ERROR_ALREADY_EXISTS;
    if (mutex && wasThere && isOfAdministrators(mutex.get(), SE_KERNEL_OBJECT))
        return nullptr;
    if (!mutex || wasThere)
        return nobody;
    return {mutex.release(), HandleCloser()};
}
