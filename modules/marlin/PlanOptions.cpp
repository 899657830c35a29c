#include "PlanOptions.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using tarnwell::operator""_key;

/// A field in units of `scale`.
template <auto Member, int scale = 1>
double fieldOf(const Plan &plan)
{
    return double(plan.*Member) / scale;
}

template <auto Member, int scale = 1>
void setField(Plan &plan, double value)
{
    using Field = std::remove_reference_t<decltype(plan.*Member)>;
    if constexpr (std::is_floating_point_v<Field>)
        plan.*Member = value * scale;
    else
        plan.*Member = Field(std::llround(value * scale));
}

constexpr int kilo = 1000;
constexpr int mega = 1'000'000;

constexpr OptionChoice rateControls[] = {{"As the format has it"_key, int(Plan::RateControl::Preset)},
                                         {"Steady quality"_key, int(Plan::RateControl::Quality)},
                                         {"Bit rate"_key, int(Plan::RateControl::BitRate)},
                                         {"File size at most"_key, int(Plan::RateControl::Size)}};
constexpr OptionChoice speeds[] = {{"Slowest, smallest file"_key, -2},
                                   {"Slower, smaller file"_key, -1},
                                   {"Usual"_key, 0},
                                   {"Faster, larger file"_key, 1},
                                   {"Fastest, largest file"_key, 2}};
constexpr OptionChoice sizes[] = {{"As the source"_key, 0},      {"4K (3840 × 2160)"_key, 2160},
                                  {"2560 × 1440"_key, 1440},     {"Full HD (1920 × 1080)"_key, 1080},
                                  {"HD (1280 × 720)"_key, 720},  {"DVD (720 × 576)"_key, 576},
                                  {"Small (640 × 480)"_key, 480}};
constexpr OptionChoice frameRates[] = {{"As the source"_key, 0}, {"23.976"_key, 24000 / 1001.0}, {"24"_key, 24},
                                       {"25"_key, 25},           {"29.97"_key, 30000 / 1001.0},  {"30"_key, 30},
                                       {"50"_key, 50},           {"59.94"_key, 60000 / 1001.0},  {"60"_key, 60}};
constexpr OptionChoice deinterlacings[] = {{"Where it is needed"_key, int(Plan::Deinterlace::Auto)},
                                           {"Never"_key, int(Plan::Deinterlace::Off)},
                                           {"Always"_key, int(Plan::Deinterlace::On)},
                                           {"Always, twice the pictures"_key, int(Plan::Deinterlace::DoubleRate)},
                                           {"Film from television (24)"_key, int(Plan::Deinterlace::Film)}};
constexpr OptionChoice ranges[] = {{"Kept where it can be"_key, int(Plan::HighDynamicRange::Auto)},
                                   {"Always kept"_key, int(Plan::HighDynamicRange::Keep)},
                                   {"Turned into standard"_key, int(Plan::HighDynamicRange::ToStandard)}};
constexpr OptionChoice turns[] = {{"Not turned"_key, int(Plan::Turn::None)},
                                  {"Clockwise"_key, int(Plan::Turn::Clockwise)},
                                  {"Counterclockwise"_key, int(Plan::Turn::CounterClockwise)},
                                  {"Upside down"_key, int(Plan::Turn::UpsideDown)}};
constexpr OptionChoice mixes[] = {{"As the source"_key, int(Plan::SoundMix::AsSource)},
                                  {"Mono"_key, int(Plan::SoundMix::Mono)},
                                  {"Stereo"_key, int(Plan::SoundMix::Stereo)},
                                  {"Surround 5.1"_key, int(Plan::SoundMix::Surround51)}};
constexpr OptionChoice soundRates[] = {
    {"As the format has it"_key, 0}, {"64 kbit/s"_key, 64},   {"96 kbit/s"_key, 96},   {"128 kbit/s"_key, 128},
    {"160 kbit/s"_key, 160},         {"192 kbit/s"_key, 192}, {"256 kbit/s"_key, 256}, {"320 kbit/s"_key, 320},
    {"448 kbit/s"_key, 448},         {"640 kbit/s"_key, 640}};

