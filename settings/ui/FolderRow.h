#pragma once

#include <QWidget>

#include <memory>

class QAbstractButton;

namespace Ui {
class FolderRow;
}

namespace kestrel {

/// One output folder on the settings page: its name, with a note on what it is good for, its path (elided in the
/// middle, whole in the tooltip), a button to choose another and one to open it.
class FolderRow : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    Q_PROPERTY(QString note READ note WRITE setNote)
    Q_PROPERTY(QString path READ path WRITE setPath USER true)
public:
    explicit FolderRow(QWidget *parent = nullptr);
    ~FolderRow() override;

    QString caption() const;
    void setCaption(const QString &caption);
    QString note() const;
    void setNote(const QString &note);
    QString path() const { return m_path; }
    void setPath(const QString &path);  ///< empty where none is chosen

    QAbstractButton *chooseButton() const;
    QAbstractButton *openButton() const;
    /// Tells assistive programs which of the page's rows the controls belong to.
    void setSectionTitle(const QString &title);

private:
    std::unique_ptr<Ui::FolderRow> m_form;
    QString m_path;
};

}  // namespace kestrel
