#include "FFmpegWriters.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavcodec/dv_profile.h>
#include <libavformat/avformat.h>
#include <libavutil/pixdesc.h>
}

#include <cstdarg>
#include <cstring>
#include <sstream>

namespace {

// Asking a muxer to set itself up for a stream it refuses makes it complain; the
// complaint is the answer, not news for the log.
thread_local bool probing = false;

void logUnlessProbing(void* context, int level, const char* format, va_list args) {
    if (!probing) av_log_default_callback(context, level, format, args);
}

struct Probing {
    Probing() { probing = true; }
    ~Probing() { probing = false; }
};

AVRational fraction(Zn::FrameRate rate) {
    const Zn::FrameRateFraction f = Zn::getFrameRateFraction(rate);
    return AVRational{f.num, f.den};
}

int discard(void*, uint8_t*, int size) { return size; }
int64_t seekNowhere(void*, int64_t offset, int whence) { return whence == AVSEEK_SIZE ? -1 : offset; }

// A muxer with one video stream, writing to nowhere.
class ProbeMuxer {
public:
    explicit ProbeMuxer(const AVOutputFormat* muxer) {
        if (avformat_alloc_output_context2(&context_, muxer, nullptr, nullptr) < 0 || !context_) return;
        auto* buffer = static_cast<unsigned char*>(av_malloc(4096));
        if (!buffer) return;
        io_ = avio_alloc_context(buffer, 4096, 1, nullptr, nullptr, discard, seekNowhere);
        if (!io_) {
            av_free(buffer);
            return;
        }
        context_->pb = io_;
        stream_ = avformat_new_stream(context_, nullptr);
    }
    ~ProbeMuxer() {
        avformat_free_context(context_);
        if (io_) av_freep(&io_->buffer);
        avio_context_free(&io_);
    }
    ProbeMuxer(const ProbeMuxer&) = delete;
    ProbeMuxer& operator=(const ProbeMuxer&) = delete;

    // Whether the muxer's own set-up takes the stream.
    bool accepts(AVCodecID codec, AVPixelFormat pixelFormat, int width, int height, AVRational rate) {
        if (!stream_) return false;
        AVCodecParameters* p = stream_->codecpar;
        p->codec_type = AVMEDIA_TYPE_VIDEO;
        p->codec_id = codec;
        p->format = pixelFormat;
        p->width = width;
        p->height = height;
        stream_->time_base = av_inv_q(rate);
        stream_->avg_frame_rate = rate;
        return avformat_init_output(context_, nullptr) >= 0;
    }

private:
    AVFormatContext* context_ = nullptr;
    AVIOContext* io_ = nullptr;
    AVStream* stream_ = nullptr;
};

bool listed(const char* names, const char* name) {
    std::istringstream words(names);
    std::string word;
    while (words >> word)
        if (word == name) return true;
    return false;
}

const AVCodec* findEncoder(const CompressionCodec& codec) {
    const AVCodec* c = avcodec_find_encoder_by_name(codec.encoder);
    return c && c->type == AVMEDIA_TYPE_VIDEO ? c : nullptr;
}

} // namespace

FFmpegWriters& FFmpegWriters::instance() {
    static FFmpegWriters writers;
    return writers;
}

FFmpegWriters::FFmpegWriters() { av_log_set_callback(logUnlessProbing); }

void FFmpegWriters::forget() {
    std::lock_guard<std::mutex> hold(lock_);
    muxers_.clear();
    encoders_.clear();
    containers_.clear();
}

bool FFmpegWriters::hasMuxer(const char* id) {
    std::lock_guard<std::mutex> hold(lock_);
    auto [it, fresh] = muxers_.try_emplace(id, false);
    if (fresh) it->second = av_guess_format(id, nullptr, nullptr) != nullptr;
    return it->second;
}

bool FFmpegWriters::encoderUsable(const CompressionCodec& codec) {
    std::lock_guard<std::mutex> hold(lock_);
    auto [it, fresh] = encoders_.try_emplace(codec.code.toString().str(), false);
    if (!fresh) return it->second;
    const AVCodec* c = findEncoder(codec);
    if (!c || (c->capabilities & (AV_CODEC_CAP_HARDWARE | AV_CODEC_CAP_HYBRID))) return false;
    bool takesPixels = !*codec.pixelFormat || !c->pix_fmts;
    for (const AVPixelFormat* f = c->pix_fmts; f && *f != AV_PIX_FMT_NONE && !takesPixels; ++f) takesPixels = *f == av_get_pix_fmt(codec.pixelFormat);
    return it->second = takesPixels;
}

bool FFmpegWriters::containerTakes(const FileType& type, const CompressionCodec& codec) {
    std::lock_guard<std::mutex> hold(lock_);
    auto [it, fresh] = containers_.try_emplace({type.id, codec.code.toString().str()}, false);
    if (fresh) it->second = askContainer(type, codec);
    return it->second;
}

bool FFmpegWriters::askContainer(const FileType& type, const CompressionCodec& codec) const {
    const AVOutputFormat* muxer = av_guess_format(type.id, nullptr, nullptr);
    const AVCodec* encoder = findEncoder(codec);
    if (!muxer || !encoder) return false;
    const int tables = avformat_query_codec(muxer, encoder->id, FF_COMPLIANCE_NORMAL);
    if (tables == 0) return false;
    if (tables < 0 && !listed(type.codecsWhenUnknown, avcodec_get_name(encoder->id))) return false;
    // The tables list codecs that the muxer's set-up then refuses (VP9 in QuickTime
    // files), so the set-up has the last word. DV muxers take DV sizes only.
    const bool dv = codec.rules & CompressionCodec::kDVProfiles;
    const AVPixelFormat pixels = av_get_pix_fmt(dv ? "yuv420p" : codec.pixelFormat);
    Probing quiet;
    return ProbeMuxer(muxer).accepts(encoder->id, pixels, dv ? 720 : 1920, dv ? 576 : 1080, AVRational{25, 1});
}

bool FFmpegWriters::encoderTakesPicture(const CompressionCodec& codec, int width, int height, Zn::FrameRate rate) {
    if (codec.rules & CompressionCodec::kDVProfiles) return !dvPixelFormat(width, height, rate).empty();
    const AVCodec* c = findEncoder(codec);
    if (!c) return false;
    if (!c->supported_framerates) return true;
    const AVRational r = fraction(rate);
    for (const AVRational* f = c->supported_framerates; f->num; ++f)
        if (r.num && av_cmp_q(*f, r) == 0) return true;
    return false;
}

LightweightString<char> FFmpegWriters::dvPixelFormat(int width, int height, Zn::FrameRate rate) {
    const AVRational r = fraction(rate);
    if (!r.num) return {};
    for (AVPixelFormat f : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV411P, AV_PIX_FMT_YUV422P}) {
        // The look-up falls back to a profile of another rate, so the rate is checked here.
        const AVDVProfile* p = av_dv_codec_profile2(width, height, f, r);
        if (p && av_cmp_q(av_inv_q(p->time_base), r) == 0) return LightweightString<char>(av_get_pix_fmt_name(f));
    }
    return {};
}
