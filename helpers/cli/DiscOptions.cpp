#include "DiscOptions.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

DiscPlan &disc(ConvertRequest &request)
{
    return static_cast<DiscChoice &>(request).disc;
}

bool readTitles(const QString &text, QList<int> &titles)
{
    for (const QString &part : text.split(u',')) {
        int title = 0;
        if (!readNumber(part, 1, 99, title))
            return false;
        if (!titles.contains(title))
            titles.append(title);
    }
    return true;
}

/// "2-5" or "3".
bool readChapters(const QString &text, DiscPlan &plan)
{
    const QStringList parts = text.split(u'-');
    return parts.size() <= 2 && readNumber(parts.first(), 1, 999, plan.firstChapter) &&
           readNumber(parts.last(), 1, 999, plan.lastChapter) && plan.lastChapter >= plan.firstChapter;
}

constexpr Option<ConvertRequest> ownOptions[] = {
    {"titles", "NUMBERS", "1,2 (the main title)",
     [](const QString &value, ConvertRequest &request) {
         return readTitles(value, static_cast<DiscChoice &>(request).titles);
     }},
    {"chapters", "FIRST-LAST", "only these",
     [](const QString &value, ConvertRequest &request) { return readChapters(value, disc(request)); }},
    {"angle", "NUMBER", "of a film with several (1)",
     [](const QString &value, ConvertRequest &request) { return readNumber(value, 1, 9, disc(request).angle); }},
};

constexpr Option<ConvertRequest> wayOption = {"way", "WAY", "image, folder, main, mkv, mpeg or sound",
                                              [](const QString &value, ConvertRequest &request) {
                                                  const auto way = discWayNamed(value);
                                                  if (!way || *way == DiscWay::Rip)
                                                      return false;
                                                  disc(request).way = *way;
                                                  static_cast<DiscChoice &>(request).namesWay = true;
                                                  return true;
                                              }};

/// The converter's options that copying shares.
const QSet<QString> sharedOptions{u"to"_s, u"audio"_s, u"subtitles"_s};
/// And those that are about its own files.
const QSet<QString> foreignOptions{u"beside-source"_s, u"join"_s, u"chapter-per-source"_s, u"keep-date"_s};

}  // namespace

std::vector<Option<ConvertRequest>> copyOptions()
{
    std::vector<Option<ConvertRequest>> options{wayOption};
    options.insert(options.end(), std::begin(ownOptions), std::end(ownOptions));
    std::copy_if(convertOptions().begin(), convertOptions().end(), std::back_inserter(options),
                 [](const auto &option) { return sharedOptions.contains(QLatin1StringView(option.name)); });
    return options;
}

std::vector<Option<ConvertRequest>> ripOptions()
{
    std::vector<Option<ConvertRequest>> options(std::begin(ownOptions), std::end(ownOptions));
    std::copy_if(convertOptions().begin(), convertOptions().end(), std::back_inserter(options),
                 [](const auto &option) { return !foreignOptions.contains(QLatin1StringView(option.name)); });
    return options;
}

}  // namespace kestrel::cli
