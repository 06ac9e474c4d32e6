#pragma once

// The kind of resource a device driver offers. The numbers are the driver layer's
// own and are kept by callers.
enum ZnResourceType { kResourceNone = 0, kResourceVideoIO = 2, kResourceAudioMixer = 19 };
