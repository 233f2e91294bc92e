// SPDX-License-Identifier: GPL-3.0-or-later
// Compares a recording with the sound that was played. Sounds are samples of one channel from -1 to
// 1.
#pragma once

#include "platform/sound/WaveFile.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

using Sound = std::vector<double>;
using PieceOfSound = std::span<const double>;

// The mean of the channels of a 16-bit wave.
[[nodiscard]] inline Sound mixed(const WaveFile &wave)
{
    Sound sound;
    for (qsizetype at = 0; at < wave.samples.size(); at += wave.channels * 2) {
        double sum = 0;
        for (int channel = 0; channel < wave.channels; ++channel)
            sum += qFromLittleEndian<qint16>(wave.samples.constData() + at + channel * 2);
        sound.push_back(sum / 32768.0 / wave.channels);
    }
    return sound;
}

inline constexpr std::size_t Coarseness = 20;

// The means of Coarseness samples each, which are much faster to compare.
[[nodiscard]] inline Sound coarse(PieceOfSound sound)
{
    Sound means;
    for (std::size_t at = 0; at + Coarseness <= sound.size(); at += Coarseness) {
        double sum = 0;
        for (const double sample : sound.subspan(at, Coarseness))
            sum += sample;
        means.push_back(sum / Coarseness);
    }
    return means;
}

// The correlation of two sounds of the same length: 1 if they are equal but for the volume, near 0
// if they have nothing in common.
[[nodiscard]] inline double likeness(PieceOfSound one, PieceOfSound other)
{
    double product = 0;
    double oneSquared = 1e-9;
    double otherSquared = 1e-9;
    for (std::size_t i = 0; i < one.size(); ++i) {
        product += one[i] * other[i];
        oneSquared += one[i] * one[i];
        otherSquared += other[i] * other[i];
    }
    return product / std::sqrt(oneSquared * otherSquared);
}

struct Match
{
    double likeness = 0;
    std::size_t position = 0;
};

// The likeness of the piece and the part of the sound at each position.
[[nodiscard]] inline Sound likenesses(PieceOfSound piece, PieceOfSound sound)
{
    Sound found;
    for (std::size_t at = 0; at + piece.size() <= sound.size(); ++at)
        found.push_back(likeness(piece, sound.subspan(at, piece.size())));
    return found;
}

// Below this the sound does not contain the piece.
inline constexpr double FaintLikeness = 0.3;

// The position in the sound where the piece fits best. A tone is also like itself a few periods
// later, so all good positions of the coarse sounds are compared sample by sample.
[[nodiscard]] inline Match bestMatch(PieceOfSound piece, PieceOfSound sound)
{
    const Sound coarsely = likenesses(coarse(piece), coarse(sound));
    if (coarsely.empty())
        return {};
    const double coarseBest = *std::max_element(coarsely.begin(), coarsely.end());
    if (coarseBest < FaintLikeness)
        return {std::max(coarseBest, 0.0), 0};
    const double good = 0.7 * coarseBest;
    Match best;
    for (std::size_t i = 0; i < coarsely.size(); ++i) {
        if (coarsely[i] < good)
            continue;
        const std::size_t first = i == 0 ? 0 : (i - 1) * Coarseness;
        const std::size_t last = std::min((i + 1) * Coarseness, sound.size() - piece.size());
        for (std::size_t at = first; at <= last; ++at) {
            const double found = likeness(piece, sound.subspan(at, piece.size()));
            if (found > best.likeness)
                best = {found, at};
        }
    }
    return best;
}

// The number of samples in the longest part that stays below a thousandth of full scale.
[[nodiscard]] inline std::size_t longestSilence(PieceOfSound sound)
{
    std::size_t longest = 0;
    std::size_t running = 0;
    for (const double sample : sound) {
        running = std::abs(sample) < 0.001 ? running + 1 : 0;
        longest = std::max(longest, running);
    }
    return longest;
}
