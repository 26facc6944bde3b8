#pragma once

#include "ui/layout/axis.h"
#include "ui/layout/text_measurer.h"
#include "ui/tree/view.h"

#include <unordered_map>
#include <vector>

namespace skyvane {

/// A stack with its children's lengths settled.
struct StackArrangement {
    struct Slot {
        const View* child;
        Size offer; ///< What the child answers with `size`.
        Size size;
        double start; ///< Along the stack.
    };

    std::vector<Slot> slots;
    Size size;
};

/// What the views of one tree answer to the sizes they are offered. Every answer is kept for the time of one
/// layout, so that a tree costs no more than its nodes however deep stacks nest. Offered lengths may be
/// infinite, and so may answers.
class Sizing {
public:
    explicit Sizing(const TextMeasurer& measurer);

    Size size(const View& view, Size offer);

    StackArrangement arrange(const HStack& stack, Size offer);
    StackArrangement arrange(const VStack& stack, Size offer);

    /// What a frame offers its child.
    static Size offerInside(const Frame& frame, Size offer);

    /// Of a symbol's square.
    static double side(const Font& symbolFont);
    const TextMeasurer& measurer() const { return m_measurer; }

private:
    struct Answer {
        Size offer;
        Size size;
    };

    Size answer(const View& view, Size offer);
    StackArrangement arrange(const ViewList& children, double spacing, Axis axis, Size offer);
    std::vector<Size> offers(const std::vector<const View*>& children, double space, Axis axis, Size offer);

    const TextMeasurer& m_measurer;
    std::unordered_map<const View*, std::vector<Answer>> m_answers;
};

} // namespace skyvane
