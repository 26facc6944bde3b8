#pragma once

#include "platform/json/value.h"
#include "protocol/answer.h"

#include <string>

namespace skyvane::test {

/// What a reader says of a text that it does not take.
template <class Action>
std::string complaint(Action&& action)
{
    try {
        action();
        return "none";
    } catch (const JSON::DecodingError& error) {
        return error.what();
    } catch (const Protocol::Refused& error) {
        return std::string{"refused: "} + error.what();
    }
}

} // namespace skyvane::test
