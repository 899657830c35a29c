#include "FrameOutput_linux.h"

#include <fcntl.h>
#include <sys/uio.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <utility>

namespace kestrel::frames {

FrameOutput::FrameOutput(int descriptor) : m_descriptor(descriptor)
{
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    constexpr int pipeBytes = 1024 * 1024;  // what anybody may have
    m_pipeBytes = size_t(std::max(fcntl(descriptor, F_SETPIPE_SZ, pipeBytes), 0));
}

void FrameOutput::begin(Size size, PixelOrder order, double rate)
{
    m_size = size;
    m_order = order;
    m_head = streamHead(size, order, rate);
}

void FrameOutput::write(const Picture &picture, int64_t time)
{
    std::swap(m_pixels, m_lastPixels);
    fit(picture, *m_size, m_pixels);
    // The pipe is full of this picture before the next but one takes its memory.
    m_lendsPages = m_pipeBytes > 0 && m_pixels.size() >= 2 * m_pipeBytes;
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

int64_t FrameOutput::writeSome()
{
    if (m_written < m_head.size())
        return ::write(m_descriptor, m_head.data() + m_written, m_head.size() - m_written);
    const size_t inPixels = m_written - m_head.size();
    const iovec rest = {m_pixels.data() + inPixels, m_pixels.size() - inPixels};
    return m_lendsPages ? vmsplice(m_descriptor, &rest, 1, SPLICE_F_NONBLOCK)
                        : ::write(m_descriptor, rest.iov_base, rest.iov_len);
}

void FrameOutput::flush()
{
    while (m_isWriting && !m_isClosed) {
        const ssize_t count = writeSome();
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
