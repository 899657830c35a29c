#include "MarlinController.h"

#include "EditWindow.h"
#include "OptionsPanel.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "jobs/JobQueue.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "media/MediaFiles.h"
#include "modules/common/LateView.h"
#include "modules/common/MediaPlayer.h"
#include "modules/common/PresetChooser.h"
#include "modules/common/PresetDialog.h"
#include "modules/common/Thumbnails.h"
#include "modules/marlin/Conversion.h"
#include "modules/marlin/ConversionList.h"
#include "modules/marlin/Conversions.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/Images.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

void MarlinController::warn(const QString &message)
{
    tarnwell::runAlert({.message = message,
                        .defaultButton = tarnwell::AppLocalizedString(u"OK"_s),
                        .alternateButton = {},
                        .informativeText = {},
                        .style = tarnwell::AlertStyle::Warning});
}

MarlinController::MarlinController(const ModuleConfigure &configure, ModuleServices &services)
    : MarlinController(configure, services, foundation::UserDefaults::standardUserDefaults())
{
}

MarlinController::MarlinController(const ModuleConfigure &configure, ModuleServices &services,
                                   foundation::UserDefaults &defaults)
    : m_services(services),
      m_defaults(defaults),
      m_settings(configure.value(moduleSettingKey.toString())),
      m_view(std::make_unique<LateView>([this] { return makeContents(); }))
{
    foundation::NotificationCenter::defaultCenter().addObserver(this, keyResetProfilesNotification.toString(),
                                                                [this](const QObject *) {
                                                                    m_view->makeContents();
                                                                    m_conversions->reset();
                                                                });
}

MarlinController::~MarlinController()
{
    m_view.reset();  // it shows what follows
}

JobQueue &MarlinController::queue()
{
    return m_services.queue();
}

/// A tenth of the film in, where it is no longer black.
QVariant MarlinController::pictureOf(const JobRecord &record) const
{
    const double seconds = sourceSummary(record).seconds.value_or(0) / 10;
    if (record.state == JobState::Checking || record.state == JobState::Unusable)
        return {};
    m_thumbnails->setScale(m_page->devicePixelRatioF());
    const QPixmap *picture = m_thumbnails->picture(record.source, seconds);
    if (!picture)
        return {};
    return picture->isNull() ? tarnwell::namedImage(u"marlin_sound"_s, m_page->devicePixelRatioF()) : *picture;
}

void MarlinController::setCompletedHandler(CompletedHandler handler)
{
    m_completedHandler = std::move(handler);
}

QWidget *MarlinController::view()
{
    return m_view.get();
}

QString MarlinController::windowTitle() const
{
    return tarnwell::AppLocalizedString(u"Video Converter"_s);
}

/// Conversions go on while another module is open.
void MarlinController::doBackAction()
{
    if (m_completedHandler)
        m_completedHandler(this);
}

bool MarlinController::shouldTerminate()
{
    return true;
}

void MarlinController::showFirstOpenAppTip(bool show)
{
    m_view->makeContents();
    m_page->setTipVisible(tarnwell::AppLocalizedString(
                              u"Drop videos or folders anywhere in this window, choose a format below and press "
                              "Convert. The results go to the output folder; your own files stay as they are."_s),
                          show);
}

void MarlinController::openFiles(const QStringList &paths)
{
    m_view->makeContents();
    foundation::queue::asyncGlobal([self = QPointer(this), paths = paths]() mutable {
        sortNaturally(paths);  // file managers hand them over in any order
        const MediaFiles files = mediaFiles(paths);
        foundation::queue::asyncMain([self, files] {
            if (self)
                self->addFiles(files);
        });
    });
}

void MarlinController::addFiles(const MediaFiles &files)
{
    const qsizetype known = files.paths.size() - m_conversions->add(files.paths);
    if (files.isPart)
        m_page->showMessage("The folder is too large: only some of its files were added."_key.localized());
    else if (files.paths.isEmpty())
        m_page->showMessage("There is no video or sound file in it."_key.localized());
    else if (known > 0)
        m_page->showMessage(tarnwell::Sentence("Already in the list: %1"_key, {QString::number(known)}).localized());
    showState();
}

void MarlinController::chooseFiles()
{
    openFiles(QFileDialog::getOpenFileNames(m_page, "Add Files…"_key.localized(), QString(),
                                            "Media files"_key.localized() + u" ("_s + mediaNameFilters().join(u' ') +
                                                u");;"_s + "All files"_key.localized() + u" (*)"_s));
}

