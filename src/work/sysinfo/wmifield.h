// SPDX-License-Identifier: GPL-3.0-or-later
// One property out of the text of a WMI query.

#pragma once

#include <QString>

#include <optional>

enum class FieldEnd {
    Line, ///< the value ends where its line does
    Text, ///< everything behind the name belongs to the value
};

/**
 * The value of a property in what WmiQuery() gave, of the first instance where there are several. Nothing where the
 * text doesn't hold the property's name.
 *
 * With FieldEnd::Line the last property of the text loses its last character: no line break follows it, and the cut
 * then counts from the end. The report is known with these values, so it stays.
 */
std::optional<QString> wmiField(const QString &answer, const QString &property, FieldEnd end = FieldEnd::Line);
