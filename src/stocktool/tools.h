// SPDX-License-Identifier: GPL-3.0-or-later
// The stock tools of a rehearsal machine, one function each.

#pragma once

#include "toolhost.h"

/** What a tool gave: its 32-bit exit code and the bytes of its two outputs, lines ended by CR LF. */
struct ToolResult
{
    int exitCode = 0;
    QByteArray output{};
    QByteArray errors{};
};

/** The exit code of a program that the command interpreter doesn't find. */
constexpr int exitNoSuchProgram = 9009;

/** Answers as the tool of that name; a name that no tool has is no program. */
ToolResult runTool(const QString &name, ToolHost &host, const QStringList &arguments);

ToolResult runSc(ToolHost &host, const QStringList &arguments);
ToolResult runSchtasks(ToolHost &host, const QStringList &arguments);
ToolResult runPowerShell(ToolHost &host, const QStringList &arguments);
ToolResult runTaskkill(ToolHost &host, const QStringList &arguments);
ToolResult runOneDriveSetup(ToolHost &host, const QStringList &arguments);
ToolResult runCmd(ToolHost &host, const QStringList &arguments);
ToolResult runPowercfg(ToolHost &host, const QStringList &arguments);
ToolResult runBcdedit(ToolHost &host, const QStringList &arguments);
ToolResult runTakeown(ToolHost &host, const QStringList &arguments);
ToolResult runIcacls(ToolHost &host, const QStringList &arguments);
