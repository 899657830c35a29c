#include "HardwareInformation.h"

#include "TranscoderCodecs.h"

#include "tarnwell/Localization.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::AppLocalizedString;

namespace {

QString orElse(const QString &value, const QString &replacement)
{
    return value.isEmpty() ? AppLocalizedString(replacement) : value;
}

QString coresText(const HardwareInformation &hardware)
{
    if (hardware.cores <= 0)
        return {};
    if (hardware.threads <= hardware.cores)
        return QString::number(hardware.cores);
    return AppLocalizedString(u"%1 (%2 threads)"_s).arg(hardware.cores).arg(hardware.threads);
}

QString memoryText(qint64 bytes)
{
    return bytes > 0 ? QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat) : QString();
}

QString namesText(const QStringList &names)
{
    return orElse(names.join(u", "_s), u"None"_s);
}

}  // namespace

QList<HardwareRow> hardwareRows(const HardwareInformation &hardware, const TranscoderCodecs &codecs)
{
    const QString unknown = u"Unknown"_s;
    QList<HardwareRow> rows = {
        {AppLocalizedString(u"Processor"_s), orElse(hardware.processor, unknown)},
        {AppLocalizedString(u"Cores"_s), orElse(coresText(hardware), unknown)},
        {AppLocalizedString(u"Memory"_s), orElse(memoryText(hardware.memoryBytes), unknown)},
        {AppLocalizedString(u"Graphics"_s), orElse(hardware.graphicsDevices.join(u'\n'), u"None found"_s)},
    };
    if (!codecs.failure.isEmpty()) {
        rows.append({AppLocalizedString(u"Transcoder"_s), codecs.failure.localized()});
        return rows;
    }
    rows += {{AppLocalizedString(u"H.264 encoders"_s), namesText(codecs.encoders.h264)},
             {AppLocalizedString(u"H.264 decoders"_s), namesText(codecs.decoders.h264)},
             {AppLocalizedString(u"HEVC encoders"_s), namesText(codecs.encoders.hevc)},
             {AppLocalizedString(u"HEVC decoders"_s), namesText(codecs.decoders.hevc)}};
    return rows;
}

QString hardwareText(const QList<HardwareRow> &rows)
{
    QString text;
    for (const auto &[label, value] : rows)
        text += label + u": "_s + QString(value).replace(u"\n"_s, u", "_s) + u'\n';
    return text;
}

}  // namespace kestrel
