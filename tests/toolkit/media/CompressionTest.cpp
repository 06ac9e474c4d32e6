// What the media layer offers, checked against what the installed FFmpeg really
// writes: every compression offered for a file type and format is encoded and
// muxed, one frame, into memory.
#include "media/Compression.h"
#include "media/FileWriterInfo.h"
#include "media/ZnExport.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/pixdesc.h>
}

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <set>

using Zn::Image::Format;

namespace {

ShotVideoMetadata tableFormat(std::uint32_t uid) {
    const auto info = Zn::DigitalVideoFormats::findByUID(Zn::Image::FormatUID(uid));
    return ShotVideoMetadata(info, Format("YUY2"), Zn::kFrameRateNone, Zn::Image::kAspectUnknown, true, info.scanMode, 8);
}

std::vector<Format> codesFor(const char* fileType, const ShotVideoMetadata& format) {
    std::vector<Zn::DigitalVideoFormats::DigitalVideoFormatInfo> formats;
    std::vector<Format> codes;
    Compression::getValidFormats(fileType, format, formats, codes);
    return codes;
}

struct Freer {
    void operator()(AVCodecContext* c) const { avcodec_free_context(&c); }
    void operator()(AVFrame* f) const { av_frame_free(&f); }
    void operator()(AVPacket* p) const { av_packet_free(&p); }
    void operator()(AVFormatContext* f) const {
        if (f->pb) {
            std::uint8_t* bytes = nullptr;
            avio_close_dyn_buf(f->pb, &bytes);
            av_free(bytes);
        }
        avformat_free_context(f);
    }
};
template <class T>
using Owned = std::unique_ptr<T, Freer>;

// Encodes one grey frame of `format` in the compression and muxes it into an
// in-memory `fileType` file; empty when all went well, else what failed.
std::string writeOneFrame(const char* fileType, const ShotVideoMetadata& format, Format code) {
    const Compression::EncoderSettings s = Compression::getEncoderSettings(CompressionFormat(code), format);
    const AVCodec* encoder = avcodec_find_encoder_by_name(s.encoder.c_str());
    const AVOutputFormat* muxer = av_guess_format(fileType, nullptr, nullptr);
    if (!encoder || !muxer) return "no encoder or muxer";
    AVFormatContext* raw = nullptr;
    if (avformat_alloc_output_context2(&raw, muxer, nullptr, nullptr) < 0) return "muxer";
    Owned<AVFormatContext> file(raw);
    if (avio_open_dyn_buf(&file->pb) < 0) return "buffer";

    Owned<AVCodecContext> c(avcodec_alloc_context3(encoder));
    const Zn::FrameRateFraction rate = Zn::getFrameRateFraction(format.getFrameRate());
    c->width = format.getWidth();
    c->height = format.getHeight();
    c->pix_fmt = av_get_pix_fmt(s.pixelFormat.c_str());
    c->time_base = AVRational{rate.den, rate.num};
    c->framerate = AVRational{rate.num, rate.den};
    if (Zn::Image::isInterlaced(s.scanMode)) {
        c->flags |= AV_CODEC_FLAG_INTERLACED_DCT | AV_CODEC_FLAG_INTERLACED_ME;
        c->field_order = s.scanMode == Zn::Image::kInterlacedUpperFieldFirst ? AV_FIELD_TT : AV_FIELD_BB;
    }
    if (muxer->flags & AVFMT_GLOBALHEADER) c->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    AVDictionary* options = nullptr;
    av_dict_parse_string(&options, s.options.c_str(), "=", ":", 0);
    const int opened = avcodec_open2(c.get(), encoder, &options);
    av_dict_free(&options);
    if (opened < 0) return "encoder refused the picture";

    AVStream* stream = avformat_new_stream(file.get(), nullptr);
    avcodec_parameters_from_context(stream->codecpar, c.get());
    stream->time_base = c->time_base;
    stream->avg_frame_rate = c->framerate;
    if (avformat_write_header(file.get(), nullptr) < 0) return "muxer refused the stream";

    Owned<AVFrame> frame(av_frame_alloc());
    frame->format = c->pix_fmt;
    frame->width = c->width;
    frame->height = c->height;
    if (av_frame_get_buffer(frame.get(), 0) < 0) return "frame";
    for (int p = 0; p < AV_NUM_DATA_POINTERS && frame->buf[p]; ++p) std::memset(frame->buf[p]->data, 0x80, frame->buf[p]->size);
    frame->pts = 0;
    Owned<AVPacket> packet(av_packet_alloc());
    int packets = 0;
    for (AVFrame* f : {frame.get(), static_cast<AVFrame*>(nullptr)}) {
        if (avcodec_send_frame(c.get(), f) < 0) return "encoding";
        while (avcodec_receive_packet(c.get(), packet.get()) == 0) {
            av_packet_rescale_ts(packet.get(), c->time_base, stream->time_base);
            packet->stream_index = stream->index;
            const std::string times = std::to_string(packet->pts) + "/" + std::to_string(packet->dts);
            if (av_interleaved_write_frame(file.get(), packet.get()) < 0) return "muxing " + times;
            ++packets;
        }
    }
    if (packets == 0 || av_write_trailer(file.get()) < 0) return "trailer";
    return avio_tell(file->pb) > 0 ? "" : "nothing written";
}

} // namespace

