#pragma once

/// The mixer that plays the editor's audio through a device's audio mixer driver.
/// It is stopped while it is set up again for a new device: suspend(), init(),
/// resume(). Used on the user-interface thread.
class SoftwareAudioMixer {
public:
    static void suspend();
    // Sets the mixer up for a rate, a number of channels and of voices; values
    // below 1 are taken as 1.
    static void init(int sampleRate, int channels, int voices);
    static void resume();

    static bool isRunning();
    static int sampleRate();
    static int channels();
    static int voices();
    // How many times init has run, so a caller can tell that it did.
    static int initCount();
};
