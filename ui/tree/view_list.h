#pragma once

#include <cstddef>
#include <initializer_list>
#include <vector>

namespace skyvane {

struct View;

/// Views in order: a std::vector<View> that nodes can hold before View is complete.
class ViewList {
public:
    ViewList();
    ViewList(std::initializer_list<View> views);
    ViewList(std::vector<View> views);
    ViewList(const ViewList&);
    ViewList(ViewList&&) noexcept;
    ViewList& operator=(const ViewList&);
    ViewList& operator=(ViewList&&) noexcept;
    ~ViewList();

    const View* begin() const;
    const View* end() const;
    std::size_t size() const;
    const View& operator[](std::size_t index) const;

    bool operator==(const ViewList&) const;

private:
    std::vector<View> m_views;
};

} // namespace skyvane
