#include "ConversionJob.h"

#include "foundation/Processes.h"
#include "foundation/Queues.h"
#include "tarnwell/Log.h"

#include <QFileInfo>
#include <QPointer>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

ConversionJob::ConversionJob(ConversionRequest request, QObject *parent)
    : QObject(parent),
      m_request(std::move(request))
{
}

ConversionJob::~ConversionJob()
{
    if (!m_process)
        return;
    m_process->disconnect(this);
    m_process->kill();
    m_process->waitForFinished(1000);
}

void ConversionJob::start()
{
    const QFileInfo source(m_request.source);
    const QString baseName = source.completeBaseName().isEmpty() ? source.fileName() : source.completeBaseName();
    m_output = std::make_unique<marlin::OutputFile>(m_request.folder, baseName,
                                                    QString::fromLatin1(m_request.target->extension));
    if (m_output->isValid())
        run(m_request.options);
    else
        fail(m_output->reason());
}

void ConversionJob::run(const TranscodeOptions &options)
{
    const TranscodeCommand command =
        transcodeCommand(m_request.source, m_request.information, *m_request.target, options, m_output->partPath());
    m_takesShortcut = command.takesShortcut;
    m_progress = {};
    m_messages = {};
    if (m_process)
        m_process.release()->deleteLater();  // it is in the middle of its signal
    m_process = std::make_unique<QProcess>();
    m_process->setChildProcessModifier(foundation::endWithParent());
    m_process->setStandardInputFile(QProcess::nullDevice());
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &ConversionJob::readProgress);
    connect(m_process.get(), &QProcess::readyReadStandardError, this,
            [this] { m_messages.read(m_process->readAllStandardError()); });
    connect(m_process.get(), &QProcess::finished, this, &ConversionJob::toolEnded);
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            fail(QString::fromLatin1(QT_TRANSLATE_NOOP(
                "TarnwellPublic", "The converter could not be started. Please install the application again.")));
    });
    tarnwell::DNFootLog(u"Converting: %1"_s, command.arguments.join(u' '));
    m_process->start(m_request.transcoderPath, command.arguments);
}

void ConversionJob::cancel()
{
    if (m_isCancelled)
        return;
    m_isCancelled = true;
    if (!m_process || m_process->state() == QProcess::NotRunning)
        return;
    m_process->terminate();
    constexpr std::chrono::milliseconds patience{500};
    foundation::queue::afterMain(patience, [process = QPointer(m_process.get())] {
        if (process)
            process->kill();
    });
}

void ConversionJob::readProgress()
{
    m_progress.read(m_process->readAllStandardOutput());
    std::optional<double> fraction;
    if (const auto duration = m_request.information.duration) {
        // A second run begins anew, and files last longer than they say: the bar stays where it is, short of the end.
        constexpr double beforeTheEnd = 0.99;
        m_fraction = std::max(m_fraction, std::min(m_progress.processed() / *duration, beforeTheEnd));
        fraction = m_fraction;
    }
    emit progressed(fraction, m_progress.processed());
}

void ConversionJob::toolEnded()
{
    m_progress.read(m_process->readAllStandardOutput());
    m_messages.read(m_process->readAllStandardError());
    // Paths could be taken for messages: "Permission denied.mkv".
    const QString messages = m_messages.text().remove(m_request.source).remove(m_output->partPath());
    const TranscodeFailure failure = failureIn(messages);
    if (m_isCancelled) {
        fail({});
    } else if (m_process->exitStatus() == QProcess::NormalExit && m_process->exitCode() == 0 &&
               !messages.contains(QLatin1StringView(emptyOutputMessage))) {
        succeed();
    } else if (m_takesShortcut && !failure.isHopeless) {
        runWithoutShortcut();
    } else {
        fail(failure.sentence);
    }
}

void ConversionJob::succeed()
{
    const QString path = m_output->publish();
    if (path.isNull())
        fail(m_output->reason());
    else
        finishLater({path, {}, m_messages.text()});
}

void ConversionJob::fail(const QString &reason)
{
    m_output.reset();
    finishLater({{}, reason, m_messages.text()});
}

void ConversionJob::finishLater(const ConversionResult &result)
{
    QMetaObject::invokeMethod(
        this, [this, result] { emit finished(result); }, Qt::QueuedConnection);
}

void ConversionJob::runWithoutShortcut()
{
    tarnwell::DNFootLog(u"Converting again in software, without copying: %1"_s, m_messages.text());
    TranscodeOptions options = m_request.options;
    options.hardwareDevice.clear();
    options.autoCopy = false;
    run(options);
}

}  // namespace kestrel
