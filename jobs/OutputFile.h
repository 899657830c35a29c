#pragma once

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

#include <QString>

namespace kestrel {

/// A file, or a folder, that is to be made, kept from sight until it is whole. It begins as a hidden part in its folder
/// whose name tells which process owns it; `publish` gives it a name of its own there, and without that it goes with
/// the object. Nothing that exists is ever written over, even where somebody makes something of that name at the same
/// moment; nothing unfinished ever shows under its name.
///
/// A part is also written down in a folder of Kestrel's, so that one whose owner was killed is found wherever it lies.
/// Any thread; `publish` waits for the disk, which takes its time with a large file: not for the main thread.
class OutputFile {
public:
    enum class Kind { File, Folder, PrivateFolder };

    /// `baseName` is what it should be called, without its extension ("mp4"; empty for none). Characters that file
    /// systems refuse are replaced, names that they find too long are cut.
    OutputFile(const QString &folder, const QString &baseName, const QString &extension, Kind kind = Kind::File);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    bool isValid() const { return !m_partPath.isEmpty(); }
    /// Why it is not valid.
    tarnwell::Sentence reason() const { return m_reason; }
    QString partPath() const { return m_partPath; }
    /// The part stays when the object goes, or where the program is killed, to be gone on with: the caller knows where
    /// it is.
    void keepPart();

    /// Syncs the part, calls it `baseName`, or "baseName (1)" and so on where that is taken, and syncs the folder. The
    /// whole path, or why not.
    foundation::Result<QString, tarnwell::Sentence> publish();

    /// Removes the parts of owners that have ended, wherever they are; for the start of a program. Any thread.
    static void sweepDeadOwners();

private:
    tarnwell::Sentence makePart();
    void forget();

    QString m_folder;
    QString m_baseName;
    QString m_extension;
    Kind m_kind;
    QString m_partPath;
    QString m_registration;  ///< the link that remembers the part; null where it is kept
    tarnwell::Sentence m_reason;
};

}  // namespace kestrel
