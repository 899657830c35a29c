#include "CapturePanel.h"

#include "PreviewPicture.h"
#include "jobs/ToolProcess.h"
#include "modules/plover/ScreenCastPortal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLocale>
#include <QProgressBar>
#include <QTimeEdit>

// The panel's controls and where they stand.

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr QSize entryPicture(64, 36);

/// Windows, cameras and microphones come and go while the panel is open.
class SourceBox : public QComboBox {
public:
    explicit SourceBox(std::function<void()> refill) : m_refill(std::move(refill)) {}
    void showPopup() override
    {
        m_refill();
        QComboBox::showPopup();
    }

private:
    std::function<void()> m_refill;
};

QComboBox *named(QComboBox *box, const char *objectName, tarnwell::TextKey name)
{
    box->setObjectName(QLatin1StringView(objectName));
    box->setAccessibleName(name.localized());
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(12);
    return box;
}

}  // namespace

QString CapturePanel::rateText(double rate)
{
    return Sentence("%1 pictures a second"_key, {QLocale().toString(rate, 'g', 4)}).localized();
}

CapturePanel::CapturePanel()
    : m_sources(named(new SourceBox([this] { fillSources(); }), "sourceComboBox", "What to record"_key)),
      m_insets(named(new SourceBox([this] { fillCameras(); }), "insetComboBox", "Camera in the picture"_key)),
      m_sounds(named(new QComboBox, "soundComboBox", "Sound"_key)),
      m_microphones(named(new SourceBox([this] { fillMicrophones(); }), "microphoneComboBox", "Microphone"_key)),
      m_formats(named(new QComboBox, "formatComboBox", "Format"_key)),
      m_qualities(named(new QComboBox, "qualityComboBox", "Quality"_key)),
      m_rates(named(new QComboBox, "rateComboBox", "Pictures a second"_key)),
      m_begins(named(new QComboBox, "countdownComboBox", "Begin"_key)),
      m_limits(named(new QComboBox, "limitComboBox", "Stop after"_key)),
      m_time(new QTimeEdit),
      m_pointer(new QCheckBox("Show the pointer"_key.localized())),
      m_clicks(new QCheckBox("Show clicks"_key.localized())),
      m_picture(new PreviewPicture),
      m_level(new QProgressBar)
{
    makeChoices();
    arrange();
    connect(m_sources, &QComboBox::activated, this, &CapturePanel::sourceChosen);
    connect(m_insets, &QComboBox::currentIndexChanged, this, &CapturePanel::insetChosen);
    for (QComboBox *box : {m_sounds, m_microphones})
        connect(box, &QComboBox::activated, this, &CapturePanel::soundChosen);
    connect(m_begins, &QComboBox::currentIndexChanged, this, [this] {
        m_time->setVisible(begin() == Begin::AtTime);
        emit beginChosen();
    });
    connect(m_time, &QTimeEdit::timeChanged, this, &CapturePanel::beginChosen);
    connect(&m_preview, &QTimer::timeout, this, &CapturePanel::showPreview);
    connect(&m_meter, &LevelMeter::levelChanged, this, [this](double level) { m_level->setValue(int(level * 100)); });
}

void CapturePanel::makeChoices()
{
    using enum RecordPlan::Sound;
    const struct {
        QComboBox *box;
        tarnwell::TextKey text;
        int value;
    } choices[] = {{m_sounds, "Sound of the computer"_key, int(System)},
                   {m_sounds, "Microphone"_key, int(Microphone)},
                   {m_sounds, "Computer and microphone"_key, int(Both)},
                   {m_sounds, "Computer and microphone, a track each"_key, int(Both) + 1},
                   {m_sounds, "No sound"_key, int(None)},
                   {m_formats, "QuickTime movie (MOV)"_key, int(RecordPlan::Container::Mov)},
                   {m_formats, "MPEG-4 movie (MP4)"_key, int(RecordPlan::Container::Mp4)},
                   {m_qualities, "Small file"_key, int(RecordPlan::Quality::Small)},
                   {m_qualities, "Good quality"_key, int(RecordPlan::Quality::Good)},
                   {m_qualities, "Best quality"_key, int(RecordPlan::Quality::Best)},
                   {m_begins, "Count down from three"_key, int(Begin::AfterCountdown)},
                   {m_begins, "Begin at once"_key, int(Begin::AtOnce)},
                   {m_begins, "Begin at a time…"_key, int(Begin::AtTime)},
                   {m_limits, "Until it is stopped"_key, 0}};
    for (const auto &[box, text, value] : choices)
        box->addItem(text.localized(), value);
    for (const int minutes : {1, 5, 10, 30, 60})
        m_limits->addItem(Sentence("Stop after %1 min"_key, {QString::number(minutes)}).localized(), minutes * 60);
    for (const int rate : {15, 24, 30, 60})
        m_rates->addItem(rateText(rate), double(rate));
    m_microphones->addItem("Usual microphone"_key.localized(), QString());
    m_clicks->setObjectName(u"clicksCheckBox"_s);
    m_sources->setIconSize(entryPicture);
    m_time->setObjectName(u"beginTimeEdit"_s);
    m_time->setAccessibleName("Time at which the recording begins"_key.localized());
    const QTime now = QTime::currentTime();
    m_time->setTime(QTime(now.hour(), now.minute()).addSecs(5 * 60));  // the seconds are not shown
    m_time->hide();
    m_pointer->setObjectName(u"pointerCheckBox"_s);
    m_pointer->setChecked(true);
    m_level->setRange(0, 100);
    m_level->setTextVisible(false);
    m_level->setAccessibleName("Sound level"_key.localized());
}

void CapturePanel::arrange()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(16);
    layout->addWidget(m_picture);
    auto *choices = new QVBoxLayout;
    choices->setSpacing(8);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_sources, m_insets})
        choices->addWidget(widget);
    const auto addPair = [choices](QWidget *left, QWidget *right) {
        auto *pair = new QHBoxLayout;
        pair->addWidget(left, 1);
        pair->addWidget(right, 1);
        choices->addLayout(pair);
        return pair;
    };
    addPair(m_sounds, m_microphones);
    choices->addWidget(m_level);
    addPair(m_begins, m_limits)->insertWidget(1, m_time);
    addPair(m_formats, m_qualities);
    addPair(m_rates, m_pointer)->addWidget(m_clicks);
    choices->addStretch();
    layout->addLayout(choices, 1);
}

}  // namespace kestrel
