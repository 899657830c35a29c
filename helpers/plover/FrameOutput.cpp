#include "FrameOutput.h"

#include <fcntl.h>
#include <sys/uio.h>
#include <algorithm>
#include <cerrno>

namespace kestrel::frames {

FrameOutput::FrameOutput(int descriptor) : m_descriptor(descriptor)
{
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
#ifdef F_SETPIPE_SZ
    constexpr int pipeBytes = 1024 * 1024;  // what anybody may have
    fcntl(descriptor, F_SETPIPE_SZ, pipeBytes);
#endif
}

void FrameOutput::begin(Size size, PixelOrder order, double rate)
{
    m_size = size;
    m_head = streamHead(size, order, rate);
}

void FrameOutput::write(const Picture &picture, int64_t time)
{
    fit(picture, *m_size, m_pixels);
    start(time);
}

void FrameOutput::repeat(int64_t time)
{
    start(time);
}

void FrameOutput::start(int64_t time)
{
    m_lastTime = std::max(time, m_lastTime + 1);
    if (m_written != 0)  // the stream's own head goes with the first one
        m_head.clear();
    m_head += pictureHead(*m_size, m_lastTime);
    m_written = 0;
    m_isWriting = true;
    flush();
}

void FrameOutput::flush()
{
    while (m_isWriting && !m_isClosed) {
        const size_t inHead = std::min(m_written, m_head.size());
        const size_t inPixels = m_written - inHead;
        const iovec parts[] = {{m_head.data() + inHead, m_head.size() - inHead},
                               {m_pixels.data() + inPixels, m_pixels.size() - inPixels}};
        const ssize_t count = writev(m_descriptor, parts, 2);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && errno == EAGAIN)
            return;
        m_isClosed = count < 0;
        m_written += count > 0 ? size_t(count) : 0;
        m_isWriting = m_written < m_head.size() + m_pixels.size();
    }
}

}  // namespace kestrel::frames
