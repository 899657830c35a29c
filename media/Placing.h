#pragma once

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

#include <QDateTime>
#include <QObject>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace kestrel {

class OutputFile;

/// Gives a finished output, a file or a folder, its name in the background: syncing a large file to a slow disk takes
/// long. Who lets go of it leaves it running: only `takeBack` undoes it. Owned by shared pointers alone.
class Placing : public std::enable_shared_from_this<Placing> {
public:
    using Placed = std::function<void(const foundation::Result<QString, tarnwell::Sentence> &path)>;

    /// `modified` is given to the output where it is told.
    Placing(std::shared_ptr<OutputFile> output, std::optional<QDateTime> modified);

    /// Calls `then` on the main thread while `context` lives and nothing was taken back.
    void start(QObject *context, Placed then);
    /// The output goes, whether it has its name already or not. Does not wait.
    void takeBack();

private:
    void place();

    std::shared_ptr<OutputFile> m_output;
    std::optional<QDateTime> m_modified;
    std::mutex m_mutex;
    bool m_isTakenBack = false;
    std::optional<foundation::Result<QString, tarnwell::Sentence>> m_result;
};

}  // namespace kestrel
