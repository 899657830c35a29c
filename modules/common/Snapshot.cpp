#include "Snapshot.h"

#include "foundation/Queues.h"
#include "jobs/OutputFile.h"
#include "tarnwell/SystemInformation.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

foundation::Result<QString, tarnwell::Sentence> writtenSnapshot(const QImage &image, const QString &folder,
                                                                const QString &name)
{
    if (image.isNull())
        return foundation::Failure{tarnwell::Sentence("There is no picture at this place."_key)};
    tarnwell::CreateDirectory(folder);
    OutputFile output(folder, name, u"png"_s);
    if (!output.isValid())
        return foundation::Failure{output.reason()};
    if (!image.save(output.partPath(), "PNG"))
        return foundation::Failure{tarnwell::Sentence("The snapshot could not be written."_key)};
    return output.publish();
}

}  // namespace

void keepSnapshot(const QImage &image, const QString &folder, const QString &name, QObject *context,
                  const std::function<void(const QString &path, const QString &sentence)> &then)
{
    foundation::queue::asyncGlobal([=, guard = QPointer(context)] {
        const auto result = writtenSnapshot(image, folder, name);
        foundation::queue::asyncMain([=] {
            if (guard)
                then(result ? *result : QString(), result ? QString() : result.reason().localized());
        });
    });
}

}  // namespace kestrel
