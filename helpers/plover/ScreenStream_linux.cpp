#include "ScreenStream_linux.h"

#include "ScreenBuffer_linux.h"

#include <spa/buffer/meta.h>
#include <spa/param/buffers.h>
#include <spa/pod/builder.h>

#include <unistd.h>
#include <algorithm>
#include <csignal>
#include <cstdio>

namespace kestrel::frames {

namespace {

constexpr int64_t repeatAfter = second / 5;
constexpr int64_t firstPatience = 10 * second;
constexpr int64_t endPatience = second;

const spa_pod *formats(spa_pod_builder &builder, double rate)
{
    const spa_rectangle usual{1280, 720}, least{2, 2}, most{maximumSide, maximumSide};
    const spa_fraction variable{0, 1}, wanted{uint32_t(rate * 1000), 1000}, still{0, 1}, fastest{1000, 1};
    return static_cast<spa_pod *>(spa_pod_builder_add_object(
        &builder, SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat, SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
        SPA_FORMAT_mediaSubtype, SPA_POD_Id(SPA_MEDIA_SUBTYPE_raw), SPA_FORMAT_VIDEO_format,
        SPA_POD_CHOICE_ENUM_Id(5, SPA_VIDEO_FORMAT_BGRx, SPA_VIDEO_FORMAT_BGRx, SPA_VIDEO_FORMAT_RGBx,
                               SPA_VIDEO_FORMAT_BGRA, SPA_VIDEO_FORMAT_RGBA),
        SPA_FORMAT_VIDEO_size, SPA_POD_CHOICE_RANGE_Rectangle(&usual, &least, &most), SPA_FORMAT_VIDEO_framerate,
        SPA_POD_CHOICE_RANGE_Fraction(&variable, &still, &fastest), SPA_FORMAT_VIDEO_maxFramerate,
        SPA_POD_CHOICE_RANGE_Fraction(&wanted, &still, &fastest)));
}

}  // namespace

ScreenStream::ScreenStream(const ScreenRequest &request)
    : m_request(request),
      m_output(STDOUT_FILENO),
      m_pace(request.rate)
{
}

ScreenStream::~ScreenStream()
{
    if (m_stream)
        pw_stream_destroy(m_stream);
    if (m_registry)
        pw_proxy_destroy(reinterpret_cast<pw_proxy *>(m_registry));
    if (m_core)
        pw_core_disconnect(m_core);
    if (m_context)
        pw_context_destroy(m_context);
    if (m_loop)
        pw_main_loop_destroy(m_loop);
}

int ScreenStream::run()
{
    if (!connect()) {
        fail("connect");
        return m_status;
    }
    m_deadline = monotonic() + firstPatience;
    setWakeUp();
    if (!m_isEnding)
        pw_main_loop_run(m_loop);
    m_isEnding = true;  // what follows is our own doing
    tellDropped(true);
    return m_status;
}

bool ScreenStream::connect()
{
    m_loop = pw_main_loop_new(nullptr);
    m_context = m_loop ? pw_context_new(pw_main_loop_get_loop(m_loop), nullptr, 0) : nullptr;
    m_core = m_context ? pw_context_connect_fd(m_context, m_request.descriptor, nullptr, 0) : nullptr;
    if (!m_core)
        return false;
    pw_loop *loop = pw_main_loop_get_loop(m_loop);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        pw_loop_add_signal(
            loop, number, [](void *self, int) { static_cast<ScreenStream *>(self)->end(); }, this);
    if (!m_request.snapshot.empty())
        pw_loop_add_signal(
            loop, SIGUSR1,
            [](void *self, int) {
                const auto *stream = static_cast<ScreenStream *>(self);
                const bool isSaved = stream->m_output.save(stream->m_request.snapshot);
                std::fprintf(stderr, "{\"snapshot\":%s}\n", isSaved ? "true" : "false");
            },
            this);
    m_timer = pw_loop_add_timer(
        loop, [](void *self, uint64_t) { static_cast<ScreenStream *>(self)->wake(); }, this);
    m_reader = pw_loop_add_io(
        loop, STDOUT_FILENO, SPA_IO_ERR | SPA_IO_HUP, false,
        [](void *self, int, uint32_t events) {
            auto *stream = static_cast<ScreenStream *>(self);
            if ((events & (SPA_IO_ERR | SPA_IO_HUP)) != 0)
                pw_main_loop_quit(stream->m_loop);
            else
                stream->handOn();
        },
        this);

    static const pw_core_events coreEvents = [] {
        pw_core_events made = {};
        made.version = PW_VERSION_CORE_EVENTS;
        made.error = [](void *self, uint32_t identifier, int, int, const char *) {
            if (identifier == PW_ID_CORE)
                static_cast<ScreenStream *>(self)->fail("connect");
        };
        return made;
    }();
    pw_core_add_listener(m_core, &m_coreHook, &coreEvents, this);
    static const pw_registry_events registryEvents = [] {
        pw_registry_events made = {};
        made.version = PW_VERSION_REGISTRY_EVENTS;
        made.global_remove = [](void *self, uint32_t identifier) {
            auto *stream = static_cast<ScreenStream *>(self);
            if (identifier == stream->m_request.node)
                stream->nodeGone();
        };
        return made;
    }();
    m_registry = pw_core_get_registry(m_core, PW_VERSION_REGISTRY, 0);
    pw_registry_add_listener(m_registry, &m_registryHook, &registryEvents, this);

    m_stream = pw_stream_new(m_core, "Kestrel",
                             pw_properties_new(PW_KEY_MEDIA_TYPE, "Video", PW_KEY_MEDIA_CATEGORY, "Capture",
                                               PW_KEY_MEDIA_ROLE, "Screen", nullptr));
    if (!m_stream)
        return false;
    static const pw_stream_events streamEvents = [] {
        pw_stream_events made = {};
        made.version = PW_VERSION_STREAM_EVENTS;
        made.state_changed = [](void *self, pw_stream_state old, pw_stream_state state, const char *) {
            if (state == PW_STREAM_STATE_ERROR)
                static_cast<ScreenStream *>(self)->fail("node");
            else if (state == PW_STREAM_STATE_UNCONNECTED && old != state)
                static_cast<ScreenStream *>(self)->nodeGone();
        };
        made.param_changed = [](void *self, uint32_t identifier, const spa_pod *param) {
            static_cast<ScreenStream *>(self)->takeFormat(identifier, param);
        };
        made.remove_buffer = [](void *self, pw_buffer *buffer) {
            auto *stream = static_cast<ScreenStream *>(self);
            if (stream->m_held == buffer)
                stream->m_held = nullptr;
            stream->m_isHeldDue = stream->m_isHeldDue && stream->m_held;
        };
        made.process = [](void *self) { static_cast<ScreenStream *>(self)->takeBuffers(); };
        return made;
    }();
    pw_stream_add_listener(m_stream, &m_streamHook, &streamEvents, this);
    uint8_t space[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(space, sizeof space);
    const spa_pod *params[] = {formats(builder, m_request.rate)};
    const auto flags =
        pw_stream_flags(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_DONT_RECONNECT | PW_STREAM_FLAG_MAP_BUFFERS);
    return pw_stream_connect(m_stream, PW_DIRECTION_INPUT, m_request.node, flags, params, 1) == 0;
}

void ScreenStream::takeFormat(uint32_t identifier, const spa_pod *param)
{
    if (identifier != SPA_PARAM_Format || !param)
        return;
    dropHeld();
    spa_video_info_raw format = {};
    if (spa_format_video_raw_parse(param, &format) < 0 || format.size.width > maximumSide ||
        format.size.height > maximumSide)
        return fail("node");
    m_format = format;
    uint8_t space[1024];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(space, sizeof space);
    // Memory of the graphics card would have to be fetched by its driver.
    constexpr int memories = 1 << SPA_DATA_MemFd | 1 << SPA_DATA_MemPtr;
    const spa_pod *params[] = {
        static_cast<spa_pod *>(spa_pod_builder_add_object(
            &builder, SPA_TYPE_OBJECT_ParamBuffers, SPA_PARAM_Buffers, SPA_PARAM_BUFFERS_buffers,
            SPA_POD_CHOICE_RANGE_Int(8, 2, 16), SPA_PARAM_BUFFERS_dataType, SPA_POD_CHOICE_FLAGS_Int(memories))),
        static_cast<spa_pod *>(spa_pod_builder_add_object(&builder, SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta,
                                                          SPA_PARAM_META_type, SPA_POD_Id(SPA_META_Header),
                                                          SPA_PARAM_META_size, SPA_POD_Int(sizeof(spa_meta_header)))),
        static_cast<spa_pod *>(spa_pod_builder_add_object(&builder, SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta,
                                                          SPA_PARAM_META_type, SPA_POD_Id(SPA_META_VideoCrop),
                                                          SPA_PARAM_META_size, SPA_POD_Int(sizeof(spa_meta_region)))),
    };
    pw_stream_update_params(m_stream, params, std::size(params));
}

void ScreenStream::takeBuffers()
{
    while (pw_buffer *buffer = pw_stream_dequeue_buffer(m_stream))
        takeBuffer(buffer);
}

void ScreenStream::takeBuffer(pw_buffer *buffer)
{
    const Picture picture = pictureOf(buffer->buffer, m_format);
    if (m_isEnding || !picture.pixels || recordableSize(picture.width, picture.height) == Size()) {
        pw_stream_queue_buffer(m_stream, buffer);
        return;
    }
    if (m_held)
        pw_stream_queue_buffer(m_stream, m_held);
    m_held = buffer;
    m_heldTime = timeOf(buffer->buffer);
    if (m_pace.take(monotonic())) {
        m_dropped += m_isHeldDue ? 1 : 0;
        m_isHeldDue = true;
    }
    handOn();
}

void ScreenStream::dropHeld()
{
    if (m_held)
        pw_stream_queue_buffer(m_stream, m_held);
    m_held = nullptr;
    m_isHeldDue = false;
}

/// Writes what is due, as far as the reader takes it.
void ScreenStream::handOn()
{
    m_output.flush();
    if (m_isHeldDue && m_held && !m_output.isBusy()) {
        const Picture picture = pictureOf(m_held->buffer, m_format);
        if (!m_output.size()) {
            const Size size = m_request.size == Size() ? recordableSize(picture.width, picture.height) : m_request.size;
            const bool isRedFirst =
                m_format.format == SPA_VIDEO_FORMAT_RGBx || m_format.format == SPA_VIDEO_FORMAT_RGBA;
            m_output.begin(size, isRedFirst ? PixelOrder::RedFirst : PixelOrder::BlueFirst, m_request.rate);
            std::fprintf(stderr, "{\"size\":[%d,%d]}\n", size.width, size.height);
        }
        m_deadline = 0;
        m_lastStart = monotonic();
        m_output.write(picture, m_heldTime);
        dropHeld();
    }
    if (m_output.isClosed() || (m_isEnding && !m_output.isBusy())) {
        pw_main_loop_quit(m_loop);
        return;
    }
    const uint32_t wanted = SPA_IO_ERR | SPA_IO_HUP | (m_output.isBusy() ? SPA_IO_OUT : 0U);
    if (m_reader->mask != wanted)
        pw_loop_update_io(pw_main_loop_get_loop(m_loop), m_reader, wanted);
    tellDropped(false);
    setWakeUp();
}

void ScreenStream::wake()
{
    const int64_t now = monotonic();
    if (m_deadline != 0 && now >= m_deadline)
        return m_isEnding ? void(pw_main_loop_quit(m_loop)) : fail("node");
    if (m_held && !m_isHeldDue)
        m_isHeldDue = m_pace.take(now);
    else if (!m_held && m_output.size() && !m_output.isBusy() && now - m_lastStart >= repeatAfter) {
        m_lastStart = now;
        m_output.repeat(wallClock());
    }
    handOn();
}

void ScreenStream::setWakeUp()
{
    int64_t at = m_lastStart + repeatAfter;
    if (m_deadline != 0)
        at = m_deadline;
    else if (m_held && !m_isHeldDue)
        at = m_pace.due();
    else if (m_output.isBusy() || !m_output.size())
        at = monotonic() + second;
    at = std::max(at, monotonic() + 1'000'000);
    timespec when = {.tv_sec = at / second, .tv_nsec = at % second};
    pw_loop_update_timer(pw_main_loop_get_loop(m_loop), m_timer, &when, nullptr, true);
}

void ScreenStream::tellDropped(bool isLast)
{
    const int64_t now = monotonic();
    if (m_dropped == m_toldDropped || (!isLast && now - m_toldAt < second / 4))
        return;
    m_toldDropped = m_dropped;
    m_toldAt = now;
    std::fprintf(stderr, "{\"dropped\":%lld}\n", static_cast<long long>(m_dropped));
}

/// With the picture that is being written.
void ScreenStream::end()
{
    if (m_isEnding)
        return;
    m_isEnding = true;
    m_deadline = monotonic() + endPatience;
    m_isHeldDue = false;
    handOn();
}

void ScreenStream::nodeGone()
{
    if (!m_isEnding)
        std::fputs("{\"end\":\"node\"}\n", stderr);
    end();
}

void ScreenStream::fail(const char *reason)
{
    if (m_isEnding)
        return;
    std::fprintf(stderr, "{\"error\":\"%s\"}\n", reason);
    m_status = 1;
    if (m_loop && m_timer)
        end();
}

}  // namespace kestrel::frames
