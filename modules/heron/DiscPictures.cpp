#include "DiscPictures.h"

using namespace Qt::StringLiterals;

namespace kestrel {

DiscPictures::~DiscPictures() = default;

void DiscPictures::make(const DiscTools &tools, const QString &source, const QList<int> &titles)
{
    stop();
    m_tools = tools;
    m_source = source;
    m_titles = titles;
    m_folder = std::make_unique<WorkFolder>();
    next();
}

void DiscPictures::stop()
{
    m_tool.reset();
    m_titles.clear();
    m_folder.reset();
}

void DiscPictures::next()
{
    if (m_titles.isEmpty() || !m_folder->isValid())
        return;
    const int title = m_titles.takeFirst();
    const QString path = m_folder->filePath(u"%1.jpg"_s.arg(title));
    m_tool = std::make_unique<ToolProcess>(discCoverCommand(m_tools, m_source, title, path));
    connect(m_tool.get(), &ToolProcess::ended, this, [this, title, path](const ToolEnding &ending) {
        m_tool.release()->deleteLater();
        if (ending.isGood())
            emit made(title, path);
        next();
    });
    m_tool->start();
}

}  // namespace kestrel
