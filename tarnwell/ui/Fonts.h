#pragma once

#include <thread>

namespace kestrel::tarnwell {

/// Has the system's font configuration read beside what a start does otherwise, of which it is a fifth. One object a
/// process, made before anything asks for a font.
class FontReading {
public:
    FontReading();
    ~FontReading() { finish(); }
    FontReading(const FontReading &) = delete;
    FontReading &operator=(const FontReading &) = delete;

    /// Waits for it; before the first font.
    void finish();

private:
    std::thread m_thread;
};

}  // namespace kestrel::tarnwell
