#include "MainTitleJob.h"

#include "jobs/OutputFile.h"

#include <QJsonArray>
#include <QSaveFile>
#include <QXmlStreamWriter>

#include <iterator>
#include <map>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

QString timeOfChapter(double seconds)
{
    const qint64 milliseconds = qint64(seconds * 1000 + 0.5);
    return u"%1:%2:%3.%4"_s.arg(milliseconds / 3'600'000)
        .arg(milliseconds / 60'000 % 60, 2, 10, QLatin1Char('0'))
        .arg(milliseconds / 1000 % 60, 2, 10, QLatin1Char('0'))
        .arg(milliseconds % 1000, 3, 10, QLatin1Char('0'));
}

/// As the author program calls it; null for none of its own.
QString contentOf(const disc::DiscAudio &track)
{
    return track.purpose == "visuallyImpaired"_L1      ? u"impaired"_s
           : track.purpose == "commentary"_L1          ? u"comments1"_s
           : track.purpose == "alternateCommentary"_L1 ? u"comments2"_s
           : track.purpose == "normal"_L1              ? u"normal"_s
                                                       : QString();
}

/// And its sound.
QString formatOf(const disc::DiscAudio &track)
{
    return track.codec == "lpcm"_L1 ? u"pcm"_s : track.codec;
}

/// Chapters begin cells and pictures that stand still end them; the times are the film's, in which nothing stands.
void writeCells(const DiscPlan &plan, const disc::DiscTitle &title, QXmlStreamWriter &xml)
{
    struct Joint {
        bool isChapter = false;
        int pause = 0;  ///< of the cell that ends here
    };
    std::map<qint64, Joint> joints;
    const double begin = title.chapters.value(plan.firstChapter - 1), end = begin + chosenSeconds(plan, title);
    const auto filmTime = [&](double time) {
        double film = time - begin;
        for (const disc::DiscStill &still : title.stills) {
            if (still.start >= begin && still.start + still.seconds <= time + 0.0005)
                film -= still.seconds;
        }
        return qint64(film * 1000 + 0.5);
    };
    joints[0].isChapter = true;
    for (const double start : chosenChapters(plan, title))
        joints[filmTime(begin + start)].isChapter = true;
    for (const disc::DiscStill &still : title.stills) {
        if (still.start >= begin && still.start < end)
            joints[filmTime(still.start)].pause = still.seconds;
    }
    joints[filmTime(end)];
    for (auto joint = joints.begin(), next = std::next(joint); next != joints.end(); joint = next++) {
        xml.writeEmptyElement(u"cell"_s);
        xml.writeAttribute(u"start"_s, timeOfChapter(double(joint->first) / 1000));
        if (std::next(next) != joints.end())
            xml.writeAttribute(u"end"_s, timeOfChapter(double(next->first) / 1000));
        if (joint->second.isChapter)
            xml.writeAttribute(u"chapter"_s, u"1"_s);
        if (next->second.pause > 0)
            xml.writeAttribute(u"pause"_s, QString::number(next->second.pause));
    }
}

bool writeText(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

}  // namespace

QByteArray paletteText(const disc::DiscTitle &title)
{
    QByteArray text;
    for (const quint32 color : title.subtitles.value(0).palette)
        text += QByteArray::number(color, 16).rightJustified(6, '0') + '\n';
    return text;
}

QByteArray authorFile(const DiscPlan &plan, const disc::DiscTitle &title, const QString &paletteFile)
{
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(u"dvdauthor"_s);
    xml.writeAttribute(u"format"_s, title.standard.toLower());
    xml.writeEmptyElement(u"vmgm"_s);
    xml.writeStartElement(u"titleset"_s);
    xml.writeStartElement(u"titles"_s);
    xml.writeEmptyElement(u"video"_s);
    xml.writeAttribute(u"format"_s, title.standard.toLower());
    xml.writeAttribute(u"aspect"_s, title.aspect);
    if (title.aspect == "16:9"_L1)
        xml.writeAttribute(u"widescreen"_s, u"nopanscan"_s);
    for (const disc::DiscAudio &track : title.audio) {
        xml.writeEmptyElement(u"audio"_s);
        xml.writeAttribute(u"format"_s, formatOf(track));
        if (!track.language.isEmpty())
            xml.writeAttribute(u"lang"_s, track.language);
        if (const QString content = contentOf(track); !content.isEmpty())
            xml.writeAttribute(u"content"_s, content);
    }
    for (qsizetype index = 0; index < title.subtitles.size(); ++index) {
        xml.writeStartElement(u"subpicture"_s);
        if (const QString language = title.subtitles[index].language; !language.isEmpty())
            xml.writeAttribute(u"lang"_s, language);
        const QStringList modes =
            title.aspect == "16:9"_L1 ? QStringList{u"widescreen"_s, u"letterbox"_s} : QStringList{u"normal"_s};
        for (const QString &mode : modes) {
            xml.writeEmptyElement(u"stream"_s);
            xml.writeAttribute(u"id"_s, QString::number(index));
            xml.writeAttribute(u"mode"_s, mode);
        }
        xml.writeEndElement();
    }
    xml.writeStartElement(u"pgc"_s);
    if (!title.subtitles.isEmpty())
        xml.writeAttribute(u"palette"_s, paletteFile);
    xml.writeStartElement(u"vob"_s);
    xml.writeAttribute(u"file"_s, u"-"_s);
    writeCells(plan, title, xml);
    xml.writeEndDocument();
    return text;
}

QString trackNumbers(const disc::DiscTitle &title)
{
    QStringList numbers;
    const auto add = [&](int from, int to) { numbers.append(u"%1=%2"_s.arg(from).arg(to)); };
    for (qsizetype index = 0; index < title.audio.size(); ++index)
        add(title.audio[index].streamId, (title.audio[index].streamId & ~7) + int(index));
    for (qsizetype index = 0; index < title.subtitles.size(); ++index)
        add(title.subtitles[index].streamId, 0x20 + int(index));
    return numbers.join(u',');
}

void MainTitleJob::carryOut()
{
    if (request().tools.author.isEmpty())
        return fail("The program dvdauthor is missing. Please install it."_key);
    lookAtFilm([this](const QList<FilmStream> &streams) {
        const FilmPlan film = planFilm(request().plan, title(), streams, true);
        for (const tarnwell::Sentence &leftOut : film.leftOut)
            addLeftOut(leftOut);
        disc::DiscTitle wanted = title();
        wanted.audio = film.soundFacts;
        wanted.subtitles.clear();
        for (const int place : chosenSubtitles(request().plan, title()))
            wanted.subtitles.append(title().subtitles[place]);
        author(wanted);
    });
}

void MainTitleJob::author(const disc::DiscTitle &wanted)
{
    m_output = std::make_shared<OutputFile>(request().folder, outputName(), QString(), OutputFile::Kind::Folder);
    m_workFolder = std::make_unique<OutputFile>(request().folder, outputName(), QString(), OutputFile::Kind::Folder);
    if (!m_output->isValid() || !m_workFolder->isValid())
        return fail(m_output->isValid() ? m_workFolder->reason() : m_output->reason());
    const QString plan = m_workFolder->partPath() + u"/disc.xml"_s,
                  palette = m_workFolder->partPath() + u"/colors.rgb"_s;
    if (!writeText(plan, authorFile(request().plan, wanted, palette)) || !writeText(palette, paletteText(wanted)))
        return fail("The output could not be written."_key);
    tellStage({});
    ToolCommand command{.program = request().tools.author,
                        .arguments = {u"-o"_s, m_output->partPath(), u"-x"_s, plan},
                        .workingFolder = m_workFolder->partPath(),
                        .feeder = titleReader({u"--navigation"_s, u"--tracks"_s, trackNumbers(wanted)})};
    runDiscTool(command, 0.95, [this, wanted](const ToolEnding &ending) {
        if (!isGoodStep(ending))
            return;
        const qint64 lost =
            lines().result["lostSectors"_L1].toInteger() + lines().result["emptySectors"_L1].toInteger();
        setFact(u"faults"_s, lost);
        if (lost > 0)
            addProblem({"%1 sectors of the film could not be read."_key, {QString::number(lost)}});
        disc::DiscContents disc;
        disc.titles = {wanted};
        disc.titles[0].number = 1;
        disc.titles[0].isMain = true;
        disc.titles[0].seconds = chosenSeconds(request().plan, title());
        disc.titles[0].chapters = chosenChapters(request().plan, title());
        // What never came the author program leaves out.
        const QJsonArray streams = lines().result["streams"_L1].toArray();
        disc.titles[0].subtitles.removeIf(
            [&](const disc::DiscSubtitle &track) { return !streams.contains(track.streamId); });
        for (const tarnwell::Sentence &leftOut : lackingSubtitles(request().plan, title(), streams))
            addLeftOut(leftOut);
        checkCopy(m_output->partPath(), disc);
    });
}

void MainTitleJob::copyIsGood()
{
    place(std::exchange(m_output, nullptr));
}

}  // namespace kestrel
