#include "MadeFilms.h"

#include "jobs/JobList.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "jobs/ui/JobRowDelegate.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/TextKey.h"

#include <QFileInfo>

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

MadeFilms::MadeFilms(JobPage &page, std::shared_ptr<const JKestrelSettingDispatcher> settings)
    : QObject(&page),
      m_page(page),
      m_settings(std::move(settings)),
      m_thumbnails(JobRowDelegate::pictureSize)
{
    m_thumbnails.setTranscoder(m_settings->getTranscoderPath());
    connect(page.list(), &JobListView::playRequested, this, &MadeFilms::play);
    connect(&m_player, &MediaPlayer::failed, this, [this](const QString &title) {
        m_page.showMessage(Sentence("“%1” could not be played."_key, {title}).localized());
    });
}

void MadeFilms::showPictures(JobList &list)
{
    list.setPictures([this](const JobRecord &record) { return pictureOf(record); });
    connect(&m_thumbnails, &Thumbnails::made, &list, &JobList::showPicturesAgain);
}

QVariant MadeFilms::pictureOf(const JobRecord &record)
{
    if (record.outcome.outputs.isEmpty())
        return {};
    m_thumbnails.setScale(m_page.devicePixelRatioF());
    const QPixmap *picture = m_thumbnails.picture(record.outcome.outputs.first(), 0);
    return picture && !picture->isNull() ? QVariant(*picture) : QVariant();
}

void MadeFilms::play(const QString &path)
{
    if (!m_player.play(m_settings->getPlayerPath(), path, QFileInfo(path).fileName()))
        m_page.showMessage("The player is missing. Please install the application again."_key.localized());
}

}  // namespace kestrel
