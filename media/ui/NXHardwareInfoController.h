#pragma once

#include "media/HardwareInformation.h"
#include "tarnwell/ui/JPresentWindowController.h"

namespace Ui {
class NXHardwareInfoController;
}

namespace kestrel {

class CodecQuery;

/// Shows what the machine has for video work, gathered in the background and copyable as text: processor, cores,
/// memory, graphics devices, and the H.264 and HEVC encoders and decoders of a transcoder. It looks anew each time that
/// it is presented.
class NXHardwareInfoController final : public tarnwell::JPresentWindowController {
    Q_OBJECT
public:
    NXHardwareInfoController();
    ~NXHardwareInfoController() override;
    static NXHardwareInfoController &loadDefaultWindowController();

    /// The transcoder to ask; a missing one is said in the window.
    void setEncoderPath(const QString &path);

protected:
    void windowDidLoad(QDialog *window) override;
    void windowWillPresent() override;

private:
    void gather();
    void askTranscoder(const HardwareInformation &hardware);
    void showRows(const QList<HardwareRow> &rows);

    std::unique_ptr<Ui::NXHardwareInfoController> m_form;
    std::unique_ptr<CodecQuery> m_query;
    QString m_encoderPath;
    QList<HardwareRow> m_rows;
    int m_gathering = 0;  ///< the number of the last search; what an earlier one finds is not shown
};

}  // namespace kestrel
