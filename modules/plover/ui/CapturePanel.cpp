#include "CapturePanel.h"

#include "AreaChooser.h"
#include "PreviewPicture.h"
#include "ScreenOverlay.h"
#include "WindowChooser.h"
#include "foundation/Queues.h"
#include "jobs/ToolProcess.h"
#include "modules/plover/RecordCommand.h"
#include "modules/plover/RecordRecipe.h"
#include "modules/plover/ScreenCastPortal.h"
#include "modules/plover/X11Display.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QPointer>
#include <QProgressBar>
#include <QTimeEdit>

#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr auto previewInterval = 500ms;
const QString beginKey = u"begin"_s;  ///< beside the members of the plan
constexpr auto untilGone = 200ms;     ///< a list or a chooser that closes, from the picture of the screen
using What = RecordPlan::What;

/// What an entry of the sources stands for; a window of the number 0 is chosen by a click.
QVariantList entry(What what, const QVariant &name = {})
{
    return {int(what), name};
}

What whatOf(const QComboBox &sources, int index)
{
    return What(sources.itemData(index).toList().value(0).toInt());
}

/// Also a value that is not among the choices.
void showValue(QComboBox *box, const QVariant &value, const QString &text)
{
    if (box->findData(value) < 0)
        box->addItem(text, value);
    box->setCurrentIndex(box->findData(value));
}

