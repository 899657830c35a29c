#include "JobReporter.h"

#include "jobs/JobText.h"
#include "jobs/RemainingTime.h"
#include "tarnwell/Localization.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <cmath>
#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

using tarnwell::AppLocalizedString;
using tarnwell::Sentence;

void printObject(const QJsonObject &object)
{
    printLine(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

double rounded(double value, double steps)
{
    return std::round(value * steps) / steps;
}

QJsonArray english(const QList<Sentence> &sentences)
{
    QJsonArray texts;
    for (const Sentence &sentence : sentences)
        texts.append(sentence.english());
    return texts;
}

/// Why a job is not simply done: its sentence comes first.
QList<Sentence> problemsOf(const JobOutcome &outcome)
{
    QList<Sentence> problems = outcome.problems;
    if (!outcome.sentence.isEmpty() && !problems.contains(outcome.sentence))
        problems.prepend(outcome.sentence);
    return problems;
}

int terminalWidth()
{
    winsize size = {};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 20 ? size.ws_col : 80;
}

QString progressText(const JobProgress &progress)
{
    QString text =
        progress.fraction ? u"%1 %"_s.arg(std::floor(*progress.fraction * 100), 3) : durationText(progress.seconds);
    if (!progress.stage.isEmpty())
        text += u"  "_s + progress.stage.localized();
    if (progress.bytesPerSecond > 0)
        text += u"  "_s + QLocale().formattedDataSize(qint64(progress.bytesPerSecond), 1, QLocale::DataSizeSIFormat) +
                "/s"_L1;
    if (progress.remainingSeconds)
        text += u"  "_s + remainingTimeText(*progress.remainingSeconds);
    return text;
}

}  // namespace

QString shown(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control)
            c = QChar::ReplacementCharacter;
    }
    return text;
}

JobReporter::JobReporter(const Surroundings &surroundings, qsizetype jobs)
    : m_surroundings(surroundings),
      m_jobs(jobs),
      m_hasTerminal(isatty(STDERR_FILENO))
{
}

void JobReporter::progress(qsizetype number, const JobRecord &record)
{
    const JobProgress &progress = record.progress;
    if (m_surroundings.json) {
        QJsonObject object{
            {u"event"_s, u"progress"_s}, {u"job"_s, number}, {u"seconds"_s, rounded(progress.seconds, 10)}};
        if (progress.fraction)
            object[u"fraction"_s] = rounded(*progress.fraction, 1000);
        if (progress.bytes > 0)
            object[u"bytes"_s] = progress.bytes;
        if (progress.bytesPerSecond > 0)
            object[u"bytes_per_second"_s] = rounded(progress.bytesPerSecond, 1);
        if (!record.blocked.isEmpty())
            object[u"waiting"_s] = record.blocked.english();
        printObject(object);
    } else if (!m_hasTerminal) {
        // Progress is for the eye; why nothing happens is for everybody, once.
        if (const QString blocked = record.blocked.localized(); !blocked.isEmpty() && blocked != m_toldBlocked) {
            std::fprintf(stderr, "%s\n", qUtf8Printable(shown(record.title + u": "_s + blocked)));
            m_toldBlocked = blocked;
        }
    } else {
        const QString count = m_jobs > 1 ? u"%1/%2  "_s.arg(number).arg(m_jobs) : QString();
        const QString state = record.blocked.isEmpty() ? progressText(progress) : record.blocked.localized();
        showLine(shown(count + record.title + u"  "_s + state));
    }
}

void JobReporter::result(qsizetype number, const JobRecord &record)
{
    const JobOutcome &outcome = record.outcome;
    if (record.state == JobState::DoneWithProblems && m_status == AllDone)
        m_status = SomeWithProblems;
    else if (record.state != JobState::Done && record.state != JobState::DoneWithProblems)
        m_status = SomeFailed;

    if (m_surroundings.json) {
        // Something that never ran has failed to those who asked for it.
        const JobState state = record.state == JobState::Unusable ? JobState::Failed : record.state;
        QJsonObject object = outcome.facts;
        object[u"event"_s] = u"result"_s;
        object[u"job"_s] = number;
        object[u"source"_s] = record.source;
        object[u"state"_s] = jobStateName(state);
        object[u"outputs"_s] = QJsonArray::fromStringList(outcome.outputs);
        object[u"problems"_s] = english(problemsOf(outcome));
        object[u"left_out"_s] = english(outcome.leftOut);
        if (!record.note.isEmpty())
            object[u"note"_s] = record.note.english();
        printObject(object);
        return;
    }
    clearLine();
    const bool isGood = record.state == JobState::Done || record.state == JobState::DoneWithProblems;
    QString line = record.title + u": "_s + jobStateText(record);
    if (isGood)
        line += u" → "_s + outcome.outputs.join(u", "_s);
    printLine(shown(line).toUtf8());
    for (const Sentence &problem : problemsOf(outcome)) {
        if (problem.localized() != jobStateText(record))  // which the line has said
            printLine(shown(u"  "_s + problem.localized()).toUtf8());
    }
    if (!record.note.isEmpty())
        printLine(shown(u"  "_s + record.note.localized()).toUtf8());
    for (const Sentence &leftOut : outcome.leftOut)
        printLine(shown(u"  "_s + AppLocalizedString(u"Left out: %1"_s).arg(leftOut.localized())).toUtf8());
    if (!isGood && !outcome.details.isEmpty()) {
        for (const QString &words : outcome.details.split(u'\n'))
            std::fprintf(stderr, "%s\n", qUtf8Printable(shown(words)));
    }
}

void JobReporter::showLine(const QString &text)
{
    std::fprintf(stderr, "\r\033[K%s", qUtf8Printable(text.left(terminalWidth() - 1)));
    std::fflush(stderr);
    m_isLineShown = true;
}

void JobReporter::clearLine()
{
    if (m_isLineShown)
        std::fputs("\r\033[K", stderr);
    m_isLineShown = false;
}

}  // namespace kestrel::cli
