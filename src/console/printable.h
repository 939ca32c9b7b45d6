// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of a machine as they may be printed: whoever made them, no terminal obeys them and no line is forged.

#pragma once

#include <QJsonDocument>
#include <QString>

/**
 * The text with its control characters written out: "\n", "\t", "\x1b", "\u202e". Line breaks of all kinds are among
 * them, and what turns the direction of the letters after it. A backslash stays one.
 */
QString printable(const QString &text);
/** The document as UTF-8, with these characters written out as JSON does it: it reads back as it was. */
QByteArray printableJson(const QJsonDocument &document, QJsonDocument::JsonFormat format = QJsonDocument::Indented);
