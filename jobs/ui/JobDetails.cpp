#include "JobDetails.h"

#include "jobs/JobText.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_JobDetails.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

QStringList linesOf(const JobRecord &record)
{
    const JobOutcome &outcome = record.outcome;
    QStringList lines;
    if (!record.note.isEmpty())
        lines.append(record.note.localized());
    for (const tarnwell::Sentence &problem : outcome.problems)
        lines.append(problem.localized());
    for (const tarnwell::Sentence &leftOut : outcome.leftOut)
        lines.append(tarnwell::Sentence("Left out: %1"_key, {leftOut.localized()}).localized());
    return lines;
}

}  // namespace

JobDetails::JobDetails(const JobRecord &record, QWidget *parent)
    : QDialog(parent),
      m_form(std::make_unique<Ui::JobDetails>())
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    const JobOutcome &outcome = record.outcome;
    const QString sentence = outcome.sentence.isEmpty() ? jobStateText(record) : outcome.sentence.localized();
    const QString problems = linesOf(record).join(u'\n');
    const struct {
        QLabel *label;
        QString text;
        QFont::Weight weight;
        QRgb color;
    } rows[] = {{m_form->sentenceLabel, sentence, QFont::Bold, tarnwell::palette::title},
                {m_form->nameLabel, record.source, QFont::Normal, tarnwell::palette::quietText},
                {m_form->problemsLabel, problems, QFont::Normal, tarnwell::palette::text}};
    for (const auto &[label, text, weight, color] : rows) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
        tarnwell::setTextStyle(label, 13, weight, color);
    }
    m_form->messagesEdit->setPlainText(outcome.details);
    m_form->messagesEdit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(m_form->closeButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_form->copyButton, &QPushButton::clicked, this, [this, sentence, problems] {
        const QStringList parts{sentence, m_form->nameLabel->text(), problems, m_form->messagesEdit->toPlainText()};
        QGuiApplication::clipboard()->setText(parts.join(u"\n\n"_s).trimmed());
    });
}

JobDetails::~JobDetails() = default;

void JobDetails::offer(const QString &text, std::function<void()> action)
{
    auto *button = new QPushButton(text, this);
    m_form->buttonLayout->insertWidget(1, button);
    setTabOrder(m_form->copyButton, button);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    connect(button, &QPushButton::clicked, this, std::move(action));
}

}  // namespace kestrel
