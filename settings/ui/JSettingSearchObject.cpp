#include "JSettingSearchObject.h"

namespace kestrel {

namespace {

/// In step with the page's form.
constexpr struct {
    const char *keyString;
    qint64 section;
    double position;
} searchEntries[] = {
    {"open output folder", 1, 1003},
    {"shutdown computer", 1, 973},
    {"notify", 1, 943},
    {"video folder", 2, 826},
    {"video music folder", 2, 773},
    {"video snapshot folder", 2, 719},
    {"dvd folder", 3, 584},
    {"dvd music folder", 3, 532},
    {"dvd snapshot folder", 3, 480},
    {"dvd language", 3, 432},
    {"download folder", 4, 198},
    {"download music folder", 4, 145},
    {"download snapshot folder", 4, 93},
    {"download resolution", 4, 40},
};

}  // namespace

std::shared_ptr<JSettingSearchObject> JSettingSearchObject::object(const QString &keyString, qint64 section,
                                                                   double position)
{
    auto result = std::make_shared<JSettingSearchObject>();
    result->setKeyString(keyString);
    result->setUserdata(section);
    result->setPosition(position);
    return result;
}

tarnwell::SuggestionItems settingSearchObjects()
{
    tarnwell::SuggestionItems objects;
    for (const auto &[keyString, section, position] : searchEntries)
        objects.append(JSettingSearchObject::object(QString::fromLatin1(keyString), section, position));
    return objects;
}

}  // namespace kestrel
