#pragma once

#include "platform/json/object.h"
#include "ui/archive/words.h"
#include "ui/tree/view.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace skyvane {

/// Reads the members of one object of an archive by key. Every function throws `JSON::DecodingError` naming
/// the place; a null member is an absent one.
class NodeReader {
public:
    explicit NodeReader(JSON::Value value) : NodeReader(value, /*depth=*/1) { }

    static Color decodeColor(JSON::Value value);

    double number(std::string_view key) const;
    double positiveNumber(std::string_view key) const;
    std::optional<double> optionalNumber(std::string_view key) const;
    /// A whole number of at least 1.
    std::optional<int> optionalCount(std::string_view key) const;
    /// A number or "infinity".
    std::optional<double> optionalExtent(std::string_view key) const;
    std::string string(std::string_view key) const;
    std::optional<std::string> optionalString(std::string_view key) const;
    URL url(std::string_view key) const;
    Color color(std::string_view key) const;
    Font font(std::string_view key) const;
    Stroke stroke(std::string_view key) const;
    std::optional<Stroke> optionalStroke(std::string_view key) const;
    UnitPoint point(std::string_view key) const;

    template <class Value, std::size_t count>
    std::optional<Value> word(std::string_view key, const Words::Table<Value, count>& table) const
    {
        return m_object.optional(key, [&](JSON::Value value) {
            const std::string_view word = JSON::string(value);
            if (const auto known = Words::valueOf(table, word))
                return *known;
            throw JSON::DecodingError::unknownWord(word);
        });
    }

    /// What `read` makes of the node at `key`.
    template <class Read>
    auto child(std::string_view key, Read&& read) const
    {
        return m_object.required(key, [&](JSON::Value value) {
            return read(NodeReader{value, m_depth + 1});
        });
    }
    void forEach(std::string_view key, const std::function<void(const NodeReader&)>& visit) const;

private:
    NodeReader(JSON::Value value, int depth);

    JSON::Object m_object;
    int m_depth;
};

} // namespace skyvane
