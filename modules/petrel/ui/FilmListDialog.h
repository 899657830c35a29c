#pragma once

#include "modules/petrel/EngineAnswer.h"

#include <QDialog>

#include <memory>

namespace Ui {
class FilmListDialog;
}

namespace kestrel {

/// The films of a page or a list, with check boxes and lengths; all are checked at first.
class FilmListDialog : public QDialog {
    Q_OBJECT
public:
    FilmListDialog(const EngineAnswer &answer, QWidget *parent);
    ~FilmListDialog() override;

    QList<int> chosenItems() const;  ///< as EngineAnswer::Entry has them

private:
    void checkAll(Qt::CheckState state);
    void showCount();

    std::unique_ptr<Ui::FilmListDialog> m_form;
};

}  // namespace kestrel
