#include "TrackOptions.h"

#include "foundation/LanguageTags.h"
#include "media/Encoders.h"
#include "media/SubtitleFile.h"
#include "media/TrackPlan.h"
#include "tarnwell/TextKey.h"
#include "tarnwell/ui/TabOrder.h"
#include "tarnwell/ui/TextStyles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using tarnwell::operator""_key;

/// That subtitles are most often in.
constexpr const char *usualLanguages =
    "ar bg bn ca cs da de el en es et eu fa fi fr gl he hi hr hu id is it ja ko lt lv mk ms nl no pl pt pt-BR ro ru sk "
    "sl sq sr sv ta te th tr uk ur vi zh-Hans zh-Hant";

QLabel *hintLabel(tarnwell::TextKey text)
{
    auto *label = new QLabel(text.localized());
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    tarnwell::setTextStyle(label, 12, QFont::Normal, tarnwell::palette::quietText);
    return label;
}

}  // namespace

TrackOptions::TrackOptions(QVBoxLayout *sounds, QVBoxLayout *subtitles, QObject *parent)
    : QObject(parent),
      m_soundLayout(sounds),
      m_subtitleLayout(subtitles)
{
}

QString TrackOptions::nameOf(const MediaTrack &track) const
{
    QStringList parts;
    if (!track.language.isEmpty())
        parts.append(foundation::languageDisplayName(track.language, m_language));
    if (!track.title.isEmpty())
        parts.append(track.title);
    if (track.isForced)
        parts.append("forced"_key.localized());
    if (parts.isEmpty())
        parts.append(tarnwell::Sentence("Track %1"_key, {QString::number(track.index)}).localized());
    parts.append(codecLabel(track.codec));
    if (track.channels > 0)
        parts.append(track.channelLayout.isEmpty() ? QString::number(track.channels) : track.channelLayout);
    return parts.join(u" · "_s);
}

void TrackOptions::show(const TranscodePlan &plan, const QList<MediaInformation> &sources, const QString &language)
{
    m_language = language;
    const bool isOne = sources.size() == 1 && !plan.sources.isEmpty();
    QStringList shown = plan.sources.mid(0, isOne ? 1 : 0);
    for (const MediaInformation &source : sources) {
        for (const MediaTrack &track : source.tracks)
            shown.append(track.language);
    }
    for (const Plan::ExternalSubtitle &file : plan.externalSubtitles)
        shown.append(file.path);
    // Where another is burnt in now, this one no longer is.
    shown +=
        {QString::number(plan.subtitles.key(Plan::SubtitleUse::Burn, -1)), plan.soundLanguages, plan.subtitleLanguages};
    if (shown == m_shown)
        return;
    m_shown = shown;
    QString focused;
    for (QWidget *widget : std::as_const(m_made)) {
        if (widget->hasFocus())
            focused = widget->objectName();
        widget->deleteLater();
    }
    m_made.clear();
    if (isOne) {
        showSounds(plan, sources.first());
        showSubtitles(plan, sources.first());
        showFiles(plan);
    } else {
        showLanguages(plan, sources, MediaTrack::Kind::Audio);
        showLanguages(plan, sources, MediaTrack::Kind::Subtitle);
    }
    for (QVBoxLayout *layout : {m_soundLayout, m_subtitleLayout}) {
        if (!isOne) {
            m_made.append(hintLabel("Select one file in the list to choose among its tracks."_key));
            layout->addWidget(m_made.last());
        }
        tarnwell::tabInLayoutOrder(*layout->parentWidget());
    }
    for (QWidget *widget : std::as_const(m_made)) {
        if (!focused.isEmpty() && widget->objectName() == focused)
            widget->setFocus();
    }
}

/// Those that the files have, each once.
void TrackOptions::showLanguages(const TranscodePlan &plan, const QList<MediaInformation> &sources,
                                 MediaTrack::Kind kind)
{
    const bool isSound = kind == MediaTrack::Kind::Audio;
    const QString chosen = isSound ? plan.soundLanguages : plan.subtitleLanguages;
    auto *box = new QComboBox;
    box->setObjectName(isSound ? u"soundLanguages"_s : u"subtitleLanguages"_s);
    box->setAccessibleName((isSound ? "Languages of sound"_key : "Languages of subtitles"_key).localized());
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->addItem("All languages"_key.localized(), QString());
    if (!isSound)
        box->addItem("No subtitles"_key.localized(), u"none"_s);
    const auto add = [&](const QString &code) {
        const QString name = foundation::languageDisplayName(code, m_language);
        if (!code.isEmpty() && box->findText(name) < 0)
            box->addItem(name, code);
    };
    for (const MediaInformation &source : sources) {
        for (const MediaTrack &track : source.tracksOf(kind))
            add(track.language);
    }
    if (box->findData(chosen) < 0)
        add(chosen);
    const int place = box->findData(chosen);  // or another code of that language
    box->setCurrentIndex(place >= 0 ? place : box->findText(foundation::languageDisplayName(chosen, m_language)));
    connect(box, &QComboBox::activated, this, [this, box, isSound](int index) {
        emit changed([isSound, code = box->itemData(index).toString()](TranscodePlan &changing) {
            (isSound ? changing.soundLanguages : changing.subtitleLanguages) = code;
        });
    });
    (isSound ? m_soundLayout : m_subtitleLayout)->addWidget(box);
    m_made.append(box);
}

