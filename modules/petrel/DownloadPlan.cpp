#include "DownloadPlan.h"

#include "media/MediaFiles.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int planVersion = 1;
constexpr qsizetype maximumAddress = 8 * 1024;
constexpr qsizetype maximumAddresses = 10'000;
constexpr double maximumBytes = 1e15;

QStringList stringsOf(const QJsonValue &value)
{
    QStringList strings;
    for (const QJsonValue &string : value.toArray()) {
        if (string.isString())
            strings.append(string.toString());
    }
    return strings;
}

qint64 bytesOf(const QJsonValue &value)
{
    const double bytes = value.toDouble();
    return bytes > 0 && bytes < maximumBytes ? qint64(bytes) : 0;
}

/// Of words without a scheme: "e.g." and "holiday.mp4" stand in any text.
bool isLikelyPlace(const QUrl &url)
{
    static const QRegularExpression name(u"\\.(xn--[a-z0-9-]+|\\p{L}{2,})$"_s), number(u"^[\\d.]+$|:"_s);
    static const QStringList files = mediaNameFilters();
    const QString host = url.host();
    const bool isFile =
        url.path().size() <= 1 && host.section(u'.', -1).size() > 2 && files.contains(u"*."_s + host.section(u'.', -1));
    return host == "localhost"_L1 || number.match(host).hasMatch() || (name.match(host).hasMatch() && !isFile);
}

/// Without what a text has put around it: "(https://a.example/x)," and "URL=https://a.example/x".
QString withoutSurroundings(const QString &word)
{
    static const QRegularExpression web(u"https?://[^\\s<>\"]+"_s, QRegularExpression::CaseInsensitiveOption);
    // An address without a scheme may have another one in it.
    if (!word.startsWith("http"_L1, Qt::CaseInsensitive) && !downloadAddress(word).isNull())
        return word;
    const QRegularExpressionMatch match = web.match(word);
    QString address = match.hasMatch() ? match.captured() : word;
    const auto isAround = [&address](QChar last) {
        return u".,;'"_s.contains(last) || (last == u')' && address.count(u')') > address.count(u'('));
    };
    while (match.hasMatch() && isAround(address.back()))
        address.chop(1);
    return address;
}

}  // namespace

QJsonObject DownloadPlan::toJson() const
{
    return {{u"version"_s, planVersion},
            {u"address"_s, address},
            {u"item"_s, item},
            {u"soundOnly"_s, soundOnly},
            {u"height"_s, height},
            {u"extension"_s, extension},
            {u"subtitles"_s, QJsonArray::fromStringList(subtitles)},
            {u"chapters"_s, chapters},
            {u"proxy"_s, proxy},
            {u"bytesPerSecond"_s, bytesPerSecond},
            {u"manyFromServer"_s, manyFromServer},
            {u"ownProxy"_s, hasOwnProxy},
            {u"ownFolder"_s, hasOwnFolder},
            {u"title"_s, title},
            {u"seconds"_s, seconds},
            {u"bytes"_s, bytes},
            {u"picture"_s, picture}};
}

std::optional<DownloadPlan> DownloadPlan::fromJson(const QJsonObject &json)
{
    DownloadPlan plan;
    plan.address = downloadAddress(json["address"_L1].toString());
    if (json["version"_L1].toInt() != planVersion || plan.address.isNull())
        return std::nullopt;
    const auto known = [](const QString &name, const QStringList &names) {
        return names.contains(name) ? name : names.first();
    };
    plan.item = std::clamp(json["item"_L1].toInt(), 0, 1'000'000);
    plan.soundOnly = json["soundOnly"_L1].toBool();
    plan.height = std::clamp(json["height"_L1].toInt(), 0, 100'000);
    plan.extension = known(json["extension"_L1].toString(), plan.soundOnly ? soundFormats() : downloadFormats());
    plan.subtitles = stringsOf(json["subtitles"_L1]);
    plan.chapters = json["chapters"_L1].toBool(true);
    plan.proxy = json["proxy"_L1].toString();
    plan.bytesPerSecond = bytesOf(json["bytesPerSecond"_L1]);
    plan.manyFromServer = json["manyFromServer"_L1].toBool();
    plan.hasOwnProxy = json["ownProxy"_L1].toBool();
    plan.hasOwnFolder = json["ownFolder"_L1].toBool();
    plan.title = json["title"_L1].toString();
    plan.picture = downloadAddress(json["picture"_L1].toString());
    plan.seconds = std::max(0.0, json["seconds"_L1].toDouble());
    plan.bytes = bytesOf(json["bytes"_L1]);
    return plan;
}

QString DownloadPlan::server() const
{
    return QUrl(address).authority(QUrl::FullyEncoded).section(u'@', -1).toLower();
}

QByteArray DownloadPlan::identity() const
{
    const QJsonObject form{{u"address"_s, address},     {u"item"_s, item},
                           {u"soundOnly"_s, soundOnly}, {u"height"_s, height},
                           {u"extension"_s, extension}, {u"subtitles"_s, QJsonArray::fromStringList(subtitles)}};
    const QByteArray text = QJsonDocument(form).toJson(QJsonDocument::Compact);
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex().first(24);
}

QString downloadAddress(const QString &text)
{
    static const QRegularExpression scheme(u"^[A-Za-z][A-Za-z0-9+.-]*://"_s);
    QString address = text.trimmed();
    if (address.isEmpty() || address.size() > maximumAddress)
        return {};
    for (const QChar character : address) {
        if (character.unicode() <= 0x20 || character.unicode() == 0x7F)
            return {};
    }
    const bool hasScheme = scheme.match(address).hasMatch();
    if (!hasScheme)
        address.prepend("https://"_L1);
    const QUrl url(address, QUrl::TolerantMode);
    const QString name = url.scheme().toLower();
    const bool isWeb = name == "http"_L1 || name == "https"_L1;
    const QString host = url.host();
    const bool isPlace = host.contains(u'.') || host.contains(u':') || host == "localhost"_L1;
    return url.isValid() && isWeb && isPlace && (hasScheme || isLikelyPlace(url)) ? QString::fromLatin1(url.toEncoded())
                                                                                  : QString();
}

QStringList addressesIn(const QString &text)
{
    static const QRegularExpression blanks(u"\\s+"_s);
    QStringList addresses;
    QSet<QString> known;
    for (const QString &word : text.split(blanks, Qt::SkipEmptyParts)) {
        const QString address = downloadAddress(withoutSurroundings(word));
        if (address.isNull() || known.contains(address))
            continue;
        known.insert(address);
        addresses.append(address);
        if (addresses.size() == maximumAddresses)
            break;
    }
    return addresses;
}

QString textOfFile(const QByteArray &bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes, u'h').value_or(QStringConverter::Utf8);
    return QStringDecoder(encoding).decode(bytes);
}

int heightOfResolution(const QString &resolution)
{
    static const QRegularExpression lines(u"^(\\d{2,5})[pP]?$"_s);
    return lines.match(resolution.trimmed()).captured(1).toInt();
}

QStringList downloadFormats()
{
    return {u"mp4"_s, u"webm"_s, u"flv"_s, u"3gp"_s, u"mkv"_s};
}

QStringList soundFormats()
{
    return {u"m4a"_s, u"mp3"_s};
}

}  // namespace kestrel
