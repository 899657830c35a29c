#include "EditWindow.h"

#include "FrameMaker.h"
#include "OptionControls.h"
#include "PictureView.h"
#include "PieceList.h"
#include "TimeLine.h"
#include "WatermarkControls.h"
#include "jobs/ToolProcess.h"
#include "media/PictureScan.h"
#include "media/ToolPath.h"
#include "modules/common/MediaPlayer.h"
#include "modules/common/Snapshot.h"
#include "modules/common/Thumbnails.h"
#include "modules/marlin/Cropping.h"
#include "modules/marlin/Pieces.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/TabOrder.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_EditWindow.h"

#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

constexpr QSize framePoints{420, 260};
constexpr qsizetype shownAtOnce = 20;  // new marks on the time line

}  // namespace

EditWindow::EditWindow(Subject subject, const JKestrelSettingDispatcher &settings, Thumbnails &thumbnails,
                       MediaPlayer &player, QWidget *parent)
    : QDialog(parent),
      m_subject(std::move(subject)),
      m_settings(settings),
      m_player(player),
      m_form(std::make_unique<Ui::EditWindow>()),
      m_sourceFrames(new FrameMaker(this)),
      m_resultFrames(new FrameMaker(this)),
      m_snapshots(new FrameMaker(this)),
      m_controls(new OptionControls(this)),
      m_keys(m_subject.source)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    setWindowTitle(windowTitle() + u" – "_s + QFileInfo(m_subject.plan.sources.first()).fileName());
    tarnwell::setTextStyle(m_form->messageLabel, 12, QFont::Normal, tarnwell::palette::quietText);
    makeViews(thumbnails);
    makeForms();
    connectButtons();
    showPlan();
    m_timeLine->setPosition(duration() / 10);
    showFrames(true);
    findKeyPictures();
    tarnwell::tabInLayoutOrder(*this);
    tarnwell::leaveRoomForFrame(this);
}

EditWindow::~EditWindow() = default;

void EditWindow::makeViews(Thumbnails &thumbnails)
{
    m_sourceView = new PictureView;
    m_sourceView->setCaption("Source (drag to crop)"_key.localized());
    m_sourceView->setCroppable(true);
    m_resultView = new PictureView;
    m_resultView->setCaption("Result"_key.localized());
    m_form->pictureLayout->addWidget(m_sourceView);
    m_form->pictureLayout->addWidget(m_resultView);
    m_timeLine = new TimeLine(thumbnails);
    m_timeLine->setFilm(m_subject.plan.sources.first(), duration());
    m_form->timeLayout->addWidget(m_timeLine);
    m_pieces = new PieceList;
    m_pieces->setDuration(duration());
    m_form->pieceLayout->insertWidget(0, m_pieces);
    const auto show = [](PictureView *view) { return [view](const QImage &image) { view->setPicture(image); }; };
    connect(m_sourceFrames, &FrameMaker::made, m_sourceView, show(m_sourceView));
    connect(m_resultFrames, &FrameMaker::made, m_resultView, show(m_resultView));
    connect(m_snapshots, &FrameMaker::made, this, &EditWindow::saveSnapshot);
    connect(m_sourceView, &PictureView::cropChanged, this, &EditWindow::setCrop);
    connect(m_timeLine, &TimeLine::moved, this, [this] { showFrames(true); });
    connect(m_pieces, &PieceList::refused, this, &EditWindow::showMessage);
    connect(m_pieces, &PieceList::changed, this, [this](const QList<TranscodePlan::Piece> &pieces) {
        change([&](TranscodePlan &plan) { plan.pieces = pieces; });
    });
}

void EditWindow::makeForms()
{
    const struct {
        const char *option;
        QFormLayout *form;
    } rows[] = {
        {"exactCuts", m_form->cutForm},      {"speedFactor", m_form->cutForm},  {"fadeIn", m_form->cutForm},
        {"fadeOut", m_form->cutForm},        {"turn", m_form->pictureForm},     {"mirrored", m_form->pictureForm},
        {"brightness", m_form->pictureForm}, {"contrast", m_form->pictureForm}, {"saturation", m_form->pictureForm},
        {"volume", m_form->soundForm},       {"normalizes", m_form->soundForm}, {"mix", m_form->soundForm}};
    for (const auto &[option, form] : rows)
        m_controls->add(*planOption(QLatin1StringView(option)), form);
    makeCropBoxes();
    m_watermark = new WatermarkControls(m_form->watermarkForm, this);
    connect(m_controls, &OptionControls::changed, this, &EditWindow::change);
    connect(m_watermark, &WatermarkControls::changed, this, &EditWindow::change);
}

