#pragma once

#include <QDateTime>
#include <QStringList>
#include <QUrl>

#include <optional>

/// Names of files as texts. The system's names are bytes and need not be UTF-8; a byte that is none stands in the text
/// as a lone surrogate, U+DC80 to U+DCFF, so that every name has a text of its own and comes back as it was. Qt's own
/// file classes cannot open such a name: what opens files goes through `encodedFileName`.
namespace kestrel::foundation {

QString decodedFileName(QByteArrayView bytes);
QByteArray encodedFileName(const QString &name);

/// The words of a command line, program first: files may be among them.
QStringList decodedArguments(int argc, char **argv);
/// Without "." and ".."; from the working folder where it is relative.
QString absoluteFileName(const QString &name);

/// Whether Qt and tools that want UTF-8 can take the name.
bool isPlainFileName(const QString &name);
/// The name for the eye and for new files: without the bytes that are no text.
QString readableFileName(const QString &name);

/// The path of a "file:" address, whose percent-encoded bytes need not be UTF-8; null where it is none or has a NUL.
QString pathOfUrl(const QUrl &url);

/// What the name leads to; links are followed.
enum class FileKind { Missing, File, Folder, Other };
struct FileFacts {
    FileKind kind = FileKind::Missing;
    qint64 bytes = 0;
    bool isReadable = false;
    std::optional<QDateTime> modified = {};
};
FileFacts fileFacts(const QString &path);

}  // namespace kestrel::foundation
