#pragma once

#include "MediaPlayer.h"
#include "Thumbnails.h"

namespace kestrel {

class JKestrelSettingDispatcher;
class JobList;
class JobPage;
struct JobRecord;

/// What a module's list of jobs does with the films that came of them: plays them, and shows a picture of each where it
/// is asked to. Lives as long as the page, which owns it.
class MadeFilms : public QObject {
    Q_OBJECT
public:
    MadeFilms(JobPage &page, std::shared_ptr<const JKestrelSettingDispatcher> settings);

    /// In the rows of the page's list, which goes before the page.
    void showPictures(JobList &list);

private:
    QVariant pictureOf(const JobRecord &record);
    void play(const QString &path);

    JobPage &m_page;
    std::shared_ptr<const JKestrelSettingDispatcher> m_settings;
    Thumbnails m_thumbnails;
    MediaPlayer m_player;
};

}  // namespace kestrel
