#include "LateView.h"

#include <QVBoxLayout>

#include <utility>

namespace kestrel {

LateView::LateView(Make make) : m_make(std::move(make))
{
    resize(900, 600);
}

void LateView::makeContents()
{
    if (!m_make)
        return;
    QWidget *const contents = std::exchange(m_make, {})().release();  // which is this view's from now on
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(contents);
    contents->show();
}

// Not when it is polished: that comes as soon as it moves into a window.
void LateView::setVisible(bool visible)
{
    if (visible)
        makeContents();
    QWidget::setVisible(visible);
}

/// With its window
void LateView::showEvent(QShowEvent *)
{
    makeContents();
}

}  // namespace kestrel
