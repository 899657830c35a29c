#pragma once

#include "modules/Module.h"
#include "modules/heron/DiscDrives.h"
#include "modules/heron/DiscPictures.h"
#include "modules/heron/DiscProbe.h"
#include "modules/heron/DiscRecipe.h"

#include <QHash>
#include <QObject>
#include <QPixmap>
#include <QPointer>

class QComboBox;
class QPushButton;

namespace kestrel {

class DiscList;
class DiscView;
class JobPage;
class JobQueue;
class LateView;
class MediaPlayer;
class OwnPresets;
class PresetChooser;

/// The DVD module: a disc, its titles and the way to keep them above the list of jobs. Drives are watched while the
/// module is open; what is in one that was put in last is shown where no disc is.
class HeronController final : public QObject,
                              public ModuleController,
                              public ModuleAppearance,
                              public ModuleDisappearance,
                              public ModuleFileOpening {
    Q_OBJECT
public:
    HeronController(const ModuleConfigure &configure, ModuleServices &services);
    ~HeronController() override;

    void setCompletedHandler(CompletedHandler handler) override;
    QWidget *view() override;
    QString windowTitle() const override;
    void doBackAction() override;
    bool shouldTerminate() override;
    void markAppear() override;
    void onViewDidDisappear() override;
    void openFiles(const QStringList &paths) override;

private:
    std::unique_ptr<QWidget> makeContents();
    void makeHeader();
    void makeChoices();
    void addKeys();
    JobQueue &queue();
    DiscTools tools() const;

    static void warn(const QString &message);
    void chooseImage();
    void chooseFolder();
    void openSource(const QString &source);
    void discAnswered(const DiscProbe::Answer &answer);
    bool isInUse(const QString &source);
    void showDrives();
    void showChoice();
    void showSizes();
    void showArea();

    void keepPicture(int title, const QString &path);
    QVariant pictureOf(const JobRecord &record) const;
    void playTitle(int number);
    void playResult(const QString &path);
    void playFilm(const DiscPlan &plan, const QStringList &choice, const QString &name);

    DiscWay way() const;
    const Preset *presetNamed(const QString &id) const;
    Preset preset() const;
    void choosePreset(const QString &id);
    void showFormats();
    QList<disc::DiscTitle> chosenTitles() const;
    DiscPlan draft() const;
    QList<DiscPlan> plans() const;
    bool canStart(const QList<DiscPlan> &plans, QString *obstacle) const;
    void removeLeftImages(const QString &module, int row, int count);
    QList<JobId> openJobs();
    void begin();

    ModuleServices &m_services;
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    CompletedHandler m_completedHandler;
    DiscRecipe m_recipe;
    DiscProbe m_probe;
    DiscPictures m_pictures;
    DiscDrives m_drives;
    QHash<QString, QPixmap> m_rowPictures;         ///< of the discs that were shown, by source and title
    QString m_source;                              ///< of the disc that is shown; null for none
    QString m_openedLabel;                         ///< that its drive told of it, if it is in one
    std::optional<disc::DiscContents> m_contents;  ///< once it has answered
    bool m_canMake = false;                        ///< of the disc what is chosen
    std::unique_ptr<LateView> m_view;
    // From the making of the view's contents on
    std::unique_ptr<DiscList> m_list;
    QPointer<JobPage> m_page;
    QPointer<DiscView> m_disc;
    QPointer<MediaPlayer> m_player;
    QPointer<QComboBox> m_driveBox, m_ways;
    QPointer<PresetChooser> m_presets;
    std::shared_ptr<OwnPresets> m_ownPresets;
    QString m_presetId;  ///< that of a rip; null for the first
    QPointer<QPushButton> m_optionsButton;
};

}  // namespace kestrel
