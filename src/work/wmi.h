// SPDX-License-Identifier: GPL-3.0-or-later
// The one door to WMI, and how its answers are read.

#pragma once

#include <QStringList>

#include <optional>

/**
 * Properties of all instances of a class in ROOT\CIMV2, as one text: for each instance in order, for each property in
 * the order asked, "\r\n", the property's name, "=" and its value. Empty where no instance was read. Failures are
 * logged.
 * @p properties isn't empty: the first one names the query in the log. Any thread.
 */
QString WmiQuery(const QString &className, const QStringList &properties);

enum class FieldEnd {
    Line, ///< the value ends where its line does
    Text, ///< everything after the name belongs to the value
};

/**
 * The value of a property in what WmiQuery() gave, of the first instance where there are several. Nothing where the
 * text doesn't hold the property's name.
 *
 * With FieldEnd::Line the last property of the text loses its last character: no line break follows it, and the cut
 * then counts from the end. The report is known with these values, so it stays.
 */
std::optional<QString> wmiField(const QString &answer, const QString &property, FieldEnd end = FieldEnd::Line);

/** "2023/06/13" of a date in such a value, "20230613000000.000000-000"; what is too short for one stays as it is. */
QString wmiDate(const QString &value);

/** The name of the first display adapter, as WMI lists them; nothing where there is none. Any thread. */
std::optional<QString> firstDisplayAdapter();
