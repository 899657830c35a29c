#include "TranscodePlan.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int planVersion = 1;
constexpr qsizetype mostSources = 10'000;
constexpr qsizetype mostTracks = 1000;
constexpr qsizetype mostSubtitleFiles = 32;
constexpr qsizetype longestPath = 8192;
constexpr qsizetype longestPlanText = 1000;
constexpr double longestSeconds = 1e7;

using Plan = TranscodePlan;

// One list of the plain fields serves both ways: what is written is what is read.

/// Reads a number of the range; a field keeps its default where there is none.
class Reading {
public:
    explicit Reading(const QJsonObject &json) : m_json(json) {}

    template <typename Number>
    void number(const QString &key, Number &field, double least, double most)
    {
        const QJsonValue value = m_json[key];
        if (!value.isDouble() || !(value.toDouble() >= least && value.toDouble() <= most))
            return;
        if (std::is_integral_v<Number> && value.toDouble() != std::floor(value.toDouble()))
            return;
        field = Number(value.toDouble());
    }
    void flag(const QString &key, bool &field) { field = m_json[key].toBool(field); }
    void text(const QString &key, QString &field, qsizetype longest)
    {
        const QString text = m_json[key].toString();
        if (text.size() <= longest && !text.contains(QChar::Null))
            field = text;
    }
    template <typename Enum>
    void choice(const QString &key, Enum &field, Enum last)
    {
        int number = int(field);
        this->number(key, number, 0, int(last));
        field = Enum(number);
    }

private:
    const QJsonObject &m_json;
};

/// Writes what differs from the default.
class Writing {
public:
    explicit Writing(QJsonObject &json) : m_json(json) {}

    template <typename Number>
    void number(const QString &key, const Number &field, double, double)
    {
        m_json.insert(key, double(field));
    }
    void flag(const QString &key, bool field) { m_json.insert(key, field); }
    void text(const QString &key, const QString &field, qsizetype) { m_json.insert(key, field); }
    template <typename Enum>
    void choice(const QString &key, Enum field, Enum)
    {
        m_json.insert(key, int(field));
    }

private:
    QJsonObject &m_json;
};

template <typename Way, typename AnyPlan>
void plainFields(Way &&way, AnyPlan &plan)
{
    way.choice(u"rateControl"_s, plan.rateControl, Plan::RateControl::Size);
    way.number(u"quality"_s, plan.quality, 0, 100);
    way.number(u"videoBitRate"_s, plan.videoBitRate, 0, 1e10);
    way.number(u"maximumBytes"_s, plan.maximumBytes, 0, 1e15);
    way.flag(u"best"_s, plan.best);
    way.number(u"speed"_s, plan.speed, -2, 2);
    way.flag(u"hardware"_s, plan.hardware);
    way.flag(u"copies"_s, plan.copies);
    way.number(u"threads"_s, plan.threads, 0, 1024);

    way.number(u"maximumWidth"_s, plan.maximumWidth, 0, 16384);
    way.number(u"maximumHeight"_s, plan.maximumHeight, 0, 16384);
    way.number(u"frameRate"_s, plan.frameRate, 0, 1000);
    way.choice(u"deinterlace"_s, plan.deinterlace, Plan::Deinterlace::Film);
    way.choice(u"dynamicRange"_s, plan.dynamicRange, Plan::HighDynamicRange::ToStandard);
    way.choice(u"turn"_s, plan.turn, Plan::Turn::UpsideDown);
    way.flag(u"mirrored"_s, plan.mirrored);
    way.number(u"brightness"_s, plan.brightness, -1, 1);
    way.number(u"contrast"_s, plan.contrast, 0, 2);
    way.number(u"saturation"_s, plan.saturation, 0, 3);

    way.flag(u"exactCuts"_s, plan.exactCuts);
    way.number(u"speedFactor"_s, plan.speedFactor, 0.25, 4);
    way.number(u"fadeIn"_s, plan.fadeIn, 0, longestSeconds);
    way.number(u"fadeOut"_s, plan.fadeOut, 0, longestSeconds);

    way.choice(u"mix"_s, plan.mix, Plan::SoundMix::Surround51);
    way.flag(u"normalizes"_s, plan.normalizes);
    way.number(u"volume"_s, plan.volume, -60, 60);
    way.number(u"audioBitRate"_s, plan.audioBitRate, 0, 1e8);

    way.text(u"soundLanguages"_s, plan.soundLanguages, longestPlanText);
    way.text(u"subtitleLanguages"_s, plan.subtitleLanguages, longestPlanText);

    way.flag(u"safeMode"_s, plan.safeMode);
    way.flag(u"keepsDate"_s, plan.keepsDate);
    way.text(u"namePattern"_s, plan.namePattern, longestPlanText);
    way.flag(u"besideSource"_s, plan.besideSource);
    way.flag(u"chapterPerSource"_s, plan.chapterPerSource);
}

