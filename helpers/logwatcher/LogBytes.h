#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace kestrel {

/// An open file of text, read in blocks from any place. It stays readable when it is deleted or when another file takes
/// its name. Any thread.
class LogBytes {
public:
    /// Null where there is no file to read; `error` is then empty where it is missing, else the reason.
    static std::shared_ptr<const LogBytes> open(const QString &path, QString &error);
    ~LogBytes();
    LogBytes(const LogBytes &) = delete;
    LogBytes &operator=(const LogBytes &) = delete;

    qint64 size() const;                      ///< bytes, now
    bool isNamed(const QString &path) const;  ///< whether `path` leads to this file and to no other

    /// Less than `length` at the end of the file and where the disk fails.
    QByteArray read(qint64 offset, qint64 length) const;

private:
    explicit LogBytes(int descriptor) : m_descriptor(descriptor) {}

    int m_descriptor;
};

}  // namespace kestrel
