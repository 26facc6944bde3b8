#include "platform/json/object.h"

namespace skyvane::JSON {

std::optional<Value> Object::find(std::string_view key) const
{
    Value value;
    const bool isThere = m_members.at_key(key).get(value) == simdjson::SUCCESS;
    return isThere && (m_null == Null::value || !value.is_null()) ? std::optional{value} : std::nullopt;
}

std::size_t lengthOfList(Value list)
{
    const std::size_t length = array(list).size();
    if (length > mostElements)
        throw DecodingError{"has more than 50,000 elements"};
    return length;
}

} // namespace skyvane::JSON
