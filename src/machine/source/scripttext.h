// SPDX-License-Identifier: GPL-3.0-or-later
// The characters of a registry script.

#pragma once

#include <QByteArray>
#include <QString>

struct ScriptText
{
    QString text;
    QString problem; ///< why the bytes are no text; empty if all is well
    int problemLine = 0;
};

/** Decodes UTF-16 of either byte order, UTF-8, and the Latin letters of a REGEDIT4 script. */
ScriptText decodeScript(const QByteArray &bytes);
