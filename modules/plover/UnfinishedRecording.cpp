#include "UnfinishedRecording.h"

#include "foundation/StandardFolders.h"
#include "jobs/PartOwner.h"
#include "tarnwell/ProductInformation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString noteFolder()
{
    return foundation::dataDirectory() + u'/' + tarnwell::GetApplicationName() + u"/recordings"_s;
}

QString newNote()
{
    static std::atomic<int> count = 0;
    return noteFolder() + u"/%1-%2.json"_s.arg(PartOwner::self().tag()).arg(++count);
}

bool isOrphan(const QString &note)
{
    const QString name = QFileInfo(note).completeBaseName();
    const auto owner = PartOwner::fromTag(name.left(name.lastIndexOf(u'-')));
    return owner && owner->hasEnded();
}

}  // namespace

bool UnfinishedRecording::write()
{
    if (note.isEmpty())
        note = newNote();
    foundation::makePrivateFolder(noteFolder());
    QSaveFile file(note);
    const QJsonObject json{
        {u"plan"_s, plan.toJson()}, {u"folder"_s, folder}, {u"stretches"_s, QJsonArray::fromStringList(stretches)}};
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(json).toJson(QJsonDocument::Compact)) > 0 &&
           file.commit();
}

void UnfinishedRecording::forget()
{
    if (!note.isEmpty())
        QFile::remove(note);
    note.clear();
}

std::optional<UnfinishedRecording> UnfinishedRecording::read(const QString &note)
{
    constexpr qint64 maximumBytes = 1024 * 1024;
    QFile file(note);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject json = QJsonDocument::fromJson(file.read(maximumBytes)).object();
    const auto plan = RecordPlan::fromJson(json["plan"_L1].toObject());
    if (!plan)
        return std::nullopt;
    UnfinishedRecording recording{.plan = *plan, .folder = json["folder"_L1].toString(), .note = note};
    const QJsonArray stretches = json["stretches"_L1].toArray();
    for (const QJsonValue &stretch : stretches) {
        if (const QString path = stretch.toString(); QFileInfo(path).isFile() && QFileInfo(path).size() > 0)
            recording.stretches.append(path);
    }
    return recording;
}

QList<UnfinishedRecording> UnfinishedRecording::findAll()
{
    QList<UnfinishedRecording> found;
    const QDir folder(noteFolder());
    for (const QString &name : folder.entryList({u"*.json"_s}, QDir::Files, QDir::Name)) {
        const QString note = folder.filePath(name);
        if (!isOrphan(note))
            continue;
        auto recording = read(note);
        if (recording && !recording->stretches.isEmpty())
            found.append(*recording);
        else if (!recording || QFileInfo(recording->folder).isDir())  // a disk that is away may come back
            QFile::remove(note);
    }
    return found;
}

}  // namespace kestrel
