#include "OverviewView.h"

#include "OverviewController.h"
#include "modules/ModuleRow.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_OverviewView.h"

using namespace Qt::StringLiterals;

namespace kestrel {

OverviewView::OverviewView(const ModuleOverview &overview, std::shared_ptr<JKestrelSettingDispatcher> dispatcher)
    : m_form(std::make_unique<Ui::OverviewView>())
{
    namespace palette = tarnwell::palette;
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    m_form->titleLabel->setText(moduleRows()[overview.kind].title.localized());
    m_form->headlineLabel->setText(tarnwell::AppLocalizedString(overview.headline));
    QLabel *planLabels[] = {m_form->firstPlanLabel, m_form->secondPlanLabel, m_form->thirdPlanLabel};
    for (size_t index = 0; index < std::size(planLabels); ++index) {
        planLabels[index]->setText(tarnwell::AppLocalizedString(overview.plans[index]));
        planLabels[index]->setVisible(overview.plans[index]);
        tarnwell::setTextStyle(planLabels[index], 13, QFont::Normal, palette::text);
    }
    tarnwell::setTextStyle(m_form->titleLabel, 18, QFont::Bold, palette::title);
    tarnwell::setTextStyle(m_form->headlineLabel, 18, QFont::Bold, palette::title);
    tarnwell::setTextStyle(m_form->comingLabel, 13, QFont::Normal, palette::quietText);
    m_form->picture->setImageName(QString::fromLatin1(overview.image));
    m_form->backButton->setIcon(tarnwell::namedIcon(u"module_back"_s));
    m_form->outputFolder->setDispatcher(std::move(dispatcher));
    connect(m_form->backButton, &QPushButton::clicked, this, &OverviewView::backClicked);
}

OverviewView::~OverviewView() = default;

}  // namespace kestrel
