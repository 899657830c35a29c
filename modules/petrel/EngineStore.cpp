#include "EngineStore.h"

#include "foundation/StandardFolders.h"
#include "tarnwell/Log.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QTemporaryDir>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qint64 secondsBetweenChecks = 6 * 3600;
constexpr qint64 maximumState = 64 * 1024;
const QString programName = u"yt-dlp"_s;

/// What is known of the engines, between starts.
struct EngineState {
    QString current;   ///< null for the bundle's own
    QString previous;  ///< likewise; while the current one is on trial
    bool isOnTrial = false;
    QString suspect;        ///< gave way to the current one; null for none
    bool isBroken = false;  ///< the suspect, altogether
    QStringList ruledOut;
    qint64 checked = 0;  ///< seconds since 1970
    QString bundled;     ///< tells the bundle's own apart from later ones
};

/// The bundle may hold no more than a link.
QString markOf(const QString &engine)
{
    const QFileInfo file(engine);
    return u"%1 %2"_s.arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
}

EngineState readState(const QString &folder, const QString &bundled)
{
    QFile file(folder + "/engine.json"_L1);
    EngineState state;
    state.bundled = markOf(bundled);
    if (file.size() > maximumState || !file.open(QIODevice::ReadOnly))
        return state;
    const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    // A version that is not one would be a path.
    const auto version = [&json](QLatin1StringView key) {
        const QString text = json[key].toString();
        return compareEngineVersions(text, {}) > 0 ? text : QString();
    };
    // What was newer than one bundle's may be older than the next one's, which counts then.
    if (json["bundled"_L1].toString() == state.bundled) {
        state.current = version("current"_L1);
        state.previous = version("previous"_L1);
        state.isOnTrial = json["trial"_L1].toBool();
        state.suspect = version("suspect"_L1);
        state.isBroken = json["broken"_L1].toBool();
        state.checked = qint64(json["checked"_L1].toDouble());
    }
    for (const QJsonValue &ruledOut : json["ruledOut"_L1].toArray())
        state.ruledOut.append(ruledOut.toString());
    return state;
}

bool writeState(const QString &folder, const EngineState &state)
{
    QSaveFile file(folder + "/engine.json"_L1);
    if (!foundation::makePrivateFolder(folder) || !file.open(QIODevice::WriteOnly))
        return false;
    file.write(QJsonDocument(QJsonObject{{u"current"_s, state.current},
                                         {u"previous"_s, state.previous},
                                         {u"trial"_s, state.isOnTrial},
                                         {u"suspect"_s, state.suspect},
                                         {u"broken"_s, state.isBroken},
                                         {u"checked"_s, state.checked},
                                         {u"bundled"_s, state.bundled},
                                         {u"ruledOut"_s, QJsonArray::fromStringList(state.ruledOut)}})
                   .toJson());
    return file.commit();
}

}  // namespace

EngineStore::EngineStore(QString folder, QString bundled) : m_folder(std::move(folder)), m_bundled(std::move(bundled))
{
}

QString EngineStore::pathOf(const QString &version) const
{
    return version.isEmpty() ? m_bundled : m_folder + u'/' + version + u'/' + programName;
}

QString EngineStore::engine() const
{
    const QString path = pathOf(version());
    return QFileInfo(path).isExecutable() ? path : m_bundled;
}

QString EngineStore::version() const
{
    return readState(m_folder, m_bundled).current;
}

bool EngineStore::isOnTrial() const
{
    return readState(m_folder, m_bundled).isOnTrial;
}

