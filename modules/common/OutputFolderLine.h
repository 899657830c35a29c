#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class OutputFolderLine;
}

namespace kestrel {

class JKestrelSettingDispatcher;

/// Shows a module's output folder, as the settings have it at any time, with a button that opens it.
class OutputFolderLine : public QWidget {
    Q_OBJECT
public:
    explicit OutputFolderLine(QWidget *parent = nullptr);
    ~OutputFolderLine() override;

    void setDispatcher(std::shared_ptr<JKestrelSettingDispatcher> dispatcher);

private:
    void showFolder();
    void openFolder();

    std::unique_ptr<Ui::OutputFolderLine> m_form;
    std::shared_ptr<JKestrelSettingDispatcher> m_dispatcher;
};

}  // namespace kestrel
