#include "_JKestrelWindow.h"

#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/WindowTitleBar.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace kestrel {

void _JKestrelTitleView::paintEvent(QPaintEvent *)
{
    constexpr double stripHeight = 22;
    const QPixmap picture = tarnwell::namedImage(u"kestrel_bg"_s, devicePixelRatioF());
    const double ratio = picture.devicePixelRatio();
    QPainter(this).drawPixmap(QRectF(rect()), picture, QRectF(0, 0, picture.width(), stripHeight * ratio));
}

double _JKestrelWindow::titleBarHeightFor(const std::optional<tarnwell::SystemVersion> &version)
{
    const bool isTall = version && (version->major > 10 || (version->major == 10 && version->minor >= 16));
    return isTall ? 30 : 22;
}

void _JKestrelWindow::makeInit()
{
    setTitleBarHeight(titleBarHeightFor(tarnwell::GetSystemVersion2()));
    titleBarView()->setBackgroundView(new _JKestrelTitleView(titleBarView()));
    setMovableByWindowBackground(true);
    setResizable(false);
    setAccessibleName(tarnwell::GetApplicationName());  // it has no title that could name it
}

void _JKestrelWindow::setTitle(const QString &)
{
    setWindowTitle(QString());
}

}  // namespace kestrel
