// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-fuzz TARGET [FILE...]: gives files, or all those of folders, to a reader. Built for libFuzzer it is that
// program's main(), and the environment variable KESTRUNE_FUZZ_TARGET names the reader.

#include "fuzztarget.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <map>
#include <string>

namespace {

// Made before main() by whatever target comes first.
std::map<std::string, FuzzTarget::Take> &targets()
{
    static std::map<std::string, FuzzTarget::Take> all;
    return all;
}

FuzzTarget::Take targetCalled(const std::string &name)
{
    const auto found = targets().find(name);
    if (found != targets().end())
        return found->second;
    std::fputs("Name a target. There are:\n", stderr);
    for (const auto &[each, take] : targets())
        std::fprintf(stderr, "  %s\n", each.c_str());
    std::exit(2);
}

} // namespace

FuzzTarget::FuzzTarget(const char *name, Take take)
{
    targets().emplace(name, take);
}

#ifdef KESTRUNE_LIBFUZZER

// libFuzzer calls them, and has no header for it.
extern "C" {
int LLVMFuzzerInitialize(int *argc, char ***argv);
int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);
}

// What the readers say of bad input would only fill the terminal.
int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const QCoreApplication application(*argc, *argv);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    });
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    static const FuzzTarget::Take take = targetCalled(qgetenv("KESTRUNE_FUZZ_TARGET").toStdString());
    take(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}

#else

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const FuzzTarget::Take take = targetCalled(arguments.value(1).toStdString());
    QStringList files;
    for (const QString &path : arguments.mid(2)) {
        QDirIterator folder(path, QDir::Files);
        while (folder.hasNext())
            files.append(folder.next());
        if (QFileInfo(path).isFile())
            files.append(path);
    }
    for (const QString &path : std::as_const(files)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s can't be read\n", qUtf8Printable(path));
            return 1;
        }
        // Said before, so that it is known what ended the program.
        std::printf("%s\n", qUtf8Printable(QFileInfo(path).fileName()));
        std::fflush(stdout);
        take(file.readAll());
    }
    std::printf("%d inputs\n", static_cast<int>(files.size()));
    return files.isEmpty() ? 1 : 0;
}

#endif
