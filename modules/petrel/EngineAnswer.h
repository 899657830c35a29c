#pragma once

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

#include <QJsonObject>
#include <QList>
#include <QStringList>

namespace kestrel {

/// What the engine found at an address. All of it comes from outside: bounded, and shown as plain text only.
struct EngineAnswer {
    /// One of the forms that a film can be had in.
    struct Form {
        QString extension;
        int height = 0;  ///< of a film upright its width, as the engine counts; 0 where it is not told, or for sound
        bool hasVideo = true;  ///< or it is not told
        bool hasAudio = true;
        bool tellsAudio = false;  ///< its sound is no guess
        qint64 bytes = 0;         ///< of what is downloaded, or about; 0 where it is not told
    };
    /// One film of a page or a list.
    struct Entry {
        int item = 0;     ///< by which the page's address finds it
        QString address;  ///< of its own; that of the page where it has none
        QString title;
        double seconds = 0;
        QString picture;        ///< address; null where there is none
        bool isOfPage = false;  ///< has no address of its own
        QJsonObject film = {};  ///< as the answer's, where it is known already
    };
    enum class Promise { Unknown, Yes, No };

    QString title;
    double seconds = 0;  ///< 0 where it is not told
    QString picture;
    QList<Form> forms;
    QStringList subtitles;                                       ///< languages
    Promise video = Promise::Unknown, sound = Promise::Unknown;  ///< of what would be downloaded
    qint64 bytes = 0;                                            ///< of it
    bool isLive = false;                                         ///< still going on
    bool isToCome = false;
    bool isProtected = false;
    int ageLimit = 0;
    bool hasChapters = false;
    QList<Entry> entries;  ///< more than one: it is a list, and the rest tells nothing
    /// For the engine to download from, as it is; empty where it is a list.
    QJsonObject film;

    /// Another form is asked for than was: what would be downloaded is not known, but that there is sound may be.
    void forgetChoice();
    /// Heights that are there, highest first, each with the size that a download of it would have or 0.
    QList<std::pair<int, qint64>> resolutions() const;
};

/// Reads `--dump-single-json`, one line of the output. A list of one is that one. `address` is what was asked.
foundation::Result<EngineAnswer, tarnwell::Sentence> parseEngineAnswer(const QByteArray &output,
                                                                       const QString &address);

}  // namespace kestrel
