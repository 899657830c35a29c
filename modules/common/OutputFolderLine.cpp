#include "OutputFolderLine.h"

#include "foundation/NotificationCenter.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Folders.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_OutputFolderLine.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kestrel {

OutputFolderLine::OutputFolderLine(QWidget *parent) : QWidget(parent), m_form(std::make_unique<Ui::OutputFolderLine>())
{
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    m_form->openFolderButton->setIcon(tarnwell::namedIcon(u"marlin_folder"_s));
    tarnwell::setTextStyle(m_form->folderCaption, 13, QFont::Normal, tarnwell::palette::quietText);
    m_form->openFolderButton->setAccessibleDescription(tarnwell::AppLocalizedString(u"Open the output folder"_s));
    connect(m_form->openFolderButton, &QPushButton::clicked, this, &OutputFolderLine::openFolder);
    foundation::NotificationCenter::defaultCenter().addObserver(
        this, keyKestrelSettingDidChangedNotification.toString(), [this](const QObject *) {
            if (m_folder)
                showFolder();
        });
}

OutputFolderLine::~OutputFolderLine() = default;

void OutputFolderLine::setDispatcher(std::shared_ptr<JKestrelSettingDispatcher> dispatcher)
{
    setFolder([dispatcher = std::move(dispatcher)] { return dispatcher ? dispatcher->getVideoDir() : QString(); });
}

void OutputFolderLine::setFolder(std::function<std::optional<QString>()> folder)
{
    m_folder = std::move(folder);
    showFolder();
}

void OutputFolderLine::showFolder()
{
    const auto folder = m_folder();
    m_form->folderLabel->setText(folder ? QDir::toNativeSeparators(*folder)
                                        : tarnwell::AppLocalizedString(u"Beside the source"_s));
    m_form->openFolderButton->setEnabled(folder && !folder->isEmpty());
}

void OutputFolderLine::openFolder()
{
    tarnwell::openFolder(m_folder().value_or(QString()));
}

}  // namespace kestrel
