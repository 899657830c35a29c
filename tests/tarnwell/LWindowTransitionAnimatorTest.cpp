#include "LWindowTransitionAnimator.h"
#include "TestEnvironment.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
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
        const QString name = watched == m_home.get() ? u"home"_s : u"module"_s;
        if (event->type() == QEvent::Show)
            m_events << u"show "_s + name;
        else if (event->type() == QEvent::Hide)
            m_events << u"hide "_s + name;
        return false;
    }

    std::function<void()> note(const QString &text)
    {
        return [this, text] { m_events << text; };
    }

    /// The visible windows besides the two.
    QWidgetList ghosts() const
    {
        QWidgetList result;
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (widget->isVisible() && widget != m_home.get() && widget != m_module.get())
                result << widget;
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
    QElapsedTimer timer;
    timer.start();
    m_animator.zoomFromWindow(m_home.get(), m_module.get(), false, note(u"done"_s));
    EXPECT_TRUE(m_animator.isRunning());
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
    EXPECT_GT(timer.elapsed(), 150);
    EXPECT_GT(largest.width(), 300);
    EXPECT_LE(largest.width(), 500);
    EXPECT_TRUE(waitUntil([&] { return ghosts().isEmpty(); }));

    m_events.clear();
    m_animator.zoomFromWindow(m_module.get(), m_home.get(), true, note(u"back"_s));
    EXPECT_TRUE(waitUntil([&] { return !m_animator.isRunning(); }));
    EXPECT_EQ(m_events, (QStringList{u"show home"_s, u"hide module"_s, u"back"_s}));
    EXPECT_TRUE(m_module->mask().isEmpty());
}

TEST_F(WindowTransition, TakesNoTimeWhereNothingShallMove)
{
    const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME") + u"/gtk-3.0"_s;
    QDir().mkpath(folder);
    QFile setting(folder + u"/settings.ini"_s);
    ASSERT_TRUE(setting.open(QIODevice::WriteOnly));
    setting.write("[Settings]\ngtk-enable-animations=0\n");
    setting.close();
    m_animator.zoomFromWindow(m_home.get(), m_module.get(), false, note(u"done"_s));
    setting.remove();
    EXPECT_EQ(m_events, thereInOrder);
    EXPECT_TRUE(ghosts().isEmpty());

    m_events.clear();
    m_animator.zoomFromWindow(m_home.get(), m_home.get(), false, note(u"same"_s));
    EXPECT_TRUE(m_home->isVisible());
    m_home->hide();
    m_animator.zoomFromWindow(m_home.get(), nullptr, false, {});
    EXPECT_FALSE(m_animator.isRunning());
}

TEST_F(WindowTransition, SecondOneEndsTheFirst)
{
    m_animator.zoomFromWindow(m_home.get(), m_module.get(), false, note(u"done"_s));
    m_animator.zoomFromWindow(m_module.get(), m_home.get(), true, note(u"back"_s));
    EXPECT_EQ(m_events, thereInOrder);
    EXPECT_EQ(ghosts().size(), 1);
    EXPECT_TRUE(waitUntil([&] { return !m_animator.isRunning(); }));
    EXPECT_EQ(m_events.last(), u"back"_s);
    EXPECT_TRUE(m_home->isVisible());
    EXPECT_FALSE(m_module->isVisible());
}

TEST_F(WindowTransition, CallbackMayBeginTheNext)
{
    m_animator.zoomFromWindow(m_home.get(), m_module.get(), false,
                              [&] { m_animator.zoomFromWindow(m_module.get(), m_home.get(), true, note(u"back"_s)); });
    EXPECT_TRUE(waitUntil([&] { return m_events.contains(u"back"_s); }));
    EXPECT_TRUE(m_home->isVisible());
    EXPECT_TRUE(waitUntil([&] { return ghosts().isEmpty(); }));
}

TEST_F(WindowTransition, SurvivesTheEndOfEitherWindow)
{
    m_animator.zoomFromWindow(m_home.get(), m_module.get(), false, note(u"done"_s));
    m_home.reset();
    EXPECT_TRUE(waitUntil([&] { return !m_animator.isRunning(); }));
    EXPECT_TRUE(m_module->isVisible());
    EXPECT_EQ(m_events.last(), u"done"_s);

    QWidget other;
    m_animator.zoomFromWindow(m_module.get(), &other, true, note(u"other"_s));
    m_module.reset();
    other.close();
    EXPECT_TRUE(waitUntil([&] { return !m_animator.isRunning(); }));
    EXPECT_TRUE(other.isVisible());

    auto target = std::make_unique<QWidget>();
    m_animator.zoomFromWindow(&other, target.get(), false, note(u"target gone"_s));
    target.reset();
    EXPECT_TRUE(waitUntil([&] { return !m_animator.isRunning(); }));
    EXPECT_EQ(m_events.last(), u"target gone"_s);
    EXPECT_TRUE(waitUntil([&] { return ghosts().isEmpty(); }));
}

}  // namespace
