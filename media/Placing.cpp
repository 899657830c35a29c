#include "Placing.h"

#include "foundation/Queues.h"
#include "jobs/OutputFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

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

namespace {

void removeOutput(const QString &path)
{
    if (const QFileInfo output(path); output.isDir() && !output.isSymLink())
        QDir(path).removeRecursively();
    else
        QFile::remove(path);
}

}  // namespace

void Placing::place()
{
    if (m_modified) {
        QFile part(m_output->partPath());
        if (part.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
            part.setFileTime(*m_modified, QFileDevice::FileModificationTime);
    }
    auto result = m_output->publish();
    const std::lock_guard lock(m_mutex);
    m_output.reset();
    if (result && m_isTakenBack)
        removeOutput(*result);
    m_result = std::move(result);
}

void Placing::takeBack()
{
    const std::lock_guard lock(m_mutex);
    m_isTakenBack = true;
    if (m_result && *m_result)
        removeOutput(**m_result);
}

}  // namespace kestrel
