// SPDX-License-Identifier: GPL-3.0-or-later
// What the benchmarks of a program come to: each measured figure beside its reference and goal.
#pragma once

#include <optional>
#include <span>
#include <string>

// Benchmarks are named as registered, with their argument: "open/32000".
struct Ratio
{
    std::string measured;
    std::string reference;           // the same work done plainly, or on a small list
    std::optional<double> goal = {}; // at most so many times the reference
};

// A time by itself.
struct Limit
{
    std::string measured;
    double milliseconds = 0;
};

// Runs the registered benchmarks and prints the ratios of their medians at the end. Takes Google
// Benchmark's options; without any, each benchmark is run 9 times, in turns with the others.
// The time is the processor's, unless a benchmark asks for real time. Returns the exit status.
int runBenchmarks(int argc, char **argv, std::span<const Ratio> ratios,
                  std::span<const Limit> limits);
