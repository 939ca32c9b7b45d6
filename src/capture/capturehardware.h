// SPDX-License-Identifier: GPL-3.0-or-later
// What a PC is made of, and how busy it is.

#pragma once

#include "capturetasks.h"

#include <QJsonObject>

/** The parts of machine.json's "hardware". Takes half a second. */
QJsonObject captureHardware();
/** The answers to all that the program asks of the management instrumentation. */
QMap<QString, QList<QJsonObject>> captureWmi(QList<NotRead> &notRead);
/** The variables that the program reads. */
QMap<QString, QString> captureEnvironment();
