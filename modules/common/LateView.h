#pragma once

#include <QWidget>

#include <functional>
#include <memory>

namespace kestrel {

/// A module's root view whose contents are made when it is first shown, or earlier where somebody asks for them: the
/// host wants to know its size at launch, and hardly any start opens all modules. The contents fill it.
class LateView : public QWidget {
    Q_OBJECT
public:
    using Make = std::function<std::unique_ptr<QWidget>()>;

    /// 900 × 600 points, the size of every module. `make` is called once at the most.
    explicit LateView(Make make);

    void makeContents();
    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    Make m_make;
};

}  // namespace kestrel
