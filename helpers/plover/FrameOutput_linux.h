#pragma once

#include "FrameStream.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrel::frames {

/// Writes pictures to a pipe without waiting for its reader: one at a time, each whole or not at all.
class FrameOutput {
public:
    explicit FrameOutput(int descriptor);

    /// What has been begun has not been taken by the reader yet.
    bool isBusy() const { return m_isWriting; }
    bool isClosed() const { return m_isClosed; }  ///< nobody reads any more
    std::optional<Size> size() const { return m_size; }

    /// The size of all pictures; before the first one.
    void begin(Size size, PixelOrder order, double rate);
    /// `time` is in microseconds since 1970; one that is not later than the one before is made so. Not while busy.
    void write(const Picture &picture, int64_t time);
    /// The last picture once more. Not while busy.
    void repeat(int64_t time);
    /// The last picture as a file of PPM, which is whole from the moment on at which it has the name. False where there
    /// is none or it cannot be written.
    bool save(const std::string &path) const;
    /// Goes on where the reader was slow.
    void flush();

private:
    void start(int64_t time);
    int64_t writeSome();

    int m_descriptor;
    std::optional<Size> m_size;
    PixelOrder m_order = PixelOrder::BlueFirst;
    std::string m_head;
    std::vector<uint8_t> m_pixels;
    std::vector<uint8_t> m_lastPixels;  ///< those before, which the pipe may still show its reader
    size_t m_pipeBytes = 0;
    bool m_lendsPages = false;  ///< pictures go into the pipe without being copied
    size_t m_written = 0;       ///< of head and pixels
    int64_t m_lastTime = 0;
    bool m_isWriting = false;
    bool m_isClosed = false;
};

}  // namespace kestrel::frames
