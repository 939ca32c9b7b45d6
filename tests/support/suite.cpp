// SPDX-License-Identifier: GPL-3.0-or-later

#include "suite.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <map>
#include <vector>

namespace {

// Made before main() by whatever suite comes first.
std::map<QString, Suite::Run> &suites()
{
    static std::map<QString, Suite::Run> all;
    return all;
}

std::vector<SuiteHelper::Run> &helpers()
{
    static std::vector<SuiteHelper::Run> all;
    return all;
}

} // namespace

Suite::Suite(const char *file, Run run)
{
    suites().emplace(QFileInfo(QDir::fromNativeSeparators(QString::fromUtf8(file))).completeBaseName(), run);
}

SuiteHelper::SuiteHelper(Run run)
{
    helpers().push_back(run);
}

int main(int argc, char **argv)
{
    for (const SuiteHelper::Run helper : helpers()) {
        if (const std::optional<int> code = helper(argc, argv))
            return *code;
    }
    const auto suite = argc > 1 ? suites().find(QString::fromLocal8Bit(argv[1])) : suites().end();
    if (suite == suites().end()) {
        std::fputs("Usage: name a suite, and after it the arguments of Qt Test. There are:\n", stderr);
        for (const auto &[name, run] : suites())
            std::fprintf(stderr, "  %s\n", qUtf8Printable(name));
        return 2;
    }
    // Qt Test sees a program without the suite's name.
    for (int i = 1; i + 1 < argc; ++i)
        argv[i] = argv[i + 1];
    argv[argc - 1] = nullptr;
    return suite->second(argc - 1, argv);
}
