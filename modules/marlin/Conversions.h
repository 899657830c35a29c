#pragma once

#include "jobs/JobRecord.h"
#include "media/MediaProber.h"
#include "media/OwnPresets.h"
#include "media/TranscodeRecipe.h"

#include <QObject>
#include <QSet>

#include <deque>

namespace kestrel {

class CodecQuery;
class JKestrelSettingDispatcher;
class JobQueue;

/// The conversions of the queue: adds files, looks at them, and changes what is to become of them. What is chosen while
/// nothing is selected is the draft: for all that are still to be converted or to be added. The draft's switches are
/// the settings' (read and written through the dispatcher); its other options are there again at the next start, but
/// for those that change the film itself. Main thread.
class Conversions : public QObject {
    Q_OBJECT
public:
    using Change = std::function<void(TranscodePlan &)>;

    /// Queue and defaults outlive the object.
    Conversions(JobQueue &queue, std::shared_ptr<JKestrelSettingDispatcher> settings,
                foundation::UserDefaults &defaults, QObject *parent = nullptr);
    /// Interrupts what runs.
    ~Conversions() override;

    JobQueue &queue() const { return m_queue; }
    JKestrelSettingDispatcher &settings() const { return *m_settings; }
    OwnPresets &ownPresets() { return *m_ownPresets; }
    TranscodeTools tools() const;  ///< with the language that tracks are named in

    /// Adds the files that are not yet in the list and still to be converted. How many of them are new.
    int add(const QStringList &paths);
    /// One job of the sources of several, in their order, in place of them. 0 where there are fewer than two, and with
    /// a sentence where one is cut.
    JobId join(const QList<JobId> &ids, QString *obstacle);
    /// Checks the folders and starts what has not been done, joined first where the settings want that. False with a
    /// sentence where it cannot.
    bool start(QString *obstacle);
    QList<JobId> startable() const;

    /// The draft without files, or a job's plan.
    TranscodePlan draft() const;
    std::optional<TranscodePlan> plan(JobId id) const;
    /// Changes these, or the draft and all that are still to be converted where there are none. Those that run stay as
    /// they are; many are done bit by bit.
    void edit(const QList<JobId> &ids, const Change &change);
    void choosePreset(const QList<JobId> &ids, const QString &presetId);
    /// Null stands for the settings' folder.
    void chooseFolder(const QList<JobId> &ids, const QString &folder);
    QString folderOf(JobId id) const;  ///< own one; of the draft for 0
    /// Where results go as the draft is; nothing for beside their sources.
    std::optional<QString> draftFolder() const;

    const Preset *presetOfId(const QString &id) const;  ///< own ones and all others
    /// The preset of the draft again, and no own ones.
    void reset();

    /// What the job's sources hold; empty until it is known. Asks for it where nobody has.
    QList<MediaInformation> information(JobId id);
    /// What the target cannot hold and what else the user should know before the start, or why it cannot be done.
    QList<tarnwell::Sentence> warnings(JobId id);
    /// A guess; 0 where nothing is known.
    qint64 expectedBytes(JobId id);

signals:
    void informed(kestrel::JobId id);
    /// The job's source cannot be read; `informed` does not come.
    void notInformed(kestrel::JobId id, const QString &reason);
    void draftChanged();

private:
    struct Look {
        JobId job;
        qsizetype source;
    };
    struct Knowledge {
        QList<std::optional<MediaInformation>> sources;
        std::optional<QList<tarnwell::Sentence>> warnings;
        qint64 bytes = 0;
    };

    void askForEncoders();
    void lookAt(JobId id);
    void probed(qint64 look, const MediaProber::Answer &answer);
    void know(JobId id);
    void changeJob(JobId id, const std::function<void(JobRecord &)> &change);
    void addOne(const QString &path);
    void inTurns(std::deque<std::function<void()>> turns);
    void inTurns(const QList<JobId> &ids, const std::function<void(JobId)> &task);
    void takeTurn(qsizetype least);
    void forgetRemoved();
    void rememberDraft();

    JobQueue &m_queue;
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    foundation::UserDefaults &m_defaults;
    std::shared_ptr<OwnPresets> m_ownPresets;
    TranscodeRecipe m_recipe;
    MediaProber m_prober;
    std::unique_ptr<CodecQuery> m_codecs;
    QStringList m_missingEncoders;
    TranscodePlan m_draft;
    QString m_draftFolder;
    QHash<JobId, Knowledge> m_known;
    QHash<qint64, Look> m_looks;
    qint64 m_lastLook = 0;
    std::deque<std::function<void()>> m_turns;
    bool m_isTurnComing = false;
    bool m_isForgetting = false;
};

}  // namespace kestrel
