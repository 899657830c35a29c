#include "JKestrelSearchView.h"

#include "tarnwell/ui/Palette.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace kestrel {

JKestrelSearchView::JKestrelSearchView(QWidget *parent) : JSuggestionItemView(parent), m_textfield(new QLabel(this))
{
    m_textfield->setObjectName(u"textfield"_s);
    m_textfield->setTextFormat(Qt::PlainText);
    auto *rowLayout = new QHBoxLayout(this);
    rowLayout->setContentsMargins(10, 4, 10, 4);
    rowLayout->addWidget(m_textfield);
}

void JKestrelSearchView::setItem(const tarnwell::SuggestionItem &item)
{
    m_textfield->setText(item.contents());
}

void JKestrelSearchView::onHighlightChanged()
{
    QPalette palette = m_textfield->palette();
    palette.setColor(QPalette::WindowText,
                     QColor(isHighlighted() ? tarnwell::palette::surface : tarnwell::palette::text));
    m_textfield->setPalette(palette);
}

}  // namespace kestrel
