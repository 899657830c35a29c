#pragma once

#include "OutputFile.h"
#include "TranscodeCommand.h"
#include "TranscodeFailure.h"
#include "TranscodeProgress.h"

#include <QObject>

#include <memory>
#include <optional>

class QProcess;

namespace kestrel {

struct ConversionRequest {
    QString transcoderPath;
    QString source;
    MediaInformation information;
    const ConversionTarget *target = nullptr;
    TranscodeOptions options;
    QString folder;  ///< that the output goes to
};

struct ConversionResult {
    QString outputPath;  ///< null where there is none
    QString reason;      ///< then the key of a sentence that says why; null where it was cancelled
    QString details;     ///< what the tool said last
};

/// One run of the transcoder over one file. A run with the hardware encoder or with copied tracks that fails is
/// followed by one without. The output shows up under its name only when it is whole. Ending the object ends the tool
/// and removes what it wrote.
class ConversionJob : public QObject {
    Q_OBJECT
public:
    explicit ConversionJob(ConversionRequest request, QObject *parent = nullptr);
    ~ConversionJob() override;

    /// `finished` follows, later than this returns.
    void start();
    /// Asks the tool to end and makes it end soon after; `finished` follows within a second.
    void cancel();

signals:
    /// `fraction` grows from 0 to 1, or is nothing where the duration is unknown; `processed` is in seconds.
    void progressed(std::optional<double> fraction, double processed);
    void finished(const ConversionResult &result);

private:
    void run(const TranscodeOptions &options);
    void readProgress();
    void toolEnded();
    void succeed();
    void fail(const QString &reason);
    void finishLater(const ConversionResult &result);
    void runWithoutShortcut();

    ConversionRequest m_request;
    std::unique_ptr<marlin::OutputFile> m_output;
    std::unique_ptr<QProcess> m_process;
    TranscodeProgress m_progress;
    MessageTail m_messages;
    double m_fraction = 0;
    bool m_takesShortcut = false;
    bool m_isCancelled = false;
};

}  // namespace kestrel
