#include "X11Display.h"

#include <xcb/xcb.h>
#include <xcb/xcbext.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

template <typename Value>
using Answer = std::unique_ptr<Value, decltype(&std::free)>;

template <typename Value>
Answer<Value> answer(Value *value)
{
    return {value, &std::free};
}

/// Numbers of the RandR protocol, version 1.5.
constexpr uint8_t queryVersion = 0, getMonitors = 42;
xcb_extension_t randr = {"RANDR", 0};
xcb_extension_t xwayland = {"XWAYLAND", 0};  ///< of newer ones, whose monitors have their real names

struct VersionRequest {
    uint8_t major = 0, minor = queryVersion;
    uint16_t length = 0;
    uint32_t wantedMajor = 1, wantedMinor = 5;
};

struct MonitorsRequest {
    uint8_t major = 0, minor = getMonitors;
    uint16_t length = 0;
    uint32_t window = 0;
    uint8_t onlyActive = 1, padding[3] = {};
};

struct VersionReply {
    uint32_t head[2];
    uint32_t major, minor, padding[4];
};

struct MonitorsReply {
    uint32_t head[2];
    uint32_t timestamp, monitors, outputs, padding[3];
};

struct MonitorInformation {
    uint32_t name;
    uint8_t isPrimary, isAutomatic;
    uint16_t outputs;
    int16_t x, y;
    uint16_t width, height;
    uint32_t widthInMillimetres, heightInMillimetres;
};

/// The answer to a request of the extension, with its length in bytes; null where it was refused.
template <typename Request>
Answer<uint8_t> ask(xcb_connection_t *connection, Request request)
{
    const xcb_protocol_request_t protocol = {2, &randr, request.minor, 0};
    iovec parts[4] = {};
    parts[2] = {&request, sizeof request};
    parts[3] = {nullptr, 0};
    const unsigned int sequence = xcb_send_request(connection, XCB_REQUEST_CHECKED, parts + 2, &protocol);
    xcb_generic_error_t *error = nullptr;
    auto reply = answer(static_cast<uint8_t *>(xcb_wait_for_reply(connection, sequence, &error)));
    std::free(error);
    return reply;
}

size_t bytesOf(const Answer<uint8_t> &reply)
{
    uint32_t words = 0;
    std::memcpy(&words, reply.get() + 4, sizeof words);
    return 32 + size_t(words) * 4;
}

QString atomName(xcb_connection_t *connection, uint32_t atom)
{
    const auto reply = answer(xcb_get_atom_name_reply(connection, xcb_get_atom_name(connection, atom), nullptr));
    return reply ? QString::fromUtf8(xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get()))
                 : QString();
}

bool saysWayland()
{
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || qEnvironmentVariable("XDG_SESSION_TYPE") == "wayland"_L1;
}

}  // namespace

bool isWaylandSession()
{
    return saysWayland() && !X11Display::open();
}

foundation::Result<std::shared_ptr<X11Display>, Sentence> X11Display::open(const QString &name)
{
    const QString known = name.isEmpty() ? qEnvironmentVariable("DISPLAY") : name;
    const Sentence wayland =
        "In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand."_key;
    if (known.isEmpty())
        return foundation::Failure{
            saysWayland() ? wayland : Sentence("There is no display whose picture could be recorded."_key)};
    int screen = 0;
    std::shared_ptr<X11Display> display(new X11Display);
    display->m_name = known;
    display->m_connection = {xcb_connect(known.toUtf8().constData(), &screen), &xcb_disconnect};
    if (xcb_connection_has_error(display->m_connection.get()))
        return foundation::Failure{Sentence("The display %1 could not be opened."_key, {known})};
    auto roots = xcb_setup_roots_iterator(xcb_get_setup(display->m_connection.get()));
    while (screen-- > 0 && roots.rem > 1)
        xcb_screen_next(&roots);
    display->m_root = roots.data->root;
    const QList<Monitor> monitors = display->monitors();
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(display->m_connection.get(), &xwayland);
    if ((extension && extension->present) ||
        std::ranges::any_of(monitors, [](const Monitor &monitor) { return monitor.name.startsWith("XWAYLAND"_L1); }))
        return foundation::Failure{wayland};
    return display;
}

X11Display::~X11Display() = default;

