#pragma once

#include "modules/plover/CaptureTarget.h"

#include <QImage>

#include <memory>

namespace kestrel {

class ToolProcess;
class WorkFolder;

/// What a camera sees at the moment, a few pictures a second, for the eye. Holds the camera while it is open.
class CameraPicture {
public:
    CameraPicture();
    ~CameraPicture();

    /// Does nothing where that camera is open already.
    void open(const QString &transcoderPath, const CaptureTarget &camera);
    void close();
    /// The newest; null while there is none.
    QImage picture() const;

private:
    QString m_source;
    std::unique_ptr<WorkFolder> m_folder;
    std::unique_ptr<ToolProcess> m_tool;
};

}  // namespace kestrel
