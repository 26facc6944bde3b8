#include "core/feed/adsb.h"

#include "core/feed/search_radius.h"
#include "core/feed/sources.h"
#include "core/model/fields.h"
#include "platform/text/localized.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <string>
#include <utility>
#include <variant>

namespace skyvane::ADSB {

namespace {

bool hasFreshPosition(const Aircraft& aircraft)
{
    return aircraft.coordinate() && (!aircraft.seenPos || *aircraft.seenPos < 60.0);
}

std::vector<Aircraft> listOf(APIResponse response)
{
    if (response.ac)
        return *std::move(response.ac);
    if (response.aircraft)
        return *std::move(response.aircraft);
    return {};
}

/// Orders small keys instead of the large records, each of which then moves once.
std::vector<Aircraft> freshNearestFirst(std::vector<Aircraft> all)
{
    struct Ranked {
        double distanceNM;
        Aircraft* aircraft;
    };
    std::vector<Ranked> ranking;
    ranking.reserve(all.size());
    for (Aircraft& aircraft : all) {
        constexpr double unknown = std::numeric_limits<double>::infinity();
        if (hasFreshPosition(aircraft))
            ranking.push_back({aircraft.distanceNM.value_or(unknown), &aircraft});
    }
    std::ranges::stable_sort(ranking, {}, &Ranked::distanceNM);

    std::vector<Aircraft> list;
    list.reserve(ranking.size());
    for (const Ranked& next : ranking)
        list.push_back(std::move(*next.aircraft));
    return list;
}

/// What one source was asked for: its list, or why there is none.
using Outcome = std::variant<std::vector<Aircraft>, FetchError>;

FetchError failure(const Source& source, const std::string& words, FetchCause cause)
{
    return FetchError{source.name + ": " + words, std::move(cause)};
}

FetchError undecodable(const Source& source, const JSON::DecodingError& error)
{
    switch (error.kind()) {
    case JSON::DecodingError::Kind::tooLarge:
        return failure(source, description(TransferProblem::tooLarge),
            {FetchProblem::transfer, TransferProblem::tooLarge, error.what()});
    case JSON::DecodingError::Kind::notJSON:
        return failure(source, localized("The answer is not JSON."),
            {.problem = FetchProblem::notJSON, .details = error.what()});
    case JSON::DecodingError::Kind::shape:
        break;
    }
    return failure(source, localized("The answer is not what was expected."),
        {.problem = FetchProblem::shape, .details = error.what()});
}

FetchError unforeseen(const Source& source, std::string details)
{
    return failure(source, description(TransferProblem::other),
        {.problem = FetchProblem::other, .details = std::move(details)});
}

/// Cancellation alone is thrown.
Outcome inquire(const Source& source, const URL& url, const Transport& transport, const std::stop_token& stop)
{
    try {
        URLResponse response = transport({.url = url, .timeout = std::chrono::seconds{8}}, stop);
        if (response.status != 200)
            return FetchError{source.name + " returned an error",
                {.problem = FetchProblem::status, .status = response.status}};
        return freshNearestFirst(listOf(JSON::decodeText<APIResponse>(std::move(response.body))));
    } catch (const CancellationError&) {
        throw;
    } catch (const TransferError& error) {
        return failure(source, error.what(), {FetchProblem::transfer, error.problem, error.details});
    } catch (const JSON::DecodingError& error) {
        return undecodable(source, error);
    } catch (const std::exception& error) {
        return unforeseen(source, error.what());
    } catch (...) {
        return unforeseen(source, {});
    }
}

} // namespace

Answer ask(const HomeLocation& home, double radiusNM, const Transport& transport, std::stop_token stop)
{
    const int radius = SearchRadius::asked(radiusNM);
    bool hasEmptySky = false;
    FetchError lastError{"No flight data source reachable"};
    Answer answer;
    for (const Source& source : sources()) {
        const auto url = URL::parse(source.url(home, radius));
        if (!url)
            continue;
        Outcome outcome = inquire(source, *url, transport, stop);
        Inquiry& inquiry = answer.asked.emplace_back(Inquiry{.source = source.name});
        if (auto* error = std::get_if<FetchError>(&outcome)) {
            inquiry.problem = error->cause;
            lastError = std::move(*error);
            continue;
        }
        answer.aircraft = std::get<std::vector<Aircraft>>(std::move(outcome));
        inquiry.count = answer.aircraft.size();
        if (!answer.aircraft.empty())
            return answer;
        hasEmptySky = true;
    }
    if (!hasEmptySky)
        answer.problem = std::move(lastError);
    return answer;
}

std::vector<Aircraft> fetch(
    const HomeLocation& home, double radiusNM, const Transport& transport, std::stop_token stop)
{
    Answer answer = ask(home, radiusNM, transport, std::move(stop));
    if (answer.problem)
        throw FetchError{*answer.problem};
    return std::move(answer.aircraft);
}

} // namespace skyvane::ADSB
