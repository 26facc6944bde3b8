#pragma once

#include "platform/net/handles.h"
#include "platform/net/transfer_error.h"

#include <string>

namespace skyvane {

template <class Value>
void set(CURL* easy, CURLoption option, Value value)
{
    if (const CURLcode outcome = curl_easy_setopt(easy, option, value); outcome != CURLE_OK)
        throw TransferError{TransferProblem::other, curl_easy_strerror(outcome)};
}

inline void append(StringList& list, const std::string& text)
{
    curl_slist* longer = curl_slist_append(list.get(), text.c_str());
    if (longer == nullptr)
        throw TransferError{TransferProblem::other, curl_easy_strerror(CURLE_OUT_OF_MEMORY)};
    static_cast<void>(list.release());
    list.reset(longer);
}

} // namespace skyvane
