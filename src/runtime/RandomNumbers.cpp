// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/RandomNumbers.h"

#include <chrono>
#include <cstdint>
#include <random>
#include <utility>

namespace {

std::function<float()> &source()
{
    static std::function<float()> source;
    return source;
}

// A state of 64 bits is seeded in no time; its upper bits are the good ones.
using Engine =
    std::linear_congruential_engine<std::uint64_t, 6364136223846793005U, 1442695040888963407U, 0>;

Engine newEngine()
{
    // The counter tells apart two seedings within one tick of the clock.
    static std::uint32_t seedings = 0;
    const auto now = static_cast<std::uint64_t>(
        std::chrono::high_resolution_clock::now().time_since_epoch().count());
    std::seed_seq seeds{static_cast<std::uint32_t>(now), static_cast<std::uint32_t>(now >> 32),
                        ++seedings};
    return Engine(seeds);
}

Engine &engine()
{
    static Engine engine = newEngine();
    return engine;
}

} // namespace

void RandomNumbers::reseedFromClock()
{
    if (!source())
        engine() = newEngine();
}

float RandomNumbers::next()
{
    constexpr unsigned bits = 24; // what the mantissa of a float holds
    if (source())
        return source()();
    return static_cast<float>(engine()() >> (64 - bits)) / static_cast<float>(1U << bits);
}

void RandomNumbers::setSource(std::function<float()> newSource)
{
    source() = std::move(newSource);
}
