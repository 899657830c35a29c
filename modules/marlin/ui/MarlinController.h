#pragma once

#include "modules/Module.h"
#include "modules/marlin/ConversionQueue.h"
#include "modules/marlin/MediaProber.h"

#include <QObject>
#include <QPointer>

namespace kestrel {

class LateView;
class MarlinView;

/// The conversion module: reads the files that the user adds, converts them with the transcoder, one after another,
/// into the output folder, and keeps its list as long as the application runs.
class MarlinController final : public QObject,
                               public ModuleController,
                               public ModuleFirstOpenTip,
                               public ModuleFileOpening {
    Q_OBJECT
public:
    explicit MarlinController(const ModuleConfigure &configure);
    ~MarlinController() override;

    void setCompletedHandler(CompletedHandler handler) override;
    QWidget *view() override;
    QString windowTitle() const override;
    void doBackAction() override;
    bool shouldTerminate() override;
    void showFirstOpenAppTip(bool show) override;
    void openFiles(const QStringList &paths) override;

private:
    void connectParts();
    std::unique_ptr<QWidget> makeContents();
    void probed(qint64 id, const std::optional<MediaInformation> &information, const QString &reason);
    void convert();
    bool canStart(QString *obstacle) const;
    bool mayLeave();
    void targetChanged();
    void finished(int succeeded, bool isCancelled);
    void showState();

    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    CompletedHandler m_completedHandler;
    ConversionList m_list;
    MediaProber m_prober;
    ConversionQueue m_queue;
    std::unique_ptr<LateView> m_view;
    QPointer<MarlinView> m_contents;  ///< null before they are made
};

}  // namespace kestrel
