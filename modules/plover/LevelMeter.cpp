#include "LevelMeter.h"

#include "RecordCommand.h"

#include "jobs/ToolProcess.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

LevelMeter::LevelMeter(QObject *parent) : QObject(parent) {}

LevelMeter::~LevelMeter() = default;

void LevelMeter::open(const QString &transcoderPath, const RecordPlan &plan)
{
    close();
    const QStringList sources = soundSources(plan);
    if (sources.isEmpty())
        return;
    // The last one is the microphone, which is what a level is looked at for.
    m_tool = std::make_unique<ToolProcess>(
        ToolCommand{.program = transcoderPath,
                    .arguments = {u"-hide_banner"_s,
                                  u"-nostdin"_s,
                                  u"-nostats"_s,
                                  u"-loglevel"_s,
                                  u"error"_s,
                                  u"-f"_s,
                                  u"pulse"_s,
                                  u"-name"_s,
                                  u"Kestrel"_s,
                                  u"-stream_name"_s,
                                  u"Level"_s,
                                  u"-sample_rate"_s,
                                  u"48000"_s,
                                  u"-i"_s,
                                  sources.last(),
                                  u"-af"_s,
                                  u"asetnsamples=4800,astats=metadata=1:reset=1,"
                                  "ametadata=mode=print:key=lavfi.astats.Overall.Peak_level:file=-:direct=1"_s,
                                  u"-f"_s,
                                  u"null"_s,
                                  u"-"_s}});
    connect(m_tool.get(), &ToolProcess::outputLine, this, [this](const QByteArray &line) {
        if (const double level = levelIn(line); level >= 0)
            emit levelChanged(level);
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
