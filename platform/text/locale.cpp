#include "platform/text/locale.h"

#include "platform/pinned.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace skyvane {

namespace {

constexpr const char* fallback = "en_US";

std::string_view variable(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

/// The ICU identifier of a POSIX locale name: "de_DE.UTF-8@euro" is "de_DE".
std::string identifier(std::string_view posixName)
{
    const std::string_view name = posixName.substr(0, posixName.find_first_of(".@"));
    if (name.empty() || name == "C" || name == "POSIX")
        return fallback;
    return std::string{name};
}

std::string ofCategory(const char* category)
{
    for (const char* name : {"LC_ALL", category, "LANG"}) {
        if (const std::string_view value = variable(name); !value.empty())
            return identifier(value);
    }
    return fallback;
}

std::string utf8(const icu::UnicodeString& text)
{
    std::string result;
    return text.toUTF8String(result);
}

/// By the formatter that knows from how many digits on a locale groups at all.
std::string grouped(std::int64_t value, UNumberSignDisplay sign)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale{Locale::current().numbers.c_str()};
    const icu::UnicodeString text = icu::number::NumberFormatter::withLocale(locale)
                                        .sign(sign)
                                        .formatInt(value, status)
                                        .toString(status);
    return U_SUCCESS(status) ? utf8(text) : std::to_string(value);
}

std::string written(Date date, icu::DateFormat::EStyle style)
{
    const Locale locale = Locale::current();
    const std::unique_ptr<icu::DateFormat> format{
        icu::DateFormat::createTimeInstance(style, icu::Locale{locale.times.c_str()})};
    if (!format)
        return {};
    if (!locale.timeZone.empty())
        format->adoptTimeZone(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(locale.timeZone)));
    icu::UnicodeString text;
    format->format(static_cast<UDate>(date.time_since_epoch().count()), text);
    // Fixed-width faces rarely have the narrow blank before AM and PM; another face's would break the column.
    text.findAndReplace(icu::UnicodeString{u'\u202F'}, icu::UnicodeString{u' '});
    return utf8(text);
}

} // namespace

Locale Locale::current()
{
    if (const Locale* pinned = Pinned<Locale>::current())
        return *pinned;
    return {.numbers = ofCategory("LC_NUMERIC"), .times = ofCategory("LC_TIME"), .timeZone = {}};
}

std::string groupedInteger(std::int64_t value)
{
    return grouped(value, UNUM_SIGN_AUTO);
}

std::string groupedMagnitude(std::int64_t value)
{
    return grouped(value, UNUM_SIGN_NEVER);
}

std::string shortTime(Date date)
{
    return written(date, icu::DateFormat::kShort);
}

std::string timeWithSeconds(Date date)
{
    return written(date, icu::DateFormat::kMedium);
}

} // namespace skyvane
