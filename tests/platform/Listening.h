// SPDX-License-Identifier: GPL-3.0-or-later
// Comparing what was heard with what was to be heard. Sounds are samples of one channel from -1
// to 1.
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

// The 16-bit wave's channels together.
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

// Means of that many samples each: coarser, and much faster to compare.
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

// 1 where the two, of one length, have the same course, near 0 where they have nothing in common.
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

// How like the piece the sound is from each position on.
[[nodiscard]] inline Sound likenesses(PieceOfSound piece, PieceOfSound sound)
{
    Sound found;
    for (std::size_t at = 0; at + piece.size() <= sound.size(); ++at)
        found.push_back(likeness(piece, sound.subspan(at, piece.size())));
    return found;
}

// Below that the piece is not there: in silence no place is better than another.
inline constexpr double FaintLikeness = 0.3;

// Where in the sound the piece is found best. Coarsely a tone is like itself a few periods later
// too, so that all good places are looked at closely.
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

// Samples in the longest stretch that stays below a thousandth of full scale.
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
