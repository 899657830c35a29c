#include "AnswerStore.h"

#include "DownloadPlan.h"
#include "EngineCommand.h"
#include "foundation/StandardFolders.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QString formKey = u"kestrel_form"_s;

bool isFresh(const QFileInfo &file)
{
    const qint64 age = file.lastModified().secsTo(QDateTime::currentDateTime());
    return age >= 0 && age < std::chrono::seconds(AnswerStore::freshness).count();
}

}  // namespace

QString AnswerStore::pathOf(const DownloadPlan &plan) const
{
    const QByteArray key = plan.address.toUtf8() + '\n' + QByteArray::number(plan.item) + '\n' + plan.proxy.toUtf8();
    const QByteArray name = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex();
    return m_folder + u'/' + QString::fromLatin1(name) + ".json"_L1;
}

QString AnswerStore::fresh(const DownloadPlan &plan) const
{
    const QFileInfo file(pathOf(plan));
    return file.isFile() && isFresh(file) ? file.absoluteFilePath() : QString();
}

std::optional<EngineAnswer> AnswerStore::answer(const DownloadPlan &plan, Age age) const
{
    QFile file(age == Age::Fresh ? fresh(plan) : pathOf(plan));
    if (file.fileName().isEmpty() || file.size() > maximumAnswerBytes || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    auto answer = parseEngineAnswer(file.readAll(), plan.address);
    if (!answer || !answer->entries.isEmpty())
        return std::nullopt;
    if (answer->film[formKey].toString() != QString::fromLatin1(plan.identity()))
        answer->forgetChoice();
    return *std::move(answer);
}

void AnswerStore::keep(const DownloadPlan &plan, const EngineAnswer &answer) const
{
    keepFilm(plan, answer.film);
    for (const EngineAnswer::Entry &entry : answer.entries) {
        DownloadPlan one = plan;
        one.item = entry.item;
        keepFilm(one, entry.film);
    }
}

void AnswerStore::keepFilm(const DownloadPlan &plan, QJsonObject film) const
{
    QSaveFile file(pathOf(plan));
    if (film.isEmpty() || !foundation::makePrivateFolder(m_folder) || !file.open(QIODevice::WriteOnly))
        return;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);  // addresses may carry the right to fetch
    film[formKey] = QString::fromLatin1(plan.identity());
    file.write(QJsonDocument(film).toJson(QJsonDocument::Compact));
    file.commit();
}

void AnswerStore::forget(const DownloadPlan &plan) const
{
    QFile::remove(pathOf(plan));
}

void AnswerStore::sweep() const
{
    for (const QFileInfo &file : QDir(m_folder).entryInfoList({u"*.json"_s}, QDir::Files)) {
        if (!isFresh(file))
            QFile::remove(file.absoluteFilePath());
    }
}

}  // namespace kestrel
