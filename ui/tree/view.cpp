#include "ui/tree/view.h"

#include <utility>

namespace skyvane {

ViewList::ViewList() = default;
ViewList::ViewList(std::initializer_list<View> views) : m_views(views) { }
ViewList::ViewList(std::vector<View> views) : m_views(std::move(views)) { }
ViewList::ViewList(const ViewList&) = default;
ViewList::ViewList(ViewList&&) noexcept = default;
ViewList& ViewList::operator=(const ViewList&) = default;
ViewList& ViewList::operator=(ViewList&&) noexcept = default;
ViewList::~ViewList() = default;

const View* ViewList::begin() const
{
    return m_views.data();
}

const View* ViewList::end() const
{
    return m_views.data() + m_views.size();
}

std::size_t ViewList::size() const
{
    return m_views.size();
}

const View& ViewList::operator[](std::size_t index) const
{
    return m_views[index];
}

bool ViewList::operator==(const ViewList& other) const
{
    return m_views == other.m_views;
}

} // namespace skyvane
