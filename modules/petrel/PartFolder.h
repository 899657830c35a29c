#pragma once

#include "DownloadPlan.h"

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

#include <memory>
#include <optional>

namespace kestrel {

/// The hidden folder beside the output in which a download grows. It stays when the object goes or the program is
/// killed, and is found again by the address and form that stand in it; while it is in use nobody else takes it.
class PartFolder {
public:
    using Taken = foundation::Result<std::unique_ptr<PartFolder>, tarnwell::Sentence>;

    /// The one that an earlier run has left for the plan, or a new one, in `folder`.
    static Taken take(const QString &folder, const DownloadPlan &plan);
    /// Removes what earlier runs have left for the plan, unless it is in use.
    static void removeLeft(const QString &folder, const DownloadPlan &plan);
    /// Takes it to another folder. False, and it stays, where that cannot be: it is on another disk, or not there.
    static bool moveLeft(const QString &folder, const DownloadPlan &plan, const QString &to);

    /// Whether an earlier run has left the whole film, which is only to be looked at and converted.
    static bool hasLeftFilm(const QString &folder, const DownloadPlan &plan);

    ~PartFolder();
    PartFolder(const PartFolder &) = delete;
    PartFolder &operator=(const PartFolder &) = delete;

    QString path() const { return m_path; }
    qint64 bytes() const;  ///< that are there
    /// What was downloaded, whole; null where there is no such file.
    QString downloaded() const;
    /// Set when the engine has ended with the file that is there: what it said of companions (cover, subtitles,
    /// chapters) that could not be added, empty where nothing is missing. Nothing before that.
    std::optional<QString> missingCompanions() const;
    void setMissingCompanions(const QString &words);
    /// Whether what is there of the engine's `file` is a part of `whole`, in whatever words tell wholes apart; true,
    /// and kept for the next time, where nothing was known of it.
    bool isPartOf(const QString &file, const QString &whole);
    /// Removes what was downloaded, to begin anew.
    void clear();
    void remove();  ///< the folder and all in it

private:
    PartFolder(QString path, int lock);

    QString m_path;
    int m_lock;
    QJsonObject m_wholes;  ///< by file; as on the disk
};

}  // namespace kestrel
