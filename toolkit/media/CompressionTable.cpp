#include "CompressionTable.h"

#include <algorithm>

using C = CompressionCodec;

const std::vector<CompressionCodec>& CompressionTable::codecs() {
    static const std::vector<CompressionCodec> table = {
        {Zn::Image::Format("MMES"), L"MPEG-2 I-frame SD", "mpeg2video", "yuv422p", "g=1", C::kStandardDefinition, 50.0, 0},
        {Zn::Image::Format("M101"), L"MPEG-2 long GOP SD", "mpeg2video", "yuv422p", "bf=2", C::kStandardDefinition, 15.0, 15},
        {Zn::Image::Format("M701"), L"MPEG-2 I-frame HD", "mpeg2video", "yuv422p", "g=1", C::kHighDefinition, 250.0, 0},
        {Zn::Image::Format("M102"), L"MPEG-2 long GOP HD", "mpeg2video", "yuv422p", "bf=2", C::kHighDefinition, 50.0, 12},
        {Zn::Image::Format("dvsd"), L"DV", "dvvideo", "", "", C::kDVProfiles, 0.0, 0},
        {Zn::Image::Format("apcn"), L"ProRes 422", "prores_ks", "yuv422p10", "profile=2", C::kAnySize, 0.0, 0},
        {Zn::Image::Format("apch"), L"ProRes 422 HQ", "prores_ks", "yuv422p10", "profile=3", C::kAnySize, 0.0, 0},
        {Zn::Image::Format("AVdh"), L"DNxHR HQ", "dnxhd", "yuv422p", "profile=dnxhr_hq", C::kProgressiveOnly, 0.0, 0},
        {Zn::Image::Format("avc1"), L"H.264", "libx264", "yuv420p", "preset=fast", C::kAnySize, 20.0, 50},
        {Zn::Image::Format("hvc1"), L"H.265", "libx265", "yuv420p", "preset=fast:x265-params='log-level=error:frame-threads=1:pools=none:bframes=0'",
         C::kProgressiveOnly, 15.0, 50},
        {Zn::Image::Format("vp09"), L"VP9", "libvpx-vp9", "yuv420p", "deadline=good:cpu-used=4", C::kProgressiveOnly, 12.0, 50},
        {Zn::Image::Format("av01"), L"AV1", "libaom-av1", "yuv420p", "cpu-used=6", C::kProgressiveOnly, 8.0, 50},
        {Zn::Image::Format("MJPG"), L"Motion JPEG", "mjpeg", "yuvj422p", "", C::kProgressiveOnly, 100.0, 0},
        {Zn::Image::Format("FFV1"), L"FFV1 lossless", "ffv1", "yuv422p10", "", C::kAnySize, 0.0, 0},
        {Zn::Image::Format("v210"), L"Uncompressed 10-bit 4:2:2", "v210", "yuv422p10", "", C::kAnySize, 0.0, 0},
        {Zn::Image::Format("2vuy"), L"Uncompressed 8-bit 4:2:2", "rawvideo", "uyvy422", "", C::kAnySize, 0.0, 0},
    };
    return table;
}

const CompressionCodec* CompressionTable::find(Zn::Image::Format code) {
    const auto& table = codecs();
    auto it = std::find_if(table.begin(), table.end(), [code](const CompressionCodec& c) { return c.code == code; });
    return it == table.end() ? nullptr : &*it;
}
