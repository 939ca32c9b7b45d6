// SPDX-License-Identifier: GPL-3.0-or-later
// Stands in for a program of the host: leaves a file with its own path in the folder that KESTRUNE_MARKS names.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

int main(int, char **arguments)
{
    const char *folder = std::getenv("KESTRUNE_MARKS");
    if (folder == nullptr)
        return 1;
    const std::filesystem::path name = std::filesystem::path(arguments[0]).filename();
    for (int number = 0; number < 1000; ++number) {
        const std::filesystem::path mark = folder / std::filesystem::path(name.string() + '-' + std::to_string(number));
        if (!std::filesystem::exists(mark)) {
            std::ofstream(mark) << arguments[0] << '\n';
            return 0;
        }
    }
    return 1;
}