foundation::Result<QString> EngineStore::install(const EngineRelease &release, const QByteArray &bytes) const
{
    if (const QString obstacle = release.obstacle(bytes); !obstacle.isNull())
        return foundation::Failure{obstacle};
    foundation::makePrivateFolder(m_folder);
    QTemporaryDir coming(m_folder + "/coming-XXXXXX"_L1);
    QSaveFile file(coming.filePath(programName));
    const bool isWritten = coming.isValid() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!isWritten || !file.commit())
        return foundation::Failure{u"it could not be written: %1"_s.arg(file.errorString())};
    const QString path = pathOf(release.version);
    const QString folder = QFileInfo(path).absolutePath();
    QDir(folder).removeRecursively();  // of an earlier attempt
    if (std::rename(QFile::encodeName(coming.path()).constData(), QFile::encodeName(folder).constData()) != 0)
        return foundation::Failure{u"it could not be put into its place"_s};
    coming.setAutoRemove(false);
    return path;
}

void EngineStore::adopt(const QString &version) const
{
    EngineState state = readState(m_folder, m_bundled);
    // One that never worked is nothing to go back to.
    if (!state.isOnTrial)
        state.previous = state.current;
    state.current = version;
    state.isOnTrial = true;
    state.suspect.clear();
    writeState(m_folder, state);
}

void EngineStore::ruleOut(const QString &version) const
{
    EngineState state = readState(m_folder, m_bundled);
    if (!state.ruledOut.contains(version))
        state.ruledOut.append(version);
    if (writeState(m_folder, state))
        QDir(QFileInfo(pathOf(version)).absolutePath()).removeRecursively();
}

bool EngineStore::isRuledOut(const QString &version) const
{
    return readState(m_folder, m_bundled).ruledOut.contains(version);
}

void EngineStore::prove(const QString &engine, const QString &insteadOf) const
{
    EngineState state = readState(m_folder, m_bundled);
    if (engine != this->engine())
        return;
    if (state.isOnTrial) {
        state.isOnTrial = false;
        state.previous.clear();
        writeState(m_folder, state);
        tarnwell::DNFootLog(u"The new download engine has worked: %1"_s.arg(state.current));
    } else if (!state.suspect.isEmpty() && insteadOf == pathOf(state.suspect)) {
        const QString suspect = std::exchange(state.suspect, {});
        writeState(m_folder, state);
        tarnwell::DNFootLog(u"The new download engine failed and is not used any more: %1"_s.arg(suspect));
        ruleOut(suspect);
    }
}

std::optional<QString> EngineStore::fallBack(const QString &engine, Damage damage) const
{
    if (const QString other = this->engine(); engine != other)
        return other;
    EngineState state = readState(m_folder, m_bundled);
    const bool isBroken = damage == Damage::Broken;
    // The one that took over fails too: the suspect is not to blame, and is on trial again.
    if (!state.suspect.isEmpty() && (isBroken || !state.isBroken)) {
        state.previous = std::exchange(state.current, std::exchange(state.suspect, {}));
        state.isOnTrial = true;
        writeState(m_folder, state);
        return std::nullopt;
    }
    if (!state.isOnTrial && (!isBroken || state.current.isEmpty()))
        return std::nullopt;
    state.suspect = std::exchange(state.current, std::exchange(state.previous, {}));
    state.isBroken = isBroken;
    state.isOnTrial = false;
    writeState(m_folder, state);
    return this->engine();
}

void EngineStore::sweep() const
{
    const EngineState state = readState(m_folder, m_bundled);
    const QStringList used{state.current, state.previous, state.suspect};
    for (const QFileInfo &other : QDir(m_folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const bool isComing = other.lastModified().secsTo(QDateTime::currentDateTime()) < secondsBetweenChecks;
        if (!used.contains(other.fileName()) && !isComing)
            QDir(other.absoluteFilePath()).removeRecursively();
    }
}

bool EngineStore::takeTurn(const QDateTime &now) const
{
    EngineState state = readState(m_folder, m_bundled);
    const qint64 seconds = now.toSecsSinceEpoch();
    // A clock that was set back is no reason to wait for years.
    if (state.checked > 0 && seconds >= state.checked && seconds - state.checked < secondsBetweenChecks)
        return false;
    state.checked = seconds;
    return writeState(m_folder, state);
}

}  // namespace kestrel
