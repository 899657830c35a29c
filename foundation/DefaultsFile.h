#pragma once

#include <QLockFile>
#include <QString>
#include <QVariantMap>

#include <chrono>

namespace kestrel::foundation {

/// The file of one defaults domain: an XML property list that holds a dictionary. Links are followed to the file that
/// they name, and everything happens there. Readers need no lock, since the file is only ever replaced whole; whoever
/// changes it holds the lock from before the read to after the write. Every failure leaves what is on the disk as it
/// was and is told by `error`.
class DefaultsFile {
public:
    enum class State {
        Missing,      ///< no file, hence no values
        Readable,     ///< `values` is what it holds
        Damaged,      ///< read, but no property list with a dictionary, too large, or not to be written as XML
        Unavailable,  ///< it could not be read, now
    };

    explicit DefaultsFile(const QString &path);

    /// Makes the folder where need be and waits for the lock, at most for `patience`. The lock goes with the object,
    /// and a lock left by a process that was killed within a second.
    bool lock(std::chrono::milliseconds patience);

    State read();
    State state() const { return m_state; }  ///< what the last `read` or `setAside` found
    QVariantMap values() const { return m_values; }

    /// Gives a damaged file another name beside its own, so that the state is Missing; Unavailable where that fails.
    /// Needs the lock.
    State setAside();

    /// Replaces the file, for its owner alone to read, and waits until the disk has it; what a replacement left that
    /// was killed goes. Needs the lock.
    bool replace(const QVariantMap &values);
    /// Puts the value of a key, which nobody can read, into a file of its own beside this one. Needs the lock.
    bool keepAside(const QByteArray &bytes, const QString &key);

    QString error() const { return m_error; }  ///< what went wrong last, in English, for the log

private:
    State found(State state, const QString &error = {});
    bool fail(const QString &error);

    QString m_path;
    QLockFile m_lock;
    State m_state = State::Missing;
    QVariantMap m_values;
    QString m_error;
};

}  // namespace kestrel::foundation
