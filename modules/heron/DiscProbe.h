#pragma once

#include "DiscFailure.h"
#include "DiscPlan.h"
#include "DiscTools.h"

#include "foundation/Result.h"

#include <QObject>

#include <memory>

namespace kestrel {

/// Asks a disc what it holds, in the background: a drive may take half a minute to spin up. One at a time; a new
/// question ends the one before. Main thread.
class DiscProbe : public QObject {
    Q_OBJECT
public:
    using Answer = foundation::Result<disc::DiscContents, tarnwell::Sentence>;

    using QObject::QObject;
    ~DiscProbe() override;

    void ask(const DiscTools &tools, const QString &source);
    void stop();
    bool isAsking() const { return m_tool != nullptr; }

signals:
    /// Once for each question that was not ended, later than `ask` returns.
    void answered(const kestrel::DiscProbe::Answer &answer);

private:
    std::unique_ptr<ToolProcess> m_tool;
};

/// What came of `discInfoCommand`.
DiscProbe::Answer discAnswer(const ToolEnding &ending);

}  // namespace kestrel