void EditWindow::makeCropBoxes()
{
    static constexpr tarnwell::TextKey names[] = {"Cut off left"_key, "Cut off top"_key, "Cut off right"_key,
                                                  "Cut off bottom"_key};
    for (int side = 0; side < 4; ++side) {
        auto *box = new QDoubleSpinBox;
        box->setRange(0, 90);
        box->setDecimals(1);
        box->setSuffix(u" %"_s);
        box->setAccessibleName(names[side].localized());
        connect(box, &QDoubleSpinBox::valueChanged, this, &EditWindow::takeCropBoxes);
        m_form->cropForm->addRow(names[side].localized(), box);
        m_cropBoxes[side] = box;
    }
}

void EditWindow::connectButtons()
{
    const struct {
        QPushButton *button;
        std::function<void()> action;
        QKeySequence keys;
    } rows[] = {
        {m_form->startButton, [this] { m_pieces->startAt(m_timeLine->position()); }, Qt::CTRL | Qt::Key_I},
        {m_form->endButton, [this] { m_pieces->endAt(m_timeLine->position()); }, Qt::CTRL | Qt::Key_O},
        {m_form->removePieceButton, [this] { m_pieces->removeCurrent(); }, {}},
        {m_form->othersButton, [this] { m_pieces->keepOthers(); }, {}},
        {m_form->barsButton, [this] { findBars(); }, Qt::CTRL | Qt::Key_B},
        {m_form->wholeButton, [this] { setCrop({}); }, {}},
        {m_form->snapshotButton, [this] { takeSnapshot(); }, Qt::CTRL | Qt::Key_P},
        {m_form->trialButton, [this] { toggleTrial(); }, Qt::CTRL | Qt::Key_T},
        {m_form->cancelButton, [this] { reject(); }, {}},
        {m_form->applyButton,
         [this] {
             emit edited(m_subject.plan);
             accept();
         },
         Qt::CTRL | Qt::Key_Return},
    };
    for (const auto &[button, action, keys] : rows) {
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action);
        if (!keys.isEmpty())
            connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    }
    connect(m_form->positionEdit, &QLineEdit::editingFinished, this, [this] {
        if (const auto seconds = secondsOfTime(m_form->positionEdit->text())) {
            m_timeLine->setPosition(*seconds);
            showFrames(true);
        }
    });
    connect(&m_trial, &TrialRun::ended, this, &EditWindow::showTrial);
    connect(&m_trial, &TrialRun::progressed, this, [this](double fraction) {
        showMessage(
            tarnwell::Sentence("Converting ten seconds: %1 %"_key, {QString::number(int(fraction * 100))}).localized());
    });
}

void EditWindow::change(const std::function<void(TranscodePlan &)> &change)
{
    change(m_subject.plan);
    showPlan();
    showFrames(false);
}

void EditWindow::setCrop(const QRectF &crop)
{
    change([&](TranscodePlan &plan) { plan.crop = crop; });
}

void EditWindow::takeCropBoxes()
{
    constexpr double percent = 100;
    const double left = m_cropBoxes[0]->value() / percent, top = m_cropBoxes[1]->value() / percent;
    const double right = m_cropBoxes[2]->value() / percent, bottom = m_cropBoxes[3]->value() / percent;
    const bool isWhole = left + top + right + bottom == 0;
    const QRectF crop(left, top, std::max(0.05, 1 - left - right), std::max(0.05, 1 - top - bottom));
    setCrop(isWhole || crop.right() > 1 || crop.bottom() > 1 ? QRectF() : crop);
}

void EditWindow::showPlan()
{
    const TranscodePlan &plan = m_subject.plan;
    m_controls->show(plan);
    m_watermark->show(plan);
    m_sourceView->setCrop(plan.crop);
    m_timeLine->setPieces(plan.pieces);
    m_pieces->setPieces(plan.pieces);
    showKeyPictures();
    const QRectF crop = plan.crop.isEmpty() ? QRectF(0, 0, 1, 1) : plan.crop;
    const double sides[] = {crop.left(), crop.top(), 1 - crop.right(), 1 - crop.bottom()};
    for (int side = 0; side < 4; ++side) {
        const QSignalBlocker blocker(m_cropBoxes[side]);
        if (!m_cropBoxes[side]->hasFocus())
            m_cropBoxes[side]->setValue(sides[side] * 100);
    }
}

/// The latest request wins, so that dragging does not queue up pictures.
void EditWindow::showFrames(bool sourceToo)
{
    if (!m_form->positionEdit->hasFocus())
        m_form->positionEdit->setText(timeText(m_timeLine->position()));
    FrameMaker::Request request{.transcoder = m_subject.tools.transcoder,
                                .plan = m_subject.plan,
                                .source = m_subject.source,
                                .seconds = m_timeLine->position(),
                                .size = framePoints * devicePixelRatioF(),
                                .picture = PreviewPicture::Result};
    m_resultFrames->request(request);
    request.picture = PreviewPicture::Source;
    if (sourceToo)
        m_sourceFrames->request(request);
}

