// SPDX-License-Identifier: GPL-3.0-or-later
// How loud a sound is by EBU R128, in LUFS, but without its gate: two filters weight the
// frequencies as an ear does, and the mean squares of the channels are added up.
#pragma once

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace Loudness {

// A filter of the second order. Its numbers are those of the analog filter with the same effect, so
// that it can be had for any sample rate.
class Filter
{
public:
    // Raises what lies above 1.7 kHz by 4 dB.
    [[nodiscard]] static Filter highShelf(double sampleRate)
    {
        const double high = std::pow(10, 3.999844 / 20);
        const double middle = std::pow(high, 0.4996668);
        return {sampleRate, 1681.974, 0.7071752, {high, middle, 1}};
    }
    // Takes away what lies below 38 Hz.
    [[nodiscard]] static Filter highPass(double sampleRate)
    {
        return {sampleRate, 38.13547, 0.5003270, {1, 0, 0}};
    }

    [[nodiscard]] double operator()(double in)
    {
        const double out = m_forward[0] * in + m_kept[0];
        m_kept[0] = m_forward[1] * in - m_back[0] * out + m_kept[1];
        m_kept[1] = m_forward[2] * in - m_back[1] * out;
        return out;
    }

private:
    // `gains`: above, at and below the frequency.
    Filter(double sampleRate, double frequency, double quality, const std::array<double, 3> &gains)
    {
        const double k = std::tan(std::numbers::pi * frequency / sampleRate);
        const double all = 1 + k / quality + k * k;
        const double high = gains[0];
        const double middle = gains[1] * k / quality;
        const double low = gains[2] * k * k;
        m_forward = {(high + middle + low) / all, 2 * (low - high) / all,
                     (high - middle + low) / all};
        m_back = {2 * (k * k - 1) / all, (1 - k / quality + k * k) / all};
    }

    std::array<double, 3> m_forward{};
    std::array<double, 2> m_back{};
    std::array<double, 2> m_kept{};
};

// A list of samples from -1 to 1 for each channel.
[[nodiscard]] inline double lufs(const std::vector<std::vector<double>> &channels,
                                 double sampleRate)
{
    double power = 0;
    for (const std::vector<double> &samples : channels) {
        Filter highShelf = Filter::highShelf(sampleRate);
        Filter highPass = Filter::highPass(sampleRate);
        double squares = 0;
        for (const double sample : samples)
            squares += std::pow(highPass(highShelf(sample)), 2);
        power += squares / double(samples.size());
    }
    return -0.691 + 10 * std::log10(power);
}

} // namespace Loudness
