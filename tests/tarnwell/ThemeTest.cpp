#include "tarnwell/ui/Theme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFontInfo>
#include <QIcon>
#include <QMenuBar>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

bool hasLoadedImagePlugins()
{
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/imageformats/");
}

}  // namespace

TEST(ThemeTest, AMenuBarLoadsNoPictureBeforeItShowsOne)
{
    if (hasLoadedImagePlugins())
        GTEST_SKIP() << "another test of this process has loaded the plugins";
    applyTheme(*qApp);
    const QMenuBar bar;
    EXPECT_FALSE(hasLoadedImagePlugins());
    const QIcon arrow = QApplication::style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    const QImage drawn = arrow.pixmap(16, 16).toImage();
    bool isDrawn = false;
    for (int i = 0; i < drawn.width() * drawn.height(); ++i)
        isDrawn = isDrawn || qAlpha(drawn.pixel(i % drawn.width(), i / drawn.width())) > 0;
    EXPECT_TRUE(isDrawn);
}

TEST(ThemeTest, TextIsInTheMetricsOfArial)
{
    applyTheme(*qApp);
    EXPECT_TRUE(QStringList({u"Liberation Sans"_s, u"Arial"_s}).contains(QFontInfo(QApplication::font()).family()));
}

}  // namespace kestrel::tarnwell
