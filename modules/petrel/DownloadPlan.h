#pragma once

#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace kestrel {

/// What a user wants of one address: values only. Stored with the job as JSON.
struct DownloadPlan {
    QString address;  ///< http or https
    int item = 0;     ///< of a page with several films, from 1; 0 for the page's only one
    bool soundOnly = false;
    int height = 0;              ///< lines of the picture at most, where there is such a one; 0 for the highest
    QString extension = {};      ///< what it is to become: "mp4", "webm", "mkv"; "m4a", "mp3" where it is sound
    QStringList subtitles = {};  ///< languages that are put into the file, as the site names them
    bool chapters = true;
    QString proxy = {};           ///< with its scheme; null for the system's way
    qint64 bytesPerSecond = 0;    ///< at most; 0 for no limit
    bool manyFromServer = false;  ///< more than a few at once from one server: the user said so
    /// Chosen for this one; else they are what the settings say when it begins.
    bool hasOwnProxy = false, hasOwnFolder = false;

    // What was found there, for the row and the queue; nothing is promised by it
    QString title = {};
    double seconds = 0;    ///< 0 where it is not told
    qint64 bytes = 0;      ///< likewise
    QString picture = {};  ///< address of the site's; null for none

    QJsonObject toJson() const;
    /// Nothing where it is none or of a newer version; nonsense in a field reads as its default.
    static std::optional<DownloadPlan> fromJson(const QJsonObject &json);

    /// Of addresses that may be asked: "host:port".
    QString server() const;
    /// Tells plans apart that write different data: address, item and form.
    QByteArray identity() const;

    bool operator==(const DownloadPlan &) const = default;
};

/// The address as it is asked, from what a person typed or pasted: "https://" where no scheme is given. Null where it
/// is none, or of another scheme than http and https.
QString downloadAddress(const QString &text);

/// The addresses in a text, one a line or apart by blanks; each once.
QStringList addressesIn(const QString &text);
/// Of a file of addresses, in whichever form of Unicode.
QString textOfFile(const QByteArray &bytes);

/// "720P" is 720, "Highest Resolution" and anything else 0.
int heightOfResolution(const QString &resolution);

/// The forms that a download can become.
QStringList downloadFormats();
QStringList soundFormats();

}  // namespace kestrel
