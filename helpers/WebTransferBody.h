#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// How a response's body is compressed, as its Content-Encoding says. The two are what a request asks for.
enum class WebTransferEncoding { Identity, Gzip, Deflate };

inline constexpr char acceptedEncodings[] = "gzip, deflate";

/// Nothing where it is one that was not asked for; an absent header is empty.
std::optional<WebTransferEncoding> webTransferEncoding(QByteArrayView header);

/// Why a body is refused that is longer than this.
QString bodyTooLong(qint64 maximumBytes);

/// Uncompresses `body`, which is left as it was where a reason is returned: that it is damaged, becomes longer than
/// `maximumBytes`, or does not end as a compressed stream does.
QString uncompress(QByteArray &body, WebTransferEncoding encoding, qint64 maximumBytes);
