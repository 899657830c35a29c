#pragma once

#include "modules/Module.h"
#include "modules/petrel/Analysis.h"
#include "modules/petrel/DownloadRecipe.h"
#include "modules/petrel/EngineUpdate.h"

#include <QObject>
#include <QPointer>
#include <QSet>

class QComboBox;
class QLineEdit;
class QMenu;

namespace kestrel {

class DownloadList;
class JobDetails;
class JobPage;
class JobQueue;
class LateView;
class SitePictures;

/// The download module: addresses that are added become jobs, looked at at once and downloaded when the user says so.
class PetrelController final : public QObject,
                               public ModuleController,
                               public ModuleAppearance,
                               public ModuleCoreUpdate {
    Q_OBJECT
public:
    PetrelController(const ModuleConfigure &configure, ModuleServices &services);
    ~PetrelController() override;

    void setCompletedHandler(CompletedHandler handler) override;
    QWidget *view() override;
    QString windowTitle() const override;
    void doBackAction() override;
    bool shouldTerminate() override;
    void markAppear() override;
    void checkCoreUpdateInBackground() override;

private:
    using PlanEdit = std::function<void(DownloadPlan &)>;

    std::unique_ptr<QWidget> makeContents();
    QWidget *makeAddressLine();
    void addChoices();
    void connectPage();
    JobQueue &queue();

    QVariant pictureOf(const JobRecord &record) const;
    EngineUpdate &engineUpdate();
    void updateEngine();

    void takeText(const QString &text);
    void takeFiles(const QStringList &paths);
    void add(const QStringList &addresses);
    void lookAt(JobId id);
    void lookAgain(const QList<JobId> &ids);
    void stopLooking(const QList<JobId> &ids);
    void prepare(JobId id);
    void answered(JobId id, const Analysis::Answer &answer);
    void chooseAmong(JobId id, const EngineAnswer &answer);
    void readChoice(const QComboBox *box, DownloadPlan &plan) const;
    void applyChoice(const QComboBox *box);
    PlanEdit followProxy() const;
    /// `chosenFolder` is where the results are to go; null for where they went or the settings want them.
    void changePlans(const QList<JobId> &ids, const PlanEdit &edit, const QString &chosenFolder = {});
    void extendMenu(QMenu *menu, const QList<JobId> &ids);
    void offerHelp(JobDetails *details, JobId id);
    void removeWithParts(const QList<JobId> &ids);
    void download();
    void followSettings();
    void showState();

    ModuleServices &m_services;
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    CompletedHandler m_completedHandler;
    DownloadRecipe m_recipe;
    std::unique_ptr<LateView> m_view;
    std::unique_ptr<EngineUpdate> m_update;
    QSet<JobId> m_asked;
    int m_atOnce = 0;
    DownloadPlan m_usual;  ///< of the settings, as the boxes have taken it over
    // From the making of the view's contents on
    std::unique_ptr<Analysis> m_analysis;
    std::unique_ptr<DownloadList> m_list;
    bool m_isToShow = false;
    std::unique_ptr<SitePictures> m_pictures;
    QPointer<JobPage> m_page;
    QPointer<QLineEdit> m_address;
    QPointer<QComboBox> m_formats, m_resolutions, m_limits;
};

}  // namespace kestrel
