#include "CapturePanel.h"

#include "AreaChooser.h"
#include "modules/plover/RecordRecipe.h"
#include "modules/plover/ScreenCastPortal.h"
#include "modules/plover/X11Display.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>

#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr QSize pictureSize(320, 180);
constexpr auto previewInterval = 500ms;
using What = RecordPlan::What;

/// What an entry of the sources stands for.
QVariantList entry(What what, const QVariant &name = {})
{
    return {int(what), name};
}

QComboBox *named(QComboBox *box, const char *objectName, tarnwell::TextKey name)
{
    box->setObjectName(QLatin1StringView(objectName));
    box->setAccessibleName(name.localized());
    return box;
}

}  // namespace

CapturePanel::CapturePanel()
    : m_sources(named(new QComboBox, "sourceComboBox", "What to record"_key)),
      m_sounds(named(new QComboBox, "soundComboBox", "Sound"_key)),
      m_countdown(named(new QComboBox, "countdownComboBox", "Countdown"_key)),
      m_limits(named(new QComboBox, "limitComboBox", "Stop after"_key)),
      m_picture(new QLabel),
      m_level(new QProgressBar)
{
    using enum RecordPlan::Sound;
    m_sounds->addItem("Sound of the computer"_key.localized(), int(System));
    m_sounds->addItem("Microphone"_key.localized(), int(Microphone));
    m_sounds->addItem("Computer and microphone"_key.localized(), int(Both));
    m_sounds->addItem("No sound"_key.localized(), int(None));
    m_countdown->addItem("Count down from three"_key.localized(), true);
    m_countdown->addItem("Begin at once"_key.localized(), false);
    m_limits->addItem("Until it is stopped"_key.localized(), 0);
    for (const int minutes : {1, 5, 10, 30, 60})
        m_limits->addItem(Sentence("Stop after %1 min"_key, {QString::number(minutes)}).localized(), minutes * 60);
    m_picture->setObjectName(u"previewLabel"_s);
    m_picture->setFixedSize(pictureSize);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setWordWrap(true);
    m_level->setRange(0, 100);
    m_level->setTextVisible(false);
    m_level->setAccessibleName("Sound level"_key.localized());

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_picture, 0, 0, 6, 1);
    int row = 0;
    for (QWidget *widget : std::initializer_list<QWidget *>{m_sources, m_sounds, m_level, m_countdown, m_limits})
        layout->addWidget(widget, row++, 1);
    layout->setColumnStretch(1, 1);

    connect(m_sources, &QComboBox::activated, this, &CapturePanel::sourceChosen);
    connect(m_sounds, &QComboBox::activated, this, &CapturePanel::soundChosen);
    connect(&m_preview, &QTimer::timeout, this, &CapturePanel::showPreview);
    connect(&m_meter, &LevelMeter::levelChanged, this, [this](double level) { m_level->setValue(int(level * 100)); });
}

CapturePanel::~CapturePanel() = default;

void CapturePanel::open(const QString &transcoderPath)
{
    m_transcoderPath = transcoderPath;
    fillSources();
    m_preview.start(previewInterval);
    soundChosen();
    showPreview();
}

void CapturePanel::release()
{
    m_preview.stop();
    m_meter.close();
    m_portal.reset();
    m_picture->setPixmap({});
}

void CapturePanel::fillSources()
{
    m_sources->clear();
    const auto display = X11Display::open();
    m_obstacle = display ? Sentence() : display.reason();
    if (!display && isWaylandSession())
        addPortal();
    if (display) {
        for (const X11Display::Monitor &monitor : (*display)->monitors())
            m_sources->addItem(Sentence("Screen %1 (%2 × %3)"_key, {monitor.name, QString::number(monitor.area.width()),
                                                                    QString::number(monitor.area.height())})
                                   .localized(),
                               entry(What::Screen, monitor.name));
        m_sources->addItem("Part of the screen…"_key.localized(), entry(What::Area));
        for (const X11Display::Window &window : (*display)->windows())
            m_sources->addItem(Sentence("Window: %1"_key, {window.title}).localized(), entry(What::Window, window.id));
    }
    for (const QString &name : QDir(u"/dev"_s).entryList({u"video*"_s}, QDir::System, QDir::Name)) {
        m_obstacle = {};
        m_sources->addItem(Sentence("Camera %1"_key, {name}).localized(), entry(What::Camera, u"/dev/"_s + name));
    }
    emit changed();
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
            if (What(m_sources->itemData(index).toList().value(0).toInt()) == What::Portal)
                m_sources->removeItem(index);
        }
        m_obstacle = m_sources->count() == 0 ? sentence : Sentence();
        showPreview();
    });
    m_portal->look([] {});
}

void CapturePanel::sourceChosen()
{
    if (What(m_sources->currentData().toList().value(0).toInt()) == What::Area)
        chooseArea();
    showPreview();
}

void CapturePanel::soundChosen()
{
    RecordPlan plan;
    choose(plan);
    m_meter.open(m_transcoderPath, plan);
}

void CapturePanel::chooseArea()
{
    auto *chooser = new AreaChooser;
    connect(chooser, &AreaChooser::chosen, this, [this](const QRect &area) {
        m_area = area;
        showPreview();
    });
    chooser->show();
    chooser->activateWindow();
}

void CapturePanel::choose(RecordPlan &plan) const
{
    const QVariantList chosen = m_sources->currentData().toList();
    plan.what = What(chosen.value(0).toInt());
    plan.area = m_area.isEmpty() ? QRect(0, 0, 1280, 720) : m_area;
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
    plan.sound = RecordPlan::Sound(m_sounds->currentData().toInt());
    plan.seconds = m_limits->currentData().toInt();
}

bool CapturePanel::wantsCountdown() const
{
    return m_countdown->currentData().toBool();
}

void CapturePanel::showPreview()
{
    if (!isOpen())
        return;
    if (!m_obstacle.isEmpty())
        return m_picture->setText(m_obstacle.localized());
    RecordPlan plan;
    choose(plan);
    if (plan.what == What::Portal)
        return m_picture->setText(
            "The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then."_key
                .localized());
    if (!plan.hasPicturesOfDisplay())
        return m_picture->setText("The camera's picture is not shown before it is recorded."_key.localized());
    const auto target = captureTarget(plan);
    if (!target)
        return m_picture->setText(target.reason().localized());
    QScreen *screen = QGuiApplication::primaryScreen();
    const double ratio = screen->devicePixelRatio();
    const QRect area((QPointF(target->area.topLeft()) / ratio).toPoint(), target->area.size() / ratio);
    QPixmap picture = screen->grabWindow(target->window, area.x(), area.y(), area.width(), area.height());
    picture = picture.scaled(pictureSize * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatioF());
    m_picture->setPixmap(picture);
}

}  // namespace kestrel
