#include "ChapterFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

QByteArray metadataValue(const QString &text)
{
    QString escaped;
    for (const QChar letter : text) {
        if (u"=;#\\\n"_s.contains(letter))
            escaped += u'\\';
        escaped += letter;
    }
    return escaped.toUtf8();
}

}  // namespace

QList<MediaChapter> resultChapters(const TranscodePlan &plan, const QList<MediaInformation> &sources,
                                   const QList<SourcePiece> &pieces)
{
    constexpr double shortest = 0.001;
    const bool isPerSource = plan.chapterPerSource && sources.size() > 1;
    QList<MediaChapter> chapters;
    double offset = 0;
    for (const SourcePiece &piece : pieces) {
        if (!piece.seconds)
            break;  // what follows has no place that is known
        const double start = piece.start.value_or(0);
        const auto append = [&](double from, double to, const QString &title) {
            from = std::max(from, start) - start;
            to = std::min(to - start, *piece.seconds);
            if (to - from >= shortest)
                chapters.append({.start = (offset + from) / plan.speedFactor,
                                 .end = (offset + to) / plan.speedFactor,
                                 .title = title});
        };
        if (isPerSource) {
            const QString name = plan.sources.at(piece.source).section(u'/', -1);
            const qsizetype dot = name.lastIndexOf(u'.');
            append(start, start + *piece.seconds, dot > 0 ? name.left(dot) : name);
        } else {
            for (const MediaChapter &chapter : sources.at(piece.source).chapters)
                append(chapter.start, chapter.end, chapter.title);
        }
        offset += *piece.seconds;
    }
    return chapters;
}

QByteArray chapterFile(const QList<MediaChapter> &chapters)
{
    QByteArray text = ";FFMETADATA1\n";
    int number = 0;
    for (const MediaChapter &chapter : chapters) {
        text += "[CHAPTER]\nTIMEBASE=1/1000\nSTART=" + QByteArray::number(qint64(chapter.start * 1000 + 0.5)) +
                "\nEND=" + QByteArray::number(qint64(chapter.end * 1000 + 0.5)) + '\n';
        const Sentence otherName("Chapter %1"_key, {QString::number(++number)});
        text += "title=" + metadataValue(chapter.title.isEmpty() ? otherName.localized() : chapter.title) + '\n';
    }
    return text;
}

}  // namespace kestrel
