#include "ModuleSettings.h"

#include "modules/common/MediaPlayer.h"
#include "modules/common/Thumbnails.h"
#include "modules/marlin/ui/EditWindow.h"
#include "modules/marlin/ui/PictureView.h"
#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

TEST(PictureViewTest, TheCropStaysInThePicture)
{
    PictureView view;
    view.resize(400, 300);
    view.setPicture(QImage(200, 100, QImage::Format_RGB32));
    view.setCroppable(true);
    view.setCrop({0.2, 0.3, 0.6, 0.4});  // about the middle
    QRectF crop;
    QObject::connect(&view, &PictureView::cropChanged, &view, [&](const QRectF &changed) { crop = changed; });
    const auto drag = [&](QPoint to) {
        const auto send = [&](QEvent::Type type, QPointF place, Qt::MouseButtons buttons) {
            QMouseEvent event(type, place, view.mapToGlobal(place), Qt::LeftButton, buttons, Qt::NoModifier);
            QApplication::sendEvent(&view, &event);
        };
        view.setCrop({0.2, 0.3, 0.6, 0.4});
        const QPointF middle = view.rect().center();
        send(QEvent::MouseButtonPress, middle, Qt::LeftButton);
        send(QEvent::MouseMove, middle + to, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, middle + to, Qt::NoButton);
        return crop;
    };
    const std::pair<QPoint, QPointF> rows[] = {
        {{0, 1000}, {0.2, 0.6}}, {{0, -1000}, {0.2, 0}}, {{1000, 0}, {0.4, 0.3}}, {{-1000, 0}, {0, 0.3}}};
    for (const auto &[to, corner] : rows) {
        const QRectF moved = drag(to);
        EXPECT_NEAR(moved.x(), corner.x(), 1e-9) << to.x() << ' ' << to.y();
        EXPECT_NEAR(moved.y(), corner.y(), 1e-9) << to.x() << ' ' << to.y();
        EXPECT_NEAR(moved.width() * moved.height(), 0.24, 1e-9);
    }
}

TEST(EditWindowTest, SnapshotsAndWatermarks)
{
    test::ModuleSettings settings;
    const QDir folder(settings.path(u"snapshots"_s));
    ASSERT_TRUE(folder.mkpath(u"."_s));
    settings.dispatcher().currentSetting()->setSnapshotOutputPath(folder.path());
    const QString film = settings.path(u"film.mkv"_s);
    settings.makeClip(film, QLatin1StringView(test::shortVideo));
    EditWindow::Subject subject;
    subject.tools.transcoder = settings.dispatcher().getTranscoderPath();
    subject.plan.sources = {film};
    subject.plan.preset = builtInPresets().first();
    subject.source.duration = 2;
    MediaTrack video;
    video.kind = MediaTrack::Kind::Video;
    video.codec = u"h264"_s;
    video.width = 65;
    video.height = 49;
    subject.source.tracks = {video};
    Thumbnails thumbnails({64, 48});
    MediaPlayer player;
    EditWindow window(subject, settings.dispatcher(), thumbnails, player, nullptr);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    TranscodePlan edited;
    QObject::connect(&window, &EditWindow::edited, &window, [&](const TranscodePlan &plan) { edited = plan; });
    const auto named = [&]<class Widget>(Widget *, const QString &name) {
        Widget *found = nullptr;
        for (Widget *each : window.findChildren<Widget *>())
            found = each->accessibleName() == name ? each : found;
        return found;
    };
    auto *text = named(static_cast<QLineEdit *>(nullptr), u"Text"_s);
    text->setText(u"mine"_s);
    emit text->textEdited(u"mine"_s);
    named(static_cast<QDoubleSpinBox *>(nullptr), u"Opacity"_s)->setValue(40);
    named(static_cast<QDoubleSpinBox *>(nullptr), u"Width of the picture"_s)->setValue(30);
    window.findChild<QPushButton *>(u"snapshotButton"_s)->click();
    EXPECT_TRUE(test::waitUntil([&] { return !folder.entryList({u"film *.png"_s}).isEmpty(); }, 60'000));
    window.findChild<QPushButton *>(u"applyButton"_s)->click();
    ASSERT_TRUE(edited.watermark);
    EXPECT_NEAR(edited.watermark->opacity, 0.4, 1e-9);
    EXPECT_NEAR(edited.watermark->size, 0.3, 1e-9);
}

}  // namespace

}  // namespace kestrel
