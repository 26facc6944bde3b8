#pragma once

#include <curl/curl.h>

#include <memory>

namespace skyvane {

template <auto release>
struct Release {
    template <class Handle>
    void operator()(Handle* handle) const
    {
        release(handle);
    }
};
using EasyHandle = std::unique_ptr<CURL, Release<curl_easy_cleanup>>;
using MultiHandle = std::unique_ptr<CURLM, Release<curl_multi_cleanup>>;
using StringList = std::unique_ptr<curl_slist, Release<curl_slist_free_all>>;

} // namespace skyvane
