// SPDX-License-Identifier: GPL-3.0-or-later
// What sc prints.

#pragma once

#include "servicedatabase.h"

enum class ScState : int { Stopped = 1, StartPending = 2, StopPending = 3, Running = 4 };
/** A list names each service's display name, an answer about one service doesn't. */
enum class ScRecordHead { WithDisplayName, NameAlone };

ScState scStateOf(const ServiceDatabase &services, const Service &service);
/** The record of a service, behind an empty line. */
QByteArray scRecord(const ServiceDatabase &services, const Service &service, ScRecordHead head, ScState state);
/** The answer of "sc qc". */
QByteArray scConfiguration(const ServiceDatabase &services, const Service &service);
/** "[SC] StartService FAILED 1058:", an empty line and the system's message. */
QByteArray scFailure(ServiceError error, QLatin1StringView step);
QByteArray scUsage();
