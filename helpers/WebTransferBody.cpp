#include "WebTransferBody.h"

#include <QScopeGuard>

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

/// As zlib takes it. Some servers call deflate what lacks the header of one.
int windowBits(const QByteArray &body, WebTransferEncoding encoding)
{
    if (encoding == WebTransferEncoding::Gzip)
        return MAX_WBITS + 16;
    const bool hasHeader = !body.isEmpty() && (body[0] & 0x8F) == Z_DEFLATED;
    return hasHeader ? MAX_WBITS : -MAX_WBITS;
}

}  // namespace

std::optional<WebTransferEncoding> webTransferEncoding(QByteArrayView header)
{
    constexpr std::pair<QByteArrayView, WebTransferEncoding> names[] = {{"", WebTransferEncoding::Identity},
                                                                        {"identity", WebTransferEncoding::Identity},
                                                                        {"gzip", WebTransferEncoding::Gzip},
                                                                        {"x-gzip", WebTransferEncoding::Gzip},
                                                                        {"deflate", WebTransferEncoding::Deflate}};
    for (const auto &[name, encoding] : names) {
        if (header.trimmed().compare(name, Qt::CaseInsensitive) == 0)
            return encoding;
    }
    return std::nullopt;
}

QString bodyTooLong(qint64 maximumBytes)
{
    return u"longer than %1 bytes"_s.arg(maximumBytes);
}

QString uncompress(QByteArray &body, WebTransferEncoding encoding, qint64 maximumBytes)
{
    if (encoding == WebTransferEncoding::Identity)
        return body.size() > maximumBytes ? bodyTooLong(maximumBytes) : QString();
    z_stream stream = {};
    if (inflateInit2(&stream, windowBits(body, encoding)) != Z_OK)
        return u"the transfer cannot be set up"_s;
    const auto end = qScopeGuard([&stream] { inflateEnd(&stream); });
    stream.next_in = reinterpret_cast<Bytef *>(body.data());
    stream.avail_in = uInt(body.size());
    QByteArray whole;
    QByteArray piece(16'384, Qt::Uninitialized);
    for (int code = Z_OK; code != Z_STREAM_END || stream.avail_in > 0;) {
        if (code == Z_STREAM_END)  // gzip may have another member
            inflateReset(&stream);
        stream.next_out = reinterpret_cast<Bytef *>(piece.data());
        stream.avail_out = uInt(piece.size());
        code = inflate(&stream, Z_NO_FLUSH);
        if (code == Z_BUF_ERROR)
            return u"the compressed body is cut off"_s;
        if (code != Z_OK && code != Z_STREAM_END)
            return u"the compressed body is damaged"_s;
        whole.append(piece.constData(), piece.size() - stream.avail_out);
        if (whole.size() > maximumBytes)
            return bodyTooLong(maximumBytes);
    }
    body = whole;
    return {};
}