void EditWindow::showMessage(const QString &text)
{
    m_form->messageLabel->setText(text);
}

/// A cut that nothing is encoded for begins at one of them.
void EditWindow::findKeyPictures()
{
    if (!m_subject.source.hasVideo())
        return;
    m_keyPath = std::make_unique<ToolPath>(m_subject.plan.sources.first());
    m_keyScan = std::make_unique<ToolProcess>(
        KeyPictures::command(m_subject.tools.prober, m_keyPath->argument(), m_subject.source));
    connect(m_keyScan.get(), &ToolProcess::outputLine, this, [this](const QByteArray &line) {
        if (m_keys.readLine(line) && m_keys.times().size() % shownAtOnce == 0)
            showKeyPictures();
    });
    connect(m_keyScan.get(), &ToolProcess::ended, this, [this](const ToolEnding &ending) {
        m_keyScan.release()->deleteLater();
        if (ending.isGood())
            m_keys.finish();
        showKeyPictures();
    });
    m_keyScan->start();
}

void EditWindow::showKeyPictures()
{
    const TranscodePlan &plan = m_subject.plan;
    m_timeLine->setKeyPictures(m_keys);
    m_timeLine->setSnapping(!plan.exactCuts);
    QString text;
    if (cutsAtKeyPictures(plan, {m_subject.source}, m_subject.tools.machine)) {
        for (const TranscodePlan::Piece &piece : plan.pieces) {
            const auto key = m_keys.atOrBefore(piece.start);
            if (text.isEmpty() && key && timeText(*key) != timeText(piece.start))
                text = tarnwell::Sentence("Without encoding, what starts at %1 begins at %2."_key,
                                          {timeText(piece.start), timeText(*key)})
                           .localized();
        }
    }
    if (!text.isEmpty() || m_form->messageLabel->text() == m_cutText)
        showMessage(text);
    m_cutText = text;
}

void EditWindow::findBars()
{
    if (m_scan || !m_subject.source.hasVideo())
        return;
    m_scanPath = std::make_unique<ToolPath>(m_subject.plan.sources.first());
    m_scan = std::make_unique<ToolProcess>(
        PictureScan::command(m_subject.tools.transcoder, m_scanPath->argument(), m_subject.source));
    auto scan = std::make_shared<PictureScan>();
    connect(m_scan.get(), &ToolProcess::errorLine, this, [scan](const QByteArray &line) { scan->readLine(line); });
    connect(m_scan.get(), &ToolProcess::ended, this, [this, scan] {
        m_scan.release()->deleteLater();
        takeBars(*scan);
    });
    m_scan->start();
}

void EditWindow::takeBars(const PictureScan &scan)
{
    const QRectF crop = cropOf(scan.picture(), *m_subject.source.firstOf(MediaTrack::Kind::Video));
    showMessage(crop.isEmpty() ? "There are no black bars."_key.localized() : QString());
    if (!crop.isEmpty())
        setCrop(crop);
}

void EditWindow::toggleTrial()
{
    if (m_trial.isRunning()) {
        m_trial.cancel();
        return;
    }
    m_form->trialButton->setText("Cancel the Trial"_key.localized());
    m_trial.start(m_subject.plan, m_subject.source, m_subject.tools, m_timeLine->position());
}

void EditWindow::showTrial(const QString &path, const QString &sentence)
{
    m_form->trialButton->setText("Try 10 Seconds"_key.localized());
    showMessage(path.isEmpty() ? sentence : QString());
    if (!path.isEmpty() && !m_player.play(m_settings.getPlayerPath(), path, "Trial"_key.localized()))
        showMessage("The player is missing. Please install the application again."_key.localized());
}

void EditWindow::takeSnapshot()
{
    constexpr QSize largest(16384, 16384);
    m_snapshots->request({.transcoder = m_subject.tools.transcoder,
                          .plan = m_subject.plan,
                          .source = m_subject.source,
                          .seconds = m_timeLine->position(),
                          .size = largest,
                          .picture = PreviewPicture::Result,
                          .place = PreviewPlace::Exact});
}

void EditWindow::saveSnapshot(const QImage &image)
{
    const QString name = QFileInfo(m_subject.plan.sources.first()).completeBaseName() + u' ' +
                         timeText(m_timeLine->position()).replace(u':', u'.');
    keepSnapshot(image, m_settings.getSnapshotDir(), name, this, [this](const QString &path, const QString &sentence) {
        showMessage(path.isEmpty() ? sentence : tarnwell::Sentence("Saved: %1"_key, {path}).localized());
    });
}

}  // namespace kestrel