void TrackOptions::showSounds(const TranscodePlan &plan, const MediaInformation &source)
{
    const QList<MediaTrack> tracks = source.tracksOf(MediaTrack::Kind::Audio);
    QList<int> all;
    for (const MediaTrack &track : tracks)
        all.append(track.index);
    const QList<int> wanted = wantedSoundIndexes(plan, source);
    TranscodePlan unnamed = plan;
    unnamed.audioTracks.reset();
    const QList<int> byLanguage = wantedSoundIndexes(unnamed, source);  // while none is named
    for (const MediaTrack &track : tracks) {
        auto *box = new QCheckBox(nameOf(track));
        box->setChecked(wanted.contains(track.index));
        connect(box, &QCheckBox::toggled, this, [this, all, byLanguage, index = track.index](bool isKept) {
            emit changed([all, byLanguage, index, isKept](TranscodePlan &changing) {
                QList<int> kept = changing.audioTracks.value_or(byLanguage);
                kept.removeAll(index);
                if (isKept)
                    kept.append(index);
                std::sort(kept.begin(), kept.end());
                const bool isAll = kept == all && changing.soundLanguages.isEmpty();
                changing.audioTracks = isAll ? std::nullopt : std::optional(kept);
            });
        });
        m_soundLayout->addWidget(box);
        m_made.append(box);
    }
}

QWidget *TrackOptions::line(const QString &text, Plan::SubtitleUse use,
                            const std::function<void(TranscodePlan &, Plan::SubtitleUse)> &set)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto *box = new QComboBox;
    box->addItems(
        {"Kept as a track"_key.localized(), "Burnt into the picture"_key.localized(), "Left out"_key.localized()});
    box->setCurrentIndex(int(use));
    box->setAccessibleName(text);
    connect(box, &QComboBox::activated, this, [this, set](int index) {
        emit changed([set, index](TranscodePlan &plan) { set(plan, Plan::SubtitleUse(index)); });
    });
    auto *row = new QWidget;
    auto *layout = new QVBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(label);
    layout->addWidget(box);
    m_made.append(row);
    m_subtitleLayout->addWidget(row);
    return row;
}

void TrackOptions::showSubtitles(const TranscodePlan &plan, const MediaInformation &source)
{
    for (const MediaTrack &track : source.tracksOf(MediaTrack::Kind::Subtitle)) {
        line(nameOf(track), useOfSubtitle(plan, track),
             [index = track.index](TranscodePlan &changing, Plan::SubtitleUse use) {
                 // Only one can be burnt in.
                 if (use == Plan::SubtitleUse::Burn)
                     changing.subtitles.removeIf(
                         [](const auto &each) { return each.value() == Plan::SubtitleUse::Burn; });
                 changing.subtitles.insert(index, use);
             });
    }
}

void TrackOptions::showFiles(const TranscodePlan &plan)
{
    for (qsizetype i = 0; i < plan.externalSubtitles.size(); ++i) {
        const Plan::ExternalSubtitle &file = plan.externalSubtitles.at(i);
        const QString name = QFileInfo(file.path).fileName();
        QWidget *row = line(file.isForced ? name + u" · "_s + "forced"_key.localized() : name, file.use,
                            [i](TranscodePlan &changing, Plan::SubtitleUse use) {
                                if (i < changing.externalSubtitles.size())
                                    changing.externalSubtitles[i].use = use;
                            });
        row->layout()->addWidget(languageBox(file, i));
    }
    auto *add = new QPushButton("Add Subtitle File…"_key.localized());
    connect(add, &QPushButton::clicked, this, &TrackOptions::chooseFile);
    m_subtitleLayout->addWidget(add);
    m_made.append(add);
}

QComboBox *TrackOptions::languageBox(const TranscodePlan::ExternalSubtitle &file, qsizetype number)
{
    auto *box = new QComboBox;
    box->setObjectName(u"subtitleFileLanguage%1"_s.arg(number));
    box->setAccessibleName(tarnwell::Sentence("Language of %1"_key, {QFileInfo(file.path).fileName()}).localized());
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QStringList codes = tableWords(usualLanguages);
    if (!file.language.isEmpty() && !codes.contains(file.language))
        codes.append(file.language);
    const auto name = [this](const QString &code) { return foundation::languageDisplayName(code, m_language); };
    std::ranges::sort(codes, [&](const QString &one, const QString &other) {
        return QString::localeAwareCompare(name(one), name(other)) < 0;
    });
    box->addItem("Unknown language"_key.localized(), QString());
    for (const QString &code : std::as_const(codes))
        box->addItem(name(code), code);
    box->setCurrentIndex(std::max(0, box->findData(file.language)));
    connect(box, &QComboBox::activated, this, [this, box, number](int index) {
        emit changed([number, code = box->itemData(index).toString()](TranscodePlan &changing) {
            if (number < changing.externalSubtitles.size())
                changing.externalSubtitles[number].language = code;
        });
    });
    return box;
}

void TrackOptions::chooseFile()
{
    QStringList endings;
    for (const SubtitleKind &kind : subtitleKinds())
        endings.append(u"*.%1"_s.arg(QLatin1StringView(kind.ending)));
    const QString path =
        QFileDialog::getOpenFileName(m_made.last(), "Add Subtitle File…"_key.localized(), QString(),
                                     u"%1 (%2)"_s.arg("Subtitles"_key.localized(), endings.join(u' ')));
    if (!path.isEmpty())
        emit changed([path](TranscodePlan &plan) { plan.externalSubtitles.append(subtitleFile(path)); });
}

}  // namespace kestrel
