#include "X11Keys.h"

#include <QSocketNotifier>

#include <xcb/xcb.h>

#include <cstdlib>

namespace kestrel {

namespace {

constexpr struct {
    X11Keys::Key key;
    quint32 symbol;  ///< of X11: that of Latin letters
} keys[] = {{X11Keys::Key::Stop, 's'}, {X11Keys::Key::Pause, 'p'}, {X11Keys::Key::Snapshot, 'n'}};

/// With and without Caps Lock and Num Lock, which the display counts as modifiers.
constexpr uint16_t locks[] = {0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

/// The key that carries the letter in any of the user's layouts, the first one before the others; 0 where none does.
quint8 codeOf(xcb_connection_t *connection, quint32 symbol)
{
    const xcb_setup_t *setup = xcb_get_setup(connection);
    const uint8_t count = uint8_t(setup->max_keycode - setup->min_keycode + 1);
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, decltype(&std::free)> reply(
        xcb_get_keyboard_mapping_reply(connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, count),
                                       nullptr),
        &std::free);
    if (!reply || reply->keysyms_per_keycode == 0)
        return 0;
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (int column = 0; column < reply->keysyms_per_keycode; ++column) {
        for (int key = 0; key < count; ++key) {
            if (symbols[key * reply->keysyms_per_keycode + column] == symbol)
                return quint8(setup->min_keycode + key);
        }
    }
    return 0;
}

}  // namespace

X11Keys::X11Keys(QObject *parent) : QObject(parent)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return;
    m_connection = {xcb_connect(nullptr, nullptr), &xcb_disconnect};
    if (xcb_connection_has_error(m_connection.get()))
        return;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection.get()), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11Keys::readEvents);
}

X11Keys::~X11Keys() = default;

void X11Keys::take(Key key)
{
    const quint8 code = m_notifier && !isTaken(key) ? codeOf(m_connection.get(), keys[int(key)].symbol) : 0;
    if (code == 0)  // which stands for every key
        return;
    bool isGood = true;
    for (const uint16_t lock : locks) {
        const uint16_t modifiers = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | lock;
        const auto cookie = xcb_grab_key_checked(m_connection.get(), 0, m_root, modifiers, code, XCB_GRAB_MODE_ASYNC,
                                                 XCB_GRAB_MODE_ASYNC);
        if (xcb_generic_error_t *error = xcb_request_check(m_connection.get(), cookie)) {
            std::free(error);
            isGood = false;
        }
    }
    m_codes[int(key)] = isGood ? code : 0;
}

void X11Keys::readEvents()
{
    if (xcb_connection_has_error(m_connection.get())) {
        m_notifier->setEnabled(false);
        return;
    }
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection.get())) {
        const int type = event->response_type & 0x7f;
        const auto *ofKey = reinterpret_cast<const xcb_key_press_event_t *>(event);  // a release has the same shape
        const quint8 code = type == XCB_KEY_PRESS ? ofKey->detail : 0;
        // A key that is held comes as a release and a press of the same moment.
        const bool isRepeated = code != 0 && ofKey->time == m_releaseTime;
        if (type == XCB_KEY_RELEASE)
            m_releaseTime = ofKey->time;
        std::free(event);
        for (const auto &[key, symbol] : keys) {
            if (code != 0 && !isRepeated && m_codes[int(key)] == code)
                emit pressed(key);
        }
    }
}

X11Keys::Pointer X11Keys::pointer() const
{
    if (!m_notifier || !m_notifier->isEnabled())
        return {};
    const std::unique_ptr<xcb_query_pointer_reply_t, decltype(&std::free)> reply(
        xcb_query_pointer_reply(m_connection.get(), xcb_query_pointer(m_connection.get(), m_root), nullptr),
        &std::free);
    constexpr uint16_t buttons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;
    return reply ? Pointer{{reply->root_x, reply->root_y}, (reply->mask & buttons) != 0} : Pointer();
}

}  // namespace kestrel