QJsonObject plainFieldsOf(const Plan &plan)
{
    QJsonObject json;
    plainFields(Writing(json), plan);
    return json;
}

QString boundedPath(const QJsonValue &json)
{
    const QString path = json.toString();
    return path.size() <= longestPath && path.startsWith(u'/') && !path.contains(QChar::Null) ? path : QString();
}

QJsonArray numbersOf(std::initializer_list<double> numbers)
{
    QJsonArray json;
    for (const double number : numbers)
        json.append(number);
    return json;
}

double boundedNumberAt(const QJsonArray &json, qsizetype index, double most)
{
    const double number = json.at(index).toDouble(-1);
    return number >= 0 && number <= most ? number : -1;
}

QJsonObject watermarkJson(const Plan::Watermark &mark)
{
    return {{u"text"_s, mark.text},
            {u"image"_s, mark.imagePath},
            {u"corner"_s, int(mark.corner)},
            {u"opacity"_s, mark.opacity},
            {u"size"_s, mark.size}};
}

std::optional<Plan::Watermark> watermarkFrom(const QJsonObject &json)
{
    Plan::Watermark mark;
    Reading reading(json);
    reading.text(u"text"_s, mark.text, longestPlanText);
    mark.imagePath = boundedPath(json[u"image"_s]);
    int corner = int(mark.corner);
    constexpr int known = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask;
    reading.number(u"corner"_s, corner, 0, known);
    mark.corner = Qt::Alignment(corner & known);
    reading.number(u"opacity"_s, mark.opacity, 0, 1);
    reading.number(u"size"_s, mark.size, 0.01, 1);
    return mark.text.isEmpty() && mark.imagePath.isEmpty() ? std::nullopt : std::optional(mark);
}

void insertLists(QJsonObject &json, const Plan &plan)
{
    json.insert(u"sources"_s, QJsonArray::fromStringList(plan.sources));
    if (!plan.crop.isEmpty())
        json.insert(u"crop"_s, numbersOf({plan.crop.x(), plan.crop.y(), plan.crop.width(), plan.crop.height()}));
    if (plan.watermark)
        json.insert(u"watermark"_s, watermarkJson(*plan.watermark));
    QJsonArray pieces, tracks, files;
    for (const Plan::Piece &piece : plan.pieces)
        pieces.append(numbersOf({piece.start, piece.end}));
    for (const int index : plan.audioTracks.value_or(QList<int>()))
        tracks.append(index);
    QJsonObject subtitles;
    for (auto each = plan.subtitles.begin(); each != plan.subtitles.end(); ++each)
        subtitles.insert(QString::number(each.key()), int(each.value()));
    for (const Plan::ExternalSubtitle &file : plan.externalSubtitles)
        files.append(QJsonObject{{u"path"_s, file.path},
                                 {u"language"_s, file.language},
                                 {u"use"_s, int(file.use)},
                                 {u"forced"_s, file.isForced}});
    if (!pieces.isEmpty())
        json.insert(u"pieces"_s, pieces);
    if (plan.audioTracks)
        json.insert(u"audioTracks"_s, tracks);
    if (!subtitles.isEmpty())
        json.insert(u"subtitles"_s, subtitles);
    if (!files.isEmpty())
        json.insert(u"externalSubtitles"_s, files);
}