TEST(ValidCompressions, EveryOneOfferedIsWrittenByFFmpegForFileTypeAndFormat) {
    const std::pair<const char*, std::uint32_t> pairs[] = {{"mov", 14}, {"mxf", 4}, {"mp4", 11}, {"avi", 2}, {"dv", 4}, {"webm", 28}, {"mpegts", 14}};
    for (const auto& [fileType, uid] : pairs) {
        const ShotVideoMetadata format = tableFormat(uid);
        const std::vector<Format> codes = codesFor(fileType, format);
        EXPECT_FALSE(codes.empty()) << fileType << " " << uid;
        for (Format code : codes) EXPECT_EQ(writeOneFrame(fileType, format, code), "") << fileType << " " << uid << " " << code.toString().c_str();
    }
}

TEST(ValidCompressions, FollowTheContainerAndThePictureSize) {
    const std::vector<Format> sd = codesFor("mov", tableFormat(4)), hd = codesFor("mov", tableFormat(14));
    auto has = [](const std::vector<Format>& codes, Format c) { return std::find(codes.begin(), codes.end(), c) != codes.end(); };
    EXPECT_TRUE(has(sd, Format("MMES")) && has(sd, Format("M101")) && !has(sd, Format("M701")));
    EXPECT_TRUE(has(hd, Format("M701")) && has(hd, Format("M102")) && !has(hd, Format("MMES")));
    EXPECT_TRUE(has(codesFor("dv", tableFormat(4)), Format("dvsd")));
    EXPECT_TRUE(codesFor("dv", tableFormat(14)).empty()) << "DV has no 1080 profile";
    for (Format c : codesFor("webm", tableFormat(28))) EXPECT_TRUE(c == Format("vp09") || c == Format("av01"));
    EXPECT_FALSE(has(codesFor("mov", tableFormat(14)), Format("AVdh"))) << "DNxHR codes no interlaced pictures";

    std::vector<Zn::DigitalVideoFormats::DigitalVideoFormatInfo> formats{{}};
    std::vector<Format> codes{Format("MMES")};
    Compression::getValidFormats("no such type", tableFormat(4), formats, codes);
    EXPECT_TRUE(formats.empty() && codes.empty());
    Compression::getValidFormats("mov", ShotVideoMetadata(), formats, codes);
    EXPECT_TRUE(codes.empty()) << "no picture, no compression";
    EXPECT_FALSE(formats.empty());
    Compression::getValidFormats("dv", tableFormat(4), formats, codes);
    for (const auto& f : formats) EXPECT_LE(f.width, 720) << "DV holds SD formats only";
}

TEST(ValidCompressions, AnswersAgainAfterForgettingThem) {
    const std::vector<Format> before = codesFor("mxf", tableFormat(14));
    Compression::forgetAnswers();
    EXPECT_EQ(codesFor("mxf", tableFormat(14)), before);
}

TEST(FileTypes, EachUsageOffersWritableTypesWithOneUpperCaseExtensionEach) {
    std::set<std::wstring> extensions;
    for (auto usage : {Compression::eExport, Compression::eRender, Compression::eCapture}) {
        const auto ids = Zn::FileWriterInfo::getSupportedFormatTypes(usage);
        EXPECT_FALSE(ids.empty());
        for (const auto& id : ids) {
            const LightweightString<wchar_t> ext = ZnExport::getExtensionForFormatID(id);
            ASSERT_FALSE(ext.empty()) << id.c_str();
            for (wchar_t ch : ext) EXPECT_FALSE(std::iswlower(static_cast<wint_t>(ch)));
            EXPECT_EQ(ZnExport::getFormatIDForExtension(ext), id);
            extensions.insert(ext.str());
        }
    }
    EXPECT_TRUE(extensions.count(L"MOV") && extensions.count(L"MXF") && extensions.count(L"AVI") && extensions.count(L"MP4"));
    EXPECT_EQ(ZnExport::getFormatIDForExtension(L"mXf"), "mxf");
    EXPECT_TRUE(ZnExport::getFormatIDForExtension(L"").empty());
    EXPECT_TRUE(ZnExport::getExtensionForFormatID("nothing").empty());
    EXPECT_TRUE(Zn::FileWriterInfo::getSupportedFormatTypes(static_cast<Compression::eUsage>(-1)).empty());
}
