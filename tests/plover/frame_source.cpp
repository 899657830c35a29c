// frame_source WIDTH HEIGHT RATE START [WIDTH HEIGHT]: a screen of PipeWire's that shows its clock, the milliseconds
// since START (seconds since 1970), in bits as scene.py does. Says the number of its node on standard output. Takes the
// second size at SIGUSR1; paints nothing new after SIGUSR2; ends with its standard input.

#include <pipewire/pipewire.h>
#include <spa/param/buffers.h>
#include <spa/param/video/format-utils.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

constexpr int bits = 24, cell = 16, columns = 12;

struct Source {
    pw_main_loop *loop = nullptr;
    pw_stream *stream = nullptr;
    spa_source *timer = nullptr;
    int width = 0, height = 0, otherWidth = 0, otherHeight = 0;
    double rate = 30, start = 0;
    bool isStill = false;
    long tick = 0;
};

double now()
{
    timespec time = {};
    clock_gettime(CLOCK_REALTIME, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

const spa_pod *format(const Source &source, spa_pod_builder &builder)
{
    const spa_rectangle size{uint32_t(source.width), uint32_t(source.height)};
    const spa_fraction rate{0, 1}, most{uint32_t(source.rate), 1};
    return static_cast<spa_pod *>(spa_pod_builder_add_object(
        &builder, SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat, SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
        SPA_FORMAT_mediaSubtype, SPA_POD_Id(SPA_MEDIA_SUBTYPE_raw), SPA_FORMAT_VIDEO_format,
        SPA_POD_Id(SPA_VIDEO_FORMAT_BGRx), SPA_FORMAT_VIDEO_size, SPA_POD_Rectangle(&size), SPA_FORMAT_VIDEO_framerate,
        SPA_POD_Fraction(&rate), SPA_FORMAT_VIDEO_maxFramerate, SPA_POD_Fraction(&most)));
}

void paint(const Source &source, uint8_t *pixels, int stride)
{
    const unsigned milliseconds = unsigned((now() - source.start) * 1000);
    const unsigned long number = milliseconds | (~static_cast<unsigned long>(milliseconds) & ((1UL << bits) - 1))
                                                    << bits;
    for (int y = 0; y < source.height; ++y) {
        auto *row = reinterpret_cast<uint32_t *>(pixels + ptrdiff_t(y) * stride);
        std::fill_n(row, source.width, 0x204060U);
        for (int x = 0; y < 2 * bits / columns * cell && x < columns * cell; ++x)
            row[x] = number >> (y / cell * columns + x / cell) & 1 ? 0xffffffU : 0U;
    }
}

void process(void *data)
{
    auto *source = static_cast<Source *>(data);
    pw_buffer *buffer = pw_stream_dequeue_buffer(source->stream);
    if (!buffer)
        return;
    spa_data &memory = buffer->buffer->datas[0];
    const int stride = source->width * 4;
    paint(*source, static_cast<uint8_t *>(memory.data), stride);
    memory.chunk->offset = 0;
    memory.chunk->stride = stride;
    memory.chunk->size = uint32_t(stride * source->height);
    pw_stream_queue_buffer(source->stream, buffer);
}

void formatChanged(void *data, uint32_t identifier, const spa_pod *param)
{
    auto *source = static_cast<Source *>(data);
    if (identifier != SPA_PARAM_Format || !param)
        return;
    uint8_t space[512];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(space, sizeof space);
    const spa_pod *params[] = {static_cast<spa_pod *>(spa_pod_builder_add_object(
        &builder, SPA_TYPE_OBJECT_ParamBuffers, SPA_PARAM_Buffers, SPA_PARAM_BUFFERS_buffers,
        SPA_POD_CHOICE_RANGE_Int(4, 2, 16), SPA_PARAM_BUFFERS_blocks, SPA_POD_Int(1), SPA_PARAM_BUFFERS_size,
        SPA_POD_Int(source->width * source->height * 4), SPA_PARAM_BUFFERS_stride, SPA_POD_Int(source->width * 4)))};
    pw_stream_update_params(source->stream, params, 1);
}

void resize(void *data, int)
{
    auto *source = static_cast<Source *>(data);
    source->width = source->otherWidth;
    source->height = source->otherHeight;
    uint8_t space[512];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(space, sizeof space);
    const spa_pod *params[] = {format(*source, builder)};
    pw_stream_update_params(source->stream, params, 1);
}

}  // namespace

int main(int count, char **arguments)
{
    if (count != 5 && count != 7)
        return 2;
    Source source;
    source.width = std::atoi(arguments[1]);
    source.height = std::atoi(arguments[2]);
    source.rate = std::atof(arguments[3]);
    source.start = std::atof(arguments[4]);
    if (count == 7) {
        source.otherWidth = std::atoi(arguments[5]);
        source.otherHeight = std::atoi(arguments[6]);
    }
    sigset_t orders;
    sigemptyset(&orders);
    for (const int number : {SIGUSR1, SIGUSR2})
        sigaddset(&orders, number);
    sigprocmask(SIG_BLOCK, &orders, nullptr);
    pw_init(nullptr, nullptr);
    source.loop = pw_main_loop_new(nullptr);
    pw_loop *loop = pw_main_loop_get_loop(source.loop);
    static const pw_stream_events events = [] {
        pw_stream_events made = {};
        made.version = PW_VERSION_STREAM_EVENTS;
        made.state_changed = [](void *data, pw_stream_state, pw_stream_state state, const char *) {
            if (state == PW_STREAM_STATE_PAUSED) {
                std::printf("%u\n", pw_stream_get_node_id(static_cast<Source *>(data)->stream));
                std::fflush(stdout);
            }
        };
        made.param_changed = formatChanged;
        made.process = process;
        return made;
    }();
    source.stream = pw_stream_new_simple(
        loop, "screen", pw_properties_new(PW_KEY_MEDIA_CLASS, "Video/Source", PW_KEY_NODE_NAME, "screen", nullptr),
        &events, &source);
    uint8_t space[512];
    spa_pod_builder builder = SPA_POD_BUILDER_INIT(space, sizeof space);
    const spa_pod *params[] = {format(source, builder)};
    pw_stream_connect(source.stream, PW_DIRECTION_OUTPUT, PW_ID_ANY,
                      pw_stream_flags(PW_STREAM_FLAG_DRIVER | PW_STREAM_FLAG_MAP_BUFFERS), params, 1);
    source.timer = pw_loop_add_timer(
        loop,
        [](void *data, uint64_t) {
            auto *screen = static_cast<Source *>(data);
            if (!screen->isStill && pw_stream_get_state(screen->stream, nullptr) == PW_STREAM_STATE_STREAMING)
                pw_stream_trigger_process(screen->stream);
        },
        &source);
    timespec first = {.tv_sec = 0, .tv_nsec = 1}, interval = {.tv_sec = 0, .tv_nsec = long(1e9 / source.rate)};
    pw_loop_update_timer(loop, source.timer, &first, &interval, false);
    pw_loop_add_signal(loop, SIGUSR1, resize, &source);
    pw_loop_add_signal(
        loop, SIGUSR2, [](void *data, int) { static_cast<Source *>(data)->isStill = true; }, &source);
    pw_loop_add_io(
        loop, 0, SPA_IO_IN | SPA_IO_HUP, false,
        [](void *data, int, uint32_t) { pw_main_loop_quit(static_cast<Source *>(data)->loop); }, &source);
    pw_main_loop_run(source.loop);
    pw_stream_destroy(source.stream);
    pw_main_loop_destroy(source.loop);
    pw_deinit();
    return 0;
}
