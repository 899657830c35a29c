#include "ProductFolder.h"
#include "Theme.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The theme, for the life of a test.
class Theme : public testing::Test {
protected:
    Theme() { kestrel::tarnwell::applyTheme(*qApp); }
    ~Theme() override { qApp->setStyleSheet({}); }

    kestrel::test::ProductFolder m_product;
};

TEST_F(Theme, ControlsKeepTheirHeightWithTheFocus)
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QPushButton plain(u"Cancel"_s), primary(u"Start"_s), quiet(u"More"_s);
    primary.setProperty("primary", true);
    quiet.setProperty("quiet", true);
    QLineEdit field;
    QComboBox box;
    const QList<QWidget *> controls = {&plain, &primary, &quiet, &field, &box};
    for (QWidget *control : controls)
        layout->addWidget(control);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (QWidget *control : controls) {
        window.setFocus();
        const QSize size = control->sizeHint();
        EXPECT_EQ(size.height(), 28) << control->metaObject()->className();
        const QImage before = control->grab().toImage();
        control->setFocus();
        EXPECT_EQ(control->sizeHint(), size) << control->metaObject()->className();
        EXPECT_NE(control->grab().toImage(), before) << control->metaObject()->className();
    }
    EXPECT_EQ(primary.grab().toImage().pixelColor(primary.width() / 2, 5), QColor(0x00, 0x74, 0xCC));
}

TEST_F(Theme, RowsAreHighEvenWhenFilledBeforeTheyAreShown)
{
    QWidget window;
    auto *tree = new QTreeWidget;
    tree->addTopLevelItem(new QTreeWidgetItem({u"row"_s}));
    (new QVBoxLayout(&window))->addWidget(tree);
    window.show();
    EXPECT_EQ(tree->visualItemRect(tree->topLevelItem(0)).height(), 24);
}

}  // namespace
