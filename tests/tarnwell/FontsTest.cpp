#include "tarnwell/ui/Fonts.h"

#include <gtest/gtest.h>

#include <fontconfig/fontconfig.h>

#include <memory>
#include <string>

namespace kestrel::tarnwell {

namespace {

std::string bestFile(FcConfig *configuration, const char *wanted)
{
    const std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)> pattern(
        FcNameParse(reinterpret_cast<const FcChar8 *>(wanted)), FcPatternDestroy);
    FcConfigSubstitute(configuration, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultMatch;
    const std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)> match(
        FcFontMatch(configuration, pattern.get(), &result), FcPatternDestroy);
    FcChar8 *file = nullptr;
    if (!match || FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch)
        return {};
    return reinterpret_cast<const char *>(file);
}

}  // namespace

TEST(FontReadingTest, FindsWhatTheLibraryFindsByItself)
{
    FontReading reading;
    reading.finish();
    FcConfig *const own = FcConfigGetCurrent();
    const std::unique_ptr<FcConfig, decltype(&FcConfigDestroy)> complete(FcInitLoadConfigAndFonts(), FcConfigDestroy);
    ASSERT_NE(own, complete.get());
    ASSERT_GT(FcConfigGetFonts(own, FcSetSystem)->nfont, 0);
    EXPECT_EQ(FcConfigGetFonts(own, FcSetSystem)->nfont, FcConfigGetFonts(complete.get(), FcSetSystem)->nfont);
    for (const char *wanted : {"Arial", "Liberation Sans:bold", "sans-serif:lang=ja", "sans-serif:lang=zh-cn",
                               "monospace", "No Such Family"})
        EXPECT_EQ(bestFile(own, wanted), bestFile(complete.get(), wanted)) << wanted;
}

}  // namespace kestrel::tarnwell
