#include "SoftwareAudioMixer.h"

#include <algorithm>

namespace {
struct MixerState {
    bool running = true;
    int sampleRate = 48000, channels = 2, voices = 32, inits = 0;
};
MixerState& mixer() {
    static MixerState m;
    return m;
}
} // namespace

void SoftwareAudioMixer::suspend() { mixer().running = false; }

void SoftwareAudioMixer::init(int sampleRate, int channels, int voices) {
    MixerState& m = mixer();
    m.sampleRate = std::max(1, sampleRate);
    m.channels = std::max(1, channels);
    m.voices = std::max(1, voices);
    ++m.inits;
}

void SoftwareAudioMixer::resume() { mixer().running = true; }
bool SoftwareAudioMixer::isRunning() { return mixer().running; }
int SoftwareAudioMixer::sampleRate() { return mixer().sampleRate; }
int SoftwareAudioMixer::channels() { return mixer().channels; }
int SoftwareAudioMixer::voices() { return mixer().voices; }
int SoftwareAudioMixer::initCount() { return mixer().inits; }
