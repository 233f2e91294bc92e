// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are a sound that can be played or are refused, as going through them by offsets says.
#include "Fuzzing.h"
#include "platform/sound/WaveFile.h"

#include <cstdint>
#include <string_view>

namespace {

struct Sound
{
    std::uint32_t rate = 0;
    std::uint32_t channels = 0;
    std::uint32_t bits = 0;
    std::string_view samples;
};

// Nothing beyond the end: the number is zero then.
std::uint32_t numberAt(std::string_view bytes, std::size_t offset, std::size_t size)
{
    std::uint32_t number = 0;
    if (offset + size <= bytes.size())
        for (std::size_t i = size; i > 0; --i)
            number = number << 8 | static_cast<unsigned char>(bytes[offset + i - 1]);
    return number;
}

bool isPlayable(const Sound &sound, std::uint32_t kind)
{
    return kind == 1 && (sound.channels == 1 || sound.channels == 2) &&
           (sound.bits == 8 || sound.bits == 16) && sound.rate >= 1000 && sound.rate <= 192'000;
}

std::optional<Sound> soundIn(std::string_view file)
{
    if (file.substr(0, 4) != "RIFF" || file.size() < 12 || file.substr(8, 4) != "WAVE")
        return std::nullopt;
    Sound sound;
    for (std::size_t at = 12; at < file.size();) {
        const std::string_view name = file.substr(at, 4);
        const std::size_t size = numberAt(file, at + 4, 4);
        at = std::min(at + 8, file.size());
        if (size > file.size() - at)
            return std::nullopt;
        const std::string_view chunk = file.substr(at, size);
        if (name == "fmt ") {
            sound = {numberAt(chunk, 4, 4), numberAt(chunk, 2, 2), numberAt(chunk, 14, 2), {}};
            if (!isPlayable(sound, numberAt(chunk, 0, 2)))
                return std::nullopt;
        }
        if (name == "data") {
            const std::size_t frame = sound.channels * sound.bits / 8;
            if (frame == 0 || size == 0 || size % frame != 0)
                return std::nullopt;
            sound.samples = chunk.substr(0, size);
            return sound;
        }
        at += size + size % 2;
    }
    return std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes = bytesOf(data, size);
    const std::optional<WaveFile> wave = waveFileFromBytes(bytes);
    const std::optional<Sound> expected = soundIn({bytes.data(), size});
    require(wave.has_value() == expected.has_value());
    if (wave)
        require(std::uint32_t(wave->sampleRate) == expected->rate &&
                std::uint32_t(wave->channels) == expected->channels &&
                std::uint32_t(wave->bitsPerSample) == expected->bits &&
                wave->samples == QByteArrayView(expected->samples));
    return 0;
}
