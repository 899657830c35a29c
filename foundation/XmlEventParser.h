#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUtf8StringView>

#include <optional>

namespace kestrel::foundation {

struct XmlAttribute {
    QUtf8StringView name;
    QUtf8StringView value;
};

struct XmlError {
    QString message;    ///< what is wrong, in English, for the log
    qint64 offset = 0;  ///< byte position in the text
    int line = 0;       ///< from 1
};

enum class XmlEncodings {
    Standard,  ///< UTF-8, UTF-16, ISO 8859-1, ASCII
    Windows1252Too,
};

/// What the parser accepts; a text beyond any of these is refused.
struct XmlLimits {
    qint64 bytes = 64 * 1024 * 1024;
    int depth = 1024;     ///< nested elements
    int entities = 64;    ///< entity declarations, which also bounds how deep entities nest
    float expansion = 8;  ///< text after the expansion of entities as a multiple of the text itself, past the first MiB
    XmlEncodings encodings = XmlEncodings::Standard;
};

/// Reads an XML text and reports it to a delegate event by event. Names are not split at the colon; attributes that
/// only a DTD supplies are left out; external entities are never fetched and a reference to one, or to an undeclared
/// one, is an error.
class XmlEventParser {
public:
    /// Views are valid during the call only. After an error or `abort` nothing more is reported.
    class Delegate {
    public:
        virtual ~Delegate() = default;
        virtual void startElement(XmlEventParser &parser, QUtf8StringView name,
                                  const QList<XmlAttribute> &attributes) = 0;
        virtual void endElement(XmlEventParser &parser, QUtf8StringView name) = 0;
        /// A piece of text, CDATA included; one run of text may come in several pieces.
        virtual void characters(XmlEventParser &parser, QUtf8StringView text) = 0;
    };

    explicit XmlEventParser(const XmlLimits &limits = {}) : m_limits(limits) {}

    /// Nothing where the whole text was well-formed, within the limits, and not aborted.
    std::optional<XmlError> parse(const QByteArray &text, Delegate &delegate);

    /// Called by the delegate: ends `parse` with `reason` as its error, at the present position.
    void abort(const QString &reason);

private:
    struct Session;

    XmlLimits m_limits;
    Session *m_session = nullptr;
};

}  // namespace kestrel::foundation
