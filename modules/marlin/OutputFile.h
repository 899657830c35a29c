#pragma once

#include <QString>

namespace kestrel {

// Apart from the class of that name in jobs/
inline namespace marlin {

/// A file that a tool is to write, kept from sight until it is whole. It begins as a hidden part in its folder;
/// `publish` gives it a name of its own there, and without that the part goes with the object. No file that exists is
/// ever written over, even where somebody makes one of that name at the same moment.
class OutputFile {
public:
    /// `baseName` is what the file should be called, without its extension ("mp4"). Names that the file system finds
    /// too long are cut.
    OutputFile(const QString &folder, const QString &baseName, const QString &extension);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    /// Removes parts of the user's in `folder`, which are there where the application was killed. While no output of
    /// its own is in the making.
    static void removeStaleParts(const QString &folder);

    bool isValid() const { return !m_partPath.isEmpty(); }
    /// The key of a sentence that says why it is not valid, or was not published.
    QString reason() const { return m_reason; }
    QString partPath() const { return m_partPath; }

    /// Calls the part `baseName`, or "baseName (1)" and so on where that is taken. The whole path; null where it
    /// failed.
    QString publish();

private:
    QString createNew(const QString &prefix, const QString &suffix);

    QString m_folder;
    QString m_baseName;
    QString m_extension;
    QString m_partPath;
    QString m_reason;
};

}  // namespace marlin

}  // namespace kestrel
