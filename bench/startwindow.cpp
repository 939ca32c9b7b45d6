// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the window on the given machine, or an empty one, until it is painted for the first time.

#include "machine/seam/machineplatform.h"
#include "window/kestrune.h"

#include <QApplication>

#include <cstdio>

namespace {

/** Learns when a window has been asked to paint itself, which all that is on it does with it. */
class PaintSeen : public QObject
{
public:
    bool isSeen = false;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        isSeen = isSeen || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

int showUntilPainted(QMainWindow &window)
{
    // A picture that is asked for needs the sizes of hidden widgets, too: here the window paints itself, as on a
    // screen.
    PaintSeen paint;
    window.installEventFilter(&paint);
    window.show();
    while (!paint.isSeen)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
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
