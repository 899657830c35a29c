#pragma once

#include "modules/petrel/EngineAnswer.h"

#include <QDialog>
#include <QPointer>

#include <memory>

namespace Ui {
class FilmListDialog;
}

namespace kestrel {

class SitePictures;

/// The films of a page or a list, with check boxes, lengths and the site's pictures; all are checked at first.
class FilmListDialog : public QDialog {
    Q_OBJECT
public:
    /// Without `pictures` the site's are not fetched.
    FilmListDialog(const EngineAnswer &answer, SitePictures *pictures, QWidget *parent);
    ~FilmListDialog() override;

    QList<int> chosenItems() const;  ///< as EngineAnswer::Entry has them

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showPictures();
    void checkAll(Qt::CheckState state);
    void showCount();

    std::unique_ptr<Ui::FilmListDialog> m_form;
    QPointer<SitePictures> m_pictures;
};

}  // namespace kestrel
