#pragma once

#include <QWidget>

namespace kestrel::tarnwell {

/// An image of the bundle in the middle of the view, at its own size or, where there is less room, as large as fits;
/// the mouse goes through it to what lies below.
class JJustImageView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName)
public:
    explicit JJustImageView(QWidget *parent = nullptr);

    QString imageName() const { return m_imageName; }
    void setImageName(const QString &name);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_imageName;
};

}  // namespace kestrel::tarnwell
