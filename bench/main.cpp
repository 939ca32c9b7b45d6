// SPDX-License-Identifier: GPL-3.0-or-later
// Runs all benchmarks and prints one table.

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    QApplication application(argc, argv);
    return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 1;
}
