#include "ScreenCastPortal.h"

#include "foundation/Queues.h"
#include "jobs/DesktopBus.h"
#include "tarnwell/Log.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QPointer>
#include <QUuid>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString castInterface = u"org.freedesktop.portal.ScreenCast"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;
const QString sessionInterface = u"org.freedesktop.portal.Session"_s;
const QString busService = u"org.freedesktop.DBus"_s;

/// For what no user is asked about. The portal may have to be started first.
constexpr auto answerPatience = 15s;

// Bits and numbers of the portal's protocol
constexpr uint monitors = 1, windows = 2, hiddenPointer = 1, embeddedPointer = 2, untilRevoked = 2,
               versionWithTokens = 4, succeeded = 0, cancelled = 1;

QDBusMessage castCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(portalService, portalPath, castInterface, method);
    call.setArguments(arguments);
    return call;
}

QString newToken()
{
    return u"kestrel_"_s + QUuid::createUuid().toString(QUuid::Id128);
}

/// The first stream's node of the portal's a(ua{sv}); nothing where it is anything else.
std::optional<quint32> firstNode(const QVariant &streams)
{
    if (!streams.canConvert<QDBusArgument>())
        return std::nullopt;
    const auto list = streams.value<QDBusArgument>();
    if (list.currentSignature() != "a(ua{sv})"_L1)
        return std::nullopt;
    list.beginArray();
    if (list.atEnd())
        return std::nullopt;
    quint32 node = 0;
    list.beginStructure();
    list >> node;
    return node;
}

Sentence missingPortal()
{
    return "The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing "
           "here. "
           "Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg)."_key;
}

}  // namespace

ScreenCastPortal::ScreenCastPortal(QObject *parent)
    : QObject(parent),
      m_bus(std::make_unique<DesktopBus>(QDBusConnection::SessionBus, this))
{
}

/// What is shared ends with its connection, and so does a dialog that is still open.
ScreenCastPortal::~ScreenCastPortal() = default;

void ScreenCastPortal::open(const Wishes &wishes)
{
    m_wishes = wishes;
    look([this] { createSession(); });
}

void ScreenCastPortal::look(std::function<void()> found)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(portalService, portalPath, u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s);
    call.setArguments({castInterface});
    m_bus->call(
        call,
        [this, found = std::move(found)](const QDBusMessage &reply) {
            m_abilities = reply.type() == QDBusMessage::ReplyMessage && reply.signature() == "a{sv}"_L1
                              ? qdbus_cast<QVariantMap>(reply.arguments().value(0))
                              : QVariantMap();
            if (m_abilities.value(u"version"_s).toUInt() == 0)
                return end(End::Failed, missingPortal());
            m_portal = reply.service();
            m_bus->use([this](QDBusConnection &bus) {
                bus.connect(busService, u"/org/freedesktop/DBus"_s, busService, u"NameOwnerChanged"_s, this,
                            SLOT(ownerChanged(QString, QString, QString)));
            });
            found();
        },
        answerPatience);
}

/// A request is answered by a signal of an object of its own, whose name is known before it is made: it is listened to
/// before it can speak. `isAsking`: a user decides, who has all the time.
void ScreenCastPortal::request(const QString &method, const QVariantList &arguments, QVariantMap options, bool isAsking,
                               Results then)
{
    const QString token = newToken();
    options.insert(u"handle_token"_s, token);
    m_then = std::move(then);
    m_bus->use([&](const QDBusConnection &bus) {
        listenTo(portalPath + u"/request/"_s + bus.baseService().mid(1).replace(u'.', u'_') + u'/' + token);
    });
    const QString handle = m_handle;
    m_bus->call(
        castCall(method, arguments + QVariantList{options}),
        [this, handle](const QDBusMessage &reply) {
            if (m_hasEnded || m_handle != handle)
                return;
            if (reply.type() != QDBusMessage::ReplyMessage)
                return end(End::Failed, {"The desktop's portal does not let the screen be recorded: %1"_key,
                                         {reply.errorMessage()}});
            // Portals of old choose the name themselves.
            if (const auto path = reply.arguments().value(0).value<QDBusObjectPath>().path(); path != handle)
                listenTo(path);
        },
        answerPatience);
    if (isAsking)
        return;
    foundation::queue::afterMain(answerPatience, [self = QPointer(this), then = m_handle] {
        if (self && !then.isEmpty() && self->m_handle == then)
            self->end(End::Failed, "The desktop's portal did not answer."_key);
    });
}

