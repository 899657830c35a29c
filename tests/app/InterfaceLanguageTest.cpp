#include "app/InterfaceLanguage.h"

#include "foundation/LanguageTags.h"
#include "foundation/UserDefaults.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(InterfaceLanguageTest, choice_and_system_settle_the_language)
{
    const QVariant unset;
    const auto list = [](const QStringList &codes) { return QVariant(QVariantList(codes.begin(), codes.end())); };
    const struct {
        QVariant choice, stored;
        QStringList system;
        QString expected;
        bool isError = false;
    } rows[] = {
        {unset, unset, {u"pt"_s, u"de-DE"_s}, u"en"_s},  // only the first of the system counts
        {u"Default"_s, unset, {u"zh-Hant-TW"_s, u"en-US"_s}, u"zh-Hant"_s},
        {unset, unset, {u"en-GB"_s}, u"en"_s},
        {u"Default"_s, list({u"fr"_s}), {u"ja-JP"_s}, u"ja"_s},  // replaces what an earlier choice wrote
        {u"fr"_s, list({u"de"_s, u"en"_s}), {u"ja"_s}, u"fr"_s},
        {u"ko"_s, unset, {u"ja"_s}, u"ko"_s},
        {u"fr"_s, list({}), {u"ja"_s}, u"en"_s, true},
        {u"fr"_s, u"fr"_s, {u"ja"_s}, u"en"_s, true},
        {12, unset, {u"ja"_s}, u"en"_s, true},
        {unset, unset, {}, u"en"_s, true},
    };
    for (int row = 0; const auto &[choice, stored, system, expected, isError] : rows) {
        SCOPED_TRACE(row++);
        const QTemporaryDir folder;
        foundation::UserDefaults defaults(folder.filePath(u"defaults.plist"_s));
        if (choice.isValid())
            defaults.setObject(choice, customizeLanguageKey.toString());
        if (stored.isValid())
            defaults.setObject(stored, appleLanguagesKey.toString());
        testing::internal::CaptureStderr();
        settleInterfaceLanguage(defaults, system);
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  isError ? "configure application language error, force to use english.\n" : "");
        EXPECT_EQ(defaults.stringArrayForKey(appleLanguagesKey.toString()), QStringList(expected));
    }
}

TEST(InterfaceLanguageTest, languages_are_called_as_the_system_calls_them)
{
    for (size_t tag = 1; tag < supportedLanguages.size(); ++tag) {
        const QString code = supportedLanguages[tag].toString();
        EXPECT_EQ(supportedLanguageNames[tag], foundation::languageDisplayName(code)) << code.toStdString();
    }
}

TEST(InterfaceLanguageTest, a_language_that_holds_already_is_not_written)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"defaults.plist"_s);
    {
        foundation::UserDefaults defaults(path);
        defaults.setObject(u"fr"_s, customizeLanguageKey.toString());
        defaults.setObject(QVariantList{u"fr"_s}, appleLanguagesKey.toString());
    }
    foundation::UserDefaults defaults(path);
    ASSERT_TRUE(QFile::remove(path));
    settleInterfaceLanguage(defaults, {u"ja"_s});
    defaults.synchronize();
    EXPECT_FALSE(QFile::exists(path));
}

}  // namespace kestrel
