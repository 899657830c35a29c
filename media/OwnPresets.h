#pragma once

#include "TranscodePlan.h"

#include <QObject>

#include <memory>

namespace kestrel {

namespace foundation {
class UserDefaults;
}

/// The options of a plan that serve other files as well, to be kept; without the preset.
QJsonObject optionsOf(const TranscodePlan &plan);
/// Puts kept ones into a plan; preset and what belongs to its file stay. Where they are none, all does.
void setOptions(const QJsonObject &options, TranscodePlan &plan);

/// The user's own presets: a form of output with the options that go with it, but nothing that belongs to one file
/// (cuts, tracks, crop, watermark). Kept in the defaults under one key, with a version. What is read, from there or
/// from a file of somebody else's, is untrusted; stored presets that cannot be read are kept aside (UserDefaults).
/// Main thread.
class OwnPresets : public QObject {
    Q_OBJECT
public:
    /// `defaults` outlives the object.
    OwnPresets(foundation::UserDefaults &defaults, QString key, QObject *parent = nullptr);

    const QList<Preset> &presets() const { return m_presets; }
    const Preset *presetOfId(const QString &id) const;  ///< null where there is none
    /// Puts the preset and its options into the plan; what belongs to the file stays.
    void apply(const QString &id, TranscodePlan &plan) const;

    /// Keeps the plan's preset and options under `name`. The new one's id, or why not.
    foundation::Result<QString, tarnwell::Sentence> save(const QString &name, const TranscodePlan &plan);
    bool rename(const QString &id, const QString &name);  ///< false for an empty name or where there is no such preset
    void remove(const QString &id);
    void removeAll();

    QByteArray exported(const QString &id) const;
    /// What `exported` made, by this or another version. The id of the first, or why it is refused; then nothing is
    /// taken.
    foundation::Result<QString, tarnwell::Sentence> import(const QByteArray &file);

signals:
    void changed();

private:
    void keep();
    QString add(Preset preset, const QJsonObject &options);

    foundation::UserDefaults &m_defaults;
    QString m_key;
    QList<Preset> m_presets;
    QHash<QString, QJsonObject> m_options;
    bool m_isStoredUnreadable = false;  ///< at least in part: it is put aside before it is replaced
};

inline constexpr QStringView ownPresetsKey = u"marlinPresets";  ///< of the user's own presets in the defaults

/// The user's own presets in the defaults: one object for all who have them at a time, so that each shows what another
/// has changed. Main thread; the defaults outlive it.
std::shared_ptr<OwnPresets> ownPresetsIn(foundation::UserDefaults &defaults);

/// Puts the first preset of such a file and its options into the plan, for this once. False where it is refused.
bool applyPresetFile(const QByteArray &file, TranscodePlan &plan);

/// A larger file holds no presets.
inline constexpr qint64 maximumPresetFileBytes = 256 * 1024;

}  // namespace kestrel
