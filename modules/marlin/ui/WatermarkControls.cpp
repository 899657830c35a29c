#include "WatermarkControls.h"

#include "tarnwell/TextKey.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

constexpr double percent = 100;

QDoubleSpinBox *percentBox(tarnwell::TextKey name, double least)
{
    auto *box = new QDoubleSpinBox;
    box->setRange(least, percent);
    box->setDecimals(0);
    box->setSingleStep(5);
    box->setSuffix(u" %"_s);
    box->setAccessibleName(name.localized());
    return box;
}

}  // namespace

WatermarkControls::WatermarkControls(QFormLayout *form, QObject *parent)
    : QObject(parent),
      m_text(new QLineEdit),
      m_picture(new QLineEdit),
      m_corner(new QComboBox),
      m_size(percentBox("Width of the picture"_key, 1)),
      m_opacity(percentBox("Opacity"_key, 0))
{
    m_text->setAccessibleName("Text"_key.localized());
    m_picture->setAccessibleName("Picture"_key.localized());
    m_picture->setReadOnly(true);
    m_picture->setClearButtonEnabled(true);
    m_corner->setAccessibleName("Corner"_key.localized());
    const std::pair<tarnwell::TextKey, Qt::Alignment> corners[] = {
        {"Bottom right"_key, Qt::AlignRight | Qt::AlignBottom},
        {"Bottom left"_key, Qt::AlignLeft | Qt::AlignBottom},
        {"Top right"_key, Qt::AlignRight | Qt::AlignTop},
        {"Top left"_key, Qt::AlignLeft | Qt::AlignTop},
        {"Middle"_key, Qt::AlignCenter}};
    for (const auto &[name, corner] : corners)
        m_corner->addItem(name.localized(), int(corner));
    auto *choose = new QPushButton("Choose…"_key.localized());
    auto *clear = new QPushButton("None"_key.localized());
    auto *pictureLine = new QHBoxLayout;
    pictureLine->setSpacing(8);
    for (QWidget *widget :
         {static_cast<QWidget *>(m_picture), static_cast<QWidget *>(choose), static_cast<QWidget *>(clear)})
        pictureLine->addWidget(widget);
    form->addRow("Text"_key.localized(), m_text);
    form->addRow("Picture"_key.localized(), pictureLine);
    form->addRow("Corner"_key.localized(), m_corner);
    form->addRow("Width of the picture"_key.localized(), m_size);
    form->addRow("Opacity"_key.localized(), m_opacity);
    connect(m_text, &QLineEdit::textEdited, this, &WatermarkControls::tell);
    connect(m_corner, &QComboBox::activated, this, &WatermarkControls::tell);
    connect(m_size, &QDoubleSpinBox::valueChanged, this, &WatermarkControls::tell);
    connect(m_opacity, &QDoubleSpinBox::valueChanged, this, &WatermarkControls::tell);
    connect(choose, &QPushButton::clicked, this, &WatermarkControls::choosePicture);
    connect(clear, &QPushButton::clicked, this, [this] {
        m_picture->clear();
        tell();
    });
}

void WatermarkControls::show(const TranscodePlan &plan)
{
    m_isShowing = true;
    const TranscodePlan::Watermark mark = plan.watermark.value_or(TranscodePlan::Watermark());
    if (!m_text->hasFocus())
        m_text->setText(mark.text);
    m_picture->setText(mark.imagePath);
    if (plan.watermark) {
        m_corner->setCurrentIndex(m_corner->findData(int(mark.corner)));
        m_size->setValue(mark.size * percent);
        m_opacity->setValue(mark.opacity * percent);
    } else if (m_size->value() <= m_size->minimum()) {
        m_size->setValue(mark.size * percent);
        m_opacity->setValue(mark.opacity * percent);
    }
    m_isShowing = false;
}

/// Without text and picture there is none.
void WatermarkControls::tell()
{
    if (m_isShowing)
        return;
    TranscodePlan::Watermark mark{.text = m_text->text(),
                                  .imagePath = m_picture->text(),
                                  .corner = Qt::Alignment(m_corner->currentData().toInt()),
                                  .opacity = m_opacity->value() / percent,
                                  .size = m_size->value() / percent};
    emit changed([mark](TranscodePlan &plan) {
        plan.watermark = mark.text.isEmpty() && mark.imagePath.isEmpty() ? std::nullopt : std::optional(mark);
    });
}

void WatermarkControls::choosePicture()
{
    const QString path =
        QFileDialog::getOpenFileName(m_picture, "Picture"_key.localized(), QString(),
                                     "Pictures"_key.localized() + u" (*.png *.jpg *.jpeg *.webp *.bmp)"_s);
    if (path.isEmpty())
        return;
    m_picture->setText(path);
    tell();
}

}  // namespace kestrel
