// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the window on the given machine, or an empty one, until it is painted for the first time.

#include "machine/seam/machineplatform.h"
#include "window/kestrune.h"

#include <QApplication>

#include <cstdio>

namespace {

int showUntilPainted(QMainWindow &window)
{
    window.show();
    window.grab();
    // Who waits for the first page needn't wait for the end.
    std::puts("painted");
    std::fflush(stdout);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc < 2) {
        QMainWindow window;
        window.resize(800, 640);
        return showUntilPainted(window);
    }
    setPlatform(std::make_unique<MachinePlatform>(QString::fromLocal8Bit(argv[1]), MachineOptions{}));
    Kestrune window;
    return showUntilPainted(window);
}
