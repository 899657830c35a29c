#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class OverviewView;
}

namespace kestrel {

class JKestrelSettingDispatcher;
struct ModuleOverview;

/// The view of an `OverviewController`.
class OverviewView : public QWidget {
    Q_OBJECT
public:
    OverviewView(const ModuleOverview &overview, std::shared_ptr<JKestrelSettingDispatcher> dispatcher);
    ~OverviewView() override;

signals:
    void backClicked();

private:
    std::unique_ptr<Ui::OverviewView> m_form;
};

}  // namespace kestrel
