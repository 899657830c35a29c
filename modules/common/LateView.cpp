#include "LateView.h"

#include <QEvent>
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
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(std::exchange(m_make, {})().release());  // which is this view's from now on
}

bool LateView::event(QEvent *event)
{
    // The last of what happens before a view shows, be it by itself or with its window.
    if (event->type() == QEvent::Polish)
        makeContents();
    return QWidget::event(event);
}

}  // namespace kestrel
