#pragma once

#include "RecordPlan.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace kestrel {

class ToolProcess;

/// How loud a recording's sound is at the moment, all of it together. Listens from `open` until `close`, and tries
/// again where the sound ends. Main thread.
class LevelMeter : public QObject {
    Q_OBJECT
public:
    explicit LevelMeter(QObject *parent = nullptr);
    ~LevelMeter() override;

    /// Instead of what it listened to; to nothing for a plan without sound.
    void open(const QString &transcoderPath, const RecordPlan &plan);
    void close();

    /// 0 to 1 of what a line of ffmpeg's tells, 60 decibels being nothing; -1 where it tells none.
    static double levelIn(const QByteArray &line);

signals:
    void levelChanged(double level);  ///< 0 to 1, ten times a second

private:
    void listen(const QString &transcoderPath, const RecordPlan &plan);

    std::unique_ptr<ToolProcess> m_tool;
    std::chrono::seconds m_retryDelay{};  ///< grows while nothing is heard
};

}  // namespace kestrel
