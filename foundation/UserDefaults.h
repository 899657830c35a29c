#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QVariantMap>

namespace kestrel::foundation {

/// The user's stored values, in layers searched from the top: the application's own domain (one XML property list on
/// disk), the system's values, and fallbacks that are registered at run time and never written. Values have the types
/// of PropertyList.h; keys that nobody here knows are kept.
///
/// A change is visible at once and reaches the disk in one write at the end of the event-loop turn, at `synchronize`,
/// and when the object goes. A write replaces the file atomically and durably, under a lock, and puts the changed keys
/// on top of what the file holds by then, so that what another process stored or removed stays so (and shows here from
/// then on); a file that is gone is written anew with all that is known here. Where a write fails, the file stays as it
/// was, the failure is logged once, and the change is tried again with the next write. A damaged file is moved aside as
/// "<name>.corrupt-<time>"; one that cannot be read is left alone. Works before an application object exists. Main
/// thread only.
class UserDefaults : public QObject {
    Q_OBJECT
public:
    /// `domainPath` is the property list's path; it and its folder need not exist. `systemValues` is the layer below
    /// it.
    explicit UserDefaults(const QString &domainPath, const QVariantMap &systemValues = {}, QObject *parent = nullptr);
    ~UserDefaults() override;

    /// The application's own: `$XDG_CONFIG_HOME/<bundle identifier>/defaults.plist`, over the system's
    /// "AppleLanguages".
    static UserDefaults &standardUserDefaults();

    QVariant objectForKey(const QString &key) const;  ///< invalid where no layer has it
    QString stringForKey(const QString &key) const;   ///< null where absent or another type
    bool boolForKey(const QString &key) const;        ///< read as Numbers.h has it; false where absent
    /// Numbers are truncated, texts read leniently (Numbers.h); 0 where absent or another type.
    qint64 integerForKey(const QString &key) const;
    QByteArray dataForKey(const QString &key) const;          ///< null where absent or another type
    QStringList stringArrayForKey(const QString &key) const;  ///< empty where absent or where any entry is no string

    /// Stores `value` as it will be read back (an `int` as a 64-bit integer, a date to the second); an invalid one
    /// removes the key. What a property list cannot hold is refused with a warning. No change, no write.
    void setObject(const QVariant &value, const QString &key);
    void removeObjectForKey(const QString &key);  ///< from the application's domain, so that lower layers show
    void registerDefaults(const QVariantMap &fallbacks);

    /// Writes what is pending now. True where the disk holds every change.
    bool synchronize();
    /// Why the last attempt to read or write failed, in English; null where it did not.
    QString failure() const { return m_failure; }
    /// Puts the data of a key, which its reader cannot make sense of, into a file "<name>.<key>.corrupt-<time>" beside
    /// the domain, before it is replaced. Nothing where the key holds none. False where that failed.
    bool keepAside(const QString &key);

private:
    void load();
    void changeDomain(const QString &key, const QVariant &value);
    bool reportFailure(const QString &reason);

    QString m_domainPath;
    QVariantMap m_domain;
    QVariantMap m_stored;  ///< the domain as it was last read or written
    QVariantMap m_systemValues;
    QVariantMap m_fallbacks;
    QSet<QString> m_pendingKeys;
    bool m_writeScheduled = false;
    QString m_failure;
};

}  // namespace kestrel::foundation
