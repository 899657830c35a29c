#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace kestrel {

/// A part that is about to get its name, and what tells it from all other files and folders when it has it.
struct PlacedPart {
    QString path;       ///< of the part; absolute
    qint64 number = 0;  ///< in its file system
    qint64 bytes = 0;
    qint64 born = 0;  ///< nanoseconds since 1970; 0 where the file system does not know

    /// Nothing where there is no such file.
    static std::optional<PlacedPart> of(const QString &path);
    /// Where it is now, in the same folder and under another name; null where it is not.
    QString placedPath() const;

    QJsonObject toJson() const;
    static std::optional<PlacedPart> fromJson(const QJsonObject &json);  ///< nothing where that is none
};

}  // namespace kestrel
