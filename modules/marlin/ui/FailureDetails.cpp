#include "FailureDetails.h"

#include "modules/marlin/ConversionList.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_FailureDetails.h"

#include <QClipboard>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>

namespace kestrel {

FailureDetails::FailureDetails(const ConversionItem &item, QWidget *parent)
    : QDialog(parent),
      m_form(std::make_unique<Ui::FailureDetails>())
{
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    m_form->reasonLabel->setText(tarnwell::AppLocalizedString(item.reason));
    m_form->nameLabel->setText(QFileInfo(item.path).fileName());
    m_form->messagesEdit->setPlainText(item.details);
    m_form->messagesEdit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    tarnwell::setTextStyle(m_form->reasonLabel, 13, QFont::Bold, tarnwell::palette::title);
    tarnwell::setTextStyle(m_form->nameLabel, 13, QFont::Normal, tarnwell::palette::quietText);
    m_form->closeButton->setFocus();
    connect(m_form->closeButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_form->copyButton, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_form->messagesEdit->toPlainText()); });
}

FailureDetails::~FailureDetails() = default;

}  // namespace kestrel
