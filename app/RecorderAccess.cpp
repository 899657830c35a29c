#include "RecorderAccess.h"

#include "foundation/Queues.h"
#include "helpers/CapturePermission.h"
#include "tarnwell/Log.h"

#include <QLibrary>

#include <memory>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Completion = std::function<void()>;

/// Called by the library, on whatever thread it likes, once.
void userAnswered(void *context, int)
{
    const std::unique_ptr<Completion> completion(static_cast<Completion *>(context));
    foundation::queue::afterMain(std::chrono::milliseconds(100), std::move(*completion));
}

}  // namespace

RecorderGate recorderGate(const std::optional<tarnwell::SystemVersion> &version)
{
    const int number = version ? version->number() : 0;
    if (number < 100700)
        return RecorderGate::Unavailable;
    return number < 101400 ? RecorderGate::Open : RecorderGate::AskForPermission;
}

CapturePermissionAnswer requestCapturePermission(const QString &libraryPath, Completion completion)
{
    using Outcome = CapturePermissionAnswer::Outcome;
    tarnwell::DNFootLog(u"Call 'GetAuthorizationStatus' to request Permission."_s);
    QLibrary library(libraryPath);
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::ExportExternalSymbolsHint);
    const auto getStatus =
        reinterpret_cast<GetAuthorizationStatusFunction *>(library.resolve("GetAuthorizationStatus"));
    if (!getStatus)
        return {Outcome::Open, {}};

    tarnwell::DNFootLog(u"Test Permission."_s);
    const char *error = nullptr;
    const int status = getStatus(captureMediaTypeAudio, &error);
    if (status == -1)
        return error ? CapturePermissionAnswer{Outcome::Failed, QString::fromUtf8(error)}
                     : CapturePermissionAnswer{Outcome::Refused, {}};
    if (status != 0)
        return {Outcome::Open, {}};

    const auto authorDevice = reinterpret_cast<AuthorDeviceFunction *>(library.resolve("AuthorDevice"));
    if (!authorDevice)
        return {Outcome::Refused, {}};
    tarnwell::DNFootLog(u"Author Device."_s);
    authorDevice(captureMediaTypeAudio, userAnswered, std::make_unique<Completion>(std::move(completion)).release());
    return {Outcome::Asking, {}};
}

}  // namespace kestrel
