#pragma once

#include "platform/json/decode.h"
#include "ui/tree/view.h"

#include <nlohmann/json_fwd.hpp>

namespace skyvane {

/// The JSON form of a view (docs/protocol.md); members that hold their default are left out.
nlohmann::ordered_json toArchive(const View& view);
nlohmann::ordered_json toArchive(const Color& color);

/// The view that an archive holds: `fromArchive(toArchive(view)) == view`. Throws `JSON::DecodingError` on a
/// mistyped or missing member and on nesting deeper than 64 nodes.
View fromArchive(JSON::Value archive);
Color colorFromArchive(JSON::Value archive);

} // namespace skyvane
