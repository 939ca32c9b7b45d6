// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own place in the web, and what it answers.

#pragma once

#include <QString>

#include <optional>

/** Name of the program's web host; the build chooses it. */
QString webHost();

/** The form's texts, in every language, name a reserved host. Gives the text with the real one in its place. */
QString withWebHost(QString text, const QString &host = webHost());

/** Bytes of the longest answer that may name a version. */
inline constexpr qint64 longestAnswer = 64 * 1024;

/**
 * The version that the host names, as it is shown: a long answer by its start. Nothing where that is the present one,
 * or the answer is too long to be one.
 */
std::optional<QString> otherVersion(const QByteArray &answer, const QString &present);
