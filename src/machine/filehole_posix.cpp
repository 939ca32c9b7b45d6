// SPDX-License-Identifier: GPL-3.0-or-later

#include "filehole.h"

#include <cerrno>
#include <unistd.h>

qint64 nextData(QFile &file, qint64 offset)
{
    const off_t found = lseek(file.handle(), offset, SEEK_DATA);
    if (found >= 0)
        return found;
    return errno == ENXIO ? file.size() : offset;
}

bool resizeWithHole(QFile &file, qint64 size)
{
    return file.resize(size);
}
