// SPDX-License-Identifier: GPL-3.0-or-later
// Prepares itself as our programs do, writes down what its operands mean and whether planted.dll can be loaded, and
// lets another program write what that one sees: the current folder and all variables, each in a line.

#include "platform/processground.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

#include <windows.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void print(const QString &line)
{
    std::printf("%s\n", QDir::toNativeSeparators(line).toUtf8().constData());
}

/** Whether an administrator's rights are in force, and what came in; whoever asks for it gets the code 42. */
int tellRights()
{
    constexpr int asked = 42;

    BYTE sid[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof(sid);
    BOOL isMember = TRUE;
    CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, sid, &size);
    CheckTokenMembership(nullptr, sid, &isMember);
    print(isMember ? u"administrator"_s : u"user"_s);
    char line[100] = "";
    if (std::fgets(line, sizeof(line), stdin) != nullptr)
        print(QString::fromUtf8(line).trimmed());
    return asked;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 1) {
        print(QDir::currentPath());
        for (const QString &variable : QProcessEnvironment::systemEnvironment().toStringList())
            print(variable);
        return 0;
    }
    prepareProcess();
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains("--without-rights"_L1)) {
        if (const auto code = runWithoutRights())
            return *code;
        return tellRights();
    }
    for (const QString &operand : QCoreApplication::arguments().sliced(1))
        print(absolutePath(operand));
    print(LoadLibraryW(L"planted.dll") != nullptr ? u"loaded"_s : u"not loaded"_s);
    std::fflush(stdout);
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(), QStringList());
    return child.waitForFinished() ? child.exitCode() : 1;
}
