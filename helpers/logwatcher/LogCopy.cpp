#include "LogCopy.h"

#include "LogBytes.h"
#include "foundation/Queues.h"
#include "tarnwell/Localization.h"

#include <QSaveFile>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

namespace {

constexpr qint64 copyBlockLength = 1024 * 1024;

/// The error, empty where all went well; none where the copy was given up.
std::optional<QString> saveCopy(const LogBytes &bytes, qint64 size, const QString &destination,
                                const std::atomic<bool> &isGivenUp, const std::function<void(int)> &progressed)
{
    if (bytes.isNamed(destination))
        return AppLocalizedString(u"That is the log itself. Choose another name."_s);
    QSaveFile copy(destination);
    if (!copy.open(QIODevice::WriteOnly))
        return copy.errorString();
    int percent = 0;
    for (qint64 done = 0; done < size;) {
        if (isGivenUp)
            return std::nullopt;
        const QByteArray block = bytes.read(done, std::min(copyBlockLength, size - done));
        if (block.isEmpty())
            return AppLocalizedString(u"The log was cut short meanwhile. Try again."_s);
        if (copy.write(block) != block.size())
            return copy.errorString();
        done += block.size();
        if (std::exchange(percent, int(done * 100 / size)) != percent)
            progressed(percent);
    }
    return copy.commit() ? QString() : copy.errorString();
}

}  // namespace

LogCopy::~LogCopy()
{
    giveUp();
}

void LogCopy::start(std::shared_ptr<const LogBytes> bytes, qint64 size, const QString &destination)
{
    giveUp();
    m_isGivenUp = std::make_shared<std::atomic<bool>>(false);
    foundation::queue::asyncGlobal([this, bytes, size, destination, isGivenUp = m_isGivenUp] {
        // On the main thread, a copy that is not given up tells that the object is still there.
        const auto error = saveCopy(*bytes, size, destination, *isGivenUp, [&](int percent) {
            foundation::queue::asyncMain([this, percent, isGivenUp] {
                if (!*isGivenUp)
                    emit progressed(percent);
            });
        });
        foundation::queue::asyncMain([this, error, isGivenUp] {
            if (*isGivenUp)
                return;
            m_isGivenUp.reset();
            emit finished(error.value_or(QString()));
        });
    });
}

void LogCopy::giveUp()
{
    if (m_isGivenUp)
        *m_isGivenUp = true;
    m_isGivenUp.reset();
}

}  // namespace kestrel