void readCrop(Plan &plan, const QJsonArray &json)
{
    const QRectF crop(boundedNumberAt(json, 0, 1), boundedNumberAt(json, 1, 1), boundedNumberAt(json, 2, 1),
                      boundedNumberAt(json, 3, 1));
    constexpr double rounding = 1e-9;
    if (crop.x() >= 0 && crop.y() >= 0 && crop.width() > 0 && crop.height() > 0 && crop.right() <= 1 + rounding &&
        crop.bottom() <= 1 + rounding)
        plan.crop = crop;
}

void readSubtitles(Plan &plan, const QJsonObject &json)
{
    const QJsonObject subtitles = json[u"subtitles"_s].toObject();
    for (auto each = subtitles.begin(); each != subtitles.end() && plan.subtitles.size() < mostTracks; ++each) {
        bool isNumber = false;
        const int index = each.key().toInt(&isNumber);
        const int use = each.value().toInt(-1);
        if (isNumber && index >= 0 && use >= 0 && use <= int(Plan::SubtitleUse::Leave))
            plan.subtitles.insert(index, Plan::SubtitleUse(use));
    }
    for (const QJsonValue &value : json[u"externalSubtitles"_s].toArray()) {
        const QJsonObject object = value.toObject();
        Plan::ExternalSubtitle file{.path = boundedPath(object[u"path"_s]), .language = {}};
        Reading reading(object);
        reading.text(u"language"_s, file.language, 64);
        reading.choice(u"use"_s, file.use, Plan::SubtitleUse::Leave);
        reading.flag(u"forced"_s, file.isForced);
        if (!file.path.isEmpty() && plan.externalSubtitles.size() < mostSubtitleFiles)
            plan.externalSubtitles.append(file);
    }
}

void readTimesAndTracks(Plan &plan, const QJsonObject &json)
{
    for (const QJsonValue &value : json[u"pieces"_s].toArray()) {
        const QJsonArray numbers = value.toArray();
        const Plan::Piece piece{.start = boundedNumberAt(numbers, 0, longestSeconds),
                                .end = boundedNumberAt(numbers, 1, longestSeconds)};
        if (piece.start >= 0 && piece.end > piece.start)
            plan.pieces.append(piece);
    }
    if (json[u"audioTracks"_s].isArray()) {
        plan.audioTracks.emplace();
        for (const QJsonValue &value : json[u"audioTracks"_s].toArray()) {
            if (const int index = value.toInt(-1); index >= 0 && plan.audioTracks->size() < mostTracks)
                plan.audioTracks->append(index);
        }
    }
}

}  // namespace

QJsonObject TranscodePlan::toJson() const
{
    QJsonObject json = plainFieldsOf(*this);
    static const QJsonObject defaults = plainFieldsOf({});
    for (auto each = defaults.begin(); each != defaults.end(); ++each) {
        if (json[each.key()] == each.value())
            json.remove(each.key());
    }
    insertLists(json, *this);
    json.insert(u"version"_s, planVersion);
    json.insert(u"preset"_s, preset.toJson());
    return json;
}

std::optional<TranscodePlan> TranscodePlan::fromJson(const QJsonObject &json)
{
    const int version = json[u"version"_s].toInt();
    if (version < 1 || version > planVersion)
        return {};
    TranscodePlan plan;
    const auto storedPreset = Preset::fromJson(json[u"preset"_s].toObject());
    const QJsonArray sources = json[u"sources"_s].toArray();
    // What goes beyond would be missing without a word.
    const bool isTooMuch = sources.size() > mostSources || json[u"pieces"_s].toArray().size() > Plan::mostPieces;
    if (!storedPreset || sources.isEmpty() || isTooMuch)
        return {};
    plan.preset = *storedPreset;
    for (const QJsonValue &value : sources) {
        // One that is missing would be joined without a word.
        const QString path = boundedPath(value);
        if (path.isEmpty())
            return {};
        plan.sources.append(path);
    }
    plainFields(Reading(json), plan);
    readCrop(plan, json[u"crop"_s].toArray());
    if (json.contains(u"watermark"_s))
        plan.watermark = watermarkFrom(json[u"watermark"_s].toObject());
    readTimesAndTracks(plan, json);
    readSubtitles(plan, json);
    return plan;
}

}  // namespace kestrel
