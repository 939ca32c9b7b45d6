// SPDX-License-Identifier: GPL-3.0-or-later
// How a name stands in bytes.

#pragma once

#include <QRegularExpression>
#include <QStringList>

/** How the texts of Windows stand in bytes: UTF-8 along with the code pages that agree with Latin-1, and UTF-16LE. */
enum class TextForm { Bytes, Utf16 };

/**
 * Finds any of these names in bytes, which are to be read as Latin-1, at whatever place and in whatever case. A name
 * that is part of many words must stand alone. A backslash stands for any separators of a path. Nothing is found where
 * there are no names.
 */
QRegularExpression namesInBytes(const QStringList &names, TextForm form);
