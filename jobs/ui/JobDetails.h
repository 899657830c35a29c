#pragma once

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class JobDetails;
}

namespace kestrel {

struct JobRecord;

/// Tells everything about how a job ended: its sentence, its problems, what was left out, and the tools' own words to
/// read and to copy. Deletes itself when it is closed.
class JobDetails : public QDialog {
    Q_OBJECT
public:
    JobDetails(const JobRecord &record, QWidget *parent);
    ~JobDetails() override;

    /// Adds a button that closes it and does `action`.
    void offer(const QString &text, std::function<void()> action);

private:
    std::unique_ptr<Ui::JobDetails> m_form;
};

}  // namespace kestrel
