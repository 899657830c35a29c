#include "XmlEventParser.h"

#define XML_DTD 1  // expat declares its guard against entity expansion only to those who ask
#include <expat.h>

#include <algorithm>
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr unsigned long long uncheckedExpansion = 1024 * 1024;

/// Of windows-1252, from 0x80 on; what has no character there stands for itself, as browsers have it.
constexpr int windowsCharacters[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                     0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

int XMLCALL describeEncoding(void *, const XML_Char *name, XML_Encoding *encoding)
{
    const QByteArrayView known[] = {"windows-1252", "cp1252"};
    if (std::ranges::none_of(known, [name](QByteArrayView one) { return one.compare(name, Qt::CaseInsensitive) == 0; }))
        return XML_STATUS_ERROR;
    for (int byte = 0; byte < 256; ++byte)
        encoding->map[byte] = byte >= 0x80 && byte < 0xA0 ? windowsCharacters[byte - 0x80] : byte;
    encoding->data = nullptr;
    encoding->convert = nullptr;
    encoding->release = nullptr;
    return XML_STATUS_OK;
}

}  // namespace

/// One run of `parse`, and expat's callbacks.
struct XmlEventParser::Session {
    struct ExpatDeleter {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    XmlEventParser &owner;
    Delegate &delegate;
    std::unique_ptr<XML_ParserStruct, ExpatDeleter> expat{XML_ParserCreate(nullptr)};
    std::optional<XmlError> error = {};
    int depth = 0;
    int entities = 0;
    QList<XmlAttribute> attributes = {};

    void fail(const QString &message)
    {
        if (error)
            return;
        error = {message, qint64(XML_GetCurrentByteIndex(expat.get())), int(XML_GetCurrentLineNumber(expat.get()))};
        XML_StopParser(expat.get(), XML_FALSE);
    }

    void prepare();

    static void XMLCALL started(void *data, const XML_Char *name, const XML_Char **attributes);
    static void XMLCALL ended(void *data, const XML_Char *name);
    static void XMLCALL text(void *data, const XML_Char *text, int length);
    static void XMLCALL entityDeclared(void *data, const XML_Char *, int, const XML_Char *, int, const XML_Char *,
                                       const XML_Char *, const XML_Char *, const XML_Char *);
    static void XMLCALL entitySkipped(void *data, const XML_Char *name, int);
    static int XMLCALL externalEntity(XML_Parser parser, const XML_Char *, const XML_Char *, const XML_Char *,
                                      const XML_Char *);
};

void XmlEventParser::Session::prepare()
{
    XML_Parser parser = expat.get();
    XML_SetUserData(parser, this);
    if (owner.m_limits.encodings == XmlEncodings::Windows1252Too)
        XML_SetUnknownEncodingHandler(parser, describeEncoding, nullptr);
    XML_SetElementHandler(parser, started, ended);
    XML_SetCharacterDataHandler(parser, text);
    XML_SetEntityDeclHandler(parser, entityDeclared);
    XML_SetSkippedEntityHandler(parser, entitySkipped);
    XML_SetExternalEntityRefHandler(parser, externalEntity);
    XML_SetBillionLaughsAttackProtectionActivationThreshold(parser, uncheckedExpansion);
    XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser, owner.m_limits.expansion);
}

void XMLCALL XmlEventParser::Session::started(void *data, const XML_Char *name, const XML_Char **attributes)
{
    auto &session = *static_cast<Session *>(data);
    // Expat may still report what it holds after it was told to stop.
    if (session.error)
        return;
    if (++session.depth > session.owner.m_limits.depth)
        return session.fail(u"elements are nested deeper than %1"_s.arg(session.owner.m_limits.depth));
    session.attributes.clear();
    // A default from the DTD costs the input nothing and would be copied for every element.
    const int count = XML_GetSpecifiedAttributeCount(session.expat.get());
    for (int i = 0; i < count; i += 2)
        session.attributes.append({QUtf8StringView(attributes[i]), QUtf8StringView(attributes[i + 1])});
    session.delegate.startElement(session.owner, QUtf8StringView(name), session.attributes);
}

void XMLCALL XmlEventParser::Session::ended(void *data, const XML_Char *name)
{
    auto &session = *static_cast<Session *>(data);
    if (session.error)
        return;
    --session.depth;
    session.delegate.endElement(session.owner, QUtf8StringView(name));
}

void XMLCALL XmlEventParser::Session::text(void *data, const XML_Char *text, int length)
{
    auto &session = *static_cast<Session *>(data);
    if (!session.error)
        session.delegate.characters(session.owner, QUtf8StringView(text, length));
}

void XMLCALL XmlEventParser::Session::entityDeclared(void *data, const XML_Char *, int, const XML_Char *, int,
                                                     const XML_Char *, const XML_Char *, const XML_Char *,
                                                     const XML_Char *)
{
    // Expat recurses into nested entities; their number bounds its stack.
    auto &session = *static_cast<Session *>(data);
    if (++session.entities > session.owner.m_limits.entities)
        session.fail(u"more than %1 entity declarations"_s.arg(session.owner.m_limits.entities));
}

void XMLCALL XmlEventParser::Session::entitySkipped(void *data, const XML_Char *name, int)
{
    static_cast<Session *>(data)->fail(u"undeclared entity \"%1\""_s.arg(QString::fromUtf8(name)));
}

int XMLCALL XmlEventParser::Session::externalEntity(XML_Parser parser, const XML_Char *, const XML_Char *,
                                                    const XML_Char *, const XML_Char *)
{
    static_cast<Session *>(XML_GetUserData(parser))->fail(u"reference to an external entity"_s);
    return XML_STATUS_ERROR;
}

std::optional<XmlError> XmlEventParser::parse(const QByteArray &text, Delegate &delegate)
{
    if (text.size() > qMin<qint64>(m_limits.bytes, std::numeric_limits<int>::max()))
        return XmlError{u"longer than %1 bytes"_s.arg(m_limits.bytes), 0, 0};
    Session session{*this, delegate};
    if (!session.expat)
        return XmlError{u"out of memory"_s, 0, 0};
    session.prepare();
    m_session = &session;
    if (XML_Parse(session.expat.get(), text.constData(), int(text.size()), XML_TRUE) != XML_STATUS_OK)
        session.fail(QString::fromUtf8(XML_ErrorString(XML_GetErrorCode(session.expat.get()))));
    m_session = nullptr;
    return session.error;
}

void XmlEventParser::abort(const QString &reason)
{
    if (m_session)
        m_session->fail(reason);
}

}  // namespace kestrel::foundation
