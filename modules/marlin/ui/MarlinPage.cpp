#include "MarlinController.h"

#include "OptionsPanel.h"
#include "jobs/JobQueue.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "jobs/ui/JobRowDelegate.h"
#include "modules/common/MediaPlayer.h"
#include "modules/common/OutputFolderLine.h"
#include "modules/common/PresetChooser.h"
#include "modules/common/Thumbnails.h"
#include "modules/marlin/Conversion.h"
#include "modules/marlin/ConversionList.h"
#include "modules/marlin/Conversions.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TabOrder.h"

#include <QMenu>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::StringLiterals;

/// The making of the converter's page.
namespace kestrel {

namespace {

using tarnwell::operator""_key;

constexpr JobPageTexts marlinTexts = {
    .title = "Video Converter"_key,
    .emptyHeadline = "Drop videos or folders here"_key,
    .emptyText = "They become MP4, MKV, WebM or MP3, as you choose."_key,
    .emptyButton = "Add Files…"_key,
    .start = "Convert"_key,
    .emptyImage = "marlin_drop",
};

}  // namespace

std::unique_ptr<QWidget> MarlinController::makeContents()
{
    m_conversions = std::make_unique<Conversions>(queue(), m_settings, m_defaults);
    m_list = std::make_unique<ConversionList>(*m_conversions);
    m_thumbnails = new Thumbnails(JobRowDelegate::pictureSize, this);
    m_thumbnails->setTranscoder(m_settings->getTranscoderPath());
    m_player = new MediaPlayer(this);
    auto page = std::make_unique<JobPage>(queue(), *m_list, marlinJobs.toString(), marlinTexts);
    m_page = page.get();
    m_list->setPictures([this](const JobRecord &record) { return pictureOf(record); });
    connect(m_thumbnails, &Thumbnails::made, m_list.get(), &JobList::showPicturesAgain);
    connect(m_player, &MediaPlayer::failed, this, [](const QString &title) {
        warn(tarnwell::Sentence("“%1” could not be played."_key, {title}).localized());
    });
    addChoices();
    addHeader();
    connectPage();
    addKeys();
    showPreset();
    showState();
    tarnwell::tabInLayoutOrder(*page);
    return page;
}

void MarlinController::addHeader()
{
    auto *addButton = new QPushButton(tarnwell::namedIcon(u"marlin_add"_s), "Add Files…"_key.localized());
    addButton->setObjectName(u"addButton"_s);
    connect(addButton, &QPushButton::clicked, this, &MarlinController::chooseFiles);
    auto *clearButton = new QPushButton("Clear"_key.localized());
    clearButton->setObjectName(u"clearButton"_s);
    clearButton->setToolTip("Removes what is done from the list. The files stay."_key.localized());
    connect(clearButton, &QPushButton::clicked, m_page->list(), &JobListView::removeEnded);
    auto *optionsButton = new QPushButton(tarnwell::namedIcon(u"marlin_options"_s), "Options"_key.localized());
    optionsButton->setObjectName(u"optionsButton"_s);
    optionsButton->setCheckable(true);
    connect(optionsButton, &QPushButton::toggled, m_page, &JobPage::setSidePanelVisible);
    for (QPushButton *button : {addButton, clearButton, optionsButton})
        m_page->addHeaderControl(button);
}

void MarlinController::addChoices()
{
    m_presets = new PresetChooser(m_conversions->ownPresets());
    m_presets->setObjectName(u"targetComboBox"_s);
    connect(m_presets, &PresetChooser::chosen, this, &MarlinController::choosePreset);
    connect(m_presets, &PresetChooser::allFormatsWanted, this, &MarlinController::showFormats);
    m_page->addChoice(m_presets);
    auto *folder = new OutputFolderLine;
    folder->setFolder([this] { return m_conversions->draftFolder(); });
    connect(m_conversions.get(), &Conversions::draftChanged, folder, &OutputFolderLine::showFolder);
    m_page->addChoice(folder, 1);
    m_options = new OptionsPanel(*m_conversions);
    connect(m_options, &OptionsPanel::editWanted, this, &MarlinController::editCurrent);
    m_page->setSidePanel(m_options);
}

void MarlinController::connectPage()
{
    JobListView *list = m_page->list();
    connect(m_page, &JobPage::backClicked, this, &MarlinController::doBackAction);
    connect(m_page, &JobPage::addClicked, this, &MarlinController::chooseFiles);
    connect(m_page, &JobPage::startClicked, this, &MarlinController::convert);
    connect(m_page, &JobPage::pathsDropped, this, &MarlinController::openFiles);
    connect(list, &JobListView::playRequested, this, &MarlinController::play);
    connect(list, &JobListView::editRequested, this, &MarlinController::edit);
    connect(list, &JobListView::menuRequested, this, &MarlinController::extendMenu);
    connect(m_conversions.get(), &Conversions::informed, this, [this](JobId id) {
        if (id == m_toEdit)
            edit(id);
    });
    connect(m_conversions.get(), &Conversions::notInformed, this, [this](JobId id, const QString &reason) {
        if (id == m_toEdit)
            m_page->showMessage(reason);
        m_toEdit = id == m_toEdit ? 0 : m_toEdit;
    });
    connect(list, &JobListView::selectedChanged, this, &MarlinController::showSelection);
    connect(m_conversions.get(), &Conversions::draftChanged, this, &MarlinController::showPreset);
    connect(&queue(), &JobQueue::changed, this, &MarlinController::showState);
    connect(&queue(), &JobQueue::removed, this, &MarlinController::showState);
}

void MarlinController::addKeys()
{
    const struct {
        QKeySequence keys;
        QWidget *place;
        Qt::ShortcutContext context;
        std::function<void()> action;
    } rows[] = {
        {QKeySequence::Open, m_page, Qt::WindowShortcut, [this] { chooseFiles(); }},
        {Qt::CTRL | Qt::Key_Return, m_page, Qt::WindowShortcut, [this] { convert(); }},
        {Qt::CTRL | Qt::Key_E, m_page, Qt::WindowShortcut, [this] { editCurrent(); }},
        {Qt::CTRL | Qt::Key_F, m_page, Qt::WindowShortcut, [this] { showFormats(); }},
        {Qt::Key_Space, m_page->list(), Qt::WidgetShortcut, [this] { playSource(m_page->list()->currentId()); }},
    };
    for (const auto &[keys, place, context, action] : rows) {
        auto *shortcut = new QShortcut(keys, place);
        shortcut->setContext(context);
        connect(shortcut, &QShortcut::activated, this, action);
    }
}

}  // namespace kestrel