QIcon iconOf(quint32 window, const QRect &area, QSize size)
{
    const QPixmap picture = displayPicture(window, area);
    return picture.isNull() ? QIcon() : picture.scaled(size * 2, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

CapturePanel::~CapturePanel() = default;

void CapturePanel::open(const QString &transcoderPath, const RecordPlan &usual, const QJsonObject &last)
{
    m_transcoderPath = transcoderPath;
    fillSources();
    fillCameras();
    if (!std::exchange(m_isRestored, true))
        restore(usual, last);
    fillMicrophones();
    m_preview.start(previewInterval);
    soundChosen();
    showPreview();
}

void CapturePanel::release()
{
    m_preview.stop();
    m_meter.close();
    m_camera.close();
    m_portal.reset();
    m_microphoneList.reset();
    m_picture->showPicture({});
}

void CapturePanel::fillSources()
{
    const QVariant chosen = m_sources->currentData();
    m_sources->clear();
    const auto display = X11Display::open();
    m_obstacle = display ? Sentence() : display.reason();
    if (!display && isWaylandSession())
        addPortal();
    if (display) {
        for (const X11Display::Monitor &monitor : (*display)->monitors())
            m_sources->addItem(iconOf(0, monitor.area, m_sources->iconSize()),
                               Sentence("Screen %1 (%2 × %3)"_key, {monitor.name, QString::number(monitor.area.width()),
                                                                    QString::number(monitor.area.height())})
                                   .localized(),
                               entry(What::Screen, monitor.name));
        m_sources->addItem("Part of the screen…"_key.localized(), entry(What::Area));
        m_sources->addItem("Window by a click…"_key.localized(), entry(What::Window, 0));
        for (const X11Display::Window &window : (*display)->windows())
            m_sources->addItem(iconOf(window.id, {{}, window.area.size()}, m_sources->iconSize()),
                               Sentence("Window: %1"_key, {window.title}).localized(), entry(What::Window, window.id));
    }
    for (const CameraDevice &camera : cameraDevices()) {
        m_obstacle = {};
        m_sources->addItem(Sentence("Camera %1"_key, {camera.name}).localized(), entry(What::Camera, camera.path));
    }
    int index = m_sources->findData(chosen);
    if (index < 0 && What(chosen.toList().value(0).toInt()) == What::Window)
        index = m_sources->findData(entry(What::Window, 0));  // it has gone: another one is to be chosen
    m_sources->setCurrentIndex(std::max(0, index));
}

/// Without a camera there is nothing to choose.
void CapturePanel::fillCameras()
{
    const QString chosen = m_insets->currentData().toString();
    const QSignalBlocker quiet(m_insets);
    m_insets->clear();
    m_insets->addItem("No camera in the picture"_key.localized(), QString());
    for (const CameraDevice &camera : cameraDevices())
        m_insets->addItem(Sentence("Camera %1 in the picture"_key, {camera.name}).localized(), camera.path);
    m_insets->setCurrentIndex(std::max(0, m_insets->findData(chosen)));
    m_insets->setVisible(m_insets->count() > 1);
    insetChosen();
}

/// As soon as the sound server has told them.
void CapturePanel::fillMicrophones()
{
    m_microphoneList =
        std::make_unique<ToolProcess>(ToolCommand{.program = m_transcoderPath,
                                                  .arguments = {u"-hide_banner"_s, u"-sources"_s, u"pulse"_s},
                                                  .timeLimit = 10s,
                                                  .collectsOutput = true});
    connect(m_microphoneList.get(), &ToolProcess::ended, this, [this](const ToolEnding &ending) {
        const QString chosen = m_microphones->currentData().toString();
        const QList<Microphone> found = microphonesIn(ending.output);
        bool isAsItWas = m_microphones->count() == found.size() + 1;
        for (qsizetype index = 0; isAsItWas && index < found.size(); ++index)
            isAsItWas = m_microphones->itemData(int(index) + 1) == found[index].name &&
                        m_microphones->itemText(int(index) + 1) == found[index].title;
        if (isAsItWas)  // the list may be open
            return;
        while (m_microphones->count() > 1)
            m_microphones->removeItem(1);
        for (const Microphone &microphone : found)
            m_microphones->addItem(microphone.title, microphone.name);
        showValue(m_microphones, chosen, chosen);
    });
    m_microphoneList->start();
}

/// What is there is the desktop's to show.
void CapturePanel::addPortal()
{
    m_obstacle = {};
    if (canShareAgain())
        m_sources->addItem("The same screen or window as last time"_key.localized(), entry(What::Portal, true));
    m_sources->addItem("Screen or window (the desktop asks)"_key.localized(), entry(What::Portal, false));
    m_portal = std::make_unique<ScreenCastPortal>();
    connect(m_portal.get(), &ScreenCastPortal::ended, this, [this](ScreenCastPortal::End, const Sentence &sentence) {
        for (int index = m_sources->count(); --index >= 0;) {
            if (whatOf(*m_sources, index) == What::Portal)
                m_sources->removeItem(index);
        }
        m_obstacle = m_sources->count() == 0 ? sentence : Sentence();
        showPreview();
    });
    m_portal->look([] {});
}

/// Windows and areas are others by now, and a time to begin at has passed.
void CapturePanel::restore(const RecordPlan &usual, const QJsonObject &choices)
{
    m_qualities->setCurrentIndex(m_qualities->findData(int(usual.quality)));
    showValue(m_rates, usual.rate, rateText(usual.rate));
    showValue(m_microphones, usual.microphone, usual.microphone);
    const auto lastPlan = RecordPlan::fromJson(choices);
    if (!lastPlan)
        return;
    const RecordPlan &last = *lastPlan;
    const auto show = [](QComboBox *box, const QVariant &value) {
        if (const int index = box->findData(value); index >= 0)
            box->setCurrentIndex(index);
    };
    if (last.what == What::Screen)
        show(m_sources, entry(What::Screen, last.screen));
    show(m_sounds, int(last.sound) + (last.sound == RecordPlan::Sound::Both && last.separateTracks ? 1 : 0));
    show(m_formats, int(last.container));
    show(m_limits, int(last.seconds));
    m_pointer->setChecked(last.pointer);
    if (const Begin begin{choices[beginKey].toInt(-1)}; begin != Begin::AtTime)
        show(m_begins, int(begin));
    QString camera = last.camera;
    if ((last.inset || last.what == What::Camera) && m_insets->findData(camera) < 1) {
        const CameraDevice first = cameraDevices().value(0);
        camera = first.path;
        emit noted(camera.isEmpty()
                       ? Sentence("No camera was found."_key)
                       : Sentence("The chosen camera is missing: %1 is recorded instead."_key, {first.name}));
    }
    if (last.what == What::Camera)
        show(m_sources, entry(What::Camera, camera));
    if (last.inset && !camera.isEmpty()) {
        show(m_insets, camera);
        m_picture->setInset(last.inset);
    }
}

QJsonObject CapturePanel::choices(const RecordPlan &plan) const
{
    QJsonObject choices = plan.toJson();
    choices[beginKey] = int(begin());
    return choices;
}

void CapturePanel::sourceChosen()
{
    const QVariantList chosen = m_sources->currentData().toList();
    const bool isWindow = chosen == entry(What::Window, 0);
    if (whatOf(*m_sources, m_sources->currentIndex()) == What::Camera)
        m_insets->setCurrentIndex(0);
    if (isWindow || whatOf(*m_sources, m_sources->currentIndex()) == What::Area) {
        foundation::queue::afterMain(untilGone, [self = QPointer(this), isWindow] {
            if (self && self->isOpen())
                isWindow ? self->chooseWindow() : self->chooseArea();
        });
    }
    showPreview();
}

void CapturePanel::soundChosen()
{
    if (!isOpen())
        return;
    RecordPlan plan;
    choose(plan);
    m_microphones->setEnabled(plan.sound == RecordPlan::Sound::Microphone || plan.sound == RecordPlan::Sound::Both);
    m_meter.open(m_transcoderPath, plan);
}

void CapturePanel::insetChosen()
{
    const bool isChosen = m_insets->currentIndex() > 0;
    m_picture->setInset(isChosen ? m_picture->inset().value_or(RecordPlan::Inset())
                                 : std::optional<RecordPlan::Inset>());
    showPreview();
}

void CapturePanel::chooseArea()
{
    auto *chooser = new AreaChooser(m_area);
    connect(chooser, &AreaChooser::chosen, this, [this](const QRect &area) { m_area = area; });
    connect(chooser, &QObject::destroyed, this, [this] {
        if (m_area.isEmpty())  // none was chosen
            m_sources->setCurrentIndex(0);
        showPreview();
    });
    chooser->show();
    chooser->activateWindow();
}

void CapturePanel::chooseWindow()
{
    const auto display = X11Display::open();
    if (!display)
        return;
    auto *chooser = new WindowChooser((*display)->windows());
    connect(chooser, &WindowChooser::chosen, this, [this](quint32 window) {
        foundation::queue::afterMain(untilGone, [self = QPointer(this), window] {
            if (!self || !self->isOpen())
                return;
            self->fillSources();
            self->m_sources->setCurrentIndex(std::max(0, self->m_sources->findData(entry(What::Window, window))));
            self->showPreview();
        });
    });
    chooser->show();
    chooser->activateWindow();
}

void CapturePanel::choose(RecordPlan &plan) const
{
    const QVariantList chosen = m_sources->currentData().toList();
    plan.what = What(chosen.value(0).toInt());
    plan.area = m_area.isEmpty() ? QRect(0, 0, 1280, 720) : m_area;
    plan.inset = plan.what == What::Camera ? std::nullopt : m_picture->inset();
    if (plan.inset)
        plan.camera = m_insets->currentData().toString();
    switch (plan.what) {
        case What::Screen:
            plan.screen = chosen.value(1).toString();
            break;
        case What::Window:
            plan.window = chosen.value(1).toUInt();
            break;
        case What::Camera:
            plan.camera = chosen.value(1).toString();
            break;
        case What::Portal:
            plan.again = chosen.value(1).toBool();
            break;
        case What::Area:
            break;
    }
    const int sound = m_sounds->currentData().toInt();
    plan.separateTracks = sound > int(RecordPlan::Sound::Both);
    plan.sound = plan.separateTracks ? RecordPlan::Sound::Both : RecordPlan::Sound(sound);
    plan.microphone = m_microphones->currentData().toString();
    plan.quality = RecordPlan::Quality(m_qualities->currentData().toInt());
    plan.rate = m_rates->currentData().toDouble();
    plan.container = RecordPlan::Container(m_formats->currentData().toInt());
    plan.pointer = m_pointer->isChecked();
    plan.seconds = m_limits->currentData().toInt();
}

void CapturePanel::setShowsClicks(bool shows)
{
    m_clicks->setChecked(shows);
}

bool CapturePanel::wantsClicks() const
{
    return m_clicks->isChecked();
}

bool CapturePanel::showsClicks() const
{
    return wantsClicks() && m_clicks->isEnabled();
}

/// The rings are windows of their own: the pixels of what is recorded must be those of the screen.
bool CapturePanel::canShowClicks(const RecordPlan &plan)
{
    if (plan.what != What::Window)
        return plan.what == What::Screen || plan.what == What::Area;
    const auto display = X11Display::open();
    return display && !(*display)->isComposited();
}

CapturePanel::Begin CapturePanel::begin() const
{
    return Begin(m_begins->currentData().toInt());
}

tarnwell::Sentence CapturePanel::obstacle() const
{
    const bool isWindowOpen = m_sources->currentData().toList() == entry(What::Window, 0);
    return isWindowOpen ? Sentence("Click the window that is to be recorded"_key) : m_obstacle;
}

QDateTime CapturePanel::beginTime() const
{
    const QDateTime today(QDate::currentDate(), m_time->time());
    return today > QDateTime::currentDateTime() ? today : today.addDays(1);
}

void CapturePanel::showPreview()
{
    if (!isOpen())
        return;
    RecordPlan plan;
    choose(plan);
    m_clicks->setEnabled(canShowClicks(plan));
    followCamera(plan);
    if (!m_obstacle.isEmpty())
        return m_picture->showText(m_obstacle.localized());
    if (plan.what == What::Portal)
        return m_picture->showPlace(
            "The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then."_key
                .localized());
    if (plan.what == What::Camera)
        return m_picture->showPicture(QPixmap::fromImage(m_camera.picture()));
    if (plan.what == What::Window && plan.window == 0)
        return m_picture->showText("Click the window that is to be recorded"_key.localized());
    const auto target = captureTarget(plan);
    if (!target)
        return m_picture->showText(target.reason().localized());
    m_picture->showPicture(displayPicture(target->window, target->area));
}

void CapturePanel::followCamera(const RecordPlan &plan)
{
    const auto camera = cameraTarget(plan);
    const bool isShown = plan.what == What::Camera || (plan.inset && plan.what != What::Portal);
    if (camera && isShown)
        m_camera.open(m_transcoderPath, *camera);
    else
        m_camera.close();
    m_picture->setCamera(plan.inset ? m_camera.picture() : QImage());
}

}  // namespace kestrel
