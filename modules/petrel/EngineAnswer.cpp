#include "EngineAnswer.h"

#include "DownloadPlan.h"
#include "EngineCommand.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

using Promise = EngineAnswer::Promise;

constexpr qsizetype maximumForms = 1000;
constexpr qsizetype maximumEntries = 10'000;
constexpr qsizetype maximumTitle = 500;
constexpr double longestFilm = 1000.0 * 3600;

/// Without what turns the direction of the text around, so that a file's ending cannot be made to look like another.
QString titleOf(const QJsonObject &json)
{
    QString title = json["title"_L1].toString().left(maximumTitle);
    title.removeIf([](QChar letter) {
        return (letter >= u'\u202A' && letter <= u'\u202E') || (letter >= u'\u2066' && letter <= u'\u2069');
    });
    return title.simplified();
}

/// Players in a page are numbered also where there is only one.
QString titleOfOnlyFilm(const QJsonObject &json)
{
    QString title = titleOf(json);
    const bool isNumbered = json["extractor"_L1] == "html5"_L1 && json["id"_L1].toString().endsWith("-1"_L1);
    if (isNumbered && title.endsWith(" (1)"_L1))
        title.chop(4);
    return title;
}

double numberOf(const QJsonValue &value, double maximum)
{
    const double number = value.toDouble();
    return number > 0 && number <= maximum ? number : 0;
}

double secondsOf(const QJsonObject &json)
{
    return numberOf(json["duration"_L1], longestFilm);
}

qint64 bytesOfForm(const QJsonObject &form)
{
    const double exact = numberOf(form["filesize"_L1], 1e15);
    return qint64(exact > 0 ? exact : numberOf(form["filesize_approx"_L1], 1e15));
}

QString pictureOf(const QJsonObject &json)
{
    QString picture = json["thumbnail"_L1].toString();
    if (const QJsonArray pictures = json["thumbnails"_L1].toArray(); picture.isEmpty() && !pictures.isEmpty())
        picture = pictures.first().toObject()["url"_L1].toString();
    return downloadAddress(picture);
}

/// A codec that is not told may be anything; "none" is told.
Promise promiseOf(const QJsonValue &codec)
{
    if (!codec.isString())
        return Promise::Unknown;
    return codec.toString() == "none"_L1 ? Promise::No : Promise::Yes;
}

EngineAnswer::Form formOf(const QJsonObject &json)
{
    const int width = int(numberOf(json["width"_L1], 100'000)), height = int(numberOf(json["height"_L1], 100'000));
    return {.extension = json["ext"_L1].toString().left(10),
            .height = width > 0 && height > 0 ? std::min(width, height) : height,
            .hasVideo = promiseOf(json["vcodec"_L1]) != Promise::No,
            .hasAudio = promiseOf(json["acodec"_L1]) != Promise::No,
            .tellsAudio = promiseOf(json["acodec"_L1]) == Promise::Yes,
            .bytes = bytesOfForm(json)};
}

/// What would be downloaded: one form or two that are merged.
void readChoice(const QJsonObject &json, EngineAnswer &answer)
{
    QJsonArray chosen = json["requested_formats"_L1].toArray();
    if (chosen.isEmpty())
        chosen.append(json);
    answer.video = answer.sound = Promise::No;
    const auto add = [](Promise &promise, Promise other) {
        if (promise == Promise::No || other == Promise::Yes)
            promise = other == Promise::No ? promise : other;
    };
    for (const QJsonValue &value : std::as_const(chosen)) {
        const QJsonObject form = value.toObject();
        add(answer.video, promiseOf(form["vcodec"_L1]));
        add(answer.sound, promiseOf(form["acodec"_L1]));
        answer.bytes += bytesOfForm(form);
    }
}

EngineAnswer::Entry entryOf(const QJsonObject &json, int item, const QString &page)
{
    EngineAnswer::Entry entry{.item = item,
                              .address = page,
                              .title = titleOf(json),
                              .seconds = secondsOf(json),
                              .picture = pictureOf(json),
                              .isOfPage = true};
    const bool isReference = json["_type"_L1].toString().startsWith("url"_L1);
    if (const QString own = downloadAddress(json["url"_L1].toString()); isReference && !own.isNull()) {
        entry.address = own;
        entry.isOfPage = false;
    }
    if (entry.isOfPage && json["formats"_L1].isArray())
        entry.film = json;
    if (entry.title.isEmpty())
        entry.title = entry.isOfPage ? u"%1"_s.arg(item) : entry.address;
    return entry;
}

