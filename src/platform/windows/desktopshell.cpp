// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktopshell.h"

#include "comobjects.h"

#include <exdisp.h>
#include <shldisp.h>
#include <shlguid.h>
#include <shlobj.h>
#include <shobjidl.h>

namespace {

template<typename Interface>
HRESULT ask(IUnknown *object, ComPointer<Interface> &answer)
{
    return object->QueryInterface(__uuidof(Interface), reinterpret_cast<void **>(answer.receive()));
}

/** The window that the desktop is, by the list of the shell's windows. */
HRESULT findDesktop(ComPointer<IDispatch> &desktop)
{
    ComPointer<IShellWindows> windows;
    HRESULT result = CoCreateInstance(CLSID_ShellWindows, nullptr, CLSCTX_LOCAL_SERVER, __uuidof(IShellWindows),
                                      reinterpret_cast<void **>(windows.receive()));
    if (FAILED(result))
        return result;
    VARIANT place{};
    place.vt = VT_I4;
    place.lVal = CSIDL_DESKTOP;
    VARIANT nothing{};
    long window = 0;
    result = windows->FindWindowSW(&place, &nothing, SWC_DESKTOP, &window, SWFO_NEEDDISPATCH, desktop.receive());
    // S_FALSE: there is none.
    return result == S_OK ? S_OK : E_FAIL;
}

/** The desktop's own program, which a shell's window hands out as its application. */
HRESULT findShell(IDispatch *desktop, ComPointer<IShellDispatch2> &shell)
{
    ComPointer<IServiceProvider> services;
    ComPointer<IShellBrowser> browser;
    ComPointer<IShellView> view;
    ComPointer<IDispatch> background;
    ComPointer<IShellFolderViewDual> folder;
    ComPointer<IDispatch> application;
    HRESULT result = ask(desktop, services);
    if (SUCCEEDED(result))
        result = services->QueryService(SID_STopLevelBrowser, __uuidof(IShellBrowser),
                                        reinterpret_cast<void **>(browser.receive()));
    if (SUCCEEDED(result))
        result = browser->QueryActiveShellView(view.receive());
    if (SUCCEEDED(result))
        result =
            view->GetItemObject(SVGIO_BACKGROUND, __uuidof(IDispatch), reinterpret_cast<void **>(background.receive()));
    if (SUCCEEDED(result))
        result = ask(background.get(), folder);
    if (SUCCEEDED(result))
        result = folder->get_Application(application.receive());
    return SUCCEEDED(result) ? ask(application.get(), shell) : result;
}

} // namespace

bool openByDesktop(const QString &target)
{
    ComPointer<IDispatch> desktop;
    ComPointer<IShellDispatch2> shell;
    if (FAILED(findDesktop(desktop)) || FAILED(findShell(desktop.get(), shell)))
        return false;
    const ComText file(target);
    const VARIANT usual{};
    return SUCCEEDED(shell->ShellExecute(file.get(), usual, usual, usual, usual));
}
