#pragma once

#include "FrameOutput_linux.h"
#include "FramePace.h"

#include <pipewire/pipewire.h>
#include <spa/param/video/format-utils.h>

#include <string>

namespace kestrel::frames {

struct ScreenRequest {
    int descriptor = -1;  ///< a connection to PipeWire
    uint32_t node = 0;
    double rate = 30;           ///< pictures a second at the most
    std::string snapshot = {};  ///< path of the file that SIGUSR1 asks for; empty for none
    Size size = {};             ///< of what is written; none: the first picture's
};

/// Hands the pictures of a PipeWire node on to standard output until the node goes, the reader goes, or SIGINT or
/// SIGTERM. Where nothing changes on the screen, the last picture comes again several times a second, so that whoever
/// records knows that time goes by. What happens is told on standard error, a JSON object a line:
///   {"size":[1280,720]}   before the first picture
///   {"dropped":3}         pictures so far that were due and for which the reader was too slow
///   {"snapshot":true}     has been written, after SIGUSR1; false where that was not possible
///   {"end":"node"}        it has gone
///   {"error":"connect"}   why there is none: "connect" (to PipeWire), or "node" (none of that number, none that can be
///                         read, or nothing comes from it)
class ScreenStream {
public:
    explicit ScreenStream(const ScreenRequest &request);
    ~ScreenStream();
    ScreenStream(const ScreenStream &) = delete;
    ScreenStream &operator=(const ScreenStream &) = delete;

    /// The exit status.
    int run();

private:
    bool connect();
    void takeFormat(uint32_t identifier, const spa_pod *param);
    void takeBuffers();
    void takeBuffer(pw_buffer *buffer);
    void dropHeld();
    void handOn();
    void wake();
    void setWakeUp();
    void tellDropped(bool isLast);
    void end();
    void nodeGone();
    void fail(const char *reason);

    ScreenRequest m_request;
    FrameOutput m_output;
    FramePace m_pace;
    pw_main_loop *m_loop = nullptr;
    pw_context *m_context = nullptr;
    pw_core *m_core = nullptr;
    pw_registry *m_registry = nullptr;
    pw_stream *m_stream = nullptr;
    spa_source *m_reader = nullptr;
    spa_source *m_timer = nullptr;
    spa_hook m_coreHook = {}, m_registryHook = {}, m_streamHook = {};
    spa_video_info_raw m_format = {};
    pw_buffer *m_held = nullptr;  ///< the newest picture, which has not been handed on
    int64_t m_heldTime = 0;
    bool m_isHeldDue = false;
    int64_t m_lastStart = 0;  ///< when the last picture was begun to be written
    int64_t m_deadline = 0;   ///< for the first picture, and for the last one
    int64_t m_dropped = 0, m_toldDropped = 0, m_toldAt = 0;
    bool m_isEnding = false;
    int m_status = 0;
};

}  // namespace kestrel::frames
