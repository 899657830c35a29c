#pragma once

#include <utility>

namespace kestrel::tarnwell {

/// Makes an object the one behind this framework's free functions for as long as the installation lives; the one before it comes
/// back afterwards. Installations are nested, made and ended on the main thread.
template <class Service>
class Installed {
public:
    explicit Installed(Service &service) : m_previous(std::exchange(s_current, &service)) {}
    ~Installed() { s_current = m_previous; }
    Installed(const Installed &) = delete;
    Installed &operator=(const Installed &) = delete;

    /// Null where none is installed.
    static Service *current() { return s_current; }

private:
    inline static Service *s_current = nullptr;
    Service *m_previous;
};

}  // namespace kestrel::tarnwell
