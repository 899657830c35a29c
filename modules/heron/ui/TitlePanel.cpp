#include "TitlePanel.h"

#include "modules/heron/DiscTexts.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_TitlePanel.h"

#include <QSignalBlocker>

#include <algorithm>

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

TitlePanel::TitlePanel(const QString &language, QWidget *parent)
    : QWidget(parent),
      m_language(language),
      m_form(std::make_unique<Ui::TitlePanel>())
{
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    tarnwell::setTextStyle(m_form->subjectLabel, 13, QFont::Bold, tarnwell::palette::title);
    for (QLabel *label : {m_form->firstLabel, m_form->lastLabel, m_form->angleLabel, m_form->burnLabel})
        tarnwell::setTextStyle(label, 13, QFont::Normal, tarnwell::palette::quietText);
    connect(m_form->playButton, &QPushButton::clicked, this, &TitlePanel::playClicked);
    for (QSpinBox *box : {m_form->firstBox, m_form->lastBox, m_form->angleBox})
        connect(box, &QSpinBox::valueChanged, this, &TitlePanel::take);
    connect(m_form->burnBox, &QComboBox::currentIndexChanged, this, &TitlePanel::take);
}

TitlePanel::~TitlePanel() = default;

void TitlePanel::showTitle(const disc::DiscTitle &title, const TitleChoice &choice)
{
    m_title = title;
    const int chapters = std::max(1, int(title.chapters.size()));
    const QSignalBlocker first(m_form->firstBox), last(m_form->lastBox), angle(m_form->angleBox), burn(m_form->burnBox);
    m_form->subjectLabel->setText(Sentence("Title %1"_key, {QString::number(title.number)}).localized());
    for (QSpinBox *box : {m_form->firstBox, m_form->lastBox})
        box->setRange(1, chapters);
    m_form->firstBox->setValue(choice.firstChapter);
    m_form->lastBox->setValue(choice.lastChapter == 0 ? chapters : choice.lastChapter);
    m_form->angleBox->setRange(1, title.angles);
    m_form->angleBox->setValue(choice.angle);
    m_form->burnBox->clear();
    m_form->burnBox->addItem("None"_key.localized());
    for (const disc::DiscSubtitle &track : title.subtitles)
        m_form->burnBox->addItem(subtitleText(track, m_language));
    m_form->burnBox->setCurrentIndex(choice.burnedSubtitle);
    showRows();
}

void TitlePanel::setUses(bool takesTitles, bool canBurn)
{
    m_takesTitles = takesTitles;
    m_canBurn = canBurn;
    showRows();
}

void TitlePanel::showRows()
{
    const auto show = [](bool isShown, std::initializer_list<QWidget *> row) {
        for (QWidget *widget : row)
            widget->setVisible(isShown);
    };
    show(m_takesTitles && m_title.chapters.size() > 1,
         {m_form->firstLabel, m_form->firstBox, m_form->lastLabel, m_form->lastBox});
    show(m_takesTitles && m_title.angles > 1, {m_form->angleLabel, m_form->angleBox});
    show(m_canBurn && !m_title.subtitles.isEmpty(), {m_form->burnLabel, m_form->burnBox});
}

/// The range stays one: the box that was moved takes the other along.
void TitlePanel::take()
{
    const QSignalBlocker first(m_form->firstBox), last(m_form->lastBox);
    if (sender() == m_form->lastBox)
        m_form->firstBox->setValue(std::min(m_form->firstBox->value(), m_form->lastBox->value()));
    else
        m_form->lastBox->setValue(std::max(m_form->firstBox->value(), m_form->lastBox->value()));
    const int lastChapter = m_form->lastBox->value();
    emit changed({.firstChapter = m_form->firstBox->value(),
                  .lastChapter = lastChapter == m_form->lastBox->maximum() ? 0 : lastChapter,
                  .angle = m_form->angleBox->value(),
                  .burnedSubtitle = std::max(0, m_form->burnBox->currentIndex())});
}

}  // namespace kestrel
