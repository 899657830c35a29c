#pragma once

#include <QtGlobal>

namespace kestrel {

/// What the living processes of a group have done so far. Only differences mean something.
struct GroupActivity {
    qint64 processorMs = 0;
    qint64 bytes = 0;  ///< read and written, of whatever

    GroupActivity &operator+=(const GroupActivity &other)
    {
        processorMs += other.processorMs;
        bytes += other.bytes;
        return *this;
    }

    static GroupActivity of(qint64 group);
};

}  // namespace kestrel
