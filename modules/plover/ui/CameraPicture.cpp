#include "CameraPicture.h"

#include "jobs/ToolProcess.h"
#include "jobs/WorkFolder.h"
#include "modules/plover/RecordCommand.h"

using namespace Qt::StringLiterals;

namespace kestrel {

CameraPicture::CameraPicture() = default;

CameraPicture::~CameraPicture() = default;

void CameraPicture::open(const QString &transcoderPath, const CaptureTarget &camera)
{
    const QString source = camera.camera + camera.generator;
    if (source == m_source && m_tool->isRunning())
        return;
    close();
    m_source = source;
    m_folder = std::make_unique<WorkFolder>();
    m_tool = std::make_unique<ToolProcess>(ToolCommand{
        .program = transcoderPath, .arguments = cameraPictureArguments(camera, m_folder->filePath(u"picture.jpg"_s))});
    m_tool->start();
}

void CameraPicture::close()
{
    m_source.clear();
    m_tool.reset();
    m_folder.reset();
}

QImage CameraPicture::picture() const
{
    return m_folder ? QImage(m_folder->filePath(u"picture.jpg"_s), "jpg") : QImage();
}

}  // namespace kestrel
