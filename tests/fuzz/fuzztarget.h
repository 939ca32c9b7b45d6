// SPDX-License-Identifier: GPL-3.0-or-later
// Readers that get any bytes: what they must be like then, tried by libFuzzer, and by every run of the tests on the
// inputs that it found.

#pragma once

#include <QByteArray>
#include <QDebug>

/** A reader that main() knows by its name. */
class FuzzTarget
{
public:
    using Take = void (*)(const QByteArray &input);
    FuzzTarget(const char *name, Take take);
};

/** Ends the program where a rule doesn't hold, which libFuzzer reports with the input. */
#define FUZZ_VERIFY(rule) (static_cast<bool>(rule) ? void() : qFatal("%s:%d: %s", __FILE__, __LINE__, #rule))

/** The body of a reader's trial follows, with the bytes as @p input. Inputs that a reader refuses are all right. */
#define FUZZ_TARGET(name)                                                                                              \
    static void name(const QByteArray &input);                                                                         \
    static const FuzzTarget name##Target(#name, name);                                                                 \
    static void name(const QByteArray &input)
