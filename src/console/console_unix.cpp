// SPDX-License-Identifier: GPL-3.0-or-later

#include "console.h"
#include "programinterruption.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <thread>

#include <iconv.h>
#include <signal.h>
#include <unistd.h>

namespace {

const pid_t starter = getppid();

std::atomic<int> received = 0; // the number of the signal
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" {
static void noteSignal(int number)
{
    received = number;
}
}

/** Past the C library, which may wait at the end of the process for whoever reads. */
void waitForEndOfInput()
{
    char ignored[256];
    while (read(STDIN_FILENO, ignored, sizeof(ignored)) > 0) {
    }
}

} // namespace

void useBinaryOutput() {}

void useUtf8Output() {}

bool errorsGoToTerminal()
{
    return isatty(STDERR_FILENO) != 0;
}

bool starterIsGone()
{
    return getppid() != starter;
}

QString consoleText(const QByteArray &bytes)
{
    return fromConsoleBytes(bytes);
}

std::optional<QString> textOfCodePage(const QByteArray &bytes, uint codePage)
{
    const QByteArray name = "CP" + QByteArray::number(codePage);
    const iconv_t converter = iconv_open("UTF-16LE", name.constData());
    if (converter == iconv_t(-1))
        return {};
    QByteArray source = bytes; // iconv wants it to be writable, and writes nothing
    char *from = source.data();
    std::size_t left = static_cast<std::size_t>(source.size());
    QString text;
    while (left > 0) {
        std::array<char16_t, 1024> units;
        char *to = reinterpret_cast<char *>(units.data());
        std::size_t room = sizeof units;
        const std::size_t result = iconv(converter, &from, &left, &to, &room);
        text.append(QStringView(units.data(), static_cast<qsizetype>((sizeof units - room) / sizeof units[0])));
        if (result == std::size_t(-1) && errno != E2BIG) {
            text.append(QChar(QChar::ReplacementCharacter));
            ++from;
            --left;
        }
    }
    iconv_close(converter);
    return text;
}

void watchForInterruption()
{
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    sigemptyset(&action.sa_mask);
    // Without SA_RESTART: writing to a pipe that nobody reads ends by the signal.
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        struct sigaction former = {};
        sigaction(number, nullptr, &former);
        if (former.sa_handler != SIG_IGN)
            sigaction(number, &action, nullptr);
    }
}

void watchStandardInput()
{
    std::thread([] {
        waitForEndOfInput();
        received = SIGINT;
    }).detach();
}

bool isInterrupted()
{
    return received != 0;
}

void stopIfInterrupted()
{
    if (const int number = received; number != 0)
        throw Interrupted{128 + number};
}
