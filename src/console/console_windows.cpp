// SPDX-License-Identifier: GPL-3.0-or-later

#include "console.h"
#include "programinterruption.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

UINT formerCodePage = 0; // 0: there is no console

std::atomic<bool> received = false;

/** Runs on a thread of its own. */
BOOL WINAPI noteEvent(DWORD event)
{
    received = true;
    // After all others the system ends the process as soon as this returns, or after a few seconds.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        Sleep(INFINITE);
    return TRUE;
}

/** Past the C library, which would wait at the end of the process for whoever reads. */
void waitForEndOfInput()
{
    char ignored[256];
    DWORD read = 0;
    while (ReadFile(GetStdHandle(STD_INPUT_HANDLE), ignored, sizeof(ignored), &read, nullptr) && read > 0) {
    }
}

} // namespace

void useBinaryOutput()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

void useUtf8Output()
{
    useBinaryOutput();
    formerCodePage = GetConsoleOutputCP();
    if (formerCodePage == 0)
        return;
    SetConsoleOutputCP(CP_UTF8);
    // It would stay that for whoever uses the console next.
    std::atexit([] { SetConsoleOutputCP(formerCodePage); });
}

bool errorsGoToTerminal()
{
    return _isatty(_fileno(stderr)) != 0;
}

bool starterIsGone()
{
    return false;
}

QString consoleText(const QByteArray &bytes)
{
    const UINT ofConsole = GetConsoleOutputCP(); // 0 without a console
    return textOfCodePage(bytes, ofConsole == 0 ? GetOEMCP() : ofConsole).value_or(QString());
}

std::optional<QString> textOfCodePage(const QByteArray &bytes, uint codePage)
{
    if (!IsValidCodePage(codePage))
        return {};
    const int size = static_cast<int>(bytes.size());
    QString text(MultiByteToWideChar(codePage, 0, bytes.constData(), size, nullptr, 0), Qt::Uninitialized);
    MultiByteToWideChar(codePage, 0, bytes.constData(), size, reinterpret_cast<wchar_t *>(text.data()),
                        static_cast<int>(text.size()));
    return text;
}

void watchForInterruption()
{
    SetConsoleCtrlHandler(noteEvent, TRUE);
}

void watchStandardInput()
{
    std::thread([] {
        waitForEndOfInput();
        received = true;
    }).detach();
}

bool isInterrupted()
{
    return received;
}

void stopIfInterrupted()
{
    if (received)
        throw Interrupted{130};
}
