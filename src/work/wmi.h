// SPDX-License-Identifier: GPL-3.0-or-later
// The one door to WMI.

#pragma once

#include <QStringList>

/**
 * Properties of all instances of a class in ROOT\CIMV2, as one text: for each instance in order, for each property in
 * the order asked, "\r\n", the property's name, "=" and its value. Empty where no instance was read. Failures are
 * logged.
 * @p properties isn't empty: the first one names the query in the log. Any thread.
 */
QString WmiQuery(const QString &className, const QStringList &properties);
