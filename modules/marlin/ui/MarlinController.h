#pragma once

#include "jobs/JobRecord.h"
#include "modules/Module.h"

#include <QObject>
#include <QPointer>

class QMenu;

namespace kestrel {

namespace foundation {
class UserDefaults;
}

class ConversionList;
class Conversions;
class JobPage;
class JobQueue;
class LateView;
class MediaPlayer;
struct MediaFiles;
class OptionsPanel;
class PresetChooser;
class Thumbnails;

/// The conversion module: files that are added become jobs, looked at at once and converted when the user says so.
class MarlinController final : public QObject,
                               public ModuleController,
                               public ModuleFirstOpenTip,
                               public ModuleFileOpening {
    Q_OBJECT
public:
    MarlinController(const ModuleConfigure &configure, ModuleServices &services);
    /// `defaults` keeps what the module remembers between starts; it outlives the module.
    MarlinController(const ModuleConfigure &configure, ModuleServices &services, foundation::UserDefaults &defaults);
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
    void addHeader();
    void addChoices();
    void connectPage();
    void addKeys();
    JobQueue &queue();
    QVariant pictureOf(const JobRecord &record) const;

    void addFiles(const MediaFiles &files);
    void chooseFiles();
    void choosePreset(const QString &id);
    void showFormats();
    void showPreset();
    void showSelection();
    void convert();
    void extendMenu(QMenu *menu, const QList<JobId> &ids);
    void editCurrent();
    void edit(JobId id);
    void join(const QList<JobId> &ids);
    void playSource(JobId id);
    void play(const QString &path);
    void showState();
    static void warn(const QString &message);

    ModuleServices &m_services;
    foundation::UserDefaults &m_defaults;
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    CompletedHandler m_completedHandler;
    std::unique_ptr<LateView> m_view;
    // From the making of the view's contents on
    std::unique_ptr<Conversions> m_conversions;
    std::unique_ptr<ConversionList> m_list;
    Thumbnails *m_thumbnails = nullptr;
    MediaPlayer *m_player = nullptr;
    QPointer<JobPage> m_page;
    QPointer<PresetChooser> m_presets;
    QPointer<OptionsPanel> m_options;
    JobId m_toEdit = 0;  ///< once its source is known
    bool m_isToShow = false;
    bool m_isToShowSelection = false;
};

}  // namespace kestrel
