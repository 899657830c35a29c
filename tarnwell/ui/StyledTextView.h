#pragma once

#include "foundation/ui/StyledText.h"

#include <QTextBrowser>

namespace kestrel::tarnwell {

/// Shows a styled text: it wraps, scrolls, and can be selected and copied, but not changed. Links show their address
/// and open outside. Whatever the text says, nothing is loaded. Tab goes on to the next link, then to the next control.
/// With the vertical size policy Maximum it is as high as its text, where there is room; else as high as the layout
/// likes.
class StyledTextView : public QTextBrowser {
    Q_OBJECT
public:
    explicit StyledTextView(QWidget *parent = nullptr);

    /// Replaces what is shown; line ends at the end of the text do not count.
    void setStyledText(const foundation::StyledText &text);

    QVariant loadResource(int type, const QUrl &name) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

}  // namespace kestrel::tarnwell
