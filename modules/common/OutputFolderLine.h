#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class OutputFolderLine;
}

namespace kestrel {

class JKestrelSettingDispatcher;

/// Shows a module's output folder, as the settings have it at any time or as the module says, with a button that opens
/// it.
class OutputFolderLine : public QWidget {
    Q_OBJECT
public:
    explicit OutputFolderLine(QWidget *parent = nullptr);
    ~OutputFolderLine() override;

    void setDispatcher(std::shared_ptr<JKestrelSettingDispatcher> dispatcher);
    /// Asked whenever it is shown; nothing for the folder of each source.
    void setFolder(std::function<std::optional<QString>()> folder);
    void showFolder();

private:
    void openFolder();

    std::unique_ptr<Ui::OutputFolderLine> m_form;
    std::function<std::optional<QString>()> m_folder;
};

}  // namespace kestrel