QRect X11Display::area() const
{
    xcb_connection_t *connection = m_connection.get();
    const auto reply = answer(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, m_root), nullptr));
    return reply ? QRect(0, 0, reply->width, reply->height) : QRect();
}

bool X11Display::isComposited() const
{
    xcb_connection_t *connection = m_connection.get();
    const uint32_t compositor = atom("_NET_WM_CM_S0");
    const auto reply =
        answer(compositor != 0
                   ? xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, compositor), nullptr)
                   : nullptr);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

QList<X11Display::Monitor> X11Display::monitors() const
{
    xcb_connection_t *connection = m_connection.get();
    QList<Monitor> monitors;
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection, &randr);
    const auto version = extension && extension->present ? ask(connection, VersionRequest{}) : answer<uint8_t>(nullptr);
    VersionReply told = {};
    if (version)
        std::memcpy(&told, version.get(), sizeof told);
    const bool tellsMonitors = told.major > 1 || (told.major == 1 && told.minor >= 5);
    if (const auto reply =
            tellsMonitors ? ask(connection, MonitorsRequest{.window = m_root}) : answer<uint8_t>(nullptr)) {
        MonitorsReply head = {};
        std::memcpy(&head, reply.get(), sizeof head);
        size_t at = sizeof head;
        for (uint32_t number = 0; number < head.monitors && at + sizeof(MonitorInformation) <= bytesOf(reply);
             ++number) {
            MonitorInformation monitor = {};
            std::memcpy(&monitor, reply.get() + at, sizeof monitor);
            at += sizeof monitor + size_t(monitor.outputs) * 4;
            monitors.append({.name = atomName(connection, monitor.name),
                             .area = {monitor.x, monitor.y, monitor.width, monitor.height},
                             .isPrimary = monitor.isPrimary != 0});
        }
    }
    if (monitors.isEmpty())
        monitors.append({.name = u"screen"_s, .area = area(), .isPrimary = true});
    std::ranges::stable_sort(
        monitors, [](const Monitor &one, const Monitor &other) { return one.isPrimary && !other.isPrimary; });
    return monitors;
}

quint32 X11Display::atom(const char *name) const
{
    xcb_connection_t *connection = m_connection.get();
    const auto reply = answer(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, uint16_t(std::strlen(name)), name), nullptr));
    return reply ? reply->atom : 0;
}

QByteArray X11Display::property(quint32 window, const char *name) const
{
    constexpr uint32_t maximumWords = 16 * 1024;
    xcb_connection_t *connection = m_connection.get();
    const auto reply = answer(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, maximumWords),
        nullptr));
    return reply ? QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                              xcb_get_property_value_length(reply.get()))
                 : QByteArray();
}

QList<X11Display::Window> X11Display::windows() const
{
    const QByteArray list = property(m_root, "_NET_CLIENT_LIST_STACKING");
    QList<Window> windows;
    for (qsizetype at = list.size() - 4; at >= 0; at -= 4) {
        quint32 id = 0;
        std::memcpy(&id, list.constData() + at, sizeof id);
        if (const auto found = window(id))
            windows.append(*found);
    }
    return windows;
}

std::optional<X11Display::Window> X11Display::window(quint32 id) const
{
    xcb_connection_t *connection = m_connection.get();
    const auto attributes =
        answer(xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, id), nullptr));
    if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE)
        return std::nullopt;
    const auto geometry = answer(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, id), nullptr));
    const auto place = answer(
        xcb_translate_coordinates_reply(connection, xcb_translate_coordinates(connection, id, m_root, 0, 0), nullptr));
    if (!geometry || !place)
        return std::nullopt;
    QByteArray title = property(id, "_NET_WM_NAME");
    if (title.isEmpty())
        title = property(id, "WM_NAME");
    uint32_t frame[4] = {};  // left, right, top, bottom
    const QByteArray extents = property(id, "_NET_FRAME_EXTENTS");
    if (extents.size() == sizeof frame)
        std::memcpy(frame, extents.constData(), sizeof frame);
    return Window{.id = id,
                  .title = QString::fromUtf8(title),
                  .area = {place->dst_x, place->dst_y, geometry->width, geometry->height},
                  .frame = QMargins(int(frame[0]), int(frame[2]), int(frame[1]), int(frame[3]))};
}

}  // namespace kestrel
