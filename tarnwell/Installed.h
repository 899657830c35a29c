#pragma once

#include <atomic>

namespace kestrel::tarnwell {

/// Makes an object the one behind this framework's free functions for as long as the installation lives; the one before
/// it comes back afterwards. Installations are nested, made and ended on the main thread; a service that other threads
/// ask for outlives them.
template <class Service>
class Installed {
public:
    explicit Installed(Service &service) : m_previous(s_current.exchange(&service)) {}
    ~Installed() { s_current = m_previous; }
    Installed(const Installed &) = delete;
    Installed &operator=(const Installed &) = delete;

    /// Null where none is installed.
    static Service *current() { return s_current; }

private:
    inline static std::atomic<Service *> s_current = nullptr;
    Service *m_previous;
};

}  // namespace kestrel::tarnwell
