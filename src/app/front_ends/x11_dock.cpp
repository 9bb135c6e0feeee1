// Tells X11 window managers that the bar window is a dock holding the top of its screen, so
// they keep other windows (a maximised one's title bar too) clear of it. Elsewhere: nothing.
#include "app/front_ends/x11_dock.h"

#include <QGuiApplication>
#include <QWidget>

#if defined(TARVEL_HAVE_XCB) && QT_CONFIG(xcb)
#include <xcb/xcb.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

xcb_connection_t* connection()
{
    const auto* x11 = qGuiApp != nullptr ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t* c, const char* name)
{
    const xcb_intern_atom_cookie_t cookie = xcb_intern_atom(c, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(c, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

template <std::size_t N>
void replaceProperty(xcb_connection_t* c, QWidget& window, const char* name, xcb_atom_t type,
                     const std::array<std::uint32_t, N>& values)
{
    const xcb_atom_t property = atom(c, name);
    if (property == XCB_ATOM_NONE)
        return;
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()), property, type, 32,
                        static_cast<std::uint32_t>(N), values.data());
}

} // namespace

namespace X11Dock {

bool available()
{
    return connection() != nullptr;
}

void markAsDock(QWidget& window)
{
    xcb_connection_t* c = connection();
    if (c == nullptr)
        return;
    const xcb_atom_t dock = atom(c, "_NET_WM_WINDOW_TYPE_DOCK");
    if (dock != XCB_ATOM_NONE)
        replaceProperty(c, window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, std::array<std::uint32_t, 1>{dock});
    xcb_flush(c);
}

void reserveTopEdge(QWidget& window, const QRect& screen, int height)
{
    xcb_connection_t* c = connection();
    if (c == nullptr)
        return;
    // Struts count in the root window's pixels, from its edges.
    const double ratio = window.devicePixelRatioF();
    const auto pixels = [ratio](int points) { return static_cast<std::uint32_t>(std::lround(points * ratio)); };
    const std::uint32_t top = pixels(screen.top() + height);
    const std::uint32_t left = pixels(screen.left());
    const std::uint32_t right = pixels(screen.left() + screen.width()) - 1;
    // left, right, top, bottom, then the start and end of each: only the top's are set.
    replaceProperty(c, window, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL,
                    std::array<std::uint32_t, 12>{0, 0, top, 0, 0, 0, 0, 0, left, right, 0, 0});
    replaceProperty(c, window, "_NET_WM_STRUT", XCB_ATOM_CARDINAL, std::array<std::uint32_t, 4>{0, 0, top, 0});
    xcb_flush(c);
}

} // namespace X11Dock

#else

namespace X11Dock {

bool available()
{
    return false;
}

void markAsDock(QWidget&) {}

void reserveTopEdge(QWidget&, const QRect&, int) {}

} // namespace X11Dock

#endif
