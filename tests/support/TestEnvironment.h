#pragma once

#include <QTemporaryDir>

#include <functional>

namespace kestrel::test {

/// A fresh home folder with its XDG folders, UTC, the C locale and an offscreen display, for the life of the object.
/// Made before the application object.
class TestEnvironment {
public:
    TestEnvironment();

private:
    QTemporaryDir m_home;
};

/// Runs the event loop until `condition` holds. False where it does not within `limitMs`.
bool waitUntil(const std::function<bool()> &condition, int limitMs = 5000);

/// Processor time of the calling thread so far, in milliseconds.
double processorMs();

}  // namespace kestrel::test