double sizeOf(const Plan &plan)
{
    return plan.maximumHeight;
}

void setSize(Plan &plan, double height)
{
    constexpr std::pair<int, int> widths[] = {{2160, 3840}, {1440, 2560}, {1080, 1920},
                                              {720, 1280},  {576, 720},   {480, 640}};
    plan.maximumHeight = int(height);
    plan.maximumWidth = 0;
    for (const auto &[row, width] : widths) {
        if (row == plan.maximumHeight)
            plan.maximumWidth = width;
    }
}

template <Plan::RateControl Wanted>
bool isRateControl(const Plan &plan)
{
    return plan.rateControl == Wanted;
}

bool encodesVideo(const Plan &plan)
{
    return plan.preset.takesVideo() && plan.preset.videoCodec != "copy"_L1;
}

bool encodesSound(const Plan &plan)
{
    return plan.preset.takesAudio() && plan.preset.audioCodec != "copy"_L1;
}

double rateControlOf(const Plan &plan)
{
    return int(plan.rateControl);
}

/// An aim begins at a figure that people mean. Sound alone knows no aim but the size: its rate has a row of its own.
void setRateControl(Plan &plan, double value)
{
    constexpr qint64 usualBytes = 25 * mega, usualBitRate = 2 * mega;
    plan.rateControl = Plan::RateControl(int(value));
    if (!encodesVideo(plan) && plan.rateControl != Plan::RateControl::Size)
        plan.rateControl = Plan::RateControl::Preset;
    if (plan.rateControl == Plan::RateControl::Size && plan.maximumBytes == 0)
        plan.maximumBytes = usualBytes;
    if (plan.rateControl == Plan::RateControl::BitRate && plan.videoBitRate == 0)
        plan.videoBitRate = usualBitRate;
}

bool encodesAnything(const Plan &plan)
{
    return encodesVideo(plan) || encodesSound(plan);
}

struct Access {
    double (*get)(const Plan &);
    void (*set)(Plan &, double);
};
template <auto Member, int scale = 1>
constexpr Access access{fieldOf<Member, scale>, setField<Member, scale>};

using Applies = bool (*)(const Plan &);
using enum OptionPage;

PlanOption flag(const char *id, OptionPage page, tarnwell::TextKey label, Access access)
{
    return {
        .id = id, .page = page, .label = label, .kind = PlanOption::Kind::Switch, .get = access.get, .set = access.set};
}

PlanOption choice(const char *id, OptionPage page, tarnwell::TextKey label, Access access,
                  std::span<const OptionChoice> choices, Applies applies = nullptr)
{
    return {.id = id,
            .page = page,
            .label = label,
            .kind = PlanOption::Kind::Choice,
            .get = access.get,
            .set = access.set,
            .choices = choices,
            .applies = applies};
}

struct Range {
    double least, most, step;
    int decimals = 0;
    tarnwell::TextKey unit = {};
    tarnwell::TextKey atLeast = {};
};

PlanOption number(const char *id, OptionPage page, tarnwell::TextKey label, Access access, const Range &range,
                  Applies applies = nullptr)
{
    return {.id = id,
            .page = page,
            .label = label,
            .kind = PlanOption::Kind::Number,
            .get = access.get,
            .set = access.set,
            .least = range.least,
            .most = range.most,
            .step = range.step,
            .decimals = range.decimals,
            .unit = range.unit,
            .atLeast = range.atLeast,
            .applies = applies};
}

