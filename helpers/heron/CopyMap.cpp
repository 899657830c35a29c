#include "CopyMap.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

constexpr int version = 1;
constexpr qint64 maximumMapBytes = 64 << 20;
constexpr qint64 bytesOfSector = 2048;

QJsonArray toJson(const QList<SectorRange> &ranges)
{
    QJsonArray array;
    for (const SectorRange &range : ranges)
        array.append(QJsonArray{range.first, range.count});
    return array;
}

std::optional<QList<SectorRange>> rangesFromJson(const QJsonArray &array, qint64 sectors)
{
    QList<SectorRange> ranges;
    for (const QJsonValue &value : array) {
        const SectorRange range{value[0].toInteger(-1), value[1].toInteger(-1)};
        if (range.first < 0 || range.count <= 0 || range.first > sectors - range.count)
            return std::nullopt;
        ranges.append(range);
    }
    return ranges;
}

}  // namespace

void append(QList<SectorRange> &ranges, SectorRange range)
{
    if (!ranges.isEmpty() && ranges.last().first + ranges.last().count == range.first)
        ranges.last().count += range.count;
    else
        ranges.append(range);
}

void cutAt(QList<SectorRange> &ranges, qint64 position)
{
    for (SectorRange &range : ranges)
        range.count = std::min(range.count, position - range.first);
    ranges.removeIf([](const SectorRange &range) { return range.count <= 0; });
}

qint64 sectorsIn(const QList<SectorRange> &ranges)
{
    qint64 sum = 0;
    for (const SectorRange &range : ranges)
        sum += range.count;
    return sum;
}

std::optional<CopyMap> CopyMap::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > maximumMapBytes)
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    CopyMap map;
    map.bytes = object[u"bytes"].toInteger();
    map.fingerprint = object[u"fingerprint"].toString();
    map.position = object[u"position"].toInteger(-1);
    const qint64 sectors = (map.bytes + bytesOfSector - 1) / bytesOfSector;
    const auto untried = rangesFromJson(object[u"untried"].toArray(), sectors);
    const auto bad = rangesFromJson(object[u"bad"].toArray(), sectors);
    if (object[u"version"].toInt() != version || map.bytes <= 0 || map.position < 0 || map.position > sectors ||
        !untried || !bad)
        return std::nullopt;
    map.untried = *untried;
    map.bad = *bad;
    return map;
}

bool CopyMap::save(const QString &path) const
{
    const QJsonObject object{{u"version"_s, version},         {u"bytes"_s, bytes},
                             {u"fingerprint"_s, fingerprint}, {u"position"_s, position},
                             {u"untried"_s, toJson(untried)}, {u"bad"_s, toJson(bad)}};
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QJsonDocument(object).toJson(QJsonDocument::Compact));
    return file.commit();
}

}  // namespace kestrel::disc
