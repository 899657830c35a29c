#include "OverviewView.h"

#include "Images.h"
#include "Localization.h"
#include "OverviewController.h"
#include "TextStyles.h"
#include "TranslateControls.h"
#include "ui_OverviewView.h"

using namespace Qt::StringLiterals;

namespace kestrel {

OverviewView::OverviewView(const ModuleOverview &overview, std::shared_ptr<JKestrelSettingDispatcher> dispatcher)
    : m_overview(overview),
      m_form(std::make_unique<Ui::OverviewView>())
{
    namespace palette = tarnwell::palette;
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    const auto localized = [](const char *key) { return tarnwell::AppLocalizedString(QString::fromLatin1(key)); };
    m_form->titleLabel->setText(localized(overview.title));
    m_form->headlineLabel->setText(localized(overview.headline));
    QLabel *planLabels[] = {m_form->firstPlanLabel, m_form->secondPlanLabel, m_form->thirdPlanLabel};
    for (size_t index = 0; index < std::size(planLabels); ++index) {
        planLabels[index]->setText(localized(overview.plans[index]));
        planLabels[index]->setVisible(overview.plans[index]);
        tarnwell::setTextStyle(planLabels[index], 13, QFont::Normal, palette::text);
    }
    tarnwell::setTextStyle(m_form->titleLabel, 18, QFont::Bold, palette::title);
    tarnwell::setTextStyle(m_form->headlineLabel, 18, QFont::Bold, palette::title);
    tarnwell::setTextStyle(m_form->comingLabel, 13, QFont::Normal, palette::quietText);
    m_form->backButton->setIcon(tarnwell::IconNamed(u"module_back"_s));
    m_form->outputFolder->setDispatcher(std::move(dispatcher));
    connect(m_form->backButton, &QPushButton::clicked, this, &OverviewView::backClicked);
}

OverviewView::~OverviewView() = default;

/// The picture waits until somebody looks: every module's view is made on the way to the first window.
void OverviewView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_form->pictureLabel->setPixmap(tarnwell::ImageNamed(QString::fromLatin1(m_overview.image), devicePixelRatioF()));
}

}  // namespace kestrel
