#include "OutputName.h"

#include "foundation/FileNames.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString folderOf(const QString &path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf(u'/'), 1));
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

}  // namespace

QString outputBaseName(const TranscodePlan &plan, const QDate &today)
{
    const QString source = plan.sources.value(0);
    const QString fileName = foundation::readableFileName(nameOf(source));
    const qsizetype dot = fileName.lastIndexOf(u'.');
    const QString name = dot > 0 ? fileName.left(dot) : fileName;
    if (plan.namePattern.trimmed().isEmpty())
        return name;
    const std::pair<QLatin1StringView, QString> places[] = {
        {"{name}"_L1, name},
        {"{preset}"_L1, plan.preset.name},
        {"{folder}"_L1, foundation::readableFileName(nameOf(folderOf(source)))},
        {"{date}"_L1, today.toString(Qt::ISODate)}};
    // In one pass, so that braces in a name stay what they are.
    QString result;
    for (QStringView rest = plan.namePattern; !rest.isEmpty();) {
        const auto *place = std::find_if(std::begin(places), std::end(places),
                                         [rest](const auto &candidate) { return rest.startsWith(candidate.first); });
        const bool isPlace = place != std::end(places);
        result += isPlace ? place->second : QString(rest.front());
        rest = rest.sliced(isPlace ? place->first.size() : 1);
    }
    return result;
}

QString outputFolder(const TranscodePlan &plan, const QString &folder)
{
    return plan.besideSource && !plan.sources.isEmpty() ? folderOf(plan.sources.first()) : folder;
}

}  // namespace kestrel
