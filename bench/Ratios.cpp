// SPDX-License-Identifier: GPL-3.0-or-later
#include "Ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

namespace {

// Prints median and spread of each benchmark and keeps the time of each of its runs.
class KeepingReporter final : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        std::vector<Run> printed;
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                keep(run);
            if (run.error_occurred || runs.size() == 1 || run.aggregate_name == "median" ||
                run.aggregate_name == "cv")
                printed.push_back(run);
        }
        ConsoleReporter::ReportRuns(printed);
    }

    // In milliseconds; empty if the benchmark did not run.
    [[nodiscard]] std::optional<double> median(const std::string &name) const
    {
        const auto found = m_times.find(name);
        if (found == m_times.end())
            return {};
        std::vector<double> times = found->second;
        std::sort(times.begin(), times.end());
        const std::size_t half = times.size() / 2;
        return times.size() % 2 == 1 ? times[half] : (times[half - 1] + times[half]) / 2;
    }

private:
    void keep(const Run &run)
    {
        const bool cpuTime = run.run_name.time_type.empty();
        const double seconds = (cpuTime ? run.cpu_accumulated_time : run.real_accumulated_time) /
                               static_cast<double>(run.iterations);
        std::string name = run.run_name.function_name;
        if (!run.run_name.args.empty())
            name += '/' + run.run_name.args;
        m_times[name].push_back(seconds * 1000);
    }

    std::map<std::string, std::vector<double>> m_times;
};

const char *verdict(bool reached)
{
    return reached ? "reached" : "MISSED";
}

void print(const KeepingReporter &times, const Ratio &ratio)
{
    const auto measured = times.median(ratio.measured);
    const auto reference = times.median(ratio.reference);
    if (!measured || !reference)
        return;
    const double found = *measured / *reference;
    std::printf("%-28s %10.4f ms  %8.3gx of %s (%.4f ms)", ratio.measured.c_str(), *measured, found,
                ratio.reference.c_str(), *reference);
    if (ratio.goal)
        std::printf(", goal %gx: %s", *ratio.goal, verdict(found <= *ratio.goal));
    std::printf("\n");
}

void print(const KeepingReporter &times, const Limit &limit)
{
    if (const auto measured = times.median(limit.measured))
        std::printf("%-28s %10.4f ms, goal %g ms: %s\n", limit.measured.c_str(), *measured,
                    limit.milliseconds, verdict(*measured <= limit.milliseconds));
}

} // namespace

int runBenchmarks(int argc, char **argv, std::span<const Ratio> ratios,
                  std::span<const Limit> limits)
{
    // In turns, so that a busy moment of the machine slows a benchmark and its reference alike.
    std::string repetitions = "--benchmark_repetitions=9";
    std::string minimumTime = "--benchmark_min_time=0.1";
    std::string inTurns = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments{argv[0], repetitions.data(), minimumTime.data(), inTurns.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    KeepingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\nMedians:\n");
    for (const Ratio &ratio : ratios)
        print(reporter, ratio);
    for (const Limit &limit : limits)
        print(reporter, limit);
    return 0;
}
