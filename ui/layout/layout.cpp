#include "ui/layout/layout.h"

#include "ui/layout/bounded.h"
#include "ui/layout/sizing.h"
#include "ui/layout/text_layout.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

class Arrangement {
public:
    Arrangement(Size space, const TextMeasurer& measurer, TextDirection direction)
        : m_sizing(measurer), m_direction(direction), m_list{.size = space}
    {
    }

    DisplayList place(const View& view) &&
    {
        const Size size = m_sizing.size(view, m_list.size);
        const Rect space{.x = 0, .y = 0, .width = m_list.size.width, .height = m_list.size.height};
        place(view, aligned(size, Alignment::center, space), m_list.size);
        return std::move(m_list);
    }

private:
    /// `frame` is where the view stands with the size that it answered to `offer`.
    void place(const View& view, const Rect& frame, Size offer)
    {
        std::visit([&](const auto& node) { placeNode(node, frame, offer); }, view.node);
    }

    void placeNode(const Text& text, const Rect& frame, Size offer)
    {
        const TextBlock block = layoutText(text, offer.width, m_sizing.measurer());
        double baseline = frame.y + block.metrics.ascent;
        for (const TextBlock::Line& line : block.lines) {
            const double start = leadingPart(text.align) * (frame.width - line.width);
            if (!line.string.empty())
                m_list.items.push_back(TextLine{
                    .origin = {.x = left(start, line.width, frame), .y = baseline},
                    .width = line.width,
                    .string = line.string,
                    .face = block.face,
                    .tracking = block.tracking,
                    .color = text.color,
                });
            baseline += block.metrics.height();
        }
    }

    void placeNode(const Symbol& symbol, const Rect& frame, Size)
    {
        m_list.items.push_back(Pictogram{
            .center = frame.center(),
            .side = frame.width,
            .name = symbol.name,
            .rotation = symbol.rotation,
            .color = symbol.color,
        });
    }

    void placeNode(const HStack& stack, const Rect& frame, Size offer)
    {
        for (const auto& slot : m_sizing.arrange(stack, offer).slots) {
            const double y = frame.y + leadingPart(stack.align) * (frame.height - slot.size.height);
            placeChild(slot, {.x = left(slot.start, slot.size.width, frame), .y = y});
        }
    }

    void placeNode(const VStack& stack, const Rect& frame, Size offer)
    {
        for (const auto& slot : m_sizing.arrange(stack, offer).slots) {
            const double start = leadingPart(stack.align) * (frame.width - slot.size.width);
            placeChild(slot, {.x = left(start, slot.size.width, frame), .y = frame.y + slot.start});
        }
    }

    void placeNode(const Spacer&, const Rect&, Size) { }

    void placeNode(const Frame& node, const Rect& frame, Size offer)
    {
        placeAligned(node.child[0], node.align, frame, Sizing::offerInside(node, offer));
    }

    void placeNode(const Overlay& overlay, const Rect& frame, Size offer)
    {
        place(overlay.child[0], frame, offer);
        for (const Overlay::Layer& layer : overlay.layers)
            placeAligned(layer.child[0], layer.align, frame, {.width = frame.width, .height = frame.height});
    }

    void placeNode(const Canvas& canvas, const Rect& frame, Size)
    {
        for (const CanvasItem& item : canvas.items)
            std::visit([&](const auto& drawn) { draw(drawn, frame); }, item);
    }

    void placeNode(const Link& link, const Rect& frame, Size offer)
    {
        m_list.links.push_back({.frame = frame, .url = link.url});
        place(link.child[0], frame, offer);
    }

    void placeNode(const UnknownView&, const Rect&, Size) { }

    void placeChild(const StackArrangement::Slot& slot, Point origin)
    {
        place(*slot.child, {origin.x, origin.y, slot.size.width, slot.size.height}, slot.offer);
    }

    void placeAligned(const View& child, Alignment align, const Rect& frame, Size offer)
    {
        Rect inside = aligned(m_sizing.size(child, offer), align, frame);
        inside.x = left(inside.x - frame.x, inside.width, frame);
        place(child, inside, offer);
    }

    /// Where something this wide stands that begins so far from the side where lines begin.
    double left(double start, double width, const Rect& frame) const
    {
        const bool isMirrored = m_direction == TextDirection::rightToLeft;
        return frame.x + (isMirrored ? frame.width - start - width : start);
    }

    static Point onCanvas(UnitPoint point, const Rect& frame)
    {
        return {.x = frame.x + point.x * frame.width, .y = frame.y + point.y * frame.height};
    }

    void draw(const CanvasCircle& circle, const Rect& frame)
    {
        const auto* fraction = std::get_if<FractionOfWidth>(&circle.diameter);
        m_list.items.push_back(Ellipse{
            .center = onCanvas(circle.center, frame),
            .diameter = fraction ? fraction->value * frame.width : std::get<Points>(circle.diameter).value,
            .paint = circle.paint,
        });
    }

    void draw(const CanvasLine& line, const Rect& frame)
    {
        m_list.items.push_back(Segment{
            .from = onCanvas(line.from, frame),
            .to = onCanvas(line.to, frame),
            .stroke = line.stroke,
        });
    }

    void draw(const CanvasSymbol& symbol, const Rect& frame)
    {
        m_list.items.push_back(Pictogram{
            .center = onCanvas(symbol.center, frame),
            .side = Sizing::side(symbol.font),
            .name = symbol.name,
            .rotation = symbol.rotation,
            .color = symbol.color,
            .id = symbol.id,
        });
    }

    void draw(const UnknownCanvasItem&, const Rect&) { }

    Sizing m_sizing;
    TextDirection m_direction;
    DisplayList m_list;
};

} // namespace

DisplayList layout(const View& view, Size space, const TextMeasurer& measurer, TextDirection direction)
{
    return Arrangement{space, measurer, direction}.place(view);
}

} // namespace skyvane
