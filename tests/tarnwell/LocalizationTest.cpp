#include "Installed.h"
#include "Localization.h"
#include "TranslateControls.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;

namespace {

const QString catalogues = QStringLiteral(KESTREL_TEST_CATALOGUES);

TEST(Localization, FindsTextsAndKeepsKeys)
{
    EXPECT_EQ(AppLocalizedString(u"Cancel"_s), u"Cancel"_s);
    Localization german(catalogues, u"de"_s);
    {
        const Installed<Localization> installed(german);
        EXPECT_EQ(AppLocalizedString(u"Cancel"_s), u"Abbrechen"_s);
        EXPECT_EQ(AppLocalizedString(u"Default"_s), u"Default"_s);  // in the catalogue, without a translation
        EXPECT_EQ(AppLocalizedString(u"Größe"_s), u"Größe"_s);
        EXPECT_TRUE(AppLocalizedString({}).isNull());
        EXPECT_FALSE(AppLocalizedString(u""_s).isNull());
    }
    EXPECT_EQ(AppLocalizedString(u"Cancel"_s), u"Cancel"_s);
    for (const QString &missing : {u"de-AT"_s, u"fr"_s, QString()})
        EXPECT_EQ(Localization(catalogues, missing).localizedString(u"Cancel"_s), u"Cancel"_s) << qPrintable(missing);
}

TEST(Localization, TranslatesControls)
{
    Localization german(catalogues, u"de"_s);
    const Installed<Localization> installed(german);
    QWidget window;
    QGroupBox box(u"Cancel"_s, &window);
    QPushButton button(u"Cancel"_s, &box);
    QLabel label(u"Convert & Process Video"_s, &box);
    QLineEdit field(u"Cancel"_s, &window);
    field.setPlaceholderText(u"Cancel"_s);
    field.setToolTip(u"Cancel"_s);
    field.setAccessibleName(u"Cancel"_s);
    window.setWindowTitle(u"Cancel"_s);

    TranslateLabels(&window);
    EXPECT_EQ(label.text(), u"Video umwandeln & bearbeiten"_s);
    EXPECT_EQ(button.text(), u"Cancel"_s);
    TranslateControls(&window);
    EXPECT_EQ(label.text(), u"Video umwandeln & bearbeiten"_s);
    for (const QString &text : {button.text(), box.title(), field.placeholderText(), field.toolTip(),
                                field.accessibleName(), window.windowTitle()})
        EXPECT_EQ(text, u"Abbrechen"_s);
    EXPECT_EQ(field.text(), u"Cancel"_s);  // the user's own
}

}  // namespace
