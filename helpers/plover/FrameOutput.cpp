#include "FrameOutput.h"

#include <fcntl.h>
#include <sys/uio.h>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>

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
    m_order = order;
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

bool FrameOutput::save(const std::string &path) const
{
    if (!m_size || m_pixels.empty())
        return false;
    const std::string unfinished = path + ".part";
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen(unfinished.c_str(), "wbe"), &std::fclose);
    if (!file)
        return false;
    std::fprintf(file.get(), "P6\n%d %d\n255\n", m_size->width, m_size->height);
    const bool isBlueFirst = m_order == PixelOrder::BlueFirst;
    for (size_t at = 0; at < m_pixels.size(); at += 4) {
        const uint8_t *pixel = m_pixels.data() + at;
        const uint8_t colour[] = {pixel[isBlueFirst ? 2 : 0], pixel[1], pixel[isBlueFirst ? 0 : 2]};
        std::fwrite(colour, 1, sizeof colour, file.get());
    }
    return std::fflush(file.get()) == 0 && std::ferror(file.get()) == 0 &&
           std::rename(unfinished.c_str(), path.c_str()) == 0;
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