/// For what was chosen in the list, else for everything that is still to be converted.
void MarlinController::choosePreset(const QString &id)
{
    m_conversions->choosePreset(m_page->list()->selectedIds(), id);
    showPreset();
}

void MarlinController::showFormats()
{
    const JobId id = m_page->list()->selectedIds().value(0);
    auto *dialog = new PresetDialog(m_conversions->ownPresets(),
                                    m_conversions->plan(id).value_or(m_conversions->draft()), m_page->window());
    connect(dialog, &PresetDialog::chosen, this, &MarlinController::choosePreset);
    dialog->open();
}

/// Options are for what is selected now; showing it can wait, for a drag over rows changes it many times.
void MarlinController::showSelection()
{
    m_options->setSelection(m_page->list()->selectedIds());
    if (std::exchange(m_isToShowSelection, true))
        return;
    foundation::queue::asyncMain([guard = QPointer(this)] {
        if (!guard)
            return;
        guard->m_isToShowSelection = false;
        if (guard->m_page)
            guard->showPreset();
    });
}

void MarlinController::showPreset()
{
    const QList<JobId> ids = m_page->list()->selectedIds();
    TranscodePlan plan = m_conversions->plan(ids.value(0)).value_or(m_conversions->draft());
    constexpr qsizetype lookedAt = 200;
    for (const JobId id : ids.mid(0, lookedAt)) {
        // Reading whole plans would be felt.
        const JobRecord *record = queue().record(id);
        if (record && record->plan[u"preset"_s].toObject()[u"id"_s].toString() != plan.preset.id) {
            m_presets->showPreset(nullptr);
            return;
        }
    }
    m_presets->showPreset(&plan.preset);
}

void MarlinController::convert()
{
    if (m_conversions->startable().isEmpty())
        return;
    if (QString obstacle; !m_conversions->start(&obstacle))
        warn(obstacle);
}

void MarlinController::extendMenu(QMenu *menu, const QList<JobId> &ids)
{
    const JobId current = m_page->list()->currentId();
    menu->addSeparator();
    menu->addAction("Play Source"_key.localized(), this, [this, current] { playSource(current); });
    menu->addAction("Cut and Edit…"_key.localized(), this, [this, current] { edit(current); });
    menu->addAction("Join into One"_key.localized(), this, [this, ids] { join(ids); })->setEnabled(ids.size() > 1);
}

void MarlinController::editCurrent()
{
    const QList<JobId> ids = m_page->list()->selectedIds();
    edit(ids.isEmpty() ? m_list->idAt(0) : ids.first());
}

void MarlinController::join(const QList<JobId> &ids)
{
    QString obstacle;
    m_conversions->join(ids, &obstacle);
    if (!obstacle.isEmpty())
        m_page->showMessage(obstacle);
}

/// Once it is known what the file holds; a join has no one picture to edit.
void MarlinController::edit(JobId id)
{
    m_toEdit = 0;
    const auto plan = m_conversions->plan(id);
    if (!plan || isActive(queue().record(id)->state))
        return;
    if (queue().record(id)->state == JobState::Unusable)
        return m_page->showMessage(queue().record(id)->outcome.sentence.localized());
    if (plan->sources.size() > 1)
        return m_page->showMessage("Files can be cut or joined, but not both at once."_key.localized());
    const QList<MediaInformation> sources = m_conversions->information(id);
    if (sources.isEmpty()) {
        m_toEdit = id;
        return;
    }
    auto *window = new EditWindow({.plan = *plan, .source = sources.first(), .tools = m_conversions->tools()},
                                  *m_settings, *m_thumbnails, *m_player, m_page->window());
    connect(window, &EditWindow::edited, this, [this, id](const TranscodePlan &edited) {
        m_conversions->edit({id}, [edited](TranscodePlan &changing) { changing = edited; });
    });
    window->open();
}

void MarlinController::playSource(JobId id)
{
    if (const JobRecord *record = queue().record(id))
        play(record->source);
}

void MarlinController::play(const QString &path)
{
    if (!m_player->play(m_settings->getPlayerPath(), path, QFileInfo(path).fileName()))
        warn("The player is missing. Please install the application again."_key.localized());
}

/// Thousands may change in one go.
void MarlinController::showState()
{
    if (std::exchange(m_isToShow, true))
        return;
    foundation::queue::asyncMain([guard = QPointer(this)] {
        if (!guard)
            return;
        guard->m_isToShow = false;
        if (guard->m_page)
            guard->m_page->setStartEnabled(!guard->m_conversions->startable().isEmpty());
    });
}

}  // namespace kestrel
