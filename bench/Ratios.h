// SPDX-License-Identifier: GPL-3.0-or-later
// The results of a benchmark program: each figure with its reference and goal.
#pragma once

#include <optional>
#include <span>
#include <string>

// Benchmarks are named as registered, with their argument: "open/32000".
struct Ratio
{
    std::string measured;
    std::string reference;           // the plainest way to do the same, or a small list
    std::optional<double> goal = {}; // at most so many times the reference
};

// A time without a reference.
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