const PlanOption rows[] = {
    choice("rateControl", Video, "Aim"_key, {rateControlOf, setRateControl}, rateControls, encodesAnything),
    number("quality", Video, "Quality (lower is better)"_key, access<&Plan::quality>,
           {.least = 0, .most = 63, .step = 1, .atLeast = "Usual"_key}, isRateControl<Plan::RateControl::Quality>),
    number("videoBitRate", Video, "Bit rate"_key, access<&Plan::videoBitRate, kilo>,
           {.least = 50, .most = 200'000, .step = 500, .unit = "%1 kbit/s"_key},
           isRateControl<Plan::RateControl::BitRate>),
    number("maximumBytes", Video, "At most"_key, access<&Plan::maximumBytes, mega>,
           {.least = 1, .most = 1'000'000, .step = 5, .unit = "%1 MB"_key}, isRateControl<Plan::RateControl::Size>),
    choice("speed", Video, "Speed"_key, access<&Plan::speed>, speeds, encodesVideo),
    flag("best", Video, "High quality (slower)"_key, access<&Plan::best>),
    flag("hardware", Video, "Use the graphics hardware"_key, access<&Plan::hardware>),
    flag("copies", Video, "Keep tracks that fit as they are"_key, access<&Plan::copies>),
    number("threads", Video, "Processor cores"_key, access<&Plan::threads>,
           {.least = 0, .most = 256, .step = 1, .atLeast = "All"_key}),

    choice("size", Picture, "Size at most"_key, {sizeOf, setSize}, sizes, encodesVideo),
    choice("frameRate", Picture, "Pictures a second"_key, access<&Plan::frameRate>, frameRates, encodesVideo),
    choice("deinterlace", Picture, "Deinterlacing"_key, access<&Plan::deinterlace>, deinterlacings),
    choice("dynamicRange", Picture, "High dynamic range"_key, access<&Plan::dynamicRange>, ranges),
    choice("turn", Picture, "Turn"_key, access<&Plan::turn>, turns),
    flag("mirrored", Picture, "Mirror"_key, access<&Plan::mirrored>),
    number("brightness", Picture, "Brightness"_key, access<&Plan::brightness>,
           {.least = -1, .most = 1, .step = 0.05, .decimals = 2}),
    number("contrast", Picture, "Contrast"_key, access<&Plan::contrast>,
           {.least = 0, .most = 2, .step = 0.05, .decimals = 2}),
    number("saturation", Picture, "Saturation"_key, access<&Plan::saturation>,
           {.least = 0, .most = 3, .step = 0.05, .decimals = 2}),

    flag("exactCuts", Cut, "Cut exactly (encodes)"_key, access<&Plan::exactCuts>),
    number("speedFactor", Cut, "Playing speed"_key, access<&Plan::speedFactor>,
           {.least = 0.25, .most = 4, .step = 0.25, .decimals = 2, .unit = "%1 ×"_key}),
    number("fadeIn", Cut, "Fade in"_key, access<&Plan::fadeIn>,
           {.least = 0, .most = 60, .step = 0.5, .decimals = 1, .unit = "%1 s"_key}),
    number("fadeOut", Cut, "Fade out"_key, access<&Plan::fadeOut>,
           {.least = 0, .most = 60, .step = 0.5, .decimals = 1, .unit = "%1 s"_key}),

    choice("mix", Sound, "Channels"_key, access<&Plan::mix>, mixes, encodesSound),
    choice("audioBitRate", Sound, "Bit rate of a track"_key, access<&Plan::audioBitRate, kilo>, soundRates,
           encodesSound),
    number("volume", Sound, "Volume"_key, access<&Plan::volume>,
           {.least = -60, .most = 60, .step = 1, .unit = "%1 dB"_key}),
    flag("normalizes", Sound, "Even out the loudness"_key, access<&Plan::normalizes>),

    flag("safeMode", Output, "Safe mode: check the whole result"_key, access<&Plan::safeMode>),
    flag("keepsDate", Output, "Keep the date of the source"_key, access<&Plan::keepsDate>),
    flag("chapterPerSource", Output, "A chapter for each joined file"_key, access<&Plan::chapterPerSource>),
};

}  // namespace

std::span<const PlanOption> planOptions()
{
    return rows;
}

const PlanOption *planOption(QLatin1StringView id)
{
    const auto *found =
        std::ranges::find_if(rows, [id](const PlanOption &row) { return id == QLatin1StringView(row.id); });
    return found == std::end(rows) ? nullptr : found;
}

}  // namespace kestrel
