#pragma once

#include "platform/clock.h"
#include "platform/json/object.h"
#include "platform/net/url.h"
#include "protocol/widget_timeline.h"
#include "ui/tree/view.h"
#include "ui/tree/widget_family.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <vector>

/// Values from and to the protocol's JSON; records are in record_codec.h.
namespace skyvane::Protocol {

using Json = nlohmann::ordered_json;

/// Specialise for a type that is no record: `static T read(JSON::Value)` and `static Json write(const T&)`.
template <class T>
struct Codec;

/// Throws `JSON::DecodingError` on another shape.
template <class T>
T read(JSON::Value value)
{
    return Codec<T>::read(value);
}

template <class T>
Json write(const T& value)
{
    return Codec<T>::write(value);
}

template <>
struct Codec<std::string> {
    static std::string read(JSON::Value value) { return JSON::text(value); }
    static Json write(const std::string& text) { return text; }
};

template <>
struct Codec<bool> {
    static bool read(JSON::Value value) { return JSON::boolean(value); }
    static Json write(bool flag) { return flag; }
};

template <>
struct Codec<double> {
    static double read(JSON::Value value) { return JSON::number(value); }
    static Json write(double number) { return number; }
};

/// Seconds since 1970, to the millisecond.
template <>
struct Codec<Date> {
    static Date read(JSON::Value value);
    static Json write(Date date);
};

template <>
struct Codec<WidgetFamily> {
    static WidgetFamily read(JSON::Value value);
    static Json write(WidgetFamily family);
};

/// Families that this side does not know are passed over.
template <>
struct Codec<std::vector<WidgetFamily>> {
    static std::vector<WidgetFamily> read(JSON::Value value);
    static Json write(const std::vector<WidgetFamily>& families);
};

template <>
struct Codec<View> {
    static View read(JSON::Value value);
    static Json write(const View& view);
};

template <>
struct Codec<Color> {
    static Color read(JSON::Value value);
    static Json write(const Color& color);
};

/// Null, and a text that is no URL, are absence.
template <>
struct Codec<std::optional<URL>> {
    static std::optional<URL> read(JSON::Value value);
    static Json write(const std::optional<URL>& url);
};

template <>
struct Codec<ReloadAfter> {
    static ReloadAfter read(JSON::Value value);
    static Json write(const ReloadAfter& reload);
};

template <class T>
struct Codec<std::vector<T>> {
    static std::vector<T> read(JSON::Value value) { return JSON::listOf(&Protocol::read<T>)(value); }
    static Json write(const std::vector<T>& list)
    {
        Json json = Json::array();
        for (const T& element : list)
            json.push_back(Protocol::write(element));
        return json;
    }
};

} // namespace skyvane::Protocol
