#include "tarnwell/ui/LWindowTransitionAnimator.h"
#include "tests/support/TestEnvironment.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;
using kestrel::test::waitUntil;

namespace {

/// Two windows whose showing and hiding is written down.
class WindowTransition : public testing::Test, protected QObject {
protected:
    WindowTransition()
    {
        for (QWidget *window : {m_home.get(), m_module.get()})
            window->installEventFilter(this);
        m_home->setGeometry(100, 100, 300, 200);
        m_module->setGeometry(50, 50, 500, 400);
        m_home->show();
        m_events.clear();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            m_events << (event->type() == QEvent::Show ? u"show "_s : u"hide "_s) +
                            (watched == m_home.get() ? u"home"_s : u"module"_s);
        return false;
    }

    /// Zooms between the two, then notes `text`.
    void zoom(QWidget *from, QWidget *to, const QString &text)
    {
        m_animator.zoomFromWindow(from, to, to == m_home.get(), [this, text] { m_events << text; });
    }
    bool hasEnded()
    {
        return waitUntil([&] { return !m_animator.isRunning() && ghosts().isEmpty(); });
    }

    /// The visible windows besides the two.
    QWidgetList ghosts() const
    {
        QWidgetList result = QApplication::topLevelWidgets();
        result.removeIf(
            [&](QWidget *each) { return each->isHidden() || each == m_home.get() || each == m_module.get(); });
        return result;
    }

    QStringList m_events;
    std::unique_ptr<QWidget> m_home = std::make_unique<QWidget>();
    std::unique_ptr<QWidget> m_module = std::make_unique<QWidget>();
    LWindowTransitionAnimator m_animator;
};

const QStringList thereInOrder = {u"show module"_s, u"hide home"_s, u"done"_s};

TEST_F(WindowTransition, ShowsTheTargetThenHidesTheSourceThenReports)
{
    zoom(m_home.get(), m_module.get(), u"done"_s);
    ASSERT_EQ(ghosts().size(), 1);
    EXPECT_EQ(ghosts().first()->geometry(), m_home->geometry());
    EXPECT_TRUE(m_events.isEmpty());
    QSize largest;
    EXPECT_TRUE(waitUntil([&] {
        if (!ghosts().isEmpty())
            largest = largest.expandedTo(ghosts().first()->size());
        return !m_animator.isRunning();
    }));
    EXPECT_EQ(m_events, thereInOrder);
    EXPECT_TRUE(largest.width() > 300 && largest.width() <= 500) << largest.width();
}

TEST_F(WindowTransition, TakesNoTimeWhereNothingShallMove)
{
    const std::pair<QString, QByteArray> settings[] = {
        {u"gtk-3.0/settings.ini"_s, "[Settings]\ngtk-theme-name=x\ngtk-enable-animations=0\n"},
        {u"gtk-4.0/settings.ini"_s, "[Settings]\r\ngtk-enable-animations = False"},
        {u"kdeglobals"_s, "[General]\nx=1\n[KDE]\nAnimationDurationFactor=0.0\n"}};
    for (const auto &[name, text] : settings) {
        QFile file(qEnvironmentVariable("XDG_CONFIG_HOME") + u'/' + name);
        QDir().mkpath(QFileInfo(file).path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        file.close();
        zoom(m_home.get(), m_module.get(), u"done"_s);
        file.remove();
        EXPECT_EQ(std::exchange(m_events, {}), thereInOrder) << qPrintable(name);
        m_module->hide();
        m_home->show();
        m_events.clear();
    }
    zoom(m_home.get(), m_home.get(), u"same"_s);
    EXPECT_TRUE(hasEnded() && m_home->isVisible());
}

TEST_F(WindowTransition, SecondOneEndsTheFirst)
{
    zoom(m_home.get(), m_module.get(), u"done"_s);
    zoom(m_module.get(), m_home.get(), u"back"_s);
    EXPECT_EQ(std::exchange(m_events, {}), thereInOrder);
    EXPECT_EQ(ghosts().size(), 1);
    EXPECT_TRUE(hasEnded());
    EXPECT_EQ(m_events, (QStringList{u"show home"_s, u"hide module"_s, u"back"_s}));
    m_animator.zoomFromWindow(m_home.get(), m_module.get(), false,  // as does one that its callback begins
                              [&] { zoom(m_module.get(), m_home.get(), u"again"_s); });
    EXPECT_TRUE(waitUntil([&] { return m_events.last() == u"again"_s; }));
    EXPECT_TRUE(hasEnded() && m_home->isVisible() && !m_module->isVisible());
}

TEST_F(WindowTransition, SurvivesTheEndOfEitherWindow)
{
    zoom(m_home.get(), m_module.get(), u"source gone"_s);
    m_home.reset();
    EXPECT_TRUE(hasEnded() && m_module->isVisible());
    EXPECT_EQ(m_events.last(), u"source gone"_s);
    auto target = std::make_unique<QWidget>();
    zoom(m_module.get(), target.get(), u"target gone"_s);
    target.reset();
    EXPECT_TRUE(hasEnded());
    EXPECT_EQ(m_events.last(), u"target gone"_s);
}

}  // namespace
