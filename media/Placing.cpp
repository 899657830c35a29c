#include "Placing.h"

#include "foundation/FileNames.h"
#include "foundation/Queues.h"
#include "jobs/OutputFile.h"
#include "jobs/PartPlacing.h"

#include <QPointer>

#include <fcntl.h>
#include <sys/stat.h>

namespace kestrel {

Placing::Placing(std::shared_ptr<OutputFile> output, std::optional<QDateTime> modified)
    : m_output(std::move(output)),
      m_modified(std::move(modified))
{
}

void Placing::start(QObject *context, Placed then)
{
    foundation::queue::asyncGlobal([self = shared_from_this(), context = QPointer(context), then = std::move(then)] {
        self->place();
        foundation::queue::asyncMain([self, context, then] {
            if (context && !self->m_isTakenBack)
                then(*self->m_result);
        });
    });
}

void Placing::place()
{
    if (m_modified) {
        const qint64 time = m_modified->toMSecsSinceEpoch();
        const timespec times[] = {{0, UTIME_OMIT}, {time_t(time / 1000), long(time % 1000) * 1'000'000}};
        utimensat(AT_FDCWD, foundation::encodedFileName(m_output->partPath()).constData(), times, 0);
    }
    auto result = m_output->publish();
    const std::lock_guard lock(m_mutex);
    m_output.reset();
    if (result && m_isTakenBack)
        placing::removePart(*result);
    m_result = std::move(result);
}

void Placing::takeBack()
{
    const std::lock_guard lock(m_mutex);
    m_isTakenBack = true;
    if (m_result && *m_result)
        placing::removePart(**m_result);
}

}  // namespace kestrel
