#pragma once

#include "media/MediaInformation.h"
#include "media/TranscodePlan.h"

#include <QObject>

#include <functional>

class QComboBox;
class QVBoxLayout;
class QWidget;

namespace kestrel {

/// The tracks of one file by name: which sounds are kept, what becomes of each subtitle, and subtitles from files. For
/// several files the languages that are kept.
class TrackOptions : public QObject {
    Q_OBJECT
public:
    /// The two pages get controls of their own below what they have.
    TrackOptions(QVBoxLayout *sounds, QVBoxLayout *subtitles, QObject *parent = nullptr);

    /// The plan is that of one file where it names sources.
    void show(const TranscodePlan &plan, const QList<MediaInformation> &sources, const QString &language);

signals:
    void changed(const std::function<void(kestrel::TranscodePlan &)> &change);

private:
    void showSounds(const TranscodePlan &plan, const MediaInformation &source);
    void showSubtitles(const TranscodePlan &plan, const MediaInformation &source);
    void showFiles(const TranscodePlan &plan);
    void showLanguages(const TranscodePlan &plan, const QList<MediaInformation> &sources, MediaTrack::Kind kind);
    QComboBox *languageBox(const TranscodePlan::ExternalSubtitle &file, qsizetype number);
    void chooseFile();
    QString nameOf(const MediaTrack &track) const;
    QWidget *line(const QString &text, TranscodePlan::SubtitleUse use,
                  const std::function<void(TranscodePlan &, TranscodePlan::SubtitleUse)> &set);

    QVBoxLayout *m_soundLayout;
    QVBoxLayout *m_subtitleLayout;
    QString m_language;
    QStringList
        m_shown;  ///< what the controls were made for: as long as it is the same they stay, and with them the focus
    QList<QWidget *> m_made;
};

}  // namespace kestrel