/// What it tells of its requests stands before or after, as it was buffered. A header begins no line with a brace.
QByteArray answerLine(const QByteArray &output)
{
    const qsizetype start = output.startsWith('{') ? 0 : output.indexOf("\n{") + 1;
    const qsizetype end = output.indexOf("\nsend: ", start);
    return output.mid(start, end < 0 ? -1 : end - start);
}

void readFilm(const QJsonObject &json, EngineAnswer &answer)
{
    answer.title = titleOfOnlyFilm(json);
    answer.seconds = secondsOf(json);
    answer.picture = pictureOf(json);
    for (const QJsonValue &form : json["formats"_L1].toArray()) {
        if (answer.forms.size() < maximumForms && form.isObject())
            answer.forms.append(formOf(form.toObject()));
    }
    answer.subtitles = json["subtitles"_L1].toObject().keys().mid(0, maximumForms);
    answer.subtitles.removeAll(u"live_chat"_s);
    readChoice(json, answer);
    const QString live = json["live_status"_L1].toString();
    answer.isLive = live == "is_live"_L1 || json["is_live"_L1].toBool();
    answer.isToCome = live == "is_upcoming"_L1;
    // Set where any form is protected; the engine has already dropped those.
    answer.isProtected = json["_has_drm"_L1].toBool() && !std::ranges::any_of(answer.forms, [](const auto &form) {
                             return form.hasVideo || form.hasAudio;
                         });
    answer.ageLimit = int(numberOf(json["age_limit"_L1], 150));
    answer.hasChapters = !json["chapters"_L1].toArray().isEmpty();
    answer.film = json;
}

}  // namespace

void EngineAnswer::forgetChoice()
{
    bytes = 0;
    video = Promise::Unknown;
    sound = std::ranges::any_of(forms, &Form::tellsAudio) ? Promise::Yes : Promise::Unknown;
}

QList<std::pair<int, qint64>> EngineAnswer::resolutions() const
{
    qint64 soundBytes = 0;
    for (const Form &form : forms) {
        if (!form.hasVideo)
            soundBytes = std::max(soundBytes, form.bytes);
    }
    std::map<int, qint64, std::greater<>> sizes;
    for (const Form &form : forms) {
        if (!form.hasVideo || form.height == 0)
            continue;
        qint64 &size = sizes[form.height];
        if (form.bytes > 0)
            size = std::max(size, form.bytes + (form.hasAudio ? 0 : soundBytes));
    }
    return {sizes.begin(), sizes.end()};
}

foundation::Result<EngineAnswer, Sentence> parseEngineAnswer(const QByteArray &output, const QString &address)
{
    using Kind = EngineFailure::Kind;
    if (output.size() > maximumAnswerBytes)
        return foundation::Failure{engineFailureOf(Kind::TooLong).sentence};
    const QJsonObject root = QJsonDocument::fromJson(answerLine(output)).object();
    if (root.isEmpty())
        return foundation::Failure{
            Sentence("What the site answered could not be understood. Update the download engine and try again."_key)};
    EngineAnswer answer;
    const bool isList = root["_type"_L1].toString().endsWith("playlist"_L1) || root.contains("entries"_L1);
    if (!isList) {
        readFilm(root, answer);
    } else {
        const QJsonArray entries = root["entries"_L1].toArray();
        if (entries.size() == 1 && !entries.first().toObject()["_type"_L1].toString().startsWith("url"_L1)) {
            readFilm(entries.first().toObject(), answer);
        } else {
            answer.title = titleOf(root);
            for (qsizetype index = 0; index < std::min(entries.size(), maximumEntries); ++index) {
                if (entries.at(index).isObject())
                    answer.entries.append(entryOf(entries.at(index).toObject(), int(index) + 1, address));
            }
            if (answer.entries.isEmpty())
                return foundation::Failure{engineFailureOf(Kind::NoFilm).sentence};
        }
    }
    if (answer.title.isEmpty())
        answer.title = address;
    return answer;
}

}  // namespace kestrel
