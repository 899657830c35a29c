#include "LevelMeter.h"

#include "RecordCommand.h"

#include "foundation/Queues.h"
#include "jobs/ToolProcess.h"

#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr std::chrono::seconds firstDelay(2), longestDelay(30);

}  // namespace

LevelMeter::LevelMeter(QObject *parent) : QObject(parent) {}

LevelMeter::~LevelMeter() = default;

void LevelMeter::open(const QString &transcoderPath, const RecordPlan &plan)
{
    close();
    m_retryDelay = firstDelay;
    if (!soundSources(plan).isEmpty())
        listen(transcoderPath, plan);
}

void LevelMeter::listen(const QString &transcoderPath, const RecordPlan &plan)
{
    m_tool = std::make_unique<ToolProcess>(ToolCommand{
        .program = transcoderPath,
        .arguments = soundInputArguments(plan) +
                     QStringList{u"-nostats"_s, u"-filter_complex"_s,
                                 u"amix=inputs=%1:normalize=0,asetnsamples=4800,"
                                 "astats=metadata=1:reset=1,ametadata=mode=print:"
                                 "key=lavfi.astats.Overall.Peak_level:file=-:direct=1"_s.arg(soundSources(plan).size()),
                                 u"-f"_s, u"null"_s, u"-"_s}});
    connect(m_tool.get(), &ToolProcess::outputLine, this, [this](const QByteArray &line) {
        const double level = levelIn(line);
        if (level < 0)
            return;
        m_retryDelay = firstDelay;
        emit levelChanged(level);
    });
    // A microphone that is missing gives way to the usual one, as it does in the recording.
    RecordPlan usual = plan;
    usual.microphone.clear();
    connect(m_tool.get(), &ToolProcess::ended, this, [this, transcoderPath, usual] {
        emit levelChanged(0);
        const std::chrono::seconds delay = std::exchange(m_retryDelay, std::min(m_retryDelay * 2, longestDelay));
        // Not where something else is listened to by then, or nothing.
        foundation::queue::afterMain(delay, [this, tool = QPointer(m_tool.get()), transcoderPath, usual] {
            if (tool)
                listen(transcoderPath, usual);
        });
    });
    m_tool->start();
}

void LevelMeter::close()
{
    m_tool.reset();
    emit levelChanged(0);
}

double LevelMeter::levelIn(const QByteArray &line)
{
    constexpr double nothing = 60;  // decibels below the loudest
    const qsizetype equals = line.indexOf('=');
    if (equals < 0 || !line.contains("Peak_level"))
        return -1;
    bool isNumber = false;
    const double decibels = line.mid(equals + 1).toDouble(&isNumber);
    return isNumber ? std::clamp(1 + decibels / nothing, 0.0, 1.0) : 0;  // silence is "-inf"
}

}  // namespace kestrel
