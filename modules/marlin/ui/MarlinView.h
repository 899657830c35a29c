#pragma once

#include <QWidget>

#include <memory>

class QModelIndex;

namespace Ui {
class MarlinView;
}

namespace kestrel {

class ConversionList;
class OutputFolderLine;
struct ConversionProgress;
struct ConversionTarget;

/// The conversion module's view: the list of files, what they become, and how far that is. It removes rows of the list
/// itself and tells the controller about the rest.
class MarlinView : public QWidget {
    Q_OBJECT
public:
    explicit MarlinView(ConversionList &list);
    ~MarlinView() override;

    OutputFolderLine *outputFolder() const;
    const ConversionTarget &target() const;

    void setFirstUseTipVisible(bool visible);
    /// While it runs rows stay, and the convert button is one that cancels.
    void setRunning(bool running);
    void setConvertible(bool convertible);
    void showProgress(const ConversionProgress &progress);
    void setStatus(const QString &text);

signals:
    void pathsChosen(const QStringList &paths);  ///< files and folders, dropped or picked
    void convertClicked();
    void cancelClicked();
    void backClicked();
    void targetChanged();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setUpTexts();
    void setUpList();
    void setUpActions();
    void updateControls();
    void chooseFiles();
    void removeSelected();
    void clear();
    void showDetails(const QModelIndex &index);

    ConversionList &m_list;
    std::unique_ptr<Ui::MarlinView> m_form;
    bool m_isRunning = false;
};

}  // namespace kestrel
