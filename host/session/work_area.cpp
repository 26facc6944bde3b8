#include "host/session/work_area.h"

#include "desk/x11.h"

#include <QScreen>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace skyvane::WorkArea {

namespace {

/// Those that the manager manages, and those that nobody does, as some managers' own bars.
std::vector<xcb_window_t> windowsOf(xcb_connection_t* connection)
{
    static const auto clients = X11::atoms<1>(connection, {"_NET_CLIENT_LIST"}).front();
    const xcb_window_t root = X11::root(connection);
    std::vector<xcb_window_t> windows = X11::words(connection, root, clients, XCB_ATOM_WINDOW);
    const auto tree = X11::reply(xcb_query_tree_reply(connection, xcb_query_tree(connection, root), nullptr));
    if (tree)
        windows.insert(windows.end(), xcb_query_tree_children(tree.get()),
            xcb_query_tree_children(tree.get()) + xcb_query_tree_children_length(tree.get()));
    return windows;
}

/// Asked for in two round trips, however many windows there are.
std::vector<Strut> strutsOfWindows(xcb_connection_t* connection, QSize display)
{
    static const auto properties = X11::atoms<2>(connection, {"_NET_WM_STRUT_PARTIAL", "_NET_WM_STRUT"});
    const auto windows = windowsOf(connection);
    std::vector<std::vector<std::uint32_t>> words(windows.size());
    for (const xcb_atom_t property : properties) {
        const auto found = X11::words(connection, windows, property, XCB_ATOM_CARDINAL);
        for (std::size_t index = 0; index < windows.size(); ++index) {
            if (words[index].empty())
                words[index] = found[index];
        }
    }
    std::vector<Strut> struts;
    for (const auto& property : words)
        std::ranges::copy(strutsOf(property, display), std::back_inserter(struts));
    return struts;
}

/// Of the first workspace: panels are the same on all.
std::vector<QRect> areasOfManager(xcb_connection_t* connection)
{
    static const auto property = X11::atoms<1>(connection, {"_GTK_WORKAREAS_D0"}).front();
    const auto words = X11::words(connection, X11::root(connection), property, XCB_ATOM_CARDINAL);
    std::vector<QRect> areas;
    for (std::size_t word = 0; word + 4 <= words.size(); word += 4) {
        const auto value = [&](std::size_t index) { return static_cast<int>(words[word + index]); };
        areas.emplace_back(value(0), value(1), value(2), value(3));
    }
    return areas;
}

QSize sizeOfDisplay(xcb_connection_t* connection)
{
    const auto answer = X11::reply(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, X11::root(connection)), nullptr));
    return answer ? QSize{answer->width, answer->height} : QSize{};
}

QRect without(const Strut& strut, QRect room)
{
    const QRect common = strut.frame.intersected(room);
    if (common.isEmpty())
        return room;
    switch (strut.edge) {
    case Qt::LeftEdge:
        room.setLeft(common.right() + 1);
        break;
    case Qt::RightEdge:
        room.setRight(common.left() - 1);
        break;
    case Qt::TopEdge:
        room.setTop(common.bottom() + 1);
        break;
    case Qt::BottomEdge:
        room.setBottom(common.top() - 1);
        break;
    }
    return room;
}

bool isMostOf(const QRect& screen, const QRect& rest)
{
    return 2 * rest.width() >= screen.width() && 2 * rest.height() >= screen.height();
}

} // namespace

std::vector<Strut> strutsOf(const std::vector<std::uint32_t>& words, QSize display)
{
    constexpr std::array edges{Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge};
    if (words.size() != 4 && words.size() != 12)
        return {};
    std::vector<Strut> struts;
    for (std::size_t index = 0; index < edges.size(); ++index) {
        const int depth = static_cast<int>(words[index]);
        if (depth <= 0)
            continue;
        QRect frame{{}, display};
        const bool isUpright = index < 2;
        if (words.size() == 12) {
            const int first = static_cast<int>(words[4 + 2 * index]);
            const int last = static_cast<int>(words[5 + 2 * index]);
            isUpright ? frame.setTop(first) : frame.setLeft(first);
            isUpright ? frame.setBottom(last) : frame.setRight(last);
        }
        const bool isAtEnd = index % 2 == 1;
        if (isUpright)
            isAtEnd ? frame.setLeft(display.width() - depth) : frame.setWidth(depth);
        else
            isAtEnd ? frame.setTop(display.height() - depth) : frame.setHeight(depth);
        struts.push_back({.edge = edges.at(index), .frame = frame});
    }
    return struts;
}

QRect within(const QRect& screen, const Taken& taken)
{
    QRect room = screen;
    for (const QRect& area : taken.areas) {
        if (!area.isEmpty() && screen.contains(area))
            room = area;
    }
    for (const Strut& strut : taken.struts) {
        const QRect rest = without(strut, room);
        if (isMostOf(screen, rest))
            room = rest;
    }
    return room;
}

/// The toolkit's screens have the display's origins, and sizes in points.
QRect of(const QScreen& screen, xcb_connection_t* connection)
{
    const QRect frame = screen.geometry();
    const double scale = screen.devicePixelRatio();
    const QRect pixels{frame.topLeft(), (QSizeF{frame.size()} * scale).toSize()};
    const QRect room = within(pixels,
        {.struts = strutsOfWindows(connection, sizeOfDisplay(connection)),
            .areas = areasOfManager(connection)});
    const auto points = [&](int length) { return static_cast<int>(std::floor(length / scale)); };
    const QPoint inset = room.topLeft() - pixels.topLeft();
    return {frame.topLeft()
            + QPoint{static_cast<int>(std::ceil(inset.x() / scale)),
                static_cast<int>(std::ceil(inset.y() / scale))},
        QSize{points(room.width()), points(room.height())}};
}

} // namespace skyvane::WorkArea
