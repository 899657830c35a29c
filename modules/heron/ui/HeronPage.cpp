#include "HeronController.h"

#include "DiscView.h"

#include "foundation/UserDefaults.h"
#include "jobs/JobQueue.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "media/OwnPresets.h"
#include "modules/common/MediaPlayer.h"
#include "modules/common/OutputFolderLine.h"
#include "modules/common/PresetChooser.h"
#include "modules/heron/DiscList.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TabOrder.h"

#include <QComboBox>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::StringLiterals;

/// The making of the disc module's page.
namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr JobPageTexts heronTexts = {
    .title = "DVD Ripper"_key,
    .emptyHeadline = "Put a DVD in, or drop a disc image or folder here"_key,
    .emptyText = "Its titles are kept as they are, or become MP4, MKV or MP3, as you choose."_key,
    .emptyButton = "Open Image…"_key,
    .start = "Start"_key,
    .emptyImage = "heron_module",
};

QString interfaceLanguage()
{
    const QStringList chosen = foundation::UserDefaults::standardUserDefaults().stringArrayForKey(u"AppleLanguages"_s);
    return chosen.isEmpty() ? u"en"_s : chosen.first();
}

}  // namespace

std::unique_ptr<QWidget> HeronController::makeContents()
{
    queue().setRecipe(heronJobs.toString(), &m_recipe);
    m_list = std::make_unique<DiscList>(queue());
    auto page = std::make_unique<JobPage>(queue(), *m_list, heronJobs.toString(), heronTexts);
    m_page = page.get();
    m_disc = new DiscView(interfaceLanguage());
    m_page->setTopArea(m_disc);
    makeHeader();
    makeChoices();
    addKeys();
    connect(m_disc, &DiscView::choiceChanged, this, &HeronController::showChoice);
    connect(m_disc, &DiscView::playRequested, this, &HeronController::playTitle);
    connect(&m_pictures, &DiscPictures::made, m_disc, &DiscView::setPicture);
    connect(&m_pictures, &DiscPictures::made, this, &HeronController::keepPicture);
    m_list->setPictures([this](const JobRecord &record) { return pictureOf(record); });
    connect(m_page, &JobPage::backClicked, this, &HeronController::doBackAction);
    connect(m_page, &JobPage::addClicked, this, &HeronController::chooseImage);
    connect(m_page, &JobPage::pathsDropped, this, &HeronController::openFiles);
    connect(m_page, &JobPage::startClicked, this, &HeronController::begin);
    connect(m_page->list(), &JobListView::playRequested, this, &HeronController::playResult);
    m_player = new MediaPlayer(m_page);
    connect(m_player, &MediaPlayer::failed, m_page,
            [](const QString &title) { warn(Sentence("“%1” could not be played."_key, {title}).localized()); });
    connect(m_list.get(), &QAbstractItemModel::rowsInserted, this, &HeronController::showArea);
    connect(m_list.get(), &QAbstractItemModel::rowsRemoved, this, &HeronController::showArea);
    connect(m_list.get(), &QAbstractItemModel::dataChanged, this, &HeronController::showArea);
    connect(&queue(), &JobQueue::aboutToRemove, this, &HeronController::removeLeftImages);
    showDrives();
    showArea();
    tarnwell::tabInLayoutOrder(*page);
    return page;
}

void HeronController::makeHeader()
{
    m_driveBox = new QComboBox;
    m_driveBox->setObjectName(u"driveComboBox"_s);
    m_driveBox->setAccessibleName("Drive"_key.localized());
    connect(m_driveBox, &QComboBox::activated, this, [this] { openSource(m_driveBox->currentData().toString()); });
    m_page->addHeaderControl(m_driveBox);
    auto *image = new QPushButton("Open Image…"_key.localized());
    image->setObjectName(u"imageButton"_s);
    connect(image, &QPushButton::clicked, this, &HeronController::chooseImage);
    m_page->addHeaderControl(image);
    auto *folder = new QPushButton("Open Folder…"_key.localized());
    folder->setObjectName(u"folderButton"_s);
    connect(folder, &QPushButton::clicked, this, &HeronController::chooseFolder);
    m_page->addHeaderControl(folder);
    m_optionsButton = new QPushButton(tarnwell::namedIcon(u"marlin_options"_s), "Options"_key.localized());
    m_optionsButton->setObjectName(u"optionsButton"_s);
    m_optionsButton->setCheckable(true);
    connect(m_optionsButton, &QPushButton::toggled, m_disc, &DiscView::setOptionsVisible);
    m_page->addHeaderControl(m_optionsButton);
}

void HeronController::addKeys()
{
    const struct {
        QKeySequence keys;
        void (HeronController::*action)();
    } rows[] = {{QKeySequence::Open, &HeronController::chooseImage},
                {Qt::CTRL | Qt::Key_Return, &HeronController::begin}};
    for (const auto &[keys, action] : rows)
        connect(new QShortcut(keys, m_page), &QShortcut::activated, this, action);
}

void HeronController::makeChoices()
{
    m_ways = new QComboBox;
    m_ways->setObjectName(u"wayComboBox"_s);
    m_ways->setAccessibleName("How the disc is kept"_key.localized());
    for (const DiscWayRow &row : discWayRows()) {
        m_ways->addItem(row.name.localized(), int(row.way));
        m_ways->setItemData(m_ways->count() - 1, row.sentence.localized(), Qt::ToolTipRole);
    }
    connect(m_ways, &QComboBox::currentIndexChanged, this, &HeronController::showChoice);
    m_page->addChoice(m_ways);
    m_ownPresets = ownPresetsIn(foundation::UserDefaults::standardUserDefaults());
    m_presets = new PresetChooser(*m_ownPresets);
    m_presets->setObjectName(u"targetComboBox"_s);
    const Preset first = preset();
    m_presets->showPreset(&first);
    connect(m_presets, &PresetChooser::chosen, this, &HeronController::choosePreset);
    connect(m_presets, &PresetChooser::allFormatsWanted, this, &HeronController::showFormats);
    connect(m_ownPresets.get(), &OwnPresets::changed, this, [this] { choosePreset(preset().id); });
    m_page->addChoice(m_presets);
    auto *folder = new OutputFolderLine;
    folder->setDispatcher(m_settings);
    m_page->addChoice(folder, 1);
}

}  // namespace kestrel
