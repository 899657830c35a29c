#pragma once

#include "media/MediaProber.h"
#include "media/TranscodeRecipe.h"
#include "modules/Module.h"

#include <QObject>
#include <QPointer>

class QComboBox;

namespace kestrel {

class ConversionList;
class JobPage;
class JobQueue;
class LateView;

/// The conversion module: files that are added become jobs, looked at at once and converted when the user says so.
class MarlinController final : public QObject,
                               public ModuleController,
                               public ModuleFirstOpenTip,
                               public ModuleFileOpening {
    Q_OBJECT
public:
    MarlinController(const ModuleConfigure &configure, ModuleServices &services);
    ~MarlinController() override;

    void setCompletedHandler(CompletedHandler handler) override;
    QWidget *view() override;
    QString windowTitle() const override;
    void doBackAction() override;
    bool shouldTerminate() override;
    void showFirstOpenAppTip(bool show) override;
    void openFiles(const QStringList &paths) override;

private:
    std::unique_ptr<QWidget> makeContents();
    JobQueue &queue();
    void add(const QString &path);
    void lookAt(JobId id);
    void probed(JobId id, const MediaProber::Answer &answer);
    void chooseFiles();
    void choosePreset();
    void convert();
    bool canStart(QString *obstacle) const;
    void showState();

    ModuleServices &m_services;
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    CompletedHandler m_completedHandler;
    TranscodeRecipe m_recipe;
    MediaProber m_prober;
    std::unique_ptr<LateView> m_view;
    // From the making of the view's contents on
    std::unique_ptr<ConversionList> m_list;
    QPointer<JobPage> m_page;
    QPointer<QComboBox> m_presets;
};

}  // namespace kestrel
