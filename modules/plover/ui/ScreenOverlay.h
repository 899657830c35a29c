#pragma once

#include <QPixmap>
#include <QWidget>

namespace kestrel {

/// What is to be seen now of a window, or of the desktop for 0; in pixels of the display, from the corner of what it
/// is.
QPixmap displayPicture(quint32 window, const QRect &area);

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
