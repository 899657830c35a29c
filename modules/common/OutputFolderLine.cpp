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
        this, keyKestrelSettingDidChangedNotification.toString(), [this](const QObject *) { showFolder(); });
}

OutputFolderLine::~OutputFolderLine() = default;

void OutputFolderLine::setDispatcher(std::shared_ptr<JKestrelSettingDispatcher> dispatcher)
{
    m_dispatcher = std::move(dispatcher);
    showFolder();
}

void OutputFolderLine::showFolder()
{
    const QString folder = m_dispatcher ? m_dispatcher->getVideoDir() : QString();
    m_form->folderLabel->setText(QDir::toNativeSeparators(folder));
    m_form->openFolderButton->setEnabled(!folder.isEmpty());
}

void OutputFolderLine::openFolder()
{
    tarnwell::openFolder(m_dispatcher->getVideoDir());
}

}  // namespace kestrel
