#include "DiscProbe.h"

#include <QJsonDocument>

namespace kestrel {

DiscProbe::~DiscProbe() = default;

void DiscProbe::ask(const DiscTools &tools, const QString &source)
{
    m_tool = std::make_unique<ToolProcess>(discInfoCommand(tools, source));
    connect(m_tool.get(), &ToolProcess::ended, this, [this](const ToolEnding &ending) {
        m_tool.release()->deleteLater();
        emit answered(discAnswer(ending));
    });
    m_tool->start();
}

void DiscProbe::stop()
{
    m_tool.reset();
}

DiscProbe::Answer discAnswer(const ToolEnding &ending)
{
    const QByteArray output = ending.output.trimmed();
    DiscToolLines lines;
    lines.read(output);
    auto contents = disc::discContentsFromJson(QJsonDocument::fromJson(output).object());
    if (!ending.isGood() || !contents)
        return foundation::Failure{discFailure(lines, ending)};
    return *std::move(contents);
}

}  // namespace kestrel
