// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform.h"

#include "windowsfacts.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <exception>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#endif

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<Platform> current;

} // namespace

Platform &platform()
{
    if (!current)
        qFatal("no platform is set");
    return *current;
}

void setPlatform(std::unique_ptr<Platform> newPlatform)
{
    current = std::move(newPlatform);
}

std::unique_ptr<Platform> takePlatform()
{
    return std::move(current);
}

quint32 lastSystemError()
{
#ifdef Q_OS_WIN
    return GetLastError();
#else
    return static_cast<quint32>(errno);
#endif
}

bool Platform::hasContrastTheme() const
{
    return false;
}

int Platform::textScale() const
{
    for (const RegistryValue &value : registryValues(WindowsKey::userAccessibility)) {
        if (value.name.compare("TextScaleFactor"_L1, Qt::CaseInsensitive) == 0 && value.data.size() == sizeof(qint32))
            return std::clamp(qFromLittleEndian<qint32>(value.data.constData()), usualTextScale, largestTextScale);
    }
    return usualTextScale;
}

void Platform::setTitleBarDark(quintptr, bool) const {}

void Platform::setAllFileAttributes(const QList<FileAttributes> &files) const
{
    for (const FileAttributes &each : files)
        setFileAttributes(each.file, each.word);
}

qint64 Platform::fileSize(const QString &file) const
{
    return QFileInfo(file).size();
}

bool Platform::renameFile(const QString &from, const QString &to) const
{
    return QFile::rename(from, to);
}

bool Platform::removeFile(const QString &file) const
{
    return QFile::remove(file);
}

void Platform::startFailed(const QString &, const QString &) const {}

void Platform::beginChanges(const QString &) const {}

void Platform::endChanges(bool) const {}

QString Platform::takeFailure() const
{
    return {};
}

ChangeSession::ChangeSession(const QString &what)
    : exceptions_(std::uncaught_exceptions())
{
    platform().beginChanges(what);
}

ChangeSession::~ChangeSession()
{
    platform().endChanges(std::uncaught_exceptions() == exceptions_);
}