void ScreenCastPortal::listenTo(const QString &handle)
{
    m_handle = handle;
    m_bus->use([&](QDBusConnection &bus) {
        bus.connect({}, handle, requestInterface, u"Response"_s, this,
                    SLOT(responded(uint, QVariantMap, QDBusMessage)));
    });
}

void ScreenCastPortal::responded(uint code, const QVariantMap &results, const QDBusMessage &signal)
{
    if (m_hasEnded || signal.path() != m_handle || signal.service() != m_portal)
        return;
    m_handle.clear();
    const Results then = std::exchange(m_then, {});
    if (code == succeeded)
        return then(results);
    if (code == cancelled)
        return end(End::Refused);
    end(End::Failed, "The desktop did not let the screen be recorded."_key);
}

void ScreenCastPortal::createSession()
{
    request(u"CreateSession"_s, {}, {{u"session_handle_token"_s, newToken()}}, false,
            [this](const QVariantMap &results) {
                m_session = results.value(u"session_handle"_s).toString();
                if (QDBusObjectPath(m_session).path().isEmpty())
                    return end(End::Failed, "The desktop's portal did not answer."_key);
                m_bus->use([this](QDBusConnection &bus) {
                    bus.connect({}, m_session, sessionInterface, u"Closed"_s, this, SLOT(sessionClosed()));
                });
                selectSources();
            });
}

void ScreenCastPortal::selectSources()
{
    QVariantMap options{{u"multiple"_s, false}};
    const uint types = m_abilities.value(u"AvailableSourceTypes"_s).toUInt() & (monitors | windows);
    if (types != 0)
        options.insert(u"types"_s, types);
    const uint pointer = m_wishes.pointer ? embeddedPointer : hiddenPointer;
    if ((m_abilities.value(u"AvailableCursorModes"_s).toUInt() & pointer) != 0)
        options.insert(u"cursor_mode"_s, pointer);
    if (m_abilities.value(u"version"_s).toUInt() >= versionWithTokens) {
        options.insert(u"persist_mode"_s, untilRevoked);
        if (!m_wishes.restoreToken.isEmpty())
            options.insert(u"restore_token"_s, m_wishes.restoreToken);
    }
    request(u"SelectSources"_s, {QVariant::fromValue(QDBusObjectPath(m_session))}, options, false,
            [this](const QVariantMap &) { start(); });
}

void ScreenCastPortal::start()
{
    const QString parentWindow = u""_s;
    request(u"Start"_s, {QVariant::fromValue(QDBusObjectPath(m_session)), parentWindow}, {}, true,
            [this](const QVariantMap &results) { takeStreams(results); });
}

void ScreenCastPortal::takeStreams(const QVariantMap &results)
{
    constexpr qsizetype maximumToken = 4096;
    const auto node = firstNode(results.value(u"streams"_s));
    if (!node)
        return end(End::Failed, "The desktop did not let the screen be recorded."_key);
    m_isOpen = true;
    emit opened({.node = *node, .restoreToken = results.value(u"restore_token"_s).toString().left(maximumToken)});
}

void ScreenCastPortal::openRemote(std::function<void(const QDBusUnixFileDescriptor &)> opened)
{
    m_bus->call(
        castCall(u"OpenPipeWireRemote"_s, {QVariant::fromValue(QDBusObjectPath(m_session)), QVariantMap()}),
        [opened = std::move(opened)](const QDBusMessage &reply) {
            opened(reply.arguments().value(0).value<QDBusUnixFileDescriptor>());
        },
        answerPatience);
}

void ScreenCastPortal::sessionClosed()
{
    end(m_isOpen ? End::Closed : End::Refused);
}

/// A portal that goes takes its dialog with it.
void ScreenCastPortal::ownerChanged(const QString &name, const QString &oldOwner, const QString &)
{
    if (name == portalService && oldOwner == m_portal)
        end(End::Failed, "The desktop's portal did not answer."_key);
}

void ScreenCastPortal::end(End end, const Sentence &sentence)
{
    if (std::exchange(m_hasEnded, true))
        return;
    m_handle.clear();
    emit ended(end, end == End::Failed ? sentence : Sentence());
}

}  // namespace kestrel
