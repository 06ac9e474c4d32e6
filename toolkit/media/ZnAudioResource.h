#pragma once

#include <cstdint>

/// The machine's audio output as the mixer needs it: rate and channels.
class ZnAudioResource {
public:
    /// The audio output's state that a mixer is set up from.
    struct State {
        std::int32_t sampleRate = 48000;
        std::int32_t channels = 2;
    };

    static ZnAudioResource& instance();
    virtual ~ZnAudioResource() = default;
    virtual State getState() const { return State(); }
};
