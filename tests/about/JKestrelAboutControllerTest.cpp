#include "about/ui/JKestrelAboutController.h"

#include "about/CopyrightYear.h"
#include "tarnwell/ui/Frames.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/RecordingMailProgram.h"
#include "tests/support/TestDesktop.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class JKestrelAboutControllerTest : public testing::Test {
protected:
    template <class Widget>
    Widget *find(const QString &name)
    {
        return m_controller.window()->findChild<Widget *>(name);
    }
    QString text(const QString &label) { return find<QLabel>(label)->text(); }

    test::ProductFolder m_product{test::productInformation({{u"TWGroupName"_s, u"Kite %1 & Co."_s},
                                                            {u"TWBuildDate"_s, u"2026-11-21"_s},
                                                            {u"TWSupportEmail"_s, u"help@kite.example"_s},
                                                            {u"TWAboutHomeLink"_s, u"https://kite.example/about"_s}})};
    test::TestDesktop m_desktop;
    QDate m_today{2030, 6, 1};
    JKestrelAboutController m_controller{[this] { return m_today; }};
};

}  // namespace

TEST(CopyrightYear, IsGregorianAndNotBefore2021)
{
    const std::pair<QDate, QString> rows[] = {{QDate(2019, 5, 1), u"2021"_s},   {QDate(2020, 12, 31), u"2021"_s},
                                              {QDate(2021, 1, 1), u"2021"_s},   {QDate(2022, 1, 1), u"2022"_s},
                                              {QDate(2030, 12, 31), u"2030"_s}, {QDate(), u"2021"_s}};
    const QLocale before;
    for (const auto *region : {"en_US", "th_TH@calendar=buddhist", "ja_JP@calendar=japanese", "fa_IR", "ar_EG"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(region)));
        for (const auto &[day, year] : rows)
            EXPECT_EQ(copyrightYear(day), year) << region;
    }
    QLocale::setDefault(before);
}

TEST_F(JKestrelAboutControllerTest, shows_the_product_as_on_the_first_day)
{
    EXPECT_EQ(text(u"titleLabel"_s), u"Kestrel Converter 4K"_s);
    EXPECT_EQ(text(u"versionLabel"_s), u"Version: 6.2.1"_s);
    EXPECT_EQ(text(u"buildDateLabel"_s), u"Build on: 2026-11-21"_s);
    EXPECT_EQ(text(u"aboutOurCompanyLabel"_s), u"About Our Company Kite %1 & Co."_s);
    m_today = QDate(2031, 1, 1);
    EXPECT_EQ(text(u"copyrightLabel"_s), u"Copyright © 2019-2030 Tarnwell Software, Inc. All rights reserved."_s);
}

TEST_F(JKestrelAboutControllerTest, home_button_begins_where_the_visit_label_ends)
{
    QDialog *window = m_controller.window();
    window->show();
    auto *label = find<QLabel>(u"visitLabel"_s);
    auto *button = find<QPushButton>(u"homeBtn"_s);
    EXPECT_EQ(button->text(), u"www.tarnwell.example"_s);
    const double bottom = tarnwell::viewFrame(button).origin.y;
    for (const QString &words : {label->text(), u"A"_s, QString(90, u'M')}) {
        label->setText(words);
        EXPECT_TRUE(test::waitUntil([&] { return label->width() == label->sizeHint().width(); }));
        const foundation::Rect frame = tarnwell::viewFrame(label);
        EXPECT_EQ(tarnwell::viewFrame(button).origin.x, frame.origin.x + frame.size.width);
        EXPECT_EQ(tarnwell::viewFrame(button).origin.y, bottom);
        EXPECT_GE(button->width(), button->sizeHint().width());
    }
}

TEST_F(JKestrelAboutControllerTest, leads_to_the_home_page_and_to_the_support)
{
    const test::TagAsQuery links;
    test::RecordingMailProgram mail;
    m_controller.presentForWindow(nullptr);
    find<QPushButton>(u"homeBtn"_s)->click();
    EXPECT_EQ(m_desktop.opened, QList{QUrl(u"https://kite.example/about?from=about"_s)});
    find<QPushButton>(u"sendButton"_s)->click();
    EXPECT_EQ(mail.arguments(),
              (QStringList{u"--utf8"_s, u"--subject"_s, u"Kestrel Converter 4K (6.2.1)"_s, u"help@kite.example"_s}));
    EXPECT_TRUE(m_controller.isPresented());
    find<QPushButton>(u"closeButton"_s)->click();
    EXPECT_FALSE(m_controller.isPresented());
}

}  // namespace kestrel
