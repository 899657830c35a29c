#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class FailureDetails;
}

namespace kestrel {

struct ConversionItem;

/// Shows why a file was not converted, with the tool's own words to read and to copy.
class FailureDetails : public QDialog {
    Q_OBJECT
public:
    FailureDetails(const ConversionItem &item, QWidget *parent);
    ~FailureDetails() override;

private:
    std::unique_ptr<Ui::FailureDetails> m_form;
};

}  // namespace kestrel
