#include "SubtitleFile.h"

#include "Containers.h"

#include "foundation/FileNames.h"
#include "foundation/LanguageTags.h"
#include "foundation/TextEncoding.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Refused = foundation::Failure<tarnwell::Sentence>;
using tarnwell::operator""_key;

constexpr SubtitleKind kinds[] = {{"srt", "subrip"},
                                  {"ass", "ass"},
                                  {"ssa", "ass"},
                                  {"vtt", "webvtt"},
                                  {"sub", "microdvd"},
                                  {"idx", "dvd_subtitle", true},
                                  {"sup", "hdmv_pgs_subtitle", true}};

constexpr qint64 largestText = 32 * 1024 * 1024;

/// The index that pictures of a disc are read by; null where they are none.
QString indexBeside(const QString &path)
{
    if (!path.endsWith(".sub"_L1, Qt::CaseInsensitive))
        return {};
    for (const auto ending : {"idx"_L1, "IDX"_L1}) {
        const QString index = path.chopped(3) + ending;
        if (foundation::fileFacts(index).kind == foundation::FileKind::File)
            return index;
    }
    return {};
}

/// Without a word of its own it would be taken for one that is made for cinemas.
QByteArray withFrameRate(QByteArray text, double frameRate)
{
    static const QRegularExpression beginning(u"^\\{\\d+\\}\\{\\d*\\}([\\d.]+\\s*$)?"_s);
    if (text.startsWith("\xef\xbb\xbf"))
        text.remove(0, 3);
    const auto match = beginning.match(QString::fromUtf8(text.left(text.indexOf('\n'))));
    if (frameRate > 0 && match.hasMatch() && match.captured(1).isEmpty())
        text.prepend("{1}{1}" + QByteArray::number(frameRate, 'f', 3) + '\n');
    return text;
}

/// Nothing where it is none; also endings of films look like some.
QString languageIn(const QString &word)
{
    const auto isEnding = [&](const Container &each) { return word == QLatin1StringView(each.extension); };
    return std::ranges::any_of(containers(), isEnding) ? QString() : foundation::knownLanguageTag(word);
}

}  // namespace

std::span<const SubtitleKind> subtitleKinds()
{
    return kinds;
}

const SubtitleKind &subtitleKindOf(const QString &path)
{
    const auto found = std::ranges::find_if(kinds, [&](const SubtitleKind &kind) {
        return path.endsWith(u'.' + QLatin1StringView(kind.ending), Qt::CaseInsensitive);
    });
    return found == std::end(kinds) ? kinds[0] : *found;
}

Plan::ExternalSubtitle subtitleFile(const QString &path, Plan::SubtitleUse use)
{
    const QString index = indexBeside(path);
    Plan::ExternalSubtitle file{.path = index.isNull() ? path : index, .language = {}, .use = use};
    // From the end, as far as the name tells anything: "film.de.sdh.srt".
    QStringList words = file.path.section(u'/', -1).split(u'.');
    for (words.removeLast(); words.size() > 1; words.removeLast()) {
        const QString word = words.last().toLower();
        if (word == "forced"_L1)
            file.isForced = true;
        else if (word == "sdh"_L1 || word == "cc"_L1 || word == "default"_L1)
            continue;
        else if (!file.language.isEmpty() || (file.language = languageIn(word)).isEmpty())
            break;
    }
    return file;
}

foundation::Result<QString, tarnwell::Sentence> readableSubtitles(const QString &path, const QString &folder,
                                                                  double frameRate)
{
    const QString name = path.section(u'/', -1);
    const foundation::FileFacts facts = foundation::fileFacts(path);
    if (facts.kind != foundation::FileKind::File || !facts.isReadable)
        return Refused{{"The subtitle file %1 cannot be read."_key, {name}}};
    const SubtitleKind &kind = subtitleKindOf(path);
    if (kind.isBitmap)
        return path;
    if (facts.bytes > largestText)
        return Refused{{"The subtitle file %1 is too large for a text."_key, {name}}};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Refused{{"The subtitle file %1 cannot be read."_key, {name}}};
    const QByteArray bytes = file.read(largestText);
    QByteArray text = foundation::utf8Text(bytes);
    if (QLatin1StringView(kind.codec) == "microdvd"_L1)
        text = withFrameRate(text, frameRate);
    if (text == bytes)
        return path;
    QFile copy(folder + u'/' + name);
    if (!QDir().mkpath(folder) || !copy.open(QIODevice::WriteOnly) || copy.write(text) != text.size() || !copy.flush())
        return Refused{"The folder for temporary files cannot be written."_key};
    return copy.fileName();
}

}  // namespace kestrel
