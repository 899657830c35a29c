#include "Conversions.h"

#include "Conversion.h"
#include "jobs/JobQueue.h"
#include "media/Encoders.h"
#include "media/TranscoderCodecs.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// What Conversions knows of the sources.
namespace kestrel {

/// What cannot be made here is said in the rows before the start.
void Conversions::askForEncoders()
{
    m_codecs = std::make_unique<CodecQuery>(m_settings->getTranscoderPath());
    connect(m_codecs.get(), &CodecQuery::answered, this, [this](const TranscoderCodecs &codecs) {
        m_missingEncoders = codecs.failure.isEmpty() ? missingEncoders(codecs.encoders.all) : QStringList();
        if (m_missingEncoders.isEmpty())
            return;
        for (auto known = m_known.begin(); known != m_known.end(); ++known) {
            known->warnings.reset();
            emit informed(known.key());
        }
    });
    m_codecs->start();
}

void Conversions::lookAt(JobId id)
{
    const auto plan = this->plan(id);
    if (!plan)
        return;
    Knowledge &known = m_known[id];
    known.sources = QList<std::optional<MediaInformation>>(plan->sources.size());
    known.warnings.reset();
    for (qsizetype i = 0; i < plan->sources.size(); ++i) {
        m_looks.insert(++m_lastLook, {id, i});
        m_prober.probe(m_lastLook, proberBeside(m_settings->getTranscoderPath()), plan->sources.at(i));
    }
}

void Conversions::probed(qint64 look, const MediaProber::Answer &answer)
{
    const auto [id, source] = m_looks.take(look);
    const JobRecord *record = m_queue.record(id);
    const auto known = m_known.find(id);
    if (!record || known == m_known.end() || source >= known->sources.size())
        return;
    const bool isOpen = record->state == JobState::Checking || record->state == JobState::Ready;
    if (!answer) {
        if (isOpen)
            m_queue.change(id, [&](JobRecord &changing) {
                changing.state = JobState::Unusable;
                changing.outcome.sentence = answer.reason();
            });
        if (isEnded(record->state))
            m_known.erase(known);  // who wants to know asks again: its disk may be back
        emit notInformed(id, answer.reason().localized());
        return;
    }
    known->sources[source] = *answer;
    if (!std::ranges::all_of(known->sources, [](const auto &each) { return each.has_value(); }))
        return;
    know(id);
    emit informed(id);
}

void Conversions::know(JobId id)
{
    QList<MediaInformation> all;
    MediaInformation shown = *m_known[id].sources.first();
    double seconds = 0;
    for (const auto &each : std::as_const(m_known[id].sources)) {
        all.append(*each);
        seconds += each->duration.value_or(0);
    }
    shown.duration = seconds > 0 ? std::optional(seconds) : std::nullopt;
    m_recipe.setInformation(id, all);
    const JobState state = m_queue.record(id)->state;
    if (state == JobState::Checking || state == JobState::Ready)
        m_queue.change(id, [&](JobRecord &record) {
            record.state = JobState::Ready;
            setSourceSummary(record, shown);
        });
}

QList<MediaInformation> Conversions::information(JobId id)
{
    if (!m_queue.record(id))
        return {};
    const auto known = m_known.constFind(id);
    if (known == m_known.cend() || known->sources.isEmpty()) {
        lookAt(id);
        return {};
    }
    QList<MediaInformation> all;
    for (const auto &each : known->sources) {
        if (!each)
            return {};
        all.append(*each);
    }
    return all;
}

QList<tarnwell::Sentence> Conversions::warnings(JobId id)
{
    const QList<MediaInformation> sources = information(id);
    if (sources.isEmpty())
        return {};
    Knowledge &known = m_known[id];
    if (!known.warnings) {
        known.warnings.emplace();
        known.bytes = 0;
        if (const auto plan = this->plan(id)) {
            const auto steps = transcodeSteps(*plan, sources, tools().machine, {u"/output"_s, u"/work"_s});
            known.warnings = steps ? steps->leftOut + steps->notes : QList{steps.reason()};
            known.bytes = steps ? steps->expectedBytes : 0;
        }
    }
    return *known.warnings;
}

qint64 Conversions::expectedBytes(JobId id)
{
    warnings(id);
    return m_known.value(id).bytes;
}

void Conversions::forgetRemoved()
{
    m_isForgetting = false;
    QList<qint64> looks;
    for (auto each = m_looks.begin(); each != m_looks.end();) {
        if (m_queue.record(each->job)) {
            ++each;
        } else {
            looks.append(each.key());
            each = m_looks.erase(each);
        }
    }
    m_prober.forget(looks);
    for (auto each = m_known.begin(); each != m_known.end();) {
        if (!m_queue.record(each.key())) {
            m_recipe.setInformation(each.key(), {});
            each = m_known.erase(each);
        } else {
            ++each;
        }
    }
}

}  // namespace kestrel
