#pragma once

#include <QPixmap>
#include <QWidget>

namespace kestrel {

/// The whole desktop as it is when this is made, darkened, for something to be chosen on it. Goes by itself when it is
/// closed; Escape closes it.
class ScreenOverlay : public QWidget {
public:
    explicit ScreenOverlay(const QString &title);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// All but `bright`, which is framed and has `text` above it.
    void paintDarkened(const QRect &bright, const QString &text);
    /// Between the widget's points and the desktop's pixels.
    QRect pixelsOf(const QRect &area) const;
    QRect areaOf(const QRect &pixels) const;

private:
    QPixmap m_screen;
};

}  // namespace kestrel
