// SPDX-License-Identifier: GPL-3.0-or-later
// The hardware of a machine.json.

#pragma once

#include "jsonreader.h"

/** Checks the hardware part by part, and gives it as Machine::setHardware() takes it. Throws MachineError. */
QJsonObject readHardwareJson(const JsonReader &read, const QJsonValue &value, const QString &key);
