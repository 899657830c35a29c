#pragma once

#include "foundation/Result.h"
#include "helpers/heron/DiscError.h"
#include "helpers/heron/Pack.h"

#include <QString>

#include <memory>

using dvd_reader_t = struct dvd_reader_s;
using dvd_file_t = struct dvd_file_s;

namespace kestrel::disc {

inline constexpr int sectorsOfBlock = 16;    ///< a drive corrects errors in blocks of these: if one is gone, all are
inline constexpr int hopelessBlocks = 2000;  ///< after so many in a row the rest is not tried

/// A disc that is open for reading: a drive, an image, or a folder (with VIDEO_TS in it, or that itself; letters of
/// any case).
class DiscSource {
public:
    enum class Kind { Drive, Image, Folder };

    static foundation::Result<DiscSource, DiscError> open(const QString &path);

    Kind kind() const { return m_kind; }
    QString path() const { return m_path; }
    dvd_reader_t *reader() const { return m_reader.get(); }
    /// What it is called: the volume's name, or the folder's.
    QString volume() const;
    /// Of the whole disc, or of the film's files in a folder.
    qint64 bytes() const { return m_bytes; }
    /// Whether the files of a title set reach beyond the end of the image.
    bool isCutOff(int titleSet) const;

private:
    struct Close {
        void operator()(dvd_reader_t *reader) const;
    };
    QString m_path;
    Kind m_kind = Kind::Image;
    qint64 m_bytes = 0;
    std::unique_ptr<dvd_reader_t, Close> m_reader;
};

/// Whether a read that failed for this reason failed because the disc, or what it is on, is no longer there.
bool isSourceGone(int systemError, const QString &path);

/// The film of one title set.
class FilmFile {
public:
    static foundation::Result<FilmFile, DiscError> open(const DiscSource &source, int titleSet);

    qint64 sectors() const { return m_sectors; }
    /// How many of `count` sectors came, from the first on; 0 where the first cannot be read.
    int read(quint32 first, int count, uchar *into);
    /// The last read failed because there is no disc any more.
    bool isGone() const { return m_isGone; }

private:
    struct Close {
        void operator()(dvd_file_t *file) const;
    };
    std::unique_ptr<dvd_file_t, Close> m_file;
    qint64 m_sectors = 0;
    QString m_path;  ///< of the disc
    bool m_isGone = false;
};

}  // namespace kestrel::disc
